#pragma once

#include <QWidget>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

#include "desktop/conversions.h"
#include "view/control.h"

namespace orvanta::desktop {

/// How far a control follows an area that is wider than its design: with so much of the growth, up
/// to this width.
struct Reach {
    static constexpr Twips unlimited{std::numeric_limits<double>::infinity()};
    Twips growth = unlimited, width = unlimited;
};

/// What is told to be shown is styled at once, long before the window is seen: only a change is
/// told.
void showIfUncovered(const Control& control, QWidget& widget);

/// Holds the widgets of a form or a panel, each at the place that its model tells. What the
/// area has grown beyond its design size is shared out by the controls' stretch.
class ControlArea : public QWidget {
public:
    using ReachOf = std::function<Reach(const Control&)>;

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
    /// For this area and for those that are made in it from here on.
    void limitReach(ReachOf reachOf) { m_reachOf = std::move(reachOf); }
    void resizeEvent(QResizeEvent* event) override;

private:
    void place(const Control& control, QWidget& widget) const;

    PixelGrid m_pixelGrid;
    ReachOf m_reachOf = [](const Control&) { return Reach{}; };
    Twips m_designWidth, m_designHeight;
    std::vector<std::pair<const Control*, QWidget*>> m_held;
};

}  // namespace orvanta::desktop
