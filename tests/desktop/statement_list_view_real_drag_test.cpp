#include <gtest/gtest.h>

#include <QDrag>
#include <QGuiApplication>
#include <QProcess>
#include <QtTest>
#include <algorithm>
#include <functional>

#include "desktop/statement_list_view.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// Moves the pointer of the screen, as a hand does: press, so many motions, release, in one breath.
class Hand {
public:
    void press(const QPoint& place) {
        *this << "mousemove" << place << "mousedown"
              << "1";
    }
    void move(const QPoint& from, const QPoint& to, int motions) {
        for (int i = 1; i <= motions; ++i) *this << "mousemove" << from + (to - from) * i / motions;
    }
    /// Presses and moves on.
    void take(const QPoint& from, const QPoint& to, int motions) {
        press(from);
        move(from, to, motions);
    }
    void rest(const char* seconds) { *this << "sleep" << seconds; }
    void release() {
        *this << "mouseup"
              << "1";
    }
    void turnWheel(int notches) {
        for (int i = 0; i < notches; ++i)
            *this << "click"
                  << "5";
    }
    void pressEscape() {
        *this << "key"
              << "Escape";
    }

    /// Does it all while the window runs.
    void act() {
        QProcess process;
        process.start(QStringLiteral("xdotool"), m_acts);
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20'000));
        ASSERT_EQ(process.exitCode(), 0);
        QTest::qWait(50);
    }

    /// Does it all while the window looks away, which finds it in one heap afterwards.
    void actUnseen() {
        QProcess process;
        process.start(QStringLiteral("xdotool"), m_acts);
        ASSERT_TRUE(process.waitForFinished(20'000));
        ASSERT_EQ(process.exitCode(), 0);
    }

private:
    Hand& operator<<(const char* word) {
        m_acts << QString::fromLatin1(word);
        return *this;
    }
    Hand& operator<<(const QPoint& place) {
        m_acts << QString::number(place.x()) << QString::number(place.y());
        return *this;
    }

    QStringList m_acts;
};

/// Drags in the window on a real screen.
class RealDrag : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(QGuiApplication::platformName(), "xcb") << "only an X server drags";
        bench.goTo(mappingSides()[0]);
        bench.window().show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&bench.window()));
        // A drag that sticks fails its test; it shall not keep the others waiting.
        QTimer::singleShot(10'000, &bench.window(), [] { QDrag::cancel(); });
    }

    /// Takes the pointer away: it would be over the windows of the tests to come.
    void TearDown() override {
        Hand hand;
        hand.move({}, {1270, 1020}, 1);
        hand.act();
    }

    /// Of the screen.
    QRect rowOf(const std::string& list, int row) {
        auto& view = bench.widget<StatementListView>(list);
        const QRect rect = view.visualRect(view.indexAtPosition(row));
        return {view.viewport()->mapToGlobal(rect.topLeft()), rect.size()};
    }

    QPoint strength() { return rowOf("lvStrengthOp", 2).center(); }
    QPoint weakness() { return rowOf("lvWeaknessOp", 1).center(); }
    QPoint opportunity(int row) { return rowOf("lvOpportunity", row).center(); }

    void drag(const QPoint& from, const QPoint& to, int motions) {
        Hand hand;
        hand.take(from, to, motions);
        hand.release();
        hand.act();
    }

    /// Once a drag is over a row. It runs within the drag.
    void whenLit(const std::string& list, int row, std::function<void()> act) {
        QTimer::singleShot(10, &bench.window(), [this, list, row, act = std::move(act)] {
            if (bench.widget<StatementListView>(list).litRow() == row) return act();
            whenLit(list, row, act);
        });
    }

    WindowBench<AnalysisBench> bench{SystemEvents::LetIn};
};

/// A drag in so many motions.
class QuickDrag : public RealDrag, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(Of, QuickDrag, testing::Values(1, 2, 3, 5, 12),
                         [](const auto& motions) { return std::to_string(motions.param); });

}  // namespace

TEST_F(RealDrag, MapsAStrengthOntoTheOpportunityItIsDroppedOn) {
    drag(strength(), opportunity(1), 12);
    EXPECT_EQ(bench.keys("lvOpportunity")[1], "O1-S2");
    EXPECT_EQ(bench.list("lvOpportunity").selected(), 2);
    EXPECT_EQ(bench.list("lvStrengthOp").selected(), 2);
}

TEST_P(QuickDrag, MapsTheStatementThatItTookFromAnyPlaceOfItsRow) {
    const QRect row = rowOf("lvStrengthOp", 2);
    for (const QPoint& from :
         {row.center(), row.topLeft() + QPoint(2, 1), row.bottomRight() - QPoint(2, 1)}) {
        drag(from, opportunity(1), GetParam());
        ASSERT_EQ(bench.keys("lvOpportunity")[1], "O1-S2");
        bench.list("lvOpportunity").remove(2);
    }
}

TEST_P(QuickDrag, MapsWhatItTookEvenBehindADragThatCameToNothing) {
    drag(weakness(), QPoint(5, 5), GetParam());
    drag(strength(), opportunity(1), GetParam());
    EXPECT_EQ(bench.keys("lvOpportunity")[1], "O1-S2");
}

TEST_P(QuickDrag, TakesAMappedRowBack) {
    drag(strength(), opportunity(1), GetParam());
    const int mapped = bench.list("lvOpportunity").count();
    drag(opportunity(2), rowOf("lvStrengthOp", 1).center(), GetParam());
    EXPECT_EQ(bench.list("lvOpportunity").count(), mapped - 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.list("lvStrengthOp").selected(), 2) << "the release came behind the drop";
}

