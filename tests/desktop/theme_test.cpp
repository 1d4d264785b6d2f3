#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSet>
#include <QStyleOptionButton>
#include <QtTest>

#include "desktop/dialogs.h"
#include "desktop/message_box.h"
#include "desktop/statement_list_view.h"
#include "painted_contrast.h"
#include "program_dialogs.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

constexpr double legible = 4.5, outstanding = 3;

QPalette paletteOf(const QColor& ground, const QColor& ink, const QColor& highlight) {
    QPalette palette(ground, ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, ink);
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, ground);
    return palette;
}

struct DesktopColours {
    std::string name;
    QPalette palette;
};
void PrintTo(const DesktopColours& colours, std::ostream* out) { *out << colours.name; }

/// The program on a desktop whose applications have other colours.
class Legibility : public testing::TestWithParam<DesktopColours> {
protected:
    Legibility() { QApplication::setPalette(GetParam().palette); }
    ~Legibility() override { QApplication::setPalette(m_former); }

    static QString textOf(const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
        if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) return box->text();
        if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
            return button->text();
        return {};
    }

    static void expectLegibleTexts(QWidget& window) {
        QCoreApplication::processEvents();
        int read = 0;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible() || textOf(*widget).isEmpty()) continue;
            ++read;
            EXPECT_GE(writtenContrast(paintedAs(*widget)), legible)
                << widget->objectName().toStdString() << ": " << textOf(*widget).toStdString();
        }
        EXPECT_GT(read, 0);
    }

private:
    QPalette m_former = QApplication::palette();
};

/// A mapping screen whose first opportunity has a strength and a weakness under it.
class LegibleRows : public Legibility {
protected:
    LegibleRows() {
        bench.goTo(mappingSides()[0]);
        bench.map("lvWeaknessOp", 1, "lvOpportunity", 1);
        bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
        StatementList& list = bench.list("lvOpportunity");
        list.select(0);
        for (int position = 1; position <= list.count(); ++position)
            list.setText(position, "HHHH llll MMMM");
        bench.window().show();
        QCoreApplication::processEvents();
    }

    StatementListView& view() { return bench.widget<StatementListView>("lvOpportunity"); }
    QRect placeOf(int position) { return view().visualRect(view().indexAtPosition(position)); }
    QImage rowPainted(int position) { return paintedAs(*view().viewport(), placeOf(position)); }

    /// That a row is written in its fixed colour and can be read.
    void expectLegible(int position, const QColor& ink) {
        const QImage row = rowPainted(position);
        bool written = false;
        for (int y = 0; y < row.height(); ++y)
            for (int x = row.height(); x < row.width(); ++x)
                written = written || row.pixelColor(x, y) == ink;
        EXPECT_TRUE(written) << "row " << position << " is not in " << ink.name().toStdString();
        EXPECT_GE(contrast(groundOf(row), ink), legible) << "row " << position;
    }

    WindowBench<AnalysisBench> bench;
    const QColor green{0, 120, 60}, red{200, 0, 0};
};

const DesktopColours light{
    "Light", paletteOf(QColor(0xef, 0xef, 0xef), Qt::black, QColor(0x30, 0x8c, 0xc6))};
const DesktopColours dark{"Dark",
                          paletteOf(QColor(0x2a, 0x2e, 0x32), Qt::white, QColor(0x3d, 0xae, 0xe9))};
const DesktopColours highContrast{"HighContrast", paletteOf(Qt::black, Qt::yellow, Qt::cyan)};

std::vector<DesktopColours> desktopColours() { return {light, dark, highContrast}; }

/// The program as it comes up on such a desktop.
class Edges : public Legibility {
protected:
    Edges() {
        applyTheme(*qApp);
        bench.start();
        bench.window().show();
    }
    ~Edges() override {
        QApplication::setPalette(light.palette);
        applyTheme(*qApp);
    }

    /// The contrast of the left edge of a part of a control with the paper beside it.
    double edgeContrast(const std::string& control, const QRect& part) {
        const QImage painted = paintedAs(bench.widget(control), part);
        return contrast(painted.pixelColor(0, painted.height() / 2), theme::paper);
    }
    double edgeContrast(const std::string& control) {
        return edgeContrast(control, bench.widget(control).rect());
    }
    QRect indicator(const std::string& control, QStyle::SubElement element) {
        const QWidget& button = bench.widget(control);
        QStyleOptionButton option;
        option.initFrom(&button);
        return button.style()->subElementRect(element, &option, &button);
    }
    double indicatorContrast(const std::string& control, QStyle::SubElement element) {
        return edgeContrast(control, indicator(control, element));
    }

    void expectEdges(double least) {
        QCoreApplication::processEvents();
        EXPECT_FALSE(bench.form().chkMute.isOn());
        EXPECT_GE(indicatorContrast("chkMute", QStyle::SE_CheckBoxIndicator), least);
        bench.click("Brainstorm");
        EXPECT_GE(indicatorContrast("optMP", QStyle::SE_RadioButtonIndicator), least);
        bench.openBrainstorm();
        bench.widget("cmdUndo").setFocus();
        QCoreApplication::processEvents();
        EXPECT_GE(edgeContrast("txtStrength"), least);
        EXPECT_GE(edgeContrast("lvBStrength"), least);
    }

