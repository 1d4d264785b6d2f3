#include "desktop/tab_order.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QTimer>
#include <QtTest>
#include <algorithm>

#include "desktop/dialogs.h"
#include "desktop/file_chooser.h"
#include "desktop/message_box.h"
#include "desktop/question_printer.h"
#include "printed_sheets.h"
#include "temporary_folder.h"
#include "window_bench.h"

inline void PrintTo(const QSize& size, std::ostream* out) {
    *out << size.width() << " x " << size.height();
}

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// Where a key leads again and again, from the window itself on, until it leads in a circle.
std::vector<QWidget*> stopsBy(QWidget& window, Qt::Key key) {
    QApplication::setActiveWindow(&window);
    if (QWidget* first = window.focusWidget()) first->clearFocus();
    std::vector<QWidget*> stops;
    for (int press = 0; press < 100; ++press) {
        QWidget* focused = QApplication::focusWidget();
        QTest::keyClick(focused ? focused : &window, key,
                        key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget* stop = QApplication::focusWidget();
        if (!stop || std::ranges::find(stops, stop) != stops.end()) break;
        stops.push_back(stop);
    }
    return stops;
}

std::string nameOf(const QWidget& stop) {
    const std::string kind = stop.metaObject()->className();
    return stop.objectName().isEmpty() ? kind : stop.objectName().toStdString();
}

Texts namesOfStops(const std::vector<QWidget*>& stops) {
    Texts names;
    for (const QWidget* stop : stops) names.push_back(nameOf(*stop));
    return names;
}

/// Whether one place comes after another in the order of reading: below it or at its right.
bool comesAfter(const QRect& place, const QRect& former) {
    return place.top() > former.bottom() || place.left() > former.right();
}

/// That Tab goes on in the order of reading, and Shift and Tab back the same way.
void expectReadingOrder(QWidget& window, const std::string& where) {
    QCoreApplication::processEvents();
    std::vector<QWidget*> stops = stopsBy(window, Qt::Key_Tab);
    EXPECT_GE(stops.size(), 1U) << where;
    const bool voiceFirst = !stops.empty() && stops.front()->objectName() == "chkMute";
    for (std::size_t i = voiceFirst ? 2 : 1; i < stops.size(); ++i)
        EXPECT_TRUE(comesAfter(placeOf(*stops[i]), placeOf(*stops[i - 1])))
            << where << ": " << nameOf(*stops[i - 1]) << " before " << nameOf(*stops[i]);
    std::vector<QWidget*> back = stopsBy(window, Qt::Key_Backtab);
    std::ranges::reverse(back);
    EXPECT_EQ(namesOfStops(back), namesOfStops(stops)) << where;
}

/// In windows of several sizes.
class TabOrder : public testing::TestWithParam<QSize> {
protected:
    template <class Bench>
    void show(Bench& bench) {
        bench.window().resize(GetParam());
        bench.window().show();
    }
};
INSTANTIATE_TEST_SUITE_P(In, TabOrder,
                         testing::Values(QSize(768, 448), QSize(800, 600), QSize(910, 512),
                                         QSize(960, 640), QSize(1024, 600), QSize(1270, 990)),
                         [](const auto& size) {
                             return std::to_string(size.param.width()) + "x" +
                                    std::to_string(size.param.height());
                         });

class TabOrderOfDialogs : public testing::Test {
protected:
    void expectOrder(QDialog& dialog, const std::string& name) {
        dialog.show();
        expectReadingOrder(dialog, name);
        dialog.hide();
    }

    Bench bench;
};

}  // namespace

TEST_P(TabOrder, IsThatOfReadingOnEveryScreenOfBrainstorming) {
    WindowBench bench;
    bench.start();
    show(bench);
    expectReadingOrder(bench.window(), "home");
    bench.click("Brainstorm");
    expectReadingOrder(bench.window(), "choice");
    bench.play({{"do", "choose"}, {"option", "optMP"}});
    expectReadingOrder(bench.window(), "choice of a module");
    bench.openBrainstorm();
    for (const char* panel : {"fraStrength", "fraWeakness", "fraOpportunity", "fraThreats"}) {
        while (!bench.control(panel).isVisible()) bench.click("BNext");
        expectReadingOrder(bench.window(), panel);
    }
}

TEST_P(TabOrder, IsThatOfReadingOnEveryScreenOfAnalyzing) {
    WindowBench<AnalysisBench> bench;
    show(bench);
    for (int step = 1; step <= 7; ++step) {
        expectReadingOrder(bench.window(), "step " + std::to_string(step));
        bench.next(1);
    }
}

TEST_P(TabOrder, ReachesTheNameBeforeTheModulesAndNextBehindQuit) {
    WindowBench bench;
    bench.start();
    show(bench);
    bench.click("Brainstorm");
    QCoreApplication::processEvents();
    const Texts stops = namesOfStops(stopsBy(bench.window(), Qt::Key_Tab));
    const auto quit = std::ranges::find(stops, "imgBtnBQuit");
    ASSERT_NE(quit, stops.end());
    EXPECT_EQ(*(quit + 1), "imgBtnBNext");
    const auto option = std::ranges::find_if(
        stops, [](const std::string& name) { return name.starts_with("opt"); });
    ASSERT_NE(option, stops.end());
    EXPECT_LT(std::ranges::find(stops, "txtName"), option);
}

TEST_F(TabOrderOfDialogs, IsThatOfReadingInTheProgramsOwn) {
    FrmEdit edit;
    EditDialog editDialog(bench.program(), edit, nullptr);
    expectOrder(editDialog, "edit");
    FrmReportType report;
    ReportDialog reportDialog(bench.program(), report, nullptr);
    expectOrder(reportDialog, "report");
    FrmAbout about;
    AboutDialog aboutDialog(bench.program(), about, nullptr);
    expectOrder(aboutDialog, "about");
}

TEST_F(TabOrderOfDialogs, IsThatOfReadingInMessageBoxes) {
    for (const MessageButtons buttons :
         {MessageButtons::Ok, MessageButtons::YesNo, MessageButtons::YesNoCancel}) {
        MessageBox box({.text = "Do you?", .buttons = buttons}, nullptr);
        expectOrder(box, "message");
    }
}

TEST_F(TabOrderOfDialogs, IsThatOfReadingInFileDialogs) {
    const TemporaryFolder folder;
    folder.write("ann.bsm", "");
    for (const FileDialogMode mode : {FileDialogMode::Open, FileDialogMode::Save}) {
        FileChooser chooser({.mode = mode,
                             .filter = "All Files (*.bsm)|*.bsm",
                             .initialPath = folder.path(),
                             .fileName = {}},
                            FileRules::Heeded, nullptr);
        expectOrder(chooser, "file");
    }
}

TEST_F(TabOrderOfDialogs, IsThatOfReadingInThePrintPreview) {
    bool looked = false;
    QTimer::singleShot(0, [&] {
        auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(preview);
        expectReadingOrder(*preview, "preview");
        looked = true;
        preview->reject();
    });
    PreviewingPrinter().print(sheetsWith(1));
    EXPECT_TRUE(looked);
}

}  // namespace orvanta::test
