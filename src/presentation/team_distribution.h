#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Starts an e-mail that invites the team and links to the chosen module.
void distributeToTeam(Program& program);

}  // namespace orvanta
