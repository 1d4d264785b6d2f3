#include <aclapi.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <random>
#include <utility>

#include "view/native_file.h"
#include "view/windows_names.h"
#include "view/within_memory.h"

namespace orvanta::native {

namespace {

constexpr DWORD quotaExceeded = 1295;  // ERROR_DISK_QUOTA_EXCEEDED, which mingw does not name
constexpr DWORD sharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Something of the system's, closed at the end.
class Handle {
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() {
        if (isOpen()) CloseHandle(m_handle);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/// Opens what is there: a file or a folder.
HANDLE openAs(const std::wstring& path, DWORD access, DWORD flags = FILE_FLAG_BACKUP_SEMANTICS) {
    return CreateFileW(path.c_str(), access, sharedByAll, nullptr, OPEN_EXISTING, flags, nullptr);
}

bool isFolder(const std::string& name) {
    const DWORD attributes = GetFileAttributesW(longName(name).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

/// Longer than a file system takes it: not every system says so.
bool isTooLong(const std::string& name) { return wideFrom(withoutFolder(name)).size() > 255; }

bool isMissing(DWORD error, const std::string& name) {
    return (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) && !isTooLong(name);
}

/// What the system's error means for a file.
Failure failureFor(DWORD error, const std::string& name) {
    if (isTooLong(name)) return Failure(ErrorNumber::PathFileAccess);
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_NOT_READY:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            return Failure(isFolder(folderOf(name)) ? ErrorNumber::FileNotFound
                                                    : ErrorNumber::PathNotFound);
        case ERROR_ACCESS_DENIED:  // the answer also where a folder stands in the file's place
            return Failure(isFolder(name) ? ErrorNumber::PathFileAccess
                                          : ErrorNumber::PermissionDenied);
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_UNABLE_TO_REMOVE_REPLACED:
        case ERROR_DELETE_PENDING:
        case ERROR_WRITE_PROTECT:
        case ERROR_NETWORK_ACCESS_DENIED:
            return Failure(ErrorNumber::PermissionDenied);
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case quotaExceeded:
            return Failure(ErrorNumber::DiskFull);
        default:
            return Failure(ErrorNumber::PathFileAccess);
    }
}

[[noreturn]] void fail(const std::string& name) { throw failureFor(GetLastError(), name); }

/// Whether a folder that answers so keeps its files as they are: it is not this user's to change,
/// or another program has the file open and lets nobody take it away.
bool isRefusal(DWORD error) {
    constexpr std::array<DWORD, 6> refusals{ERROR_ACCESS_DENIED,    ERROR_SHARING_VIOLATION,
                                            ERROR_USER_MAPPED_FILE, ERROR_UNABLE_TO_REMOVE_REPLACED,
                                            ERROR_DELETE_PENDING,   ERROR_WRITE_PROTECT};
    return std::ranges::find(refusals, error) != refusals.end();
}

/// The system's error for a call that says whether it went well; 0 if it did. A program that looks
/// into each file, as one against viruses does, lets go of it in a moment: so the call is made
/// again for a fifth of a second.
template <class Call>
DWORD errorOf(Call call) {
    constexpr DWORD pause = 50;  // milliseconds
    for (int pausesLeft = 4; !call(); --pausesLeft, Sleep(pause)) {
        const DWORD error = GetLastError();
        if (error != ERROR_SHARING_VIOLATION || pausesLeft == 0) return error;
    }
    return 0;
}

[[noreturn]] void failInFolder(DWORD error, const std::string& name) {
    const Failure failure = failureFor(error, name);
    if (isRefusal(error)) throw FolderRefusal(failure);
    throw failure;
}

/// Whether this stands for something else, as a symbolic link does; a file that lies in a cloud
/// stands for itself.
bool isLink(HANDLE handle) {
    FILE_ATTRIBUTE_TAG_INFO info{};
    GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &info, sizeof info);
    return (info.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) &&
           IsReparseTagNameSurrogate(info.ReparseTag);
}

bool isLink(const std::wstring& path) {
    const Handle handle(openAs(path, FILE_READ_ATTRIBUTES,
                               FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT));
    return handle.isOpen() && isLink(handle.get());
}

HANDLE openNoLink(const std::wstring& path, DWORD access) {
    const HANDLE file = openAs(path, access, FILE_FLAG_OPEN_REPARSE_POINT);
    if (file == INVALID_HANDLE_VALUE || !isLink(file)) return file;
    CloseHandle(file);
    throw Failure(ErrorNumber::PathFileAccess);
}

/// The attribute word of what links at the end of the path lead to.
DWORD attributesBehind(const std::wstring& path) {
    const Handle handle(openAs(path, FILE_READ_ATTRIBUTES));
    BY_HANDLE_FILE_INFORMATION info{};
    if (!handle.isOpen() || !GetFileInformationByHandle(handle.get(), &info))
        return INVALID_FILE_ATTRIBUTES;
    return info.dwFileAttributes;
}

/// A colon other than the drive's stands before a part of a file that nobody sees.
bool namesHiddenPart(std::wstring_view longName) {
    constexpr std::wstring_view drive = LR"(\\?\C:)";
    return longName.find(L':', drive.size()) != longName.npos;
}

/// What the folder calls it, which may have been named by its short name.
std::wstring nameInFolder(const std::wstring& path) {
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(path.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return path;
    FindClose(search);
    return entry.cFileName;
}

FileKind kindFrom(DWORD attributes, const std::string& name) {
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = GetLastError();
        if (!isMissing(error, name)) throw failureFor(error, name);
        return FileKind::Missing;
    }
    return attributes & FILE_ATTRIBUTE_DIRECTORY ? FileKind::Folder : FileKind::Plain;
}

/// Whether this program's user is the owner, or, in the other sense, the group that his files get.
bool isThisUser(PSID owner, TOKEN_INFORMATION_CLASS sense) {
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened)) return false;
    const Handle token(opened);
    DWORD size = 0;
    GetTokenInformation(opened, sense, nullptr, 0, &size);
    std::vector<std::byte> info(size);
    if (!GetTokenInformation(opened, sense, info.data(), size, &size)) return false;
    const void* const id = info.data();
    return EqualSid(owner, sense == TokenUser ? static_cast<const TOKEN_USER*>(id)->User.Sid
                                              : static_cast<const TOKEN_OWNER*>(id)->Owner);
}

bool isOwn(const std::wstring& path) {
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                              nullptr, nullptr, nullptr, &descriptor) != ERROR_SUCCESS)
        return false;
    const bool own = isThisUser(owner, TokenUser) || isThisUser(owner, TokenOwner);
    LocalFree(descriptor);
    return own;
}

