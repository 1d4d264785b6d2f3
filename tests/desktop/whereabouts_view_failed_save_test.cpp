#include <gtest/gtest.h>

#include <QMessageBox>
#include <QtTest>

#include "app/rescued_saves.h"
#include "desktop/whereabouts_view.h"
#include "temporary_folder.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// The window of a program whose failed saves leave a copy in a folder of the test.
class FailedSaveLine : public testing::Test {
protected:
    FailedSaveLine() {
        bench.program().platform.failedSaves = &saves;
        bench.window().tellOf(saves);
        bench.start();
        bench.window().show();
        bench.disk.unwritable["docs/team.bsm"] = ErrorNumber::PermissionDenied;
    }
    ~FailedSaveLine() override { bench.program().platform.failedSaves = nullptr; }

    QLabel& line() {
        QCoreApplication::processEvents();
        return bench.widget<QLabel>("lblWhereabouts");
    }
    std::string told() { return line().isVisible() ? line().text().toStdString() : ""; }

    /// A brainstorm session of one strength is saved under this name as its wizard ends.
    void saveBrainstorm(const std::string& path) {
        bench.openBrainstorm();
        bench.enter("txtStrength", {"Own fleet"});
        for (int press = 0; press < 11; ++press) bench.click("BNext");
        bench.answerFile(path);
        bench.click("BNext");
    }
    void merge(const std::string& path) {
        bench.click("Analyze");
        bench.addSource("docs/dana.bsm", "Dana", {"Own fleet"}, {}, {}, {});
        bench.answerFile(path);
        bench.play({{"do", "call"}, {"routine", "mergeBrainstormFiles"}});
    }

    std::string copyOf(const std::string& name) const {
        for (const auto& entry : std::filesystem::directory_iterator(folder / "rescue"))
            if (entry.path().filename().string().ends_with(" " + name))
                return folder.read("rescue/" + entry.path().filename().string());
        return {};
    }

    TemporaryFolder folder;
    RescuedSaves saves{RescueStore(folder / "rescue")};
    const std::string copyLies = " was not written. A copy is in " + folder / "rescue";
    WindowBench<> bench;
};

}  // namespace

TEST_F(FailedSaveLine, TellsOfAFolderThatCannotBeWrittenThoughNoModuleIsOpenAnyMore) {
    saveBrainstorm("docs/team.bsm");
    EXPECT_EQ(bench.messages(), Texts{"Your brainstorming session completed."});
    EXPECT_EQ(told(), "team.bsm" + copyLies);
    EXPECT_NE(copyOf("team.bsm").find("Own fleet"), std::string::npos);
}

TEST_F(FailedSaveLine, TellsOfAFullDisk) {
    bench.disk.capacity = 10;
    saveBrainstorm("docs/full.bsm");
    EXPECT_EQ(told(), "full.bsm" + copyLies);
    EXPECT_NE(copyOf("full.bsm").find("Own fleet"), std::string::npos);
}

TEST_F(FailedSaveLine, TellsOfAMergedFile) {
    merge("docs/team.bsm");
    EXPECT_EQ(told(), "team.bsm" + copyLies);
    EXPECT_NE(copyOf("team.bsm").find("Own fleet"), std::string::npos);
}

TEST_F(FailedSaveLine, SaysNothingOfASaveThatWentWell) {
    saveBrainstorm("docs/good.bsm");
    EXPECT_EQ(told(), "");
    EXPECT_FALSE(std::filesystem::exists(folder / "rescue"));
}

TEST_F(FailedSaveLine, GivesWholePathsInItsToolTip) {
    saveBrainstorm("docs/team.bsm");
    EXPECT_TRUE(line().toolTip().contains(QLatin1String("docs/team.bsm was not written")));
    EXPECT_TRUE(line().toolTip().contains(QLatin1String(" team.bsm</p>")));
}

TEST_F(FailedSaveLine, StaysUntilTheNextPressOfTheMouse) {
    saveBrainstorm("docs/team.bsm");
    QTest::mouseMove(&bench.window());
    EXPECT_NE(told(), "");
    QTest::mousePress(&bench.window(), Qt::LeftButton);
    EXPECT_EQ(told(), "");
    QTest::mouseRelease(&bench.window(), Qt::LeftButton);
}

TEST_F(FailedSaveLine, GivesWayToTheWhereaboutsAtTheNextKey) {
    merge("docs/team.bsm");
    QTest::keyPress(&bench.widget("lstFiles"), Qt::Key_Alt);
    EXPECT_EQ(told(), "team.bsm" + copyLies);
    QTest::keyClick(&bench.widget("lstFiles"), Qt::Key_Down);
    EXPECT_TRUE(told().starts_with("Step 1 of 7: Source files.")) << told();
}

TEST_F(FailedSaveLine, OutlivesThePressThatClosesABox) {
    saveBrainstorm("docs/team.bsm");
    QMessageBox box(&bench.window());
    box.show();
    QTest::mouseClick(box.addButton(QMessageBox::Ok), Qt::LeftButton);
    EXPECT_EQ(told(), "team.bsm" + copyLies);
}

TEST_F(FailedSaveLine, ShowsANameAsItIsNotAsMarkup) {
    saves.documentNotWritten("docs/<b>x & y.rtf");
    EXPECT_EQ(told(), "<b>x & y.rtf was not written.");
    EXPECT_EQ(line().textFormat(), Qt::PlainText);
    EXPECT_TRUE(line().toolTip().contains(QLatin1String("&lt;b&gt;x &amp; y.rtf")));
}

}  // namespace orvanta::test
