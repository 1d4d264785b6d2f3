// How long the real window holds the thread of its events while a person works on an analysis of
// 100,000 rows. Prints for each act the 99th percentile of what a repaint takes and of what the
// whole act takes with all that follows it, in milliseconds on the processor: a clock on the wall
// would count other programs too. The disk is in memory, so that no device is waited for.

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QtTest>
#include <algorithm>
#include <cstdio>
#include <ctime>

#include "analyses.h"
#include "app/window_events.h"
#include "desktop/statement_list_view.h"
#include "desktop/theme.h"
#include "sessionfiles/analyze_file.h"
#include "window_bench.h"

namespace orvanta::benchmarks {

namespace {

using desktop::StatementDrag;
using desktop::StatementListView;
using Times = std::vector<double>;

double processorMilliseconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

double percentile99(Times times) {
    std::ranges::sort(times);
    return times.empty() ? 0 : times[(times.size() * 99 + 99) / 100 - 1];
}

/// Times each event that paints, by itself and not as a part of another.
class TimedApplication : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        const auto type = event->type();
        const bool paints = type == QEvent::UpdateRequest || type == QEvent::Expose;
        if (!paints || m_painting) return QApplication::notify(receiver, event);
        m_painting = true;
        const double start = processorMilliseconds();
        const bool result = QApplication::notify(receiver, event);
        repaints.push_back(processorMilliseconds() - start);
        m_painting = false;
        return result;
    }

    Times repaints;

private:
    bool m_painting = false;
};

class Desk {
public:
    explicit Desk(TimedApplication& application) : m_application(application) {
        bench.window().show();
        (void)QTest::qWaitForWindowExposed(&bench.window());
    }

    void load(int rows, const std::string& ending = {}) {
        std::string bytes = analysisOf(rows);
        if (!ending.empty()) bytes.replace(bytes.find(" as people"), 1, ending);
        bench.disk.files["docs/team.aze"] = bytes;
        clearAnalye(bench.program());
        loadAnalyzeData(bench.program(), "docs/team.aze", false);
        settle();
    }

    StatementListView& list(const std::string& name) {
        return bench.widget<StatementListView>(name);
    }

    void press(const std::string& button) {
        QTest::mouseClick(&bench.widget(button), Qt::LeftButton);
    }

    template <class Prepare, class Act>
    void measure(const char* name, int times, Prepare prepare, Act act) {
        Times acts, repaints;
        for (int i = 0; i < times; ++i) {
            prepare(i);
            settle();
            m_application.repaints.clear();
            const double start = processorMilliseconds();
            act(i);
            settle();
            acts.push_back(processorMilliseconds() - start);
            repaints.insert(repaints.end(), m_application.repaints.begin(),
                            m_application.repaints.end());
        }
        std::printf("%-34s %8.1f %8.1f\n", name, percentile99(repaints), percentile99(acts));
    }
    template <class Act>
    void measure(const char* name, int times, Act act) {
        measure(
            name, times, [](int) {}, act);
    }

    test::WindowBench<test::AnalysisBench> bench;

private:
    /// Until all that was asked for is painted. The window system lets some time go before it asks.
    static void settle() { QTest::qWait(25); }

    TimedApplication& m_application;
};

void measureTyping(Desk& desk) {
    QWidget& box = desk.bench.widget("txtAStrength");
    desk.measure("typing a letter", 150,
                 [&](int i) { QTest::keyClick(&box, static_cast<char>('a' + i % 26)); });
    desk.measure("adding a statement", 100, [&](int) {
        QTest::keyClick(&box, 'x');
        QTest::keyClick(&box, Qt::Key_Return);
    });
}

void measureScrolling(Desk& desk, const char* name) {
    QScrollBar& bar = *desk.list("lvAStrength").verticalScrollBar();
    desk.measure(name, 200, [&](int i) {
        bar.setValue(i % 2 == 0 ? i * bar.pageStep() : bar.maximum() - i * bar.singleStep());
    });
}

void measureEntering(Desk& desk) {
    desk.measure(
        "entering a mapping step", 20,
        [&](int i) {
            if (i > 0) desk.press("imgBtnABack");
        },
        [&](int) { desk.press("imgBtnANext"); });
}

void measureDragging(Desk& desk) {
    desk.bench.select("lvStrengthOp", 1);
    const StatementDrag drag(desk.bench.list("lvStrengthOp"));
    QWidget& target = *desk.list("lvOpportunity").viewport();
    const auto enter = [&](int) {
        QDragEnterEvent event({20, 20}, Qt::MoveAction, &drag, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &event);
    };
    enter(0);
    desk.measure("moving a drag over rows", 200, [&](int i) {
        const QPoint place(20 + i % 7, 60 + i * 11 % (target.height() - 120));
        QDragMoveEvent event(place, Qt::MoveAction, &drag, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &event);
    });
    desk.measure("dropping a statement", 50, enter, [&](int i) {
        desk.bench.list("lvStrengthOp").select(i + 100);
        QDropEvent event({20, 60}, Qt::MoveAction, &drag, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &event);
    });
}

void measureAutoSave(Desk& desk) {
    desk.measure(
        "an autosave of 10,000 rows", 50, [&](int) { desk.bench.form().editAFlag = true; },
        [&](int) { autoSaveTicked(desk.bench.program()); });
}

void measureAll(TimedApplication& application) {
    constexpr int rows = 100'000;
    Desk desk(application);
    std::printf("%-34s %8s %8s\n", "99th percentile, milliseconds", "repaint", "act");
    desk.bench.next(1);
    desk.load(rows);
    measureTyping(desk);
    measureScrolling(desk, "scrolling");
    desk.load(rows, std::string(400, 'w') + " of many words ");
    measureScrolling(desk, "scrolling rows of two lines");
    desk.load(rows);
    desk.bench.next(3);
    measureEntering(desk);
    measureDragging(desk);
    desk.load(rows / 10);
    measureAutoSave(desk);
}

}  // namespace

}  // namespace orvanta::benchmarks

int main(int argc, char** argv) {
    orvanta::benchmarks::TimedApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    orvanta::desktop::applyTheme(application);
    orvanta::benchmarks::measureAll(application);
}
