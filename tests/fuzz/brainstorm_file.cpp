// A brainstorm file of any bytes is read. Statements are single lines without blanks at their ends
// under keys that count from 1; the two modules read the same texts. What is written from them
// reads as the same and is written the same again, but for weaknesses and opportunities that
// spell a tag: those are not escaped.

#include "sessionfiles/brainstorm_file.h"

#include <algorithm>

#include "core/kind_controls.h"
#include "core/text.h"
#include "fuzzed_program.h"

namespace orvanta::fuzz {

namespace {

constexpr const char* path = "docs/session.bsm";

class ReadFile : public FuzzedProgram {
public:
    ReadFile(std::string bytes, const char* target) {
        disk.files[path] = std::move(bytes);
        loadBrainstormData(program(), path, target, true);
        requireSoundLists(form());
    }
};

void requireStatements(const StatementList& list, StatementKind kind) {
    for (int position = 1; position <= list.count(); ++position) {
        const Row& row = list.row(position);
        require(row.key == letterOf(kind) + std::to_string(position), "keys count from 1");
        require(row.text.find_first_of("\r\n") == row.text.npos, "a statement is one line");
        require(row.text == trimBlanks(row.text), "a statement has no blanks at its ends");
        require(row.image == imageOf(kind) && row.largeImage == imageOf(kind),
                "a statement has the pictures of its kind");
    }
}

bool spellsATag(const std::string& text) {
    return text.size() > 2 && text.front() == '<' && text.back() == '>';
}

bool isWrittenSafely(const FrmMain& form) {
    for (const StatementKind kind : {StatementKind::Weakness, StatementKind::Opportunity})
        if (std::ranges::any_of(textsOf(listOf(form, Session::Brainstorm, kind)), spellsATag))
            return false;
    return true;
}

}  // namespace

void tryInput(std::string_view bytes) {
    ReadFile brainstorm(std::string(bytes), "BS"), analyze(std::string(bytes), "AZ");
    for (const StatementKind kind : statementKinds) {
        const StatementList& list = listOf(brainstorm.form(), Session::Brainstorm, kind);
        requireStatements(list, kind);
        requireStatements(listOf(analyze.form(), Session::Analyze, kind), kind);
        require(textsOf(list) == textsOf(listOf(analyze.form(), Session::Analyze, kind)),
                "both modules read the same texts");
    }
    if (!isWrittenSafely(brainstorm.form())) return;
    const std::string written = brainstormBytes(brainstorm.form(), true);
    ReadFile again(written, "BS");
    require(brainstormBytes(again.form(), true) == written, "what was read is written the same");
    for (const StatementKind kind : statementKinds)
        require(textsOf(listOf(again.form(), Session::Brainstorm, kind)) ==
                    textsOf(listOf(brainstorm.form(), Session::Brainstorm, kind)),
                "what was written reads as the same");
}

}  // namespace orvanta::fuzz
