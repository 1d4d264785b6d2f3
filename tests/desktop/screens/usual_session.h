#pragma once

#include "album.h"

namespace orvanta::test {

/// Takes every screen and dialog, with what a team of three has to say.
void takeUsualSession(Album& album);

}  // namespace orvanta::test
