#pragma once

#include <compare>

namespace orvanta {

/// A length on the design grid: 1440 to an inch, 15 to a pixel of a 96 dpi screen. Fractions
/// arise when a layout shrinks.
struct Twips {
    double value = 0;

    friend auto operator<=>(const Twips&, const Twips&) = default;  // NOLINT(modernize-use-nullptr)
    friend constexpr Twips operator+(Twips a, Twips b) { return {a.value + b.value}; }
    friend constexpr Twips operator-(Twips a, Twips b) { return {a.value - b.value}; }
    friend constexpr Twips operator*(Twips a, double factor) { return {a.value * factor}; }
};

/// A type size: 72 to an inch.
struct Points {
    double value = 0;

    friend auto operator<=>(const Points&, const Points&) = default;
};

/// Place and size of a control within its container.
struct Bounds {
    Twips left, top, width, height;

    friend bool operator==(const Bounds&, const Bounds&) = default;
};

/// How a control follows its container when that grows beyond its design size: each edge moves
/// by this share of the growth, from 0 (stays) to 1 (follows wholly).
struct Stretch {
    double left = 0, top = 0, right = 0, bottom = 0;

    friend bool operator==(const Stretch&, const Stretch&) = default;
};

}  // namespace orvanta