std::chrono::seconds ageOf(const FILETIME& time) {
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    const auto ticks = [](const FILETIME& moment) {
        return static_cast<std::int64_t>(moment.dwHighDateTime) << 32 | moment.dwLowDateTime;
    };
    return std::chrono::seconds((ticks(now) - ticks(time)) / 10'000'000);
}

std::string passingName(const std::string& folder) {
    constexpr std::string_view signs = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    std::string name = folder + pathSeparator + std::string(passingPrefix);
    for (std::size_t i = 0; i < passingSuffixSize; ++i) name += signs[random() % signs.size()];
    return name;
}

/// Where in a file a call begins.
OVERLAPPED at(std::uint64_t offset) {
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

DWORD inOneCall(std::size_t bytes) {
    return static_cast<DWORD>(std::min<std::size_t>(bytes, 1 << 30));
}

/// Returns when the device knows the file's new name, where the system can say so.
void flushNamed(const std::wstring& path) {
    const Handle file(openAs(path, GENERIC_WRITE, 0));
    if (file.isOpen()) FlushFileBuffers(file.get());
}

/// A read-only file can be neither replaced nor removed.
DWORD withoutReadOnly(DWORD attributes) {
    return attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY);
}

/// The former file's rights, attributes and further streams pass to the one that takes its place.
/// Only a file of the program's own is still read-only here. An error of the system; 0 for none.
DWORD replaceFormer(const std::wstring& former, const std::wstring& by) {
    const DWORD attributes = GetFileAttributesW(former.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY))
        SetFileAttributesW(former.c_str(), withoutReadOnly(attributes));
    // Asked before: where the former file must stay, some systems leave pieces of the attempt.
    DWORD error = errorOf([&] { return Handle(openAs(former, DELETE, 0)).isOpen(); });
    if (error) return error;
    error = errorOf([&] {
        return ReplaceFileW(former.c_str(), by.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                            nullptr, nullptr);
    });
    if (!error) flushNamed(former);
    return error;
}

}  // namespace

PathKind pathKindOf(const std::string& name) {
    switch (GetFileAttributesW(longName(name).c_str())) {
        case INVALID_FILE_ATTRIBUTES:
            return PathKind::Missing;
        case FILE_ATTRIBUTE_DIRECTORY:
            return PathKind::Folder;
        default:
            return PathKind::File;
    }
}

