#include "desktop/list_commands.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QMenu>
#include <QtTest>

#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// An analysis in the real window.
class ContextMenus : public testing::Test {
protected:
    void SetUp() override {
        bench.window().show();
        QCoreApplication::processEvents();
    }

    QAbstractItemView& view(const std::string& list) {
        return bench.widget<QAbstractItemView>(list);
    }

    QPoint placeOf(const std::string& list, int row) {
        return view(list).visualRect(view(list).model()->index(row - 1, 0)).center();
    }

    /// The menu that a right click on a row brings up.
    QMenu* rightClick(const std::string& list, int row) {
        QWidget& viewport = *view(list).viewport();
        const QPoint place = placeOf(list, row);
        QTest::mouseClick(&viewport, Qt::RightButton, {}, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport.mapToGlobal(place));
        QApplication::sendEvent(&viewport, &event);
        return openMenu();
    }

    /// The menu that the menu key brings up while a list has the keyboard.
    QMenu* pressMenuKey(const std::string& list) {
        const QPoint place = view(list).inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, view(list).mapToGlobal(place));
        QApplication::sendEvent(&view(list), &event);
        return openMenu();
    }

    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    static Texts linesOf(const QMenu* menu) {
        Texts lines;
        for (const QAction* action : menu->actions())
            lines.push_back(toCp1252(action->text().section(u'\t', 0, 0)));
        return lines;
    }

    void choose(QMenu* menu, const std::string& line) {
        if (!menu) return ADD_FAILURE() << "there is no menu to choose " << line << " from";
        for (QAction* action : menu->actions())
            if (toCp1252(action->text().section(u'\t', 0, 0)) == line)
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        collectEvents();
    }

    /// What happened since the last line of the driver counts as done by one of its own.
    void collectEvents() {
        QCoreApplication::processEvents();
        bench.play({{"do", "state"}});
    }

    WindowBench<AnalysisBench> bench;
};

class MenusOfMappingScreens : public ContextMenus, public testing::WithParamInterface<MappingSide> {
protected:
    void SetUp() override {
        ContextMenus::SetUp();
        bench.goTo(GetParam());
        bench.map(GetParam().strengths, 1, GetParam().list, 1);
        bench.events();
    }
};

class MenusOfStatementLists : public ContextMenus,
                              public testing::WithParamInterface<ReviewedKind> {};

}  // namespace

TEST_P(MenusOfMappingScreens, RemoveTakesTheMappedRowUnderThePointerOut) {
    const MappingSide& side = GetParam();
    QMenu* menu = rightClick(side.list, 2);
    ASSERT_TRUE(menu);
    EXPECT_EQ(linesOf(menu), Texts{"Remove"});
    choose(menu, "Remove");
    EXPECT_EQ(bench.keys(side.list), (Texts{side.parent(1), side.parent(2), side.parent(3)}));
    EXPECT_EQ(bench.undoRecords().back(),
              record("ADD_" + side.tagEnding, 2, side.parent(1) + "-S1", "Ann S1", "S"));
}

TEST_P(MenusOfMappingScreens, RemoveIsGreyOnARowThatTheListBeforeHolds) {
    const MappingSide& side = GetParam();
    for (const int row : {1, 3}) {
        QMenu* menu = rightClick(side.list, row);
        ASSERT_TRUE(menu);
        EXPECT_FALSE(menu->actions().front()->isEnabled());
        menu->close();
        view(side.list).setFocus();
        QTest::keyClick(&view(side.list), Qt::Key_Delete);
    }
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_EQ(bench.keys(side.list).size(), 4u);
}

TEST_P(MenusOfMappingScreens, TheMenuKeyOffersTheSame) {
    const MappingSide& side = GetParam();
    bench.select(side.list, 2);
    choose(pressMenuKey(side.list), "Remove");
    EXPECT_EQ(bench.keys(side.list).size(), 3u);
}

