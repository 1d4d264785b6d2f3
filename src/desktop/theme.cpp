#include "desktop/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QRegularExpression>
#include <QScreen>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/art.h"
#include "desktop/enlargement.h"
#include "desktop/file_pictures.h"
#include "desktop/screen_room.h"
#include "desktop/system_contrast.h"

namespace orvanta::desktop {

namespace {

/// A sign in a disc, for message boxes.
QIcon discIcon(const QColor& disc, QChar sign) {
    const int size = enlarged(160);  // more than any screen shows; Qt scales it down
    QPixmap drawn(size, size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(disc);
    const int margin = size / 20;
    painter.drawEllipse(drawn.rect().adjusted(margin, margin, -margin, -margin));
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
    const bool strong = systemAsksForContrast(desktop);
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
        painter.setPen(
            QPen(theme::paper, 2 * enlargement(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.3)});
    }
    painter.restore();
}

/// As a text box, with an arrow. On blue ground too the keyboard is told by an edge within.
void drawDropDown(QPainter& painter, const QStyleOption& option) {
    const double radius = enlarged(4), fromRight = enlarged(13), reach = enlarged(4);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.setBrush(option.palette.base());
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.setPen(QPen(option.palette.color(QPalette::Text), 1.5 * enlargement()));
    const QPointF tip(option.rect.right() - fromRight, option.rect.center().y() + reach / 2 + 1);
    painter.drawPolyline(
        QPolygonF{tip + QPointF(-reach, -reach), tip, tip + QPointF(reach, -reach)});
    painter.restore();
    if (option.state & QStyle::State_HasFocus)
        drawFocusEdge(painter, option.rect.adjusted(2, 2, -2, -2));
}

/// True for what would look small beside larger letters: pictures, boxes to tick, gaps.
bool growsWithLetters(QStyle::PixelMetric metric) {
    switch (metric) {
        case QStyle::PM_ButtonMargin:
        case QStyle::PM_MenuButtonIndicator:
        case QStyle::PM_IndicatorWidth:
        case QStyle::PM_IndicatorHeight:
        case QStyle::PM_ExclusiveIndicatorWidth:
        case QStyle::PM_ExclusiveIndicatorHeight:
        case QStyle::PM_CheckBoxLabelSpacing:
        case QStyle::PM_RadioButtonLabelSpacing:
        case QStyle::PM_HeaderMarkSize:
        case QStyle::PM_TreeViewIndentation:
        case QStyle::PM_SmallIconSize:
        case QStyle::PM_LargeIconSize:
        case QStyle::PM_ButtonIconSize:
        case QStyle::PM_ToolBarIconSize:
        case QStyle::PM_ToolBarExtensionExtent:
        case QStyle::PM_ListViewIconSize:
        case QStyle::PM_MessageBoxIconSize:
        case QStyle::PM_LayoutLeftMargin:
        case QStyle::PM_LayoutTopMargin:
        case QStyle::PM_LayoutRightMargin:
        case QStyle::PM_LayoutBottomMargin:
        case QStyle::PM_LayoutHorizontalSpacing:
        case QStyle::PM_LayoutVerticalSpacing:
            return true;
        default:
            return false;
    }
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
        const int margin = enlarged(7), arrow = enlarged(20);  // the text stands as in a text box
        if (control == CC_ComboBox && part == SC_ComboBoxEditField)
            return option->rect.adjusted(margin, 1, -arrow, -1);
        return QProxyStyle::subControlRect(control, option, part, widget);
    }

    /// A desktop that opens what is clicked once would close a file dialog with the first of
    /// several files.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        if (hint == SH_ItemView_ActivateItemOnSingleClick) return 0;
        return QProxyStyle::styleHint(hint, option, widget, more);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        return growsWithLetters(metric) ? enlarged(usual) : usual;
    }

