#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <set>
#include <sstream>

#include "sessionfiles/saving.h"
#include "window_bench.h"

// The window is made behind the splash, and a session that a crash interrupted is on its screens
// before that.

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

struct Interrupted {
    const char* name;
    std::string copy;
    void (*play)(AnalysisBench& bench);
};

const Interrupted interruptedSessions[]{
    {"Brainstorm", "app/brainstorm.tmp",
     [](AnalysisBench& bench) {
         bench.openBrainstorm();
         bench.enter("txtStrength", {"Own fleet", "Short ways"});
     }},
    {"Ranking", "app/analyze.tmp", [](AnalysisBench& bench) { bench.next(2); }},
    {"Mapping", "app/analyze.tmp",
     [](AnalysisBench& bench) {
         bench.goTo(mappingSides().front());
         bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
     }},
};
void PrintTo(const Interrupted& session, std::ostream* out) { *out << session.name; }

std::string copyOf(const Interrupted& session) {
    AnalysisBench bench;
    session.play(bench);
    bench.form().editAFlag = !bench.form().editFlag;
    tickAutoSave(bench.program());
    return bench.disk.files.at(session.copy);
}

/// What a person meets in a window, in words.
std::set<std::string> toldOf(const MainWindow& window) {
    std::set<std::string> told;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const std::string name = widget->objectName().toStdString();
        if (name.empty() || name.starts_with("qt_")) continue;  // the toolkit's own
        std::ostringstream line;
        line << name << " at ";
        PrintTo(placeOf(*widget), &line);
        line << (widget->isVisible() ? " visible" : "") << (widget->isEnabled() ? " enabled" : "")
             << (widget == window.focusWidget() ? " with the keyboard" : "");
        told.insert(line.str());
    }
    return told;
}

class InterruptedSession : public testing::TestWithParam<Interrupted> {};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Of, InterruptedSession, testing::ValuesIn(interruptedSessions),
                         NameOfParameter{});

TEST_P(InterruptedSession, LooksTheSameInAWindowThatIsMadeBehindIt) {
    const std::string copy = copyOf(GetParam());
    WindowBench early;
    early.disk.files[GetParam().copy] = copy;
    early.start();
    QCoreApplication::processEvents();
    const auto toldEarly = toldOf(early.window());
    const QImage seenEarly = early.window().grab().toImage();
    early.window().hide();

    Bench bench;
    bench.disk.files[GetParam().copy] = copy;
    bench.start();
    MainWindow late(bench.program());
    QCoreApplication::processEvents();
    EXPECT_TRUE(late.isVisible());
    EXPECT_EQ(toldOf(late), toldEarly);
    EXPECT_EQ(late.grab().toImage(), seenEarly);
}

TEST(WindowMadeBehindTheSplash, HasTheKeyboardItselfWhereNoSessionWasInterrupted) {
    WindowBench bench;
    QCoreApplication::processEvents();  // as long as the splash is seen
    bench.start();
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.window().focusWidget(), &bench.window());
}

}  // namespace orvanta::test
