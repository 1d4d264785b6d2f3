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
#include "desktop/screen_room.h"
#include "desktop/skinned_button_view.h"
#include "letters.h"
#include "printed_sheets.h"
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
        const bool isControl = dynamic_cast<ControlArea*>(widget->parentWidget()) &&
                               !dynamic_cast<const ControlArea*>(widget);
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

void expectUsable(QDialog& dialog) {
    dialog.show();
    expectWhole(dialog, dialog.objectName().toStdString(), 4);
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

std::vector<std::pair<std::string, Bounds>> boundsOf(Bench& bench) {
    std::vector<std::pair<std::string, Bounds>> bounds;
    for (const Control* control : bench.program().frmMain.controls.all())
        bounds.emplace_back(control->name(), control->bounds());
    return bounds;
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

TEST(AnyScreen, ShowsEveryControlOfTheDialogs) {
    WindowBench bench;
    bench.start();
    FrmEdit edit;
    edit.txtEdit.setText("A statement");
    EditDialog editDialog(bench.program(), edit, nullptr);
    expectUsable(editDialog);
    FrmReportType report;
    ReportDialog reportDialog(bench.program(), report, nullptr);
    expectUsable(reportDialog);
    FrmAbout about;
    AboutDialog aboutDialog(bench.program(), about, nullptr);
    expectUsable(aboutDialog);
}

TEST(AnyScreen, HoldsTheDialogsOfTheToolkit) {
    MessageBox message({.text = "Do you want to save your changes?",
                        .icon = MessageIcon::Question,
                        .buttons = MessageButtons::YesNoCancel},
                       nullptr);
    message.show();
    expectOnScreen(message, "message");
    for (const QAbstractButton* button : message.findChildren<QAbstractButton*>())
        EXPECT_GE(button->width(), neededBy(*button).width()) << button->text().toStdString();
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
