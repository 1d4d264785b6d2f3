#include "analysis_bench.h"

namespace orvanta::test {

std::ostream& operator<<(std::ostream& out, const ReviewedKind& kind) { return out << kind.name; }
std::ostream& operator<<(std::ostream& out, const MappingSide& side) { return out << side.name; }

const std::vector<ReviewedKind>& reviewedKinds() {
    static const std::vector<ReviewedKind> kinds{
        {.name = "Strength",
         .letter = "S",
         .image = 1,
         .panel = "fraASSummary",
         .box = "txtAStrength",
         .list = "lvAStrength",
         .companions = {"lvStrengthOp", "lvStrengthTh"},
         .buttons = "AS",
         .blankMessage = "Please enter strength.",
         .presses = 1},
        {.name = "Weakness",
         .letter = "W",
         .image = 2,
         .panel = "fraAWeakness",
         .box = "txtAWeakness",
         .list = "lvAWeakness",
         .companions = {"lvWeaknessOp", "lvWeaknessTh"},
         .buttons = "AW",
         .blankMessage = "Please enter weakness.",
         .presses = 2},
        {.name = "Opportunity",
         .letter = "O",
         .image = 3,
         .panel = "fraAOpportunity",
         .box = "txtAOpportunity",
         .list = "lvAOpportunity",
         .companions = {"lvOpportunity"},
         .buttons = "AO",
         .blankMessage = "Please enter opportunity.",
         .presses = 3},
        {.name = "Threat",
         .letter = "T",
         .image = 4,
         .panel = "fraAThreats",
         .box = "txtAThreat",
         .list = "lvAThreat",
         .companions = {"lvThreat"},
         .buttons = "AT",
         .blankMessage = "Please enter threat.",
         .presses = 4},
    };
    return kinds;
}

std::vector<ReviewedKind> pickedKinds() { return {reviewedKinds()[0], reviewedKinds()[1]}; }
std::vector<ReviewedKind> parentKinds() { return {reviewedKinds()[2], reviewedKinds()[3]}; }

const std::vector<MappingSide>& mappingSides() {
    static const std::vector<MappingSide> sides{
        {.name = "Opportunities",
         .letter = "O",
         .image = 3,
         .panel = "fraAnalyzeOpportunity",
         .list = "lvOpportunity",
         .strengths = "lvStrengthOp",
         .weaknesses = "lvWeaknessOp",
         .parentWord = "opportunity",
         .tagEnding = "OM",
         .unmapRoutine = "removeOpportunityMappingRow",
         .presses = 5},
        {.name = "Threats",
         .letter = "T",
         .image = 4,
         .panel = "fraAnalyzeThreat",
         .list = "lvThreat",
         .strengths = "lvStrengthTh",
         .weaknesses = "lvWeaknessTh",
         .parentWord = "threat",
         .tagEnding = "TM",
         .unmapRoutine = "removeThreatMappingRow",
         .presses = 6},
    };
    return sides;
}

AnalysisBench::AnalysisBench() {
    start();
    openAnalyze();
    addSource("docs/ann.bsm", "Ann", {"Ann S1", "Ann S2"}, {"Ann W1", "Ann W2"},
              {"Ann O1", "Ann O2"}, {"Ann T1", "Ann T2"});
    addSource("docs/bo.bsm", "Bo", {"Bo S1"}, {"Bo W1"}, {"Bo O1"}, {"Bo T1"});
    events();
}

void AnalysisBench::next(int presses) {
    for (int i = 0; i < presses; ++i) click("ANext");
    events();
}

void AnalysisBench::map(const std::string& pickingList, int row, const std::string& mappingList,
                        int at) {
    drag(pickingList, row, mappingList, at);
}

void AnalysisBench::addClips() {
    for (const char* step : {"S", "W", "O", "T", "OM", "TM"})
        disk.files[clipPath(std::string("analyze_") + step)] = "clip";
}

Texts AnalysisBench::keys(const std::string& name) {
    Texts result;
    for (const ShownRow& shown : rows(name)) result.push_back(shown.key);
    return result;
}

void AnalysisBench::relabel(const std::string& name, int position, const std::string& sourceLabel) {
    StatementList& rows = list(name);
    Row changed = rows.row(position);
    changed.subItem = sourceLabel;
    rows.remove(position);
    rows.insert(position, changed);
}

Texts AnalysisBench::stepsShown() {
    Texts shown;
    for (const char* panel : {"fraASSummary", "fraAWeakness", "fraAOpportunity", "fraAThreats",
                              "fraAnalyzeOpportunity", "fraAnalyzeThreat"})
        if (isShown(panel)) shown.push_back(panel);
    return shown;
}

bool AnalysisBench::isShown(const std::string& name) { return Bench::control(name).isVisible(); }

std::string clipPath(const std::string& name) { return "app/Sounds/" + name + ".swf"; }

Json narration(const std::string& movie) { return {{"event", "narration"}, {"movie", movie}}; }
Json stopped() { return narration("STOP"); }
Json focusOn(const std::string& control) { return {{"event", "focus"}, {"control", control}}; }

Json refusal(const std::string& text) {
    return {{"event", "message"}, {"text", text},       {"icon", "stop"}, {"buttons", "ok"},
            {"default", "ok"},    {"title", "Orvanta"}, {"answer", "ok"}};
}

Json information(const std::string& text) {
    Json event = refusal(text);
    event["icon"] = "information";
    return event;
}

Json yesNoQuestion(const std::string& text, const std::string& answer) {
    return {{"event", "message"}, {"text", text},     {"icon", "question"}, {"buttons", "yesNo"},
            {"default", "yes"},   {"title", nullptr}, {"answer", answer}};
}

Json setting(const std::string& key, const std::string& value) {
    return {{"event", "setting"}, {"key", key}, {"value", value}};
}

}  // namespace orvanta::test
