#include "core/section_tags.h"

#include <algorithm>

#include "core/per_enum.h"

namespace orvanta {

namespace {

constexpr PerEnum<Section, std::string_view> words{{
    {Section::Step, "STEP"},
    {Section::Name, "NAME"},
    {Section::Module, "MODULE"},
    {Section::Strength, "STRENGTH"},
    {Section::Weakness, "WEAKNESS"},
    {Section::Opportunity, "OPPORTUNITY"},
    {Section::Threats, "THREATS"},
    {Section::OpportunityMapping, "OPPORTUNITYMAPPING"},
    {Section::ThreatMapping, "THREATMAPPING"},
}};

}  // namespace

std::string_view wordOf(Section section) { return words[section]; }

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
