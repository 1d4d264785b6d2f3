#include "sessionfiles/brainstorm_file.h"

#include <array>

#include "core/failures.h"
#include "core/modules.h"
#include "core/section_tags.h"
#include "core/text.h"
#include "core/workspace.h"
#include "sessionfiles/section_writer.h"
#include "sessionfiles/step_codes.h"

namespace orvanta {

namespace {

using List = StatementList FrmMain::*;

enum class Escape { None, LessThan };

/// What differs between the four statement sections. Uneven on purpose: on writing only
/// strengths are escaped, on reading all but threats are unescaped; the format is fixed.
struct StatementSection {
    Section section;
    StatementKind kind;
    List brainstormList, analyzeList;
    Escape written, read;
};

constexpr std::array<StatementSection, 4> statementSections{{
    {Section::Strength, StatementKind::Strength, &FrmMain::lvBStrength, &FrmMain::lvAStrength,
     Escape::LessThan, Escape::LessThan},
    {Section::Weakness, StatementKind::Weakness, &FrmMain::lvBWeakness, &FrmMain::lvAWeakness,
     Escape::None, Escape::LessThan},
    {Section::Opportunity, StatementKind::Opportunity, &FrmMain::lvBOpportunity,
     &FrmMain::lvAOpportunity, Escape::None, Escape::LessThan},
    {Section::Threats, StatementKind::Threat, &FrmMain::lvBThreat, &FrmMain::lvAThreat,
     Escape::None, Escape::None},
}};

constexpr std::array knownSections{Section::Step,     Section::Name,     Section::Module,
                                   Section::Strength, Section::Weakness, Section::Opportunity,
                                   Section::Threats};

constexpr std::array<StepCode, 4> stepCodes{{
    {"ST", &FrmMain::fraStrength},
    {"WE", &FrmMain::fraWeakness},
    {"OP", &FrmMain::fraOpportunity},
    {"TH", &FrmMain::fraThreats},
}};

std::string writtenText(const StatementSection& section, const Row& row) {
    const std::string_view text = trimBlanks(row.text);
    return section.written == Escape::LessThan ? replaceAll(text, "<", "&lt;") : std::string(text);
}

class Reading {
public:
    Reading(Program& program, bool intoBrainstorm, bool restoreStep)
        : m_program(program),
          m_form(program.frmMain),
          m_intoBrainstorm(intoBrainstorm),
          m_restoreStep(restoreStep) {}

    void take(std::string_view line) {
        const std::string_view trimmed = trimBlanks(line);
        if (const auto tag = tagOf(trimmed, knownSections))
            m_open.take(*tag);
        else if (const auto section = m_open.section())
            takeData(*section, line, trimmed);
    }

private:
    void takeData(Section section, std::string_view line, std::string_view trimmed) {
        if (section == Section::Step) {
            if (m_restoreStep) showStep(m_form, stepCodes, trimmed);
        } else if (section == Section::Name) {
            m_form.txtName.setText(std::string(line));
            m_sourceLabel = "[" + std::string(trimmed) + "]: ";
        } else if (section == Section::Module) {
            chooseModuleByWord(m_form, trimmed);
        } else {
            for (const StatementSection& statements : statementSections)
                if (statements.section == section) addRow(statements, trimmed);
        }
    }

    void addRow(const StatementSection& section, std::string_view trimmed) {
        Row row{.key = getNextKey(m_program, section.kind),
                .text = section.read == Escape::LessThan ? replaceAll(trimmed, "&lt;", "<")
                                                         : std::string(trimmed),
                .image = imageOf(section.kind),
                .largeImage = imageOf(section.kind)};
        if (!m_intoBrainstorm) row.subItem = m_sourceLabel;
        (m_form.*(m_intoBrainstorm ? section.brainstormList : section.analyzeList))
            .add(std::move(row));
    }

    Program& m_program;
    FrmMain& m_form;
    const bool m_intoBrainstorm, m_restoreStep;
    OpenSection m_open;
    std::string m_sourceLabel;
};

}  // namespace

std::string brainstormBytes(const FrmMain& form, bool withStep) {
    SectionWriter writer;
    if (withStep) writer.section(Section::Step, stepOnScreen(form, stepCodes));
    writer.section(Section::Name, form.txtName.text());
    writer.section(Section::Module, chosenModuleWord(form));
    for (const StatementSection& section : statementSections) {
        const StatementList& list = form.*section.brainstormList;
        writer.open(section.section);
        for (int position = 1; position <= list.count(); ++position)
            writer.line(writtenText(section, list.row(position)));
        writer.close(section.section);
    }
    return writer.bytes();
}

void saveBrainstormData(Program& program, const std::string& fileName, bool TmpFlag) {
    const CarryOn step;
    step([&] {
        program.platform.disk.replace(fileName, brainstormBytes(program.frmMain, TmpFlag));
    });
}

void loadBrainstormData(Program& program, const std::string& fileName, std::string_view target,
                        bool restoreStep) {
    if (!fileExists(program, fileName)) return;
    const std::string bytes = program.platform.disk.read(fileName);
    Reading reading(program, target == "BS", restoreStep);
    LineSource lines(bytes);
    while (const auto line = lines.next()) reading.take(*line);
}

}  // namespace orvanta
