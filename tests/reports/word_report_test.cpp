#include <gtest/gtest.h>

#include "recorder.h"
#include "report_bench.h"

namespace orvanta::test {

namespace {

constexpr int grey204 = 204 + 204 * 256 + 204 * 65536;
constexpr int grey250 = 250 + 250 * 256 + 250 * 65536;

std::string quoted(const std::string& text) { return '"' + text + '"'; }
std::string row(int number) { return "Rows(" + std::to_string(number) + ")"; }
std::string cell(int row, int column) {
    return "Cell(" + std::to_string(row) + ", " + std::to_string(column) + ")";
}

enum class Side { Opportunities, Threats };

/// The operations that a document asks for, put down one by one.
class Sequence {
public:
    Texts operations;

    void open() {
        add({"Application = Word.Application", "Document = Application.Documents.Add",
             "Selection = Application.Selection", newRange("Document.Range")});
        for (const char* setting : {"Orientation = 1", "PageWidth = 800", "LeftMargin = 100",
                                    "TopMargin = 72", "BottomMargin = 36", "RightMargin = 72"})
            add({std::string("Document.PageSetup.") + setting});
    }

    /// `range`: collapsed before and behind each of the three texts.
    void title(const std::string& range, const std::string& text) {
        add({range + ".InsertBefore(" + quoted(text) + ")", range + ".Font.Name = \"Arial\"",
             range + ".Font.Size = 20", range + ".Font.Bold = true", range + ".Collapse(0)"});
        add({range + ".InsertBefore(\"Usage Instructions:\\r\\n\")", range + ".Font.Size = 10",
             range + ".Font.Bold = true", range + ".Font.Name = \"Arial\"",
             range + ".Collapse(0)"});
        add({range + ".InsertBefore(" + quoted(usageText + "\\r\\n") + ")",
             range + ".Font.Size = 10", range + ".Font.Bold = false",
             range + ".Font.Name = \"Arial\"", range + ".Collapse(0)"});
    }

    void paragraphAtEnd() { add({range() + ".InsertParagraphAfter()"}); }

    void newTable() {
        const std::string place = range();
        m_table = nextTable();
        add({m_table + " = Document.Tables.Add(" + place + ", 1, 3)"});
    }

    void correlationHead(Side side) {
        const bool opportunities = side == Side::Opportunities;
        paragraphAtEnd();
        newTable();
        if (opportunities) table({"PreferredWidth = 576"});
        table({"Rows.HeightRule = 1"});
        table({"Cell(1, 1).Range.Font.Size = 12", "Cell(1, 1).Range.Font.Italic = true",
               "Cell(1, 1).Range.Font.Bold = true"});
        table({opportunities ? "Cell(1, 1).Range.InsertAfter(\"Opportunities\\r\\n\")"
                             : "Cell(1, 1).Range.InsertAfter(\"Threats\\r\\n\")"});
        table({"Cell(1, 1).Select()"});
        add({"Selection.ExtendMode = true",
             opportunities ? "Selection.MoveRight(1, 13)" : "Selection.MoveRight(1, 7)",
             "Selection.Range.Font.Name = \"Arial\"", "Selection.Range.Font.Size = 18",
             "Selection.Range.Font.Bold = true", "Selection.Range.Font.Italic = false"});
        table({"Cell(1, 1).Range.InsertAfter(\"     +Strength / -Weakness\")",
               "Cell(1, 2).Range.Text = \"Priority\"", "Cell(1, 2).Range.Orientation = 2",
               "Cell(1, 2).Range.Font.Name = \"Arial\"", "Cell(1, 2).Range.Font.Size = 12",
               "Cell(1, 2).Range.Font.Bold = true",
               "Cell(1, 3).Range.InsertBefore(\"Action Plan\")",
               "Cell(1, 3).Range.Font.Name = \"Arial\"", "Cell(1, 3).Range.Font.Size = 16",
               "Cell(1, 3).Range.Font.Bold = true"});
        table({"Cell(1, 1).VerticalAlignment = 1", "Cell(1, 2).VerticalAlignment = 1",
               "Cell(1, 3).VerticalAlignment = 1", "Cell(1, 2).Range.Paragraphs.Alignment = 1",
               "Rows(1).Range.Paragraphs.Format.SpaceBefore = 6",
               "Rows(1).Range.Paragraphs.Format.SpaceAfter = 6",
               "Rows(1).Range.Shading.BackgroundPatternColor = " + std::to_string(grey204),
               "Borders.Enable = true"});
        columnWidths();
    }

