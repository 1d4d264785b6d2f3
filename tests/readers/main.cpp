#include <fstream>
#include <iostream>
#include <sstream>

#include "checks.h"

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
    "Holds what a reader made of a document, a web page, the words of printed pages or a flat\n"
    "text document, against the analysis that the document was made of.\n";

std::string contentOf(const char* path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw Mismatch{std::string("there is no ") + path};
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

}  // namespace

int main(int argc, char** argv) {
    const std::string check = argc == 4 ? argv[1] : "";
    try {
        if (check != "texts" && check != "pages" && check != "tables") {
            std::cerr << usage;
            return 2;
        }
        const auto expected = expectedFrom(contentOf(argv[2]));
        const std::string reading = contentOf(argv[3]);
        if (check == "texts") checkTexts(reading, expected);
        if (check == "pages") checkPages(xmlFrom(reading), expected);
        if (check == "tables") checkTables(xmlFrom(reading), expected);
    } catch (const Mismatch& mismatch) {
        std::cerr << mismatch.what << '\n';
        return 1;
    }
    return 0;
}
