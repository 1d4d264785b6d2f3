#include "analyze/mapping.h"

#include <optional>

#include "core/kind_controls.h"
#include "core/mapping_keys.h"
#include "core/messages.h"
#include "core/row_marks.h"
#include "journal/journal.h"

namespace orvanta {

namespace {

/// Which picking list a list is.
struct Picking {
    MappingSide side;
    StatementKind kind;
};

std::optional<Picking> pickingOf(const FrmMain& form, const StatementList& list) {
    for (const MappingSide side : mappingSides)
        for (const StatementKind kind : {StatementKind::Strength, StatementKind::Weakness})
            if (&(form.*sideControls[side].picking(kind)) == &list) return Picking{side, kind};
    return std::nullopt;
}

/// The kind that a drag now carries; none if it carries none.
std::optional<StatementKind> draggedKind(const FrmMain& form) {
    for (const StatementKind kind : {StatementKind::Strength, StatementKind::Weakness})
        if (form.dragSection == std::string{letterOf(kind)}) return kind;
    return std::nullopt;
}

MappingSide sideOf(const FrmMain& form, const StatementList& mappingList) {
    return &mappingList == &form.lvThreat ? MappingSide::Threats : MappingSide::Opportunities;
}

/// True if the list maps this child under this parent. Where one of the keys holds a "-" itself
/// the two can be mapped, but no row of theirs has a key of two parts, so none is found.
bool isMapped(const StatementList& mappingList, const std::string& parent,
              const std::string& child) {
    const std::string key = mappingRowKey(parent, child);
    return mappingKeyFrom(key).isMapped && mappingList.positionOf(key) != 0;
}

/// Position of the last strength mapped under a parent, or of the parent if it has none.
int lastStrengthUnder(const StatementList& mappingList, int parentPosition) {
    int position = parentPosition;
    while (position < mappingList.count() &&
           mappedKindOf(mappingList.row(position + 1).key) == StatementKind::Strength)
        ++position;
    return position;
}

void removeMappingRow(Program& program, MappingSide side) {
    FrmMain& form = program.frmMain;
    StatementList& list = mappingList(form, side);
    const Row* row = list.selectedRow();
    if (!row) return;
    const bool isParent = row->key.find('-') == std::string::npos;
    if (isParent && hasMappedRows(list, row->key)) return refuseWhileRowsAreMapped(program);
    const std::int16_t position = recordedPosition(list.selected());
    recordUnmapped(program, side, {position, row->key, row->text});
    list.remove(position);
    form.editAFlag = true;
}

}  // namespace

void dragOverList(Program& program, StatementList& list) {
    if (const auto picking = pickingOf(program.frmMain, list))
        program.frmMain.dragSection = letterOf(picking->kind);
}

void mapDroppedStatement(Program& program, StatementList& mappingList, int position) {
    FrmMain& form = program.frmMain;
    const SideControls& side = sideControls[sideOf(form, mappingList)];
    if (!takesMapping(form, mappingList, position)) return;
    const auto kind = draggedKind(form);
    const Row* child = statementToMap(form, mappingList);
    if (kind && !child) return;
    const std::string childKey = child ? child->key : std::string();
    if (isMapped(mappingList, mappingList.row(position).key, childKey)) {
        inform(program.platform.messages, "This statement have already been mapped with this " +
                                              std::string(side.parentWord) + ".");
        return;
    }
    if (kind)
        insertMappingRow(form.*side.picking(*kind), mappingList, {}, position, form.dragSection);
    form.dragSection.clear();
    form.editAFlag = true;
}

void unmapDroppedRow(Program& program, StatementList& pickingList) {
    FrmMain& form = program.frmMain;
    if (!rowToTakeBack(form, pickingList)) return;
    StatementList& list = mappingList(form, pickingOf(form, pickingList)->side);
    list.remove(list.selected());
}

void insertMappingRow(StatementList& sourceList, StatementList& targetList,
                      const std::string& textPrefix, int position, std::string_view section) {
    const Row* child = sourceList.selectedRow();
    if (position == 0 || !child) return;
    const auto kind = section == "W" ? StatementKind::Weakness : StatementKind::Strength;
    const int above =
        kind == StatementKind::Weakness ? lastStrengthUnder(targetList, position) : position;
    targetList.insert(above + 1, {.key = mappingRowKey(targetList.row(position).key, child->key),
                                  .text = textPrefix + child->text,
                                  .image = imageOf(kind),
                                  .largeImage = imageOf(kind),
                                  .subItem = child->subItem});
    markMappedRow(targetList, above + 1, kind);
    targetList.select(above + 1);
}

void removeOpportunityMappingRow(Program& program) {
    removeMappingRow(program, MappingSide::Opportunities);
}
void removeThreatMappingRow(Program& program) { removeMappingRow(program, MappingSide::Threats); }

void refuseWhileRowsAreMapped(Program& program) {
    refuse(program.platform.messages,
           "You must first remove all strengths and weaknesses associated with this item");
}

bool isPickingList(const FrmMain& form, const StatementList& list) {
    return pickingOf(form, list).has_value();
}

bool isMappingList(const FrmMain& form, const StatementList& list) {
    return &list == &form.lvOpportunity || &list == &form.lvThreat;
}

bool takesMapping(const FrmMain& form, const StatementList& mappingList, int position) {
    const StatementKind parents = sideControls[sideOf(form, mappingList)].parentKind;
    return position != 0 && mappingList.row(position).image == imageOf(parents);
}

const Row* statementToMap(const FrmMain& form, const StatementList& mappingList) {
    const auto kind = draggedKind(form);
    if (!kind) return nullptr;
    return (form.*sideControls[sideOf(form, mappingList)].picking(*kind)).selectedRow();
}

bool isMappedAlready(const StatementList& mappingList, int position, const Row& statement) {
    return isMapped(mappingList, mappingList.row(position).key, statement.key);
}

const Row* rowToTakeBack(const FrmMain& form, const StatementList& pickingList) {
    const auto picking = pickingOf(form, pickingList);
    const Row* row = (form.*sideControls[picking->side].mapping.list).selectedRow();
    return row && row->image == imageOf(picking->kind) ? row : nullptr;
}

}  // namespace orvanta
