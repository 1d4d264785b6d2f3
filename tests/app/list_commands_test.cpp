#include "app/list_commands.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

/// The commands of a list's menu, each with its key.
Texts menuOf(Bench& bench, const std::string& list) {
    Texts lines;
    for (const ListCommand& command : listCommandsOf(bench.form(), bench.control(list)))
        lines.push_back(command.caption + (command.key.empty() ? "" : " | ") +
                        std::string(command.key));
    return lines;
}

ListCommand commandIn(Bench& bench, const std::string& list, const std::string& caption) {
    for (const ListCommand& command : listCommandsOf(bench.form(), bench.list(list)))
        if (command.caption == caption) return command;
    throw std::out_of_range(caption);
}

TEST(ListMenu, OfStatementsOffersToEditAndRemove) {
    Bench bench;
    for (const char* list : {"lvBStrength", "lvBWeakness", "lvAStrength", "lvAWeakness"})
        EXPECT_EQ(menuOf(bench, list), (Texts{"Edit | F2", "Remove | Del"})) << list;
}

TEST(ListMenu, OfWhatCanBeRankedOffersToMoveItUpAndDown) {
    Bench bench;
    for (const char* list : {"lvBOpportunity", "lvBThreat", "lvAOpportunity", "lvAThreat"})
        EXPECT_EQ(menuOf(bench, list),
                  (Texts{"Edit | F2", "Remove | Del", "Move Up | Alt+Up", "Move Down | Alt+Down"}))
            << list;
}

TEST(ListMenu, OfMappedRowsOffersToRemove) {
    Bench bench;
    for (const char* list : {"lvOpportunity", "lvThreat"})
        EXPECT_EQ(menuOf(bench, list), Texts{"Remove | Del"}) << list;
}

class MapFromAMenu : public testing::TestWithParam<MappingSide> {
protected:
    MapFromAMenu() { bench.goTo(GetParam()); }
    ListCommand command(const std::string& list) {
        return listCommandsOf(bench.form(), bench.list(list)).front();
    }
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, MapFromAMenu, testing::ValuesIn(mappingSides()), NameOfParameter());

TEST_P(MapFromAMenu, NamesTheChosenParentAndMapsOntoIt) {
    const MappingSide& side = GetParam();
    bench.list(side.list).select(2);
    bench.select(side.weaknesses, 1);
    const ListCommand map = command(side.weaknesses);
    EXPECT_EQ(map.caption, "Map onto " + bench.row(side.list, 2).text);
    EXPECT_EQ(map.key, "Ctrl+M");
    ASSERT_TRUE(map.isOffered);
    map.choose(bench.program());
    EXPECT_EQ(bench.keys(side.list)[2], side.parent(2) + "-W1");
    EXPECT_EQ(bench.form().dragSection, "");
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_P(MapFromAMenu, MapsOntoTheParentOfAChosenMappedRow) {
    const MappingSide& side = GetParam();
    bench.map(side.strengths, 1, side.list, 1);
    bench.select(side.list, 2);
    bench.select(side.strengths, 2);
    command(side.strengths).choose(bench.program());
    EXPECT_EQ(bench.keys(side.list)[1], side.parent(1) + "-S2");
}

TEST_P(MapFromAMenu, IsOfferedOnlyWithAStatementAndAParentChosen) {
    const MappingSide& side = GetParam();
    bench.list(side.list).select(0);
    bench.select(side.strengths, 1);
    EXPECT_FALSE(command(side.strengths).isOffered);
    EXPECT_EQ(command(side.strengths).caption, "Map onto ...");
    bench.list(side.list).select(1);
    bench.list(side.strengths).select(0);
    EXPECT_FALSE(command(side.strengths).isOffered);
}

class RankingByMenu : public testing::Test {
protected:
    RankingByMenu() {
        bench.start();
        bench.list("lvBThreat").add({.key = "T1", .text = "A"});
        bench.list("lvBThreat").add({.key = "T2", .text = "B"});
        bench.list("lvBThreat").add({.key = "T3", .text = "C"});
        bench.list("lvBThreat").add({.key = "T4", .text = "D"});
    }
    void choose(int row, const std::string& caption) {
        bench.list("lvBThreat").select(row);
        commandIn(bench, "lvBThreat", caption).choose(bench.program());
    }
    Bench bench;
};

TEST_F(RankingByMenu, MovesTheChosenRowByOnePlace) {
    choose(4, "Move Up");
    EXPECT_EQ(bench.texts("lvBThreat"), (Texts{"A", "B", "D", "C"}));
    EXPECT_EQ(bench.list("lvBThreat").selected(), 3);
    choose(1, "Move Down");
    EXPECT_EQ(bench.texts("lvBThreat"), (Texts{"B", "A", "D", "C"}));
    EXPECT_EQ(bench.list("lvBThreat").selected(), 2);
}

TEST_F(RankingByMenu, BringsTheSecondRowToTheTopAndKeepsItChosen) {
    choose(2, "Move Up");
    EXPECT_EQ(bench.texts("lvBThreat"), (Texts{"B", "A", "C", "D"}));
    EXPECT_EQ(bench.list("lvBThreat").selectedRow()->key, "T2");
}

TEST_F(RankingByMenu, IsOfferedOnlyWhereTheRowCanGo) {
    const auto offered = [&](int row, const char* caption) {
        bench.list("lvBThreat").select(row);
        return commandIn(bench, "lvBThreat", caption).isOffered;
    };
    EXPECT_FALSE(offered(0, "Move Up") || offered(0, "Move Down"));
    EXPECT_FALSE(offered(1, "Move Up") || offered(4, "Move Down"));
    EXPECT_TRUE(offered(4, "Move Up") && offered(1, "Move Down"));
}

class RemoveOnAMappingList : public testing::TestWithParam<MappingSide> {
protected:
    RemoveOnAMappingList() {
        bench.goTo(GetParam());
        bench.map(GetParam().strengths, 1, GetParam().list, 1);
    }
    bool isOfferedOn(int row) {
        bench.select(GetParam().list, row);
        return commandIn(bench, GetParam().list, "Remove").isOffered;
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
    EXPECT_EQ(menuOf(bench, "lstFiles"), (Texts{"Merge...", "Add...", "Remove | Del"}));
}

TEST(ListMenu, IsNoneOnWhatIsNoList) {
    Bench bench;
    EXPECT_EQ(menuOf(bench, "txtStrength"), Texts{});
}

TEST(ListMenu, OffersWhatNeedsARowOnlyWhileOneIsSelected) {
    AnalysisBench bench;
    const ListBox& files = bench.form().lstFiles;
    const auto offered = [&] {
        Texts captions;
        for (const ListCommand& command : listCommandsOf(bench.form(), files))
            if (command.isOffered) captions.push_back(command.caption);
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
