#include <gtest/gtest.h>

#include <QScrollBar>
#include <QtTest>

#include "desktop/drag_picture.h"
#include "desktop/statement_list_view.h"
#include "painted_contrast.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

class PaintCount : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

/// A drag in the real window, event by event.
class DragFeedback : public testing::Test {
protected:
    DragFeedback() {
        bench.window().show();
        bench.next(5);
        bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
        QCoreApplication::processEvents();
    }

    StatementListView& view(const std::string& list) {
        return bench.widget<StatementListView>(list);
    }

    QPoint placeOf(const std::string& list, int row) {
        return view(list).visualRect(view(list).indexAtPosition(row)).center();
    }

    /// Below the rows, and away from the edges where a drag scrolls on.
    QPoint besideRows(const std::string& list) {
        return view(list).viewport()->rect().bottomLeft() + QPoint(20, -40);
    }

    /// True if the pointer tells that a drop would be taken.
    bool dragOver(const QMimeData& load, const std::string& list, const QPoint& place) {
        QWidget& target = *view(list).viewport();
        QDragEnterEvent enter(place, Qt::MoveAction, &load, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted()) return false;
        QDragMoveEvent move(place, Qt::MoveAction, &load, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &move);
        return move.isAccepted();
    }

    bool dragRow(const std::string& from, int row, const std::string& to, int at) {
        bench.select(from, row);
        drag = std::make_unique<StatementDrag>(bench.list(from));
        dragOver(*drag, from, placeOf(from, row));
        leave(from);
        return dragOver(*drag, to, placeOf(to, at));
    }

    /// Beside all lists.
    void dragOverWindow() {
        QDragEnterEvent enter({300, 20}, Qt::MoveAction, drag.get(), Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(&bench.window(), &enter);
        QDragMoveEvent move({300, 20}, Qt::MoveAction, drag.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&bench.window(), &move);
        EXPECT_FALSE(move.isAccepted());
    }

    void leave(const std::string& list) {
        QDragLeaveEvent event;
        QApplication::sendEvent(view(list).viewport(), &event);
    }

    DragPicture* picture() {
        for (QWidget* widget : bench.window().findChildren<QWidget*>())
            if (auto* found = dynamic_cast<DragPicture*>(widget)) return found;
        return nullptr;
    }

    std::string hinted() {
        return picture() ? toCp1252(picture()->promised().join(u'|')) : std::string();
    }

    WindowBench<AnalysisBench> bench;
    std::unique_ptr<StatementDrag> drag;
};

class DragFeedbackOfRanking : public DragFeedback {
protected:
    DragFeedbackOfRanking() {
        for (int press = 0; press < 2; ++press) bench.click("ABack");
        QCoreApplication::processEvents();
    }
};

class DragFeedbackOfALongList : public DragFeedback {
protected:
    DragFeedbackOfALongList() {
        for (int i = 0; i < 100; ++i)
            bench.list("lvOpportunity")
                .add({.key = "O" + std::to_string(100 + i), .text = "Row", .image = 3});
        QCoreApplication::processEvents();
    }
};

}  // namespace

TEST_F(DragFeedback, LightsTheWholeOpportunityThatTakesAStatement) {
    const QRect place = view("lvOpportunity").visualRect(view("lvOpportunity").indexAtPosition(3));
    EXPECT_TRUE(dragRow("lvWeaknessOp", 1, "lvOpportunity", 3));
    EXPECT_EQ(view("lvOpportunity").litRow(), 3);
    const QImage row = paintedAs(*view("lvOpportunity").viewport(), place);
    const QColor ground = groundOf(row);
    for (const int y : {row.height() / 4, row.height() * 3 / 4})
        EXPECT_EQ(row.pixelColor(row.width() - 5, y), ground) << "at height " << y;
    EXPECT_NE(ground, QColor(Qt::white));
}

TEST_F(DragFeedback, PutsOutTheLightOfAListThatIsLeft) {
    dragRow("lvWeaknessOp", 1, "lvOpportunity", 3);
    QCoreApplication::processEvents();
    PaintCount paints;
    view("lvOpportunity").viewport()->installEventFilter(&paints);
    leave("lvOpportunity");
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }, 2000));
    EXPECT_EQ(view("lvOpportunity").litRow(), 0);
}

TEST_F(DragFeedback, NamesTheStatementAndTheOpportunityThatTakesIt) {
    dragRow("lvWeaknessOp", 1, "lvOpportunity", 3);
    EXPECT_EQ(hinted(), "map: Ann W1|onto: Ann O2");
    EXPECT_EQ(picture()->carried(), "Ann W1");
}

