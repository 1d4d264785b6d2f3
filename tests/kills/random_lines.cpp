#include "random_lines.h"

#include <array>

#include "core/kind_controls.h"
#include "core/mapping_side.h"

namespace orvanta::kills {

namespace {

// What the formats escape, unevenly, and what they trim.
constexpr std::array words{"Brand",       "a < b",       "x &lt; y", "  wide  ",
                           "50 % {more}", "<b>bold</b>", "Fleet",    "Zürich €",
                           "&amp;lt;",    "-",           "[+] plus", "1|2,"};

std::string click(std::string_view button) {
    return R"({"do":"click","button":")" + std::string(button) + "\"}";
}
std::string clickControl(const std::string& control) {
    return R"({"do":"click","control":")" + control + "\"}";
}
std::string select(const StatementList& list, int row) {
    return R"({"do":"select","list":")" + list.name() + R"(","row":)" + std::to_string(row) + "}";
}
std::string answerMessage(const std::string& button) {
    return R"({"answer":"message","button":")" + button + "\"}";
}

bool isAnalyzing(const FrmMain& form) { return form.fraAnalyze.isVisible(); }
Session onScreen(const FrmMain& form) {
    return isAnalyzing(form) ? Session::Analyze : Session::Brainstorm;
}

}  // namespace

RandomLines::RandomLines(std::uint32_t seed, std::string folder)
    : m_folder(std::move(folder)), m_random(seed) {
    m_next.push_back(R"({"do":"start"})");
}

std::string RandomLines::next(FrmMain& form) {
    if (m_next.empty()) {
        const Lines lines = anything(form);
        m_next.assign(lines.begin(), lines.end());
    }
    std::string line = m_next.front();
    m_next.pop_front();
    return line;
}

std::vector<std::string> RandomLines::toAWrite(FrmMain& form) {
    if (below(3) == 0) return leaveWithASave(form);
    Lines lines = enterAStatement(form);
    lines.push_back(tick);
    return lines;
}

std::string RandomLines::textOf(int number) const {
    return std::string(words[static_cast<std::size_t>(number) % words.size()]) + " " +
           std::to_string(number);
}

std::string RandomLines::answerFile(const std::string& name) const {
    return R"({"answer":"fileDialog","path":")" + m_folder + "/documents/" + name + "\"}";
}

RandomLines::Lines RandomLines::openAModule() {
    if (below(2) == 0)
        return {click("Brainstorm"), R"({"do":"set","control":"txtName","text":"Dana"})",
                R"({"do":"choose","option":"optGBS"})", click("BNext")};
    return {click("Analyze"),    answerFile("a.bsm"), click("AFAdd"),
            answerFile("b.bsm"), click("AFAdd"),      click("ANext")};
}

RandomLines::Lines RandomLines::anything(FrmMain& form) {
    if (!form.fraBrainstorm.isVisible() && !isAnalyzing(form)) return openAModule();
    const std::string letter = isAnalyzing(form) ? "A" : "B";
    const int act = below(100);
    if (act < 30) return enterAStatement(form);
    if (act < 45) return changeAStatement(form);
    if (act < 58) return map(form);
    if (act < 70) return {click(letter + "Next")};
    if (act < 74) return {click(letter + "Back")};
    if (act < 78) return {clickControl("cmdUndo")};
    if (act < 80) return {clickControl("cmdRedo")};
    if (act < 83) return leaveWithASave(form);
    if (act < 84) return {answerMessage("no"), click(letter + "Quit")};
    return {tick};
}

RandomLines::Lines RandomLines::enterAStatement(FrmMain& form) {
    for (const StatementKind kind : statementKinds) {
        const TextBox& box = form.*controlsOf(onScreen(form), kind).box;
        if (box.isReachable())
            return {R"({"do":"set","control":")" + box.name() + R"(","text":")" +
                        textOf(below(1000)) + "\"}",
                    R"({"do":"enter","control":")" + box.name() + "\"}"};
    }
    return {click(isAnalyzing(form) ? "ANext" : "BNext")};
}

RandomLines::Lines RandomLines::changeAStatement(FrmMain& form) {
    const std::string letter = isAnalyzing(form) ? "A" : "B";
    for (const StatementKind kind : statementKinds) {
        const StatementList& list = listOf(form, onScreen(form), kind);
        if (!list.isReachable() || list.count() == 0) continue;
        const std::string buttons = letter + letterOf(kind);
        const std::string selected = select(list, 1 + below(list.count()));
        if (below(2) == 0) return {selected, click(buttons + "Remove")};
        return {R"({"answer":"frmEdit","steps":[{"text":")" + textOf(below(1000)) +
                    R"("},{"press":"ok"}]})",
                selected, click(buttons + "Edit")};
    }
    return {tick};
}

RandomLines::Lines RandomLines::map(FrmMain& form) {
    for (const SideControls& side : sideControls) {
        const StatementList& parents = form.*side.mapping.list;
        const HeadedList& headed = below(2) == 0 ? side.strengths : side.weaknesses;
        const StatementList& picked = form.*headed.list;
        if (!parents.isReachable() || parents.count() == 0 || picked.count() == 0) continue;
        return {R"({"do":"drag","list":")" + picked.name() + R"(","row":)" +
                std::to_string(1 + below(picked.count())) + R"(,"to":")" + parents.name() +
                R"(","at":)" + std::to_string(1 + below(parents.count())) + "}"};
    }
    return {tick};
}

RandomLines::Lines RandomLines::leaveWithASave(FrmMain& form) {
    const bool analyzing = isAnalyzing(form);
    const std::string quit = click(analyzing ? "AQuit" : "BQuit");
    // Nothing would ask for the answers then, and what asks next would take them.
    if (!(analyzing ? form.editAFlag : form.editFlag)) return {quit};
    const std::string number = std::to_string(below(2));
    return {answerMessage("yes"), answerFile("saved" + number + (analyzing ? ".aze" : ".bsm")),
            answerMessage("yes"), quit};
}

}  // namespace orvanta::kills
