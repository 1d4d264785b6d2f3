#include "floors.h"

#include <utility>

namespace orvanta::benchmarks {

namespace {

constexpr std::string_view between = "<!-SWOT-!>";

/// Hands each line between two tags to `take`, with the word of the tags.
template <class Take>
void readLines(std::string_view bytes, Take take) {
    std::string_view word;
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, bytes.find('\r'));
        bytes.remove_prefix(line.size() + 2);
        if (line.starts_with("</"))
            word = {};
        else if (word.empty())
            word = line.substr(1, line.size() - 2);
        else
            take(word, line);
    }
}

FloorList& listOf(std::string_view word, FloorLists& lists) {
    const auto found = lists.find(word);
    return found != lists.end() ? found->second : lists[std::string(word)];
}

}  // namespace

void FloorList::add(FloorRow row) {
    m_rows.push_back(std::move(row));
    m_keys.insert(m_rows.back().key);
}

void readBrainstormFile(std::string_view bytes, FloorLists& lists) {
    std::string name;
    readLines(bytes, [&](std::string_view word, std::string_view line) {
        if (word == "NAME") {
            name = "[" + std::string(line) + "]: ";
        } else if (word != "MODULE") {
            FloorList& list = listOf(word, lists);
            list.add({word[0] + std::to_string(list.rows().size() + 1), name, std::string(line)});
        }
    });
}

FloorLists readAnalysis(std::string_view bytes) {
    FloorLists lists;
    readLines(bytes, [&](std::string_view word, std::string_view line) {
        if (word == "MODULE") return;
        const auto first = line.find(between), second = line.find(between, first + 1);
        const auto name = first + between.size(), text = second + between.size();
        listOf(word, lists)
            .add({std::string(line.substr(0, first)), std::string(line.substr(name, second - name)),
                  std::string(line.substr(text))});
    });
    return lists;
}

std::string writtenAnalysis(const FloorLists& lists) {
    std::string bytes = "<MODULE>\r\nMP\r\n</MODULE>\r\n";
    for (const auto& [word, list] : lists) {
        bytes.append("<").append(word).append(">\r\n");
        for (const FloorRow& row : list.rows()) {
            bytes.append(row.key).append(between).append(row.name).append(between);
            bytes.append(row.text).append("\r\n");
        }
        bytes.append("</").append(word).append(">\r\n");
    }
    return bytes;
}

std::string writtenPage(const FloorLists& lists) {
    std::string page;
    for (const auto* word : {"OPPORTUNITYMAPPING", "THREATMAPPING"}) {
        for (const FloorRow& row : lists.find(word)->second.rows()) {
            if (row.key.find('-') == std::string::npos)
                page.append("<tr><td><strong> ").append(row.text).append("</strong>\r\n");
            else
                page.append("<tr><td width='10%' align='center'>+</td><td>")
                    .append(row.text)
                    .append("</td></tr>\r\n");
        }
    }
    return page;
}

}  // namespace orvanta::benchmarks
