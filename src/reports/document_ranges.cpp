#include "reports/document_ranges.h"

#include <algorithm>
#include <cassert>

namespace orvanta::documentmodel {

namespace {

void putCharacter(CharacterFormat& format, std::string_view member, const WordValue& value) {
    if (member == "Name")
        format.font = valueOf<WordText>(value);
    else if (member == "Size")
        format.size = valueOf<int>(value);
    else if (member == "Bold")
        format.bold = valueOf<bool>(value);
    else if (member == "Italic")
        format.italic = valueOf<bool>(value);
    else
        refuseMember();
}

void putParagraph(ParagraphFormat& format, std::string_view member, const WordValue& value) {
    if (member == "Alignment")
        format.alignment = valueOf<int>(value) == 1 ? Alignment::Centred : Alignment::Left;
    else if (member == "SpaceBefore")
        format.spaceBefore = valueOf<int>(value);
    else if (member == "SpaceAfter")
        format.spaceAfter = valueOf<int>(value);
    else if (member == "KeepWithNext")
        format.keepWithNext = valueOf<bool>(value);
    else
        refuseMember();
}

/// A stretch of text, in the body or in cells.
class RangeObject : public ModelObject, public std::enable_shared_from_this<RangeObject> {
public:
    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member == "Font") return part(&RangeObject::putFont);
        if (member == "Paragraphs") return part(&RangeObject::putParagraphs);
        if (member == "Shading") return part(&RangeObject::putShading);
        refuseMember();
    }

    void put(std::string_view member, const WordValue& value) override {
        if (member == "Bold") return putFont(member, value);
        if (member != "Orientation") refuseMember();
        changeCells([&](DocumentCell& cell) {
            cell.direction =
                valueOf<int>(value) == 2 ? TextDirection::Upward : TextDirection::Horizontal;
        });
    }

protected:
    using CharacterChange = std::function<void(CharacterFormat&)>;
    using ParagraphChange = std::function<void(ParagraphFormat&)>;
    using CellChange = std::function<void(DocumentCell&)>;

    virtual void changeCharacters(const CharacterChange& change) = 0;
    virtual void changeParagraphs(const ParagraphChange& change) = 0;
    virtual void changeCells(const CellChange&) { refuseMember(); }

private:
    using Put = void (RangeObject::*)(std::string_view member, const WordValue& value);

    /// What a range has as an object of its own. Paragraphs takes the formats itself and through
    /// its Format.
    class Part : public ModelObject, public std::enable_shared_from_this<Part> {
    public:
        Part(std::shared_ptr<RangeObject> range, Put put) : m_range(std::move(range)), m_put(put) {}

        WordObjectPtr get(std::string_view member, const WordArguments&) override {
            if (m_put != &RangeObject::putParagraphs || member != "Format") refuseMember();
            return shared_from_this();
        }
        void put(std::string_view member, const WordValue& value) override {
            ((*m_range).*m_put)(member, value);
        }

    private:
        std::shared_ptr<RangeObject> m_range;
        Put m_put;
    };

    WordObjectPtr part(Put put) { return std::make_shared<Part>(shared_from_this(), put); }

    void putFont(std::string_view member, const WordValue& value) {
        changeCharacters([&](CharacterFormat& format) { putCharacter(format, member, value); });
    }
    void putParagraphs(std::string_view member, const WordValue& value) {
        changeParagraphs([&](ParagraphFormat& format) { putParagraph(format, member, value); });
    }
    void putShading(std::string_view member, const WordValue& value) {
        if (member != "BackgroundPatternColor") refuseMember();
        changeCells([&](DocumentCell& cell) { cell.shading = valueOf<int>(value); });
    }
};

TablePtr newTable(int rows, int columns, const DocumentParagraph& like) {
    if (rows < 1 || columns < 1) refuseMember();
    auto table = std::make_shared<DocumentTable>();
    table->columnWidths.assign(static_cast<std::size_t>(columns), 100);
    for (int i = 0; i < rows; ++i) {
        DocumentRow row;
        for (int j = 0; j < columns; ++j) {
            auto cell = std::make_shared<DocumentCell>();
            cell->story.lastParagraph() = like;
            cell->story.lastParagraph().runs.clear();
            row.cells.push_back(std::move(cell));
        }
        table->rows.push_back(std::move(row));
    }
    return table;
}

TablePtr insertTableInto(Story& story, std::size_t block, int rows, int columns) {
    const auto* like = std::get_if<DocumentParagraph>(&story.blocks[block]);
    if (!like) refuseMember();
    TablePtr table = newTable(rows, columns, *like);
    story.blocks.insert(story.blocks.begin() + static_cast<std::ptrdiff_t>(block), table);
    return table;
}

/// A range of the body of a document.
class BodyRange : public RangeObject, public TablePlace {
public:
    BodyRange(DocumentPtr document, StoryPlace start, StoryPlace end, FinalMark finalMark)
        : m_document(std::move(document)), m_start(start), m_end(end), m_finalMark(finalMark) {
        assert(start.block <= end.block && end.block < m_document->body.blocks.size());
    }

