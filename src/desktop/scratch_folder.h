#pragma once

#include <optional>
#include <string>

#include "desktop/instance_lock.h"

namespace orvanta::desktop {

/// The locks of a start, which hold as long as this lives: that of the program's own folder also
/// where the user's serves, so that the next start comes to this one.
struct ScratchLocks {
    InstanceLock ofProgram, ofUser;
};

/// Where this start keeps its temporary files: the program's own folder where that takes sessions
/// and nobody else uses it, else the user's, which is made if need be. Also the user's where an
/// ended session waits in that one alone. None where another program of this user's is running;
/// that one comes to the front. Names are as the system has them.
std::optional<std::string> scratchFolder(const std::string& ofProgram, const std::string& ofUser,
                                         ScratchLocks& locks);

}  // namespace orvanta::desktop
