#pragma once

#include <QLabel>
#include <QPushButton>
#include <functional>

#include "core/buttons.h"
#include "desktop/conversions.h"

namespace orvanta::desktop {

/// What a skinned button does when the mouse goes down on it and when it is let go, wherever
/// that is and whichever its button.
struct ButtonActs {
    std::function<void()> press, release;
};

/// The picture of a skinned button. The keyboard and assistive technology press it too.
class ButtonPictureView : public QPushButton {
public:
    ButtonPictureView(SkinnedButton& model, ButtonActs acts, QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Image& m_image;
    ButtonActs m_acts;
};

/// The caption of a skinned button, which lies over the picture and takes presses like it.
class ButtonCaptionView : public QLabel {
public:
    ButtonCaptionView(SkinnedButton& model, ButtonActs acts, const PixelGrid& pixelGrid,
                      QWidget* parent);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void widenForWords();

    ButtonActs m_acts;
};

}  // namespace orvanta::desktop
