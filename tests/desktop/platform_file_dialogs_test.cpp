#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QtTest>
#include <functional>

#include "analyze/source_files.h"
#include "app/session_opening.h"
#include "desktop/file_chooser.h"
#include "desktop/message_box.h"
#include "desktop/platform.h"
#include "sessionfiles/merging.h"
#include "sessionfiles/saving.h"
#include "temporary_folder.h"
#include "view/file_disk.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

Platform withFiles(const Platform& world, Disk& disk, FileDialogs& dialogs) {
    return {disk,
            world.messages,
            dialogs,
            world.settings,
            world.shell,
            world.player,
            world.screen,
            world.modalForms,
            world.questionPrinter,
            world.wordProcessors,
            world.lifetime,
            world.folders};
}

/// A program with an unsaved session of each module, on the real disk and before the file dialogs
/// that a person gets. The message boxes are the bench's.
class FileDialogsOfAPerson : public testing::Test {
protected:
    FileDialogsOfAPerson() {
        FrmMain& form = program.frmMain;
        form.lastPathBSM = form.lastPathAZE = folder.path();
        form.cd.filter = "All Brainstorming Files (*.bsm)|*.bsm";
        form.cd.initialPath = folder.path();
        form.lvBStrength.add({.key = "S1", .text = "Own fleet"});
        form.lvAStrength.add({.key = "S1", .text = "Own fleet"});
        form.editFlag = form.editAFlag = true;
        form.fraBrainstorm.show();
        tickAutoSave(program);
    }

    /// Types one name after the other into the next dialog, an OK behind each refusal, and leaves
    /// it with Escape if it is still there.
    void answer(const QStringList& names) {
        QTimer::singleShot(0, [this, names] { type(names); });
    }

    /// What the program's own boxes said.
    Texts messages() {
        bench.play({{"do", "state"}});
        return bench.messages();
    }

    TemporaryFolder folder;
    std::vector<std::string> refusals;

private:
    void type(const QStringList& names) {
        auto& chooser = dynamic_cast<FileChooser&>(*QApplication::activeModalWidget());
        for (const QString& name : names) {
            chooser.nameBox()->selectAll();
            QTest::keyClicks(chooser.nameBox(), name);
            QTest::keyClick(chooser.nameBox(), Qt::Key_Return);
            closeRefusal(chooser);
        }
        if (chooser.isVisible()) QTest::keyClick(&chooser, Qt::Key_Escape);
    }
    void closeRefusal(FileChooser& chooser) {
        auto* box = chooser.findChild<MessageBox*>();
        if (!box) return;
        refusals.push_back(box->text().section('\n', 0, 0).toStdString());
        delete box;
    }

    FileDisk m_disk;
    DesktopFileDialogs m_dialogs;

protected:
    Bench bench;

private:
    Platform m_platform = withFiles(bench.program().platform, m_disk, m_dialogs);

protected:
    Program program{m_platform, folder.path(), folder.path()};
};

/// Clicks a row of an open dialog once it shows so many.
void clickOn(FileChooser& chooser, int row, int rows, Qt::KeyboardModifiers modifiers) {
    auto& files = *chooser.findChild<QTreeView*>(QStringLiteral("treeView"));
    const auto all = [&] { return files.model()->rowCount(files.rootIndex()); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return all() == rows; }));
    const QModelIndex index = files.model()->index(row, 0, files.rootIndex());
    files.scrollTo(index);
    QTest::mouseClick(files.viewport(), Qt::LeftButton, modifiers,
                      files.visualRect(index).center());
}

}  // namespace

