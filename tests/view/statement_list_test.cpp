#include "view/statement_list.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "bench.h"
#include "failure_of.h"

namespace orvanta::test {
namespace {

Row rowOf(const std::string& key) { return {.key = key, .text = "of " + key}; }

class StatementListOfThree : public testing::Test {
protected:
    StatementListOfThree() {
        for (const char* key : {"S1", "S2", "S3"}) list.add(rowOf(key));
    }
    ControlSet controls;
    StatementList list{controls, "list"};
};

const ShownRows threeRows{{"S1", "of S1"}, {"S2", "of S2"}, {"S3", "of S3"}};

TEST_F(StatementListOfThree, GivesItsRowsByPositionAndByKey) {
    EXPECT_EQ(rowsOf(list), threeRows);
    EXPECT_EQ(list.positionOf("S1"), 1);
    EXPECT_EQ(list.positionOf("S3"), 3);
    EXPECT_EQ(list.positionOf("S4"), 0);
}

TEST_F(StatementListOfThree, TakesARowAtAnyPlace) {
    list.insert(1, rowOf("first"));
    list.insert(3, rowOf("inside"));
    list.insert(6, rowOf("last"));
    EXPECT_EQ(rowsOf(list), (ShownRows{{"first", "of first"},
                                       {"S1", "of S1"},
                                       {"inside", "of inside"},
                                       {"S2", "of S2"},
                                       {"S3", "of S3"},
                                       {"last", "of last"}}));
    EXPECT_EQ(list.positionOf("S2"), 4);
}

TEST_F(StatementListOfThree, RefusesPlacesBesideItself) {
    EXPECT_EQ(failureOf([&] { list.insert(0, {}); }), indexOutOfBounds);
    EXPECT_EQ(failureOf([&] { list.insert(5, {}); }), indexOutOfBounds);
    for (const int position : {-1, 0, 4}) {
        EXPECT_EQ(failureOf([&] { list.row(position); }), indexOutOfBounds) << position;
        EXPECT_EQ(failureOf([&] { list.remove(position); }), indexOutOfBounds) << position;
        EXPECT_EQ(failureOf([&] { list.setText(position, "x"); }), indexOutOfBounds) << position;
        EXPECT_EQ(failureOf([&] { list.setKey(position, "x"); }), indexOutOfBounds) << position;
    }
    EXPECT_EQ(failureOf([&] { list.select(4); }), indexOutOfBounds);
    EXPECT_EQ(failureOf([&] { list.select(-1); }), indexOutOfBounds);
    EXPECT_EQ(rowsOf(list), threeRows);
}

TEST_F(StatementListOfThree, RefusesAKeyThatItHolds) {
    EXPECT_EQ(failureOf([&] { list.add(rowOf("S2")); }), keyNotUnique);
    EXPECT_EQ(failureOf([&] { list.setKey(1, "S2"); }), keyNotUnique);
    EXPECT_EQ(rowsOf(list), threeRows);
}

TEST_F(StatementListOfThree, TellsKeysApartByLetterCase) {
    list.add(rowOf("s2"));
    EXPECT_EQ(list.positionOf("s2"), 4);
    EXPECT_EQ(list.positionOf("S2"), 2);
}

TEST_F(StatementListOfThree, TakesAnyNumberOfRowsWithoutAKey) {
    list.add({});
    list.add({});
    list.setKey(1, "");
    EXPECT_EQ(list.count(), 5);
    EXPECT_EQ(list.positionOf(""), 0);
}

TEST_F(StatementListOfThree, LetsARowKeepItsOwnKey) {
    list.setKey(2, "S2");
    EXPECT_EQ(list.positionOf("S2"), 2);
}

TEST_F(StatementListOfThree, TakesAKeyAgainThatWasGivenUp) {
    list.setKey(2, "S9");
    list.remove(1);
    list.add(rowOf("S2"));
    list.add(rowOf("S1"));
    EXPECT_EQ(list.positionOf("S9"), 1);
    EXPECT_EQ(list.positionOf("S2"), 3);
    EXPECT_EQ(list.positionOf("S1"), 4);
}

TEST_F(StatementListOfThree, FindsItsRowsByTheEndOfTheirKeys) {
    for (const char* key : {"O1-S2", "", "2", "O12", "O1-\xE9"}) list.add(rowOf(key));
    const auto found = [&](const char* ending) {
        std::vector<int> positions;
        for (int from = 1; (from = list.findKeyEnding(ending, from)) != 0; ++from)
            positions.push_back(from);
        return positions;
    };
    EXPECT_EQ(found("-S2"), (std::vector{4}));
    EXPECT_EQ(found("S2"), (std::vector{2, 4}));
    EXPECT_EQ(found("2"), (std::vector{2, 4, 6, 7}));
    EXPECT_EQ(found(""), (std::vector{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(found("\xE9"), (std::vector{8}));
    EXPECT_EQ(found("Q12"), std::vector<int>());
}

TEST_F(StatementListOfThree, FindsARowByTheEndOfItsNewKeyAlone) {
    list.setKey(2, "S12");
    EXPECT_EQ(list.findKeyEnding("12", 1), 2);
    EXPECT_EQ(list.findKeyEnding("S2", 1), 0);
}

TEST_F(StatementListOfThree, SelectsNothingByItself) {
    EXPECT_EQ(list.selected(), 0);
    EXPECT_EQ(list.selectedRow(), nullptr);
}

TEST_F(StatementListOfThree, KeepsTheSelectedRowWhereverItMoves) {
    list.select(2);
    list.insert(1, {});
    EXPECT_EQ(list.selected(), 3);
    list.remove(1);
    EXPECT_EQ(list.selected(), 2);
    EXPECT_EQ(list.selectedRow()->key, "S2");
}

TEST_F(StatementListOfThree, SelectsTheRowThatTakesThePlaceOfARemovedOne) {
    list.select(2);
    list.remove(2);
    EXPECT_EQ(list.selectedRow()->key, "S3");
}

TEST_F(StatementListOfThree, SelectsTheNewLastRowBehindTheRemovalOfTheLast) {
    list.select(3);
    list.remove(3);
    EXPECT_EQ(list.selectedRow()->key, "S2");
}

TEST_F(StatementListOfThree, SelectsNothingOnceItIsEmpty) {
    list.select(1);
    for (int i = 0; i < 3; ++i) list.remove(1);
    EXPECT_EQ(list.selected(), 0);
}

TEST_F(StatementListOfThree, SelectsNothingOnceItWasCleared) {
    list.select(2);
    list.clear();
    EXPECT_EQ(list.selected(), 0);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.positionOf("S1"), 0);
}

TEST_F(StatementListOfThree, CanBeLeftWithNothingSelected) {
    list.select(2);
    list.select(0);
    EXPECT_EQ(list.selected(), 0);
}

TEST(MappingList, SelectsNothingBehindTheRemovalOfItsSelectedRow) {
    ControlSet controls;
    StatementList list(controls, "list", AfterRemoval::SelectNone);
    for (const char* key : {"O1", "O2", "O3"}) list.add(rowOf(key));
    list.select(2);
    list.remove(3);
    EXPECT_EQ(list.selectedRow()->key, "O2");
    list.remove(2);
    EXPECT_EQ(list.selected(), 0);
}

TEST_F(StatementListOfThree, ChangesARowWhereItStands) {
    list.setText(2, "changed");
    list.setColour(2, {1, 2, 3});
    list.setIndent(2, 4);
    const Row& row = list.row(2);
    EXPECT_EQ(row.key, "S2");
    EXPECT_EQ(row.text, "changed");
    EXPECT_EQ(row.colour, (Colour{1, 2, 3}));
    EXPECT_EQ(row.indent, 4);
}

/// Writes down what a list tells.
struct Listener : StatementListObserver {
    void rowAboutToBeInserted(int p) override { told.push_back("inserting " + std::to_string(p)); }
    void rowInserted(int p) override { told.push_back("inserted " + std::to_string(p)); }
    void rowAboutToBeRemoved(int p) override { told.push_back("removing " + std::to_string(p)); }
    void rowRemoved(int p) override { told.push_back("removed " + std::to_string(p)); }
    void rowChanged(int p) override { told.push_back("changed " + std::to_string(p)); }
    void aboutToBeCleared() override { told.push_back("clearing"); }
    void cleared() override { told.push_back("cleared"); }
    void selectionChanged() override { told.push_back("selected"); }
    Texts told;
};

TEST_F(StatementListOfThree, AddsAllRowsOfAnother) {
    StatementList other(controls, "other");
    other.add(rowOf("S0"));
    other.addAll(list);
    EXPECT_EQ(rowsOf(other),
              (ShownRows{{"S0", "of S0"}, {"S1", "of S1"}, {"S2", "of S2"}, {"S3", "of S3"}}));
    EXPECT_EQ(other.positionOf("S3"), 4);
    EXPECT_EQ(rowsOf(list), threeRows);
}

TEST_F(StatementListOfThree, RefusesAllRowsOfAnotherFromTheFirstKeyOnThatItHolds) {
    StatementList other(controls, "other");
    other.add(rowOf("S2"));
    EXPECT_EQ(failureOf([&] { other.addAll(list); }), keyNotUnique);
    EXPECT_EQ(rowsOf(other), (ShownRows{{"S2", "of S2"}, {"S1", "of S1"}}));
}

TEST_F(StatementListOfThree, AddsTheLastRowOfAnother) {
    StatementList other(controls, "other");
    other.addLastOf(list);
    EXPECT_EQ(rowsOf(other), (ShownRows{{"S3", "of S3"}}));
    EXPECT_EQ(failureOf([&] { other.addLastOf(list); }), keyNotUnique);
    list.setText(3, "New");
    other.setColour(1, {1, 2, 3});
    EXPECT_EQ(rowsOf(other), (ShownRows{{"S3", "of S3"}}));
    EXPECT_EQ(list.row(3).colour, std::nullopt);
}

TEST_F(StatementListOfThree, KeepsItsRowsWhenTheListTheyCameFromChanges) {
    StatementList other(controls, "other");
    other.addAll(list);
    list.setText(1, "New");
    list.setKey(2, "S9");
    list.setColour(3, {1, 2, 3});
    list.setIndent(3, 1);
    EXPECT_EQ(rowsOf(other), threeRows);
    EXPECT_EQ(other.positionOf("S2"), 2);
    EXPECT_EQ(other.positionOf("S9"), 0);
    EXPECT_EQ(list.positionOf("S9"), 2);
    EXPECT_EQ(list.positionOf("S2"), 0);
    EXPECT_EQ(other.row(3).colour, std::nullopt);
    EXPECT_EQ(other.row(3).indent, 0);
    list.clear();
    EXPECT_EQ(rowsOf(other), threeRows);
}

TEST_F(StatementListOfThree, LeavesTheListAloneWhoseRowsItTook) {
    StatementList other(controls, "other");
    other.addAll(list);
    other.setText(1, "New");
    other.setKey(2, "S9");
    other.remove(3);
    EXPECT_EQ(rowsOf(list), threeRows);
    EXPECT_EQ(list.positionOf("S2"), 2);
    EXPECT_EQ(rowsOf(other), (ShownRows{{"S1", "New"}, {"S9", "of S2"}}));
}

TEST_F(StatementListOfThree, FindsARowThatItChangedWhateverBecomesOfWhereItCameFrom) {
    StatementList other(controls, "other");
    other.addAll(list);
    other.setText(1, "New");
    list.setKey(1, "S9");
    EXPECT_EQ(other.positionOf("S1"), 1);
    EXPECT_EQ(other.positionOf("S9"), 0);
}

TEST_F(StatementListOfThree, TellsItsWatchersWhatHappens) {
    Listener listener;
    list.watch(listener);
    list.insert(2, rowOf("new"));
    list.setText(2, "x");
    list.select(2);
    list.select(2);
    list.remove(2);
    list.remove(1);
    list.clear();
    list.clear();
    EXPECT_EQ(listener.told,
              (Texts{"inserting 2", "inserted 2", "changed 2", "selected", "removing 2",
                     "removed 2", "selected", "removing 1", "removed 1", "clearing", "cleared"}));
}

TEST_F(StatementListOfThree, TellsNothingOfWhatItRefused) {
    Listener listener;
    list.watch(listener);
    failureOf([&] { list.add(rowOf("S1")); });
    failureOf([&] { list.insert(9, {}); });
    failureOf([&] { list.remove(9); });
    failureOf([&] { list.setKey(1, "S2"); });
    EXPECT_EQ(listener.told, Texts{});
}

/// Does to a list what no observer may do while it is told of a new row.
struct Meddler : StatementListObserver {
    Meddler(StatementList& list, std::function<void(StatementList&)> act)
        : list(list), act(std::move(act)) {
        list.watch(*this);
    }
    void rowInserted(int) override { act(list); }

    StatementList& list;
    std::function<void(StatementList&)> act;
};

using StatementListDeathTest = StatementListOfThree;

TEST_F(StatementListDeathTest, EndsTheProgramWhenAnObserverChangesTheListThatItIsToldOf) {
    const Meddler meddler(list, [](StatementList& told) { told.remove(1); });
    EXPECT_DEATH(list.add(rowOf("S4")), "changes the list that it is told of");
}

TEST_F(StatementListDeathTest, EndsTheProgramWhenAnObserverAddsAnotherWhileItIsTold) {
    Listener listener;
    const Meddler meddler(list, [&listener](StatementList& told) { told.watch(listener); });
    EXPECT_DEATH(list.add(rowOf("S4")), "is being told");
}

TEST_F(StatementListOfThree, MayBeReadByAnObserverThatIsToldOfIt) {
    int position = 0;
    const Meddler reader(list,
                         [&position](StatementList& told) { position = told.positionOf("S4"); });
    list.add(rowOf("S4"));
    EXPECT_EQ(position, 4);
}

TEST(LongList, FindsItsRowsAfterManyWereInsertedAtOnePlace) {
    ControlSet controls;
    StatementList list(controls, "list");
    list.add(rowOf("first"));
    list.add(rowOf("last"));
    for (int i = 0; i < 1000; ++i) list.insert(2, rowOf(std::to_string(i)));
    for (int i = 0; i < 1000; ++i) ASSERT_EQ(list.positionOf(std::to_string(i)), 1001 - i);
    EXPECT_EQ(list.positionOf("last"), 1002);
}

TEST(LongList, KeepsItsSelectedRowWhileManyAreInsertedAtOnePlace) {
    ControlSet controls;
    StatementList list(controls, "list");
    list.add(rowOf("first"));
    list.add(rowOf("last"));
    list.select(2);
    for (int i = 0; i < 1000; ++i) list.insert(2, rowOf(std::to_string(i)));
    EXPECT_EQ(list.selected(), 1002);
    EXPECT_EQ(list.selectedRow()->key, "last");
}

TEST(LongList, FindsItsRowsAfterManyWereInsertedAheadOfAll) {
    ControlSet controls;
    StatementList list(controls, "list");
    for (int i = 0; i < 5000; ++i) list.insert(1, rowOf(std::to_string(i)));
    for (int i = 0; i < 5000; ++i) ASSERT_EQ(list.positionOf(std::to_string(i)), 5000 - i);
}

}  // namespace
}  // namespace orvanta::test
