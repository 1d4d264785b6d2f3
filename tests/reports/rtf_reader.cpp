#include "rtf_reader.h"

#include <cctype>
#include <set>
#include <tuple>
#include <utility>

namespace orvanta::test {

namespace {

constexpr int twipsPerPoint = 20;

const std::set<std::string> knownWords{
    "ansi",     "ansicpg",  "deff",      "deflang",  "uc",           "rtf",       "paperw",
    "paperh",   "margl",    "margr",     "margt",    "margb",        "landscape", "sectd",
    "pgwsxn",   "pghsxn",   "marglsxn",  "margrsxn", "margtsxn",     "margbsxn",  "lndscpsxn",
    "trgaph",   "trleft",   "trrh",      "trhdr",    "trkeep",       "trpaddl",   "trpaddr",
    "trpaddfl", "trpaddfr", "intbl",     "itap",     "ql",           "qc",        "sb",
    "sa",       "keepn",    "clvertalc", "clcbpat",  "cltxbtlr",     "cltxlrtb",  "clftsWidth",
    "clwWidth", "clpadl",   "clpadt",    "clpadb",   "clpadr",       "clpadfl",   "clpadft",
    "clpadfb",  "clpadfr",  "brdrs",     "s",        "outlinelevel", "widctlpar", "widowctrl"};

int valueOf(const RtfWords& words, const std::string& word) {
    const auto found = words.find(word);
    return found == words.end() ? 0 : found->second;
}

struct Token {
    enum class Kind { Open, Close, Word, Text, End } kind = Kind::End;
    std::string text{};
    int number = 1;  // of a word without one
};

class Tokens {
public:
    explicit Tokens(const std::string& bytes) : m_bytes(bytes) {}

    Token next() {
        while (m_at < m_bytes.size() && m_bytes[m_at] == '\n') ++m_at;
        if (m_at == m_bytes.size()) return {};
        const char character = m_bytes[m_at++];
        if (character == '{') return {Token::Kind::Open};
        if (character == '}') return {Token::Kind::Close};
        if (character == '\\') return escape();
        if (character < 32 || character > 126) throw RtfError("a byte that is not 7-bit text");
        return {Token::Kind::Text, std::string(1, character)};
    }

private:
    char at(std::size_t place) const { return place < m_bytes.size() ? m_bytes[place] : '\0'; }

    Token escape() {
        const char first = at(m_at);
        if (std::isalpha(static_cast<unsigned char>(first))) return word();
        ++m_at;
        if (first == '\\' || first == '{' || first == '}')
            return {Token::Kind::Text, std::string(1, first)};
        if (first == '~') return {Token::Kind::Text, "\xA0"};
        if (first == '*') return {Token::Kind::Word, "*"};
        if (first != '\'') throw RtfError("an unknown escape");
        const int byte = std::stoi(m_bytes.substr(m_at, 2), nullptr, 16);
        m_at += 2;
        return {Token::Kind::Text, std::string(1, static_cast<char>(byte))};
    }

    Token word() {
        Token token{Token::Kind::Word};
        while (std::isalpha(static_cast<unsigned char>(at(m_at)))) token.text += m_bytes[m_at++];
        std::string number;
        if (at(m_at) == '-') number += m_bytes[m_at++];
        while (std::isdigit(static_cast<unsigned char>(at(m_at)))) number += m_bytes[m_at++];
        if (!number.empty()) token.number = std::stoi(number);
        if (at(m_at) == ' ') ++m_at;
        if (token.text == "tab") return {Token::Kind::Text, "\t"};
        return token;
    }

    const std::string& m_bytes;
    std::size_t m_at = 0;
};

/// The rows and cells of one depth, while they are read.
struct Level {
    std::vector<RtfParagraph> paragraphs;  // of the cell
    std::vector<RtfRow> nested;            // of the cell
    std::vector<RtfCell> cells;            // of the row
};

class Reader {
public:
    explicit Reader(const std::string& bytes) : m_tokens(bytes) {}

    RtfDocument read() {
        if (m_tokens.next().kind != Token::Kind::Open) throw RtfError("no group at the start");
        if (m_tokens.next().text != "rtf") throw RtfError("no rtf at the start");
        group({});
        if (m_tokens.next().kind != Token::Kind::End) throw RtfError("more behind the end");
        if (!m_levels[0].cells.empty()) throw RtfError("a row without its end");
        return std::move(m_document);
    }

private:
    /// Everything up to the end of the group that has been opened.
    void group(RtfRun look) {
        for (Token token = m_tokens.next(); token.kind != Token::Kind::Close;
             token = m_tokens.next()) {
            if (token.kind == Token::Kind::End) throw RtfError("a group without its end");
            if (token.kind == Token::Kind::Open)
                inner(look);
            else if (token.kind == Token::Kind::Text)
                text(look, token.text);
            else
                word(look, token);
        }
    }

