#include "desktop/file_chooser.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeView>
#include <QtTest>
#include <memory>

#include "desktop/conversions.h"
#include "desktop/message_box.h"
#include "temporary_folder.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// A dialog on the screen before a folder of the real disk. What is told of folders is told from
/// there: "Team" is a folder in it, "." itself.
class ChooserOnScreen : public testing::Test {
protected:
    ChooserOnScreen() {
        for (const char* name : {"Team", "home", "home/anna", "taken.bsm"})
            std::filesystem::create_directory(folder / name);
        folder.write("team2.bsm", "");
        qputenv("HOME", QByteArray::fromStdString(folder / "home"));
    }
    ~ChooserOnScreen() override { qputenv("HOME", m_home); }

    void show(FileDialogMode mode) {
        m_chooser =
            std::make_unique<FileChooser>(FileDialogRequest{.mode = mode,
                                                            .filter = "All Files (*.bsm)|*.bsm",
                                                            .initialPath = folder.path(),
                                                            .fileName = {}},
                                          FileRules::Heeded, nullptr);
        m_chooser->open();
        QApplication::setActiveWindow(m_chooser.get());  // also where no window manager does it
        nameBox().setFocus();
    }
    /// Before a folder with two more files.
    void showForSeveral() {
        for (const char* name : {"ann.bsm", "bo.bsm"}) folder.write(name, "");
        show(FileDialogMode::Open);
        m_chooser->takeSeveral();
        ASSERT_TRUE(QTest::qWaitFor([this] { return lastShown() == "team2.bsm"; }));
    }
    /// The last name of a list that shows all.
    std::string lastShown() {
        const auto& files = *m_chooser->findChild<QTreeView*>(QStringLiteral("treeView"));
        const int rows = files.model()->rowCount(files.rootIndex());
        if (rows != 6) return {};
        return files.model()->index(rows - 1, 0, files.rootIndex()).data().toString().toStdString();
    }
    /// Each key goes to whatever has the keyboard then.
    void type(const QString& text) {
        for (const QChar character : text)
            QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
    }
    void pressEnter() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); }
    void enter(const QString& text) {
        type(text);
        pressEnter();
    }
    void click(const QString& name, Qt::KeyboardModifiers modifiers = {}) {
        auto& files = *m_chooser->findChild<QTreeView*>(QStringLiteral("treeView"));
        const auto found = [&] {
            const QAbstractItemModel& model = *files.model();
            return model.match(model.index(0, 0, files.rootIndex()), Qt::DisplayRole, name);
        };
        ASSERT_TRUE(QTest::qWaitFor([&] { return !found().isEmpty(); }));
        const QRect place = files.visualRect(found().front());
        QTest::mouseClick(files.viewport(), Qt::LeftButton, modifiers, place.center());
    }
    QPushButton& button() {
        auto& buttons = *m_chooser->findChild<QDialogButtonBox*>();
        auto* save = buttons.button(QDialogButtonBox::Save);
        return save ? *save : *buttons.button(QDialogButtonBox::Open);
    }
    void pressButton() { QTest::mouseClick(&button(), Qt::LeftButton); }

    QLineEdit& nameBox() { return *m_chooser->nameBox(); }
    /// The folder that the open dialog shows; "closed" if it has closed.
    std::string shown() const {
        if (!m_chooser->isVisible()) return "closed";
        return fromHere(m_chooser->directory().absolutePath());
    }
    std::string taken() const {
        if (m_chooser->result() != QDialog::Accepted) return "nothing";
        std::string all;
        for (const QString& path : m_chooser->paths())
            all += (all.empty() ? "" : ", ") + fromHere(path);
        return all;
    }
    /// What the box before the dialog says; empty without one. It is closed then.
    std::string refusal() {
        auto* box = m_chooser->findChild<MessageBox*>();
        if (!box) return {};
        const QString text = box->text();
        QTest::mouseClick(box->buttonFor(MessageAnswer::Ok), Qt::LeftButton);
        delete box;
        QString reason = text.section('\n', 0, 0);
        return reason.toStdString() + ' ' + fromHere(text.section('\n', 1));
    }
    std::string typed() { return nameBox().text().toStdString(); }

    TemporaryFolder folder;