    void opportunity(int number, const std::string& place, const std::string& text) {
        statementLook(number, "true");
        table({cell(number, 2) + ".Range.Text = " + quoted(place),
               cell(number, 1) + ".Range.Text = " + quoted(text),
               row(number) + ".Range.Bold = true",
               cell(number, 2) + ".Range.Paragraphs.Alignment = 1"});
    }

    void threat(int number, const std::string& place, const std::string& text) {
        statementLook(number, "false");
        table({cell(number, 1) + ".Range.Text = " + quoted(text),
               cell(number, 2) + ".Range.Text = " + quoted(place),
               cell(number, 2) + ".Range.Paragraphs.Alignment = 1",
               row(number) + ".Range.Bold = true",
               row(number) + ".Range.Paragraphs.Format.KeepWithNext = true"});
    }

    /// The row of a group and the table within it.
    void group(Side side, int number) {
        table({"Rows.Add()", row(number) + ".Range.Font.Name = \"Arial\"",
               row(number) + ".Range.Font.Size = 10"});
        if (side == Side::Opportunities)
            table({row(number) + ".Range.Paragraphs.Format.KeepWithNext = false"});
        m_subTable = nextTable();
        add({m_subTable + " = Selection.Tables.Add(" + m_table + "." + cell(number, 1) +
             ".Range, 1, 2)"});
        subTable({"Borders.Enable = false", "Range.Font.Bold = false",
                  "Range.Font.Name = \"Arial\"", "Range.Font.Size = 10",
                  "Range.Paragraphs.Format.SpaceBefore = 3",
                  "Range.Paragraphs.Format.SpaceAfter = 3", "Columns(1).SetWidth(20, 3)",
                  "Columns(2).SetWidth(300, 3)"});
    }

    void mapped(int subRow, const std::string& sign, const std::string& text) {
        if (subRow > 1) subTable({"Rows.Add()"});
        subTable({cell(subRow, 1) + ".Range.Paragraphs.Alignment = 1",
                  cell(subRow, 1) + ".Range.Text = " + quoted(sign),
                  cell(subRow, 2) + ".Range.Text = " + quoted(text)});
    }

    void heavyEdges(int lastRow) {
        table({"Columns(3).Borders(-4).LineWidth = 24",
               row(lastRow) + ".Borders(-3).LineWidth = 24"});
    }

    void listOpening() {
        const std::string tail = range();
        add({tail + ".InsertParagraphAfter()", tail + ".InsertParagraphAfter()"});
        title(tail, "\\r\\nSWOT Analysis - List Report\\r\\n");
        add({tail + ".InsertParagraphAfter()"});
    }

    void listHead(const std::string& name) {
        newTable();
        table({"Range.Font.Name = \"Arial\"", "Range.Font.Size = 12", "Range.Font.Bold = true",
               "Cell(1, 1).Range.InsertBefore(" + quoted(name) + ")",
               "Cell(1, 1).Range.Font.Size = 20", "Cell(1, 2).Range.Text = \"Priority\"",
               "Cell(1, 2).Range.Orientation = 2", "Cell(1, 3).Range.InsertBefore(\"Comments\")",
               "Cell(1, 3).Range.Font.Size = 16", "Cell(1, 1).VerticalAlignment = 1",
               "Cell(1, 2).VerticalAlignment = 1", "Cell(1, 3).VerticalAlignment = 1",
               "Rows(1).Range.Shading.BackgroundPatternColor = " + std::to_string(grey204),
               "Rows(1).Range.Paragraphs.Format.KeepWithNext = true", "Borders.Enable = true"});
        columnWidths();
    }

