#pragma once

#include "view/platform.h"

namespace orvanta {

/// The files of this machine. Their names are UTF-8 there.
///
/// A file is replaced by writing a new one beside it, flushing that to the device and renaming
/// it over the old one, so that a crash or a full disk leaves the former file. In a folder that
/// takes no new file it is written over, and gets its former bytes back if the disk is full. A
/// symbolic link stays one: the file that it names is replaced.
class FileDisk : public Disk {
public:
    FileDisk();
    PathKind kindOf(const std::string& path) const override;
    std::string read(const std::string& path) const override;
    void replace(const std::string& path, std::string_view bytes) override;
    void makeFolder(const std::string& path) override;
    void remove(const std::string& path) override;
};

}  // namespace orvanta
