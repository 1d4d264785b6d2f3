#include "desktop/control_area.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "desktop/enlargement.h"

namespace orvanta::desktop {

namespace {

/// The place of one side of a control: its two edges, each moved by its share of the growth.
struct Span {
    int from, length;
};

Span stretched(double from, double length, double fromShare, double toShare, double growth) {
    const auto first = std::lround(from + fromShare * growth);
    const auto last = std::lround(from + length + toShare * growth);
    return {static_cast<int>(first), static_cast<int>(std::max(0L, last - first))};
}

/// Where an area has shrunk, what stays in its place as the area grows moves up to its edge.
Span keptInside(Span span, int designExtent, int extent) {
    const int margin = enlarged(8);
    const int end = span.from + span.length;
    if (extent >= designExtent || end > designExtent) return span;
    const int lastEnd = extent - std::min(margin, designExtent - end);
    span.from = std::max(0, std::min(span.from, lastEnd - span.length));
    return span;
}

}  // namespace

void showIfUncovered(const Control& control, QWidget& widget) {
    if (widget.isHidden() == control.isUncovered()) widget.setVisible(control.isUncovered());
}

ControlArea::ControlArea(const PixelGrid& pixelGrid, QWidget* parent)
    : QWidget(parent), m_pixelGrid(pixelGrid) {
    if (const auto* area = dynamic_cast<const ControlArea*>(parent)) m_reachOf = area->m_reachOf;
}

void ControlArea::setDesignSize(Twips width, Twips height) {
    m_designWidth = width;
    m_designHeight = height;
    placeAll();
}

QSize ControlArea::designSize() const {
    return {m_pixelGrid.pixels(m_designWidth), m_pixelGrid.pixels(m_designHeight)};
}

void ControlArea::hold(Control& control, QWidget& widget) {
    assert(widget.parentWidget() == this);
    m_held.emplace_back(&control, &widget);
    control.changed.subscribe([this, &control, &widget] { place(control, widget); });
}

void ControlArea::showUncovered() {
    for (const auto& [control, widget] : m_held) showIfUncovered(*control, *widget);
}

void ControlArea::raiseUncovered() {
    for (const auto& [control, widget] : m_held)
        if (!control->coveredBy()) widget->raise();
}

void ControlArea::resizeEvent(QResizeEvent*) { placeAll(); }

void ControlArea::place(const Control& control, QWidget& widget) const {
    const auto exact = [this](Twips length) { return m_pixelGrid.exact(length); };
    const Bounds& bounds = control.bounds();
    const Stretch& stretch = control.stretch();
    const QSize design = designSize(), growth = size() - design;
    const Reach reach = m_reachOf(control);
    Span across = stretched(exact(bounds.left), exact(bounds.width), stretch.left, stretch.right,
                            std::min<double>(growth.width(), exact(reach.growth)));
    across.length = static_cast<int>(std::min<double>(across.length, exact(reach.width)));
    Span down = stretched(exact(bounds.top), exact(bounds.height), stretch.top, stretch.bottom,
                          growth.height());
    if (stretch.right == 0) across = keptInside(across, design.width(), width());
    if (stretch.bottom == 0) down = keptInside(down, design.height(), height());
    widget.setGeometry(across.from, down.from, across.length, down.length);
    // Qt tells a hidden area of its new size only when it shows.
    if (const auto* area = dynamic_cast<const ControlArea*>(&widget)) area->placeAll();
}

void ControlArea::placeAll() const {
    for (const auto& [control, widget] : m_held) place(*control, *widget);
}

}  // namespace orvanta::desktop
