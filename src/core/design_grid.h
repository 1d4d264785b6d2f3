#pragma once

#include "view/units.h"

namespace orvanta {

/// A length of this many cells of the design grid, 15 twips each: one pixel at 96 dpi.
constexpr Twips gridLength(double cells) { return {cells * 15}; }

constexpr Bounds grid(double left, double top, double width, double height) {
    return {gridLength(left), gridLength(top), gridLength(width), gridLength(height)};
}

/// The first bounds moved and grown by the second.
constexpr Bounds operator+(Bounds a, Bounds b) {
    return {{a.left.value + b.left.value},
            {a.top.value + b.top.value},
            {a.width.value + b.width.value},
            {a.height.value + b.height.value}};
}

}  // namespace orvanta
