#include "presentation/question_sheets.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

class PrintedModule : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, PrintedModule, testing::Values("gbs", "hrp", "mp", "psd", "sbd"));

TEST_P(PrintedModule, IsTheChosenOneAndTheSoundStopsFirst) {
    std::string option = "opt" + GetParam();
    for (std::size_t i = 3; i < option.size(); ++i)
        option[i] = static_cast<char>(option[i] - 'a' + 'A');
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.play({{"do", "choose"}, {"option", option}});
    bench.events();
    bench.click("Print");
    Json seen = bench.events();
    seen.erase(seen.begin(), seen.begin() + 2);  // the button's art
    EXPECT_EQ(seen, Json::array({stopped(), {{"event", "print"}, {"module", GetParam()}}}));
}

TEST(QuestionSheets, AreRefusedWithNoModuleChosenAndTheSoundStopsAllTheSame) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.events();
    bench.click("Print");
    Json seen = bench.events();
    seen.erase(seen.begin(), seen.begin() + 2);  // the button's art
    EXPECT_EQ(seen, Json::array({stopped(), refusal("Please select any SWOT analysis type.")}));
}

/// Takes what would be printed.
class PaperTray : public QuestionPrinter {
public:
    void print(const QuestionSheets& sheets) override { m_sheets = sheets; }
    const QuestionSheets& sheets() const { return m_sheets; }

private:
    QuestionSheets m_sheets;
};

TEST(QuestionSheets, HoldTheQuestionsOfTheBankAndLeaveTheWizardsAlone) {
    Bench bench;
    bench.start();
    bench.openBrainstorm("optSBD");
    bench.disk.files["app/sbdquestions.txt"] = bankOf(2);
    const std::vector<std::string> before = bench.program().questions.strengthQuestions;
    PaperTray tray;
    const Platform& world = bench.program().platform;
    Platform platform{world.disk,  world.messages,       world.fileDialogs, world.settings,
                      world.shell, world.player,         world.screen,      world.modalForms,
                      tray,        world.wordProcessors, world.lifetime,    world.folders};
    Program program(platform, "app", "app");
    program.frmMain.optSBD.setOn(true);
    printQuestions(program);
    EXPECT_EQ(tray.sheets().code, "sbd");
    EXPECT_EQ(tray.sheets().title, "Sales & Business Development");
    EXPECT_EQ(tray.sheets().questions[StatementKind::Strength],
              (Texts{"S question 1", "S question 2"}));
    EXPECT_EQ(tray.sheets().questions[StatementKind::Threat],
              (Texts{"T question 1", "T question 2"}));
    EXPECT_EQ(program.questions.strengthCount, 0);
    EXPECT_EQ(bench.program().questions.strengthQuestions, before);
}

TEST(QuestionSheets, AreEmptyWhereTheBankHasGoneAndTellItsFile) {
    Bench bench;
    bench.start();
    bench.disk.files.erase("app/mpquestions.txt");
    const QuestionSheets sheets = questionSheetsOf(bench.program(), modules[ModuleId::MP]);
    EXPECT_TRUE(isEmpty(sheets));
    EXPECT_EQ(sheets.bankPath, systemPath("app/mpquestions.txt"));
    EXPECT_FALSE(isEmpty(questionSheetsOf(bench.program(), modules[ModuleId::GBS])));
}

TEST(QuestionSheets, HaveANameThatAFileCanHave) {
    for (const auto& [title, name] : std::initializer_list<std::pair<std::string, std::string>>{
             {"Marketing", "Marketing"},
             {"Product / Service Development", "Product - Service Development"},
             {" a\\b:c*d?e\"f<g>h|i ", "a-b-c-d-e-f-g-h-i"}})
        EXPECT_EQ(documentNameOf({"mp", title, {}}), name);
}

}  // namespace
}  // namespace orvanta::test
