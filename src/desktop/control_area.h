#pragma once

#include <QWidget>
#include <utility>
#include <vector>

#include "desktop/conversions.h"
#include "view/control.h"

namespace orvanta::desktop {

/// Holds the widgets of a form or a panel, each at the place that its model tells. What the
/// area has grown beyond its design size is shared out by the controls' stretch.
class ControlArea : public QWidget {
public:
    ControlArea(const PixelGrid& pixelGrid, QWidget* parent);

    const PixelGrid& pixelGrid() const { return m_pixelGrid; }
    void setDesignSize(Twips width, Twips height);
    QSize designSize() const;

    /// Takes a widget in and keeps it in its place. The model must outlive the area's use.
    void hold(Control& control, QWidget& widget);

    /// Hides what a panel covers, so that neither the keyboard nor a screen reader gets there.
    void showUncovered();
    /// Puts what no panel covers above the panels.
    void raiseUncovered();

protected:
    void placeAll() const;
    void resizeEvent(QResizeEvent* event) override;

private:
    void place(const Control& control, QWidget& widget) const;

    PixelGrid m_pixelGrid;
    Twips m_designWidth, m_designHeight;
    std::vector<std::pair<const Control*, QWidget*>> m_held;
};

}  // namespace orvanta::desktop
