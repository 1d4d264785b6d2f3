// Analyze texts of any bytes fail where no tag is in them and nowhere else. Of n tags below seven,
// n - 1 headings are left; what follows the seventh tag is not read. A heading is a line that
// begins with a blank. The line ends of another system make no difference.

#include <algorithm>

#include "core/text.h"
#include "fuzzed_program.h"
#include "questions/bank_reader.h"

namespace orvanta::fuzz {

namespace {

using Headings = std::array<std::string, 7>;

int read(std::string bytes, Headings& headings) {
    test::MemoryDisk disk;
    disk.files["app/analyzequestions.txt"] = std::move(bytes);
    return failureOf([&] { readAnalyzeHeadings(disk, "app", headings); });
}

std::size_t tagsIn(std::string_view bytes) {
    std::size_t tags = 0;
    LineSource lines(bytes);
    while (const auto line = lines.next()) tags += trimBlanks(*line) == "<QUESTION>";
    return tags;
}

}  // namespace

void tryInput(std::string_view bytes) {
    Headings headings;
    const int failure = read(std::string(bytes), headings);
    const std::size_t tags = tagsIn(bytes);
    require(failure == (tags == 0 ? static_cast<int>(ErrorNumber::SubscriptOutOfRange) : 0),
            "texts without a tag fail, and no others");
    for (std::size_t index = 0; index < headings.size(); ++index) {
        const std::string& heading = headings[index];
        require(heading.find_first_of("\r\n") == heading.npos, "a heading is one line");
        require(heading.empty() || heading.front() == ' ', "a heading begins with a blank");
        if (index + 1 >= std::min<std::size_t>(tags, 7))
            require(heading.empty(), "the text behind the last tag is no heading");
    }
    Headings others;
    require(read(withLineEnds(bytes, "\r"), others) == failure && others == headings,
            "line ends make no difference");
    if (tags < 7) return;
    require(read(std::string(bytes) + "\n<QUESTION>\nmore", others) == 0 && others == headings,
            "nothing is read behind the seventh tag");
}

}  // namespace orvanta::fuzz
