#include "desktop/platform.h"

#include <gtest/gtest.h>

#include "memory_disk.h"
#include "reports/word_processor.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

}  // namespace

TEST(DesktopPlatform, MakesDocumentsWithTheProgramsOwnWordProcessor) {
    MemoryDisk disk;
    disk.folders = {"docs"};
    DesktopPlatform desktop(disk);
    const WordRef application(desktop.platform().wordProcessors.createApplication());
    const WordRef document = application.get("Documents").get("Add");
    document.call("SaveAs", {std::string("docs/team.rtf")});
    EXPECT_TRUE(disk.files["docs/team.rtf"].starts_with("{\\rtf1"));
}

}  // namespace orvanta::test