TEST_F(DragFeedback, ShowsTheStatementOfThePickingListCrossedLast) {
    bench.select("lvStrengthOp", 2);
    dragRow("lvWeaknessOp", 1, "lvStrengthOp", 1);
    leave("lvStrengthOp");
    dragOver(*drag, "lvOpportunity", placeOf("lvOpportunity", 1));
    EXPECT_EQ(hinted(), "map: Ann S2|onto: Ann O1");
    EXPECT_EQ(picture()->carried(), "Ann S2");
}

TEST_F(DragFeedback, KeepsThePictureBesideTheLists) {
    dragRow("lvWeaknessOp", 1, "lvOpportunity", 3);
    leave("lvOpportunity");
    dragOverWindow();
    EXPECT_TRUE(picture()->isVisible());
    EXPECT_EQ(hinted(), "");
}

TEST_F(DragFeedback, SaysNoOverAMappedRow) {
    EXPECT_FALSE(dragRow("lvWeaknessOp", 1, "lvOpportunity", 2));
    EXPECT_EQ(view("lvOpportunity").litRow(), 0);
    EXPECT_EQ(hinted(), "");
}

TEST_F(DragFeedback, PromisesNothingWhereTheStatementIsMappedAlready) {
    EXPECT_TRUE(dragRow("lvStrengthOp", 1, "lvOpportunity", 1)) << "the drop says why";
    EXPECT_EQ(view("lvOpportunity").litRow(), 0);
    EXPECT_EQ(hinted(), "");
    EXPECT_EQ(picture()->carried(), "Ann S1");
}

TEST_F(DragFeedback, TellsLongStatementsOfOneBeginningApart) {
    const std::string beginning(100, 'M');
    bench.list("lvStrengthOp").setText(2, beginning + " first");
    QImage hints[2];
    for (const int way : {0, 1}) {
        bench.list("lvOpportunity").setText(3, beginning + (way == 0 ? " here" : " else"));
        dragRow("lvStrengthOp", 2, "lvOpportunity", 3);
        hints[way] = paintedAs(*picture(), picture()->rect());
    }
    EXPECT_NE(hints[0], hints[1]);
}

TEST_F(DragFeedback, SaysNoBesideTheRows) {
    const StatementDrag load(bench.list("lvWeaknessOp"));
    EXPECT_FALSE(dragOver(load, "lvOpportunity", besideRows("lvOpportunity")));
}

TEST_F(DragFeedback, SaysNoToWhatIsNoStatement) {
    QMimeData text;
    text.setText("text from elsewhere");
    EXPECT_FALSE(dragOver(text, "lvOpportunity", placeOf("lvOpportunity", 1)));
}

TEST_F(DragFeedback, SaysNoOverAListThatTakesNothing) {
    for (int press = 0; press < 4; ++press) bench.click("ABack");
    EXPECT_FALSE(dragRow("lvAStrength", 1, "lvAStrength", 2));
}

TEST_F(DragFeedback, LightsTheListThatTakesAMappedRowBack) {
    const QRect place = view("lvStrengthOp").viewport()->rect();
    dragRow("lvOpportunity", 2, "lvStrengthOp", 1);
    EXPECT_TRUE(view("lvStrengthOp").isLit());
    EXPECT_EQ(hinted(), "take back: Ann S1");
    EXPECT_NE(groundOf(paintedAs(*view("lvStrengthOp").viewport(), place)), QColor(Qt::white));
}

TEST_F(DragFeedback, LeavesTheRowsOfALitListLegible) {
    const QRect row = view("lvStrengthOp").visualRect(view("lvStrengthOp").indexAtPosition(2));
    dragRow("lvOpportunity", 2, "lvStrengthOp", 1);
    EXPECT_GE(writtenContrast(paintedAs(*view("lvStrengthOp").viewport(), row)), 4.5);
}

TEST_F(DragFeedback, LightsNoListOfAnotherKindForAMappedRow) {
    EXPECT_FALSE(dragRow("lvOpportunity", 2, "lvWeaknessOp", 2));
    EXPECT_FALSE(view("lvWeaknessOp").isLit());
}

TEST_F(DragFeedback, EndsWhenTheDragLeavesTheList) {
    dragRow("lvWeaknessOp", 1, "lvOpportunity", 1);
    leave("lvOpportunity");
    EXPECT_EQ(view("lvOpportunity").litRow(), 0);
    drag.reset();
    EXPECT_EQ(picture(), nullptr);
}

TEST_F(DragFeedback, EndsWithTheDrop) {
    const StatementDrag load(bench.list("lvWeaknessOp"));
    bench.select("lvWeaknessOp", 1);
    dragOver(load, "lvWeaknessOp", placeOf("lvWeaknessOp", 1));
    dragOver(load, "lvOpportunity", placeOf("lvOpportunity", 1));
    QDropEvent drop(placeOf("lvOpportunity", 1), Qt::MoveAction, &load, Qt::LeftButton,
                    Qt::NoModifier);
    QApplication::sendEvent(view("lvOpportunity").viewport(), &drop);
    EXPECT_EQ(view("lvOpportunity").litRow(), 0);
}

