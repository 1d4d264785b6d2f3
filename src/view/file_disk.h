#pragma once

#include <optional>

#include "view/native_file.h"
#include "view/platform.h"
#include "view/rescue_store.h"

namespace orvanta {

/// The files of this machine. Paths are those of view/path_text.h.
///
/// A file is replaced by writing a new one beside it, flushing that to the device and renaming
/// it over the old one, so that a crash or a full disk leaves the former file. Where the folder
/// takes no new file, or does not let the old one go, the file is written over: it gets its former
/// bytes back if anything fails, and they lie in the rescue folder before, for a crash. A symbolic
/// link stays one: the file that it names is replaced; but not in the place of a file that the
/// program keeps for itself.
class FileDisk : public Disk {
public:
    /// Without a rescue folder, a crash while a file is written over can break it.
    explicit FileDisk(std::optional<RescueStore> rescue = std::nullopt);
    PathKind kindOf(const std::string& path) const override;
    std::string read(const std::string& path) const override;
    std::string readOwn(const std::string& path) const override;
    void replace(const std::string& path, std::string_view bytes) override;
    void replaceOwn(const std::string& path, std::string_view bytes) override;
    void makeFolder(const std::string& path) override;
    void remove(const std::string& path) override;

    /// Removes what a program that was killed while it wrote has left in a folder more than a day
    /// ago. Writing a file does so too, in the folder of that file. Never fails.
    static void removeLeftovers(const std::string& folder);

private:
    void put(const std::string& target, native::FileKind kind, std::string_view bytes) const;
    void writeOver(const std::string& target, std::string_view bytes) const;

    std::optional<RescueStore> m_rescue;
};

}  // namespace orvanta
