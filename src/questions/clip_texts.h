#pragma once

#include <string>
#include <vector>

#include "view/platform.h"

namespace orvanta {

/// What one clip says. The text has no blanks at its ends and is never empty.
struct ClipText {
    std::string clip, text;
};

/// The clips that the question files in the program's folder call for: the questions of each
/// module, then the Analyze screens. Fails as the reading of these files does.
std::vector<ClipText> clipTexts(const Disk& disk, const std::string& appPath);

}  // namespace orvanta
