#include "sessionfiles/brainstorm_file.h"

#include <array>

#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/modules.h"
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

constexpr PerKind<Escaping> escapings{{
    {StatementKind::Strength, {.written = true, .read = true}},
    {StatementKind::Weakness, {.written = false, .read = true}},
    {StatementKind::Opportunity, {.written = false, .read = true}},
    {StatementKind::Threat, {.written = false, .read = false}},
}};

constexpr std::array brainstormSections{Section::Step,     Section::Name,     Section::Module,
                                        Section::Strength, Section::Weakness, Section::Opportunity,
                                        Section::Threats};

constexpr auto brainstormSteps = [] {
    std::array<StepCode, countOf<StatementKind>> codes{};
    for (auto next = codes.begin(); const StatementKind kind : statementKinds)
        *next++ = {kindWords[kind].stepCode, kindControls[kind].questionPanel};
    return codes;
}();

std::string writtenText(StatementKind kind, const Row& row) {
    const std::string_view text = trimBlanks(row.text);
    return escapings[kind].written ? replaceAll(text, "<", "&lt;") : std::string(text);
}

std::string readText(StatementKind kind, std::string_view trimmed) {
    return escapings[kind].read ? replaceAll(trimmed, "&lt;", "<") : std::string(trimmed);
}

class BrainstormReading {
public:
    BrainstormReading(Program& program, Session into, bool restoreStep)
        : m_program(program), m_form(program.frmMain), m_into(into), m_restoreStep(restoreStep) {}

    void operator()(Section section, std::string_view line, std::string_view trimmed) {
        if (section == Section::Step) {
            if (m_restoreStep) showStep(m_form, brainstormSteps, trimmed);
        } else if (section == Section::Name) {
            m_form.txtName.setText(std::string(line));
            m_sourceLabel = "[" + std::string(trimmed) + "]: ";
        } else if (section == Section::Module) {
            chooseModuleByWord(m_form, trimmed);
        } else if (const auto kind = kindOfSection(section)) {
            addRow(*kind, trimmed);
        }
    }

private:
    void addRow(StatementKind kind, std::string_view trimmed) {
        Row row{.key = getNextKey(m_program, kind),
                .text = readText(kind, trimmed),
                .image = imageOf(kind),
                .largeImage = imageOf(kind)};
        if (m_into == Session::Analyze) row.subItem = m_sourceLabel;
        listOf(m_form, m_into, kind).add(std::move(row));
    }

    Program& m_program;
    FrmMain& m_form;
    const Session m_into;
    const bool m_restoreStep;
    std::string m_sourceLabel;
};

}  // namespace

std::string brainstormBytes(const FrmMain& form, bool withStep) {
    SectionWriter writer;
    if (withStep) writer.section(Section::Step, stepCodeOnScreen(form, brainstormSteps));
    writer.section(Section::Name, form.txtName.text());
    writer.section(Section::Module, chosenModuleWord(form));
    for (const StatementKind kind : statementKinds) {
        const StatementList& list = listOf(form, Session::Brainstorm, kind);
        writer.open(kindControls[kind].section);
        for (int position = 1; position <= list.count(); ++position)
            writer.line(writtenText(kind, list.row(position)));
        writer.close(kindControls[kind].section);
    }
    return writer.finish();
}

void saveBrainstormData(Program& program, const std::string& fileName, bool TmpFlag) {
    const BestEffort step;
    step([&] {
        writeSession(program.platform, fileName, brainstormBytes(program.frmMain, TmpFlag),
                     TmpFlag);
    });
}

void loadBrainstormData(Program& program, const std::string& fileName, std::string_view target,
                        bool restoreStep) {
    const Session into = target == "BS" ? Session::Brainstorm : Session::Analyze;
    // A step stands in the temporary file alone.
    readSession(program, fileName, restoreStep, brainstormSections,
                BrainstormReading(program, into, restoreStep));
}

}  // namespace orvanta
