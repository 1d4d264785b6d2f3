#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>

#include "driver.h"
#include "view/file_disk.h"

namespace {

using namespace orvanta;

struct Options {
    driver::Folders folders;
    bool window = false;
    bool complete = false;
};

Options optionsFrom(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view option = argv[i];
        if (option == "--window") {
            options.window = true;
            continue;
        }
        if (i + 1 == argc) return {};
        const std::string value = windows1252From(argv[++i]);
        if (option == "--app")
            options.folders.app = value;
        else if (option == "--documents")
            options.folders.documents = value;
        else if (option == "--settings")
            options.folders.settings = value;
        else
            return {};
    }
    options.complete = !options.folders.app.empty() && !options.folders.documents.empty() &&
                       !options.folders.settings.empty();
    return options;
}

int play(driver::Stage& stage, const driver::Folders& folders) {
    FileDisk disk;
    driver::Driver driver(stage, disk, folders);
    std::string line;
    while (!driver.hasEnded() && std::getline(std::cin, line))
        std::cout << driver.answer(line).dump() << std::endl;
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const Options options = optionsFrom(argc, argv);
    if (!options.complete) {
        std::fputs("usage: orvanta_driver --app DIR --documents DIR --settings FILE [--window]\n",
                   stderr);
        return 2;
    }
    if (!options.window) return play(*driver::makeModelStage(), options.folders);
#ifdef ORVANTA_DESKTOP
    return play(*driver::makeWindowStage(argc, argv), options.folders);
#else
    std::fputs("this driver was built without the window\n", stderr);
    return 2;
#endif
}
