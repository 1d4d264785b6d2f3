// What holds on any screen. The build plays these on screens of many sizes.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPrintPreviewDialog>
#include <QScreen>
#include <QTimer>
#include <utility>
#include <vector>

#include "desktop/question_printer.h"
#include "printed_sheets.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

struct Shown {
    std::string name;
    QRect place;  // in the window
};

/// What a person sees of the window, all but its panels.
std::vector<Shown> shownIn(const QWidget& window) {
    std::vector<Shown> shown;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool isControl = dynamic_cast<ControlArea*>(widget->parentWidget()) &&
                               !dynamic_cast<const ControlArea*>(widget);
        if (isControl && widget->isVisible() && !widget->size().isEmpty())
            shown.push_back({widget->objectName().toStdString(),
                             QRect(widget->mapTo(&window, QPoint()), widget->size())});
    }
    return shown;
}

void expectApart(const std::vector<Shown>& shown, const std::string& step) {
    for (std::size_t i = 0; i < shown.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
            const bool sameButton = shown[i].place == shown[j].place;  // picture and caption
            EXPECT_TRUE(sameButton || !shown[i].place.intersects(shown[j].place))
                << step << ": " << shown[i].name << " and " << shown[j].name;
        }
}

/// A text that a person reads in lines of the window's own making.
bool isRead(const QLabel& label) {
    return label.isVisible() && label.wordWrap() && !label.text().isEmpty() &&
           dynamic_cast<const ControlArea*>(label.parentWidget());
}

void expectWholeTexts(const QWidget& window, const std::string& step) {
    for (const QLabel* label : window.findChildren<QLabel*>())
        EXPECT_TRUE(!isRead(*label) || label->heightForWidth(label->width()) <= label->height())
            << step << ": " << label->objectName().toStdString();
}

void expectUsable(const QWidget& window, const std::string& step) {
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry())) << step;
    const std::vector<Shown> shown = shownIn(window);
    EXPECT_GE(shown.size(), 7U) << step;
    for (const auto& [name, place] : shown)
        EXPECT_TRUE(window.rect().contains(place)) << step << ": " << name;
    expectApart(shown, step);
    expectWholeTexts(window, step);
}

template <class Program>
void walkBrainstorming(WindowBench<Program>& bench) {
    bench.start();
    bench.window().show();
    expectUsable(bench.window(), "home");
    bench.click("Brainstorm");
    expectUsable(bench.window(), "choice");
    bench.openBrainstorm();
    for (const char* panel : {"fraStrength", "fraWeakness", "fraOpportunity", "fraThreats"}) {
        while (!bench.control(panel).isVisible()) bench.click("BNext");
        expectUsable(bench.window(), panel);
    }
}

void walkAnalyzing(WindowBench<AnalysisBench>& bench) {
    bench.window().show();
    for (const char* step : {"files", "strengths", "weaknesses", "opportunities", "threats",
                             "opportunity mapping", "threat mapping"}) {
        expectUsable(bench.window(), step);
        bench.next(1);
    }
}

/// A window as small as it gets.
template <class Bench>
void shrink(Bench& bench) {
    bench.window().resize(1, 1);
}

}  // namespace

TEST(AnyScreen, ShowsEveryControlOfBrainstorming) {
    WindowBench bench;
    walkBrainstorming(bench);
}

TEST(AnyScreen, ShowsEveryControlOfAnalyzing) {
    WindowBench<AnalysisBench> bench;
    walkAnalyzing(bench);
}

TEST(AnyScreen, ShowsEveryControlOfBrainstormingInTheSmallestWindow) {
    WindowBench bench;
    shrink(bench);
    walkBrainstorming(bench);
}

TEST(AnyScreen, ShowsEveryControlOfAnalyzingInTheSmallestWindow) {
    WindowBench<AnalysisBench> bench;
    shrink(bench);
    walkAnalyzing(bench);
}

TEST(AnyScreen, HoldsThePrintPreview) {
    bool looked = false;
    QTimer::singleShot(0, [&] {
        auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(preview);
        const QRect room = preview->screen()->availableGeometry();
        EXPECT_LE(preview->width(), room.width());
        EXPECT_LE(preview->height(), room.height());
        looked = true;
        preview->reject();
    });
    PreviewingPrinter().print(sheetsWith(1));
    EXPECT_TRUE(looked);
}

}  // namespace orvanta::test
