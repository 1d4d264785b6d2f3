#include "desktop/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/art.h"
#include "desktop/file_pictures.h"

namespace orvanta::desktop {

namespace {

/// A sign in a disc, for message boxes.
QIcon discIcon(const QColor& disc, QChar sign) {
    constexpr int size = 160;  // more than any screen shows; Qt scales it down
    QPixmap drawn(size, size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(disc);
    painter.drawEllipse(drawn.rect().adjusted(8, 8, -8, -8));
    QFont font = QApplication::font();
    font.setPixelSize(size * 5 / 8);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(theme::paper);
    painter.drawText(drawn.rect(), Qt::AlignCenter, sign);
    return QIcon(drawn);
}

QPalette lightPalette(const QPalette& desktop) {
    QPalette palette(theme::sideGround, theme::paper);
    // Nothing is said or drawn in passing where more contrast is asked for.
    const bool strong = asksForContrast(desktop);
    const QColor quietInk = strong ? theme::ink : theme::quietInk;
    palette.setColor(QPalette::Mid, strong ? theme::ink : theme::outline);
    palette.setColor(QPalette::Midlight, strong ? theme::ink : theme::hairline);
    palette.setColor(QPalette::WindowText, theme::ink);
    palette.setColor(QPalette::Base, theme::paper);
    palette.setColor(QPalette::AlternateBase, theme::sideGround);
    palette.setColor(QPalette::Text, theme::ink);
    palette.setColor(QPalette::ButtonText, theme::ink);
    palette.setColor(QPalette::Highlight, theme::deepBlue);
    palette.setColor(QPalette::HighlightedText, theme::paper);
    palette.setColor(QPalette::Link, theme::deepBlue);
    palette.setColor(QPalette::PlaceholderText, quietInk);
    palette.setColor(QPalette::ToolTipBase, theme::paper);
    palette.setColor(QPalette::ToolTipText, theme::ink);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme::quietInk);
    palette.setColor(QPalette::Disabled, QPalette::Mid, theme::outline);
    palette.setColor(QPalette::Disabled, QPalette::Base, theme::sideGround);
    return palette;
}

/// Fusion itself tells of the keyboard too faintly, and only after a press of Tab.
void drawFocusEdge(QPainter& painter, const QRect& place) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme::deepBlue, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(place).adjusted(1, 1, -1, -1), 3, 3);
    painter.restore();
}

/// The box of Fusion has an edge too pale to be found.
void drawTickBox(QPainter& painter, const QStyleOption& option) {
    const bool isOn = option.state & QStyle::State_On;
    const bool stands = isOn || option.state & QStyle::State_MouseOver;
    const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(stands ? theme::deepBlue : option.palette.color(QPalette::Mid));
    painter.setBrush(isOn ? theme::deepBlue : theme::paper);
    painter.drawRoundedRect(box, 2, 2);
    if (isOn) {
        const auto at = [&box](double x, double y) {
            return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
        };
        painter.setPen(QPen(theme::paper, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.3)});
    }
    painter.restore();
}

/// As a text box, with an arrow. On blue ground too the keyboard is told by an edge within.
void drawDropDown(QPainter& painter, const QStyleOption& option) {
    constexpr int fromRight = 13, reach = 4;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.setBrush(option.palette.base());
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.setPen(QPen(option.palette.color(QPalette::Text), 1.5));
    const QPointF tip(option.rect.right() - fromRight, option.rect.center().y() + reach / 2.0 + 1);
    painter.drawPolyline(
        QPolygonF{tip + QPointF(-reach, -reach), tip, tip + QPointF(reach, -reach)});
    painter.restore();
    if (option.state & QStyle::State_HasFocus)
        drawFocusEdge(painter, option.rect.adjusted(2, 2, -2, -2));
}

/// Fusion, light whatever colours the desktop asks for, with flat signs in its message boxes.
class FlatStyle : public QProxyStyle {
public:
    explicit FlatStyle(QPalette colours)
        : QProxyStyle(QStringLiteral("Fusion")), m_colours(std::move(colours)) {}

    using QProxyStyle::polish;
    void polish(QPalette& palette) override { palette = m_colours; }
    void polish(QWidget* widget) override {
        QProxyStyle::polish(widget);
        if (widget->isWindow()) widget->setPalette(m_colours);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        if (element == PE_FrameFocusRect && button && button->isCheckable())
            return drawFocusEdge(*painter, option->rect);
        if (element == PE_IndicatorCheckBox) return drawTickBox(*painter, *option);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        if (control == CC_ComboBox) return drawDropDown(*painter, *option);
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        constexpr int margin = 7, arrow = 20;  // the text stands as in a text box
        if (control == CC_ComboBox && part == SC_ComboBoxEditField)
            return option->rect.adjusted(margin, 1, -arrow, -1);
        return QProxyStyle::subControlRect(control, option, part, widget);
    }

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
        const QString picture = fileDialogPicture(icon);
        if (!picture.isEmpty()) return pictureIcon(picture);
        switch (icon) {
            case SP_MessageBoxCritical:
                return discIcon(theme::alarm, u'!');
            case SP_MessageBoxQuestion:
                return discIcon(theme::deepBlue, u'?');
            case SP_MessageBoxInformation:
                return discIcon(theme::deepBlue, u'i');
            default:
                return QProxyStyle::standardIcon(icon, option, widget);
        }
    }

