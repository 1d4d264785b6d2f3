// The input is lines of the test driver, played on the whole program in memory; files of a team, a
// bank and the Analyze texts lie ready. Each line has an answer, of events or of an error. A line
// that was refused changes nothing, and the lists stay sound. Until Undo or Redo is pressed or an
// analyze file is opened, which may lack rows, the picking lists hold what the main lists hold and
// each mapped row stands under its parent.

#include "core/kind_controls.h"
#include "core/mapping_keys.h"
#include "core/mapping_side.h"
#include "core/statement_lists.h"
#include "core/text.h"
#include "fuzzed_program.h"

namespace orvanta::fuzz {

namespace {

constexpr const char* bank =
    "<STRENGTH>\n<QUESTION>\na\n<QUESTION>\nb\n</STRENGTH>\n"
    "<WEAKNESS>\n<QUESTION>\na\n<QUESTION>\nb\n</WEAKNESS>\n"
    "<OPPORTUNITY>\n<QUESTION>\na\n<QUESTION>\nb\n</OPPORTUNITY>\n"
    "<THREATS>\n<QUESTION>\na\n<QUESTION>\nb\n</THREATS>\n";
constexpr const char* texts =
    "<QUESTION>\n1\n<QUESTION>\n2\n<QUESTION>\n3\n<QUESTION>\n4\n<QUESTION>\n5\n<QUESTION>\n6\n"
    "<QUESTION>\n";
constexpr const char* statements =
    "<NAME>\nDana\n</NAME>\n<MODULE>\nGBS\n</MODULE>\n<STRENGTH>\nBrand\nFleet\n</STRENGTH>\n"
    "<WEAKNESS>\nPrice\nSlow\n</WEAKNESS>\n<OPPORTUNITY>\nExport\nOnline\n</"
    "OPPORTUNITY>\n<THREATS>\nStrike\nRivals\n"
    "</THREATS>\n";

constexpr int mostLines = 80;

/// What a person could see change, in short.
std::string lookOf(FrmMain& form) {
    std::string look;
    for (const ListMember member : statementLists) {
        const StatementList& list = form.*member;
        look += std::to_string(list.selected()) + "\n";
        for (int position = 1; position <= list.count(); ++position)
            look += list.row(position).key + "\t" + list.row(position).text + "\n";
    }
    for (Control* control : form.controls.all()) {
        look += control->isVisible() ? '1' : '0';
        if (const auto* box = control->as<TextBox>()) look += box->text() + "\n";
    }
    for (const auto* records : {&form.undoRecords, &form.redoRecords})
        for (const std::string& entry : *records) look += entry + "\n";
    return look + form.dragSection + std::to_string(form.questionStep) +
           std::to_string(form.editFlag) + std::to_string(form.editAFlag);
}

/// Each mapped row belongs to the row above it that is none.
void requireParents(const StatementList& list) {
    std::string parent;
    for (int position = 1; position <= list.count(); ++position) {
        const MappingKey key = mappingKeyFrom(list.row(position).key);
        if (!key.isMapped)
            parent = list.row(position).key;
        else
            require(key.parent == parent, "a mapped row stands under its parent");
    }
}

void requireInStep(FrmMain& form) {
    for (const StatementKind kind : {StatementKind::Strength, StatementKind::Weakness})
        forEachCompanion(form, kind, [&](StatementList& companion) {
            require(textsOf(companion) == textsOf(listOf(form, Session::Analyze, kind)),
                    "a picking list holds what the main list holds");
        });
    for (const SideControls& side : sideControls) requireParents(form.*side.mapping.list);
}

bool names(const driver::Json& line, const char* field, const char* value) {
    const auto found = line.find(field);
    return found != line.end() && *found == value;
}

/// True if it is a line behind which rows may be out of step.
bool bringsOutOfStep(const driver::Json& line) {
    return names(line, "control", "cmdUndo") || names(line, "control", "cmdRedo") ||
           names(line, "button", "OAFile");
}

class Play {
public:
    Play() {
        m_fuzzed.disk.files["app/gbsquestions.txt"] = bank;
        m_fuzzed.disk.files["app/analyzequestions.txt"] = texts;
        for (const char* member : {"a", "b", "dana", "lee", "one"})
            m_fuzzed.disk.files["docs/" + std::string(member) + ".bsm"] = statements;
    }

    /// False once the program has ended.
    bool take(const std::string& text) {
        const driver::Json line = driver::Json::parse(text, nullptr, false);
        if (line.is_object() && names(line, "do", "kill")) return true;
        const std::string before = lookOf(m_fuzzed.form());
        const driver::Json answer = m_fuzzed.answerTo(text);
        require(answer.contains("error") != answer.contains("events"), "a line has one answer");
        if (answer.contains("error")) {
            require(lookOf(m_fuzzed.form()) == before, "a refused line changes nothing");
            return true;
        }
        m_inStep = m_inStep && !bringsOutOfStep(line);
        requireSoundLists(m_fuzzed.form());
        if (m_inStep) requireInStep(m_fuzzed.form());
        return answer["events"].empty() || answer["events"].back()["event"] != "exit";
    }

private:
    FuzzedProgram m_fuzzed;
    bool m_inStep = true;
};

}  // namespace

void tryInput(std::string_view bytes) {
    Play play;
    LineSource lines(bytes);
    for (int played = 0; played < mostLines; ++played) {
        const auto line = lines.next();
        if (!line || !play.take(std::string(*line))) return;
    }
}

}  // namespace orvanta::fuzz
