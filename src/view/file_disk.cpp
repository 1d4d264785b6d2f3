#include "view/file_disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "view/windows1252.h"

namespace orvanta {

namespace {

class FileHandle {
public:
    explicit FileHandle(int descriptor) : m_descriptor(descriptor) {}
    ~FileHandle() { close(); }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    int get() const { return m_descriptor; }
    bool isOpen() const { return m_descriptor >= 0; }
    bool close() {
        if (m_descriptor < 0) return true;
        const int result = ::close(m_descriptor);
        m_descriptor = -1;
        return result == 0;
    }

private:
    int m_descriptor;
};

std::string folderOf(const std::string& path) {
    const auto cut = path.rfind('/');
    if (cut == std::string::npos) return ".";
    return cut == 0 ? "/" : path.substr(0, cut);
}

bool isFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// What the system's error means for a file.
Failure failureFor(int error, const std::string& path) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return Failure(isFolder(folderOf(path)) ? ErrorNumber::FileNotFound
                                                    : ErrorNumber::PathNotFound);
        case EACCES:
        case EPERM:
        case EROFS:
            return Failure(ErrorNumber::PermissionDenied);
        case ENOSPC:
        case EDQUOT:
            return Failure(ErrorNumber::DiskFull);
        default:
            return Failure(ErrorNumber::PathFileAccess);
    }
}

void writeAll(int descriptor, std::string_view bytes, const std::string& path) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) throw failureFor(errno, path);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// What a symbolic link names, as a path from here; empty where the path is no link.
std::string namedByLink(const std::string& path) {
    char link[4096];
    const ssize_t length = ::readlink(path.c_str(), link, sizeof link);
    if (length <= 0) return {};
    const std::string named(link, static_cast<std::size_t>(length));
    return named.starts_with('/') ? named : folderOf(path) + '/' + named;
}

/// The file that a path means, through any links; it need not be there. Links that lead in a
/// circle fail with PathFileAccess.
std::string targetOf(std::string path) {
    constexpr int mostLinks = 40;  // as many as the system itself follows
    for (int i = 0; i < mostLinks; ++i) {
        std::string named = namedByLink(path);
        if (named.empty()) return path;
        path = std::move(named);
    }
    throw Failure(ErrorNumber::PathFileAccess);
}

/// For what is no plain file, a device say.
void writeInto(const std::string& path, std::string_view bytes) {
    FileHandle file(::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) throw failureFor(errno, path);
    writeAll(file.get(), bytes, path);
    if (!file.close()) throw failureFor(errno, path);
}

void setBytes(int descriptor, std::string_view bytes, const std::string& path) {
    if (::lseek(descriptor, 0, SEEK_SET) != 0) throw failureFor(errno, path);
    writeAll(descriptor, bytes, path);
    if (::ftruncate(descriptor, static_cast<off_t>(bytes.size())) != 0 || ::fsync(descriptor) != 0)
        throw failureFor(errno, path);
}

/// For a file in a folder that takes no new one. The file is not emptied first, so that its room
/// on the device is kept for the former bytes, which come back if the write breaks off.
void writeOver(const std::string& path, std::string_view bytes, std::string_view former) {
    const FileHandle file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    if (!file.isOpen()) throw failureFor(errno, path);
    try {
        setBytes(file.get(), bytes, path);
    } catch (const Failure&) {
        const off_t reached = ::lseek(file.get(), 0, SEEK_CUR);
        const auto touched = static_cast<std::size_t>(reached < 0 ? 0 : reached);
        const std::string_view lost = former.substr(0, touched);
        if (::pwrite(file.get(), lost.data(), lost.size(), 0) >= 0)
            (void)!::ftruncate(file.get(), static_cast<off_t>(former.size()));
        throw;
    }
}

void flushFolder(const std::string& folder) {
    const FileHandle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.isOpen()) ::fsync(handle.get());
}

mode_t modeOfNewFiles() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// A file beside the target, deleted unless it took the target's place.
class Sibling {
public:
    explicit Sibling(const std::string& target)
        : m_path(folderOf(target) + "/.orvanta-XXXXXX"),
          m_file(::mkostemp(m_path.data(), O_CLOEXEC)) {}
    ~Sibling() {
        if (!m_done) ::unlink(m_path.c_str());
    }

    bool isOpen() const { return m_file.isOpen(); }

    void become(const std::string& target, std::string_view bytes, mode_t mode) {
        writeAll(m_file.get(), bytes, target);
        if (::fchmod(m_file.get(), mode) != 0 || ::fsync(m_file.get()) != 0 || !m_file.close() ||
            ::rename(m_path.c_str(), target.c_str()) != 0)
            throw failureFor(errno, target);
        m_done = true;
    }

private:
    std::string m_path;
    FileHandle m_file;
    bool m_done = false;
};

}  // namespace

// A file that outgrows what the system allows is to be a failed write, not the end of the program.
FileDisk::FileDisk() { std::signal(SIGXFSZ, SIG_IGN); }

PathKind FileDisk::kindOf(const std::string& path) const {
    struct stat status {};
    if (::stat(utf8From1252(path).c_str(), &status) != 0) return PathKind::Missing;
    return S_ISDIR(status.st_mode) ? PathKind::Folder : PathKind::File;
}

std::string FileDisk::read(const std::string& path) const {
    const std::string name = utf8From1252(path);
    const FileHandle file(::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) throw failureFor(errno, name);
    struct stat status {};
    // Reading anything but a plain file could wait or go on for ever.
    if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        throw Failure(ErrorNumber::PathFileAccess);
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t taken = ::read(file.get(), bytes.data() + filled, bytes.size() - filled);
        if (taken < 0 && errno == EINTR) continue;
        if (taken < 0) throw failureFor(errno, name);
        if (taken == 0) break;
        filled += static_cast<std::size_t>(taken);
    }
    bytes.resize(filled);
    return bytes;
}

void FileDisk::replace(const std::string& path, std::string_view bytes) {
    if (path.empty()) throw Failure(ErrorNumber::PathFileAccess);
    const std::string name = utf8From1252(path);
    struct stat status {};
    const bool there = ::stat(name.c_str(), &status) == 0;
    if (there && S_ISDIR(status.st_mode)) throw Failure(ErrorNumber::PathFileAccess);
    if (there && !S_ISREG(status.st_mode)) return writeInto(name, bytes);
    const std::string target = targetOf(name);
    if (!there && !isFolder(folderOf(target))) throw Failure(ErrorNumber::PathNotFound);
    // A rename would not ask for the right to write the file itself.
    if (there && ::access(target.c_str(), W_OK) != 0) throw failureFor(errno, target);
    Sibling sibling(target);
    if (!sibling.isOpen()) {
        const int error = errno;
        if (!there || error != EACCES) throw failureFor(error, target);
        return writeOver(target, bytes, read(path));
    }
    sibling.become(target, bytes, there ? status.st_mode & 07777 : modeOfNewFiles());
    flushFolder(folderOf(target));
}

void FileDisk::makeFolder(const std::string& path) {
    const std::string name = utf8From1252(path);
    if (::mkdir(name.c_str(), 0777) != 0) throw failureFor(errno, name);
}

void FileDisk::remove(const std::string& path) {
    const std::string name = utf8From1252(path);
    if (::unlink(name.c_str()) != 0) throw failureFor(errno, name);
}

}  // namespace orvanta
