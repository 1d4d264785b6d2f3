#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

class ReviewedStatement : public testing::TestWithParam<ReviewedKind> {
protected:
    ReviewedStatement() { bench.goTo(kind); }
    void add(const std::string& text) {
        bench.set(kind.box, text);
        bench.click(kind.buttons + "Add");
    }
    void edit(int row, const std::string& text) {
        bench.select(kind.list, row);
        bench.answerEdit(text);
        bench.click(kind.buttons + "Edit");
    }
    void remove(int row) {
        bench.select(kind.list, row);
        bench.click(kind.buttons + "Remove");
    }
    std::int32_t& keyCount() {
        FrmMain& form = bench.form();
        return kind.image == 1   ? form.keyCountS
               : kind.image == 2 ? form.keyCountW
               : kind.image == 3 ? form.keyCountO
                                 : form.keyCountT;
    }

    const ReviewedKind& kind = GetParam();
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, ReviewedStatement, testing::ValuesIn(reviewedKinds()),
                         NameOfParameter());

TEST_P(ReviewedStatement, IsAddedAtTheEndOfEveryListUnderOneNewKey) {
    add("Late");
    const ShownRow added{kind.key(4), "Late"};
    EXPECT_EQ(bench.rows(kind.list).back(), added);
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.rows(copy).back(), added);
}

TEST_P(ReviewedStatement, IsAddedWithItsPictureAndNobodysLabel) {
    add("Late");
    for (const std::string& list : {kind.list, kind.companions.front(), kind.companions.back()}) {
        EXPECT_EQ(bench.row(list, 4).image, kind.image) << list;
        EXPECT_EQ(bench.row(list, 4).largeImage, kind.image) << list;
        EXPECT_EQ(bench.row(list, 4).subItem, "") << list;
    }
}

TEST_P(ReviewedStatement, AddedLeavesARecordAtTheNewRowCount) {
    add("Late");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("DEL"), 4, kind.key(4), "Late")});
}

TEST_P(ReviewedStatement, AddedMarksTheSessionAndGivesTheEmptiedBoxTheFocus) {
    bench.set(kind.box, "Late");
    bench.events();
    bench.click(kind.buttons + "Add");
    EXPECT_EQ(bench.events("focus"), Json::array({focusOn(kind.box)}));
    EXPECT_EQ(bench.box(kind.box).text(), "");
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_P(ReviewedStatement, IsAddedByEnterToo) {
    bench.enter(kind.box, {"Late"});
    EXPECT_EQ(bench.rows(kind.list).back(), (ShownRow{kind.key(4), "Late"}));
}

TEST_P(ReviewedStatement, EntersEveryListAndTheRecordTrimmed) {
    add("  Late idea  ");
    EXPECT_EQ(bench.texts(kind.list).back(), "Late idea");
    for (const std::string& copy : kind.companions)
        EXPECT_EQ(bench.texts(copy).back(), "Late idea");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("DEL"), 4, kind.key(4), "Late idea")});
}

TEST_P(ReviewedStatement, OfOneTextIsKeptTwice) {
    add("Same");
    add("Same");
    EXPECT_EQ(bench.rows(kind.list).size(), 5u);
    EXPECT_EQ(bench.keys(kind.list).back(), kind.key(5));
}

TEST_P(ReviewedStatement, OfBlanksIsRefusedAndChangesNothing) {
    bench.set(kind.box, "   ");
    bench.form().redoRecords[1] = "a record";
    bench.events();
    bench.click(kind.buttons + "Add");
    Json seen = bench.events();
    seen.erase(seen.begin(), seen.begin() + 2);  // the button's art
    EXPECT_EQ(seen, Json::array({refusal(kind.blankMessage), focusOn(kind.box)}));
    EXPECT_EQ(bench.box(kind.box).text(), "   ");
    EXPECT_EQ(bench.rows(kind.list).size(), 3u);
    EXPECT_EQ(keyCount(), 3);
    EXPECT_FALSE(bench.form().editAFlag);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{"a record"});
}

