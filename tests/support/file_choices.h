#pragma once

#include <gtest/gtest.h>

#include "temporary_folder.h"
#include "view/file_choice.h"

namespace orvanta::test {

struct Typed {
    std::string claim;
    FileDialogMode mode;
    std::string typed, choice;  // "$" is the folder that holds all
};
inline std::ostream& operator<<(std::ostream& out, const Typed& typed) {
    return out << typed.claim << ": " << typed.typed;
}

inline std::string inWords(const FileChoice& choice) {
    switch (choice.act) {
        case FileChoiceAct::EnterFolder:
            return "enter " + choice.path;
        case FileChoiceAct::TakeFile:
            return "take " + choice.path;
        default:
            return std::string(choice.reason) + ' ' + choice.path;
    }
}

inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

/// The dialog shows the folder "here", in which and beside which lies one thing of each sort.
class Choice : public testing::TestWithParam<Typed> {
protected:
    Choice() {
        for (const char* name : {"here", "here/Team", "here/Copies", "here/blocked.bsm", "home",
                                 "home/anna", "here/\xCE\xB1\xCE\xB2"})
            std::filesystem::create_directory(pathFromUtf8(all / name));
        for (const char* name :
             {"here/team2.bsm", "here/plain", "here/both", "here/both.bsm", "here/v1.2.bsm",
              "here/huge.bsm", "here/Team/kim.bsm", "home/lee.bsm"})
            all.write(name, "x");
        std::filesystem::resize_file(all / "here/huge.bsm", (std::uintmax_t{256} << 20) + 1);
    }

    /// In words with slashes, whatever the system's separator is.
    std::string choice(FileDialogMode mode, const std::string& typed) const {
        const FileDialogPlace place{.mode = mode,
                                    .filter = "All Brainstorming Files (*.bsm)|*.bsm",
                                    .folder = all / "here",
                                    .home = all / "home",
                                    .ownNames = {ownName},
                                    .ownFolder = all / "here/Copies"};
        const std::string words = inWords(choiceOf(place, replaced(typed, "$", all.path())));
        return withSlashes(replaced(words, all.path(), "$"));
    }

    TemporaryFolder all;
    std::string ownName = "own.tmp";
};

constexpr auto save = FileDialogMode::Save, open = FileDialogMode::Open;

inline std::string called(const testing::TestParamInfo<Typed>& info) {
    return (info.param.mode == save ? "Saving" : "Opening") + info.param.claim;
}

}  // namespace orvanta::test
