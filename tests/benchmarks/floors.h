#pragma once

#include <boost/unordered/unordered_flat_set.hpp>
#include <deque>
#include <map>
#include <string>
#include <string_view>

namespace orvanta::benchmarks {

// Small programs that do the same reading, keying and writing as the heavy work, and nothing else:
// nobody watches their lists, nothing is shared, and only whole and well-kept files are read. The
// work is measured beside them.

struct FloorRow {
    std::string key, name, text;
};

/// Rows in order, and each found by its key.
class FloorList {
public:
    void add(FloorRow row);
    const std::deque<FloorRow>& rows() const { return m_rows; }

private:
    std::deque<FloorRow> m_rows;  // stay in place, as the keys are views of them
    boost::unordered_flat_set<std::string_view> m_keys;
};

/// By the word of the section, in the order of the alphabet.
using FloorLists = std::map<std::string, FloorList, std::less<>>;

/// Adds the statements of a brainstorm file, with new keys.
void readBrainstormFile(std::string_view bytes, FloorLists& lists);
FloorLists readAnalysis(std::string_view bytes);
std::string writtenAnalysis(const FloorLists& lists);
/// A page of the mapping lists, a line for each row.
std::string writtenPage(const FloorLists& lists);

}  // namespace orvanta::benchmarks
