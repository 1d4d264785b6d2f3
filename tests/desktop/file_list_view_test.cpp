#include "desktop/file_list_view.h"

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>
#include <QtTest>

#include "desktop/message_box.h"
#include "painted_contrast.h"
#include "temporary_folder.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// The list of source files in the real window, whose program finds the files of a real folder on
/// its disk too.
class FileList : public testing::Test {
protected:
    FileList() {
        bench.start();
        bench.openAnalyze();
        bench.window().show();
        QApplication::setActiveWindow(&bench.window());
        QCoreApplication::processEvents();
    }

    QUrl make(const std::string& name) {
        folder.write(name, "");
        bench.disk.files[folder / name] = "";
        return QUrl::fromLocalFile(QString::fromStdString(folder / name));
    }
    void add(int files) {
        for (int i = 1; i <= files; ++i) {
            const std::string path = "docs/" + std::to_string(i) + ".bsm";
            bench.disk.files[path] = "";
            bench.answerFile(path);
            bench.click("AFAdd");
        }
    }
    FileListView& view() { return bench.widget<FileListView>("lstFiles"); }
    bool isInSight(int row) {
        return view().viewport()->rect().contains(view().visualItemRect(view().item(row)));
    }
    /// True if the list would take the drop.
    bool dragOver(const QMimeData& load, Qt::DropActions actions = Qt::CopyAction) {
        const QPoint point = view().viewport()->rect().center();
        QDragEnterEvent enter(point, actions, &load, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view().viewport(), &enter);
        QDragMoveEvent move(point, actions, &load, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view().viewport(), &move);
        return enter.isAccepted() && move.isAccepted();
    }
    void drop(const QList<QUrl>& urls) {
        QMimeData load;
        load.setUrls(urls);
        ASSERT_TRUE(dragOver(load));
        QDropEvent drop(view().viewport()->rect().center(), Qt::CopyAction, &load, Qt::LeftButton,
                        Qt::NoModifier);
        QApplication::sendEvent(view().viewport(), &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        QTimer::singleShot(0, &view(), [this] { closeRefusals(); });
        QCoreApplication::processEvents();
        bench.play({{"do", "state"}});
    }
    Texts listed() {
        Texts names;
        for (const std::string& path : bench.form().lstFiles.items())
            names.push_back(path.substr(path.rfind('/') + 1));
        return names;
    }

    TemporaryFolder folder;
    Texts refusals;
    WindowBench<> bench;

private:
    void closeRefusals() {
        if (auto* box = dynamic_cast<MessageBox*>(QApplication::activeModalWidget())) {
            refusals.push_back(box->text().section('\n', 0, 0).toStdString());
            QTimer::singleShot(0, &view(), [this] { closeRefusals(); });
            return QTest::mouseClick(box->buttonFor(MessageAnswer::Ok), Qt::LeftButton);
        }
    }
};

}  // namespace

TEST_F(FileList, HasAStrongChosenRowWhileItHasTheKeyboard) {
    add(2);
    bench.form().lstFiles.setSelectedIndex(0);
    const auto chosen = [this] {
        QCoreApplication::processEvents();
        return groundOf(paintedAs(*view().viewport(), view().visualItemRect(view().item(0))));
    };
    bench.widget("imgBtnAFAdd").setFocus();
    const QColor quiet = chosen();
    view().setFocus();
    EXPECT_NE(chosen(), quiet);
    EXPECT_NE(quiet, Qt::white);
}

TEST_F(FileList, TakesFilesThatAreDroppedOnItOneAfterAnother) {
    drop({make("bo.bsm"), make("ann.bsm")});
    EXPECT_EQ(listed(), (Texts{"bo.bsm", "ann.bsm"}));
    EXPECT_EQ(
        bench.events("setting"),
        Json::array(
            {{{"event", "setting"}, {"key", "LastSavedPathBSM"}, {"value", folder / "bo.bsm"}},
             {{"event", "setting"}, {"key", "LastSavedPathBSM"}, {"value", folder / "ann.bsm"}}}));
}

TEST_F(FileList, SaysThatADroppedFileIsThereAlready) {
    drop({make("ann.bsm")});
    bench.events();
    drop({make("ann.bsm"), make("bo.bsm")});
    EXPECT_EQ(bench.messages(), Texts{"File already added."});
    EXPECT_EQ(listed(), (Texts{"ann.bsm", "bo.bsm"}));
}

TEST_F(FileList, RefusesADroppedFolderAndTakesTheFilesBesideIt) {
    std::filesystem::create_directory(folder / "Team");
    const QUrl team = QUrl::fromLocalFile(QString::fromStdString(folder / "Team"));
    drop({team, make("ann.bsm")});
    EXPECT_EQ(refusals, Texts{"This is a folder:"});
    EXPECT_EQ(listed(), Texts{"ann.bsm"});
}

TEST_F(FileList, TakesNothingThatIsNoFileOfThisComputer) {
    QMimeData text, page;
    text.setText(QStringLiteral("ann.bsm"));
    page.setUrls({QUrl(QStringLiteral("http://example.org/ann.bsm"))});
    EXPECT_FALSE(dragOver(text));
    EXPECT_FALSE(dragOver(page));
}

TEST_F(FileList, TakesNoFilesThatWouldBeMovedAway) {
    QMimeData load;
    load.setUrls({make("ann.bsm")});
    EXPECT_FALSE(dragOver(load, Qt::MoveAction));
    EXPECT_TRUE(dragOver(load, Qt::MoveAction | Qt::CopyAction));
}

TEST_F(FileList, ShowsTheFileThatIsNew) {
    add(40);
    EXPECT_TRUE(isInSight(39));
    EXPECT_FALSE(isInSight(0));
}

TEST_F(FileList, KeepsItsPlaceWhenAFileIsRemoved) {
    add(40);
    view().scrollToItem(view().item(12), QAbstractItemView::PositionAtTop);
    bench.select("lstFiles", 15);
    const int place = view().verticalScrollBar()->value();
    ASSERT_GT(place, 0);
    bench.click("AFRemove");
    EXPECT_EQ(view().count(), 39);
    EXPECT_EQ(view().verticalScrollBar()->value(), place);
    EXPECT_EQ(view().currentRow(), 15);
    EXPECT_TRUE(view().item(15)->isSelected());
}

TEST_F(FileList, LooksTheSameWithTheKeyboardAsLongAsNothingIsChosen) {
    add(2);
    const auto rowPainted = [this] {
        return paintedAs(*view().viewport(), view().visualItemRect(view().item(0)));
    };
    bench.window().setFocus();
    const QImage before = rowPainted();
    view().setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(view().hasFocus());
    EXPECT_EQ(rowPainted(), before);
}

TEST_F(FileList, ChoosesItsFirstFileAtTheFirstKey) {
    add(3);
    view().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(bench.form().lstFiles.selectedIndex(), 0);
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(bench.form().lstFiles.selectedIndex(), 1);
    EXPECT_TRUE(view().item(1)->isSelected());
}

}  // namespace orvanta::test
