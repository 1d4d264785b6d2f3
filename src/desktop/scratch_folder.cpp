#include "desktop/scratch_folder.h"

#include "core/failures.h"
#include "core/session_state.h"
#include "view/native_file.h"

namespace orvanta::desktop {

namespace {

using Holder = InstanceLock::Holder;

bool holds(const std::string& folder, const std::string& name) {
    try {
        return native::kindOf(folder + pathSeparator + name, native::Links::Keep) !=
               native::FileKind::Missing;
    } catch (const Failure&) {
        return false;
    }
}

bool holdsEndedSession(const std::string& folder) {
    return holds(folder, std::string(brainstormTemporaryName)) ||
           holds(folder, std::string(analyzeTemporaryName));
}

/// What a package installs for all users says so in a file beside the program. Nobody's sessions
/// belong there then, not even root's, who may write anywhere.
bool takesSessions(const std::string& folder) {
    if (holds(folder, "system-wide")) return false;
    try {
        native::requireWritable(folder);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

bool isRaised(Holder holder, const InstanceLock& lock) {
    if (holder == Holder::OwnProgram) lock.raiseHolder();
    return holder == Holder::OwnProgram;
}

}  // namespace

std::optional<std::string> scratchFolder(const std::string& ofProgram, const std::string& ofUser,
                                         ScratchLocks& locks) {
    if (takesSessions(ofProgram)) {
        const Holder holder = locks.ofProgram.take(ofProgram);
        if (isRaised(holder, locks.ofProgram)) return std::nullopt;
        const bool waitsElsewhere = !holdsEndedSession(ofProgram) && holdsEndedSession(ofUser);
        if (holder == Holder::ThisProgram && !waitsElsewhere) return ofProgram;
    }
    const BestEffort step;
    step([&] { native::makePrivateFolder(ofUser); });
    const Holder holder = locks.ofUser.take(ofUser);
    // Whoever has the user's own folder is the user's, be it out of sight.
    if (isRaised(holder, locks.ofUser) || holder == Holder::OtherProgram) return std::nullopt;
    return ofUser;
}

}  // namespace orvanta::desktop
