#include <gtest/gtest.h>

#include <set>

#include "analysis_bench.h"
#include "core/text.h"
#include "failure_of.h"
#include "full_analysis.h"
#include "hostile_bytes.h"
#include "reports/html_report.h"
#include "reports/report_source.h"
#include "saving_bench.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"

namespace orvanta::test {
namespace {

constexpr std::uint32_t files = 1000;

const std::vector<std::string> brainstormLists{"lvBStrength", "lvBWeakness", "lvBOpportunity",
                                               "lvBThreat"};
const std::vector<std::string> reviewLists{"lvAStrength", "lvAWeakness", "lvAOpportunity",
                                           "lvAThreat"};
const std::vector<std::string> mappingLists{"lvOpportunity", "lvThreat"};

const std::string goodBrainstorm =
    brainstormFile("Dana Reyes", "MP", {"Loyal customers", "Ready in &lt; 24 hours"},
                   {"Price is > 10% above market", "Slow"}, {"New \x80 market"}, {"Strike"});

const std::string goodAnalysis = lines(fullAnalysis);

/// A program that is given one bad file after the other, and the good one behind each.
class HostileFile : public testing::Test {
protected:
    HostileFile() { bench.start(); }

    /// Gives every file to what is to bear it; stops at the first that it does not.
    template <class Bear>
    void forEachFile(const std::string& good, Bear bear) {
        for (std::uint32_t seed = 0; seed < files && !HasFailure(); ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            bear(HostileBytes(good, seed).file());
        }
    }

    void open(const std::string& button, const std::string& path, const std::string& bytes) {
        bench.disk.files[path] = bytes;
        bench.answerFile(path);
        bench.click(button);
    }

    /// Each list counts its keys from 1 and holds nothing but trimmed single lines.
    void expectFreshlyKeyedLines(const std::vector<std::string>& names) {
        for (std::size_t kind = 0; kind < names.size(); ++kind) {
            int number = 0;
            for (const ShownRow& row : bench.rows(names[kind])) {
                EXPECT_EQ(row.key, "SWOT"[kind] + std::to_string(++number));
                EXPECT_EQ(row.text.find_first_of("\r\n"), std::string::npos);
            }
        }
    }

    /// No box came up and nothing went uncaught; silence is what a bad file gets.
    void expectSilence() {
        for (const Json& event : bench.events()) {
            EXPECT_NE(event["event"], "message") << event;
            EXPECT_NE(event["event"], "unhandledError") << event;
        }
    }

    Bench bench;
};

TEST_F(HostileFile, OfABrainstormSessionIsOpenedAsFarAsItGoes) {
    bench.click("Brainstorm");
    forEachFile(goodBrainstorm, [&](const std::string& bytes) {
        open("BOpen", "docs/bad.bsm", bytes);
        expectSilence();
        expectFreshlyKeyedLines(brainstormLists);
        EXPECT_FALSE(bench.form().editFlag);
        EXPECT_TRUE(bench.form().fraBrainstorm.isVisible());

        open("BOpen", "docs/good.bsm", goodBrainstorm);
        EXPECT_EQ(brainstormBytes(bench.form(), false), goodBrainstorm);
    });
}

TEST_F(HostileFile, OfABrainstormSessionIsConsolidatedAsFarAsItGoes) {
    bench.openAnalyze();
    open("AFAdd", "docs/bad.bsm", "");
    open("AFAdd", "docs/good.bsm", goodBrainstorm);
    forEachFile(goodBrainstorm, [&](const std::string& bytes) {
        bench.disk.files["docs/bad.bsm"] = bytes;
        bench.click("ANext");
        expectSilence();
        expectFreshlyKeyedLines(reviewLists);
        EXPECT_EQ(bench.rows("lvStrengthOp"), bench.rows("lvAStrength"));
        EXPECT_EQ(bench.rows("lvWeaknessTh"), bench.rows("lvAWeakness"));
        EXPECT_EQ(bench.rows("lvThreat"), bench.rows("lvAThreat"));
        const Texts strengths = bench.texts("lvAStrength");
        ASSERT_GE(strengths.size(), 2u);
        EXPECT_EQ(strengths.back(), "Ready in < 24 hours");
        EXPECT_EQ(bench.form().txtName.text(), "Dana Reyes");
        bench.click("ABack");
    });
}

TEST_F(HostileFile, OfABrainstormSessionDoesNotHinderTheNextStart) {
    forEachFile(goodBrainstorm, [&](const std::string& bytes) {
        bench.disk.files["app/brainstorm.tmp"] = bytes;
        bench.restart();
        expectSilence();
        expectFreshlyKeyedLines(brainstormLists);
        bench.answerMessage("no");
        bench.click("Brainstorm");
        EXPECT_FALSE(bench.disk.files.contains("app/brainstorm.tmp"));
    });
}

/// A file of an analysis that was read: what the lists hold is whole in itself.
class HostileAnalysis : public HostileFile {
protected:
    void expectKeysOnce(const std::string& name) {
        std::set<std::string> seen;
        for (const ShownRow& row : bench.rows(name))
            EXPECT_TRUE(row.key.empty() || seen.insert(row.key).second) << row.key;
    }

