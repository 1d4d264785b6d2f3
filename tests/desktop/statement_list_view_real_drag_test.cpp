#include <gtest/gtest.h>

#include <QDrag>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>
#include <QtTest>

#include "desktop/statement_list_view.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// Moves the real pointer of the window from one place to another and lets go there. Each step
/// is started by a timer of its own, since a drag runs an event loop in the middle of one.
class Hand : public QObject {
public:
    Hand(QWindow& window, QPoint from, QPoint to) : m_window(window), m_from(from), m_to(to) {}

    void drag() {
        QTimer::singleShot(10'000, this, [] { QDrag::cancel(); });  // nothing hangs
        QTest::mousePress(&m_window, Qt::LeftButton, {}, m_from);
        step(1);
        while (!m_done) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    static constexpr int steps = 10, milliseconds = 20;

    void step(int number) {
        QTimer::singleShot(milliseconds, this, [this, number] {
            if (number > steps + 1) {
                m_done = true;
                QTest::mouseRelease(&m_window, Qt::LeftButton, {}, m_to);
                return;
            }
            step(number + 1);
            const QPoint point = m_from + (m_to - m_from) * std::min(number, steps) / steps;
            QTest::mouseMove(&m_window, point);
        });
    }

    QWindow& m_window;
    QPoint m_from, m_to;
    bool m_done = false;
};

}  // namespace

TEST(RealDrag, MapsAStrengthOntoTheOpportunityItIsDroppedOn) {
    ASSERT_EQ(QGuiApplication::platformName(), "xcb") << "only an X server drags";
    WindowBench<AnalysisBench> bench(SystemEvents::LetIn);
    bench.goTo(mappingSides()[0]);
    bench.window().show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bench.window()));
    const auto placeOf = [&](const std::string& list, int row) {
        auto& view = bench.widget<StatementListView>(list);
        return view.viewport()->mapTo(&bench.window(),
                                      view.visualRect(view.indexAtPosition(row)).center());
    };
    Hand hand(*bench.window().windowHandle(), placeOf("lvStrengthOp", 2),
              placeOf("lvOpportunity", 1));
    hand.drag();
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.keys("lvOpportunity")[1], "O1-S2");
    EXPECT_EQ(bench.list("lvOpportunity").selected(), 2);
    EXPECT_EQ(bench.list("lvStrengthOp").selected(), 2);
}

}  // namespace orvanta::test