FileKind kindOf(const std::string& name, Links links) {
    const std::wstring path = longName(name);
    if (isDevice(path)) return FileKind::Other;
    if (namesHiddenPart(path)) throw Failure(ErrorNumber::PathFileAccess);
    if (!isLink(path)) return kindFrom(GetFileAttributesW(path.c_str()), name);
    return links == Links::Keep ? FileKind::Link : kindFrom(attributesBehind(path), name);
}

// A link that leads to nothing tells nobody what it would lead to: that fails.
std::string targetOf(std::string name) {
    const std::wstring path = longName(name);
    if (!isLink(path)) return name;
    const Handle handle(openAs(path, FILE_READ_ATTRIBUTES));
    if (!handle.isOpen()) fail(name);
    std::wstring target(GetFinalPathNameByHandleW(handle.get(), nullptr, 0, 0), L'\0');
    const DWORD size = static_cast<DWORD>(target.size());
    target.resize(GetFinalPathNameByHandleW(handle.get(), target.data(), size, 0));
    return usualName(target);
}

// The system leaves off points and blanks at the end of a name and takes all letter cases for one.
std::string comparableName(const std::string& name) {
    std::wstring known = nameInFolder(longName(name));
    CharLowerBuffW(known.data(), static_cast<DWORD>(known.size()));
    return std::string(withoutFolder(utf8From(known)));
}

std::string usableName(std::string_view name) {
    const auto isUnusable = [](unsigned char sign) {
        return sign < ' ' || std::string_view(R"(<>:"/\|?*)").find(sign) != std::string_view::npos;
    };
    std::string usable(name);
    std::ranges::replace_if(usable, isUnusable, '_');
    return usable;
}

std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(longName(folder + R"(\*)").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        const std::string name = utf8From(entry.cFileName);
        if (name != "." && name != "..") names.push_back(name);
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return names;
}

bool isOwnPlainFile(const std::string& name, std::chrono::seconds olderThan) {
    const std::wstring path = longName(name);
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) return false;
    constexpr DWORD others = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return !(data.dwFileAttributes & others) && ageOf(data.ftLastWriteTime) > olderThan &&
           isOwn(path);
}

void requireWritable(const std::string& name) {
    const std::wstring path = longName(name);
    const DWORD access = isFolder(name) ? FILE_ADD_FILE : GENERIC_WRITE;
    const DWORD error = errorOf([&] { return Handle(openAs(path, access)).isOpen(); });
    if (error) throw failureFor(error, name);
    // An administrator is let in nevertheless by some systems. Of a folder the word says nothing.
    if (access == GENERIC_WRITE && (GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_READONLY))
        throw Failure(ErrorNumber::PermissionDenied);
}

bool isOpenFolder(const std::string& name) {
    return isFolder(name) &&
           Handle(openAs(longName(name), FILE_LIST_DIRECTORY | FILE_TRAVERSE)).isOpen();
}

void makeFolder(const std::string& name) {
    if (!CreateDirectoryW(longName(name).c_str(), nullptr)) fail(name);
}

void makePrivateFolder(const std::string& name) {
    const std::string parent = folderOf(name);
    if (parent != name && pathKindOf(parent) == PathKind::Missing) makePrivateFolder(parent);
    if (!CreateDirectoryW(longName(name).c_str(), nullptr) &&
        GetLastError() != ERROR_ALREADY_EXISTS)
        fail(name);
}

bool hasSecondName(const std::string& name) {
    const Handle file(openAs(longName(name), 0));
    BY_HANDLE_FILE_INFORMATION data;
    return file.isOpen() && GetFileInformationByHandle(file.get(), &data) &&
           data.nNumberOfLinks > 1;
}

void giveSecondName(const std::string& name, const std::string& second) {
    if (!CreateHardLinkW(longName(second).c_str(), longName(name).c_str(), nullptr)) fail(name);
}

void rename(const std::string& name, const std::string& other) {
    if (!MoveFileExW(longName(name).c_str(), longName(other).c_str(), MOVEFILE_WRITE_THROUGH))
        fail(name);
}

void remove(const std::string& name) {
    if (!DeleteFileW(longName(name).c_str())) fail(name);
}

void writeInto(const std::string& name, std::string_view bytes) {
    File file(openAs(longName(name), GENERIC_WRITE, 0), name);
    file.write(bytes, 0);
    file.close();
}

File::File(Descriptor descriptor, std::string name)
    : m_descriptor(descriptor), m_name(std::move(name)) {
    if (descriptor == INVALID_HANDLE_VALUE) fail(m_name);
}

File::~File() {
    if (m_descriptor != INVALID_HANDLE_VALUE) CloseHandle(m_descriptor);
}

