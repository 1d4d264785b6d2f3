#include "kept_layout.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <ostream>
#include <sstream>

#include "data_folder.h"
#include "view/windows1252.h"

namespace orvanta::test {

namespace {

/// A row of numbers, each behind a blank.
std::string numbers(std::initializer_list<double> values) {
    std::ostringstream out;
    for (const double value : values) out << ' ' << value;
    return out.str();
}

void tellText(std::ostream& out, const char* what, const std::string& text) {
    if (!text.empty()) out << ' ' << what << " \"" << utf8From1252(text) << '"';
}

void tellFont(std::ostream& out, const Control& control) {
    const auto* written = dynamic_cast<const TextControl*>(&control);
    if (!written) return;
    out << " font" << numbers({written->fontSize().value});
    if (written->isBold()) out << " bold";
}

/// What only some kinds of control have.
void tellOwn(std::ostream& out, const Control& control) {
    if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control))
        tellText(out, "caption", captioned->caption());
    if (const auto* image = dynamic_cast<const Image*>(&control))
        out << " art " << static_cast<int>(image->art());
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        out << " longest " << box->maxLength();
    if (const auto* items = dynamic_cast<const ItemControl*>(&control))
        out << " selected " << items->selectedIndex();
}

void tellControl(std::ostream& out, const Control& control) {
    const Bounds& at = control.bounds();
    const Stretch& stretch = control.stretch();
    out << control.name() << ':'
        << numbers({at.left.value, at.top.value, at.width.value, at.height.value});
    if (control.container()) out << " in " << control.container()->name();
    if (stretch != Stretch())
        out << " stretch" << numbers({stretch.left, stretch.top, stretch.right, stretch.bottom});
    tellFont(out, control);
    if (!control.isVisible()) out << " hidden";
    if (!control.isEnabled()) out << " disabled";
    tellOwn(out, control);
    tellText(out, "tip", control.toolTip());
    tellText(out, "called", control.accessibleName());
    out << '\n';
}

std::string linesOf(std::ifstream file) {
    std::ostringstream lines;
    lines << file.rdbuf();
    return lines.str();
}

}  // namespace

void expectKeptLayout(const std::string& name, Twips width, Twips height,
                      const ControlSet& controls) {
    const std::string path = dataFolder() + "/../tests/data/layouts/" + name + ".txt";
    std::ostringstream told;
    told << "form:" << numbers({width.value, height.value}) << '\n';
    for (const Control* control : controls.all()) tellControl(told, *control);
    if (std::getenv("ORVANTA_KEEP_LAYOUTS")) std::ofstream(path) << told.str();
    EXPECT_EQ(told.str(), linesOf(std::ifstream(path)));
}

}  // namespace orvanta::test
