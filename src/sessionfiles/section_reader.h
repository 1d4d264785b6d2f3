#pragma once

#include <span>
#include <string_view>

#include "core/section_tags.h"
#include "core/text.h"

namespace orvanta {

/// Hands each data line of a session file to `take`: the section that it belongs to, the line as
/// it stands and the same without blanks at its ends. Lines outside the known sections mean
/// nothing.
template <class Take>
void readSections(std::string_view bytes, std::span<const Section> known, Take take) {
    OpenSection open;
    LineSource lines(bytes);
    while (const auto line = lines.next()) {
        const std::string_view trimmed = trimBlanks(*line);
        if (const auto section = open.takeLine(trimmed, known)) take(*section, *line, trimmed);
    }
}

}  // namespace orvanta