    /// What the sound switch shows within its edge.
    QColor groundOfTickBox() {
        QCoreApplication::processEvents();
        return groundOf(
            paintedAs(bench.widget("chkMute"), indicator("chkMute", QStyle::SE_CheckBoxIndicator)));
    }

    WindowBench<> bench;
};
/// The report dialog on such a desktop, with the keyboard at its Browse button.
class ReportDialogOn : public Edges {
protected:
    ReportDialogOn() {
        dialog.show();
        dialog.findChild<QWidget*>(QStringLiteral("cmdBrowse"))->setFocus();
    }

    QImage painted(const std::string& control) {
        QCoreApplication::processEvents();
        return paintedAs(*dialog.findChild<QWidget*>(fromCp1252(control)));
    }
    /// How many colours the straight part of the lower edge has.
    static qsizetype edgeColours(const QImage& button) {
        QSet<QRgb> colours;
        for (int x = 8; x < button.width() - 8; ++x)
            colours.insert(button.pixel(x, button.height() - 1));
        return colours.size();
    }

    FrmReportType form;
    ReportDialog dialog{bench.program(), form, nullptr};
};
class DisabledControls : public ReportDialogOn {};
class DropDown : public ReportDialogOn {};

class UsualDesktop : public Edges {};
class HighContrastDesktop : public Edges {};

}  // namespace

TEST_P(LegibleRows, HaveALightGround) {
    EXPECT_GT(groundOf(paintedAs(*view().viewport())).lightness(), 0xf0);
}

TEST_P(LegibleRows, CanBeReadAsTheyAre) {
    expectLegible(2, green);
    expectLegible(3, red);
    EXPECT_GE(writtenContrast(rowPainted(1)), legible);
}

TEST_P(LegibleRows, CanBeReadWhileTheyAreSelected) {
    for (const auto& [position, ink] : {std::pair(2, green), std::pair(3, red)}) {
        bench.list("lvOpportunity").select(position);
        expectLegible(position, ink);
    }
    bench.list("lvOpportunity").select(1);
    EXPECT_GE(writtenContrast(rowPainted(1)), legible);
}

TEST_P(LegibleRows, ShowTheSelectionByAPaleFillAndAStrongEdge) {
    bench.list("lvOpportunity").select(2);
    const QImage selected = rowPainted(2), other = rowPainted(3);
    const QColor fill = groundOf(selected);
    EXPECT_NE(fill, groundOf(other));
    EXPECT_GT(fill.lightness(), 0xe0);
    EXPECT_GE(contrast(fill, selected.pixelColor(0, selected.height() / 2)), outstanding);
}

TEST_P(LegibleRows, CanBeReadUnderThePointer) {
    for (const auto& [position, ink] : {std::pair(2, green), std::pair(3, red)}) {
        QTest::mouseMove(view().viewport(), placeOf(position).center());
        QCoreApplication::processEvents();
        expectLegible(position, ink);
    }
}

TEST_P(LegibleRows, CanBeReadWhileADropWouldLandOnThem) {
    bench.select("lvStrengthOp", 2);
    draggedOver(bench.program(), bench.list("lvStrengthOp"));
    const StatementDrag drag(bench.list("lvStrengthOp"));
    QDragEnterEvent move(placeOf(1).center(), Qt::MoveAction, &drag, Qt::LeftButton,
                         Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &move);
    ASSERT_EQ(view().litRow(), 1);
    EXPECT_GE(writtenContrast(rowPainted(1)), legible);
}

TEST_P(Legibility, HoldsForEveryTextOfTheBrainstormModule) {
    WindowBench bench;
    bench.start();
    bench.window().show();
    expectLegibleTexts(bench.window());
    bench.click("Brainstorm");
    bench.set("txtName", "Dana Reyes");
    expectLegibleTexts(bench.window());
    bench.openBrainstorm();
    bench.set("txtStrength", "A");
    for (int screen = 0; screen < 4; ++screen) {
        expectLegibleTexts(bench.window());
        for (int press = 0; press < 3; ++press) bench.click("BNext");
    }
}

TEST_P(Legibility, HoldsForEveryTextOfTheAnalyzeModule) {
    WindowBench<AnalysisBench> bench;
    bench.window().show();
    for (int screen = 0; screen < 7; ++screen) {
        expectLegibleTexts(bench.window());
        if (screen < 6) bench.click("ANext");
    }
}

TEST_P(Legibility, HoldsForEveryTextOfTheDialogs) {
    WindowBench bench;
    bench.start();
    ProgramDialogs dialogs(bench.program());
    dialogs.edit.txtEdit.setText("A statement");
    dialogs.showEach([](QDialog& dialog) { expectLegibleTexts(dialog); });
    MessageBox messageBox({.text = "Do you want to overwrite the file?"}, nullptr);
    messageBox.show();
    expectLegibleTexts(messageBox);
}

