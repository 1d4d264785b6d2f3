#include "desktop/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>

#include "desktop/art.h"

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

QPalette lightPalette() {
    QPalette palette(theme::sideGround, theme::paper);
    palette.setColor(QPalette::WindowText, theme::ink);
    palette.setColor(QPalette::Base, theme::paper);
    palette.setColor(QPalette::AlternateBase, theme::sideGround);
    palette.setColor(QPalette::Text, theme::ink);
    palette.setColor(QPalette::ButtonText, theme::ink);
    palette.setColor(QPalette::Highlight, theme::deepBlue);
    palette.setColor(QPalette::HighlightedText, theme::paper);
    palette.setColor(QPalette::Link, theme::deepBlue);
    palette.setColor(QPalette::PlaceholderText, theme::quietInk);
    palette.setColor(QPalette::ToolTipBase, theme::paper);
    palette.setColor(QPalette::ToolTipText, theme::ink);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme::quietInk);
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

/// Fusion, light whatever colours the desktop asks for, with flat signs in its message boxes.
class FlatStyle : public QProxyStyle {
public:
    FlatStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    using QProxyStyle::polish;
    void polish(QPalette& palette) override { palette = lightPalette(); }
    void polish(QWidget* widget) override {
        QProxyStyle::polish(widget);
        if (widget->isWindow()) widget->setPalette(lightPalette());
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        if (element == PE_FrameFocusRect && button && button->isCheckable())
            return drawFocusEdge(*painter, option->rect);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ComboBox && option->state & State_HasFocus)
            drawFocusEdge(*painter, option->rect);
    }

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override {
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
};

constexpr auto flatLook = R"(
QLineEdit { background: #ffffff; border: 1px solid #b9c5de; border-radius: 4px; padding: 0 8px; }
QLineEdit:focus { border: 2px solid #003399; padding: 0 7px; }
QFileDialog QLineEdit { min-height: 22px; }

QListView { background: #ffffff; border: 1px solid #b9c5de; border-radius: 4px; padding: 2px; }
QListView:focus { border: 2px solid #003399; padding: 1px; }
QListWidget::item { padding: 6px 8px; border-bottom: 1px solid #e4e9f3; color: #1b253b; }
QListWidget::item:selected {
    background: #e3ebfb; border-left: 4px solid #003399; padding-left: 4px;
}

QPushButton {
    background: #ffffff; color: #003399; border: 1px solid #b9c5de; border-radius: 4px;
    padding: 3px;
}
QPushButton:hover { background: #f3f6fc; border-color: #003399; }
QPushButton:pressed { background: #e3ebfb; }
QPushButton:focus { border: 2px solid #003399; padding: 2px; }
QPushButton:default { background: #003399; color: #ffffff; border-color: #003399; }
QPushButton:default:hover { background: #0b409f; }
QPushButton:default:focus { border: 2px solid #8fb0f0; }
QPushButton:disabled { color: #5a6680; background: #f3f6fc; border-color: #e4e9f3; }
QMessageBox QPushButton, QFileDialog QPushButton, QPrintPreviewDialog QPushButton {
    min-width: 72px; min-height: 22px;
}
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }

QRadioButton::indicator {
    width: 14px; height: 14px; border: 1px solid #8fa3c8; border-radius: 8px; background: #ffffff;
}
QRadioButton::indicator:hover { border-color: #003399; }
QRadioButton::indicator:checked { width: 6px; height: 6px; border: 5px solid #003399; }

QToolTip { background: #ffffff; color: #1b253b; border: 1px solid #b9c5de; padding: 4px; }

QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
QScrollBar::handle { background: #b9c5de; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:hover { background: #8fa3c8; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

}  // namespace

void dressApplication(QApplication& application) {
    // Else a widget under a style sheet takes its colours from the application, not its window.
    QApplication::setAttribute(Qt::AA_UseStyleSheetPropagationInWidgetStyles);
    QApplication::setStyle(new FlatStyle);
    QApplication::setPalette(lightPalette());
    QFont font(QStringList{QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(9);
    QApplication::setFont(font);
    application.setStyleSheet(QString::fromLatin1(flatLook));
    QApplication::setWindowIcon(pictureIcon(QStringLiteral("logo")));
}

}  // namespace orvanta::desktop
