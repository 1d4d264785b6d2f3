#include "reports/report_source.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "core/constants.h"
#include "core/mapping_keys.h"
#include "core/section_tags.h"
#include "core/text.h"
#include "view/within_memory.h"

namespace orvanta {

namespace {

/// Uneven on purpose: a repeated section overwrites a statement list from its beginning, while
/// the mapping lists go on growing.
struct ReportSection {
    Section section;
    ReportList ReportLists::*list;
    bool startsAnew;
    ReportScope readBy;
    bool dropsMarks;
};

constexpr std::array<ReportSection, 6> reportSections{{
    {Section::Strength, &ReportLists::strengthEntries, true, ReportScope::Everything, false},
    {Section::Weakness, &ReportLists::weaknessEntries, true, ReportScope::Everything, false},
    {Section::Opportunity, &ReportLists::opportunityEntries, true, ReportScope::Correlation, false},
    {Section::Threats, &ReportLists::threatEntries, true, ReportScope::Correlation, false},
    {Section::OpportunityMapping, &ReportLists::opportunityMapEntries, false,
     ReportScope::Correlation, true},
    {Section::ThreatMapping, &ReportLists::threatMapEntries, false, ReportScope::Correlation, true},
}};

constexpr std::array knownSections{
    Section::Module,  Section::Strength,           Section::Weakness,     Section::Opportunity,
    Section::Threats, Section::OpportunityMapping, Section::ThreatMapping};

const ReportSection* sectionRead(Section section, ReportScope scope) {
    const auto found = std::ranges::find(reportSections, section, &ReportSection::section);
    if (found == reportSections.end()) return nullptr;
    return found->readBy == ReportScope::Everything && scope != ReportScope::Everything ? nullptr
                                                                                        : &*found;
}

std::string textOf(const ReportSection& section, std::string_view field) {
    if (!section.dropsMarks || field.find('[') == std::string_view::npos)
        return std::string(trimBlanks(field));
    return std::string(trimBlanks(replaceAll(replaceAll(field, "[+]", ""), "[-]", "")));
}

void takeRow(const ReportSection& section, std::string_view line, ReportLists& lists) {
    const auto fields = partsOf<3>(line, rowFieldDelimiter);
    if (!fields) return;
    const auto& [key, sourceLabel, text] = *fields;
    std::string entry;
    entry.reserve(line.size());
    entry.append(key).append(rowFieldDelimiter).append(textOf(section, text));
    (lists.*section.list).add(std::move(entry));
}

void takeLine(std::string_view line, ReportScope scope, OpenSection& open, ReportLists& lists) {
    if (const auto tag = tagOf(trimBlanks(line), knownSections)) {
        const ReportSection* named = sectionRead(tag->section, scope);
        // Also where the tag stands inside another section and opens nothing.
        if (tag->opens && named && named->startsAnew) (lists.*named->list).startAnew();
        open.take(*tag);
    } else if (const auto section = open.section()) {
        if (const ReportSection* read = sectionRead(*section, scope)) takeRow(*read, line, lists);
    }
}

}  // namespace

void ReportList::add(std::string entry) {
    assert(m_count <= m_entries.size());
    if (m_count == m_entries.size())
        m_entries.push_back(std::move(entry));
    else
        m_entries[m_count] = std::move(entry);
    ++m_count;
}

void readReportSource(std::string_view bytes, ReportScope scope, ReportLists& lists) {
    withinMemory([&] {
        OpenSection open;
        LineSource lines(bytes);
        while (const auto line = lines.next()) takeLine(*line, scope, open, lists);
    });
}

bool classifyEntry(std::string_view entry, ReportRow& row) {
    const auto parts = partsOf<2>(entry, rowFieldDelimiter);
    if (!parts) return false;
    const auto& [key, text] = *parts;
    row.text = text;
    row.kind = ReportRowKind::Parent;
    if (mappingKeyFrom(key).isMapped)
        row.kind = mappedKindOf(key) == StatementKind::Strength ? ReportRowKind::Strength
                                                                : ReportRowKind::Weakness;
    return true;
}

}  // namespace orvanta
