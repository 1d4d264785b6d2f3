#include "reports/word_report.h"

#include <array>

#include "core/constants.h"
#include "core/failures.h"
#include "core/files.h"
#include "core/messages.h"
#include "core/text.h"
#include "reports/report_source.h"
#include "reports/word_processor.h"

namespace orvanta {

namespace {

// Numbers of the object model.
constexpr int landscape = 1;
constexpr int collapseToEnd = 0;
constexpr int alignLeft = 0, alignCentred = 1;
constexpr int textHorizontal = 0, textUpward = 2;
constexpr int verticallyCentred = 1;
constexpr int atLeast = 1;
constexpr int byCharacter = 1;
constexpr int keepRightEdge = 3;
constexpr int bottomEdge = -3, rightEdge = -4;
constexpr int threePoints = 24;
constexpr int headerGrey = 13421772, rowGrey = 16448250;  // 204 and 250 of each colour

const std::string lineEnd = "\r\n";
const std::string endOfDocument = "\\endofdoc";

std::string usageText() {
    return "Edit this table as required in your word processor. "
           "You can also copy any table below into PowerPoint by selecting the "
           "table and copying it to the Windows Clipboard (click anywhere inside "
           "table, then select from the Word menu: Table, Select, Table, then Edit, "
           "Copy) and then pasting it into any other Windows application.";
}

/// What differs between the two correlation tables.
struct CorrelationTable {
    std::string_view word;  // of the header; its length is what the selection is extended by
    ReportList ReportLists::*entries;
    bool setsPreferredWidth;
    bool loosensGroups;     // the row of a group may part from the next
    bool textBeforeNumber;  // writes a statement row in the other order, to the same end
};

constexpr CorrelationTable opportunityTable{"Opportunities", &ReportLists::opportunityMapEntries,
                                            true, true, false};
constexpr CorrelationTable threatTable{"Threats", &ReportLists::threatMapEntries, false, false,
                                       true};

struct ListTable {
    std::string_view name;
    ReportList ReportLists::*entries;
};

constexpr std::array<ListTable, 4> listTables{{
    {"Opportunities", &ReportLists::opportunityEntries},
    {"Threats", &ReportLists::threatEntries},
    {"Strengths", &ReportLists::strengthEntries},
    {"Weaknesses", &ReportLists::weaknessEntries},
}};

/// The script that drives the word processor. Each operation stands alone: a failing one is
/// passed over, and a variable whose assignment failed keeps what it held.
class Script {
public:
    explicit Script(Program& program) : m_program(program) {}

    void run(const std::string& analyzeFile, const std::string& targetFile) {
        open();
        setUpPage();
        writeOpening();
        writeCorrelationHead(opportunityTable);
        m_step([&] {
            readReportSource(m_program.platform.disk.read(analyzeFile), ReportScope::Everything,
                             m_lists);
        });
        writeCorrelationBody(opportunityTable);
        writeCorrelationHead(threatTable);
        writeCorrelationBody(threatTable);
        writeListOpening();
        for (const ListTable& table : listTables) writeListTable(table);
        save(targetFile);
        m_step([&] { m_wordDoc.call("Close"); });
        m_step([&] { m_wordApp.call("Quit"); });
    }

private:
    void save(const std::string& targetFile) {
        const bool saved = m_step([&] { m_wordDoc.call("SaveAs", {targetFile}); });
        FailedSaves* const failedSaves = m_program.platform.failedSaves;
        if (!saved && failedSaves) failedSaves->documentNotWritten(targetFile);
    }

    template <class Expression>
    void assign(WordRef& variable, Expression expression) {
        m_step([&] { variable = expression(); });
    }

    template <class Expression>
    WordRef with(Expression expression) {
        WordRef object;
        assign(object, expression);
        return object;
    }

    void put(const WordRef& object, std::string_view member, const WordValue& value) {
        m_step([&] { object.put(member, value); });
    }

    void insert(const WordRef& range, std::string_view where, std::string text) {
        m_step([&] { range.call(where, {std::move(text)}); });
    }

    void putFont(const WordRef& range, std::string_view member, const WordValue& value) {
        m_step([&] { range.get("Font").put(member, value); });
    }

    void collapse(const WordRef& range) {
        m_step([&] { range.call("Collapse", {collapseToEnd}); });
    }

    WordRef endRange() const { return m_wordDoc.get("Bookmarks").item(endOfDocument).get("Range"); }

    void addParagraphAtEnd() {
        m_step([&] { endRange().call("InsertParagraphAfter"); });
    }

