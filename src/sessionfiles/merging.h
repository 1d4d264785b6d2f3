#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Joins the listed brainstorm files into a new one that the person names. The lists on screen
/// are not touched.
void mergeBrainstormFiles(Program& program);

}  // namespace orvanta
