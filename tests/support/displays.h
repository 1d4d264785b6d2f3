#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "view/control.h"

namespace orvanta::test {

/// A display and what it makes of the layout.
struct Display {
    std::string name;
    double twipsPerPixel;
    double left;                         // what is left of a length, as a share
    double windowHeight;                 // the same of the window's height
    double splashHeight;                 // and of the splash's
    double lowerFont, wideningOfOption;  // points, share
};
inline std::ostream& operator<<(std::ostream& out, const Display& display) {
    return out << display.name;
}

inline const std::vector<Display> displays{
    {"Ordinary", 15, 1, 1, 1, 0, 1},
    {"Finer", 20, 1, 1, 1, 0, 1},
    {"Large", 12, 12 / 15.0, 1 - 1.3 / 15, 1 - 4.95 / 15, 2, 1.01},
    {"Larger", 10, 10 / 15.0, 1 - 1.2 / 15, 1 - 2.95 / 15, 3, 1},
};

inline void expectPlace(const Control& control, const Control& design, double share) {
    EXPECT_NEAR(control.bounds().left.value, design.bounds().left.value * share, 1e-6)
        << control.name();
    EXPECT_NEAR(control.bounds().top.value, design.bounds().top.value * share, 1e-6)
        << control.name();
}

inline void expectSize(const Control& control, const Control& design, double widthShare,
                       double heightShare) {
    EXPECT_NEAR(control.bounds().width.value, design.bounds().width.value * widthShare, 1e-6)
        << control.name();
    EXPECT_NEAR(control.bounds().height.value, design.bounds().height.value * heightShare, 1e-6)
        << control.name();
}

}  // namespace orvanta::test
