#pragma once

#include "album.h"
#include "team.h"

namespace orvanta::test {

/// Takes what looks different with much or little to say: the screens with lists, and the dialogs
/// that show a statement or a file's name.
void takeSessionOf(Team team, Album& album);

}  // namespace orvanta::test
