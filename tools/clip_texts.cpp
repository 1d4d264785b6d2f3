#include "questions/clip_texts.h"

#include <algorithm>
#include <iostream>

#include "view/failure.h"
#include "view/file_disk.h"
#include "view/windows1252.h"

// Prints what the voice clips say, one to a line: name, tab, text in UTF-8. The build speaks it.
int main(int argc, char** argv) {
    using namespace orvanta;
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " FOLDER-OF-THE-QUESTION-FILES\n";
        return 2;
    }
    try {
        for (ClipText& clip : clipTexts(FileDisk(), argv[1])) {
            std::ranges::replace(clip.text, '\t', ' ');
            std::cout << clip.clip << '\t' << utf8From1252(clip.text) << '\n';
        }
    } catch (const Failure& failure) {
        std::cerr << argv[1] << ": " << failure.description << '\n';
        return 1;
    }
    return std::cout.flush() ? 0 : 1;
}
