#include "brainstorm/statements.h"

#include <gtest/gtest.h>

#include <limits>

#include "brainstorm_bench.h"

namespace orvanta::test {
namespace {

class Answer : public testing::TestWithParam<AnsweredKind> {
protected:
    Answer() { bench.goTo(kind); }

    void press(const std::string& operation) { bench.click(kind.buttons + operation); }
    StatementList& list() { return bench.list(kind.list); }
    std::int32_t keyCount() const {
        return std::vector{form.keyCountS, form.keyCountW, form.keyCountO,
                           form.keyCountT}[static_cast<std::size_t>(kind.image) - 1];
    }

    const AnsweredKind& kind = GetParam();
    BrainstormBench bench;
    FrmMain& form = bench.form();
};
INSTANTIATE_TEST_SUITE_P(Of, Answer, testing::ValuesIn(answeredKinds()), NameOfParameter());

TEST_P(Answer, IsAddedUnderTheFirstKeyOfItsKindWithItsPicture) {
    bench.set(kind.box, "statement");
    press("Add");
    ASSERT_EQ(bench.rows(kind.list), (ShownRows{{kind.key(1), "statement"}}));
    EXPECT_EQ(list().row(1).image, kind.image);
    EXPECT_EQ(list().row(1).largeImage, kind.image);
    EXPECT_EQ(list().row(1).subItem, "");
}

TEST_P(Answer, IsAddedByEnterToo) {
    bench.enter(kind.box, {"statement"});
    EXPECT_EQ(bench.rows(kind.list), (ShownRows{{kind.key(1), "statement"}}));
}

TEST_P(Answer, IsAddedAtTheEnd) {
    bench.enter(kind.box, {"one", "two", "three"});
    EXPECT_EQ(bench.rows(kind.list),
              (ShownRows{{kind.key(1), "one"}, {kind.key(2), "two"}, {kind.key(3), "three"}}));
}

TEST_P(Answer, LeavesAnEmptyBoxWithTheFocus) {
    bench.set(kind.box, "statement");
    bench.events();
    press("Add");
    EXPECT_EQ(bench.box(kind.box).text(), "");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({focusOn(kind.box)}));
}

TEST_P(Answer, MarksTheBrainstormSessionAlone) {
    EXPECT_FALSE(form.editFlag);
    bench.enter(kind.box, {"statement"});
    EXPECT_TRUE(form.editFlag);
    EXPECT_FALSE(form.editAFlag);
}

TEST_P(Answer, IsTrimmedInRowAndRecord) {
    bench.enter(kind.box, {"  two  words  "});
    EXPECT_EQ(bench.texts(kind.list), Texts{"two  words"});
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("DEL"), 1, kind.key(1), "two  words")});
}

TEST_P(Answer, KeepsEverySignThatWasTyped) {
    bench.enter(kind.box, {"<b>&lt;\"x\" \x80\xFF"});
    EXPECT_EQ(bench.texts(kind.list), Texts{"<b>&lt;\"x\" \x80\xFF"});
}

TEST_P(Answer, LeavesARecordAtItsPosition) {
    bench.enter(kind.box, {"one", "two"});
    EXPECT_EQ(bench.undoRecords(), (Texts{record(kind.tag("DEL"), 1, kind.key(1), "one"),
                                          record(kind.tag("DEL"), 2, kind.key(2), "two")}));
}

TEST_P(Answer, OfOneTextIsKeptTwiceUnderDifferentKeys) {
    bench.enter(kind.box, {"same", "same"});
    EXPECT_EQ(bench.rows(kind.list), (ShownRows{{kind.key(1), "same"}, {kind.key(2), "same"}}));
}

TEST_P(Answer, OfBlanksIsRefusedAndChangesNothing) {
    bench.set(kind.box, "   ");
    bench.events();
    press("Add");
    EXPECT_EQ(withoutArt(bench.events()),
              Json::array({refusal(kind.blankMessage), focusOn(kind.box)}));
    EXPECT_EQ(bench.box(kind.box).text(), "   ");
    EXPECT_EQ(bench.texts(kind.list), Texts{});
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(keyCount(), 0);
    EXPECT_FALSE(form.editFlag);
}

TEST_P(Answer, ThatIsEmptyIsRefusedOnEnter) {
    bench.play({{"do", "enter"}, {"control", kind.box}});
    EXPECT_EQ(bench.messages(), Texts{kind.blankMessage});
}

TEST_P(Answer, BehindTheLastPossibleKeyIsNotAddedAndStaysInItsBox) {
    form.keyCountS = form.keyCountW = form.keyCountO = form.keyCountT =
        std::numeric_limits<std::int32_t>::max();
    bench.set(kind.box, "statement");
    bench.events();
    press("Add");
    const Json seen = withoutArt(bench.events());
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0]["event"], "unhandledError");
    EXPECT_EQ(bench.texts(kind.list), Texts{});
    EXPECT_EQ(bench.box(kind.box).text(), "statement");
    EXPECT_TRUE(form.editFlag);
}

class AddedAnswer : public Answer {
protected:
    AddedAnswer() {
        bench.enter(kind.box, {"one", "two", "three"});
        form.undoRecords.fill({});
        form.editFlag = false;
        bench.events();
    }
};
INSTANTIATE_TEST_SUITE_P(Of, AddedAnswer, testing::ValuesIn(answeredKinds()), NameOfParameter());

