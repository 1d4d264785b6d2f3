#include <gtest/gtest.h>

#include <cctype>
#include <set>

#include "report_bench.h"
#include "reports/rtf_writer.h"

namespace orvanta::test {
namespace {

/// The control words and symbols of a document, without their numbers.
std::set<std::string> wordsIn(const std::string& rtf) {
    std::set<std::string> words;
    for (std::size_t at = 0; (at = rtf.find('\\', at)) != rtf.npos;) {
        std::size_t end = at + 1;
        while (end < rtf.size() && std::isalpha(static_cast<unsigned char>(rtf[end]))) ++end;
        if (end == at + 1) ++end;
        words.insert(rtf.substr(at, end - at));
        at = end;
    }
    return words;
}

/// An analysis in which each text is this one.
Analysis analysisOf(const std::string& text) {
    Analysis analysis = smallAnalysis();
    for (auto rows : {&Analysis::strengths, &Analysis::weaknesses, &Analysis::opportunities,
                      &Analysis::threats, &Analysis::opportunityMap, &Analysis::threatMap})
        for (ShownRow& row : analysis.*rows) row.text = text;
    return analysis;
}

std::string rtfOf(const std::string& text) {
    ReportBench bench(analysisOf(text));
    return bench.document();
}

class HostileText : public testing::TestWithParam<std::string> {};

TEST_P(HostileText, BringsNoWordOfItsOwnIntoTheDocument) {
    auto words = wordsIn(rtfOf("a\\b{c}"));  // its own marks, escaped
    EXPECT_EQ(words.count("\\fldinst") + words.count("\\bin") + words.count("\\object"), 0u);
    EXPECT_EQ(wordsIn(rtfOf(GetParam())), words);
}

INSTANTIATE_TEST_SUITE_P(
    Of, HostileText,
    testing::Values(R"(\{{\field{\*\fldinst INCLUDETEXT "C:\\secret.txt"}{\fldrslt x}}\})",
                    R"({\field{\*\fldinst{HYPERLINK "http://example.com"}}}\\{)",
                    R"({\object\objemb\objupdate{\*\objclass Package}{\*\objdata 0105}}\\)",
                    R"({\*\template http://example.com/a.dot}\\)", R"({\pict\wmetafile8 0100}\\)",
                    R"(\bin5 }}}}}{\\)", R"({\*\listpicture}{\upr{\*\ud{x}}}\\)"));

}  // namespace
}  // namespace orvanta::test
