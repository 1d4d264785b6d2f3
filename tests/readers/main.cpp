#include <fstream>
#include <iostream>
#include <sstream>

#include "checks.h"
#include "invention.h"

namespace orvanta::readers {

void checkTexts(const std::string& html, const std::vector<ExpectedPart>& expected) {
    std::string texts;
    for (const std::string& text : textsOf(expected)) texts += text;
    compare("the text", textOfHtml(html), texts);
}

}  // namespace orvanta::readers

namespace {

using namespace orvanta::readers;

constexpr const char* usage =
    "usage: orvanta_reading texts|pages|tables ANALYSIS READING\n"
    "       orvanta_reading invent NUMBER FOLDER\n"
    "Holds what a reader made of a document, a web page, the words of printed pages or a flat\n"
    "text document, against the analysis that the document was made of; or makes up so many\n"
    "analyses, the same each time.\n";

std::string contentOf(const char* path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Mismatch{std::string("there is no ") + path};
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

void invent(unsigned number, const std::string& folder) {
    for (unsigned seed = 1; seed <= number; ++seed) {
        const std::string path = folder + "/" + std::to_string(seed) + ".aze";
        std::ofstream out(path, std::ios::binary);
        out << inventedAnalysis(seed);
        if (!out.flush()) throw Mismatch{"can't write " + path};
    }
}

void check(const std::string& kind, const char* analysis, const char* path) {
    const auto expected = expectedFrom(contentOf(analysis));
    const std::string reading = contentOf(path);
    if (kind == "texts") checkTexts(reading, expected);
    if (kind == "pages") checkPages(xmlFrom(reading), expected);
    if (kind == "tables") checkTables(xmlFrom(reading), expected);
}

}  // namespace

int main(int argc, char** argv) {
    const std::string command = argc == 4 ? argv[1] : "";
    try {
        if (command == "invent") {
            invent(static_cast<unsigned>(std::stoul(argv[2])), argv[3]);
        } else if (command == "texts" || command == "pages" || command == "tables") {
            check(command, argv[2], argv[3]);
        } else {
            std::cerr << usage;
            return 2;
        }
    } catch (const Mismatch& mismatch) {
        std::cerr << mismatch.what << '\n';
        return 1;
    }
    return 0;
}
