#include "desktop/skinned_button_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <cassert>
#include <utility>

#include "desktop/art.h"
#include "desktop/clicks.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

Art pressedArt(Art art) {
    if (art == Art::SmallNormal) return Art::SmallDown;
    if (art == Art::LargeNormal) return Art::LargeDown;
    return art;
}

}  // namespace

ButtonPictureView::ButtonPictureView(SkinnedButton& model, ButtonActs acts, QWidget* parent)
    : QPushButton(parent), m_image(model.image), m_acts(std::move(acts)) {
    assert(m_acts.press && m_acts.release);
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(false);
    whenClicked(*this, [this] {
        m_acts.press();
        m_acts.release();
    });
    const auto showName = [this, &model] {
        if (model.image.accessibleName().empty())
            setAccessibleName(shownCaption(model.label.caption()));
    };
    model.label.changed.subscribe(showName);
    showName();
    m_image.changed.subscribe([this] { update(); });
}

void ButtonPictureView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    m_acts.press();
}

void ButtonPictureView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    m_acts.release();
}

void ButtonPictureView::keyPressEvent(QKeyEvent* event) {
    if (!isPressByEnter(*event)) return QPushButton::keyPressEvent(event);
    click();
}

void ButtonPictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawPicture(painter, rect(), artName(isDown() ? pressedArt(m_image.art()) : m_image.art()));
    if (!hasFocus()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme::paper, 1.5));
    painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -3), 2, 2);
}

ButtonCaptionView::ButtonCaptionView(SkinnedButton& model, ButtonActs acts,
                                     const PixelGrid& pixelGrid, QWidget* parent)
    : QLabel(parent), m_acts(std::move(acts)) {
    assert(m_acts.press && m_acts.release);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    QPalette white;
    white.setColor(QPalette::WindowText, theme::paper);
    setPalette(white);
    const auto showModel = [this, &label = model.label, pixelGrid] {
        setFont(pixelGrid.font(label.fontSize(), label.isBold()));
        setText(shownCaption(label.caption()));
        setAccessibleName(text());
        if (isVisible()) widenForWords();
    };
    model.label.changed.subscribe(showModel);
    showModel();
}

/// Its place may be narrower than its words.
void ButtonCaptionView::widenForWords() { setMinimumWidth(fontMetrics().size(0, text()).width()); }

bool ButtonCaptionView::event(QEvent* event) {
    const bool isDone = QLabel::event(event);
    // Not before it is seen: the letters are loaded for it, behind the splash.
    if (event->type() == QEvent::Show) widenForWords();
    return isDone;
}

void ButtonCaptionView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    m_acts.press();
}

void ButtonCaptionView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    m_acts.release();
}

}  // namespace orvanta::desktop
