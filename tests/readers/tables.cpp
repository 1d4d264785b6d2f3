#include <cmath>

#include "checks.h"

namespace orvanta::readers {

namespace {

/// The properties that the automatic styles of a document give, by style.
class Styles {
public:
    explicit Styles(const Node& document) {
        for (const Node* styles : document.within("office:automatic-styles"))
            for (const Node* style : styles->all("style:style")) {
                auto& properties = m_properties[style->attribute("style:name")];
                for (const Node& child : style->children)
                    properties.insert(child.attributes.begin(), child.attributes.end());
            }
    }

    std::string of(const Node& element, const std::string& kind,
                   const std::string& property) const {
        const auto style = m_properties.find(element.attribute(kind + ":style-name"));
        if (style == m_properties.end()) return {};
        const auto found = style->second.find(property);
        return found == style->second.end() ? std::string() : found->second;
    }

private:
    std::map<std::string, std::map<std::string, std::string>> m_properties;
};

void require(bool holds, const std::string& what) {
    if (!holds) throw Mismatch{what};
}

long pointsFrom(const std::string& inches) {
    require(inches.ends_with("in"), "a size that is not in inches: " + inches);
    return std::lround(std::stod(inches) * 72);
}

class TableCheck {
public:
    TableCheck(const Styles& styles, const Node& table, const ExpectedTable& expected,
               std::string name)
        : m_styles(styles), m_table(table), m_expected(expected), m_name(std::move(name)) {}

    void run() {
        const auto rows = m_table.all("table:table-row");
        std::size_t count = 1;
        for (const ExpectedRow& row : m_expected.rows) count += row.mapped.empty() ? 1 : 2;
        require(rows.size() == count, m_name + " has " + std::to_string(rows.size()) +
                                          " rows, not " + std::to_string(count));
        checkWidths(m_table, {330, 30, 250});
        checkHeading(*rows.front());
        std::size_t at = 1;
        for (const ExpectedRow& row : m_expected.rows) {
            checkStatement(*rows[at++], row);
            if (!row.mapped.empty()) checkGroup(*rows[at++], row);
        }
        for (const Node* row : rows) checkEdges(*row, row == rows.back());
    }

private:
    std::string ofCell(const Node& cell, const std::string& property) const {
        return m_styles.of(cell, "table", property);
    }

    void checkWidths(const Node& table, const std::vector<long>& points) const {
        const auto columns = table.all("table:table-column");
        require(columns.size() == points.size(), m_name + " has another number of columns");
        for (std::size_t i = 0; i < points.size(); ++i)
            require(
                pointsFrom(m_styles.of(*columns[i], "table", "style:column-width")) == points[i],
                m_name + " has another width of column " + std::to_string(i + 1));
    }

    std::vector<const Node*> cells(const Node& row) const {
        auto cells = row.all("table:table-cell");
        require(cells.size() == 3, m_name + " has a row of another number of cells");
        return cells;
    }

    void checkHeading(const Node& row) const {
        const auto cell = cells(row);
        std::string heading;
        for (const std::string& line : m_expected.heading) heading += line;
        compare(m_name + ", its name", cell[0]->allText(), heading);
        compare(m_name + ", second heading", cell[1]->allText(), "Priority");
        compare(m_name + ", third heading", cell[2]->allText(), m_expected.lastHeading);
        require(ofCell(*cell[1], "loext:writing-mode") == "bt-lr", m_name + ": no upward text");
        for (const Node* each : cell) {
            require(ofCell(*each, "fo:background-color") == "#cccccc", m_name + ": head not grey");
            require(ofCell(*each, "style:vertical-align") == "middle",
                    m_name + ": head not centred");
        }
        const std::string height = m_styles.of(row, "table", "style:min-row-height");
        require(m_expected.isCorrelation || pointsFrom(height) == 60,
                m_name + ": the head is too low for its upward text");
    }

    void checkStatement(const Node& row, const ExpectedRow& expected) const {
        const auto cell = cells(row);
        const std::string name = m_name + ", row " + expected.number;
        compare(name, cell[0]->allText(), expected.text);
        compare(name + ", number", cell[1]->allText(), expected.number);
        compare(name + ", third cell", cell[2]->allText(), "");
        require(pointsFrom(m_styles.of(row, "table", "style:min-row-height")) == 22,
                name + " has another least height");
        require(ofCell(*cell[1], "loext:writing-mode").empty(), name + ": the number is upward");
        for (const Node* each : cell)
            require(ofCell(*each, "fo:background-color") == "#fafafa",
                    name + " has another colour");
        const auto number = cell[1]->all("text:p");
        require(m_styles.of(*number.front(), "text", "fo:text-align") == "center",
                name + ": the number is not centred");
        const std::string kept = m_styles.of(*number.front(), "text", "fo:keep-with-next");
        require((kept == "always") == isKept(expected),
                name + (isKept(expected) ? " is not" : " is") + " kept with the next");
    }