    void listed(int number, const std::string& place, const std::string& text) {
        const std::string paragraphs = row(number) + ".Range.Paragraphs.";
        table({"Rows.Add()", row(number) + ".Range.Font.Size = 12",
               row(number) + ".Range.Shading.BackgroundPatternColor = " + std::to_string(grey250),
               row(number) + ".Height = 22", cell(number, 2) + ".Range.Orientation = 0",
               cell(number, 1) + ".Range.Text = " + quoted(text),
               cell(number, 2) + ".Range.Text = " + quoted(place),
               cell(number, 2) + ".Range.Paragraphs.Alignment = 1",
               paragraphs + "Format.KeepWithNext = true", paragraphs + "SpaceAfter = 6",
               paragraphs + "SpaceBefore = 6"});
    }

    void listEnd(int lastRow) {
        table({"Rows(1).HeadingFormat = true"});
        heavyEdges(lastRow);
    }

    void close() {
        add({"Document.SaveAs(\"docs/team.rtf\")", "Document.Close()", "Application.Quit()"});
    }

private:
    void add(const Texts& more) { operations.insert(operations.end(), more.begin(), more.end()); }
    void table(const Texts& more) {
        for (const std::string& operation : more) add({m_table + "." + operation});
    }
    void subTable(const Texts& more) {
        for (const std::string& operation : more) add({m_subTable + "." + operation});
    }

    std::string newRange(const std::string& of) {
        return "Range " + std::to_string(++m_ranges) + " = " + of;
    }
    /// Takes hold of the end of the document and gives its name.
    std::string range() {
        add({newRange("Document.Bookmarks(\"\\endofdoc\").Range")});
        return "Range " + std::to_string(m_ranges);
    }
    std::string nextTable() { return "Table " + std::to_string(++m_tables); }

    void columnWidths() {
        table({"Columns(1).SetWidth(330, 3)", "Columns(2).SetWidth(30, 3)",
               "Columns(3).SetWidth(250, 3)"});
    }

    void statementLook(int number, const std::string& keepWithNext) {
        const std::string range = row(number) + ".Range.";
        table({"Rows.Add()", row(number) + ".Height = 22",
               range + "Shading.BackgroundPatternColor = " + std::to_string(grey250),
               range + "Font.Name = \"Arial\"", range + "Font.Size = 12",
               range + "Font.Bold = true",
               range + "Paragraphs.Format.KeepWithNext = " + keepWithNext,
               range + "Paragraphs.Format.SpaceBefore = 6",
               range + "Paragraphs.Format.SpaceAfter = 6", range + "Paragraphs.Alignment = 0",
               cell(number, 2) + ".Range.Orientation = 0"});
    }

