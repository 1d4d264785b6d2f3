// Prints what the program hands to the desktop for each of its links to the web, a line of JSON
// each: the button or option, its caption, the target.

#include <iostream>

#include "bench.h"
#include "core/modules.h"
#include "presentation/about_box.h"

namespace orvanta::test {

namespace {

void print(Bench& bench, std::string_view from, std::string_view caption) {
    for (const Json& event : bench.events("open"))
        std::cout << Json{{"from", from}, {"caption", caption}, {"target", event["target"]}}
                  << '\n';
}

/// The lines of the driver end before the About box could be clicked.
void followSupportLink(Bench& bench) {
    openSupportPage(bench.program());
    bench.play({{"do", "activate"}});  // brings the event along
}

}  // namespace

void printLinks() {
    Bench bench;
    bench.start();
    bench.click("Overview");
    print(bench, "Overview", "Overview");
    followSupportLink(bench);
    print(bench, "lblSupport", FrmAbout().lblSupport.caption());
    bench.click("Brainstorm");
    for (const Module& module : modules) {
        const Option& option = bench.form().*module.option;
        bench.play({{"do", "choose"}, {"option", option.name()}});
        bench.clickControl("lblDistribute");
        print(bench, option.name(), option.caption());
    }
}

}  // namespace orvanta::test

int main() {
    orvanta::test::printLinks();
    return 0;
}
