#include "reports/html_report.h"

#include "core/failures.h"
#include "core/files.h"
#include "core/messages.h"
#include "reports/report_source.h"
#include "view/within_memory.h"

namespace orvanta {

namespace {

constexpr std::string_view head[] = {
    "<table width='85%' border='1' align='center' cellpadding='0' cellspacing='0'>",
    "<tr bgcolor='#003399'><td width='50%' height='30' bgcolor='#003399'>",
    "<strong><font color='#FFFFFF' face='Verdana, Arial, Helvetica, sans-serif'>",
    "Opportunity / Threat<br>&nbsp;&nbsp;&nbsp;&nbsp;+Strength / -Weakness</font></strong></td>",
    ("<td width='10%' height='30'><strong><font color='#FFFFFF' face='Verdana, Arial, Helvetica, "
     "sans-serif'>Priority</font></strong></td>"),
    ("<td width='40%' height='30'><strong><font color='#FFFFFF' face='Verdana, Arial, Helvetica, "
     "sans-serif'>"),
    "Actions to Address</font></strong></td></tr>"};

class Page {
public:
    Page() {
        for (const std::string_view line : head) writeLine({line});
    }

    /// `eager`: a parent closes the row before it also where nothing was mapped under that one.
    /// Threats do not, so a threat without mapped rows runs into the next one. Meant so.
    void writeEntries(const ReportList& list, bool eager) {
        ReportRow row{};
        for (const std::string& entry : list.entries()) {
            if (!classifyEntry(entry, row)) continue;
            if (row.kind == ReportRowKind::Parent)
                writeParent(row.text, eager);
            else
                writeMapped(row.kind == ReportRowKind::Strength ? "+" : "-", row.text);
        }
        closeGroup();
        closeRow();
    }

    void writeEnd() { writeLine({"</table>"}); }

    /// What has been written so far.
    const std::string& bytes() const { return m_bytes; }

private:
    void writeLine(std::initializer_list<std::string_view> pieces) {
        for (const std::string_view piece : pieces) m_bytes += piece;
        m_bytes += "\r\n";
    }

    void writeMapped(std::string_view sign, std::string_view text) {
        if (!m_groupOpen)
            writeLine(
                {"<table width='90%' border='1' align='center' cellpadding='0' cellspacing='0'>"});
        writeLine({"<tr><td width='10%' align='center'>", sign, "</td><td>", text, "</td></tr>"});
        m_groupOpen = true;
    }

    void writeParent(std::string_view text, bool eager) {
        const bool closes = eager || m_groupOpen;
        closeGroup();
        if (closes) closeRow();
        writeLine({"<tr><td><strong> ", text, "</strong>"});
        m_priorityNumber = narrowed<std::int16_t>(m_priorityNumber + 1);
    }

    void closeGroup() {
        if (m_groupOpen) writeLine({"</table>"});
        m_groupOpen = false;
    }

    void closeRow() {
        if (m_priorityNumber == 0) return;
        writeLine({"</td><td align='center'>", std::to_string(m_priorityNumber),
                   "</td><td>&nbsp;</td></tr>"});
    }

    std::string m_bytes;
    bool m_groupOpen = false;
    std::int16_t m_priorityNumber = 0;
};

/// Writes an analysis down to its end, or as far as its groups can be numbered.
void writeAnalysis(Page& page, std::string_view bytes) {
    ReportLists lists;
    readReportSource(bytes, ReportScope::Correlation, lists);
    page.writeEntries(lists.opportunityMapEntries, true);
    page.writeEntries(lists.threatMapEntries, false);
    page.writeEnd();
}

}  // namespace

void generateHtmlReport(Program& program, const std::string& analyzeFile) {
    Disk& disk = program.platform.disk;
    if (!fileExists(program, analyzeFile))
        return refuse(program.platform.messages, missingAnalyzeFileMessage);
    const std::string path =
        program.scratchPath + pathSeparator + "System" + pathSeparator + "report.htm";
    Page page;
    try {
        withinMemory([&] { writeAnalysis(page, disk.read(analyzeFile)); });
    } catch (const Failure&) {
        // A page that breaks off can't be taken for the former one, which is of another analysis.
        disk.replaceOwn(path, page.bytes());
        throw;
    }
    disk.replaceOwn(path, page.bytes());
    program.platform.shell.open(path);
}

}  // namespace orvanta