    WordRef cell(int row, int column) const { return m_currentTable.get("Cell", {row, column}); }
    WordRef row(int number) const { return m_currentTable.get("Rows").item(number); }

    void open() {
        assign(m_wordApp,
               [&] { return WordRef(m_program.platform.wordProcessors.createApplication()); });
        assign(m_wordDoc, [&] { return m_wordApp.get("Documents").get("Add"); });
        assign(m_wordSelection, [&] { return m_wordApp.get("Selection"); });
        assign(m_docRange, [&] { return m_wordDoc.get("Range"); });
    }

    void setUpPage() {
        const auto putSetup = [&](std::string_view member, int value) {
            m_step([&] { m_wordDoc.get("PageSetup").put(member, value); });
        };
        putSetup("Orientation", landscape);
        putSetup("PageWidth", 800);
        putSetup("LeftMargin", 100);
        putSetup("TopMargin", 72);
        putSetup("BottomMargin", 36);
        putSetup("RightMargin", 72);
    }

    /// Title, heading and usage text in front of a collapsed range.
    void writeTitle(const WordRef& range, const std::string& title) {
        insert(range, "InsertBefore", title);
        putFont(range, "Name", "Arial");
        putFont(range, "Size", 20);
        putFont(range, "Bold", true);
        collapse(range);
        insert(range, "InsertBefore", "Usage Instructions:" + lineEnd);
        putSmallFont(range, true);
        collapse(range);
        insert(range, "InsertBefore", usageText() + lineEnd);
        putSmallFont(range, false);
        collapse(range);
    }

    void putSmallFont(const WordRef& range, bool bold) {
        putFont(range, "Size", 10);
        putFont(range, "Bold", bold);
        putFont(range, "Name", "Arial");
    }

    void writeOpening() {
        writeTitle(m_docRange, "SWOT Analysis - Correlation Report" + lineEnd + lineEnd);
    }

    void addTable() {
        assign(m_currentTable, [&] {
            return m_wordDoc.get("Tables").get("Add", {endRange().value(), 1, 3});
        });
    }

    void putHeaderLook() {
        for (const int column : {1, 2, 3})
            m_step([&] { cell(1, column).put("VerticalAlignment", verticallyCentred); });
    }

    void shade(int rowNumber, int colour) {
        m_step([&] {
            row(rowNumber).get("Range").get("Shading").put("BackgroundPatternColor", colour);
        });
    }

    void putParagraphFormat(int rowNumber, std::string_view member, const WordValue& value) {
        m_step([&] {
            row(rowNumber).get("Range").get("Paragraphs").get("Format").put(member, value);
        });
    }

    void putColumnWidths() {
        setWidth(m_currentTable, 1, 330);
        setWidth(m_currentTable, 2, 30);
        setWidth(m_currentTable, 3, 250);
    }

    void setWidth(const WordRef& table, int column, int points) {
        m_step([&] {
            table.get("Columns").item(column).call("SetWidth", {points, keepRightEdge});
        });
    }

    void putBorders(const WordRef& table, bool on) {
        m_step([&] { table.get("Borders").put("Enable", on); });
    }

    void centre(int rowNumber, int column) {
        m_step([&] {
            cell(rowNumber, column).get("Range").get("Paragraphs").put("Alignment", alignCentred);
        });
    }

    void writeCorrelationHead(const CorrelationTable& table) {
        addParagraphAtEnd();
        addTable();
        if (table.setsPreferredWidth) put(m_currentTable, "PreferredWidth", 576);
        m_step([&] { m_currentTable.get("Rows").put("HeightRule", atLeast); });
        writeCorrelationHeading(table);
        writePriorityHeading();
        writeActionHeading("Action Plan");
        putHeaderLook();
        centre(1, 2);
        putParagraphFormat(1, "SpaceBefore", 6);
        putParagraphFormat(1, "SpaceAfter", 6);
        shade(1, headerGrey);
        putBorders(m_currentTable, true);
        putColumnWidths();
        m_tableRow = 1;
        m_groupOpen = false;
        m_priorityNumber = 0;
    }

    void writeCorrelationHeading(const CorrelationTable& table) {
        const WordRef range = with([&] { return cell(1, 1).get("Range"); });
        putFont(range, "Size", 12);
        putFont(range, "Italic", true);
        putFont(range, "Bold", true);
        insert(range, "InsertAfter", std::string(table.word) + lineEnd);
        m_step([&] { cell(1, 1).call("Select"); });
        put(m_wordSelection, "ExtendMode", true);
        m_step([&] {
            m_wordSelection.call("MoveRight", {byCharacter, static_cast<int>(table.word.size())});
        });
        const WordRef word = with([&] { return m_wordSelection.get("Range"); });
        putFont(word, "Name", "Arial");
        putFont(word, "Size", 18);
        putFont(word, "Bold", true);
        putFont(word, "Italic", false);
        insert(range, "InsertAfter", "     +Strength / -Weakness");
    }