    /// The one list that is too long for a page may part, but not in front of its last row.
    bool isKept(const ExpectedRow& row) const {
        constexpr std::size_t rowsOfAPage = 10;
        const std::size_t count = m_expected.rows.size();
        return m_expected.isCorrelation || count <= rowsOfAPage ||
               std::stoul(row.number) + 1 >= count;
    }

    void checkGroup(const Node& row, const ExpectedRow& expected) const {
        const auto cell = cells(row);
        const std::string name = m_name + ", group of row " + expected.number;
        compare(name + ", second cell", cell[1]->allText(), "");
        compare(name + ", third cell", cell[2]->allText(), "");
        const auto nested = cell[0]->all("table:table");
        require(nested.size() == 1, name + " has no table of its own");
        checkWidths(*nested.front(), {20, 300});
        const auto rows = nested.front()->all("table:table-row");
        require(rows.size() == expected.mapped.size(), name + " has another number of rows");
        for (std::size_t i = 0; i < rows.size(); ++i)
            checkMapped(*rows[i], expected.mapped[i], name);
    }

    void checkMapped(const Node& row, const MappedRow& expected, const std::string& name) const {
        const auto cell = row.all("table:table-cell");
        require(cell.size() == 2, name + " has a row of another number of cells");
        compare(name + ", a sign", cell[0]->allText(), expected.sign);
        compare(name + ", a text", cell[1]->allText(), expected.text);
        for (const Node* each : cell)
            require(ofCell(*each, "fo:border") == "none", name + " has borders");
        require(m_styles.of(*cell[0]->all("text:p").front(), "text", "fo:text-align") == "center",
                name + ": a sign is not centred");
    }

    /// The edge of a cell, told alone or with the other three.
    std::string edge(const Node& cell, const std::string& side) const {
        const std::string own = ofCell(cell, "fo:border-" + side);
        return own.empty() ? ofCell(cell, "fo:border") : own;
    }

    void checkEdges(const Node& row, bool isLast) const {
        for (const Node* cell : cells(row)) {
            const bool atRight = cell == row.all("table:table-cell").back();
            require(edge(*cell, "right").starts_with(atRight ? "3pt" : "0.5pt"),
                    m_name + " has another edge at right");
            require(edge(*cell, "bottom").starts_with(isLast ? "3pt" : "0.5pt"),
                    m_name + " has another edge below");
        }
    }

    const Styles& m_styles;
    const Node& m_table;
    const ExpectedTable& m_expected;
    std::string m_name;
};

void checkPage(const Node& document) {
    const auto layouts = document.within("style:page-layout-properties");
    for (const Node* layout : layouts) {
        if (layout->attribute("style:print-orientation") != "landscape") continue;
        for (const auto& [name, points] : {std::pair{"page-width", 800},
                                           {"page-height", 612},
                                           {"margin-left", 100},
                                           {"margin-top", 72},
                                           {"margin-right", 72},
                                           {"margin-bottom", 36}})
            require(pointsFrom(layout->attribute(std::string("fo:") + name)) == points,
                    std::string("the page has another ") + name);
        return;
    }
    throw Mismatch{"no landscape page"};
}

/// The first text of each half is a heading, and the first of all the title.
void checkHeadings(const Node& document, const std::vector<ExpectedPart>& expected) {
    std::string headings, read;
    for (const ExpectedPart& part : expected) headings += part.paragraphs.front() + "1";
    for (const Node* heading : document.within("text:h"))
        read += heading->allText() + heading->attribute("text:outline-level");
    compare("the headings", read, headings);
    const auto titles = document.within("dc:title");
    require(titles.size() == 1, "no title");
    compare("the title", titles.front()->allText(), expected.front().paragraphs.front());
}

}  // namespace

void checkTables(const Node& document, const std::vector<ExpectedPart>& expected) {
    checkPage(document);
    checkHeadings(document, expected);
    const Styles styles(document);
    const auto bodies = document.within("office:text");
    require(bodies.size() == 1, "no text");
    const auto tables = bodies.front()->within("table:table");
    std::size_t at = 0;
    for (const ExpectedPart& part : expected)
        for (const ExpectedTable& table : part.tables) {
            require(at < tables.size(), "too few tables");
            const std::string name = "table " + std::to_string(at + 1);
            TableCheck(styles, *tables[at++], table, name).run();
        }
    require(at == tables.size(), "too many tables");
}

}  // namespace orvanta::readers
