#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// An ordered list of report entries. Starting it anew keeps the old entries: those that are
/// not overwritten stay.
class ReportList {
public:
    void add(std::string entry);
    void startAnew() { m_count = 0; }

    /// Each entry is key, row field delimiter, text.
    const std::vector<std::string>& entries() const { return m_entries; }

private:
    std::vector<std::string> m_entries;
    std::size_t m_count = 0;
};

struct ReportLists {
    ReportList opportunityEntries, threatEntries, strengthEntries, weaknessEntries,
        opportunityMapEntries, threatMapEntries;
};

/// The web page shows the correlation alone; the document lists all statements too.
enum class ReportScope { Correlation, Everything };

/// Sorts the lines of an analyze file into the lists.
void readReportSource(std::string_view bytes, ReportScope scope, ReportLists& lists);

enum class ReportRowKind { Parent, Strength, Weakness };

struct ReportRow {
    ReportRowKind kind;
    std::string_view text;
};

/// What an entry of a mapping list is, by its key. False for an entry without exactly a key and
/// a text; `row` views the entry.
bool classifyEntry(std::string_view entry, ReportRow& row);

}  // namespace orvanta
