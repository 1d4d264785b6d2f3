#include "view/file_disk.h"

#include <algorithm>
#include <csignal>

#include "view/native_file.h"
#include "view/path_text.h"

namespace orvanta {

namespace {

using native::FileKind;
using native::Links;

/// A longer file gets its end first: if the device is full, its former bytes are untouched. A
/// shorter one is cut once the new bytes are on the device.
void setBytes(const native::File& file, std::string_view bytes, std::size_t formerSize) {
    const std::size_t common = std::min(bytes.size(), formerSize);
    if (bytes.size() > common) {
        file.write(bytes.substr(common), common);
        file.flush();
    }
    file.write(bytes.substr(0, common), 0);
    file.flush();
    if (formerSize == common) return;
    file.cut(common);
    file.flush();
}

/// What fails here is not told: the failure that led here is, and the bytes lie in the rescue
/// folder.
void putBack(const std::string& name, std::string_view former) {
    try {
        const native::File file = native::File::toChange(name);
        file.write(former, 0);
        file.cut(former.size());
        file.flush();
    } catch (const Failure&) {
        return;
    }
}

void writeBeside(const std::string& target, std::string_view bytes, bool there) {
    const std::string folder = native::folderOf(target);
    native::removeLeftovers(folder);
    native::NewFile file(folder);
    file.write(bytes);
    there ? file.takeRightsOf(target) : file.takeUsualRights();
    file.takePlace(target);
}

}  // namespace

// A file that outgrows what the system allows is to be a failed write, not the end of the program.
FileDisk::FileDisk(std::optional<RescueStore> rescue) : m_rescue(std::move(rescue)) {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

PathKind FileDisk::kindOf(const std::string& path) const {
    return native::pathKindOf(nativeFromPath(path));
}

std::string FileDisk::read(const std::string& path) const {
    return native::File::toRead(nativeFromPath(path), Links::Follow).read();
}

std::string FileDisk::readOwn(const std::string& path) const {
    return native::File::toRead(nativeFromPath(path), Links::Keep).read();
}

void FileDisk::replace(const std::string& path, std::string_view bytes) {
    if (path.empty()) throw Failure(ErrorNumber::PathFileAccess);
    const std::string name = nativeFromPath(path);
    const FileKind kind = native::kindOf(name, Links::Follow);
    if (kind == FileKind::Other) return native::writeInto(name, bytes);
    const std::string target = native::targetOf(name);
    // A rename would not ask for the right to write the file itself.
    if (kind == FileKind::Plain) native::requireWritable(target);
    put(target, kind, bytes);
}

void FileDisk::replaceOwn(const std::string& path, std::string_view bytes) {
    const std::string name = nativeFromPath(path);
    const FileKind kind = native::kindOf(name, Links::Keep);
    // Nobody made the copy of a session read-only to keep it: the session behind it would be lost.
    if (kind == FileKind::Plain && !m_rescue) native::requireWritable(name);
    put(name, kind, bytes);
}

void FileDisk::put(const std::string& target, native::FileKind kind, std::string_view bytes) const {
    if (kind == FileKind::Folder) throw Failure(ErrorNumber::PathFileAccess);
    const bool there = kind == FileKind::Plain;
    try {
        writeBeside(target, bytes, there);
    } catch (const native::FolderRefusal&) {
        if (!there) throw;
        writeOver(target, bytes);
    }
}

void FileDisk::writeOver(const std::string& target, std::string_view bytes) const {
    native::File file = native::File::toChange(target);
    const std::string former = file.read();
    if (m_rescue) m_rescue->keep(target, former);
    try {
        setBytes(file, bytes, former.size());
        file.close();
    } catch (const Failure&) {
        putBack(target, former);
        throw;
    }
}

void FileDisk::makeFolder(const std::string& path) { native::makeFolder(nativeFromPath(path)); }

void FileDisk::remove(const std::string& path) { native::remove(nativeFromPath(path)); }

void FileDisk::removeLeftovers(const std::string& folder) {
    native::removeLeftovers(nativeFromPath(folder));
}

}  // namespace orvanta