    void writePriorityHeading() {
        const WordRef range = with([&] { return cell(1, 2).get("Range"); });
        put(range, "Text", "Priority");
        put(range, "Orientation", textUpward);
        putFont(range, "Name", "Arial");
        putFont(range, "Size", 12);
        putFont(range, "Bold", true);
    }

    void writeActionHeading(const std::string& heading) {
        const WordRef range = with([&] { return cell(1, 3).get("Range"); });
        insert(range, "InsertBefore", heading);
        putFont(range, "Name", "Arial");
        putFont(range, "Size", 16);
        putFont(range, "Bold", true);
    }

    void writeCorrelationBody(const CorrelationTable& table) {
        ReportRow entryRow{};
        for (const std::string& entry : (m_lists.*table.entries).entries()) {
            if (!classifyEntry(entry, entryRow)) continue;
            if (entryRow.kind == ReportRowKind::Parent)
                writeStatementRow(table, std::string(entryRow.text));
            else
                writeMappedRow(table, entryRow.kind == ReportRowKind::Strength ? "+" : "-",
                               std::string(entryRow.text));
        }
        putHeavyEdges();
    }

    void writeMappedRow(const CorrelationTable& table, const std::string& sign,
                        const std::string& text) {
        if (!m_groupOpen)
            openGroup(table);
        else
            addSubRow();
        const auto subCell = [&](int column) {
            return m_subTable.get("Cell", {m_subRow, column}).get("Range");
        };
        m_step([&] { subCell(1).get("Paragraphs").put("Alignment", alignCentred); });
        m_step([&] { subCell(1).put("Text", sign); });
        m_step([&] { subCell(2).put("Text", text); });
        m_groupOpen = true;
    }

    void addRow() {
        m_step([&] { m_currentTable.get("Rows").call("Add"); });
        ++m_tableRow;
    }

    void addSubRow() {
        m_step([&] { m_subTable.get("Rows").call("Add"); });
        ++m_subRow;
    }

    void openGroup(const CorrelationTable& table) {
        addRow();
        const WordRef range = with([&] { return row(m_tableRow).get("Range"); });
        putFont(range, "Name", "Arial");
        putFont(range, "Size", 10);
        if (table.loosensGroups) putParagraphFormat(m_tableRow, "KeepWithNext", false);
        assign(m_subTable, [&] {
            return m_wordSelection.get("Tables").get(
                "Add", {cell(m_tableRow, 1).get("Range").value(), 1, 2});
        });
        putBorders(m_subTable, false);
        const WordRef subRange = with([&] { return m_subTable.get("Range"); });
        putFont(subRange, "Bold", false);
        putFont(subRange, "Name", "Arial");
        putFont(subRange, "Size", 10);
        for (const std::string_view member : {"SpaceBefore", "SpaceAfter"})
            m_step([&] { subRange.get("Paragraphs").get("Format").put(member, 3); });
        setWidth(m_subTable, 1, 20);
        setWidth(m_subTable, 2, 300);
        m_subRow = 1;
    }

    void writeStatementRow(const CorrelationTable& table, const std::string& text) {
        addRow();
        m_step([&] { row(m_tableRow).put("Height", 22); });
        shade(m_tableRow, rowGrey);
        const WordRef range = with([&] { return row(m_tableRow).get("Range"); });
        putFont(range, "Name", "Arial");
        putFont(range, "Size", 12);
        putFont(range, "Bold", true);
        putParagraphFormat(m_tableRow, "KeepWithNext", !table.textBeforeNumber);
        putParagraphFormat(m_tableRow, "SpaceBefore", 6);
        putParagraphFormat(m_tableRow, "SpaceAfter", 6);
        m_step([&] { range.get("Paragraphs").put("Alignment", alignLeft); });
        // A new row inherits the header's upward text.
        m_step([&] { cell(m_tableRow, 2).get("Range").put("Orientation", textHorizontal); });
        m_groupOpen = false;
        m_step([&] { m_priorityNumber = narrowed<std::int16_t>(m_priorityNumber + 1); });
        fillStatementRow(table, text);
    }

