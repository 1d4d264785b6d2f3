#include "view/native_file.h"

namespace orvanta::native {

namespace {

bool isPassing(std::string_view name) {
    if (!name.starts_with(passingPrefix)) return false;
    name.remove_prefix(passingPrefix.size());
    constexpr std::string_view signs =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    return name.size() == passingSuffixSize && name.find_first_not_of(signs) == name.npos;
}

}  // namespace

std::string folderOf(const std::string& name) {
    const auto cut = name.find_last_of(pathSeparators);
    if (cut == std::string::npos) return ".";
    constexpr bool hasDrives = pathSeparator == '\\';
    const bool isTop = cut == 0 || (hasDrives && cut == 2 && name[1] == ':');
    return name.substr(0, isTop ? cut + 1 : cut);
}

void tryToRemove(const std::string& name) {
    try {
        remove(name);
    } catch (const Failure&) {
        // It stays, which harms nobody.
    }
}

void removeLeftovers(const std::string& folder) {
    for (const std::string& name : namesIn(folder)) {
        std::string path = folder;
        path.append(1, pathSeparator).append(name);
        if (isPassing(name) && isOwnPlainFile(path, std::chrono::hours(24))) tryToRemove(path);
    }
}

}  // namespace orvanta::native