TEST_F(DragFeedbackOfRanking, LightsTheRowBeneathWhichARowWouldLand) {
    EXPECT_TRUE(dragRow("lvAOpportunity", 1, "lvAOpportunity", 3));
    EXPECT_EQ(view("lvAOpportunity").litRow(), 3);
    EXPECT_EQ(hinted(), "below: Bo O1");
}

TEST_F(DragFeedbackOfRanking, PromisesNoPlaceAboveTheFirstRow) {
    bench.select("lvAOpportunity", 3);
    const StatementDrag load(bench.list("lvAOpportunity"));
    EXPECT_TRUE(dragOver(load, "lvAOpportunity", {20, 0}));
    EXPECT_EQ(hinted(), "below: Ann O1");
}

TEST_F(DragFeedbackOfRanking, SaysNoBesideTheRows) {
    const StatementDrag load(bench.list("lvAOpportunity"));
    EXPECT_FALSE(dragOver(load, "lvAOpportunity", besideRows("lvAOpportunity")));
}

TEST_F(DragFeedbackOfRanking, KeepsItsWordsWithinTheWindow) {
    StatementList& list = bench.list("lvAOpportunity");
    list.setText(1, std::string(200, 'M'));
    list.select(1);
    for (int i = 0; i < 20; ++i) list.add({.key = {}, .text = std::string(200, 'W'), .image = 3});
    QCoreApplication::processEvents();
    const QRect viewport = view("lvAOpportunity").viewport()->rect();
    const StatementDrag load(list);
    for (const QPoint& corner : {viewport.topLeft(), viewport.topRight(), viewport.bottomRight()}) {
        dragOver(load, "lvAOpportunity", corner);
        ASSERT_TRUE(picture());
        EXPECT_TRUE(bench.window().rect().contains(picture()->geometry()));
        EXPECT_FALSE(picture()->geometry().contains(
            view("lvAOpportunity").viewport()->mapTo(&bench.window(), corner)));
    }
}

TEST_F(DragFeedbackOfALongList, ScrollsAtTheEdgesOfTheList) {
    QScrollBar& bar = *view("lvOpportunity").verticalScrollBar();
    const QRect viewport = view("lvOpportunity").viewport()->rect();
    bench.form().dragSection = "S";
    bench.select("lvStrengthOp", 1);
    const StatementDrag load(bench.list("lvStrengthOp"));
    dragOver(load, "lvOpportunity", viewport.bottomLeft() + QPoint(40, -3));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() > 100; }));
    const int reached = bar.value();
    dragOver(load, "lvOpportunity", viewport.topLeft() + QPoint(40, 3));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() < reached - 50; }));
    leave("lvOpportunity");
}

TEST_F(DragFeedbackOfALongList, LightsTheRowThatScrollsUnderAPointerAtRest) {
    const QRect viewport = view("lvOpportunity").viewport()->rect();
    bench.form().dragSection = "S";
    bench.select("lvStrengthOp", 1);
    const StatementDrag load(bench.list("lvStrengthOp"));
    dragOver(load, "lvOpportunity", viewport.bottomLeft() + QPoint(40, -3));
    const int lit = view("lvOpportunity").litRow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return view("lvOpportunity").litRow() > lit + 2; }));
    leave("lvOpportunity");
}

TEST_F(DragFeedbackOfALongList, ScrollsWithTheWheel) {
    QScrollBar& bar = *view("lvOpportunity").verticalScrollBar();
    dragRow("lvStrengthOp", 1, "lvOpportunity", 1);
    view("lvOpportunity").scrollInDrag(-120);
    EXPECT_GT(bar.value(), 0);
    EXPECT_GT(view("lvOpportunity").litRow(), 2) << "what is under the pointer now";
    view("lvOpportunity").scrollInDrag(120);
    EXPECT_EQ(bar.value(), 0);
}

TEST(ScrollingAtTheEdge, IsFasterNearerToTheEdgeAndWithTime) {
    EXPECT_GT(rowsASecondAtEdge(1, 0), rowsASecondAtEdge(0.1, 0));
    EXPECT_GT(rowsASecondAtEdge(0.1, 1), rowsASecondAtEdge(0.1, 0));
    double rows = 0;
    for (int hundredth = 0; hundredth < 500; ++hundredth)
        rows += rowsASecondAtEdge(0.5, hundredth / 100.0) / 100;
    EXPECT_GT(rows, 300) << "in five seconds";
}

}  // namespace orvanta::test
