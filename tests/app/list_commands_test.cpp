#include "app/list_commands.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

/// The commands of a list's menu, with a mark at those that the Delete key gives too.
Texts menuOf(Bench& bench, const std::string& list) {
    Texts captions;
    for (const ListCommand& command : listCommandsOf(bench.form(), bench.control(list)))
        captions.push_back(std::string(command.caption) + (command.onDeleteKey ? " (Delete)" : ""));
    return captions;
}

TEST(ListMenu, OfStatementsOffersToEditAndRemove) {
    Bench bench;
    for (const char* list : {"lvBStrength", "lvBWeakness", "lvBOpportunity", "lvBThreat",
                             "lvAStrength", "lvAWeakness", "lvAOpportunity", "lvAThreat"})
        EXPECT_EQ(menuOf(bench, list), (Texts{"Edit", "Remove"})) << list;
}

TEST(ListMenu, OfMappedRowsOffersToRemoveAsTheDeleteKeyDoes) {
    Bench bench;
    for (const char* list : {"lvOpportunity", "lvThreat"})
        EXPECT_EQ(menuOf(bench, list), Texts{"Remove (Delete)"}) << list;
}

class RemoveOnAMappingList : public testing::TestWithParam<MappingSide> {
protected:
    RemoveOnAMappingList() {
        bench.goTo(GetParam());
        bench.map(GetParam().strengths, 1, GetParam().list, 1);
    }
    bool isOfferedOn(int row) {
        const StatementList& list = bench.list(GetParam().list);
        bench.select(GetParam().list, row);
        return isOffered(bench.form(), list, listCommandsOf(bench.form(), list).front());
    }
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, RemoveOnAMappingList, testing::ValuesIn(mappingSides()),
                         NameOfParameter());

TEST_P(RemoveOnAMappingList, IsOfferedForAMappedRow) {
    EXPECT_TRUE(isOfferedOn(2));
    EXPECT_FALSE(isOfferedOn(0));
}

TEST_P(RemoveOnAMappingList, IsNotOfferedForARowThatTheListBeforeHolds) {
    EXPECT_FALSE(isOfferedOn(1));
    EXPECT_FALSE(isOfferedOn(3));
}

TEST_P(RemoveOnAMappingList, IsOfferedForWhatAnUndoneAdditionLeft) {
    bench.list(GetParam().list).add({.key = GetParam().parent(9), .text = "Left", .image = 3});
    EXPECT_TRUE(isOfferedOn(bench.list(GetParam().list).count()));
}

TEST(ListMenu, OfSourceFilesOffersToMergeAddAndRemove) {
    Bench bench;
    EXPECT_EQ(menuOf(bench, "lstFiles"), (Texts{"Merge...", "Add...", "Remove"}));
}

TEST(ListMenu, IsNoneOnThePickingListsAndOnWhatIsNoList) {
    Bench bench;
    for (const char* list :
         {"lvStrengthOp", "lvWeaknessOp", "lvStrengthTh", "lvWeaknessTh", "txtStrength"})
        EXPECT_EQ(menuOf(bench, list), Texts{}) << list;
}

TEST(ListMenu, OffersWhatNeedsARowOnlyWhileOneIsSelected) {
    AnalysisBench bench;
    const ListBox& files = bench.form().lstFiles;
    const auto offered = [&] {
        Texts captions;
        for (const ListCommand& command : listCommandsOf(bench.form(), files))
            if (isOffered(bench.form(), files, command)) captions.emplace_back(command.caption);
        return captions;
    };
    bench.form().lstFiles.setSelectedIndex(-1);
    EXPECT_EQ(offered(), (Texts{"Merge...", "Add..."}));
    bench.form().lstFiles.setSelectedIndex(0);
    EXPECT_EQ(offered(), (Texts{"Merge...", "Add...", "Remove"}));
}

TEST(ListMenu, DoesAsTheButtonBesideTheListWould) {
    AnalysisBench bench;
    bench.next(1);
    bench.select("lvAStrength", 2);
    listCommandsOf(bench.form(), bench.list("lvAStrength"))[1].choose(bench.program());
    EXPECT_EQ(bench.texts("lvAStrength"), (Texts{"Ann S1", "Bo S1"}));
    EXPECT_EQ(bench.undoRecords().size(), 1u);
}

}  // namespace
}  // namespace orvanta::test
