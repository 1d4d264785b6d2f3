#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <utility>

#include "view/native_file.h"
#include "view/within_memory.h"

namespace orvanta::native {

namespace {

bool isFolder(const std::string& name) {
    struct stat status {};
    return ::stat(name.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// What the system's error means for a file.
Failure failureFor(int error, const std::string& name) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return Failure(isFolder(folderOf(name)) ? ErrorNumber::FileNotFound
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

/// Whether a folder that answers so keeps its files as they are: it is not this user's to change,
/// or another file system is mounted on the file.
bool isRefusal(int error) {
    constexpr std::array refusals{EACCES, EPERM, EROFS, EBUSY, EXDEV};
    return std::ranges::find(refusals, error) != refusals.end();
}

[[noreturn]] void fail(const std::string& name) { throw failureFor(errno, name); }

[[noreturn]] void failInFolder(const std::string& name) {
    const int error = errno;
    const Failure failure = failureFor(error, name);
    if (isRefusal(error)) throw FolderRefusal(failure);
    throw failure;
}

/// Calls again for as long as a signal comes between.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

int openFile(const std::string& name, int flags) {
    return uninterrupted([&] { return ::open(name.c_str(), flags | O_CLOEXEC); });
}

/// False where there is nothing; fails where that can't be told.
bool look(const std::string& name, Links links, struct stat& status) {
    const auto call = links == Links::Follow ? ::stat : ::lstat;
    if (uninterrupted([&] { return call(name.c_str(), &status); }) == 0) return true;
    if (errno != ENOENT) fail(name);
    return false;
}

FileKind kindFrom(mode_t mode) {
    if (S_ISREG(mode)) return FileKind::Plain;
    if (S_ISDIR(mode)) return FileKind::Folder;
    return S_ISLNK(mode) ? FileKind::Link : FileKind::Other;
}

/// What a symbolic link leads to, as a name from here; empty for anything else.
std::string ledToBy(const std::string& name) {
    std::array<char, 4096> link;
    const ssize_t length = ::readlink(name.c_str(), link.data(), link.size());
    if (length < 0 && errno != EINVAL && errno != ENOENT) fail(name);
    if (length <= 0) return {};
    const std::string to(link.data(), static_cast<std::size_t>(length));
    return to.starts_with('/') ? to : folderOf(name) + '/' + to;
}

bool isRefusalOfRights(int error) {
    return error == EPERM || error == EACCES || error == ENOTSUP || error == ENOSYS ||
           error == EINVAL;
}

mode_t usualMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// A list of names or a value that the system gives once it was told the room for it.
template <class Call>
std::string filledBy(Call call) {
    const ssize_t size = call(nullptr, 0);
    std::string bytes(static_cast<std::size_t>(std::max<ssize_t>(size, 0)), '\0');
    const ssize_t filled = bytes.empty() ? 0 : call(bytes.data(), bytes.size());
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(filled, 0)));
    return bytes;
}

/// Who may do what, where a folder or a file has more to say on it than the mode.
constexpr const char* accessList = "system.posix_acl_access";

/// All but the access list, and but what a program file may do: like setuid and setgid, that does
/// not pass to other bytes.
std::vector<std::string> attributesOf(const std::string& name) {
    const std::string list = filledBy(
        [&](char* room, std::size_t size) { return ::llistxattr(name.c_str(), room, size); });
    std::vector<std::string> attributes;
    for (std::size_t at = 0; at < list.size(); at += attributes.back().size() + 1)
        attributes.emplace_back(list.c_str() + at);
    std::erase(attributes, accessList);
    std::erase(attributes, "security.capability");
    return attributes;
}

bool copyAttribute(const char* attribute, const std::string& from, const std::string& to) {
    const std::string value = filledBy([&](char* room, std::size_t size) {
        return ::lgetxattr(from.c_str(), attribute, room, size);
    });
    return ::lsetxattr(to.c_str(), attribute, value.data(), value.size(), 0) == 0;
}

/// True if nobody has other rights to the one than to the other, as far as lists tell.
bool copyAccessList(const std::string& from, const std::string& to) {
    ::lremovexattr(to.c_str(), accessList);  // a folder may give its new files one
    if (::lgetxattr(from.c_str(), accessList, nullptr, 0) < 0)
        return errno == ENODATA || errno == ENOTSUP;
    return copyAttribute(accessList, from, to);
}

/// Writes all through a call that may take a part, or fails.
template <class Write>
void writeAll(std::string_view bytes, const std::string& name, Write write) {
    while (!bytes.empty()) {
        const ssize_t written = uninterrupted([&] { return write(bytes.data(), bytes.size()); });
        if (written < 0) fail(name);
        if (written == 0) throw Failure(ErrorNumber::PathFileAccess);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void flushFolder(const std::string& folder) {
    const int descriptor = openFile(folder, O_RDONLY | O_DIRECTORY);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}  // namespace

FileKind kindOf(const std::string& name, Links links) {
    struct stat status {};
    return look(name, links, status) ? kindFrom(status.st_mode) : FileKind::Missing;
}

PathKind pathKindOf(const std::string& name) {
    try {
        const FileKind kind = kindOf(name, Links::Follow);
        if (kind == FileKind::Missing) return PathKind::Missing;
        return kind == FileKind::Folder ? PathKind::Folder : PathKind::File;
    } catch (const Failure&) {
        return PathKind::Missing;
    }
}

std::string targetOf(std::string name) {
    constexpr int mostLinks = 40;  // as many as the system itself follows
    for (int i = 0; i < mostLinks; ++i) {
        std::string to = ledToBy(name);
        if (to.empty()) return name;
        name = std::move(to);
    }
    throw Failure(ErrorNumber::PathFileAccess);
}

std::string comparableName(const std::string& name) { return std::string(withoutFolder(name)); }

std::string usableName(std::string_view name) { return std::string(name); }

std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code failed;
    const auto* const utf8 = reinterpret_cast<const char8_t*>(folder.c_str());
    std::filesystem::directory_iterator entry(std::filesystem::path(utf8), failed);
    for (; !failed && entry != std::filesystem::directory_iterator(); entry.increment(failed)) {
        const std::u8string name = entry->path().filename().u8string();
        names.emplace_back(name.begin(), name.end());
    }
    return names;
}

bool isOwnPlainFile(const std::string& name, std::chrono::seconds olderThan) {
    struct stat status {};
    if (::lstat(name.c_str(), &status) != 0) return false;
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
           std::time(nullptr) - status.st_mtime > olderThan.count();
}

bool hasSecondName(const std::string& name) {
    struct stat status {};
    return look(name, Links::Keep, status) && status.st_nlink > 1;
}

void requireWritable(const std::string& name) {
    if (::access(name.c_str(), W_OK) != 0) fail(name);
}

bool isOpenFolder(const std::string& name) {
    return isFolder(name) && ::access(name.c_str(), R_OK | X_OK) == 0;
}

void makeFolder(const std::string& name) {
    if (::mkdir(name.c_str(), 0777) != 0) fail(name);
}

void makePrivateFolder(const std::string& name) {
    std::error_code failed;
    std::filesystem::create_directories(folderOf(name), failed);
    if (::mkdir(name.c_str(), 0700) != 0 && errno != EEXIST) fail(name);
}

void remove(const std::string& name) {
    if (::unlink(name.c_str()) != 0) fail(name);
}

void giveSecondName(const std::string& name, const std::string& second) {
    if (::link(name.c_str(), second.c_str()) != 0) fail(name);
}

void rename(const std::string& name, const std::string& other) {
    if (::rename(name.c_str(), other.c_str()) != 0) fail(name);
}

void writeInto(const std::string& name, std::string_view bytes) {
    File file(openFile(name, O_WRONLY | O_NONBLOCK), name);
    writeAll(bytes, name, [&](const char* rest, std::size_t size) {
        return ::write(file.m_descriptor, rest, size);
    });
    file.close();
}

File::File(Descriptor descriptor, std::string name)
    : m_descriptor(descriptor), m_name(std::move(name)) {
    if (descriptor < 0) fail(m_name);
}

File::~File() {
    if (m_descriptor >= 0) ::close(m_descriptor);
}

File File::toRead(const std::string& name, Links links) {
    const int noLink = links == Links::Keep ? O_NOFOLLOW : 0;
    return {openFile(name, O_RDONLY | O_NONBLOCK | noLink), name};
}

File File::toChange(const std::string& name) {
    return {openFile(name, O_RDWR | O_NONBLOCK | O_NOFOLLOW), name};
}

File File::passing(const std::string& folder) {
    std::string name;
    const int descriptor = uninterrupted([&] {
        name = folder + '/' + std::string(passingPrefix) + std::string(passingSuffixSize, 'X');
        return ::mkostemp(name.data(), O_CLOEXEC);
    });
    if (descriptor < 0) failInFolder(name);
    return {descriptor, std::move(name)};
}

std::size_t File::size() const {
    struct stat status {};
    if (uninterrupted([&] { return ::fstat(m_descriptor, &status); }) != 0) fail(m_name);
    // Reading anything but a plain file could wait or go on for ever.
    if (!S_ISREG(status.st_mode) || static_cast<std::uint64_t>(status.st_size) > mostBytes)
        throw Failure(ErrorNumber::PathFileAccess);
    return static_cast<std::size_t>(status.st_size);
}

std::string File::read() const {
    const std::size_t expected = size();
    std::string bytes = withinMemory([&] { return std::string(expected, '\0'); });
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t taken = uninterrupted([&] {
            return ::pread(m_descriptor, bytes.data() + filled, bytes.size() - filled,
                           static_cast<off_t>(filled));
        });
        if (taken < 0) fail(m_name);
        if (taken == 0) break;
        filled += static_cast<std::size_t>(taken);
    }
    bytes.resize(filled);
    return bytes;
}

void File::write(std::string_view bytes, std::uint64_t offset) const {
    writeAll(bytes, m_name, [&](const char* rest, std::size_t size) {
        const auto done = static_cast<std::uint64_t>(rest - bytes.data());
        return ::pwrite(m_descriptor, rest, size, static_cast<off_t>(offset + done));
    });
}

void File::cut(std::uint64_t size) const {
    if (uninterrupted([&] { return ::ftruncate(m_descriptor, static_cast<off_t>(size)); }) != 0)
        fail(m_name);
}

void File::flush() const {
    if (uninterrupted([&] { return ::fsync(m_descriptor); }) != 0) fail(m_name);
}

// The descriptor is gone in any case. A signal in between loses nothing.
void File::close() {
    if (::close(std::exchange(m_descriptor, -1)) != 0 && errno != EINTR) fail(m_name);
}

NewFile::NewFile(const std::string& folder)
    : m_file(File::passing(folder)), m_rights(S_IRUSR | S_IWUSR) {}

NewFile::~NewFile() {
    if (!m_inPlace) ::unlink(m_file.name().c_str());
}

void NewFile::takeUsualRights() { m_rights = usualMode(); }

void NewFile::takeRightsOf(const std::string& former) {
    struct stat status {};
    if (!look(former, Links::Keep, status)) throw Failure(ErrorNumber::FileNotFound);
    const int file = m_file.m_descriptor;
    const bool groupKept = ::fchown(file, status.st_uid, status.st_gid) == 0 ||
                           ::fchown(file, static_cast<uid_t>(-1), status.st_gid) == 0;
    const bool listKept = groupKept && copyAccessList(former, m_file.name());
    for (const std::string& attribute : attributesOf(former))
        copyAttribute(attribute.c_str(), former, m_file.name());
    m_rights = status.st_mode & (S_ISVTX | S_IRWXU | S_IRWXG | S_IRWXO);
    // Rather nobody's than another group's.
    if (!listKept) m_rights &= ~static_cast<Rights>(S_IRWXG);
}

void NewFile::takePlace(const std::string& name) {
    // A medium without rights, or whose files all belong to somebody else, keeps its own; the file
    // has none too many before.
    if (uninterrupted([&] { return ::fchmod(m_file.m_descriptor, m_rights); }) != 0 &&
        !isRefusalOfRights(errno))
        fail(name);
    m_file.flush();
    m_file.close();
    if (::rename(m_file.name().c_str(), name.c_str()) != 0) failInFolder(name);
    m_inPlace = true;
    flushFolder(folderOf(name));
}

}  // namespace orvanta::native
