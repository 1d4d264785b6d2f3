#include "app/rescued_saves.h"

#include <utility>

#include "core/frm_main.h"
#include "core/session_state.h"
#include "view/native_file.h"
#include "view/path_text.h"

namespace orvanta {

namespace {

constexpr std::string_view notWritten = " was not written", copyLies = ". A copy is in ",
                           noCopy = ", and no copy could be kept.";

/// What the program's own copy of a session is called, and what a copy of that is: like a file
/// that a person saves, so that the dialogs find it.
struct OwnCopyNames {
    std::string_view file, rescued;
};

constexpr PerSession<OwnCopyNames> ownCopyNames{{
    {Session::Brainstorm, {.file = brainstormTemporaryName, .rescued = "brainstorm.bsm"}},
    {Session::Analyze, {.file = analyzeTemporaryName, .rescued = "analyze.aze"}},
}};

std::string joined(std::string_view file, std::string_view words, std::string_view place = {}) {
    return std::string(file).append(words).append(place);
}

}  // namespace

RescuedSaves::RescuedSaves(RescueStore store, const std::string& scratch)
    : m_store(std::move(store)) {
    for (const Session session : allOf<Session>)
        m_ownCopies[session] = scratch + pathSeparator + std::string(ownCopyNames[session].file);
}

void RescuedSaves::sessionNotWritten(const std::string& path, std::string_view bytes) {
    const std::string name = nativeFromPath(path);
    const std::string file = joined(native::withoutFolder(name), notWritten);
    if (keepBytes(name, bytes) || keepOwnCopies())
        return tellOfCopy(file, joined(name, notWritten));
    tell(joined(file, noCopy), joined(name, notWritten, noCopy));
}

void RescuedSaves::copyNotWritten(const std::string& path, std::string_view bytes) {
    const std::string name = nativeFromPath(path), former = m_lastOwnCopy;
    const std::string what = joined("The running copy of this session", notWritten);
    const Session session =
        name == m_ownCopies[Session::Analyze] ? Session::Analyze : Session::Brainstorm;
    if (!keepBytes(ownCopyNames[session].rescued, bytes))
        return tell(joined(what, noCopy), joined(name, notWritten, noCopy));
    m_lastOwnCopy = m_kept;
    if (!former.empty()) native::tryToRemove(former);
    tellOfCopy(what, joined(name, notWritten));
}

void RescuedSaves::analysisReplaced(std::string_view bytes) {
    constexpr std::string_view what = "The former analysis was replaced";
    if (keepBytes(ownCopyNames[Session::Analyze].rescued, bytes)) tellOfCopy(what, what);
}

void RescuedSaves::keepSessionsNotShown(const FrmMain& form) {
    constexpr std::string_view what = "An unsaved session could not be shown";
    for (const Session session : allOf<Session>) {
        const bool isShown = form.*sessionControls[session].editFlag;
        if (!isShown && !native::hasSecondName(m_ownCopies[session]) && keepOwnCopy(session))
            tellOfCopy(what, what);
    }
}

void RescuedSaves::documentNotWritten(const std::string& path) {
    const std::string name = nativeFromPath(path);
    tell(joined(native::withoutFolder(name), notWritten, "."), joined(name, notWritten, "."));
}

void RescuedSaves::forget() {
    if (!m_line.empty()) tell({}, {});
}

/// Whether the store has the copy that this makes there.
template <class Keep>
bool RescuedSaves::keeps(Keep keep) {
    try {
        m_kept = keep();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

bool RescuedSaves::keepBytes(std::string_view name, std::string_view bytes) {
    return keeps([&] { return m_store.keep(name, bytes); });
}

/// Of both sessions: the name does not tell which of them was to be saved.
bool RescuedSaves::keepOwnCopies() {
    bool any = false;
    for (const Session session : allOf<Session>) any |= keepOwnCopy(session);
    return any;
}

bool RescuedSaves::keepOwnCopy(Session session) {
    return keeps(
        [&] { return m_store.keepFile(m_ownCopies[session], ownCopyNames[session].rescued); });
}

void RescuedSaves::tellOfCopy(std::string_view what, std::string_view whatInFull) {
    tell(joined(what, copyLies, native::folderOf(m_kept)), joined(whatInFull, copyLies, m_kept));
}

void RescuedSaves::tell(std::string line, std::string details) {
    m_line = std::move(line);
    m_details = std::move(details);
    changed();
}

}  // namespace orvanta
