#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "analysis_bench.h"
#include "app/window_events.h"
#include "core/statement_lists.h"
#include "reference_session.h"

namespace orvanta::test {

void PrintTo(const ReferenceRow& row, std::ostream* out) {
    *out << '{' << row.key << ", \"" << row.text << "\", " << row.image << '/' << row.largeImage
         << ", \"" << row.subItem << "\", " << row.mark << '}';
}

namespace {

constexpr int longestList = 8;
constexpr int longestMappingList = 16;
const std::string kinds = "SWOT";

// The numbers of this engine are fixed by the language; those of its distributions are not.
class Dice {
public:
    explicit Dice(int seed) : m_engine(static_cast<unsigned>(seed)) {}
    int roll(int sides) { return static_cast<int>(m_engine() % static_cast<unsigned>(sides)); }
    int position(int count) { return roll(count) + 1; }
    template <class Values>
    auto of(const Values& values) {
        return values[static_cast<std::size_t>(roll(static_cast<int>(values.size())))];
    }

private:
    std::mt19937 m_engine;
};

std::string markOf(const Row& row) {
    if (!row.colour) return row.indent == 0 ? "" : "indented without a colour";
    if (row.indent != 2) return "coloured without an indent";
    return *row.colour == Colour{0, 120, 60}  ? "green"
           : *row.colour == Colour{200, 0, 0} ? "red"
                                              : "in another colour";
}

ReferenceRow shown(const Row& row) {
    return {row.key, row.text, row.image, row.largeImage, row.subItem, markOf(row)};
}

bool matches(const Row& row, const ReferenceRow& expected) {
    return row.key == expected.key && row.text == expected.text && row.image == expected.image &&
           row.largeImage == expected.largeImage && row.subItem == expected.subItem &&
           markOf(row) == expected.mark;
}

/// The program and the yardstick side by side: each change goes to both. They begin with the
/// statements of two brainstorm files, copied to the mapping lists.
class SideBySide {
public:
    SideBySide() {
        bench.next(1);
        for (const auto member : statementLists) {
            StatementList& list = form.*member;
            reference.lists[list.name()] = shownRows(list);
            m_pairs.emplace_back(&list, &reference.lists[list.name()]);
        }
        for (const char kind : kinds) reference.lastNumbers[kind] = 3;
    }

    void add(char module, char kind, const std::string& typed) {
        TextBox& box = boxOf(module, kind);
        box.setText(typed);
        characterTyped(program, box, '\r');
        reference.add(module, kind, typed);
    }
    void edit(char module, char kind, int position, const std::string& typed) {
        select(ReferenceSession::mainList(module, kind), position);
        bench.answerEdit(typed);
        release(module, kind, "Edit");
        reference.edit(module, kind, position, typed);
    }
    void remove(char module, char kind, int position) {
        select(ReferenceSession::mainList(module, kind), position);
        release(module, kind, "Remove");
        reference.remove(module, kind, position);
    }
    void move(char module, char kind, int position, int onto) {
        droppedOn(program, select(ReferenceSession::mainList(module, kind), position), onto);
        reference.move(module, kind, position, onto);
    }
    void map(char side, char kind, int picked, int onto) {
        draggedOver(program, select(ReferenceSession::pickingList(side, kind), picked));
        droppedOn(program, bench.list(ReferenceSession::mappingList(side)), onto);
        reference.map(side, kind, picked, onto);
    }
    void dragBack(char side, int position, char kind) {
        select(ReferenceSession::mappingList(side), position);
        droppedOn(program, bench.list(ReferenceSession::pickingList(side, kind)), 0);
        reference.dragBack(side, position, kind);
    }
    void unmap(char side, int position) {
        select(ReferenceSession::mappingList(side), position);
        side == 'O' ? removeOpportunityMappingChosen(program) : removeThreatMappingChosen(program);
        reference.unmap(side, position);
    }
    void undo() {
        undoClicked(program);
        reference.undo();
    }
    void redo() {
        redoClicked(program);
        reference.redo();
    }

    int rowsOf(const std::string& list) { return bench.list(list).count(); }

    void expectNoDifference() {
        for (const auto& [list, expected] : m_pairs)
            if (!isSame(*list, *expected)) {
                EXPECT_EQ(shownRows(*list), *expected) << list->name();
            }
        EXPECT_EQ(bench.undoRecords(), reference.undoStack);
        EXPECT_EQ(bench.redoRecords(), reference.redoStack);
    }

    /// Drops what the driver has written down, which would pile up.
    void forgetEvents() {
        bench.play({{"do", "mute"}, {"on", false}});
        bench.events();
    }

    AnalysisBench bench;
    Program& program = bench.program();
    FrmMain& form = bench.form();
    ReferenceSession reference;

private:
    static ReferenceRows shownRows(const StatementList& list) {
        ReferenceRows rows;
        for (int position = 1; position <= list.count(); ++position)
            rows.push_back(shown(list.row(position)));
        return rows;
    }
    static bool isSame(const StatementList& list, const ReferenceRows& expected) {
        if (list.count() != static_cast<int>(expected.size())) return false;
        for (int position = 1; position <= list.count(); ++position)
            if (!matches(list.row(position), expected[static_cast<std::size_t>(position) - 1]))
                return false;
        return true;
    }

