#pragma once

#include <QLabel>
#include <QPushButton>

#include "desktop/conversions.h"
#include "view/control.h"

namespace orvanta::desktop {

/// Shows the caption of a label, wrapped, without the blanks around it, at the upper or the lower
/// side of its place. A caption too long for its place is set smaller.
class LabelView : public QLabel {
public:
    LabelView(Label& model, const PixelGrid& pixelGrid, QWidget* parent,
              Qt::AlignmentFlag side = Qt::AlignTop);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    Label& m_model;
    PixelGrid m_pixelGrid;
    Qt::AlignmentFlag m_side;
};

/// A label that acts as a link.
class LinkView : public QPushButton {
public:
    enum class Ground { Card, Plain };  // white on a card of its own, or blue on what is behind

    LinkView(Label& model, Ground ground, const PixelGrid& pixelGrid, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Ground m_ground;
};

}  // namespace orvanta::desktop
