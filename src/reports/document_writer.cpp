#include "reports/document_writer.h"

#include "reports/document_pages.h"
#include "reports/document_ranges.h"
#include "reports/rtf_writer.h"

namespace orvanta {

namespace documentmodel {

namespace {

/// What the objects of one run share.
struct Session {
    Disk& disk;
    DocumentPtr document;
    CellPtr selectedCell;  // none: nothing is selected
    int selectedLength = 0;
};
using SessionPtr = std::shared_ptr<Session>;

WordObjectPtr makeTableObject(SessionPtr session, TablePtr table);

class TablesObject : public ModelObject {
public:
    explicit TablesObject(SessionPtr session) : m_session(std::move(session)) {}

    WordObjectPtr get(std::string_view member, const WordArguments& arguments) override {
        if (member != "Add") refuseMember();
        const auto range = argument<WordObjectPtr>(arguments, 0);
        auto* place = dynamic_cast<TablePlace*>(range.get());
        if (!place) refuseMember();
        return makeTableObject(m_session, place->insertTable(argument<int>(arguments, 1),
                                                             argument<int>(arguments, 2)));
    }

private:
    SessionPtr m_session;
};

class SelectionObject : public ModelObject {
public:
    explicit SelectionObject(SessionPtr session) : m_session(std::move(session)) {}

    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member == "Tables") return std::make_shared<TablesObject>(m_session);
        if (member != "Range" || !m_session->selectedCell) refuseMember();
        return makeCellStartRange(m_session->selectedCell,
                                  static_cast<std::size_t>(m_session->selectedLength));
    }
    void put(std::string_view member, const WordValue& value) override {
        if (member != "ExtendMode") refuseMember();
        valueOf<bool>(value);  // the selection of a cell is only ever extended
    }
    void call(std::string_view member, const WordArguments& arguments) override {
        if (member != "MoveRight" || !m_session->selectedCell) refuseMember();
        m_session->selectedLength = argument<int>(arguments, 1);
    }

private:
    SessionPtr m_session;
};

class CellObject : public ModelObject {
public:
    CellObject(SessionPtr session, CellPtr cell)
        : m_session(std::move(session)), m_cell(std::move(cell)) {}

    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member != "Range") refuseMember();
        return makeCellsRange(std::vector(1, m_cell));
    }
    void put(std::string_view member, const WordValue& value) override {
        if (member != "VerticalAlignment") refuseMember();
        m_cell->centredVertically = valueOf<int>(value) == 1;
    }
    void call(std::string_view member, const WordArguments&) override {
        if (member != "Select") refuseMember();
        m_session->selectedCell = m_cell;
        m_session->selectedLength = 0;
    }

private:
    SessionPtr m_session;
    CellPtr m_cell;
};

std::size_t indexIn(std::size_t count, int number) {
    if (number < 1 || static_cast<std::size_t>(number) > count)
        throw Failure(ErrorNumber::IndexOutOfBounds);
    return static_cast<std::size_t>(number) - 1;
}

/// One edge of some cells, with its line width.
WordObjectPtr makeEdge(std::vector<CellPtr> cells, int DocumentCell::*edge) {
    return std::make_shared<PropertyBag>(
        [cells = std::move(cells), edge](auto member, const auto& value) {
            if (member != "LineWidth") refuseMember();
            for (const CellPtr& cell : cells) (*cell).*edge = valueOf<int>(value);
        });
}

WordObjectPtr makeEdges(std::vector<CellPtr> cells) {
    return std::make_shared<Collection>([cells = std::move(cells)](const WordValue& which) {
        constexpr int bottomEdge = -3, rightEdge = -4;
        const int edge = valueOf<int>(which);
        if (edge != bottomEdge && edge != rightEdge) refuseMember();
        return makeEdge(cells,
                        edge == rightEdge ? &DocumentCell::rightEdge : &DocumentCell::bottomEdge);
    });
}