    StatementList& select(const std::string& name, int position) {
        StatementList& list = bench.list(name);
        list.select(position);
        return list;
    }
    TextBox& boxOf(char module, char kind) {
        std::string name = "txt" + ReferenceSession::mainList(module, kind).substr(2);
        if (module == 'B') name.erase(3, 1);  // only the boxes of one module carry its letter
        return bench.box(name);
    }
    void release(char module, char kind, const std::string& verb) {
        const std::string name = std::string(1, module) + kind + verb;
        buttonReleased(program, bench.button(name));
    }

    std::vector<std::pair<StatementList*, ReferenceRows*>> m_pairs;
};

const Texts ordinaryTexts{"Brand", "Fleet", "brand", " Stock ", "Price", "a - b", "1|2,", " "};
const Texts allTexts{"Brand", "Fleet", "brand", " Stock ",          "Price",
                     "a - b", "1|2,",  " ",     "left<<!~!>>right", "O1-S1"};

/// Adds, edits or removes somewhere. Lists are kept short, so that rows meet often.
void changeAStatement(SideBySide& both, Dice& dice, const Texts& texts) {
    const char module = dice.of(std::string("BA")), kind = dice.of(kinds);
    const int count = both.rowsOf(ReferenceSession::mainList(module, kind));
    const int act = count == 0 ? 0 : count >= longestList ? 2 : dice.roll(3);
    if (act == 0) both.add(module, kind, dice.of(texts));
    if (act == 1) both.edit(module, kind, dice.position(count), dice.of(texts));
    if (act == 2) both.remove(module, kind, dice.position(count));
}

void moveARow(SideBySide& both, Dice& dice) {
    const char module = dice.of(std::string("BA")), kind = dice.of(std::string("OT"));
    const int count = both.rowsOf(ReferenceSession::mainList(module, kind));
    if (count != 0) both.move(module, kind, dice.position(count), dice.position(count));
}

void changeAMapping(SideBySide& both, Dice& dice) {
    const char side = dice.of(std::string("OT")), kind = dice.of(std::string("SW"));
    const int rows = both.rowsOf(ReferenceSession::mappingList(side));
    const int picked = both.rowsOf(ReferenceSession::pickingList(side, kind));
    if (rows == 0) return;
    const int act = rows >= longestMappingList ? 1 + dice.roll(2) : dice.roll(3);
    if (act == 0 && picked != 0) both.map(side, kind, dice.position(picked), dice.position(rows));
    if (act == 1) both.dragBack(side, dice.position(rows), kind);
    if (act == 2) both.unmap(side, dice.position(rows));
}

void doAnything(SideBySide& both, Dice& dice) {
    const int act = dice.roll(100);
    if (act < 45) return changeAStatement(both, dice, allTexts);
    if (act < 52) return moveARow(both, dice);
    if (act < 65) return changeAMapping(both, dice);
    if (act < 85) return both.undo();
    both.redo();
}

struct NameOfSeed {
    std::string operator()(const testing::TestParamInfo<int>& seed) const {
        return "Seed" + std::to_string(seed.param);
    }
};

class RandomChanges : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(From, RandomChanges, testing::Range(1, 11), NameOfSeed());

TEST_P(RandomChanges, LeaveListsAndJournalAsTheRulesTell) {
    SideBySide both;
    Dice dice(GetParam());
    for (int step = 1; step <= 10'000; ++step) {
        doAnything(both, dice);
        both.expectNoDifference();
        if (HasFailure()) FAIL() << "behind step " << step;
        if (step % 100 == 0) both.forgetEvents();
    }
}

/// What an undo and its redo give back: all texts, and the keys of the Analyze lists, whose
/// rows return under their own.
ShownRows givenBack(SideBySide& both) {
    ShownRows rows;
    for (const char module : std::string("BA"))
        for (const char kind : kinds) {
            const std::string name = ReferenceSession::mainList(module, kind);
            rows.push_back({"of", name});
            for (const ShownRow& row : both.bench.rows(name))
                rows.push_back({module == 'B' ? "" : row.key, row.text});
        }
    return rows;
}

TEST_P(RandomChanges, AreThereAgainAfterAsManyRedosAsUndos) {
    SideBySide both;
    Dice dice(GetParam());
    for (int round = 1; round <= 300; ++round) {
        const int changes = dice.position(12), presses = dice.position(12);
        for (int i = 0; i < changes; ++i) changeAStatement(both, dice, ordinaryTexts);
        const ShownRows before = givenBack(both);
        for (int i = 0; i < presses; ++i) both.undo();
        for (int i = 0; i < presses; ++i) both.redo();
        ASSERT_EQ(givenBack(both), before) << "in round " << round;
        both.forgetEvents();
    }
}

}  // namespace
}  // namespace orvanta::test
