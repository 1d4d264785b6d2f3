#pragma once

#include <array>

#include "core/kind_controls.h"
#include "core/mapping_side.h"

namespace orvanta {

/// The fourteen statement lists: those of the sessions, then those of the mapping screens.
inline constexpr auto statementLists = [] {
    std::array<ListMember, countOf<Session> * countOf<StatementKind> + countOf<MappingSide> * 3>
        lists{};
    auto next = lists.begin();
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds) *next++ = controlsOf(session, kind).list;
    for (const SideControls& side : sideControls)
        for (const HeadedList& headed : {side.strengths, side.weaknesses, side.mapping})
            *next++ = headed.list;
    return lists;
}();

}  // namespace orvanta