    std::string m_table, m_subTable;
    int m_tables = 0, m_ranges = 0;
};

/// Compares line by line, so that a difference is told where it begins.
void expectSame(const Texts& done, const Texts& expected) {
    for (std::size_t i = 0; i < std::min(done.size(), expected.size()); ++i)
        ASSERT_EQ(done[i], expected[i]) << "operation " << i + 1;
    EXPECT_EQ(done.size(), expected.size());
}

Texts operationsFor(const Analysis& analysis) {
    ReportBench bench(analysis);
    Recorder recorder;
    bench.makeDocument(recorder);
    return recorder.operations();
}

}  // namespace

TEST(WordReport, BuildsTheDocumentOfAnAnalysisOperationByOperation) {
    Sequence expected;
    expected.open();
    expected.title("Range 1", "SWOT Analysis - Correlation Report\\r\\n\\r\\n");
    expected.correlationHead(Side::Opportunities);
    expected.opportunity(2, "1", "New market");
    expected.group(Side::Opportunities, 3);
    expected.mapped(1, "+", "Loyal customers");
    expected.mapped(2, "-", "Slow delivery");
    expected.mapped(3, "+", "Own fleet");
    expected.opportunity(4, "2", "Partner abroad");
    expected.heavyEdges(4);
    expected.correlationHead(Side::Threats);
    expected.threat(2, "1", "Strike");
    expected.threat(3, "2", "New competitor");
    expected.group(Side::Threats, 4);
    expected.mapped(1, "-", "Slow delivery");
    expected.heavyEdges(4);
    expected.listOpening();
    expected.listHead("Opportunities");
    expected.listed(2, "1", "New market");
    expected.listed(3, "2", "Partner abroad");
    expected.listEnd(3);
    expected.paragraphAtEnd();
    expected.listHead("Threats");
    expected.listed(2, "1", "Strike");
    expected.listed(3, "2", "New competitor");
    expected.listEnd(3);
    expected.paragraphAtEnd();
    expected.listHead("Strengths");
    expected.listed(2, "1", "Loyal customers");
    expected.listed(3, "2", "Own fleet");
    expected.listEnd(3);
    expected.paragraphAtEnd();
    expected.listHead("Weaknesses");
    expected.listEnd(1);
    expected.close();
    expectSame(operationsFor(smallAnalysis()), expected.operations);
}

TEST(WordReport, BuildsTheFixedPartsAloneForAnEmptyAnalysis) {
    Sequence expected;
    expected.open();
    expected.title("Range 1", "SWOT Analysis - Correlation Report\\r\\n\\r\\n");
    for (const Side side : {Side::Opportunities, Side::Threats}) {
        expected.correlationHead(side);
        expected.heavyEdges(1);
    }
    expected.listOpening();
    for (const std::string name : {"Opportunities", "Threats", "Strengths", "Weaknesses"}) {
        if (name != "Opportunities") expected.paragraphAtEnd();
        expected.listHead(name);
        expected.listEnd(1);
    }
    expected.close();
    expectSame(operationsFor({}), expected.operations);
}

TEST(WordReport, ExtendsTheSelectionFromTheFirstTableOnAndUsesItForTheCorrelationAlone) {
    const Texts done = operationsFor(smallAnalysis());
    const auto names = [](const char* word) {
        return
            [=](const std::string& operation) { return operation.find(word) != std::string::npos; };
    };
    std::size_t extensions = 0;
    for (const std::string& operation : done)
        if (names("ExtendMode")(operation)) {
            ++extensions;
            EXPECT_EQ(operation, "Selection.ExtendMode = true");
        }
    EXPECT_EQ(extensions, 2u);
    const auto lists = std::ranges::find_if(done, names("List Report"));
    ASSERT_NE(lists, done.end());
    EXPECT_EQ(std::find_if(lists, done.end(), names("Selection")), done.end());
    EXPECT_EQ(std::find_if(lists, done.end(), names(".Select()")), done.end());
}

TEST(WordReport, OpensAGroupForARowThatIsMappedBeforeAnyStatement) {
    const Texts done = operationsFor({.opportunityMap = {{"O9-S1", "Loyal customers"}}});
    Sequence expected;
    expected.open();
    expected.title("Range 1", "SWOT Analysis - Correlation Report\\r\\n\\r\\n");
    expected.correlationHead(Side::Opportunities);
    expected.group(Side::Opportunities, 2);
    expected.mapped(1, "+", "Loyal customers");
    expected.heavyEdges(2);
    const auto head = static_cast<std::ptrdiff_t>(expected.operations.size());
    expectSame({done.begin(), done.begin() + head}, expected.operations);
}

}  // namespace orvanta::test
