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
