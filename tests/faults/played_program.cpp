#include "played_program.h"

#include <algorithm>

namespace orvanta::test {

namespace {

std::string click(const std::string& button) {
    return R"({"do":"click","button":")" + button + "\"}";
}
std::string enterInto(const std::string& box) {
    return R"({"do":"enter","control":")" + box + "\"}";
}
std::string type(const std::string& box, const std::string& text) {
    return R"({"do":"type","control":")" + box + R"(","text":")" + text + "\"}";
}
std::string answerFile(const std::string& path) {
    return R"({"answer":"fileDialog","path":"$/)" + path + "\"}";
}
std::string report(const std::string& format) {
    return R"({"answer":"frmReportType","steps":[{"format":)" + format +
           R"(},{"text":"$/sources/team.aze"},{"press":"ok"}]})";
}

const std::string tick = R"({"do":"tick"})";
const std::string yes = R"({"answer":"message","button":"yes"})";

Texts joined(Texts first, const Texts& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Texts brainstormOnItsFirstScreen() {
    return {start,
            click("Brainstorm"),
            type("txtName", "Dana"),
            R"({"do":"choose","option":"optGBS"})",
            click("BNext"),
            type("txtStrength", "Own fleet"),
            enterInto("txtStrength")};
}

Texts analysisOnItsFirstScreen() {
    return {start,
            click("Analyze"),
            answerFile("sources/dana.bsm"),
            click("AFAdd"),
            click("ANext"),
            type("txtAStrength", "Night shift"),
            enterInto("txtAStrength")};
}

// Two questions in each of four lists, the first on screen.
Texts brainstormOnItsLastScreen() {
    return joined(brainstormOnItsFirstScreen(), Texts(7, click("BNext")));
}

// Six screens, the first shown.
Texts analysisOnItsLastScreen() {
    return joined(analysisOnItsFirstScreen(), Texts(5, click("ANext")));
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Writer& writer) { return out << writer.name; }

const std::vector<Writer>& writers() {
    static const std::vector<Writer> writers{
        {"BrainstormSession",
         "target",
         "saved.bsm",
         brainstormOnItsLastScreen(),
         {answerFile("target/saved.bsm"), yes, click("BNext")}},
        {"Analysis",
         "target",
         "saved.aze",
         analysisOnItsLastScreen(),
         {answerFile("target/saved.aze"), yes, click("ANext")}},
        {"CopyOfTheBrainstormSession",
         "app",
         "brainstorm.tmp",
         brainstormOnItsFirstScreen(),
         {tick}},
        {"CopyOfTheAnalysis", "app", "analyze.tmp", analysisOnItsFirstScreen(), {tick}},
        {"MergedFile",
         "target",
         "merged.bsm",
         analysisOnItsFirstScreen(),
         {answerFile("target/merged.bsm"), yes,
          R"({"do":"call","routine":"mergeBrainstormFiles"})"}},
        {"WebPage", "app/System", "report.htm", {start}, {report("0"), click("Report")}},
        {"Document",
         "target",
         "team.rtf",
         {start},
         {answerFile("target/team.rtf"), yes, report("1"), click("Report")}},
    };
    return writers;
}

const Writer& writerOf(std::string_view name) {
    return *std::ranges::find(writers(), name, &Writer::name);
}

void layOut(const TemporaryFolder& folder) {
    for (const char* name : {"app", "app/System", "documents", "sources", "target"}) {
        std::filesystem::create_directory(folder / name);
        ::chmod((folder / name).c_str(), 0777);
    }
    folder.write("app/gbsquestions.txt", bankOf(2));
    folder.write("sources/dana.bsm",
                 brainstormFile("Dana", "GBS", {"Own fleet"}, {"Slow"}, {"Export"}, {"Rivals"}));
    folder.write("sources/team.aze",
                 lines({"<STRENGTH>", "S1<!-SWOT-!>[Dana]: <!-SWOT-!>Own fleet", "</STRENGTH>",
                        "<OPPORTUNITYMAPPING>", "O1<!-SWOT-!><!-SWOT-!>Export",
                        "O1-S1<!-SWOT-!><!-SWOT-!>Own fleet", "</OPPORTUNITYMAPPING>"}));
}

PlayedProgram::PlayedProgram(const std::string& folder)
    : disk(folder),
      m_folder(folder),
      m_stage(driver::makeModelStage()),
      m_driver(std::make_unique<driver::Driver>(
          *m_stage, disk,
          driver::Folders{folder + "/app", folder + "/documents", folder + "/settings"})) {}

PlayedProgram::~PlayedProgram() = default;

std::string PlayedProgram::play(const Texts& lines) {
    for (std::string line : lines) {
        if (const auto at = line.find('$'); at != line.npos) line.replace(at, 1, m_folder);
        const Json answer = m_driver->answer(line);
        if (answer.contains("error")) return line + " was refused: " + answer.dump();
        if (answer.contains("state")) continue;
        for (const Json& event : answer["events"]) {
            if (event["event"] == "message") messages.push_back(event["text"]);
            if (event["event"] == "unhandledError") return line + " led to " + event.dump();
        }
    }
    return {};
}

}  // namespace orvanta::test
