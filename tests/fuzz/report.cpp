// An analyze file of any bytes is sorted into the lists of a report. The two reports read the same
// correlation; entries without marks are a key and a text. The web page ends as a page does and
// the document is made whatever stands in the file: 7-bit, its braces balanced to the last one,
// with a cell for each that a row tells of, and without any word but those of plain text and
// tables, so that nothing that a file holds acts in a word processor.

#include <algorithm>
#include <set>

#include "core/constants.h"
#include "core/text.h"
#include "fuzzed_program.h"
#include "reports/html_report.h"
#include "reports/report_source.h"
#include "reports/word_report.h"

namespace orvanta::fuzz {

namespace {

using Entries = std::vector<std::string>;

const std::set<std::string_view> knownWords{
    "rtf",     "ansi",      "ansicpg",   "deff",         "deflang",      "uc",
    "fonttbl", "f",         "fswiss",    "froman",       "fcharset",     "colortbl",
    "red",     "green",     "blue",      "stylesheet",   "ql",           "widctlpar",
    "fs",      "lang",      "s",         "keepn",        "outlinelevel", "sbasedon",
    "info",    "title",     "paperw",    "paperh",       "margl",        "margr",
    "margt",   "margb",     "landscape", "widowctrl",    "sectd",        "pgwsxn",
    "pghsxn",  "marglsxn",  "margrsxn",  "margtsxn",     "margbsxn",     "lndscpsxn",
    "pard",    "plain",     "intbl",     "itap",         "qc",           "sb",
    "sa",      "b",         "i",         "par",          "cell",         "row",
    "trhdr",   "trkeep",    "nestcell",  "nonesttables", "tab",          "nesttableprops",
    "nestrow", "line",      "trowd",     "trgaph",       "trleft",       "trrh",
    "trpaddl", "trpaddr",   "trpaddfl",  "trpaddfr",     "clftsWidth",   "clwWidth",
    "cellx",   "clvertalc", "clbrdrt",   "brdrs",        "brdrw",        "clbrdrl",
    "clbrdrb", "clbrdrr",   "clcbpat",   "cltxbtlr",     "cltxlrtb",     "clpadl",
    "clpadt",  "clpadb",    "clpadr",    "clpadfl",      "clpadft",      "clpadfb",
    "clpadfr"};

void requireEntries(const ReportLists& page, const ReportLists& document) {
    require(page.opportunityEntries.entries() == document.opportunityEntries.entries() &&
                page.threatEntries.entries() == document.threatEntries.entries() &&
                page.opportunityMapEntries.entries() == document.opportunityMapEntries.entries() &&
                page.threatMapEntries.entries() == document.threatMapEntries.entries(),
            "both reports read the same correlation");
    require(page.strengthEntries.entries().empty() && page.weaknessEntries.entries().empty(),
            "the page lists no statements");
    for (const ReportList* list : {&document.strengthEntries, &document.weaknessEntries,
                                   &document.opportunityEntries, &document.threatEntries})
        for (const std::string& entry : list->entries())
            require(splitAt(entry, rowFieldDelimiter).size() == 2, "an entry is a key and a text");
}

/// Counts the words of a document and looks at its braces.
class RtfWalk {
public:
    explicit RtfWalk(std::string_view bytes) : m_rest(bytes) {
        while (!m_rest.empty()) take();
        require(m_depth == 0 && m_opened, "the braces of a document are balanced");
    }

    std::ptrdiff_t count(std::string_view word) const {
        return static_cast<std::ptrdiff_t>(m_words.count(word));
    }

private:
    void take() {
        const char character = m_rest.front();
        require(static_cast<unsigned char>(character) < 128, "a document is 7-bit");
        require(!m_opened || m_depth > 0, "nothing follows the last brace");
        m_rest.remove_prefix(1);
        if (character == '\\') return takeWord();
        if (character == '{') ++m_depth, m_opened = true;
        if (character == '}') require(--m_depth >= 0, "no brace closes what is not open");
    }

    void takeWord() {
        const auto isLetter = [](char c) { return (c | 32) >= 'a' && (c | 32) <= 'z'; };
        const auto end = std::ranges::find_if_not(m_rest, isLetter);
        const auto length = static_cast<std::size_t>(end - m_rest.begin());
        if (length > 0) {
            m_words.insert(m_rest.substr(0, length));
            require(knownWords.contains(m_rest.substr(0, length)), "no word of a document acts");
        } else {
            require(
                !m_rest.empty() && std::string_view("\\{}'~*").find(m_rest.front()) != m_rest.npos,
                "a sign is one of those that stand for characters");
        }
        m_rest.remove_prefix(std::max<std::size_t>(length, 1));
    }

    std::string_view m_rest;
    int m_depth = 0;
    bool m_opened = false;
    std::multiset<std::string_view> m_words;
};

}  // namespace

void tryInput(std::string_view bytes) {
    ReportLists page, document;
    readReportSource(bytes, ReportScope::Correlation, page);
    readReportSource(bytes, ReportScope::Everything, document);
    requireEntries(page, document);

    FuzzedProgram fuzzed;
    fuzzed.disk.files["docs/team.aze"] = bytes;
    generateHtmlReport(fuzzed.program(), "docs/team.aze");
    require(fuzzed.disk.files.at("app/System/report.htm").ends_with("</table>\r\n"),
            "a page ends with its table");
    generateWordReport(fuzzed.program(), "docs/team.aze", "docs/team.rtf");
    require(fuzzed.disk.files.contains("docs/team.rtf"), "a document is made of any file");
    const RtfWalk words(fuzzed.disk.files.at("docs/team.rtf"));
    require(words.count("cellx") == words.count("cell") + words.count("nestcell"),
            "there is a cell for each that a row tells of");
    require(words.count("trowd") == words.count("row") + words.count("nestrow"),
            "each row that begins ends");
}

}  // namespace orvanta::fuzz
