#include "core/list_ranking.h"

#include <optional>

#include "core/kind_controls.h"
#include "core/mapping_side.h"

namespace orvanta {

namespace {

constexpr std::string_view movingKeyPrefix = "NEW-";

/// The session that ranks the rows of a list; none where they can't be ranked.
std::optional<Session> rankingSession(const FrmMain& form, const StatementList& list) {
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds)
            if (!isMappable(kind) && &listOf(form, session, kind) == &list) return session;
    return std::nullopt;
}

}  // namespace

bool isRanked(const FrmMain& form, const StatementList& list) {
    return rankingSession(form, list).has_value();
}

void rankDroppedRow(const FrmMain& form, StatementList& list, int position) {
    const auto session = rankingSession(form, list);
    // Only rows of the Analyze lists tell who said them.
    if (session) moveListRow(list, list, position, *session == Session::Analyze);
}

void moveListRow(StatementList& sourceList, StatementList& targetList, int position,
                 bool copySubItem) {
    if (position == 0 || !sourceList.selectedRow()) return;
    const Row moved = *sourceList.selectedRow();
    // For a moment the list holds both rows, so the new one needs a key of its own.
    targetList.insert(position + 1, {.key = std::string(movingKeyPrefix) + moved.key,
                                     .text = moved.text,
                                     .image = moved.image,
                                     .largeImage = moved.largeImage,
                                     .subItem = copySubItem ? moved.subItem : std::string()});
    const int oldPosition = sourceList.selected();
    sourceList.remove(oldPosition);
    const int newPosition = oldPosition <= position ? position : position + 1;
    targetList.setKey(newPosition, moved.key);
    targetList.select(newPosition);
}

}  // namespace orvanta