    /// What a menu's line or a drop-down has beside its words is as many pixels whatever the
    /// letters.
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& words,
                           const QWidget* widget) const override {
        const QSize usual = QProxyStyle::sizeFromContents(type, option, words, widget);
        const bool grows = type == CT_MenuItem || type == CT_ComboBox;
        return grows ? words + enlarged(usual - words) : usual;
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

/// The names of colours stand for their values. Lengths in "u" grow with the letters, those in px
/// do not; what is taken off an edge is told as a difference.
constexpr auto flatLook = R"(
QLineEdit { background: @paper; border: 1px solid @outline; border-radius: 4u; padding: 0 9u-1px; }
QLineEdit:focus { border: 2px solid @deepBlue; padding: 0 9u-2px; }
QLineEdit:disabled { background: @sideGround; border: 1px dashed @disabledEdge; }
QFileDialog QLineEdit { min-height: 22u; }
QComboBox QLineEdit, QComboBox QLineEdit:focus { background: transparent; border: none; padding: 0; }

QListView, QTreeView {
    background: @paper; border: 1px solid @outline; border-radius: 4u; padding: 3u-1px;
}
QListView:focus, QTreeView:focus { border: 2px solid @deepBlue; padding: 3u-2px; }
QComboBox QListView, QComboBox QListView:focus {
    border: 1px solid @outline; border-radius: 0; padding: 0;
}
QFileDialog QTreeView::item { padding: 3u 0; }
QFileDialog QListView::item:selected, QFileDialog QTreeView::item:selected {
    background: @selection; color: @ink;
}
QHeaderView { background: @paper; }
QHeaderView::section {
    background: @paper; color: @ink; border: none; border-bottom: 1px solid @outline;
    padding: 2u 6u;
}
QListWidget::item { padding: 6u 8u; border-bottom: 1px solid @hairline; color: @ink; }
QListWidget::item:selected {
    background: @sideGround; border-left: 2u solid @outline; padding-left: 8u-2u;
}
QListWidget::item:selected:active {
    background: @selection; border-left: 4u solid @deepBlue; padding-left: 8u-4u;
}

QPushButton {
    background: @paper; color: @deepBlue; border: 1px solid @outline; border-radius: 4u;
    padding: 4u-1px;
}
QPushButton:hover { background: @sideGround; border-color: @deepBlue; }
QPushButton:pressed { background: @selection; }
QPushButton:focus { border: 2px solid @deepBlue; padding: 4u-2px; }
QPushButton:default { background: @deepBlue; color: @paper; border-color: @deepBlue; }
QPushButton:default:hover { background: #0b409f; }
QPushButton:default:focus, #frmEdit QLineEdit:focus, #frmReportType QLineEdit:focus,
#frmReportType #cmdBrowse:focus { border: 2px solid #8fb0f0; }
QPushButton:disabled {
    color: @disabledInk; background: @sideGround; border: 1px dashed @disabledEdge; padding: 4u-1px;
}
QMessageBox QPushButton, QFileDialog QPushButton, QPrintPreviewDialog QPushButton {
    min-width: 72u; min-height: 22u;
}
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }

QRadioButton::indicator {
    width: 16u-2px; height: 16u-2px; border: 1px solid @outline; border-radius: 8u; background: @paper;
}
QRadioButton::indicator:hover { border-color: @deepBlue; }
QRadioButton::indicator:disabled { border: 1px dashed @disabledEdge; background: @sideGround; }
QRadioButton::indicator:checked {
    width: 16u-5u-5u; height: 16u-5u-5u; border: 5u solid @deepBlue;
}
QRadioButton::indicator:checked:disabled { border-color: @disabledInk; }

QToolBar {
    background: @sideGround; border: none; border-bottom: 1px solid @hairline; padding: 2u;
    spacing: 0;
}
QToolButton { border: 1px solid transparent; border-radius: 4u; padding: 4u-1px; }
QToolBar QToolButton, QToolBar QToolButton:focus { padding: 0; }
QToolButton:hover { background: @paper; border-color: @outline; }
QToolButton:checked, QToolButton:pressed { background: @selection; border-color: @deepBlue; }
QToolButton:focus { border: 2px solid @deepBlue; padding: 4u-2px; }
#qt_toolbar_ext_button { padding: 0; }
QToolButton:disabled { background: transparent; border-color: transparent; }

QToolTip { background: @paper; color: @ink; border: 1px solid @outline; padding: 4u; }

QScrollBar:vertical { background: transparent; width: 12u; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12u; margin: 0; }
QScrollBar::handle { background: @outline; border-radius: 4u; margin: 2u; }
QScrollBar::handle:vertical { min-height: 32u; }
QScrollBar::handle:horizontal { min-width: 32u; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

/// The pixels of a length of the sheet, such as "16u-2px".
int pixelsOf(const QString& length) {
    int pixels = 0, sign = 1;
    for (const QString& term : length.split(u'-')) {
        const bool grows = term.endsWith(u'u');
        const int told = term.chopped(grows ? 1 : 2).toInt();
        pixels += sign * (grows ? enlarged(told) : told);
        sign = -1;
    }
    return pixels;
}

void putLengths(QString& sheet) {
    static const QRegularExpression length(QStringLiteral("\\b\\d+u(-\\d+(u|px))*"));
    QRegularExpressionMatch match;
    while ((match = length.match(sheet)).hasMatch())
        sheet.replace(match.capturedStart(), match.capturedLength(),
                      QString::number(pixelsOf(match.captured())) + QLatin1String("px"));
}

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
    putLengths(sheet);
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

/// The program's own, as large as the desktop's as far as the screen has room for the window then.
QFont lettersFor(const QFont& desktop) {
    const bool inPixels = desktop.pointSizeF() < 0;
    const double points = inPixels ? QFontInfo(desktop).pointSizeF() : desktop.pointSizeF();
    const double most = largestEnlargement(QGuiApplication::primaryScreen()->availableSize());
    QFont font(QStringList{QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(designLetters * std::clamp(points / designLetters, 1.0, most));
    return font;
}

/// A theme of the desktop, as Windows has one, brings fonts of its own for some kinds of widgets.
/// They go before the program's, and come anew when the theme is told anew.
class OwnLetters : public QObject {
public:
    explicit OwnLetters(QApplication& application) : QObject(&application) {
        application.installEventFilter(this);
        apply();
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Show || event->type() == QEvent::ThemeChange) apply();
        return false;
    }

private:
    static void apply() {
        const QFont own = QApplication::font();
        for (const char* kind : {"QAbstractItemView", "QMenu", "QMessageBox", "QTipLabel"})
            if (QApplication::font(kind) != own) QApplication::setFont(own, kind);
    }
};

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
    QApplication::setFont(lettersFor(QApplication::font()));
    new OwnLetters(application);
    application.setStyleSheet(sheetFor(colours));
    QApplication::setWindowIcon(pictureIcon(QStringLiteral("logo")));
}

}  // namespace orvanta::desktop