TEST_P(MenusOfMappingScreens, ShiftAndF10BringTheMenuUpToo) {
    const MappingSide& side = GetParam();
    view(side.list).setFocus();
    QTest::keyClick(&view(side.list), Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(openMenu());
    openMenu()->close();
}

TEST_P(MenusOfMappingScreens, DeleteRemovesWhileTheListHasTheKeyboard) {
    const MappingSide& side = GetParam();
    bench.select(side.list, 2);
    view(side.strengths).setFocus();
    QTest::keyClick(&view(side.strengths), Qt::Key_Delete);
    EXPECT_EQ(bench.keys(side.list).size(), 4u);
    view(side.list).setFocus();
    QTest::keyClick(&view(side.list), Qt::Key_Delete);
    EXPECT_EQ(bench.keys(side.list).size(), 3u);
}

TEST_P(MenusOfMappingScreens, AKeyGoesOnFromWhereTheRemovedRowWas) {
    const MappingSide& side = GetParam();
    QAbstractItemView& list = view(side.list);
    list.setFocus();
    bench.map(side.strengths, 1, side.list, 3);
    ASSERT_EQ(bench.list(side.list).selected(), 4);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(bench.list(side.list).selected(), 0) << "nothing is chosen until a key is pressed";
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(bench.list(side.list).selected(), 4);
    bench.select(side.list, 2);
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(bench.list(side.list).selected(), 1);
}

TEST_P(MenusOfMappingScreens, AKeyBeginsAtTheFirstRowWhereNoRowWasRemoved) {
    const MappingSide& side = GetParam();
    QAbstractItemView& list = view(side.list);
    list.setFocus();
    bench.map(side.strengths, 1, side.list, 3);
    QTest::keyClick(&list, Qt::Key_Delete);
    bench.select(side.list, 3);
    bench.list(side.list).select(0);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(bench.list(side.list).selected(), 1);
}

TEST_P(MenusOfMappingScreens, RemoveIsGreyWhileNoRowIsSelected) {
    const MappingSide& side = GetParam();
    bench.select(side.list, 0);
    QMenu* menu = pressMenuKey(side.list);
    EXPECT_FALSE(menu->actions().front()->isEnabled());
    menu->close();
}

TEST_P(MenusOfMappingScreens, AFailureOfRemoveIsToldAndTheRowStays) {
    StatementList& list = bench.list(GetParam().list);
    constexpr int tooFar = 32'768;
    for (int i = list.count(); i < tooFar; ++i)
        list.add({.key = GetParam().parent(3) + "-S" + std::to_string(i), .text = "Row"});
    list.select(tooFar);
    choose(pressMenuKey(GetParam().list), "Remove");
    EXPECT_EQ(
        bench.events("unhandledError"),
        Json::array({{{"event", "unhandledError"}, {"number", 6}, {"description", "Overflow"}}}));
    EXPECT_EQ(list.count(), tooFar);
}

INSTANTIATE_TEST_SUITE_P(Sides, MenusOfMappingScreens, testing::ValuesIn(mappingSides()),
                         NameOfParameter());

TEST_P(MenusOfStatementLists, OfferEditAndRemoveInTheAnalyzeModule) {
    const ReviewedKind& kind = GetParam();
    bench.goTo(kind);
    QMenu* menu = rightClick(kind.list, 2);
    ASSERT_TRUE(menu);
    const bool isRanked = kind.image > 2;
    EXPECT_EQ(linesOf(menu), isRanked ? (Texts{"Edit", "Remove", "Move Up", "Move Down"})
                                      : (Texts{"Edit", "Remove"}));
    bench.answerEdit("Reworded");
    choose(menu, "Edit");
    EXPECT_EQ(bench.texts(kind.list)[1], "Reworded");
    bench.answerMessage("yes");
    choose(rightClick(kind.list, 1), "Remove");
    EXPECT_EQ(bench.texts(kind.list)[0], "Reworded");
}

TEST_P(MenusOfStatementLists, OfferEditAndRemoveInTheBrainstormModule) {
    const ReviewedKind& kind = GetParam();
    const std::string list = "lvB" + kind.list.substr(3);
    bench.openBrainstorm();
    for (int press = 0; press < 3 * (kind.image - 1); ++press) bench.click("BNext");
    bench.enter("txt" + kind.list.substr(3), {"A", "B"});
    bench.answerEdit("C");
    choose(rightClick(list, 1), "Edit");
    EXPECT_EQ(bench.texts(list), (Texts{"C", "B"}));
    bench.answerMessage("yes");
    choose(rightClick(list, 2), "Remove");
    EXPECT_EQ(bench.texts(list), Texts{"C"});
}

INSTANTIATE_TEST_SUITE_P(Kinds, MenusOfStatementLists, testing::ValuesIn(reviewedKinds()),
                         NameOfParameter());

TEST_F(ContextMenus, TheSourceFilesCanBeMergedAddedAndRemoved) {
    EXPECT_EQ(linesOf(rightClick("lstFiles", 1)), (Texts{"Merge...", "Add...", "Remove"}));
    bench.answerFile("docs/all.bsm");
    choose(openMenu(), "Merge...");
    EXPECT_EQ(bench.messages(), Texts{"Brainstorm files merged."});
    EXPECT_TRUE(bench.disk.files.contains("docs/all.bsm"));
    bench.answerFile("docs/all.bsm");
    choose(rightClick("lstFiles", 1), "Add...");
    EXPECT_EQ(bench.form().lstFiles.items().back(), "docs/all.bsm");
    choose(rightClick("lstFiles", 3), "Remove");
    EXPECT_EQ(bench.form().lstFiles.items().size(), 2u);
}

TEST_F(ContextMenus, AFailedMergeIsTold) {
    bench.disk.files["docs/all.bsm"] = "kept";
    bench.disk.capacity = 0;
    bench.answerFile("docs/all.bsm");
    bench.answerMessage("yes");
    choose(pressMenuKey("lstFiles"), "Merge...");
    EXPECT_EQ(bench.messages().back(), "[61] Disk full");
    EXPECT_EQ(bench.disk.files["docs/all.bsm"], "kept");
}

TEST_F(ContextMenus, TheLinkBesideTheSourceFilesMergesThem) {
    bench.answerFile("docs/all.bsm");
    QTest::mouseClick(&bench.widget("lblMerge"), Qt::LeftButton);
    collectEvents();
    EXPECT_EQ(bench.messages(), Texts{"Brainstorm files merged."});
    bench.click("ANext");
    EXPECT_FALSE(bench.widget("lblMerge").isVisible());
}

TEST_P(MenusOfMappingScreens, AKeyMapsOntoTheChosenParent) {
    const MappingSide& side = GetParam();
    bench.select(side.list, 3);
    bench.select(side.weaknesses, 1);
    view(side.weaknesses).setFocus();
    QTest::keyClick(&view(side.weaknesses), Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(bench.keys(side.list)[3], side.parent(2) + "-W1");
    QMenu* menu = rightClick(side.strengths, 2);
    ASSERT_TRUE(menu);
    EXPECT_EQ(linesOf(menu), Texts{"Map onto " + bench.row(side.list, 3).text});
    menu->close();
}

TEST_P(MenusOfStatementLists, AKeyRewordsRemovesAndRanksTheChosenRow) {
    const ReviewedKind& kind = GetParam();
    bench.goTo(kind);
    bench.select(kind.list, 2);
    view(kind.list).setFocus();
    bench.answerEdit("Reworded");
    QTest::keyClick(&view(kind.list), Qt::Key_F2);
    EXPECT_EQ(bench.texts(kind.list)[1], "Reworded");
    QTest::keyClick(&view(kind.list), Qt::Key_Up, Qt::AltModifier);
    const bool isRanked = kind.image > 2;
    EXPECT_EQ(bench.texts(kind.list)[isRanked ? 0 : 1], "Reworded");
    const int count = bench.list(kind.list).count();
    QTest::keyClick(&view(kind.list), Qt::Key_Delete);
    EXPECT_EQ(bench.list(kind.list).count(), count - 1);
}

TEST_P(MenusOfStatementLists, ADoubleClickRewordsTheRow) {
    const ReviewedKind& kind = GetParam();
    bench.goTo(kind);
    bench.answerEdit("Reworded");
    const QPoint row = view(kind.list).visualRect(view(kind.list).model()->index(0, 0)).center();
    QTest::mouseClick(view(kind.list).viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(view(kind.list).viewport(), Qt::LeftButton, {}, row);
    QTest::mouseRelease(view(kind.list).viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(bench.texts(kind.list)[0], "Reworded");
}

}  // namespace orvanta::test