    void inner(const RtfRun& look) {
        const Token first = m_tokens.next();
        if (first.text == "fonttbl") return fonts();
        if (first.text == "colortbl") return colours();
        if (first.text == "stylesheet") return styles();
        if (first.text == "info") return title();
        if (first.text == "nonesttables") return skip();
        if (first.text == "*") {
            if (m_tokens.next().text != "nesttableprops") throw RtfError("an unknown destination");
            return nestedRow();
        }
        RtfRun own = look;
        if (first.kind != Token::Kind::Word) throw RtfError("a group without a look");
        word(own, first);
        group(own);
    }

    /// The outer row keeps its definition meanwhile.
    void nestedRow() {
        const auto outer = std::tuple(m_rowDefinition, m_cellDefinitions);
        group({});
        std::tie(m_rowDefinition, m_cellDefinitions) = outer;
    }

    void skip() {
        for (Token token = m_tokens.next(); token.kind != Token::Kind::Close;
             token = m_tokens.next()) {
            if (token.kind == Token::Kind::End) throw RtfError("a group without its end");
            if (token.kind == Token::Kind::Open) skip();
        }
    }

    void fonts() {
        for (Token open = m_tokens.next(); open.kind == Token::Kind::Open; open = m_tokens.next()) {
            const int number = m_tokens.next().number;
            std::string name;
            for (Token token = m_tokens.next(); token.kind != Token::Kind::Close;
                 token = m_tokens.next())
                if (token.kind == Token::Kind::Text && token.text != ";") name += token.text;
            m_fonts[number] = name;
        }
    }

    /// The name of each style, behind its words, with its number, 0 for the one without.
    void styles() {
        for (Token open = m_tokens.next(); open.kind == Token::Kind::Open; open = m_tokens.next()) {
            RtfStyle style;
            for (Token token = m_tokens.next(); token.kind != Token::Kind::Close;
                 token = m_tokens.next())
                if (token.kind == Token::Kind::Word)
                    style.words[token.text] = token.number;
                else if (token.text != ";")
                    style.name += token.text;
            m_document.styles[valueOf(style.words, "s")] = style;
        }
    }

    void title() {
        if (m_tokens.next().kind != Token::Kind::Open || m_tokens.next().text != "title")
            throw RtfError("other information than a title");
        for (Token token = m_tokens.next(); token.kind == Token::Kind::Text;
             token = m_tokens.next())
            m_document.title += token.text;
        if (m_tokens.next().kind != Token::Kind::Close) throw RtfError("more than a title");
    }

    void colours() {
        m_colours.emplace_back();
        for (Token token = m_tokens.next(); token.kind != Token::Kind::Close;
             token = m_tokens.next()) {
            std::string& colour = m_colours.back();
            if (token.text == ";")
                m_colours.emplace_back();
            else
                colour += (colour.empty() ? "" : ",") + std::to_string(token.number);
        }
    }

    void text(const RtfRun& look, const std::string& text) {
        if (!m_inParagraph || look.font.empty()) throw RtfError("text out of place: " + text);
        if (m_paragraph.runs.empty() || m_fresh) m_paragraph.runs.push_back(look);
        m_fresh = false;
        m_paragraph.runs.back().text += text;
    }

    void word(RtfRun& look, const Token& token) {
        const std::string& name = token.text;
        if (name == "pard") return startParagraph();
        if (name == "plain") return;
        if (name == "f" || name == "fs" || name == "b" || name == "i") return lookWord(look, token);
        if (name == "par") return endParagraph(look);
        if (name == "cell" || name == "nestcell") return endCell(look, name == "cell" ? 0 : 1);
        if (name == "row" || name == "nestrow") return endRow(name == "row" ? 0 : 1);
        if (name == "trowd") return startDefinition();
        if (name == "cellx") return defineCell(token.number);
        if (name.starts_with("clbrdr")) m_edge = name;
        if (name == "brdrw") m_cellDefinition[m_edge] = token.number;
        if (name.starts_with("clbrdr") || name == "brdrw") return;
        if (!knownWords.contains(name)) throw RtfError("an unknown word: " + name);
        keepWord(name, token.number);
    }

    void lookWord(RtfRun& look, const Token& token) {
        m_fresh = true;
        if (token.text == "f") {
            if (!m_fonts.contains(token.number)) throw RtfError("a font that is not listed");
            look.font = m_fonts[token.number];
        }
        if (token.text == "fs") look.size = token.number / 2;
        if (token.text == "b") look.bold = token.number != 0;
        if (token.text == "i") look.italic = token.number != 0;
    }

    void keepWord(const std::string& name, int number) {
        if (m_inParagraph)
            m_paragraph.words[name] = number;
        else if (m_inDefinition && name.starts_with("cl"))
            m_cellDefinition[name] = number;
        else if (m_inDefinition)
            m_rowDefinition[name] = number;
        else
            m_document.words[name] = number;
    }

