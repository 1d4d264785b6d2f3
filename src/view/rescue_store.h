#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace orvanta {

/// A folder of copies to fall back on, each in a file of its own named after the time (UTC) and
/// the file that it is of, as "2026-11-21 22-07-08.123 team.bsm". Only this user may read them. The
/// newest 20 are kept; what else lies in the folder is left alone.
class RescueStore {
public:
    using Time = std::chrono::system_clock::time_point;
    using Clock = std::function<Time()>;

    /// The folder (UTF-8, no separator at its end) need not be there; the first copy makes it.
    explicit RescueStore(std::string folder, Clock clock = std::chrono::system_clock::now);

    /// Keeps these bytes as a copy of the file with this name (UTF-8, a path or a bare name) and
    /// gives the path of the copy (UTF-8). On return the device has it. Fails as Disk::replace
    /// does.
    std::string keep(std::string_view name, std::string_view bytes) const;

    /// Keeps a file as it stands under a second name, as a copy of the one with this name, and
    /// gives its path; all are UTF-8. The device need have no room for that. Where the folder can't
    /// have the second name, the file itself is renamed, in its own folder. Fails where neither can
    /// be done.
    std::string keepFile(const std::string& file, std::string_view name) const;

    const std::string& folder() const { return m_folder; }

private:
    std::string freePath(const std::string& folder, std::string_view name) const;
    void dropOldCopies(const std::string& newest) const;

    std::string m_folder;
    Clock m_clock;
};

}  // namespace orvanta
