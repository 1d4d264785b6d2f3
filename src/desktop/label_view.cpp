#include "desktop/label_view.h"

#include <QPainter>

#include "desktop/clicks.h"
#include "desktop/enlargement.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

LabelView::LabelView(Label& model, const PixelGrid& pixelGrid, QWidget* parent,
                     Qt::AlignmentFlag side)
    : QLabel(parent), m_model(model), m_pixelGrid(pixelGrid), m_side(side) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    const auto showModel = [this] {
        // A question may hold "&&", and blanks would put it beside the line of what is below.
        setText(fromCp1252(m_model.caption()).trimmed());
        // The place that is still to come brings a fit of its own.
        if (!testAttribute(Qt::WA_PendingResizeEvent)) fit();
    };
    model.changed.subscribe(showModel);
    showModel();
}

void LabelView::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    fit();
}

void LabelView::fit() {
    constexpr double smallestShare = 0.6, step = 0.75;
    Points size = m_model.fontSize();
    const double smallest = size.value * smallestShare;
    setFont(m_pixelGrid.font(size, m_model.isBold()));
    while (size.value - step >= smallest && heightForWidth(width()) > height()) {
        size.value -= step;
        setFont(m_pixelGrid.font(size, m_model.isBold()));
    }
    // Of a text that is too long even so, at least the beginning is to be read.
    const bool fits = heightForWidth(width()) <= height();
    setAlignment(Qt::AlignLeft | (fits ? m_side : Qt::AlignTop));
}

LinkView::LinkView(Label& model, Ground ground, const PixelGrid& pixelGrid, QWidget* parent)
    : QPushButton(parent), m_ground(ground) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(false);
    const auto showModel = [this, &model, pixelGrid] {
        setFont(pixelGrid.font(model.fontSize(), model.isBold()));
        setText(shownCaption(model.caption()));
    };
    model.changed.subscribe(showModel);
    showModel();
}

void LinkView::keyPressEvent(QKeyEvent* event) {
    if (!isPressByEnter(*event)) return QPushButton::keyPressEvent(event);
    click();
}

void LinkView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool onCard = m_ground == Ground::Card;
    if (onCard) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme::deepBlue);
        painter.drawRoundedRect(rect(), enlarged(4), enlarged(4));
    }
    QFont linkFont = font();
    linkFont.setUnderline(true);
    painter.setFont(linkFont);
    painter.setPen(onCard ? theme::paper : theme::deepBlue);
    const auto alignment = onCard ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
    painter.drawText(rect(), static_cast<int>(alignment), text());
    if (!hasFocus()) return;
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 3, 3);
}

}  // namespace orvanta::desktop
