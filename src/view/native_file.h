#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "view/failure.h"
#include "view/platform.h"

/// The calls of the system on which the disk builds its rules; those of POSIX are in
/// posix_file.cpp, those of Windows in windows_file.cpp. Names are UTF-8. What fails, fails with
/// the Failure that FileDisk tells.
namespace orvanta::native {

/// All that part a path, the one that the program writes among them.
#ifdef _WIN32
constexpr std::string_view pathSeparators = "\\/";
#else
constexpr std::string_view pathSeparators = "/";
#endif

enum class FileKind { Missing, Plain, Folder, Link, Other };
/// Whether a symbolic link at the end of a name stands for what it leads to or for itself.
enum class Links { Follow, Keep };

/// A file that is still being written has this prefix and so many letters and digits for a name.
constexpr std::string_view passingPrefix = ".orvanta-";
constexpr std::size_t passingSuffixSize = 6;

/// More is read of no file.
constexpr std::uint64_t mostBytes = std::uint64_t{256} << 20;

/// A folder that lets no file come or go; a file in it may still be one to write to.
struct FolderRefusal : Failure {
    explicit FolderRefusal(const Failure& failure) : Failure(failure) {}
};

#ifdef _WIN32
using Descriptor = void*;
/// What a new file in the place of a former one gets.
enum class Rights { OfFolder, OfFormer };
#else
using Descriptor = int;
using Rights = unsigned;  // the mode of a file
#endif

/// What the program takes for a file or a folder; never fails. Where the system has attribute
/// words, only one that says "folder" and nothing else is a folder, and all the rest is files.
PathKind pathKindOf(const std::string& name);
/// Missing where nothing is there; fails where that can't be told.
FileKind kindOf(const std::string& name, Links links);
/// The name behind any links; there need be nothing. Links in a circle fail with PathFileAccess.
std::string targetOf(std::string name);
/// With its separator only where that is the whole name of the folder, a drive apart.
inline std::string folderOf(const std::string& name) {
    constexpr std::size_t letter = 2;  // with the colon of a drive
    const bool hasDrive = pathSeparator == '\\' && name.size() >= letter && name[1] == ':';
    const std::size_t drive = hasDrive ? letter : 0;
    const auto cut = name.find_last_of(pathSeparators);
    // On a drive without a separator behind it: in the folder where the system stands there.
    if (cut == std::string::npos) return name.substr(0, drive) + '.';
    return name.substr(0, cut == drive ? cut + 1 : cut);
}
inline std::string_view withoutFolder(std::string_view name) {
    return name.substr(name.find_last_of(pathSeparators) + 1);
}
/// Without its folder, and the same for all names that the system takes for one file of a folder.
std::string comparableName(const std::string& name);
/// With "_" for what no name on this system may hold.
std::string usableName(std::string_view name);
/// The names in a folder, without their folder; none where it can't be looked into.
std::vector<std::string> namesIn(const std::string& folder);
/// True if the file has a second name.
bool hasSecondName(const std::string& name);
/// A plain file of this user that was last written longer ago than this; no link.
bool isOwnPlainFile(const std::string& name, std::chrono::seconds olderThan);

/// Fails where this user may not write to the file.
void requireWritable(const std::string& name);
/// True for a folder that this user may look into and enter.
bool isOpenFolder(const std::string& name);
void makeFolder(const std::string& name);
/// Makes a folder that only this user may enter, with its parents, unless it is there. Windows
/// leaves it to the folder around it who may.
void makePrivateFolder(const std::string& name);
void remove(const std::string& name);
/// A second name for the same file; it goes on when the first one goes.
void giveSecondName(const std::string& name, const std::string& second);
void rename(const std::string& name, const std::string& other);
/// Removes what can be removed.
void tryToRemove(const std::string& name);
/// Removes the passing files that are this user's and older than a day: programs that were killed
/// while they wrote have left them. Never fails.
void removeLeftovers(const std::string& folder);
/// Writes to what is no plain file, a device say.
void writeInto(const std::string& name, std::string_view bytes);

/// An open file, closed at the end.
class File {
public:
    static File toRead(const std::string& name, Links links);
    /// To be read and written in place; never through a link.
    static File toChange(const std::string& name);
    /// A new file of a name that nothing has yet, for this user alone; on Windows for this program
    /// alone while it is open. Fails with FolderRefusal where the folder takes none.
    static File passing(const std::string& folder);

    ~File();
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    /// All bytes of a plain file. Fails with PathFileAccess for anything else, beyond mostBytes,
    /// and where memory can't hold them.
    std::string read() const;
    /// How many they are. Fails as read does, but not for want of memory.
    std::size_t size() const;
    void write(std::string_view bytes, std::uint64_t offset) const;
    void cut(std::uint64_t size) const;
    /// Returns when the device has the bytes.
    void flush() const;
    void close();
    const std::string& name() const { return m_name; }

private:
    friend class NewFile;
    friend void writeInto(const std::string& name, std::string_view bytes);
    File(Descriptor descriptor, std::string name);

    Descriptor m_descriptor;
    std::string m_name;
};

/// A file that is written under a passing name and then takes its place as a whole; gone at the
/// end if it did not. Until then it is for this user alone.
class NewFile {
public:
    /// Removes the leftovers in the folder too. Fails with FolderRefusal where it takes no new
    /// file.
    explicit NewFile(const std::string& folder);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    /// Called once.
    void write(std::string_view bytes) const { m_file.write(bytes, 0); }
    /// The rights that a file gets that was not there before.
    void takeUsualRights();
    /// Group, rights and attributes of a former file, as far as this user may give them away.
    void takeRightsOf(const std::string& former);
    /// Fails with FolderRefusal where the folder does not let the former file go.
    void takePlace(const std::string& name);

private:
    File m_file;
    Rights m_rights;
    bool m_inPlace = false;
};

}  // namespace orvanta::native
