#include "view/native_file.h"

#include <filesystem>

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
