#include <gtest/gtest.h>

#include "report_bench.h"

namespace orvanta::test {
namespace {

/// The paths of the program's own folders in what it answers, as they are.
void gatherPaths(const Json& value, Texts& paths) {
    if (value.is_structured())
        for (const Json& inner : value) gatherPaths(inner, paths);
    if (!value.is_string()) return;
    const auto text = value.get<std::string>();
    if (text.starts_with("app") || text.starts_with("docs")) paths.push_back(text);
}

TEST(ShownPaths, HaveTheSeparatorOfThisSystem) {
    Bench bench;
    bench.disk.files["docs/team.aze"] = smallAnalysis().bytes();
    bench.disk.files["app/Sounds/gbs_S1.swf"] = "";
    const auto stage = driver::makeModelStage();
    driver::Driver player(*stage, bench.disk, driver::Folders{"app", "docs", ""});
    const Json report =
        Json::array({{{"format", 0}}, {{"text", R"(docs\team.aze)"}}, {{"press", "ok"}}});
    Texts paths;
    for (const Json& line : std::initializer_list<Json>{
             {{"do", "start"}},
             {{"do", "click"}, {"button", "Brainstorm"}},
             {{"do", "click"}, {"button", "BOpen"}},
             {{"do", "set"}, {"control", "txtName"}, {"text", "Dana Reyes"}},
             {{"do", "choose"}, {"option", "optGBS"}},
             {{"do", "click"}, {"button", "BNext"}},
             {{"answer", "frmReportType"}, {"steps", report}},
             {{"do", "click"}, {"button", "Report"}}})
        gatherPaths(player.answer(line.dump()).at("events"), paths);
    EXPECT_EQ(paths,
              (Texts{R"(docs\My SWOT)", R"(app\Sounds\gbs_S1.swf)", R"(app\System\report.htm)"}));
}

}  // namespace
}  // namespace orvanta::test
