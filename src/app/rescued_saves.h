#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/session.h"
#include "view/notice.h"
#include "view/platform.h"
#include "view/rescue_store.h"

namespace orvanta {

struct FrmMain;

/// Keeps what a failed save was to write and what would be lost unseen, and the words that tell a
/// person of it. All words are UTF-8: the folder of the copies may have any name.
class RescuedSaves : public FailedSaves {
public:
    /// `scratch` is the folder of the program's own copies of sessions, as the system names it.
    explicit RescuedSaves(RescueStore store, const std::string& scratch = {});

    /// Where there is no room for the bytes, the program's own copies, which are about to be
    /// removed, are kept in their place.
    void sessionNotWritten(const std::string& path, std::string_view bytes) override;
    /// Of these copies the newest is kept.
    void copyNotWritten(const std::string& path, std::string_view bytes) override;
    void analysisReplaced(std::string_view bytes) override;
    void documentNotWritten(const std::string& path) override;

    /// After the start: keeps the program's own copies of sessions that did not come up, as the
    /// next question about saving removes them.
    void keepSessionsNotShown(const FrmMain& form);

    /// What happened to the last save that failed, in a line; empty if nothing is to be told.
    const std::string& line() const { return m_line; }
    /// The same with whole paths.
    const std::string& details() const { return m_details; }
    /// The person has gone on.
    void forget();

    /// The words are others.
    Notice changed;

private:
    template <class Keep>
    bool keeps(Keep keep);
    bool keepBytes(std::string_view name, std::string_view bytes);
    bool keepOwnCopies();
    bool keepOwnCopy(Session session);
    void tellOfCopy(std::string_view what, std::string_view whatInFull);
    void tell(std::string line, std::string details);

    RescueStore m_store;
    PerSession<std::string> m_ownCopies;
    std::string m_line, m_details;
    std::string m_kept, m_lastOwnCopy;  // whole paths in the store
};

}  // namespace orvanta
