#include "desktop/main_layout.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QtTest>
#include <optional>
#include <set>

#include "painted_contrast.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

constexpr int widestText = 760, widestBox = 900;

QRect placeIn(const QWidget& window, const QWidget& widget) {
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

/// What a person sees of a step, in a window of this size.
class Layout {
public:
    explicit Layout(QWidget& window, QSize size) : m_window(window) {
        window.resize(size);
        window.show();
    }

    QLabel* heading(const FrmMain& form) {
        QCoreApplication::processEvents();
        for (Control* control : form.controls.all())
            if (isHeading(form, *control))
                if (auto* label = m_window.findChild<QLabel*>(fromCp1252(control->name()));
                    label->isVisible())
                    return label;
        return nullptr;
    }
    template <class Widget>
    std::vector<QRect> shown() {
        QCoreApplication::processEvents();
        std::vector<QRect> places;
        for (const auto* widget : m_window.findChildren<Widget*>())
            if (widget->isVisible()) places.push_back(placeIn(m_window, *widget));
        return places;
    }
    /// Where the text of the heading ends, in the window.
    int endOfHeading(const FrmMain& form) {
        QLabel& label = *heading(form);
        const QImage painted = paintedAs(label);
        const QRgb ground = painted.pixel(0, 0);
        for (int y = painted.height() - 1; y > 0; --y)
            for (int x = 0; x < painted.width(); ++x)
                if (painted.pixel(x, y) != ground)
                    return placeIn(m_window, label).bottom() - (painted.height() - 1 - y);
        return -1;
    }

private:
    QWidget& m_window;
};

/// All steps of both wizards in one window: what the look finds on each.
template <class Look>
void onEachStep(QSize size, Look look) {
    WindowBench brainstorming;
    Layout layout(brainstorming.window(), size);
    brainstorming.start();
    brainstorming.openBrainstorm();
    for (const char* panel : {"fraStrength", "fraWeakness", "fraOpportunity", "fraThreats"}) {
        while (!brainstorming.control(panel).isVisible()) brainstorming.click("BNext");
        look(layout, brainstorming.form());
    }
    WindowBench<AnalysisBench> analysis;
    Layout analyzing(analysis.window(), size);
    for (int step = 0; step < 7; ++step) {
        look(analyzing, analysis.form());
        if (step < 6) analysis.next(1);
    }
}

constexpr QSize design{960, 640}, wide{1920, 1040};

}  // namespace

TEST(EachStep, BeginsItsListsAtOneLine) {
    for (const QSize size : {design, wide}) {
        std::set<int> tops;
        onEachStep(size, [&](Layout& layout, const FrmMain&) {
            for (const QRect& list : layout.shown<QListView>()) tops.insert(list.top());
        });
        EXPECT_EQ(tops.size(), 1U) << size.width();
    }
}

TEST(EachStep, EndsItsHeadingAtOneLine) {
    std::set<int> ends;
    onEachStep(design, [&](Layout& layout, const FrmMain& form) {
        layout.heading(form)->setText(QStringLiteral("One line"));
        ends.insert(layout.endOfHeading(form));
        layout.heading(form)->setText(QStringLiteral("One line\nTwo lines"));
        ends.insert(layout.endOfHeading(form));
    });
    EXPECT_EQ(ends.size(), 1U);
}

TEST(Heading, BeginsWithItsFirstLetter) {
    WindowBench bench;
    Layout layout(bench.window(), design);
    bench.start();
    bench.openBrainstorm();
    bench.form().lblSQuestion.setCaption("  Who, and why? ");
    EXPECT_EQ(layout.heading(bench.form())->text(), QStringLiteral("Who, and why?"));
    EXPECT_EQ(bench.form().lblSQuestion.caption(), "  Who, and why? ");
}

TEST(Heading, ThatIsTooLongShowsItsBeginning) {
    WindowBench bench;
    Layout layout(bench.window(), design);
    bench.start();
    bench.openBrainstorm();
    std::string words;
    for (int word = 0; word < 500; ++word) words += "Why? ";
    bench.form().lblSQuestion.setCaption(words);
    EXPECT_TRUE(layout.heading(bench.form())->alignment() & Qt::AlignTop);
}

TEST(AWideScreen, KeepsHeadingsAndBoxesAtAWidthThatAnEyeCanFollow) {
    onEachStep(wide, [](Layout& layout, const FrmMain& form) {
        EXPECT_EQ(layout.heading(form)->width(), widestText);
        for (const QRect& box : layout.shown<QLineEdit>()) EXPECT_EQ(box.width(), widestBox);
        for (const QRect& list : layout.shown<QListView>()) EXPECT_LE(list.width(), widestBox);
    });
}

TEST(AWideScreen, KeepsTheButtonsOfAListBesideIt) {
    WindowBench bench;
    Layout layout(bench.window(), wide);
    bench.start();
    bench.openBrainstorm();
    QCoreApplication::processEvents();
    const auto left = [&](const char* name) {
        return placeIn(bench.window(), bench.widget(name)).left();
    };
    const QRect list = placeIn(bench.window(), bench.widget("lvBStrength"));
    for (const char* button : {"imgBtnBSAdd", "imgBtnBSEdit", "imgBtnBSRemove"}) {
        EXPECT_GT(left(button), list.right()) << button;
        EXPECT_LT(left(button), list.right() + 30) << button;
    }
}

TEST(AWideScreen, GivesItsWholeWidthToMapping) {
    WindowBench<AnalysisBench> bench;
    Layout layout(bench.window(), wide);
    bench.goTo(mappingSides()[0]);
    const std::vector<QRect> lists = layout.shown<QListView>();
    EXPECT_EQ(lists.size(), 3U);
    int right = 0;
    for (const QRect& list : lists) right = std::max(right, list.right());
    EXPECT_GT(right, wide.width() - 40);
}

TEST(AWideScreen, LeavesTheModelAsItIs) {
    WindowBench bench;
    const Bounds before = bench.form().txtStrength.bounds();
    bench.window().resize(wide);
    bench.window().show();
    EXPECT_EQ(bench.form().txtStrength.bounds(), before);
}

}  // namespace orvanta::test
