// What holds on any screen, with letters of any size. The build plays these on many.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "desktop/dialogs.h"
#include "desktop/enlargement.h"
#include "desktop/file_chooser.h"
#include "desktop/message_box.h"
#include "desktop/platform.h"
#include "desktop/question_printer.h"
#include "desktop/reading_strip.h"
#include "desktop/screen_room.h"
#include "desktop/skinned_button_view.h"
#include "letters.h"
#include "printed_sheets.h"
#include "program_dialogs.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

struct Shown {
    std::string name;
    QRect place;  // in the window
};

/// A caption is no control of its own; it lies on its button.
bool isCaptionOfAButton(const QWidget& widget) {
    const auto* caption = dynamic_cast<const ButtonCaptionView*>(&widget);
    if (!caption) return false;
    EXPECT_TRUE(caption->buddy()->geometry().contains(caption->geometry()))
        << caption->objectName().toStdString();
    return true;
}

/// What a person sees of the window, all but its panels.
std::vector<Shown> shownIn(const QWidget& window) {
    std::vector<Shown> shown;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        // The strip lies in the lists, below their rows.
        const bool isControl = dynamic_cast<ControlArea*>(widget->parentWidget()) &&
                               !dynamic_cast<const ControlArea*>(widget) &&
                               !dynamic_cast<const ReadingStrip*>(widget);
        if (isControl && widget->isVisible() && !widget->size().isEmpty() &&
            !isCaptionOfAButton(*widget))
            shown.push_back({widget->objectName().toStdString(),
                             QRect(widget->mapTo(&window, QPoint()), widget->size())});
    }
    return shown;
}

void expectApart(const std::vector<Shown>& shown, const std::string& step) {
    for (std::size_t i = 0; i < shown.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(shown[i].place.intersects(shown[j].place))
                << step << ": " << shown[i].name << " and " << shown[j].name;
        }
}

bool isOfAnArea(const QWidget& widget) {
    return dynamic_cast<const ControlArea*>(widget.parentWidget());
}

/// The room that a label needs for its text; none for one that cuts its own.
QSize neededBy(const QLabel& label) {
    if (dynamic_cast<const ReadingStrip*>(&label)) return {};
    if (dynamic_cast<const WhereaboutsView*>(&label))
        return {0, label.fontMetrics().height() + enlarged(5)};
    if (label.wordWrap()) return {0, label.heightForWidth(label.width())};
    return label.fontMetrics().size(0, label.text());
}

/// The room that a button needs within its edges for its caption and what stands before that.
QSize neededBy(const QAbstractButton& button) {
    QSize needed = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    if (button.isCheckable()) {
        const int box = button.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &button);
        needed.rwidth() += box + button.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    } else if (!button.icon().isNull()) {
        needed.rwidth() += button.iconSize().width();
    }
    return needed;
}

/// The room that a widget needs so that nothing of its text is cut off; none if it has no text.
QSize neededBy(const QWidget& widget) {
    constexpr int edges = 4;
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return neededBy(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return neededBy(*button);
    if (qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget))
        return {0, widget.fontMetrics().height() + edges};
    return {};
}

void expectWholeTexts(const QWidget& window, const std::string& step) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !isOfAnArea(*widget)) continue;
        const QSize needed = neededBy(*widget);
        EXPECT_LE(needed.width(), widget->width())
            << step << ": " << widget->objectName().toStdString();
        EXPECT_LE(needed.height(), widget->height())
            << step << ": " << widget->objectName().toStdString();
    }
}

void expectOnScreen(const QWidget& window, const std::string& step) {
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry())) << step;
}

/// Of a window of controls, at least so many of which are to show.
void expectWhole(const QWidget& window, const std::string& step, std::size_t least) {
    expectOnScreen(window, step);
    const std::vector<Shown> shown = shownIn(window);
    EXPECT_GE(shown.size(), least) << step;
    for (const auto& [name, place] : shown)
        EXPECT_TRUE(window.rect().contains(place)) << step << ": " << name;
    expectApart(shown, step);
    expectWholeTexts(window, step);
}

void expectUsable(const QWidget& window, const std::string& step) { expectWhole(window, step, 7); }

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

