#include "questions/clip_texts.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "view/failure.h"
#include "view/file_disk.h"
#include "view/windows1252.h"

// Prints what the voice clips say, in UTF-8 and one to a line: name, tab, sentences with tabs
// between. The build speaks it.

namespace {

using namespace orvanta;

/// A phrase of the texts, and how it is spelled for the voice.
struct SpokenForm {
    std::string phrase, spelling;
    bool isUsed = false;
};

[[noreturn]] void fail(std::string_view what, std::string_view why) {
    std::cerr << what << ": " << why << '\n';
    std::exit(1);
}

/// From lines of phrase, tab, spelling; one that begins with # is a remark.
std::vector<SpokenForm> spokenForms(const char* path) {
    std::ifstream file(path);
    if (!file) fail(path, "can't be read");
    std::vector<SpokenForm> forms;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.starts_with('#')) continue;
        const auto tab = line.find('\t');
        if (tab == 0 || tab == std::string::npos) fail(path, "no tab in: " + line);
        forms.push_back({line.substr(0, tab), line.substr(tab + 1)});
    }
    return forms;
}

void spell(std::string& text, SpokenForm& form) {
    for (auto at = text.find(form.phrase); at != std::string::npos;
         at = text.find(form.phrase, at + form.spelling.size())) {
        text.replace(at, form.phrase.size(), form.spelling);
        form.isUsed = true;
    }
}

void separateSentences(std::string& text) {
    constexpr std::string_view ends = ".?!";
    for (std::size_t i = 1; i < text.size(); ++i)
        if (text[i] == ' ' && ends.find(text[i - 1]) != ends.npos) text[i] = '\t';
}

std::string spoken(std::string text, std::vector<SpokenForm>& forms) {
    std::ranges::replace(text, '\t', ' ');
    text = utf8From1252(text);
    for (SpokenForm& form : forms) spell(text, form);
    separateSentences(text);
    return text;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: " << argv[0] << " FOLDER-OF-THE-QUESTION-FILES SPOKEN-FORMS\n";
        return 2;
    }
    std::vector<SpokenForm> forms = spokenForms(argv[2]);
    try {
        for (const ClipText& clip : clipTexts(FileDisk(), argv[1]))
            std::cout << clip.clip << '\t' << spoken(clip.text, forms) << '\n';
    } catch (const Failure& failure) {
        fail(argv[1], failure.description);
    }
    for (const SpokenForm& form : forms)
        if (!form.isUsed) fail(argv[2], "no text says: " + form.phrase);
    return std::cout.flush() ? 0 : 1;
}
