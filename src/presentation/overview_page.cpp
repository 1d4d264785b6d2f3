#include "presentation/overview_page.h"

#include "core/web_host.h"

namespace orvanta {

void openOverviewPage(Program& program) { program.platform.shell.open(webAddress(overviewPage)); }

}  // namespace orvanta
