#include "analyze/mapping.h"

#include <algorithm>

#include "analyze/list_marks.h"
#include "analyze/mapping_keys.h"
#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/text.h"
#include "journal/journal.h"

namespace orvanta {

namespace {

struct Side {
    ListMember mappingList;
    std::string_view parentWord;
    int parentImage;
    std::string_view journalTag;
};

constexpr Side opportunitySide{&FrmMain::lvOpportunity, "opportunity", 3, "ADD_OM"};
constexpr Side threatSide{&FrmMain::lvThreat, "threat", 4, "ADD_TM"};

struct PickingList {
    ListMember list;
    const Side& side;
    std::string_view section;  // "S" or "W"
    int image;                 // of the mapped rows that go back to it
};

constexpr std::array<PickingList, 4> pickingLists{{
    {&FrmMain::lvStrengthOp, opportunitySide, "S", 1},
    {&FrmMain::lvWeaknessOp, opportunitySide, "W", 2},
    {&FrmMain::lvStrengthTh, threatSide, "S", 1},
    {&FrmMain::lvWeaknessTh, threatSide, "W", 2},
}};

const PickingList* pickingListOf(const FrmMain& form, const StatementList& list) {
    const auto found = std::ranges::find_if(
        pickingLists, [&](const PickingList& picking) { return &(form.*picking.list) == &list; });
    return found == pickingLists.end() ? nullptr : &*found;
}

/// The picking list of a side that a drag now carries a statement from; null for none.
const PickingList* draggedFrom(const FrmMain& form, const Side& side) {
    for (const PickingList& picking : pickingLists)
        if (&picking.side == &side && picking.section == form.dragSection) return &picking;
    return nullptr;
}

const Side& sideOf(const FrmMain& form, const StatementList& mappingList) {
    return &mappingList == &form.lvThreat ? threatSide : opportunitySide;
}

/// True if the list maps this child under this parent. Ends that hold a "-" themselves make no
/// key of two parts, so nothing can be mapped between them.
bool isMapped(const StatementList& mappingList, const std::string& parent,
              const std::string& child) {
    const std::string key = mappingRowKey(parent, child);
    return mappingKeyFrom(key).isMapped && mappingList.positionOf(key) != 0;
}

/// Position of the last strength mapped under a parent, or of the parent if it has none.
int lastStrengthUnder(const StatementList& mappingList, int parentPosition) {
    int position = parentPosition;
    while (position < mappingList.count()) {
        const auto parts = splitAt(mappingList.row(position + 1).key, "-");
        if (parts.size() < 2 || !parts[1].starts_with('S')) break;
        ++position;
    }
    return position;
}

void removeMappingRow(Program& program, const Side& side) {
    FrmMain& form = program.frmMain;
    StatementList& list = form.*side.mappingList;
    const Row* row = list.selectedRow();
    if (!row) return;
    const auto parts = splitAt(row->key, "-");
    std::string_view extra;
    if (parts.size() > 1)
        extra = parts[1].starts_with('S') ? "S" : "W";
    else if (hasMappedRows(list, parts.front()))
        return refuseMappedRows(program);
    pushUserChange(program, side.journalTag, recordedPosition(list.selected()), row->key,
                   trimBlanks(row->text), extra);
    list.remove(list.selected());
    form.editAFlag = true;
}

}  // namespace

void dragOverList(Program& program, StatementList& list) {
    if (const PickingList* picking = pickingListOf(program.frmMain, list))
        program.frmMain.dragSection = picking->section;
}

void mapDroppedStatement(Program& program, StatementList& mappingList, int position) {
    FrmMain& form = program.frmMain;
    const Side& side = sideOf(form, mappingList);
    if (!takesMapping(form, mappingList, position)) return;
    const PickingList* source = draggedFrom(form, side);
    const Row* child = statementToMap(form, mappingList);
    if (source && !child) return;
    const std::string childKey = child ? child->key : std::string();
    if (isMapped(mappingList, mappingList.row(position).key, childKey)) {
        inform(program.platform.messages, "This statement have already been mapped with this " +
                                              std::string(side.parentWord) + ".");
        return;
    }
    if (source) insertMappingRow(form.*source->list, mappingList, {}, position, form.dragSection);
    form.dragSection.clear();
    form.editAFlag = true;
}

void unmapDroppedRow(Program& program, StatementList& pickingList) {
    if (!rowToTakeBack(program.frmMain, pickingList)) return;
    const PickingList* picking = pickingListOf(program.frmMain, pickingList);
    StatementList& mappingList = program.frmMain.*picking->side.mappingList;
    mappingList.remove(mappingList.selected());
}

void insertMappingRow(StatementList& sourceList, StatementList& targetList,
                      const std::string& textPrefix, int position, std::string_view section) {
    const Row* child = sourceList.selectedRow();
    if (position == 0 || !child) return;
    const bool weakness = section == "W";
    const int above = weakness ? lastStrengthUnder(targetList, position) : position;
    const int image = imageOf(weakness ? StatementKind::Weakness : StatementKind::Strength);
    targetList.insert(above + 1, {.key = mappingRowKey(targetList.row(position).key, child->key),
                                  .text = textPrefix + child->text,
                                  .image = image,
                                  .largeImage = image,
                                  .subItem = child->subItem});
    markMappedRow(targetList, above + 1,
                  weakness ? StatementKind::Weakness : StatementKind::Strength);
    targetList.select(above + 1);
}

void removeOpportunityMappingRow(Program& program) { removeMappingRow(program, opportunitySide); }
void removeThreatMappingRow(Program& program) { removeMappingRow(program, threatSide); }

void refuseMappedRows(Program& program) {
    refuse(program.platform.messages,
           "You must first remove all strengths and weaknesses associated with this item");
}

bool isPickingList(const FrmMain& form, const StatementList& list) {
    return pickingListOf(form, list) != nullptr;
}

bool isMappingList(const FrmMain& form, const StatementList& list) {
    return &list == &form.lvOpportunity || &list == &form.lvThreat;
}

bool takesMapping(const FrmMain& form, const StatementList& mappingList, int position) {
    return position != 0 &&
           mappingList.row(position).image == sideOf(form, mappingList).parentImage;
}

const Row* statementToMap(const FrmMain& form, const StatementList& mappingList) {
    const PickingList* source = draggedFrom(form, sideOf(form, mappingList));
    return source ? (form.*source->list).selectedRow() : nullptr;
}

const Row* rowToTakeBack(const FrmMain& form, const StatementList& pickingList) {
    const PickingList* picking = pickingListOf(form, pickingList);
    const Row* row = (form.*picking->side.mappingList).selectedRow();
    return row && row->image == picking->image ? row : nullptr;
}

}  // namespace orvanta