std::vector<std::pair<std::string, Bounds>> boundsOf(Bench& bench) {
    std::vector<std::pair<std::string, Bounds>> bounds;
    for (const Control* control : bench.program().frmMain.controls.all())
        bounds.emplace_back(control->name(), control->bounds());
    return bounds;
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

TEST(AnyScreen, ShowsEveryControlOfTheDialogs) {
    WindowBench bench;
    bench.start();
    ProgramDialogs dialogs(bench.program());
    dialogs.edit.txtEdit.setText("A statement");
    dialogs.showEach(
        [](QDialog& dialog) { expectWhole(dialog, dialog.objectName().toStdString(), 4); });
}

TEST(AnyScreen, HoldsTheDialogsOfTheToolkit) {
    MessageBox message({.text = "Do you want to save your changes?",
                        .icon = MessageIcon::Question,
                        .buttons = MessageButtons::YesNoCancel},
                       nullptr);
    message.show();
    expectOnScreen(message, "message");
    EXPECT_GE(message.width(), enlarged(320));
    for (const QAbstractButton* button : message.findChildren<QAbstractButton*>())
        EXPECT_GE(button->width(), neededBy(*button).width()) << button->text().toStdString();
    MessageBox longOne({.text = "Is this to be kept?\n" + words(40), .icon = MessageIcon::Stop},
                       nullptr);
    longOne.show();
    QCoreApplication::processEvents();
    const auto& text = *longOne.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    EXPECT_TRUE(longOne.rect().contains(text.geometry()));
    EXPECT_LE(text.heightForWidth(text.width()), text.height());
    EXPECT_TRUE(text.wordWrap());
    FileChooser chooser({.mode = FileDialogMode::Open,
                         .filter = "All Brainstorming Files (*.bsm)|*.bsm",
                         .initialPath = {},
                         .fileName = {}},
                        FileRules::Heeded, nullptr);
    chooser.show();
    expectOnScreen(chooser, "files");
}

TEST(AnyScreen, HoldsThePrintPreview) {
    bool looked = false;
    QTimer::singleShot(0, [&] {
        auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(preview);
        const QRect room = preview->screen()->availableGeometry();
        EXPECT_LE(preview->width(), room.width());
        EXPECT_LE(preview->height(), room.height());
        for (const QComboBox* choice : preview->findChildren<QComboBox*>())
            EXPECT_TRUE(choice->isVisible()) << "of the paper or of the scale";
        looked = true;
        preview->reject();
    });
    PreviewingPrinter().print(sheetsWith(1));
    EXPECT_TRUE(looked);
}

TEST(AnyScreen, EnlargesTheWindowWithTheLettersAsFarAsItFits) {
    const QSize freeArea = QGuiApplication::primaryScreen()->availableSize();
    for (const double points : {6.0, 9.0, 10.0, 11.25, 13.5, 18.0, 24.0}) {
        const Letters letters(points);
        const double most = largestEnlargement(freeArea);
        EXPECT_DOUBLE_EQ(enlargement(), std::clamp(points / 9, 1.0, most)) << points;
        WindowBench bench;
        bench.start();
        EXPECT_EQ(bench.window().designSize(), enlarged({960, 640})) << points;
        const QSize least = bench.window().minimumSize();
        EXPECT_EQ(least, (QSize{static_cast<int>(768 * enlargement()),
                                static_cast<int>(448 * enlargement())}));
        if (enlargement() > 1) {
            EXPECT_EQ(least, least.boundedTo(roomForWindow())) << points;
        }
    }
}

TEST(AnyScreen, LeavesTheModelsAsTheyAreWhateverTheLetters) {
    const double twips = DesktopScreen().twipsPerPixel();
    Bench plain;
    plain.start();
    for (const double points : {9.0, 11.25, 13.5, 18.0}) {
        const Letters letters(points);
        EXPECT_EQ(DesktopScreen().twipsPerPixel(), twips);
        WindowBench bench;
        bench.start();
        bench.window().show();
        QCoreApplication::processEvents();
        EXPECT_EQ(bench.form().width, plain.form().width);
        EXPECT_EQ(boundsOf(bench), boundsOf(plain)) << points;
    }
}

}  // namespace orvanta::test
