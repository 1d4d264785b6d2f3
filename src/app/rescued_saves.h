#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "view/notice.h"
#include "view/platform.h"
#include "view/rescue_store.h"

namespace orvanta {

/// Keeps what a failed save was to write, and the words that tell a person of it. All words are
/// UTF-8: the folder of the copies may have any name.
class RescuedSaves : public FailedSaves {
public:
    explicit RescuedSaves(RescueStore store) : m_store(std::move(store)) {}

    void sessionNotWritten(const std::string& path, std::string_view bytes) override;
    void documentNotWritten(const std::string& path) override;

    /// What happened to the last save that failed, in a line; empty if nothing is to be told.
    const std::string& line() const { return m_line; }
    /// The same with whole paths.
    const std::string& details() const { return m_details; }
    /// The person has gone on.
    void forget();

    /// The words are others.
    Notice changed;

private:
    void tell(std::string line, std::string details);

    RescueStore m_store;
    std::string m_line, m_details;
};

}  // namespace orvanta
