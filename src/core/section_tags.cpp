#include "core/section_tags.h"

#include <algorithm>
#include <array>

namespace orvanta {

namespace {

constexpr std::array<std::string_view, 9> words{
    "STEP",         "NAME",        "MODULE",  "STRENGTH",
    "WEAKNESS",     "OPPORTUNITY", "THREATS", "OPPORTUNITYMAPPING",
    "THREATMAPPING"};
static_assert(words[static_cast<std::size_t>(Section::ThreatMapping)] == "THREATMAPPING");

}  // namespace

std::string_view wordOf(Section section) { return words[static_cast<std::size_t>(section)]; }

std::optional<SectionTag> tagOf(std::string_view trimmedLine, std::span<const Section> known) {
    if (!trimmedLine.starts_with('<') || !trimmedLine.ends_with('>')) return std::nullopt;
    const bool opens = !trimmedLine.starts_with("</");
    trimmedLine.remove_prefix(opens ? 1 : 2);
    if (trimmedLine.empty()) return std::nullopt;
    trimmedLine.remove_suffix(1);
    const auto section = std::ranges::find(known, trimmedLine, wordOf);
    if (section == known.end()) return std::nullopt;
    return SectionTag{*section, opens};
}

std::optional<Section> OpenSection::takeLine(std::string_view trimmedLine,
                                             std::span<const Section> known) {
    const auto tag = tagOf(trimmedLine, known);
    if (!tag) return m_open;
    take(*tag);
    return std::nullopt;
}

}  // namespace orvanta
