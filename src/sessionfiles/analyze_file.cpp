#include "sessionfiles/analyze_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/analyze_steps.h"
#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/mapping_keys.h"
#include "core/modules.h"
#include "core/row_marks.h"
#include "core/text.h"
#include "sessionfiles/section_writer.h"
#include "sessionfiles/session_disk.h"
#include "sessionfiles/step_codes.h"

namespace orvanta {

namespace {

constexpr std::array analyzeSections{
    Section::Step,        Section::Module,  Section::Strength,           Section::Weakness,
    Section::Opportunity, Section::Threats, Section::OpportunityMapping, Section::ThreatMapping};

constexpr auto analyzeSteps = [] {
    std::array<StepCode, countOf<AnalyzeStep> - 1> codes{};  // the source files have none
    for (auto next = codes.begin(); const StepControls& step : stepControls)
        if (step.panel) *next++ = {step.code, step.panel};
    return codes;
}();

void writeRows(SectionWriter& writer, Section section, const StatementList& list) {
    writer.open(section);
    for (int position = 1; position <= list.count(); ++position) {
        const Row& row = list.row(position);
        writer.line(row.key, rowFieldDelimiter, row.subItem, rowFieldDelimiter,
                    trimBlanks(row.text));
    }
    writer.close(section);
}

struct RowFields {
    std::string_view key, sourceLabel, text;
};

std::optional<RowFields> rowFieldsFrom(std::string_view line) {
    const auto fields = partsOf<3>(line, rowFieldDelimiter);
    if (!fields) return std::nullopt;
    const auto& [key, sourceLabel, text] = *fields;
    return RowFields{key, sourceLabel, trimBlanks(text)};
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

class AnalyzeReading {
public:
    AnalyzeReading(FrmMain& form, bool restoreStep) : m_form(form), m_restoreStep(restoreStep) {}

    void operator()(Section section, std::string_view line, std::string_view trimmed) {
        if (section == Section::Step) {
            if (m_restoreStep) showStep(m_form, analyzeSteps, trimmed);
            return;
        }
        if (section == Section::Module) return chooseModuleByWord(m_form, trimmed);
        const auto fields = rowFieldsFrom(line);
        if (!fields) return;
        if (const auto kind = kindOfSection(section)) addStatement(*kind, *fields);
        for (const MappingSide side : mappingSides)
            if (sideControls[side].section == section) addMappingRow(side, *fields);
    }

private:
    void addStatement(StatementKind kind, const RowFields& fields) {
        StatementList& main = listOf(m_form, Session::Analyze, kind);
        main.add({.key = std::string(fields.key),
                  .text = std::string(fields.text),
                  .image = imageOf(kind),
                  .largeImage = imageOf(kind),
                  .subItem = std::string(fields.sourceLabel)});
        // Opportunities and threats have mapping sections of their own.
        if (isMappable(kind))
            forEachCompanion(m_form, kind, [&](StatementList& list) { list.addLastOf(main); });
        if (fields.key.empty()) return;
        const double number = leadingNumber(fields.key.substr(1));
        std::int32_t& count = keyCount(m_form, kind);
        if (number > count) count = narrowed<std::int32_t>(std::nearbyint(number));
    }

    void addMappingRow(MappingSide side, const RowFields& fields) {
        Row row{.key = std::string(fields.key),
                .text = std::string(fields.text),
                .subItem = std::string(fields.sourceLabel)};
        StatementList& list = mappingList(m_form, side);
        const bool isMapped = mappingKeyFrom(fields.key).isMapped;
        const StatementKind parentKind = sideControls[side].parentKind;
        const StatementKind kind = isMapped ? mappedKindOf(fields.key) : parentKind;
        row.image = row.largeImage = imageOf(kind);
        if (!isMapped) {
            ++m_parentRows[side];
            if (trimBlanks(row.key).empty())
                row.key = letterOf(kind) + std::to_string(m_parentRows[side]);
        }
        list.add(std::move(row));
        if (isMapped) markMappedRow(list, list.count(), kind);
    }

    FrmMain& m_form;
    const bool m_restoreStep;
    PerSide<int> m_parentRows;
};

}  // namespace

std::string analyzeBytes(const FrmMain& form, bool withStep) {
    SectionWriter writer;
    if (withStep) writer.section(Section::Step, stepCodeOnScreen(form, analyzeSteps));
    writer.section(Section::Module, chosenModuleWord(form));
    for (const StatementKind kind : statementKinds)
        writeRows(writer, kindControls[kind].section, listOf(form, Session::Analyze, kind));
    for (const SideControls& side : sideControls)
        writeRows(writer, side.section, form.*side.mapping.list);
    return writer.finish();
}

void saveAnalyzeData(Program& program, const std::string& fileName, bool TmpFlag) {
    const BestEffort step;
    step([&] {
        writeSession(program.platform, fileName, analyzeBytes(program.frmMain, TmpFlag), TmpFlag);
    });
}

void loadAnalyzeData(Program& program, const std::string& fileName, bool restoreStep) {
    // A step stands in the temporary file alone.
    readSession(program, fileName, restoreStep, analyzeSections,
                AnalyzeReading(program.frmMain, restoreStep));
}

}  // namespace orvanta
