#include <gtest/gtest.h>

#include <QMenu>
#include <QPushButton>
#include <QtTest>

#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// The captions of the menu that is open, those that can not be chosen in brackets.
QStringList openMenu() {
    QStringList captions;
    if (const auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget()))
        for (const QAction* action : menu->actions())
            captions << (action->isEnabled() ? action->text() : u'(' + action->text() + u')');
    return captions;
}

QStringList menuAskedByKeyOn(QWidget& widget) {
    QContextMenuEvent asks(QContextMenuEvent::Keyboard, widget.rect().center(),
                           widget.mapToGlobal(widget.rect().center()));
    QApplication::sendEvent(&widget, &asks);
    const QStringList shown = openMenu();
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    return shown;
}

class MappingWindow : public testing::TestWithParam<MappingSide> {
protected:
    MappingWindow() {
        bench.goTo(GetParam());
        bench.window().show();
        bench.drag(GetParam().strengths, 1, GetParam().list, 1);
        bench.select(GetParam().list, 2);
    }

    void pressDeleteIn(const std::string& control) {
        QWidget& widget = bench.widget(control);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Delete);
    }

    WindowBench<AnalysisBench> bench;
};

}  // namespace

TEST_P(MappingWindow, TakesAMappedRowOutOnTheDeleteKey) {
    const std::string list = GetParam().list;
    const std::size_t before = bench.rows(list).size();
    pressDeleteIn(list);
    EXPECT_EQ(bench.rows(list).size(), before - 1);
}

TEST_P(MappingWindow, TakesNothingOutOnTheDeleteKeyInAnotherList) {
    const std::size_t before = bench.rows(GetParam().list).size();
    pressDeleteIn(GetParam().strengths);
    EXPECT_EQ(bench.rows(GetParam().list).size(), before);
}

TEST_P(MappingWindow, OffersRemoveAloneOnTheMenuKey) {
    EXPECT_EQ(menuAskedByKeyOn(bench.widget(GetParam().list)), QStringList("Remove"));
}

INSTANTIATE_TEST_SUITE_P(Sides, MappingWindow, testing::ValuesIn(mappingSides()),
                         NameOfParameter());

TEST(ListMenu, OffersToEditAndRemoveOnlyWhereARowIsChosen) {
    WindowBench bench;
    bench.start();
    bench.openBrainstorm();
    bench.window().show();
    bench.enter("txtStrength", {"Fast"});
    bench.program().frmMain.lvBStrength.select(0);
    EXPECT_EQ(menuAskedByKeyOn(bench.widget("lvBStrength")), QStringList({"(Edit)", "(Remove)"}));
    bench.select("lvBStrength", 1);
    EXPECT_EQ(menuAskedByKeyOn(bench.widget("lvBStrength")), QStringList({"Edit", "Remove"}));
}

TEST(ListMenu, OfTheSourceFilesOffersToMergeAddAndRemove) {
    WindowBench bench;
    bench.start();
    bench.openAnalyze();
    bench.window().show();
    EXPECT_EQ(menuAskedByKeyOn(bench.widget("lstFiles")),
              QStringList({"Merge...", "Add...", "(Remove)"}));
}

TEST(MergeLink, MergesTheFilesOfTheListAndLeavesTheListsAlone) {
    WindowBench bench;
    bench.start();
    bench.openAnalyze();
    bench.window().show();
    bench.addSource("docs/a.bsm", "Dana", {"Fast"}, {}, {}, {});
    bench.answerFile("docs/all.bsm");
    QTest::mouseClick(&bench.widget("lblMerge"), Qt::LeftButton);
    EXPECT_NE(bench.disk.read("docs/all.bsm").find("Fast"), std::string::npos);
    EXPECT_TRUE(bench.rows("lvAStrength").empty());
}

TEST(MergeLink, IsSeenOnTheScreenOfTheSourceFilesAlone) {
    WindowBench<AnalysisBench> bench;
    bench.window().show();
    EXPECT_TRUE(bench.widget("lblMerge").isVisible());
    bench.next(1);
    EXPECT_FALSE(bench.widget("lblMerge").isVisible());
}

}  // namespace orvanta::test
