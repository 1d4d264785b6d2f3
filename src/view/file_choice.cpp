#include "view/file_choice.h"

#include <algorithm>
#include <filesystem>

#include "view/file_dialog.h"
#include "view/native_file.h"

namespace orvanta {

namespace {

using native::FileKind;

constexpr std::string_view noFolder = "This folder does not exist:",
                           closedFolder = "You may not look into this folder:",
                           lockedFolder = "You may not save files in this folder:",
                           noFile = "This file does not exist:",
                           closedFile = "You may not read this file:",
                           unreadable = "This file can't be read:",
                           lockedFile = "You may not change this file:",
                           folderOfThatName = "There is a folder of this name:",
                           noPlainFile = "No file can be saved under this name:",
                           ownFile = "The program keeps files of its own under this name:",
                           ownFolder = "The program keeps only its newest copies in this folder:",
                           noFileButFolder = "This is a folder:",
                           unusable = "This name can't be used:";

std::filesystem::path pathFrom(const std::string& utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

/// Without "." and "..", and without a separator at its end.
std::string tidied(const std::filesystem::path& path) {
    const std::filesystem::path normal = path.lexically_normal();
    const std::u8string utf8 = (normal.has_filename() ? normal : normal.parent_path()).u8string();
    return {utf8.begin(), utf8.end()};
}

bool namesAFolder(const std::string& typed) { return !pathFrom(typed).has_filename(); }

std::string wholePath(const FileDialogPlace& place, const std::string& typed) {
    return tidied(beginsAtHome(typed) ? pathFrom(place.home + typed.substr(1))
                                      : pathFrom(place.folder) / pathFrom(typed));
}

FileChoice refusal(std::string_view reason, const std::string& path) {
    return {FileChoiceAct::Refuse, path, reason};
}

FileKind kindOf(const std::string& path) { return native::kindOf(path, native::Links::Follow); }

/// Why there is nothing to be had at this path, when the system said so.
FileChoice refusalFor(const Failure& failure, const std::string& path) {
    const auto is = [&](ErrorNumber error) { return failure.number == static_cast<int>(error); };
    if (is(ErrorNumber::FileNotFound) || is(ErrorNumber::PathNotFound))
        return refusal(noFolder, native::folderOf(path));
    if (is(ErrorNumber::PermissionDenied)) return refusal(closedFolder, native::folderOf(path));
    return refusal(unusable, path);
}

template <class Try>
bool succeeds(Try attempt) {
    try {
        attempt();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

bool isWritable(const std::string& path) {
    return succeeds([&] { native::requireWritable(path); });
}

FileChoice toEnter(const std::string& path) {
    if (!native::isOpenFolder(path)) return refusal(closedFolder, path);
    return {FileChoiceAct::EnterFolder, path};
}

FileChoice toReplace(const std::string& path) {
    if (!isWritable(path)) return refusal(lockedFile, path);
    return {FileChoiceAct::TakeFile, path};
}

FileChoice toCreate(const std::string& path) {
    const std::string folder = native::folderOf(native::targetOf(path));
    if (kindOf(folder) != FileKind::Folder) return refusal(noFolder, folder);
    if (!isWritable(folder)) return refusal(lockedFolder, folder);
    return {FileChoiceAct::TakeFile, path};
}

FileChoice toSave(const std::string& path) {
    switch (kindOf(path)) {
        case FileKind::Missing:
            return toCreate(path);
        case FileKind::Plain:
            return toReplace(path);
        case FileKind::Folder:
            return refusal(folderOfThatName, path);
        default:
            return refusal(noPlainFile, path);
    }
}

bool isOwnName(const FileDialogPlace& place, const std::string& path) {
    const std::string name = native::comparableName(path);
    return name.starts_with(native::passingPrefix) ||
           std::ranges::find(place.ownNames, name, native::comparableName) != place.ownNames.end();
}

bool isInOwnFolder(const FileDialogPlace& place, const std::string& path) {
    std::error_code unknown;
    return std::filesystem::equivalent(pathFrom(native::folderOf(path)), pathFrom(place.ownFolder),
                                       unknown);
}

FileChoice toRead(const std::string& path) {
    try {
        native::File::toRead(path, native::Links::Follow).size();
        return {FileChoiceAct::TakeFile, path};
    } catch (const Failure& failure) {
        const bool closed = failure.number == static_cast<int>(ErrorNumber::PermissionDenied);
        return refusal(closed ? closedFile : unreadable, path);
    }
}

FileChoice toOpen(const std::string& path, std::string_view ending) {
    if (kindOf(path) != FileKind::Missing) return toRead(path);
    const std::string longer = path + std::string(ending);
    const FileKind kind = kindOf(longer);
    if (kind != FileKind::Missing && kind != FileKind::Folder) return toRead(longer);
    const std::string folder = native::folderOf(path);
    if (kindOf(folder) != FileKind::Folder) return refusal(noFolder, folder);
    return refusal(noFile, path);
}

FileChoice judged(const FileDialogPlace& place, const std::string& typed, const std::string& path) {
    const FileKind kind = kindOf(path);
    if (kind == FileKind::Folder) return toEnter(path);
    if (namesAFolder(typed)) return refusal(noFolder, path);
    if (place.mode == FileDialogMode::Open) return toOpen(path, endingIn(place.filter));
    const std::string saved = withFilterEnding(path, place.filter);
    const std::string target = native::targetOf(saved);
    if (isOwnName(place, saved) || isOwnName(place, target)) return refusal(ownFile, saved);
    if (isInOwnFolder(place, target)) return refusal(ownFolder, native::folderOf(target));
    return toSave(saved);
}

/// Where a name ends that begins behind a quote: at a quote that ends the text or has another one
/// behind blanks, as a name may hold quotes.
std::size_t endOfName(const std::string& typed, std::size_t start) {
    for (auto quote = typed.find('"', start); quote != typed.npos;
         quote = typed.find('"', quote + 1)) {
        const auto next = typed.find_first_not_of(' ', quote + 1);
        if (next == typed.npos || (typed[next] == '"' && next > quote + 1)) return quote;
    }
    return typed.size();
}

}  // namespace

bool beginsAtHome(const std::string& typed) {
    return typed.substr(0, typed.find_first_of(native::pathSeparators)) == "~";
}

FileChoice choiceOf(const FileDialogPlace& place, const std::string& typed) {
    const std::string path = wholePath(place, typed);
    try {
        return judged(place, typed, path);
    } catch (const Failure& failure) {
        return refusalFor(failure, path);
    }
}

FileChoice fileChoiceOf(const FileDialogPlace& place, const std::string& typed) {
    const FileChoice choice = choiceOf(place, typed);
    return choice.act == FileChoiceAct::EnterFolder ? refusal(noFileButFolder, choice.path)
                                                    : choice;
}

std::vector<std::string> namesIn(const std::string& typed) {
    const auto first = typed.find_first_not_of(' '), last = typed.find_last_not_of(' ');
    if (first == last || typed[first] != '"' || typed[last] != '"') return {typed};
    std::vector<std::string> names;
    for (auto start = first + 1; start <= last;) {
        const auto end = endOfName(typed, start);
        names.push_back(typed.substr(start, end - start));
        start = typed.find('"', end + 1);
        if (start != typed.npos) ++start;
    }
    return names;
}

}  // namespace orvanta