TEST_P(QuickDrag, RanksTheRowThatItTook) {
    bench.click("ABack");
    bench.click("ABack");
    QCoreApplication::processEvents();
    const Texts before = bench.texts("lvAOpportunity");
    ASSERT_EQ(before.size(), 3U);
    drag(rowOf("lvAOpportunity", 1).center(), rowOf("lvAOpportunity", 3).center(), GetParam());
    EXPECT_EQ(bench.texts("lvAOpportunity"), (Texts{before[1], before[2], before[0]}));
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.list("lvAOpportunity").selected(), 3) << "the release came behind the drop";
}

TEST_F(RealDrag, TakesNothingBackOnTheFrameOfAList) {
    bench.map("lvStrengthOp", 2, "lvOpportunity", 1);
    QCoreApplication::processEvents();
    const auto& list = bench.widget<StatementListView>("lvStrengthOp");
    const int rows = bench.list("lvOpportunity").count();
    drag(opportunity(2), list.mapToGlobal(QPoint(1, list.height() / 2)), 12);
    EXPECT_EQ(bench.list("lvOpportunity").count(), rows);
}

TEST_P(QuickDrag, TakesNothingBackOnTheStripThatShowsAStatementWhole) {
    bench.map("lvStrengthOp", 2, "lvOpportunity", 1);
    bench.list("lvStrengthOp").add({.key = "S9", .text = std::string(255, 'W'), .image = 1});
    QCoreApplication::processEvents();
    const auto& list = bench.widget<StatementListView>("lvStrengthOp");
    ASSERT_LT(list.viewport()->geometry().bottom(), list.height() - 20) << "the strip shows";
    const int rows = bench.list("lvOpportunity").count();
    drag(opportunity(2), list.mapToGlobal(QPoint(list.width() / 2, list.height() - 10)),
         GetParam());
    EXPECT_EQ(bench.list("lvOpportunity").count(), rows);
}

TEST_F(RealDrag, IsCalledOffWithEscape) {
    Hand hand;
    const int rows = bench.list("lvOpportunity").count();
    hand.take(strength(), opportunity(1), 5);
    hand.rest("0.1");
    hand.pressEscape();
    hand.rest("0.1");
    hand.release();
    hand.act();
    EXPECT_EQ(bench.list("lvOpportunity").count(), rows);
}

TEST_F(RealDrag, IsCalledOffWithEscapeEvenIfTheButtonIsLetGoAtOnceBehindIt) {
    const int rows = bench.list("lvOpportunity").count();
    whenLit("lvOpportunity", 1, [] {
        Hand hand;
        hand.pressEscape();
        hand.release();
        hand.actUnseen();
    });
    Hand hand;
    hand.take(strength(), opportunity(1), 5);
    hand.act();
    EXPECT_EQ(bench.list("lvOpportunity").count(), rows);
}

TEST_F(RealDrag, StaysCalledOffThoughThePointerMovesOnWithTheButtonDown) {
    Hand hand;
    const int rows = bench.list("lvOpportunity").count();
    hand.take(strength(), opportunity(1), 5);
    hand.rest("0.1");
    hand.pressEscape();
    hand.rest("0.1");
    hand.move(opportunity(1), strength(), 3);
    hand.move(strength(), opportunity(1), 3);
    hand.rest("0.1");
    hand.release();
    hand.act();
    EXPECT_EQ(bench.list("lvOpportunity").count(), rows);
}

TEST_F(RealDrag, IsCalledOffWithEscapeBeforeTheWindowSawAnyOfIt) {
    Hand hand;
    const int rows = bench.list("lvOpportunity").count();
    hand.take(strength(), opportunity(1), 5);
    hand.pressEscape();
    hand.release();
    hand.actUnseen();
    QTest::qWait(100);
    EXPECT_EQ(bench.list("lvOpportunity").count(), rows);
}

TEST_P(QuickDrag, LandsWhereItWasLetGoThoughThePointerWentOnUnseen) {
    Hand hand;
    hand.take(strength(), opportunity(1), GetParam());
    hand.release();
    hand.move(opportunity(1), opportunity(2), 2);
    hand.actUnseen();
    QTest::qWait(100);
    EXPECT_EQ(bench.keys("lvOpportunity")[1], "O1-S2");
}

TEST_F(RealDrag, LandsWhereItWasLetGoThoughAnotherOneFollowedUnseen) {
    Hand hand;
    hand.take(strength(), opportunity(2), 3);
    hand.release();
    hand.take(weakness(), opportunity(1), 3);
    hand.release();
    hand.actUnseen();
    QTest::qWait(100);
    const auto keys = bench.keys("lvOpportunity");
    EXPECT_TRUE(std::ranges::count(keys, "O2-S2"));
    EXPECT_TRUE(std::ranges::count(keys, "O1-W1"));
}

TEST_F(RealDrag, LandsOnTheRowThatTheWheelBroughtUnderThePointer) {
    for (int i = 0; i < 100; ++i)
        bench.list("lvOpportunity")
            .add({.key = "O" + std::to_string(100 + i), .text = "Row", .image = 3});
    QCoreApplication::processEvents();
    Hand hand;
    hand.take(strength(), opportunity(2), 5);
    hand.rest("0.1");
    hand.turnWheel(2);
    hand.rest("0.1");
    hand.release();
    hand.act();
    EXPECT_GT(bench.list("lvOpportunity").selected(), 4);
}

}  // namespace orvanta::test
