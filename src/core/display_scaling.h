#pragma once

#include <type_traits>
#include <variant>

#include "view/control.h"

namespace orvanta {

// Layouts are drawn for 15 twips to a pixel. Large-font displays have fewer, so that the same
// twips take more pixels. Each form then shrinks in a way of its own, which stands beside it; here
// is what these ways share.

/// How many twips fewer than the design's a pixel has; 0 where it has as many or more, and nothing
/// shrinks.
double layoutDelta(double twipsPerPixel);

/// A length less its own value times a share of fifteenths.
Twips reduced(Twips length, double fifteenths);

/// Reduces left and top of a control.
void reducePlace(Control& control, double fifteenths);

enum class HeightRule { Reduce, Keep };

/// Reduces all four bounds of a control, or all but its height.
void reduceBounds(Control& control, double fifteenths, HeightRule height = HeightRule::Reduce);

/// Lowers the font of a control of one of these kinds; any other stays as it is.
template <class... Kinds>
void lowerFont(Control& control, double points) {
    const auto lower = [points](auto* found) {
        using Kind = std::remove_pointer_t<decltype(found)>;
        if constexpr ((std::is_same_v<Kind, Kinds> || ...))
            found->setFontSize({found->fontSize().value - points});
    };
    std::visit(lower, control.self());
}

}  // namespace orvanta