TEST_P(ReviewedStatement, IsShownForEditingUnderItsCode) {
    edit(2, "New");
    EXPECT_EQ(bench.events("dialog"), Json::array({{{"event", "dialog"},
                                                    {"form", "frmEdit"},
                                                    {"text", "Ann " + kind.key(2)},
                                                    {"fromControl", kind.buttons}}}));
}

TEST_P(ReviewedStatement, EditedChangesInEveryListAndLeavesTheOldTextInARecord) {
    edit(2, "New");
    EXPECT_EQ(bench.texts(kind.list)[1], "New");
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.texts(copy)[1], "New");
    EXPECT_EQ(bench.undoRecords(),
              Texts{record(kind.tag("EDIT"), 2, kind.key(2), "Ann " + kind.key(2))});
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_P(ReviewedStatement, EditedKeepsItsBlanksInEveryListAndInTheNextRecord) {
    edit(2, "  New ");
    EXPECT_EQ(bench.texts(kind.companions.front())[1], "  New ");
    edit(2, "Newer");
    EXPECT_EQ(bench.undoRecords().back(), record(kind.tag("EDIT"), 2, kind.key(2), "  New "));
}

TEST_P(ReviewedStatement, ConfirmedUnchangedMarksTheSessionWithoutARecord) {
    edit(2, "Ann " + kind.key(2));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_P(ReviewedStatement, GivesItsTextToCopiesThatHaveAnotherEvenWhenEditingIsCancelled) {
    for (const std::string& copy : kind.companions) bench.list(copy).setText(2, "other");
    bench.select(kind.list, 2);
    bench.click(kind.buttons + "Edit");
    for (const std::string& copy : kind.companions)
        EXPECT_EQ(bench.texts(copy)[1], "Ann " + kind.key(2)) << copy;
}

TEST_P(ReviewedStatement, EditedInLetterCaseAloneLeavesARecord) {
    edit(2, "ANN " + kind.key(2));
    EXPECT_EQ(bench.undoRecords().size(), 1u);
}

TEST_P(ReviewedStatement, StaysWithoutRecordOrMarkWhenEditingIsCancelled) {
    bench.select(kind.list, 2);
    bench.play({{"answer", "frmEdit"},
                {"steps", Json::array({{{"text", "New"}}, {{"press", "cancel"}}})}});
    bench.click(kind.buttons + "Edit");
    EXPECT_EQ(bench.texts(kind.list)[1], "Ann " + kind.key(2));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_P(ReviewedStatement, IsRemovedFromEveryListWithoutAQuestion) {
    bench.events();
    remove(2);
    EXPECT_EQ(bench.events("message"), Json::array());
    const Texts left{kind.key(1), kind.key(3)};
    EXPECT_EQ(bench.keys(kind.list), left);
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.keys(copy), left);
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_P(ReviewedStatement, RemovedLeavesItsTrimmedTextInTheRecord) {
    edit(2, "  New ");
    remove(2);
    const bool parent = kind.image >= 3;
    EXPECT_EQ(bench.undoRecords().back(),
              record(kind.tag("ADD"), 2, kind.key(2), "New", parent ? kind.key(2) + "|2," : ""));
}

TEST_P(ReviewedStatement, RemovedNeverGivesItsKeyBack) {
    remove(3);
    add("Late");
    EXPECT_EQ(bench.keys(kind.list), (Texts{kind.key(1), kind.key(2), kind.key(4)}));
}

TEST_P(ReviewedStatement, IsNeitherEditedNorRemovedWithNothingSelected) {
    bench.select(kind.list, 0);
    bench.events();
    bench.click(kind.buttons + "Edit");
    bench.click(kind.buttons + "Remove");
    for (const Json& event : bench.events()) EXPECT_EQ(event["event"], "art");
    EXPECT_EQ(bench.rows(kind.list).size(), 3u);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_P(ReviewedStatement, ChangedEmptiesTheRedoStack) {
    for (const auto& change :
         {std::function<void()>([&] { add("Late"); }), std::function<void()>([&] { edit(1, "N"); }),
          std::function<void()>([&] { remove(1); })}) {
        bench.form().redoRecords[1] = "a record";
        change();
        EXPECT_EQ(bench.redoRecords(), Texts{});
    }
}

// Adding an opportunity is the one addition that reports no error of its own.
TEST_P(ReviewedStatement, AddedBehindTheLastPossibleKeyFailsWithTheSessionMarked) {
    keyCount() = std::numeric_limits<std::int32_t>::max();
    bench.set(kind.box, "Late");
    bench.events();
    bench.click(kind.buttons + "Add");
    Json seen = bench.events();
    seen.erase(seen.begin(), seen.begin() + 2);  // the button's art
    const Json unhandled{{"event", "unhandledError"}, {"number", 6}, {"description", "Overflow"}};
    EXPECT_EQ(seen, Json::array({kind.letter == "O" ? unhandled : refusal("[6] Overflow")}));
    EXPECT_EQ(bench.rows(kind.list).size(), 3u);
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_EQ(bench.box(kind.box).text(), "Late");
}

/// A list with more rows than a record can number; the last one is selected.
class ReviewedStatementBeyondAllRecords : public ReviewedStatement {
protected:
    ReviewedStatementBeyondAllRecords() {
        lists.insert(lists.begin(), kind.list);
        for (int i = 4; i <= largestRecorded + 1; ++i) {
            const Row row{.key = kind.key(i), .text = "many", .image = 1, .largeImage = 1};
            for (const std::string& list : lists) bench.list(list).add(row);
        }
        keyCount() = largestRecorded + 1;
        bench.select(kind.list, largestRecorded + 1);
        bench.events();
    }
    void shortenTo(int rows) {
        for (const std::string& list : lists)
            while (bench.list(list).count() > rows) bench.list(list).remove(rows + 1);
    }
    std::vector<int> counts() {
        std::vector<int> counts;
        for (const std::string& list : lists) counts.push_back(bench.list(list).count());
        return counts;
    }
    /// Of adding and of editing, which report no error of their own for an opportunity.
    Json overflow() const {
        const Json unhandled{
            {"event", "unhandledError"}, {"number", 6}, {"description", "Overflow"}};
        return kind.letter == "O" ? unhandled : refusal("[6] Overflow");
    }

    static constexpr int largestRecorded = std::numeric_limits<std::int16_t>::max();
    Texts lists = kind.companions;  // and the main one, ahead of them
};
INSTANTIATE_TEST_SUITE_P(Of, ReviewedStatementBeyondAllRecords, testing::ValuesIn(reviewedKinds()),
                         NameOfParameter());

TEST_P(ReviewedStatementBeyondAllRecords, IsNotRemoved) {
    const int before = bench.list(kind.list).count();
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.events("message"), Json::array({refusal("[6] Overflow")}));
    EXPECT_EQ(bench.list(kind.list).count(), before);
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

TEST_P(ReviewedStatementBeyondAllRecords, IsNeitherShownForEditingNorChanged) {
    bench.answerEdit("New");
    bench.click(kind.buttons + "Edit");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({overflow()}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    for (const std::string& list : lists) EXPECT_EQ(bench.texts(list).back(), "many") << list;
}

TEST_P(ReviewedStatementBeyondAllRecords, IsAddedToNoListBehindTheLastOneThatCanBe) {
    shortenTo(largestRecorded - 1);
    add("Last");
    const Texts records{
        record(kind.tag("DEL"), largestRecorded, kind.key(largestRecorded + 2), "Last")};
    EXPECT_EQ(bench.undoRecords(), records);
    const std::vector<int> before = counts();
    bench.events();
    add("Late");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({overflow()}));
    EXPECT_EQ(counts(), before);
    EXPECT_EQ(bench.undoRecords(), records);
    EXPECT_EQ(bench.box(kind.box).text(), "Late");
}

}  // namespace
}  // namespace orvanta::test
