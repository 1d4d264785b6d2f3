#include "desktop/platform.h"

#include <gtest/gtest.h>

#include "memory_disk.h"
#include "reports/word_processor.h"
#include "temporary_folder.h"

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

TEST(DesktopFolders, HaveNoSeparatorBehindTheDocumentsFolder) {
    constexpr const char* settings = "XDG_CONFIG_HOME";
    const TemporaryFolder folder;
    const QByteArray former = qgetenv(settings);
    const bool wasSet = qEnvironmentVariableIsSet(settings);
    qputenv(settings, folder.path().c_str());
    for (const std::string separators : {"", "/", "//"}) {
        folder.write("user-dirs.dirs",
                     "XDG_DOCUMENTS_DIR=\"" + folder.path() + "/docs" + separators + "\"\n");
        EXPECT_EQ(DesktopFolders().documents(), folder.path() + "/docs");
    }
    if (wasSet)
        qputenv(settings, former);
    else
        qunsetenv(settings);
}

}  // namespace orvanta::test
