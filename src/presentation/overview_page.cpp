#include "presentation/overview_page.h"

#include "presentation/about_box.h"

namespace orvanta {

void openOverviewPage(Program& program) {
    program.platform.shell.open("http://" + std::string(webHost) + "/orvanta-overview/");
}

}  // namespace orvanta