File File::toRead(const std::string& name, Links links) {
    const std::wstring path = longName(name);
    return {links == Links::Keep ? openNoLink(path, GENERIC_READ) : openAs(path, GENERIC_READ, 0),
            name};
}

File File::toChange(const std::string& name) {
    return {openNoLink(longName(name), GENERIC_READ | GENERIC_WRITE), name};
}

File File::passing(const std::string& folder) {
    for (;;) {
        std::string name = passingName(folder);
        const HANDLE file = CreateFileW(longName(name).c_str(), GENERIC_WRITE, 0, nullptr,
                                        CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file != INVALID_HANDLE_VALUE) return {file, std::move(name)};
        const DWORD error = GetLastError();
        if (error != ERROR_FILE_EXISTS) failInFolder(error, name);
    }
}

std::size_t File::size() const {
    LARGE_INTEGER size;
    // Reading anything but a plain file could wait or go on for ever.
    if (GetFileType(m_descriptor) != FILE_TYPE_DISK) throw Failure(ErrorNumber::PathFileAccess);
    if (!GetFileSizeEx(m_descriptor, &size)) fail(m_name);
    if (static_cast<std::uint64_t>(size.QuadPart) > mostBytes)
        throw Failure(ErrorNumber::PathFileAccess);
    return static_cast<std::size_t>(size.QuadPart);
}

std::string File::read() const {
    const std::size_t expected = size();
    std::string bytes = withinMemory([&] { return std::string(expected, '\0'); });
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        OVERLAPPED place = at(filled);
        DWORD taken = 0;
        if (!ReadFile(m_descriptor, bytes.data() + filled, inOneCall(bytes.size() - filled), &taken,
                      &place) &&
            GetLastError() != ERROR_HANDLE_EOF)
            fail(m_name);
        if (taken == 0) break;
        filled += taken;
    }
    bytes.resize(filled);
    return bytes;
}

void File::write(std::string_view bytes, std::uint64_t offset) const {
    while (!bytes.empty()) {
        OVERLAPPED place = at(offset);
        DWORD written = 0;
        if (!WriteFile(m_descriptor, bytes.data(), inOneCall(bytes.size()), &written, &place))
            fail(m_name);
        if (written == 0) throw Failure(ErrorNumber::PathFileAccess);
        bytes.remove_prefix(written);
        offset += written;
    }
}

void File::cut(std::uint64_t size) const {
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
    if (!SetFileInformationByHandle(m_descriptor, FileEndOfFileInfo, &end, sizeof end))
        fail(m_name);
}

void File::flush() const {
    if (!FlushFileBuffers(m_descriptor)) fail(m_name);
}

void File::close() {
    if (!CloseHandle(std::exchange(m_descriptor, INVALID_HANDLE_VALUE))) fail(m_name);
}

NewFile::NewFile(const std::string& folder)
    : m_file(File::passing(folder)), m_rights(Rights::OfFolder) {}

NewFile::~NewFile() {
    if (m_inPlace) return;
    HANDLE& file = m_file.m_descriptor;
    if (file != INVALID_HANDLE_VALUE) CloseHandle(std::exchange(file, INVALID_HANDLE_VALUE));
    DeleteFileW(longName(m_file.name()).c_str());
}

void NewFile::takeUsualRights() { m_rights = Rights::OfFolder; }

void NewFile::takeRightsOf(const std::string& former) {
    const DWORD attributes = GetFileAttributesW(longName(former).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) fail(former);
    SetFileAttributesW(longName(m_file.name()).c_str(), withoutReadOnly(attributes));
    m_rights = Rights::OfFormer;
}

void NewFile::takePlace(const std::string& name) {
    m_file.flush();
    m_file.close();
    const std::wstring from = longName(m_file.name()), to = longName(name);
    DWORD error = ERROR_NOT_SUPPORTED;
    if (m_rights == Rights::OfFormer) error = replaceFormer(to, from);
    if (isRefusal(error)) failInFolder(error, name);
    // Not every file system can replace a file and keep what the former one had.
    constexpr DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const DWORD moveError =
        error ? errorOf([&] { return MoveFileExW(from.c_str(), to.c_str(), how); }) : 0;
    // The former file has gone by then, or has a name that nobody knows: the new one must not go
    // too, though its name is passing.
    m_inPlace = moveError == 0 || error == ERROR_UNABLE_TO_MOVE_REPLACEMENT ||
                error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2;
    if (moveError) failInFolder(moveError, name);
}

}  // namespace orvanta::native
