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
        // The strip lies in the lists, below their rows.
        const bool isControl = dynamic_cast<ControlArea*>(widget->parentWidget()) &&
                               !dynamic_cast<const ControlArea*>(widget) &&
                               !dynamic_cast<const ReadingStrip*>(widget);
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
    return !dynamic_cast<const ReadingStrip*>(&label) && label.isVisible() && label.wordWrap() &&
           !label.text().isEmpty() && dynamic_cast<const ControlArea*>(label.parentWidget());
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

/// Plays the module and has a look at each of its screens, by name.
template <class Program, class Look>
void walkBrainstorming(WindowBench<Program>& bench, Look look) {
    bench.start();
    bench.window().show();
    look(bench, "home");
    bench.click("Brainstorm");
    look(bench, "choice");
    bench.openBrainstorm();
    for (const char* panel : {"fraStrength", "fraWeakness", "fraOpportunity", "fraThreats"}) {
        while (!bench.control(panel).isVisible()) bench.click("BNext");
        look(bench, panel);
    }
}

template <class Look>
void walkAnalyzing(WindowBench<AnalysisBench>& bench, Look look) {
    bench.window().show();
    for (const char* step : {"files", "strengths", "weaknesses", "opportunities", "threats",
                             "opportunity mapping", "threat mapping"}) {
        look(bench, step);
        bench.next(1);
    }
}

constexpr auto lookAtIt = [](auto& bench, const std::string& step) {
    expectUsable(bench.window(), step);
};

/// A window as small as it gets.
template <class Bench>
void shrink(Bench& bench) {
    bench.window().resize(1, 1);
}

std::string words(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "words ";
    return text;
}

/// What stands in the lists: so many rows of the same text.
struct Content {
    std::string name, text;
    int rows;
};
std::ostream& operator<<(std::ostream& out, const Content& content) { return out << content.name; }

template <class Bench>
std::vector<StatementListView*> listsShownIn(Bench& bench) {
    std::vector<StatementListView*> lists;
    for (QWidget* widget : bench.window().template findChildren<QWidget*>())
        if (auto* list = dynamic_cast<StatementListView*>(widget); list && list->isVisible())
            lists.push_back(list);
    return lists;
}

/// Puts the content in the lists of the screen, the last row chosen.
template <class Bench>
void fill(Bench& bench, const Content& content) {
    for (const StatementListView* view : listsShownIn(bench)) {
        StatementList& list = bench.list(view->objectName().toStdString());
        const int image = list.count() ? list.row(1).image : 1;
        list.clear();
        for (int row = 1; row <= content.rows; ++row)
            list.add({.key = "K" + std::to_string(row), .text = content.text, .image = image});
        list.select(content.rows);
    }
}

QRect placeOf(const QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

/// That the last row can be scrolled to above the strip, which lies within the lists.
void expectRowsClear(StatementListView& list, const std::string& step) {
    const auto* strip = list.parentWidget()->findChild<QLabel*>(QStringLiteral("readingStrip"));
    ASSERT_TRUE(strip) << step;
    const QRect rows = placeOf(*list.viewport());
    if (strip->isVisible()) {
        EXPECT_LE(rows.bottom(), placeOf(*strip).top()) << step;
        EXPECT_GE(rows.height(), 2 * list.sizeHintForRow(0)) << step;
        EXPECT_EQ(placeOf(*strip).bottom(), placeOf(list).bottom()) << step;
    }
    list.scrollToBottom();
    const QRect last = list.visualRect(list.indexAtPosition(list.model()->rowCount()));
    EXPECT_TRUE(list.viewport()->rect().contains(last)) << step;
}

/// The line at the head of a module and the buttons at its foot.
void expectHeadAndFootClear(const QWidget& window, const std::string& step) {
    const auto* head = window.findChild<QLabel*>(QStringLiteral("lblWhereabouts"));
    const auto* quit = window.findChild<QWidget*>(QStringLiteral("imgBtnAQuit"));
    const auto* foot =
        quit->isVisible() ? quit : window.findChild<QWidget*>(QStringLiteral("imgBtnBQuit"));
    if (!head->isVisible()) return;
    for (const auto& [name, place] : shownIn(window)) {
        const bool inModule = place.left() >= head->x();
        const bool atTheFoot = place.bottom() >= placeOf(*foot).top();
        if (!inModule || name == "lblWhereabouts") continue;
        EXPECT_GT(place.top(), placeOf(*head).bottom()) << step << ": " << name;
        EXPECT_TRUE(!atTheFoot || place.top() >= placeOf(*foot).top() - 1) << step << ": " << name;
    }
}

class AnyScreenFilled : public testing::TestWithParam<Content> {
protected:
    /// What is to be seen once the lists of a screen are filled.
    static constexpr auto fillAndLook = [](auto& bench, const std::string& step) {
        QCoreApplication::processEvents();
        fill(bench, GetParam());
        expectUsable(bench.window(), step);
        expectHeadAndFootClear(bench.window(), step);
        if (GetParam().rows > 0)
            for (StatementListView* list : listsShownIn(bench)) expectRowsClear(*list, step);
    };
};
INSTANTIATE_TEST_SUITE_P(With, AnyScreenFilled,
                         testing::Values(Content{"Nothing", "", 0}, Content{"OneRow", "Fleet", 1},
                                         Content{"ManyRows", "A statement among many", 500},
                                         Content{"LongRows", words(40), 20},
                                         Content{"UnbrokenRows", std::string(255, 'W'), 20}),
                         [](const auto& content) { return content.param.name; });

}  // namespace

TEST_P(AnyScreenFilled, KeepsHeadFootAndRowsOfBrainstormingClearInTheSmallestWindow) {
    WindowBench bench;
    shrink(bench);
    walkBrainstorming(bench, fillAndLook);
}

TEST_P(AnyScreenFilled, KeepsHeadFootAndRowsOfAnalyzingClearInTheSmallestWindow) {
    WindowBench<AnalysisBench> bench;
    shrink(bench);
    walkAnalyzing(bench, fillAndLook);
}

TEST(AnyScreen, ShowsEveryControlOfBrainstorming) {
    WindowBench bench;
    walkBrainstorming(bench, lookAtIt);
}

TEST(AnyScreen, ShowsEveryControlOfAnalyzing) {
    WindowBench<AnalysisBench> bench;
    walkAnalyzing(bench, lookAtIt);
}

TEST(AnyScreen, ShowsEveryControlOfBrainstormingInTheSmallestWindow) {
    WindowBench bench;
    shrink(bench);
    walkBrainstorming(bench, lookAtIt);
}

TEST(AnyScreen, ShowsEveryControlOfAnalyzingInTheSmallestWindow) {
    WindowBench<AnalysisBench> bench;
    shrink(bench);
    walkAnalyzing(bench, lookAtIt);
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