    void fillStatementRow(const CorrelationTable& table, const std::string& text) {
        const auto putNumber = [&] { putCellText(2, std::to_string(m_priorityNumber)); };
        const auto putBold = [&] {
            m_step([&] { row(m_tableRow).get("Range").put("Bold", true); });
        };
        if (!table.textBeforeNumber) {
            putNumber();
            putCellText(1, text);
            putBold();
            centre(m_tableRow, 2);
        } else {
            putCellText(1, text);
            putNumber();
            centre(m_tableRow, 2);
            putBold();
            putParagraphFormat(m_tableRow, "KeepWithNext", true);
        }
    }

    void putCellText(int column, const std::string& text) {
        m_step([&] { cell(m_tableRow, column).get("Range").put("Text", text); });
    }

    void putHeavyEdges() {
        m_step([&] {
            m_currentTable.get("Columns").item(3).get("Borders").item(rightEdge).put("LineWidth",
                                                                                     threePoints);
        });
        m_step(
            [&] { row(m_tableRow).get("Borders").item(bottomEdge).put("LineWidth", threePoints); });
    }

    void writeListOpening() {
        WordRef tailRange;
        assign(tailRange, [&] { return endRange(); });
        for (int i = 0; i < 2; ++i) m_step([&] { tailRange.call("InsertParagraphAfter"); });
        writeTitle(tailRange, lineEnd + "SWOT Analysis - List Report" + lineEnd);
        m_step([&] { tailRange.call("InsertParagraphAfter"); });
    }

    void writeListTable(const ListTable& table) {
        if (&table != &listTables.front()) addParagraphAtEnd();
        addTable();
        writeListHead(std::string(table.name));
        m_tableRow = 1;
        const auto& entries = (m_lists.*table.entries).entries();
        for (std::size_t slot = 0; slot < entries.size(); ++slot) {
            if (const auto parts = partsOf<2>(entries[slot], rowFieldDelimiter))
                writeListRow(std::string(parts->back()), slot + 1);
        }
        m_step([&] { row(1).put("HeadingFormat", true); });
        putHeavyEdges();
    }

    void writeListHead(const std::string& name) {
        const WordRef whole = with([&] { return m_currentTable.get("Range"); });
        putFont(whole, "Name", "Arial");
        putFont(whole, "Size", 12);
        putFont(whole, "Bold", true);
        const WordRef heading = with([&] { return cell(1, 1).get("Range"); });
        insert(heading, "InsertBefore", name);
        putFont(heading, "Size", 20);
        const WordRef priority = with([&] { return cell(1, 2).get("Range"); });
        put(priority, "Text", "Priority");
        put(priority, "Orientation", textUpward);
        const WordRef comments = with([&] { return cell(1, 3).get("Range"); });
        insert(comments, "InsertBefore", "Comments");
        putFont(comments, "Size", 16);
        putHeaderLook();
        shade(1, headerGrey);
        putParagraphFormat(1, "KeepWithNext", true);
        putBorders(m_currentTable, true);
        putColumnWidths();
    }

    void writeListRow(const std::string& text, std::size_t place) {
        addRow();
        m_step([&] { row(m_tableRow).get("Range").get("Font").put("Size", 12); });
        shade(m_tableRow, rowGrey);
        m_step([&] { row(m_tableRow).put("Height", 22); });
        m_step([&] { cell(m_tableRow, 2).get("Range").put("Orientation", textHorizontal); });
        putCellText(1, text);
        putCellText(2, std::to_string(place));
        centre(m_tableRow, 2);
        putParagraphFormat(m_tableRow, "KeepWithNext", true);
        for (const std::string_view member : {"SpaceAfter", "SpaceBefore"})
            m_step([&] { row(m_tableRow).get("Range").get("Paragraphs").put(member, 6); });
    }

    Program& m_program;
    const BestEffort m_step{};
    ReportLists m_lists;
    WordRef m_wordApp, m_wordDoc, m_wordSelection, m_docRange, m_currentTable, m_subTable;
    int m_tableRow = 0, m_subRow = 0;
    bool m_groupOpen = false;
    std::int16_t m_priorityNumber = 0;
};

}  // namespace

void generateWordReport(Program& program, const std::string& analyzeFile,
                        const std::string& targetFile) {
    if (!fileExists(program, analyzeFile))
        return refuse(program.platform.messages, missingAnalyzeFileMessage);
    program.platform.modalForms.setWaitCursor(true);
    Script(program).run(analyzeFile, targetFile);
    program.platform.modalForms.setWaitCursor(false);
}

}  // namespace orvanta