    void call(std::string_view member, const WordArguments& arguments) override {
        if (member == "InsertBefore") return insertBefore(argument<WordText>(arguments, 0));
        if (member == "InsertAfter" || member == "InsertParagraphAfter") {
            const bool isText = member == "InsertAfter";
            m_end = insertText(m_document->body, m_end,
                               isText ? argument<WordText>(arguments, 0) : "\r\n");
        } else if (member == "Collapse") {
            if (argument<int>(arguments, 0) != 0) refuseMember();
            m_start = m_end;
            m_finalMark = FinalMark::Excluded;
        } else {
            refuseMember();
        }
    }

    TablePtr insertTable(int rows, int columns) override {
        return insertTableInto(m_document->body, m_end.block, rows, columns);
    }

protected:
    void changeCharacters(const CharacterChange& change) override {
        orvanta::changeCharacters(m_document->body, m_start, m_end,
                                  m_finalMark == FinalMark::Included, change);
    }
    void changeParagraphs(const ParagraphChange& change) override {
        for (std::size_t block = m_start.block; block <= m_end.block; ++block)
            if (auto* paragraph = std::get_if<DocumentParagraph>(&m_document->body.blocks[block]))
                change(paragraph->format);
    }

private:
    /// The range grows over the new text in front of it.
    void insertBefore(const std::string& text) {
        const StoryPlace behind = insertText(m_document->body, m_start, text);
        const std::size_t newBlocks = behind.block - m_start.block;
        if (m_end.block == m_start.block) m_end.offset += behind.offset - m_start.offset;
        m_end.block += newBlocks;
    }

    DocumentPtr m_document;
    StoryPlace m_start, m_end;
    FinalMark m_finalMark;
};

/// The whole inside of some cells.
class CellsRange : public RangeObject, public TablePlace {
public:
    explicit CellsRange(std::vector<CellPtr> cells) : m_cells(std::move(cells)) {
        assert(std::ranges::find(m_cells, nullptr) == m_cells.end());
    }

    void call(std::string_view member, const WordArguments& arguments) override {
        Story& story = onlyCell().story;
        if (member == "InsertAfter")
            insertText(story, endOf(story), argument<WordText>(arguments, 0));
        else if (member == "InsertBefore")
            insertText(story, {0, 0}, argument<WordText>(arguments, 0));
        else
            refuseMember();
    }

    void put(std::string_view member, const WordValue& value) override {
        if (member != "Text") return RangeObject::put(member, value);
        Story& story = onlyCell().story;
        story.blocks.erase(story.blocks.begin(), std::prev(story.blocks.end()));
        story.lastParagraph().runs.clear();
        insertText(story, {0, 0}, valueOf<WordText>(value));
    }

    TablePtr insertTable(int rows, int columns) override {
        Story& story = onlyCell().story;
        return insertTableInto(story, story.blocks.size() - 1, rows, columns);
    }

protected:
    void changeCharacters(const CharacterChange& change) override {
        for (const CellPtr& cell : m_cells)
            orvanta::changeCharacters(cell->story, {0, 0}, endOf(cell->story), true, change);
    }
    void changeParagraphs(const ParagraphChange& change) override {
        for (const CellPtr& cell : m_cells)
            for (Block& block : cell->story.blocks)
                if (auto* paragraph = std::get_if<DocumentParagraph>(&block))
                    change(paragraph->format);
    }
    void changeCells(const CellChange& change) override {
        for (const CellPtr& cell : m_cells) change(*cell);
    }

private:
    DocumentCell& onlyCell() {
        if (m_cells.size() != 1) refuseMember();
        return *m_cells.front();
    }

    std::vector<CellPtr> m_cells;
};

/// The first characters of a cell, as the selection has been extended over them.
class CellStartRange : public RangeObject {
public:
    CellStartRange(CellPtr cell, std::size_t length) : m_cell(std::move(cell)), m_length(length) {}

protected:
    void changeCharacters(const CharacterChange& change) override {
        orvanta::changeCharacters(m_cell->story, {0, 0}, {0, m_length}, false, change);
    }
    void changeParagraphs(const ParagraphChange& change) override {
        if (auto* paragraph = std::get_if<DocumentParagraph>(&m_cell->story.blocks.front()))
            change(paragraph->format);
    }

private:
    CellPtr m_cell;
    std::size_t m_length;
};

}  // namespace

WordObjectPtr makeBodyRange(DocumentPtr document, StoryPlace start, StoryPlace end,
                            FinalMark finalMark) {
    return std::make_shared<BodyRange>(std::move(document), start, end, finalMark);
}

WordObjectPtr makeCellsRange(std::vector<CellPtr> cells) {
    return std::make_shared<CellsRange>(std::move(cells));
}

WordObjectPtr makeCellStartRange(CellPtr cell, std::size_t length) {
    return std::make_shared<CellStartRange>(std::move(cell), length);
}

}  // namespace orvanta::documentmodel