private:
    std::string fromHere(const QString& path) const {
        return QDir(QString::fromStdString(folder.path())).relativeFilePath(path).toStdString();
    }

    QByteArray m_home = qgetenv("HOME");
    std::unique_ptr<FileChooser> m_chooser;
};

class EitherChooser : public ChooserOnScreen, public testing::WithParamInterface<FileDialogMode> {
protected:
    EitherChooser() { show(GetParam()); }
};

/// Also on the screens of a desktop that opens what is clicked once.
class ChooserOnAnyScreen : public ChooserOnScreen {};

INSTANTIATE_TEST_SUITE_P(ToOpenOrToSave, EitherChooser,
                         testing::Values(FileDialogMode::Open, FileDialogMode::Save));

}  // namespace

TEST(FileChooser, ShowsTheSizeTheKindAndTheDateOfAFileWhole) {
    const TemporaryFolder folder;
    folder.write(std::string(90, 'n') + ".bsm", "");
    FileChooser chooser({.mode = FileDialogMode::Open,
                         .filter = "All Brainstorming Files (*.bsm)|*.bsm",
                         .initialPath = folder.path(),
                         .fileName = {}},
                        FileRules::Heeded, nullptr);
    chooser.show();
    auto& files = *chooser.findChild<QTreeView*>(QStringLiteral("treeView"));
    ASSERT_TRUE(
        QTest::qWaitFor([&files] { return files.model()->rowCount(files.rootIndex()) == 1; }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(files.horizontalScrollBar()->isVisible());
    for (int column = 1; column < files.header()->count(); ++column)
        EXPECT_GE(files.columnWidth(column),
                  static_cast<const QAbstractItemView&>(files).sizeHintForColumn(column))
            << column;
}

TEST(FileChooser, SaysOnceWhichFilesItShows) {
    for (const char* filter : {"Brainstorm (*.bsm)|*.bsm", "Brainstorm|*.bsm"}) {
        const FileChooser chooser(
            {.mode = FileDialogMode::Open, .filter = filter, .initialPath = {}, .fileName = {}},
            FileRules::Heeded, nullptr);
        EXPECT_EQ(chooser.nameFilters(), QStringList(QStringLiteral("Brainstorm (*.bsm)")))
            << filter;
    }
}

TEST_P(EitherChooser, EntersATypedFolder) {
    enter("Team");
    EXPECT_EQ(shown(), "Team");
    EXPECT_EQ(typed(), "");
}

TEST_P(EitherChooser, ProposesNothingAnyMoreInATypedFolder) {
    type("Team");
    QAbstractItemView& proposals = *nameBox().completer()->popup();
    ASSERT_TRUE(QTest::qWaitFor([&] { return proposals.isVisible(); }));
    pressEnter();
    EXPECT_FALSE(proposals.isVisible());
}

TEST_P(EitherChooser, EntersATypedFolderWithASlash) {
    enter("Team/");
    EXPECT_EQ(shown(), "Team");
}

TEST_P(EitherChooser, EntersATypedFolderAlsoWithTheButton) {
    type("home/anna");
    pressButton();
    EXPECT_EQ(shown(), "home/anna");
}

TEST_P(EitherChooser, GoesUpAtTwoPoints) {
    enter("Team");
    enter("..");
    EXPECT_EQ(shown(), ".");
    EXPECT_EQ(refusal(), "");
}

TEST_P(EitherChooser, GoesHomeAtATilde) {
    enter("~");
    EXPECT_EQ(shown(), "home");
}

TEST_P(EitherChooser, GoesToAFolderAtHomeBehindATilde) {
    enter("~/anna");
    EXPECT_EQ(shown(), "home/anna");
}

TEST_P(EitherChooser, RefusesAFolderThatIsMissingAndKeepsWhatWasTyped) {
    enter("gone/new");
    EXPECT_EQ(refusal(), "This folder does not exist: gone");
    EXPECT_EQ(shown(), ".");
    EXPECT_EQ(typed(), "gone/new");
}

TEST_P(EitherChooser, TakesATypedNameThatWasRefusedAndCorrected) {
    enter("gone/");
    refusal();
    nameBox().selectAll();
    enter("team2");
    EXPECT_EQ(taken(), "team2.bsm");
}

TEST_P(EitherChooser, StaysOpenWithoutAName) {
    pressEnter();
    EXPECT_EQ(shown(), ".");
    EXPECT_EQ(refusal(), "");
}

TEST_P(EitherChooser, TakesAClickedFile) {
    click("team2.bsm");
    EXPECT_EQ(typed(), "team2.bsm");
    pressButton();
    EXPECT_EQ(taken(), "team2.bsm");
}

TEST_F(ChooserOnScreen, ToSaveEntersAClickedFolderAndKeepsTheTypedName) {
    show(FileDialogMode::Save);
    type("new");
    click("Team");
    pressButton();
    EXPECT_EQ(shown(), "Team");
    EXPECT_EQ(typed(), "new");
    pressButton();
    EXPECT_EQ(taken(), "Team/new.bsm");
}

TEST_F(ChooserOnScreen, ToSaveHasAButtonThatSaysSaveAgainInTheFolder) {
    show(FileDialogMode::Save);
    const QString caption = button().text();
    type("new");
    click("Team");
    EXPECT_NE(button().text(), caption);
    pressButton();
    EXPECT_EQ(button().text(), caption);
}

TEST_F(ChooserOnScreen, ToSaveTakesATypedNameWithTheEnding) {
    show(FileDialogMode::Save);
    enter("new");
    EXPECT_EQ(taken(), "new.bsm");
}

TEST_F(ChooserOnScreen, ToSaveTakesAFileThatIsThereAndAsksNothing) {
    show(FileDialogMode::Save);
    enter("team2");
    EXPECT_EQ(refusal(), "");
    EXPECT_EQ(taken(), "team2.bsm");
}

TEST_F(ChooserOnScreen, ToSaveRefusesTheNameOfAFolderWithTheEnding) {
    show(FileDialogMode::Save);
    enter("taken");
    EXPECT_EQ(refusal(), "There is a folder of this name: taken.bsm");
    EXPECT_EQ(shown(), ".");
    EXPECT_EQ(typed(), "taken");
}

TEST_F(ChooserOnScreen, ToSaveRefusesAFolderThatTakesNoFiles) {
    show(FileDialogMode::Save);
    enter("/proc/self/new");
    EXPECT_EQ(refusal().substr(0, 39), "You may not save files in this folder: ");
    EXPECT_EQ(typed(), "/proc/self/new");
}

TEST_F(ChooserOnScreen, ToOpenFindsANameWithoutItsEnding) {
    show(FileDialogMode::Open);
    enter("team2");
    EXPECT_EQ(taken(), "team2.bsm");
}

TEST_F(ChooserOnScreen, ToOpenRefusesAFileThatIsMissing) {
    show(FileDialogMode::Open);
    enter("gone");
    EXPECT_EQ(refusal(), "This file does not exist: gone");
    EXPECT_EQ(shown(), ".");
    EXPECT_EQ(typed(), "gone");
}

TEST_F(ChooserOnScreen, ToOpenTakesOneFileWhereItIsNotToTakeSeveral) {
    folder.write("ann.bsm", "");
    show(FileDialogMode::Open);
    click("ann.bsm");
    click("team2.bsm", Qt::ControlModifier);
    pressButton();
    EXPECT_EQ(taken(), "team2.bsm");
}

TEST_F(ChooserOnScreen, ForSeveralTakesTheClickedFilesInTheirOrder) {
    showForSeveral();
    click("team2.bsm");
    click("ann.bsm", Qt::ControlModifier);
    EXPECT_EQ(typed(), "\"team2.bsm\" \"ann.bsm\"");
    pressButton();
    EXPECT_EQ(taken(), "team2.bsm, ann.bsm");
}

TEST_F(ChooserOnAnyScreen, ForSeveralStaysOpenWhileTheyAreClicked) {
    showForSeveral();
    click("team2.bsm");
    EXPECT_EQ(shown(), ".");
    click("ann.bsm", Qt::ControlModifier);
    EXPECT_EQ(shown(), ".");
    pressButton();
    EXPECT_EQ(taken(), "team2.bsm, ann.bsm");
}

TEST_F(ChooserOnScreen, ForSeveralTakesAllFilesOfAFolderByKeysThoughItHasFoldersToo) {
    showForSeveral();
    auto& files = *nameBox().window()->findChild<QTreeView*>(QStringLiteral("treeView"));
    files.setFocus();
    files.setCurrentIndex(files.model()->index(0, 0, files.rootIndex()));
    QTest::keyClick(&files, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(typed(), R"("ann.bsm" "bo.bsm" "team2.bsm")");
    pressEnter();
    EXPECT_EQ(taken(), "ann.bsm, bo.bsm, team2.bsm");
}

TEST_F(ChooserOnScreen, ForSeveralEntersByKeyAFolderThatIsChosenAlone) {
    showForSeveral();
    click("ann.bsm");
    click("Team");
    nameBox().window()->findChild<QTreeView*>(QStringLiteral("treeView"))->setFocus();
    pressEnter();
    EXPECT_EQ(shown(), "Team");
}

TEST_F(ChooserOnScreen, ForSeveralTakesAllFilesFromOneToAnother) {
    showForSeveral();
    click("ann.bsm");
    click("team2.bsm", Qt::ShiftModifier);
    pressButton();
    EXPECT_EQ(taken(), "ann.bsm, bo.bsm, team2.bsm");
}

TEST_F(ChooserOnScreen, ForSeveralTakesTypedNamesAlsoWithoutTheirEnding) {
    showForSeveral();
    enter("\"bo\" \"ann.bsm\"");
    EXPECT_EQ(taken(), "bo.bsm, ann.bsm");
}

TEST_F(ChooserOnScreen, ForSeveralTakesOneNameAsEver) {
    showForSeveral();
    enter("Team");
    EXPECT_EQ(shown(), "Team");
    enter("../bo");
    EXPECT_EQ(taken(), "bo.bsm");
}

TEST_F(ChooserOnScreen, ForSeveralTakesNoneWhereOneIsMissing) {
    showForSeveral();
    enter("\"bo\" \"gone\"");
    EXPECT_EQ(refusal(), "This file does not exist: gone");
    EXPECT_EQ(shown(), ".");
    EXPECT_EQ(typed(), "\"bo\" \"gone\"");
    nameBox().selectAll();
    enter("\"ann\" \"bo\"");
    EXPECT_EQ(taken(), "ann.bsm, bo.bsm");
}

TEST_F(ChooserOnScreen, ForSeveralRefusesAFolderAmongFiles) {
    showForSeveral();
    enter("\"bo.bsm\" \"Team\"");
    EXPECT_EQ(refusal(), "This is a folder: Team");
    EXPECT_EQ(shown(), ".");
}

TEST_F(ChooserOnScreen, ForSeveralRefusesAFolderAlsoBesideANameWithoutItsEnding) {
    for (const char* text : {"\"bo\" \"Team\"", "\"./Team\" \"bo\""}) {
        showForSeveral();
        enter(text);
        EXPECT_EQ(refusal(), "This is a folder: Team");
        EXPECT_EQ(shown(), ".");
        EXPECT_EQ(typed(), text);
        EXPECT_EQ(taken(), "nothing");
    }
}

TEST_F(ChooserOnScreen, ForSeveralEntersAFolderThatIsClickedBehindTypedNames) {
    showForSeveral();
    type("\"bo\" \"ann\"");
    click("Team");
    pressButton();
    EXPECT_EQ(shown(), "Team");
}

}  // namespace orvanta::test