TEST_P(DisabledControls, LookDisabled) {
    for (PushButton* button : {&form.CancelButton, &form.OKButton}) {
        const QImage enabled = painted(button->name());
        button->setEnabled(false);
        const QImage disabled = painted(button->name());
        EXPECT_NE(groundOf(disabled), groundOf(enabled)) << button->name();
        EXPECT_EQ(edgeColours(enabled), 1) << button->name();
        EXPECT_GT(edgeColours(disabled), 1) << button->name() << " has no dashes";
        EXPECT_LT(writtenContrast(disabled), writtenContrast(enabled)) << button->name();
        EXPECT_GE(writtenContrast(disabled), legible) << button->name();
    }
}

TEST_P(DisabledControls, OfTheOtherKindsLookDisabledToo) {
    for (Control* control :
         {static_cast<Control*>(&form.cboFormat), static_cast<Control*>(&form.txtEdit)}) {
        const QColor enabled = groundOf(painted(control->name()));
        control->setEnabled(false);
        EXPECT_NE(groundOf(painted(control->name())), enabled) << control->name();
    }
}

TEST_P(DropDown, HasTheEdgeAndTheGroundOfABox) {
    const QImage box = painted("txtEdit"), list = painted("cboFormat");
    EXPECT_EQ(list.pixelColor(0, list.height() / 2), box.pixelColor(0, box.height() / 2));
    EXPECT_EQ(list.pixelColor(list.width() / 2, list.height() - 1),
              box.pixelColor(box.width() / 2, box.height() - 1));
    EXPECT_EQ(list.pixelColor(2, list.height() / 2), theme::paper);
}

TEST(Contrast, IsTheRatioThatWcagGives) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.005);
    EXPECT_NEAR(contrast(Qt::yellow, Qt::blue), 8.00, 0.005);
    EXPECT_EQ(contrast(Qt::red, Qt::red), 1);
}

TEST(Letters, AreTheProgramsOwnWhereADesktopBringsOthersForLists) {
    QListView list;
    QApplication::setFont(QFont(QStringLiteral("Courier New"), 20), "QAbstractItemView");
    ASSERT_NE(QApplication::font(&list), QApplication::font());
    list.show();
    EXPECT_EQ(QApplication::font(&list), QApplication::font());
}

TEST_P(UsualDesktop, ShowsTheEdgesOfControls) { expectEdges(outstanding); }

TEST_P(UsualDesktop, DoesNotAskForMoreContrast) {
    EXPECT_FALSE(asksForContrast(GetParam().palette));
}

TEST_P(UsualDesktop, TellsASwitchThatIsOnByItsWholeBox) {
    const QColor off = groundOfTickBox();
    bench.form().chkMute.setOn(true);
    EXPECT_GE(contrast(groundOfTickBox(), off), outstanding);
}

TEST_P(HighContrastDesktop, GetsStrongEdges) { expectEdges(7); }

TEST_P(HighContrastDesktop, GetsNoFaintTexts) {
    bench.click("Brainstorm");
    QCoreApplication::processEvents();
    EXPECT_GE(writtenContrast(paintedAs(bench.widget("lblWhereabouts"))), 12);
}

TEST_P(HighContrastDesktop, GetsStrongLinesAndNumbersInItsRows) {
    WindowBench<AnalysisBench> analysis;
    analysis.goTo(mappingSides()[0]);
    analysis.map("lvStrengthOp", 1, "lvOpportunity", 1);
    analysis.list("lvOpportunity").select(0);
    analysis.window().show();
    QCoreApplication::processEvents();
    auto& view = analysis.widget<StatementListView>("lvOpportunity");
    const QRect row = view.visualRect(view.indexAtPosition(1));
    const QImage painted = paintedAs(*view.viewport(), row);
    EXPECT_GE(contrast(painted.pixelColor(row.width() / 2, row.height() - 1), groundOf(painted)),
              7);
    const QImage counts = paintedAs(*view.viewport(), row.adjusted(row.width() - 80, 0, 0, -1));
    EXPECT_GE(writtenContrast(counts), 12);
}

const auto nameOfColours = [](const auto& info) { return info.param.name; };
INSTANTIATE_TEST_SUITE_P(On, LegibleRows, testing::ValuesIn(desktopColours()), nameOfColours);
INSTANTIATE_TEST_SUITE_P(On, Legibility, testing::ValuesIn(desktopColours()), nameOfColours);

INSTANTIATE_TEST_SUITE_P(On, DisabledControls, testing::ValuesIn(desktopColours()), nameOfColours);
INSTANTIATE_TEST_SUITE_P(On, DropDown, testing::ValuesIn(desktopColours()), nameOfColours);

INSTANTIATE_TEST_SUITE_P(On, UsualDesktop, testing::Values(light, dark), nameOfColours);
INSTANTIATE_TEST_SUITE_P(On, HighContrastDesktop, testing::Values(highContrast), nameOfColours);

}  // namespace orvanta::test
