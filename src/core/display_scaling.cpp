#include "core/display_scaling.h"

#include <algorithm>

namespace orvanta {

namespace {

constexpr double designTwipsPerPixel = 15;

}  // namespace

double layoutDelta(double twipsPerPixel) {
    return std::max(0.0, designTwipsPerPixel - twipsPerPixel);
}

Twips reduced(Twips length, double fifteenths) {
    return length - length * (fifteenths / designTwipsPerPixel);
}

void reducePlace(Control& control, double fifteenths) {
    Bounds bounds = control.bounds();
    bounds.left = reduced(bounds.left, fifteenths);
    bounds.top = reduced(bounds.top, fifteenths);
    control.setBounds(bounds);
}

void reduceBounds(Control& control, double fifteenths, HeightRule height) {
    reducePlace(control, fifteenths);
    Bounds bounds = control.bounds();
    bounds.width = reduced(bounds.width, fifteenths);
    if (height == HeightRule::Reduce) bounds.height = reduced(bounds.height, fifteenths);
    control.setBounds(bounds);
}

}  // namespace orvanta
