#include "sessionfiles/brainstorm_file.h"

#include <array>

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

/// How a kind's statements stand in the file. Uneven on purpose: on writing only strengths are
/// escaped, on reading all but threats are unescaped; the format is fixed.
struct Escaping {
    bool written, read;
};

constexpr std::array<Escaping, 4> escapings{
    {{true, true}, {false, true}, {false, true}, {false, false}}};

const Escaping& escapingOf(StatementKind kind) { return escapings[indexOf(kind)]; }

constexpr std::array knownSections{Section::Step,     Section::Name,     Section::Module,
                                   Section::Strength, Section::Weakness, Section::Opportunity,
                                   Section::Threats};

constexpr std::array<StepCode, 4> stepCodes{{
    {"ST", &FrmMain::fraStrength},
    {"WE", &FrmMain::fraWeakness},
    {"OP", &FrmMain::fraOpportunity},
    {"TH", &FrmMain::fraThreats},
}};

std::string writtenText(StatementKind kind, const Row& row) {
    const std::string_view text = trimBlanks(row.text);
    return escapingOf(kind).written ? replaceAll(text, "<", "&lt;") : std::string(text);
}

std::string readText(StatementKind kind, std::string_view trimmed) {
    return escapingOf(kind).read ? replaceAll(trimmed, "&lt;", "<") : std::string(trimmed);
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
        if (const auto section = m_open.takeLine(trimmed, knownSections))
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
        } else if (const KindControls* controls = kindOfSection(section)) {
            addRow(*controls, trimmed);
        }
    }

    void addRow(const KindControls& controls, std::string_view trimmed) {
        Row row{.key = getNextKey(m_program, controls.kind),
                .text = readText(controls.kind, trimmed),
                .image = imageOf(controls.kind),
                .largeImage = imageOf(controls.kind)};
        if (!m_intoBrainstorm) row.subItem = m_sourceLabel;
        const ListMember list = m_intoBrainstorm ? controls.brainstormList : controls.analyzeList;
        (m_form.*list).add(std::move(row));
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
    for (const KindControls& controls : kindControls) {
        const StatementList& list = form.*controls.brainstormList;
        writer.open(controls.section);
        for (int position = 1; position <= list.count(); ++position)
            writer.line(writtenText(controls.kind, list.row(position)));
        writer.close(controls.section);
    }
    return writer.finish();
}

void saveBrainstormData(Program& program, const std::string& fileName, bool TmpFlag) {
    const CarryOn step;
    step([&] {
        writeSession(program.platform.disk, fileName, brainstormBytes(program.frmMain, TmpFlag),
                     TmpFlag);
    });
}

void loadBrainstormData(Program& program, const std::string& fileName, std::string_view target,
                        bool restoreStep) {
    // A step stands in the temporary file alone.
    readSession(program, fileName, restoreStep, Reading(program, target == "BS", restoreStep));
}

}  // namespace orvanta
