#pragma once

#include "reports/document_model.h"
#include "reports/model_object.h"

namespace orvanta::documentmodel {

using DocumentPtr = std::shared_ptr<Document>;
using TablePtr = std::shared_ptr<DocumentTable>;
using CellPtr = std::shared_ptr<DocumentCell>;

/// Something that a table can be put into.
class TablePlace {
public:
    virtual ~TablePlace() = default;
    virtual TablePtr insertTable(int rows, int columns) = 0;
};

enum class FinalMark { Included, Excluded };

/// A range of the body of a document. It grows over what is put in front of it or behind it.
WordObjectPtr makeBodyRange(DocumentPtr document, StoryPlace start, StoryPlace end,
                            FinalMark finalMark);

/// The whole inside of some cells. Text can go into a single one alone.
WordObjectPtr makeCellsRange(std::vector<CellPtr> cells);

/// The first characters of a cell.
WordObjectPtr makeCellStartRange(CellPtr cell, std::size_t length);

}  // namespace orvanta::documentmodel
