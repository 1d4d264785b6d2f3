#include "expectation.h"

#include <algorithm>
#include <map>

#include "core/text.h"
#include "view/windows1252.h"

namespace orvanta::readers {

namespace {

struct FileLine {
    std::string key, text;
};
using Sections = std::map<std::string, std::vector<FileLine>>;

Sections sectionsOf(const std::string& analysis) {
    Sections sections;
    std::string open;
    LineSource lines(analysis);
    while (const auto line = lines.next()) {
        if (line->starts_with("</")) {
            open.clear();
        } else if (line->starts_with("<")) {
            open = line->substr(1, line->size() - 2);
        } else {
            const auto fields = splitAt(*line, "<!-SWOT-!>");
            if (fields.size() == 3)
                sections[open].push_back(
                    {std::string(fields[0]), utf8From1252(std::string(fields[2]))});
        }
    }
    return sections;
}

std::vector<ExpectedRow> mappingRows(const std::vector<FileLine>& lines) {
    std::vector<ExpectedRow> rows;
    for (const FileLine& line : lines) {
        const auto hyphen = line.key.find('-');
        if (hyphen == std::string::npos)
            rows.push_back({line.text, std::to_string(rows.size() + 1), {}});
        else
            rows.back().mapped.push_back({line.key[hyphen + 1] == 'S' ? "+" : "-", line.text});
    }
    return rows;
}

std::vector<ExpectedRow> listRows(const std::vector<FileLine>& lines) {
    std::vector<ExpectedRow> rows;
    rows.reserve(lines.size());
    for (const FileLine& line : lines)
        rows.push_back({line.text, std::to_string(rows.size() + 1), {}});
    return rows;
}

std::vector<std::string> paragraphs(const std::string& title) {
    return {title, "Usage Instructions:",
            "Edit this table as required in your word processor. You can also copy any table below "
            "into PowerPoint by selecting the table and copying it to the Windows Clipboard (click "
            "anywhere inside table, then select from the Word menu: Table, Select, Table, then "
            "Edit, Copy) and then pasting it into any other Windows application."};
}

}  // namespace

std::vector<ExpectedPart> expectedFrom(const std::string& analysis) {
    Sections sections = sectionsOf(analysis);
    const auto correlation = [&](const std::string& name, const std::string& section) {
        return ExpectedTable{
            true, {name, "+Strength / -Weakness"}, "Action Plan", mappingRows(sections[section])};
    };
    const auto list = [&](const std::string& name, const std::string& section) {
        return ExpectedTable{false, {name}, "Comments", listRows(sections[section])};
    };
    return {{paragraphs("SWOT Analysis - Correlation Report"),
             {correlation("Opportunities", "OPPORTUNITYMAPPING"),
              correlation("Threats", "THREATMAPPING")}},
            {paragraphs("SWOT Analysis - List Report"),
             {list("Opportunities", "OPPORTUNITY"), list("Threats", "THREATS"),
              list("Strengths", "STRENGTH"), list("Weaknesses", "WEAKNESS")}}};
}

std::vector<std::string> textsOf(const std::vector<ExpectedPart>& parts) {
    std::vector<std::string> texts;
    const auto add = [&](const std::vector<std::string>& more) {
        texts.insert(texts.end(), more.begin(), more.end());
    };
    for (const ExpectedPart& part : parts) {
        add(part.paragraphs);
        for (const ExpectedTable& table : part.tables) {
            add(table.heading);
            add({"Priority", table.lastHeading});
            for (const ExpectedRow& row : table.rows) {
                add({row.text, row.number});
                for (const MappedRow& mapped : row.mapped) add({mapped.sign, mapped.text});
            }
        }
    }
    return texts;
}

std::string withoutBlanks(const std::string& utf8) {
    std::string text = utf8;
    for (const std::string blank : {" ", "\t", "\n", "\r", "\u00A0", "\u2006"})
        text = replaceAll(text, blank, "");
    return text;
}

void compare(const std::string& what, const std::string& read, const std::string& expected) {
    const std::string a = withoutBlanks(read), b = withoutBlanks(expected);
    if (a == b) return;
    const auto parting = std::ranges::mismatch(a, b).in1 - a.begin();
    const auto from = static_cast<std::size_t>(std::max<std::ptrdiff_t>(parting - 30, 0));
    throw Mismatch{what + " reads\n  ..." + a.substr(from, 80) + "\nnot\n  ..." +
                   b.substr(from, 80)};
}

}  // namespace orvanta::readers
