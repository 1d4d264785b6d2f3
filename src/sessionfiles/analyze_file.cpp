#include "sessionfiles/analyze_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "analyze/list_marks.h"
#include "analyze/mapping_keys.h"
#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/modules.h"
#include "core/section_tags.h"
#include "core/text.h"
#include "sessionfiles/section_writer.h"
#include "sessionfiles/session_disk.h"
#include "sessionfiles/step_codes.h"

namespace orvanta {

namespace {

struct MappingSection {
    Section section;
    StatementKind parentKind;
    ListMember list;
};

constexpr std::array<MappingSection, 2> mappingSections{{
    {Section::OpportunityMapping, StatementKind::Opportunity, &FrmMain::lvOpportunity},
    {Section::ThreatMapping, StatementKind::Threat, &FrmMain::lvThreat},
}};

constexpr std::array knownSections{
    Section::Step,        Section::Module,  Section::Strength,           Section::Weakness,
    Section::Opportunity, Section::Threats, Section::OpportunityMapping, Section::ThreatMapping};

constexpr std::array<StepCode, 6> stepCodes{{
    {"ST", &FrmMain::fraASSummary},
    {"WE", &FrmMain::fraAWeakness},
    {"OP", &FrmMain::fraAOpportunity},
    {"TH", &FrmMain::fraAThreats},
    {"AO", &FrmMain::fraAnalyzeOpportunity},
    {"AT", &FrmMain::fraAnalyzeThreat},
}};

void writeRows(SectionWriter& writer, Section section, const StatementList& list) {
    writer.open(section);
    for (int position = 1; position <= list.count(); ++position) {
        const Row& row = list.row(position);
        std::string line = row.key;
        line.append(rowFieldDelimiter).append(row.subItem);
        line.append(rowFieldDelimiter).append(trimBlanks(row.text));
        writer.line(line);
    }
    writer.close(section);
}

struct RowFields {
    std::string_view key, sourceLabel, text;
};

std::optional<RowFields> rowFieldsFrom(std::string_view line) {
    const auto fields = splitAt(line, rowFieldDelimiter);
    if (fields.size() != 3) return std::nullopt;
    return RowFields{fields[0], fields[1], trimBlanks(fields[2])};
}

/// The number that a text begins with; 0 if it begins with none.
double leadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.starts_with('+')) text.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const std::string_view number =
            text.substr(0, static_cast<std::size_t>(result.ptr - text.data()));
        const bool huge = number.find('-') == std::string_view::npos;  // neither negative nor tiny
        return huge ? std::numeric_limits<double>::infinity() : 0;
    }
    const bool digits = text.find_first_of("0123456789") == text.find_first_not_of("-.");
    return result.ec == std::errc{} && digits ? value : 0;
}

class Reading {
public:
    Reading(FrmMain& form, bool restoreStep) : m_form(form), m_restoreStep(restoreStep) {}

    void take(std::string_view line) {
        const std::string_view trimmed = trimBlanks(line);
        if (const auto section = m_open.takeLine(trimmed, knownSections))
            takeData(*section, line, trimmed);
    }

private:
    void takeData(Section section, std::string_view line, std::string_view trimmed) {
        if (section == Section::Step) {
            if (m_restoreStep) showStep(m_form, stepCodes, trimmed);
            return;
        }
        if (section == Section::Module) return chooseModuleByWord(m_form, trimmed);
        const auto fields = rowFieldsFrom(line);
        if (!fields) return;
        if (const KindControls* controls = kindOfSection(section)) addStatement(*controls, *fields);
        for (std::size_t side = 0; side < mappingSections.size(); ++side)
            if (mappingSections[side].section == section)
                addMappingRow(mappingSections[side], m_topRows[side], *fields);
    }

    void addStatement(const KindControls& controls, const RowFields& fields) {
        const Row row{.key = std::string(fields.key),
                      .text = std::string(fields.text),
                      .image = imageOf(controls.kind),
                      .largeImage = imageOf(controls.kind),
                      .subItem = std::string(fields.sourceLabel)};
        (m_form.*controls.analyzeList).add(row);
        // Opportunities and threats have mapping sections of their own.
        for (const ListMember list : controls.pickingLists)
            if (list) (m_form.*list).add(row);
        if (fields.key.empty()) return;
        const double number = leadingNumber(fields.key.substr(1));
        std::int32_t& count = keyCount(m_form, controls.kind);
        if (number > count) count = narrowed<std::int32_t>(std::nearbyint(number));
    }

    void addMappingRow(const MappingSection& section, int& topRows, const RowFields& fields) {
        const MappingKey key = mappingKeyFrom(fields.key);
        Row row{.key = std::string(fields.key),
                .text = std::string(fields.text),
                .subItem = std::string(fields.sourceLabel)};
        if (key.isMapped) {
            const StatementKind kind =
                key.child.starts_with('S') ? StatementKind::Strength : StatementKind::Weakness;
            addRow(section, std::move(row), imageOf(kind));
            markMappedRow(m_form.*section.list, (m_form.*section.list).count(), kind);
            return;
        }
        ++topRows;
        if (trimBlanks(row.key).empty())
            row.key = letterOf(section.parentKind) + std::to_string(topRows);
        addRow(section, std::move(row), imageOf(section.parentKind));
    }

    void addRow(const MappingSection& section, Row row, int image) {
        row.image = row.largeImage = image;
        (m_form.*section.list).add(std::move(row));
    }

    FrmMain& m_form;
    const bool m_restoreStep;
    OpenSection m_open;
    std::array<int, 2> m_topRows{};
};

}  // namespace

std::string analyzeBytes(const FrmMain& form, bool withStep) {
    SectionWriter writer;
    if (withStep) writer.section(Section::Step, stepOnScreen(form, stepCodes));
    writer.section(Section::Module, chosenModuleWord(form));
    for (const KindControls& controls : kindControls)
        writeRows(writer, controls.section, form.*controls.analyzeList);
    for (const MappingSection& section : mappingSections)
        writeRows(writer, section.section, form.*section.list);
    return writer.finish();
}

void saveAnalyzeData(Program& program, const std::string& fileName, bool TmpFlag) {
    const CarryOn step;
    step([&] {
        writeSession(program.platform.disk, fileName, analyzeBytes(program.frmMain, TmpFlag),
                     TmpFlag);
    });
}

void loadAnalyzeData(Program& program, const std::string& fileName, bool restoreStep) {
    // A step stands in the temporary file alone.
    readSession(program, fileName, restoreStep, Reading(program.frmMain, restoreStep));
}

}  // namespace orvanta
