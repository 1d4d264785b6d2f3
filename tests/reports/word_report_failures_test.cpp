#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "analysis_bench.h"
#include "recorder.h"
#include "report_bench.h"
#include "reports/document_writer.h"
#include "rtf_reader.h"

namespace orvanta::test {

namespace {

class NoWordProcessors : public WordProcessors {
public:
    WordObjectPtr createApplication() override { throw Failure(ErrorNumber::CannotCreateObject); }
};

bool holds(const Texts& operations, const std::string& operation) {
    return std::ranges::find(operations, operation) != operations.end();
}

int countOf(const Texts& operations, const std::string& start) {
    return static_cast<int>(std::ranges::count_if(
        operations, [&](const std::string& each) { return each.starts_with(start); }));
}

Texts operationsWhenFailing(const std::string& operation) {
    ReportBench bench;
    Recorder recorder;
    recorder.failOperation(operation);
    bench.makeDocument(recorder);
    return recorder.operations();
}

int usesOfAWholeRun() {
    ReportBench bench;
    Recorder recorder;
    bench.makeDocument(recorder);
    return recorder.uses();
}

}  // namespace

TEST(WordReportFailures, EveryFailingOperationIsPassedOverAndTheWordProcessorQuits) {
    ReportBench bench;
    const int uses = usesOfAWholeRun();
    ASSERT_GT(uses, 500);
    // The first makes the instance, the last ends it: without these there is nothing to quit.
    for (int use = 2; use < uses; ++use) {
        Recorder recorder;
        recorder.failUse(use);
        ASSERT_NO_THROW(bench.makeDocument(recorder)) << use;
        ASSERT_EQ(recorder.operations().back(), "Application.Quit()") << use;
    }
}

TEST(WordReportFailures, NoFailingOperationIsTold) {
    ReportBench bench;
    const int uses = usesOfAWholeRun();
    for (int use = 1; use <= uses; use += 7) {
        Recorder recorder;
        recorder.failUse(use);
        bench.makeDocument(recorder);
    }
    EXPECT_EQ(bench.happened(), Json::array());
}

TEST(WordReportFailures, TheWaitCursorGoesWhateverFails) {
    ReportBench bench;
    const int uses = usesOfAWholeRun();
    for (int use = 1; use <= uses; use += 7) {
        bench.waitCursor.clear();
        Recorder recorder;
        recorder.failUse(use);
        bench.makeDocument(recorder);
        ASSERT_EQ(bench.waitCursor, (std::vector{true, false})) << use;
    }
}

TEST(WordReportFailures, AFailingOperationLeavesAllOthersAsTheyWere) {
    Texts expected = operationsWhenFailing("");
    const std::string failing = "Table 1.Rows(2).Height = 22";
    const auto found = std::ranges::find(expected, failing);
    ASSERT_NE(found, expected.end());
    expected.erase(found);
    EXPECT_EQ(operationsWhenFailing(failing), expected);
}

TEST(WordReportFailures, WhatFollowsATableThatCouldNotBeMadeLandsOnTheOneBefore) {
    const Texts done = operationsWhenFailing("Table 3 = Document.Tables.Add(Range 5, 1, 3)");
    const auto second =
        std::ranges::find(done, "Table 1.Cell(1, 1).Range.InsertAfter(\"Threats\\r\\n\")");
    EXPECT_NE(second, done.end());
    EXPECT_TRUE(holds(done, "Table 1.Cell(2, 1).Range.Text = \"Strike\""));
}

TEST(WordReportFailures, WhatFollowsANestedTableThatCouldNotBeMadeLandsOnTheOneBefore) {
    const Texts done =
        operationsWhenFailing("Table 4 = Selection.Tables.Add(Table 3.Cell(4, 1).Range, 1, 2)");
    EXPECT_TRUE(holds(done, "Table 2.Cell(1, 2).Range.Text = \"Loyal customers\""));
    EXPECT_TRUE(holds(done, "Table 2.Cell(1, 2).Range.Text = \"Slow delivery\""));
}

TEST(WordReportFailures, ARowThatCouldNotBeAddedIsCountedAllTheSame) {
    const Texts done = operationsWhenFailing("Table 1.Rows.Add()");
    EXPECT_EQ(countOf(done, "Table 1.Rows.Add()"), 0);
    EXPECT_TRUE(holds(done, "Table 1.Cell(4, 1).Range.Text = \"Partner abroad\""));
}

TEST(WordReportFailures, WithoutADocumentTheInstanceIsStillEnded) {
    const Texts done = operationsWhenFailing("Document = Application.Documents.Add");
    EXPECT_EQ(done, (Texts{"Application = Word.Application", "Selection = Application.Selection",
                           "Selection.ExtendMode = true", "Selection.MoveRight(1, 13)",
                           "Selection.Range.Font.Name = \"Arial\"",
                           "Selection.Range.Font.Size = 18", "Selection.Range.Font.Bold = true",
                           "Selection.Range.Font.Italic = false", "Selection.ExtendMode = true",
                           "Selection.MoveRight(1, 7)", "Selection.Range.Font.Name = \"Arial\"",
                           "Selection.Range.Font.Size = 18", "Selection.Range.Font.Bold = true",
                           "Selection.Range.Font.Italic = false", "Application.Quit()"}));
}

TEST(WordReportFailures, ADocumentThatCanNotBeSavedIsStillClosed) {
    const Texts done = operationsWhenFailing("Document.SaveAs(\"docs/team.rtf\")");
    ASSERT_GT(done.size(), 2u);
    EXPECT_EQ(Texts(done.end() - 2, done.end()), (Texts{"Document.Close()", "Application.Quit()"}));
}

TEST(WordReportFailures, WithoutAWordProcessorNothingIsSavedOrSaid) {
    ReportBench bench;
    NoWordProcessors none;
    bench.makeDocument(none);
    EXPECT_FALSE(bench.disk.files.contains("docs/team.rtf"));
    EXPECT_EQ(bench.happened(), Json::array());
    EXPECT_EQ(bench.waitCursor, (std::vector{true, false}));
}

TEST(WordReportFailures, AnAnalysisThatCanNotBeReadGivesTheFixedPartsAlone) {
    ReportBench unreadable, empty{Analysis{}};
    unreadable.disk.unreadable.insert({"docs/team.aze", ErrorNumber::PermissionDenied});
    Recorder ofUnreadable, ofEmpty;
    unreadable.makeDocument(ofUnreadable);
    empty.makeDocument(ofEmpty);
    EXPECT_EQ(ofUnreadable.operations(), ofEmpty.operations());
}

TEST(WordReportFailures, AMissingAnalysisIsToldAndNothingElseIsDone) {
    ReportBench bench;
    bench.disk.files.erase("docs/team.aze");
    Recorder recorder;
    bench.makeDocument(recorder);
    EXPECT_EQ(bench.happened(), Json::array({refusal("File does not exists.")}));
    EXPECT_TRUE(recorder.operations().empty());
    EXPECT_TRUE(bench.waitCursor.empty());
}

TEST(WordReportFailures, WhateverFailsTheProgramsOwnWriterLeavesAWholeDocumentOrNone) {
    ReportBench bench;
    DocumentWriter writer(bench.disk);
    const int uses = usesOfAWholeRun();
    std::set<std::string> read;  // most failures leave the same document
    for (int use = 1; use <= uses; ++use) {
        bench.disk.files.erase("docs/team.rtf");
        Recorder recorder(writer);
        recorder.failUse(use);
        ASSERT_NO_THROW(bench.makeDocument(recorder)) << use;
        const auto saved = bench.disk.files.find("docs/team.rtf");
        if (saved == bench.disk.files.end() || !read.insert(saved->second).second) continue;
        ASSERT_NO_THROW(readRtf(saved->second)) << use;
    }
}

}  // namespace orvanta::test