TEST_P(AddedAnswer, IsNeitherEditedNorRemovedWithNothingSelected) {
    press("Edit");
    press("Remove");
    EXPECT_EQ(withoutArt(bench.events()), Json::array());
    EXPECT_EQ(bench.texts(kind.list), (Texts{"one", "two", "three"}));
    EXPECT_FALSE(form.editFlag);
}

TEST_P(AddedAnswer, IsShownForEditingUnderItsCode) {
    bench.select(kind.list, 2);
    press("Edit");
    const Json dialogs = bench.events("dialog");
    ASSERT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(dialogs[0]["text"], "two");
    EXPECT_EQ(dialogs[0]["fromControl"], kind.buttons);
}

TEST_P(AddedAnswer, EditedLeavesItsOldTextInARecordWithoutAKey) {
    bench.select(kind.list, 2);
    bench.answerEdit("changed");
    press("Edit");
    EXPECT_EQ(bench.rows(kind.list)[1], (ShownRow{kind.key(2), "changed"}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("EDIT"), 2, "", "two")});
    EXPECT_TRUE(form.editFlag);
}

TEST_P(AddedAnswer, EditedInLetterCaseAloneLeavesARecord) {
    bench.select(kind.list, 2);
    bench.answerEdit("TWO");
    press("Edit");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("EDIT"), 2, "", "two")});
}

TEST_P(AddedAnswer, EditedKeepsItsBlanks) {
    bench.select(kind.list, 2);
    bench.answerEdit(" two ");
    press("Edit");
    EXPECT_EQ(bench.texts(kind.list)[1], " two ");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("EDIT"), 2, "", "two")});
}

TEST_P(AddedAnswer, ConfirmedUnchangedLeavesNoRecord) {
    bench.select(kind.list, 2);
    bench.answerEdit("two");
    press("Edit");
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

TEST_P(AddedAnswer, LeavesNoRecordWhenEditingIsCancelled) {
    bench.select(kind.list, 2);
    press("Edit");
    EXPECT_EQ(bench.texts(kind.list)[1], "two");
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_FALSE(form.editFlag);
}

TEST_P(AddedAnswer, IsRemovedWithoutAQuestion) {
    bench.select(kind.list, 2);
    press("Remove");
    EXPECT_EQ(withoutArt(bench.events()), Json::array());
    EXPECT_EQ(bench.texts(kind.list), (Texts{"one", "three"}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 2, kind.key(2), "two")});
    EXPECT_TRUE(form.editFlag);
}

TEST_P(AddedAnswer, RemovedLeavesItsTrimmedTextInTheRecord) {
    list().setText(2, "  two ");
    bench.select(kind.list, 2);
    press("Remove");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 2, kind.key(2), "two")});
}

TEST_P(AddedAnswer, RemovedReturnsByUndoAtItsPlaceWithoutAKey) {
    bench.select(kind.list, 2);
    press("Remove");
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.rows(kind.list),
              (ShownRows{{kind.key(1), "one"}, {"", "two"}, {kind.key(3), "three"}}));
}

TEST_P(AddedAnswer, RemovedDoesNotGiveItsKeyBack) {
    bench.select(kind.list, 2);
    press("Remove");
    bench.enter(kind.box, {"four"});
    EXPECT_EQ(bench.rows(kind.list).back(), (ShownRow{kind.key(4), "four"}));
}

TEST_P(AddedAnswer, ChangedEmptiesTheRedoStack) {
    form.redoRecords[1] = "a record";
    bench.select(kind.list, 2);
    press("Remove");
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(AddedAnswer, CanNotBeTakenBackOnceTheWizardIsOnAnotherList) {
    form.undoRecords[0] = record(kind.tag("DEL"), 1, kind.key(1), "one");
    if (kind.letter == "T")
        bench.back(1);
    else
        bench.next(3);
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.texts(kind.list), (Texts{"one", "two", "three"}));
}

TEST_P(AddedAnswer, BeyondAllRecordsIsEditedNeitherInRowNorRecordAndToldSo) {
    while (list().count() <= 32767) list().add({});
    bench.select(kind.list, 32768);
    bench.answerEdit("changed");
    press("Edit");
    EXPECT_EQ(bench.events("message"), Json::array({refusal("[6] Overflow")}));
    EXPECT_EQ(list().row(32768).text, "");
}

TEST_P(AddedAnswer, ShowsItsTextAsToolTipUnderTheMouse) {
    bench.play({{"do", "hover"}, {"list", kind.list}, {"row", 2}});
    EXPECT_EQ(list().toolTip(), "two");
    bench.play({{"do", "hover"}, {"list", kind.list}, {"row", 0}});
    EXPECT_EQ(list().toolTip(), "two");
}

TEST_P(AddedAnswer, IsMovedByADragWithinOpportunitiesAndThreatsAlone) {
    bench.drag(kind.list, 3, kind.list, 1);
    const bool ranked = kind.letter == "O" || kind.letter == "T";
    EXPECT_EQ(bench.texts(kind.list),
              ranked ? (Texts{"one", "three", "two"}) : (Texts{"one", "two", "three"}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_FALSE(form.editFlag);
}

}  // namespace
}  // namespace orvanta::test