private:
    QPalette m_colours;
};

/// The names of colours stand for their values.
constexpr auto flatLook = R"(
QLineEdit { background: @paper; border: 1px solid @outline; border-radius: 4px; padding: 0 8px; }
QLineEdit:focus { border: 2px solid @deepBlue; padding: 0 7px; }
QLineEdit:disabled { background: @sideGround; border: 1px dashed @disabledEdge; }
QFileDialog QLineEdit { min-height: 22px; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { background: transparent; border: none; padding: 0; }

QListView, QTreeView {
    background: @paper; border: 1px solid @outline; border-radius: 4px; padding: 2px;
}
QListView:focus, QTreeView:focus { border: 2px solid @deepBlue; padding: 1px; }
QComboBox QListView, QComboBox QListView:focus {
    border: 1px solid @outline; border-radius: 0; padding: 0;
}
QFileDialog QTreeView::item { padding: 3px 0; }
QFileDialog QListView::item:selected, QFileDialog QTreeView::item:selected {
    background: @selection; color: @ink;
}
QHeaderView { background: @paper; }
QHeaderView::section {
    background: @paper; color: @ink; border: none; border-bottom: 1px solid @outline;
    padding: 2px 6px;
}
QListWidget::item { padding: 6px 8px; border-bottom: 1px solid @hairline; color: @ink; }
QListWidget::item:selected {
    background: @sideGround; border-left: 2px solid @outline; padding-left: 6px;
}
QListWidget::item:selected:active {
    background: @selection; border-left: 4px solid @deepBlue; padding-left: 4px;
}

QPushButton {
    background: @paper; color: @deepBlue; border: 1px solid @outline; border-radius: 4px;
    padding: 3px;
}
QPushButton:hover { background: @sideGround; border-color: @deepBlue; }
QPushButton:pressed { background: @selection; }
QPushButton:focus { border: 2px solid @deepBlue; padding: 2px; }
QPushButton:default { background: @deepBlue; color: @paper; border-color: @deepBlue; }
QPushButton:default:hover { background: #0b409f; }
QPushButton:default:focus, #frmEdit QLineEdit:focus, #frmReportType QLineEdit:focus,
#frmReportType #cmdBrowse:focus { border: 2px solid #8fb0f0; }
QPushButton:disabled {
    color: @disabledInk; background: @sideGround; border: 1px dashed @disabledEdge; padding: 3px;
}
QMessageBox QPushButton, QFileDialog QPushButton, QPrintPreviewDialog QPushButton {
    min-width: 72px; min-height: 22px;
}
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }

QRadioButton::indicator {
    width: 14px; height: 14px; border: 1px solid @outline; border-radius: 8px; background: @paper;
}
QRadioButton::indicator:hover { border-color: @deepBlue; }
QRadioButton::indicator:disabled { border: 1px dashed @disabledEdge; background: @sideGround; }
QRadioButton::indicator:checked { width: 6px; height: 6px; border: 5px solid @deepBlue; }
QRadioButton::indicator:checked:disabled { border-color: @disabledInk; }

QToolBar {
    background: @sideGround; border: none; border-bottom: 1px solid @hairline; padding: 4px;
    spacing: 2px;
}
QToolButton { border: 1px solid transparent; border-radius: 4px; padding: 3px; }
QToolButton:hover { background: @paper; border-color: @outline; }
QToolButton:checked, QToolButton:pressed { background: @selection; border-color: @deepBlue; }
QToolButton:focus { border: 2px solid @deepBlue; padding: 2px; }
QToolButton:disabled { background: transparent; border-color: transparent; }

QToolTip { background: @paper; color: @ink; border: 1px solid @outline; padding: 4px; }

QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
QScrollBar::handle { background: @outline; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

QString sheetFor(const QPalette& colours) {
    QString sheet = QString::fromLatin1(flatLook);
    for (const auto& [name, colour] :
         {std::pair("@paper", theme::paper), std::pair("@ink", theme::ink),
          std::pair("@deepBlue", theme::deepBlue), std::pair("@sideGround", theme::sideGround),
          std::pair("@selection", theme::selection),
          std::pair("@disabledEdge", colours.color(QPalette::Disabled, QPalette::Mid)),
          std::pair("@disabledInk", colours.color(QPalette::Disabled, QPalette::ButtonText)),
          std::pair("@outline", colours.color(QPalette::Mid)),
          std::pair("@hairline", colours.color(QPalette::Midlight))})
        sheet.replace(QLatin1String(name), colour.name());
    return sheet;
}

/// How much light a colour gives, from 0 to 1, as WCAG 2 has it.
double luminanceOf(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool asksForContrast(const QPalette& desktop) {
    constexpr double most = 19;  // the usual light and dark desktops keep below 18.5
    return contrast(desktop.color(QPalette::WindowText), desktop.color(QPalette::Window)) >= most;
}

void applyTheme(QApplication& application) {
    const QPalette colours = lightPalette(QApplication::palette());
    // Else a widget under a style sheet takes its colours from the application, not its window.
    QApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    QApplication::setStyle(new FlatStyle(colours));
    QApplication::setPalette(colours);
    QFont font(QStringList{QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(9);
    QApplication::setFont(font);
    application.setStyleSheet(sheetFor(colours));
    QApplication::setWindowIcon(pictureIcon(QStringLiteral("logo")));
}

}  // namespace orvanta::desktop
