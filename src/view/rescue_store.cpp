#include "view/rescue_store.h"

#include <algorithm>
#include <ctime>
#include <iomanip>
#include <sstream>
#include <vector>

#include "view/native_file.h"
#include "view/platform.h"

namespace orvanta {

namespace {

constexpr std::size_t copiesKept = 20;
constexpr std::string_view stampForm = "0000-00-00 00-00-00.000 ";
// File systems take names of 255 bytes.
constexpr std::size_t longestName = 255 - stampForm.size();

std::string stampOf(RescueStore::Time time) {
    const auto second = std::chrono::floor<std::chrono::seconds>(time);
    const std::time_t whole = std::chrono::system_clock::to_time_t(second);
    const auto rest = std::chrono::floor<std::chrono::milliseconds>(time - second);
    std::ostringstream stamp;
    stamp << std::put_time(std::gmtime(&whole), "%Y-%m-%d %H-%M-%S.") << std::setfill('0')
          << std::setw(3) << rest.count() << ' ';
    return stamp.str();
}

bool isCopy(std::string_view name) {
    if (name.size() <= stampForm.size()) return false;
    return std::ranges::equal(name.substr(0, stampForm.size()), stampForm,
                              [](char byte, char form) {
                                  return form == '0' ? byte >= '0' && byte <= '9' : byte == form;
                              });
}

/// The end of a long name tells more than its beginning: it holds the ending.
std::string_view shortened(std::string_view name) {
    if (name.size() <= longestName) return name;
    name.remove_prefix(name.size() - longestName);
    const auto isWithinCharacter = [](char byte) { return (byte & 0xC0) == 0x80; };
    while (!name.empty() && isWithinCharacter(name.front())) name.remove_prefix(1);
    return name;
}

}  // namespace

RescueStore::RescueStore(std::string folder, Clock clock)
    : m_folder(std::move(folder)), m_clock(std::move(clock)) {}

std::string RescueStore::keep(std::string_view name, std::string_view bytes) const {
    native::makePrivateFolder(m_folder);
    native::removeLeftovers(m_folder);
    native::NewFile copy(m_folder);
    copy.write(bytes);
    std::string path = freePath(m_folder, native::usableName(native::withoutFolder(name)));
    copy.takePlace(path);
    dropOldCopies(path);
    return path;
}

std::string RescueStore::keepFile(const std::string& file, std::string_view name) const {
    try {
        native::makePrivateFolder(m_folder);
        std::string path = freePath(m_folder, name);
        native::giveSecondName(file, path);
        dropOldCopies(path);
        return path;
    } catch (const Failure&) {
        std::string path = freePath(native::folderOf(file), name);
        native::rename(file, path);
        return path;
    }
}

std::string RescueStore::freePath(const std::string& folder, std::string_view name) const {
    for (Time time = m_clock();; time += std::chrono::milliseconds(1)) {
        std::string path = folder + pathSeparator + stampOf(time).append(shortened(name));
        if (native::kindOf(path, native::Links::Keep) == native::FileKind::Missing) return path;
    }
}

void RescueStore::dropOldCopies(const std::string& newest) const {
    std::vector<std::string> copies = native::namesIn(m_folder);
    // The one just made stays, though a clock that was ahead may have named others after it.
    std::erase_if(copies, [&](const std::string& name) {
        return !isCopy(name) || name == native::withoutFolder(newest);
    });
    constexpr std::size_t others = copiesKept - 1;
    if (copies.size() <= others) return;
    std::ranges::sort(copies, std::greater());
    copies.erase(copies.begin(), copies.begin() + others);
    for (const std::string& name : copies) native::tryToRemove(m_folder + pathSeparator + name);
}

}  // namespace orvanta