TEST_F(FileDialogsOfAPerson, KeepTheSessionWhenSavingIsRefusedAndGivenUp) {
    answer({"gone/team"});
    EXPECT_FALSE(saveBrainstormDialog(program));
    EXPECT_EQ(refusals, (Texts{"This folder does not exist:"}));
    EXPECT_TRUE(program.frmMain.editFlag);
    EXPECT_EQ(rowsOf(program.frmMain.lvBStrength), (ShownRows{{"S1", "Own fleet"}}));
    EXPECT_EQ(folder.names(), Texts{"brainstorm.tmp"});
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(FileDialogsOfAPerson, SaveTheSessionBehindARefusal) {
    answer({"gone/team", "..", folder.path().c_str(), "team"});
    EXPECT_TRUE(saveBrainstormDialog(program));
    EXPECT_EQ(folder.names(), Texts{"team.bsm"});
    EXPECT_EQ(messages(), Texts{"Your brainstorming session completed."});
}

TEST_F(FileDialogsOfAPerson, AskOnceBeforeAFileIsOverwritten) {
    folder.write("team.bsm", "former");
    answer({"team"});
    EXPECT_FALSE(saveBrainstormDialog(program));  // the bench answers No
    EXPECT_EQ(messages(), Texts{"Do you want to overwrite the file?"});
    EXPECT_EQ(refusals, Texts{});
    EXPECT_EQ(folder.read("team.bsm"), "former");
    EXPECT_TRUE(program.frmMain.editFlag);
}

TEST_F(FileDialogsOfAPerson, KeepTheAnalysisWhenSavingIsRefusedAndGivenUp) {
    answer({"gone/team"});
    EXPECT_FALSE(saveAnalyzeDialog(program));
    EXPECT_EQ(refusals, (Texts{"This folder does not exist:"}));
    EXPECT_TRUE(program.frmMain.editAFlag);
    EXPECT_EQ(rowsOf(program.frmMain.lvAStrength), (ShownRows{{"S1", "Own fleet"}}));
}

TEST_F(FileDialogsOfAPerson, RememberNoFileThatIsMissing) {
    program.frmMain.editFlag = program.frmMain.editAFlag = false;
    answer({"gone"});
    openBrainstormFile(program);
    EXPECT_EQ(refusals, (Texts{"This file does not exist:"}));
    EXPECT_EQ(program.frmMain.lastPathBSM, folder.path());
}

TEST_F(FileDialogsOfAPerson, AddTheSourceFileThatWasMeant) {
    folder.write("dana.bsm", "");
    answer({"lee", "dana"});
    addAnalyzeSourceFiles(program);
    EXPECT_EQ(refusals, (Texts{"This file does not exist:"}));
    EXPECT_EQ(program.frmMain.lstFiles.items(), Texts{folder / "dana.bsm"});
}

TEST_F(FileDialogsOfAPerson, AddFortyFilesWithFourClicks) {
    for (int i = 10; i < 50; ++i) folder.write("member" + std::to_string(i) + ".bsm", "");
    program.frmMain.editFlag = program.frmMain.editAFlag = false;
    MainWindow window(program);
    openAnalyzeModule(program);
    window.show();
    QTimer::singleShot(0, [] {
        auto& chooser = dynamic_cast<FileChooser&>(*QApplication::activeModalWidget());
        clickOn(chooser, 0, 40, Qt::NoModifier);
        clickOn(chooser, 39, 40, Qt::ShiftModifier);
        auto* buttons = chooser.findChild<QDialogButtonBox*>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Open), Qt::LeftButton);
        if (chooser.isVisible()) QTest::keyClick(&chooser, Qt::Key_Escape);
    });
    QTest::mouseClick(window.findChild<QWidget*>(QStringLiteral("imgBtnAFAdd")), Qt::LeftButton);
    const Texts& added = program.frmMain.lstFiles.items();
    ASSERT_EQ(added.size(), 40u);
    EXPECT_EQ(program.frmMain.lastPathBSM, added.back());
}

TEST_F(FileDialogsOfAPerson, MergeIntoNoMissingFolder) {
    answer({"gone/all", "all"});
    mergeBrainstormFiles(program);
    EXPECT_EQ(refusals, (Texts{"This folder does not exist:"}));
    EXPECT_EQ(messages(), Texts{"Brainstorm files merged."});
    EXPECT_TRUE(std::filesystem::exists(folder / "all.bsm"));
}

}  // namespace orvanta::test