    void expectWholeLists() {
        for (const std::string& name : reviewLists) expectKeysOnce(name);
        for (const std::string& name : mappingLists) expectKeysOnce(name);
        EXPECT_EQ(bench.rows("lvStrengthOp"), bench.rows("lvAStrength"));
        EXPECT_EQ(bench.rows("lvStrengthTh"), bench.rows("lvAStrength"));
        EXPECT_EQ(bench.rows("lvWeaknessOp"), bench.rows("lvAWeakness"));
        EXPECT_EQ(bench.rows("lvWeaknessTh"), bench.rows("lvAWeakness"));
    }

    /// Reads a file into empty lists; false if it could not be read to its end.
    bool reads(const std::string& bytes) {
        bench.disk.files["docs/bad.aze"] = bytes;
        clearAnalye(bench.program());
        const int failure =
            failureOf([&] { loadAnalyzeData(bench.program(), "docs/bad.aze", false); });
        constexpr int overflow = 6, keyIsNotUnique = 35602;
        EXPECT_TRUE(failure == 0 || failure == overflow || failure == keyIsNotUnique) << failure;
        return failure == 0;
    }
};

TEST_F(HostileAnalysis, IsOpenedAsFarAsItGoes) {
    bench.openAnalyze();
    forEachFile(goodAnalysis, [&](const std::string& bytes) {
        open("OAFile", "docs/bad.aze", bytes);
        expectSilence();
        expectWholeLists();
        EXPECT_FALSE(bench.form().editAFlag);

        open("OAFile", "docs/good.aze", goodAnalysis);
        EXPECT_EQ(analyzeBytes(bench.form(), false), goodAnalysis);
    });
}

TEST_F(HostileAnalysis, IsSavedAndReadAgainWithoutLossWhereItWasReadToItsEnd) {
    std::uint32_t readToTheEnd = 0;
    forEachFile(goodAnalysis, [&](const std::string& bytes) {
        if (!reads(bytes)) return;
        ++readToTheEnd;
        const std::string saved = analyzeBytes(bench.form(), false);
        EXPECT_TRUE(reads(saved));
        EXPECT_EQ(analyzeBytes(bench.form(), false), saved);
    });
    EXPECT_GT(readToTheEnd, files / 2);
}

TEST_F(HostileAnalysis, DoesNotHinderTheNextStart) {
    forEachFile(goodAnalysis, [&](const std::string& bytes) {
        bench.disk.files["app/analyze.tmp"] = bytes;
        bench.restart();
        expectSilence();
        expectWholeLists();
        bench.answerMessage("no");
        bench.click("Analyze");
        EXPECT_FALSE(bench.disk.files.contains("app/analyze.tmp"));
    });
}

TEST_F(HostileAnalysis, GivesAReportOfWhatCanBeRead) {
    const auto pageOf = [&](const std::string& bytes) {
        bench.disk.files["docs/bad.aze"] = bytes;
        const Json steps =
            Json::array({{{"format", 0}}, {{"text", "docs/bad.aze"}}, {{"press", "ok"}}});
        bench.play({{"answer", "frmReportType"}, {"steps", steps}});
        bench.click("Report");
        return bench.disk.files["app/System/report.htm"];
    };
    const std::string goodPage = pageOf(goodAnalysis);
    forEachFile(goodAnalysis, [&](const std::string& bytes) {
        const std::string page = pageOf(bytes);
        EXPECT_TRUE(page.starts_with("<table width='85%' ")) << page;
        EXPECT_TRUE(page.ends_with("</table>\r\n")) << page;
        expectSilence();
        EXPECT_EQ(pageOf(goodAnalysis), goodPage);
        EXPECT_EQ(bench.events("open").size(), 1u);
    });
}

TEST_F(HostileAnalysis, GivesTheReportsEntriesOfKeyAndTextAlone) {
    forEachFile(goodAnalysis, [&](const std::string& bytes) {
        ReportLists lists;
        readReportSource(bytes, ReportScope::Everything, lists);
        for (const ReportList* list : {&lists.strengthEntries, &lists.weaknessEntries,
                                       &lists.opportunityEntries, &lists.threatEntries}) {
            for (const std::string& entry : list->entries()) {
                const auto parts = splitAt(entry, "<!-SWOT-!>");
                ASSERT_EQ(parts.size(), 2u) << entry;
                EXPECT_EQ(parts[1], trimBlanks(parts[1]));
                EXPECT_NE(bytes.find(entry.substr(0, parts[0].size())), std::string::npos);
            }
        }
    });
}

TEST_F(HostileFile, OfManyTimesTheSameIsReadInOneGo) {
    bench.click("Brainstorm");
    for (const char* piece :
         {"<", "<STRENGTH>", "<STRENGTH>\r\n", "&lt;", "-", "\r", "<!-SWOT-!>"}) {
        std::string bytes = "<STRENGTH>\r\n";
        while (bytes.size() < 300'000) bytes += piece;
        open("BOpen", "docs/bad.bsm", bytes);
        expectSilence();
    }
    open("BOpen", "docs/good.bsm", goodBrainstorm);
    EXPECT_EQ(brainstormBytes(bench.form(), false), goodBrainstorm);
}

}  // namespace
}  // namespace orvanta::test
