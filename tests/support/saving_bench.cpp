#include "saving_bench.h"

#include "sessionfiles/saving.h"

namespace orvanta::test {

namespace {

std::string analysisOfTwoStrengths() {
    return lines({"<MODULE>", "GBS", "</MODULE>", "<STRENGTH>",
                  "S1<!-SWOT-!>[Ann]: <!-SWOT-!>Own fleet", "S2<!-SWOT-!><!-SWOT-!>Night shift",
                  "</STRENGTH>", "<WEAKNESS>", "</WEAKNESS>", "<OPPORTUNITY>", "</OPPORTUNITY>",
                  "<THREATS>", "</THREATS>", "<OPPORTUNITYMAPPING>", "</OPPORTUNITYMAPPING>",
                  "<THREATMAPPING>", "</THREATMAPPING>"});
}

void beginBrainstorm(Bench& bench) {
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Own fleet"});
}

void beginAnalysis(Bench& bench) {
    bench.openAnalyze();
    bench.addSource("docs/ann.bsm", "Ann", {"Own fleet"}, {}, {}, {});
    bench.click("ANext");
    bench.enter("txtAStrength", {"Night shift"});
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const SavedSession& session) {
    return out << session.name;
}

const std::vector<SavedSession>& savedSessions() {
    static const std::vector<SavedSession> sessions{
        {.name = "Brainstorm",
         .changed = &FrmMain::editFlag,
         .lastPath = &FrmMain::lastPathBSM,
         .panel = "fraBrainstorm",
         .filter = "All Brainstorming Files (*.bsm)|*.bsm",
         .settingKey = "LastSavedPathBSM",
         .temporaryFile = "app/brainstorm.tmp",
         .question = "Do you want to save changes in brainstorm session?",
         .doneMessage = "Your brainstorming session completed.",
         .save = saveBrainstormDialog,
         .prompt = promptSaveBrainstorm,
         .begin = beginBrainstorm,
         .saved = brainstormFile("Dana Reyes", "GBS", {"Own fleet"}, {}, {}, {})},
        {.name = "Analyze",
         .changed = &FrmMain::editAFlag,
         .lastPath = &FrmMain::lastPathAZE,
         .panel = "fraAnalyze",
         .filter = "All Analyze Files (*.aze)|*.aze",
         .settingKey = "LastSavedPathAZE",
         .temporaryFile = "app/analyze.tmp",
         .question = "Do you want to save changes in analyze session?",
         .doneMessage = "Your analyze session completed.",
         .save = saveAnalyzeDialog,
         .prompt = promptSaveAnalyze,
         .begin = beginAnalysis,
         .saved = analysisOfTwoStrengths()},
    };
    return sessions;
}

BegunSession::BegunSession(const SavedSession& session) : session(session) {
    bench.start();
    session.begin(bench);
    bench.events();
}

bool BegunSession::run(bool (*routine)(Program&)) {
    const bool result = routine(bench.program());
    bench.play({{"do", "state"}});
    return result;
}

Json fileDialog(const std::string& mode, const std::string& filter, const std::string& initialPath,
                const Json& answer) {
    return {{"event", "fileDialog"},      {"mode", mode},   {"filter", filter},
            {"initialPath", initialPath}, {"fileName", ""}, {"answer", answer}};
}

Json savePrompt(const SavedSession& session, const std::string& answer) {
    return {{"event", "message"},       {"text", session.question}, {"icon", "question"},
            {"buttons", "yesNoCancel"}, {"default", "yes"},         {"title", nullptr},
            {"answer", answer}};
}

Json overwriteQuestion(const std::string& answer, const Json& title) {
    return {{"event", "message"}, {"text", "Do you want to overwrite the file?"},
            {"icon", "question"}, {"buttons", "yesNo"},
            {"default", "no"},    {"title", title},
            {"answer", answer}};
}

}  // namespace orvanta::test