class RowObject : public ModelObject {
public:
    RowObject(TablePtr table, std::size_t index) : m_table(std::move(table)), m_index(index) {}

    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member == "Range") return makeCellsRange(row().cells);
        if (member == "Borders") return makeEdges(row().cells);
        refuseMember();
    }
    void put(std::string_view member, const WordValue& value) override {
        if (member == "Height")
            row().height = valueOf<int>(value);
        else if (member == "HeadingFormat")
            row().repeatsAsHeader = valueOf<bool>(value);
        else
            refuseMember();
    }

private:
    DocumentRow& row() const { return m_table->rows[m_index]; }

    TablePtr m_table;
    std::size_t m_index;
};

class RowsObject : public ModelObject {
public:
    explicit RowsObject(TablePtr table) : m_table(std::move(table)) {}

    WordObjectPtr get(std::string_view member, const WordArguments& arguments) override {
        if (member != "Item") refuseMember();
        return std::make_shared<RowObject>(
            m_table, indexIn(m_table->rows.size(), argument<int>(arguments, 0)));
    }
    void put(std::string_view member, const WordValue& value) override {
        // At least the given height is the one rule that the document knows.
        if (member != "HeightRule" || valueOf<int>(value) != 1) refuseMember();
    }
    void call(std::string_view member, const WordArguments&) override {
        if (member != "Add") refuseMember();
        m_table->addRow();
    }

private:
    TablePtr m_table;
};

class ColumnObject : public ModelObject {
public:
    ColumnObject(TablePtr table, std::size_t index) : m_table(std::move(table)), m_index(index) {}

    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member != "Borders") refuseMember();
        std::vector<CellPtr> cells;
        for (const DocumentRow& row : m_table->rows) cells.push_back(row.cells[m_index]);
        return makeEdges(std::move(cells));
    }
    void call(std::string_view member, const WordArguments& arguments) override {
        if (member != "SetWidth") refuseMember();
        m_table->columnWidths[m_index] = argument<int>(arguments, 0);
    }

private:
    TablePtr m_table;
    std::size_t m_index;
};

class TableObject : public ModelObject {
public:
    TableObject(SessionPtr session, TablePtr table)
        : m_session(std::move(session)), m_table(std::move(table)) {}

    WordObjectPtr get(std::string_view member, const WordArguments& arguments) override {
        if (member == "Rows") return std::make_shared<RowsObject>(m_table);
        if (member == "Columns") return columns();
        if (member == "Range") return wholeRange();
        if (member == "Borders") return borders();
        if (member == "Cell") return cell(argument<int>(arguments, 0), argument<int>(arguments, 1));
        refuseMember();
    }
    void put(std::string_view member, const WordValue& value) override {
        // Taken and not kept: the widths of the columns say the same better.
        if (member != "PreferredWidth") refuseMember();
        valueOf<int>(value);
    }

private:
    WordObjectPtr columns() {
        return std::make_shared<Collection>([table = m_table](const WordValue& number) {
            return std::make_shared<ColumnObject>(
                table, indexIn(table->columnWidths.size(), valueOf<int>(number)));
        });
    }
    WordObjectPtr wholeRange() {
        std::vector<CellPtr> cells;
        for (const DocumentRow& row : m_table->rows)
            cells.insert(cells.end(), row.cells.begin(), row.cells.end());
        return makeCellsRange(std::move(cells));
    }
    WordObjectPtr borders() {
        return std::make_shared<PropertyBag>([table = m_table](auto member, const auto& value) {
            if (member != "Enable") refuseMember();
            table->hasBorders = valueOf<bool>(value);
        });
    }
    WordObjectPtr cell(int row, int column) {
        const DocumentRow& cells = m_table->rows[indexIn(m_table->rows.size(), row)];
        return std::make_shared<CellObject>(m_session,
                                            cells.cells[indexIn(cells.cells.size(), column)]);
    }

