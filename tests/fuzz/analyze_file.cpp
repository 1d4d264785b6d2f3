// An analyze file of any bytes is read, or ends at a key that stands twice or counts too far. The
// picking lists hold what the main lists hold, position by position, a mapping row has the looks
// that its key tells, and the next key is beyond all that were read. What is written from the
// lists is read to its end, as the same rows and key counters, and is written the same again.

#include "sessionfiles/analyze_file.h"

#include <algorithm>

#include "core/kind_controls.h"
#include "core/mapping_keys.h"
#include "core/mapping_side.h"
#include "core/statement_lists.h"
#include "core/text.h"
#include "fuzzed_program.h"

namespace orvanta::fuzz {

namespace {

constexpr const char* path = "docs/team.aze";

class ReadFile : public FuzzedProgram {
public:
    explicit ReadFile(std::string bytes) {
        disk.files[path] = std::move(bytes);
        failure = failureOf([&] { loadAnalyzeData(program(), path, true); });
        requireSoundLists(form());
    }

    int failure;
};

bool isSame(const Row& row, const Row& other) {
    return row.key == other.key && row.text == other.text && row.image == other.image &&
           row.subItem == other.subItem && row.colour == other.colour && row.indent == other.indent;
}

bool isSame(const StatementList& list, const StatementList& other) {
    if (list.count() != other.count()) return false;
    for (int position = 1; position <= list.count(); ++position)
        if (!isSame(list.row(position), other.row(position))) return false;
    return true;
}

void requireLooks(const StatementList& mappingList, StatementKind parentKind) {
    for (int position = 1; position <= mappingList.count(); ++position) {
        const Row& row = mappingList.row(position);
        const auto dashes = std::ranges::count(row.key, '-');
        const bool ofStrength = row.key.find("-S") != row.key.npos;
        const int image = dashes != 1 ? imageOf(parentKind) : ofStrength ? 1 : 2;
        require(row.image == image, "a mapping row has the picture that its key tells");
        require(row.indent == (dashes == 1 ? 2 : 0) && row.colour.has_value() == (dashes == 1),
                "mapped rows are coloured and indented, and no others");
        require(!trimBlanks(row.key).empty(), "no row of a mapping list is without a key");
    }
}

/// A statement that is added later must find its key free.
void requireCounted(FrmMain& form, StatementKind kind) {
    const StatementList& list = listOf(form, Session::Analyze, kind);
    for (int position = 1; position <= list.count(); ++position) {
        const std::string& key = list.row(position).key;
        const auto number = positionFrom(std::string_view(key).substr(key.empty() ? 0 : 1));
        if (number)
            require(keyCount(form, kind) >= *number, "keys are counted from the highest one on");
    }
}

void requireSound(FrmMain& form) {
    for (const StatementKind kind : statementKinds) requireCounted(form, kind);
    for (const StatementKind kind : statementKinds)
        if (isMappable(kind))
            forEachCompanion(form, kind, [&](StatementList& companion) {
                require(isSame(companion, listOf(form, Session::Analyze, kind)),
                        "a picking list holds what the main list holds");
            });
    for (const SideControls& side : sideControls)
        requireLooks(form.*side.mapping.list, side.parentKind);
}

}  // namespace

void tryInput(std::string_view bytes) {
    ReadFile file{std::string(bytes)};
    require(isNoneOr({ErrorNumber::KeyNotUnique, ErrorNumber::Overflow}, file.failure),
            "a file ends at a key or is read");
    requireSound(file.form());
    const std::string written = analyzeBytes(file.form(), true);
    ReadFile again(written);
    // A key that counts too far has been added by then, and stops the next reading as well.
    if (file.failure == static_cast<int>(ErrorNumber::Overflow)) return;
    require(again.failure == 0, "what was written is read to its end");
    require(analyzeBytes(again.form(), true) == written, "what was read is written the same");
    for (const ListMember list : statementLists)
        require(isSame(again.form().*list, file.form().*list), "the rows are the same again");
    for (const StatementKind kind : statementKinds)
        require(keyCount(again.form(), kind) == keyCount(file.form(), kind),
                "the next keys are the same again");
}

}  // namespace orvanta::fuzz