    void startParagraph() {
        m_paragraph = {};
        m_inParagraph = true;
        m_inDefinition = false;
    }

    RtfParagraph endedParagraph(const RtfRun& look) {
        if (!m_inParagraph) throw RtfError("the end of a paragraph that was not begun");
        m_paragraph.runs.push_back(look);
        m_paragraph.runs.back().text.clear();
        m_inParagraph = false;
        return std::move(m_paragraph);
    }

    void endParagraph(const RtfRun& look) {
        const int depth = valueOf(m_paragraph.words, "itap");
        RtfParagraph paragraph = endedParagraph(look);
        if (depth == 0)
            m_document.body.emplace_back(std::move(paragraph));
        else
            level(depth - 1).paragraphs.push_back(std::move(paragraph));
    }

    Level& level(int depth) {
        if (depth < 0 || depth > 1) throw RtfError("tables within tables within tables");
        return m_levels[depth];
    }

    void endCell(const RtfRun& look, int depth) {
        if (valueOf(m_paragraph.words, "itap") != depth + 1)
            throw RtfError("a cell that ends at another depth than its paragraph");
        Level& current = level(depth);
        current.paragraphs.push_back(endedParagraph(look));
        RtfCell cell;
        cell.paragraphs = std::exchange(current.paragraphs, {});
        cell.nested = std::exchange(current.nested, {});
        current.cells.push_back(std::move(cell));
    }

    void startDefinition() {
        m_rowDefinition.clear();
        m_cellDefinitions.clear();
        m_cellDefinition.clear();
        m_inDefinition = true;
        m_inParagraph = false;
    }

    void defineCell(int right) {
        if (!m_inDefinition) throw RtfError("a cell that is defined outside a row");
        m_cellDefinition["cellx"] = right;
        m_cellDefinitions.push_back(std::exchange(m_cellDefinition, {}));
    }

    void endRow(int depth) {
        Level& current = level(depth);
        if (current.cells.size() != m_cellDefinitions.size())
            throw RtfError("a row with another number of cells than it defines");
        RtfRow row;
        row.words = m_rowDefinition;
        row.cells = std::exchange(current.cells, {});
        int left = valueOf(m_rowDefinition, "trleft");
        for (std::size_t i = 0; i < row.cells.size(); ++i)
            dress(row.cells[i], m_cellDefinitions[i], left);
        if (depth == 1)
            level(0).nested.push_back(std::move(row));
        else
            outerTable().push_back(std::move(row));
        m_inDefinition = false;
    }

    void dress(RtfCell& cell, const RtfWords& words, int& left) {
        cell.words = words;
        const int right = valueOf(words, "cellx");
        cell.width = (right - std::exchange(left, right)) / twipsPerPoint;
        if (valueOf(words, "clwWidth") != cell.width * twipsPerPoint)
            throw RtfError("a cell with two widths");
        if (words.contains("clcbpat"))
            cell.background = m_colours.at(static_cast<std::size_t>(words.at("clcbpat")));
        cell.top = valueOf(words, "clbrdrt");
        cell.left = valueOf(words, "clbrdrl");
        cell.bottom = valueOf(words, "clbrdrb");
        cell.right = valueOf(words, "clbrdrr");
    }

    RtfTable& outerTable() {
        if (m_document.body.empty() || !std::holds_alternative<RtfTable>(m_document.body.back()))
            m_document.body.emplace_back(RtfTable{});
        return std::get<RtfTable>(m_document.body.back());
    }

    Tokens m_tokens;
    RtfDocument m_document;
    std::map<int, std::string> m_fonts;
    std::vector<std::string> m_colours;
    Level m_levels[2];
    RtfParagraph m_paragraph;
    RtfWords m_rowDefinition, m_cellDefinition;
    std::vector<RtfWords> m_cellDefinitions;
    std::string m_edge;
    bool m_inParagraph = false, m_inDefinition = false, m_fresh = false;
};

}  // namespace

std::string RtfParagraph::text() const {
    std::string text;
    for (const RtfRun& run : runs) text += run.text;
    return text;
}

std::string RtfCell::text() const {
    std::string text;
    for (const RtfParagraph& paragraph : paragraphs)
        text += (&paragraph == &paragraphs.front() ? "" : "\n") + paragraph.text();
    return text;
}

std::vector<RtfTable> RtfDocument::tables() const {
    std::vector<RtfTable> tables;
    for (const auto& block : body)
        if (const auto* table = std::get_if<RtfTable>(&block)) tables.push_back(*table);
    return tables;
}

std::vector<std::string> RtfDocument::outline() const {
    std::vector<std::string> outline;
    for (const auto& block : body) {
        const auto* paragraph = std::get_if<RtfParagraph>(&block);
        outline.push_back(paragraph ? paragraph->text() : "#");
    }
    return outline;
}

RtfDocument readRtf(const std::string& bytes) { return Reader(bytes).read(); }

}  // namespace orvanta::test
