#pragma once

#include <string>
#include <string_view>

#include "core/statement_kind.h"
#include "view/statement_list.h"

namespace orvanta {

/// The two ends of a mapped row's key, parent "-" child. Any key but one of exactly two parts
/// belongs to a top row.
struct MappingKey {
    bool isMapped;
    std::string_view parent, child;  // empty for a top row
};

/// The result views the key.
MappingKey mappingKeyFrom(std::string_view key);

/// What the row with this key is mapped from, by the second part of the key: a strength where
/// that begins with "S", whatever follows and however many parts there are, else a weakness.
StatementKind mappedKindOf(std::string_view key);

std::string mappingRowKey(std::string_view parent, std::string_view child);

/// True if some row's key holds this key followed by "-", so that rows are mapped under it.
bool hasMappedRows(const StatementList& mappingList, std::string_view parentKey);

/// Position of the first row, from this position on, that is mapped from the statement with this
/// key; 0 if there is none.
int findMappedRow(const StatementList& mappingList, std::string_view childKey, int from);

/// The same for a row with exactly this key. Rows that have no key equal one another here.
int findTopRow(const StatementList& mappingList, std::string_view key, int from);

/// Gives a text to every row mapped from the statement with this key.
void setTextOfMappedRows(StatementList& mappingList, std::string_view childKey,
                         const std::string& text);

/// Gives a text to each row with exactly this key, which may be none.
void setTextOfTopRows(StatementList& mappingList, std::string_view key, const std::string& text);

}  // namespace orvanta