    SessionPtr m_session;
    TablePtr m_table;
};

WordObjectPtr makeTableObject(SessionPtr session, TablePtr table) {
    return std::make_shared<TableObject>(std::move(session), std::move(table));
}

void putPage(PageSetup& page, std::string_view member, const WordValue& value) {
    const int number = valueOf<int>(value);
    if (member == "Orientation") {
        const bool landscape = number == 1;
        if (landscape != page.landscape) std::swap(page.width, page.height);
        page.landscape = landscape;
    } else if (member == "PageWidth") {
        page.width = number;
    } else if (member == "LeftMargin") {
        page.left = number;
    } else if (member == "TopMargin") {
        page.top = number;
    } else if (member == "RightMargin") {
        page.right = number;
    } else if (member == "BottomMargin") {
        page.bottom = number;
    } else {
        refuseMember();
    }
}

/// The place behind everything, under its built-in bookmark.
class EndBookmark : public ModelObject {
public:
    explicit EndBookmark(DocumentPtr document) : m_document(std::move(document)) {}

    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member != "Range") refuseMember();
        const StoryPlace end = endOf(m_document->body);
        return makeBodyRange(m_document, end, end, FinalMark::Excluded);
    }

private:
    DocumentPtr m_document;
};

class DocumentObject : public ModelObject {
public:
    explicit DocumentObject(SessionPtr session)
        : m_session(std::move(session)), m_document(m_session->document) {}

    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member == "Range")
            return makeBodyRange(m_document, StoryPlace{}, endOf(m_document->body),
                                 FinalMark::Included);
        if (member == "Tables") return std::make_shared<TablesObject>(m_session);
        if (member == "Bookmarks") return bookmarks();
        if (member == "PageSetup")
            return std::make_shared<PropertyBag>(
                [document = m_document](auto name, const auto& value) {
                    putPage(document->page, name, value);
                });
        refuseMember();
    }

    void call(std::string_view member, const WordArguments& arguments) override {
        if (member == "SaveAs")
            save(argument<WordText>(arguments, 0));
        else if (member != "Close")
            refuseMember();
    }

private:
    void save(const std::string& path) {
        careForPages(*m_document);
        m_session->disk.replace(path, rtfBytes(*m_document));
    }

    WordObjectPtr bookmarks() {
        return std::make_shared<Collection>([document = m_document](const WordValue& name) {
            if (valueOf<WordText>(name) != "\\endofdoc")
                throw Failure(ErrorNumber::ElementNotFound);
            return std::make_shared<EndBookmark>(document);
        });
    }

    SessionPtr m_session;
    DocumentPtr m_document;
};

class DocumentsObject : public ModelObject {
public:
    explicit DocumentsObject(SessionPtr session) : m_session(std::move(session)) {}

    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member != "Add") refuseMember();
        m_session->document = std::make_shared<Document>();
        return std::make_shared<DocumentObject>(m_session);
    }

private:
    SessionPtr m_session;
};

class ApplicationObject : public ModelObject {
public:
    explicit ApplicationObject(Disk& disk)
        : m_session(std::make_shared<Session>(Session{disk, {}, {}, 0})) {}

    WordObjectPtr get(std::string_view member, const WordArguments&) override {
        if (member == "Documents") return std::make_shared<DocumentsObject>(m_session);
        if (member == "Selection") return std::make_shared<SelectionObject>(m_session);
        refuseMember();
    }
    void call(std::string_view member, const WordArguments&) override {
        if (member != "Quit") refuseMember();
    }

private:
    SessionPtr m_session;
};

}  // namespace

WordObjectPtr makeApplication(Disk& disk) { return std::make_shared<ApplicationObject>(disk); }

}  // namespace documentmodel

WordObjectPtr DocumentWriter::createApplication() { return documentmodel::makeApplication(m_disk); }

}  // namespace orvanta
