#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "view/platform.h"

namespace orvanta {

// What a person means by a name in a file dialog. The system's dialogs have such rules too, but
// would also ask about an existing file, which the program does itself, and let a session go into
// a folder that takes none. All names are UTF-8.

/// Where a dialog stands when a name is given to it.
struct FileDialogPlace {
    FileDialogMode mode;
    std::string filter;  // "description|*.ending"
    /// The folder that the dialog shows and the person's own one, both whole paths.
    std::string folder, home;
    /// Names of the program's own files, which it writes and removes: no file of a person's.
    std::vector<std::string> ownNames{};
    /// A folder in which the program removes files by itself, a whole path; empty for none.
    std::string ownFolder{};
};

enum class FileChoiceAct { EnterFolder, TakeFile, Refuse };

struct FileChoice {
    FileChoiceAct act;
    /// The folder or the file, or what the refusal is about: whole, without "." and "..".
    std::string path;
    std::string_view reason{};  // of a refusal: a sentence that ends in a colon, for the path
};

/// True for "~" and what begins with it and a separator: the person's own folder is meant.
bool beginsAtHome(const std::string& typed);

/// What becomes of a typed name, as things stand on the disk.
///
/// A folder is entered, whatever leads to it: a name, a path, "..", "~" for the person's own
/// folder. A name to save to gets the filter's ending if it holds no point; a file to open is
/// looked for with the ending where there is none without. Refused is what could not be saved to
/// or read, and to save under a name or into a folder of the program's own.
FileChoice choiceOf(const FileDialogPlace& place, const std::string& typed);

/// The same for a name that can only be a file's: a folder is refused.
FileChoice fileChoiceOf(const FileDialogPlace& place, const std::string& typed);

/// Gives `take` what becomes of each name, one of a choice of several being a file's. Stops at the
/// first that it does not take, with false.
template <class Take>
bool takeAll(const FileDialogPlace& place, const std::vector<std::string>& names, Take take) {
    const auto& choiceOfEach = names.size() == 1 ? choiceOf : fileChoiceOf;
    return std::ranges::all_of(
        names, [&](const std::string& name) { return take(choiceOfEach(place, name)); });
}

/// The names in what was typed where several files can be chosen, as in: "ann.bsm" "bo.bsm". A
/// text that does not begin and end with a quote is one name.
std::vector<std::string> namesIn(const std::string& typed);

}  // namespace orvanta
