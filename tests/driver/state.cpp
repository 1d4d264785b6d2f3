#include "state.h"

#include <algorithm>

#include "core/modules.h"
#include "core/statement_lists.h"

namespace orvanta::driver {

namespace {

template <class Member, std::size_t Count, class Value>
Json byName(const FrmMain& form, const std::array<Member, Count>& members, Value value) {
    Json result = Json::object();
    for (const Member member : members) result[(form.*member).name()] = value(form.*member);
    return result;
}

constexpr std::array panels{&FrmMain::fraBrainstorm,
                            &FrmMain::fraStrength,
                            &FrmMain::fraWeakness,
                            &FrmMain::fraOpportunity,
                            &FrmMain::fraThreats,
                            &FrmMain::fraAnalyze,
                            &FrmMain::fraASSummary,
                            &FrmMain::fraAWeakness,
                            &FrmMain::fraAOpportunity,
                            &FrmMain::fraAThreats,
                            &FrmMain::fraAnalyzeOpportunity,
                            &FrmMain::fraAnalyzeThreat};

constexpr std::array labels{&FrmMain::lblSQuestion,    &FrmMain::lblWQuestion,
                            &FrmMain::lblOQuestion,    &FrmMain::lblTQuestion,
                            &FrmMain::lblAStrength,    &FrmMain::lblAWeakness,
                            &FrmMain::lblAOpportunity, &FrmMain::lblAThreats,
                            &FrmMain::lblAOMapping,    &FrmMain::lblATMapping};

constexpr std::array boxes{
    &FrmMain::txtName,        &FrmMain::txtStrength,     &FrmMain::txtWeakness,
    &FrmMain::txtOpportunity, &FrmMain::txtThreat,       &FrmMain::txtAStrength,
    &FrmMain::txtAWeakness,   &FrmMain::txtAOpportunity, &FrmMain::txtAThreat};

Json visibleOf(const FrmMain& form) {
    return {{"picBBack", form.picBBack.isVisible()},
            {"picABack", form.picABack.isVisible()},
            {"cmdUndo", form.cmdUndo.isVisible()},
            {"cmdRedo", form.cmdRedo.isVisible()}};
}

Json captionsOf(const FrmMain& form) {
    Json captions = byName(form, labels, [](const Label& label) { return text(label.caption()); });
    captions["frmMain"] = text(form.caption);
    for (const Button button : {Button::BNext, Button::ANext}) {
        const Label& label = form.buttons[button].label;
        captions[label.name()] = text(label.caption());
    }
    return captions;
}

Json toolTipsOf(const FrmMain& form) {
    const auto toolTip = [](const Control& control) { return text(control.toolTip()); };
    Json toolTips = byName(form, statementLists, toolTip);
    const SkinnedButton& next = form.buttons[Button::BNext];
    toolTips[next.label.name()] = toolTip(next.label);
    toolTips[next.image.name()] = toolTip(next.image);
    return toolTips;
}

/// Whole numbers of twips are written without a fraction.
Json lengthOf(Twips length) {
    const auto whole = static_cast<long long>(length.value);
    if (static_cast<double>(whole) == length.value) return whole;
    return length.value;
}

Json optionsOf(const FrmMain& form) {
    Json options = Json::object();
    for (const Module& module : modules) {
        const Option& option = form.*module.option;
        options[option.name()] = {{"on", option.isOn()},
                                  {"enabled", option.isEnabled()},
                                  {"visible", option.isVisible()},
                                  {"top", lengthOf(option.bounds().top)}};
    }
    return options;
}

Json rowOf(const Row& row) {
    Json result{{"key", text(row.key)},         {"text", text(row.text)}, {"image", row.image},
                {"subItem", text(row.subItem)}, {"colour", nullptr},      {"indent", row.indent}};
    if (row.colour) result["colour"] = {row.colour->red, row.colour->green, row.colour->blue};
    if (row.largeImage != row.image) result["largeImage"] = row.largeImage;
    return result;
}

Json listOf(const StatementList& list) {
    Json rows = Json::array();
    for (int position = 1; position <= list.count(); ++position)
        rows.push_back(rowOf(list.row(position)));
    return {{"selected", list.selected()}, {"rows", std::move(rows)}};
}

template <class Texts>
Json textsOf(const Texts& texts, std::size_t count) {
    Json result = Json::array();
    for (std::size_t i = 0; i < std::min(count, texts.size()); ++i)
        result.push_back(text(texts[i]));
    return result;
}

Json membersOf(const FrmMain& form, const QuestionBanks& questions) {
    return {{"editFlag", form.editFlag},
            {"editAFlag", form.editAFlag},
            {"lastPathBSM", text(form.lastPathBSM)},
            {"lastPathAZE", text(form.lastPathAZE)},
            {"lastPathRTF", text(form.lastPathRTF)},
            {"dragSection", text(form.dragSection)},
            {"questionStep", form.questionStep},
            {"onLastQuestion", form.onLastQuestion},
            {"narratedStrength", form.narratedStrength},
            {"narratedWeakness", form.narratedWeakness},
            {"narratedOpportunity", form.narratedOpportunity},
            {"narratedThreat", form.narratedThreat},
            {"autoSaveFailed", form.autoSaveFailed},
            {"keyCountS", form.keyCountS},
            {"keyCountW", form.keyCountW},
            {"keyCountO", form.keyCountO},
            {"keyCountT", form.keyCountT},
            {"strengthCount", questions.strengthCount},
            {"weaknessCount", questions.weaknessCount},
            {"opportunityCount", questions.opportunityCount},
            {"threatCount", questions.threatCount}};
}

Json questionsOf(const QuestionBanks& questions) {
    const auto counted = [](const std::vector<std::string>& texts, std::int16_t count) {
        return textsOf(texts, static_cast<std::size_t>(count));
    };
    return {{"strengthQuestions", counted(questions.strengthQuestions, questions.strengthCount)},
            {"weaknessQuestions", counted(questions.weaknessQuestions, questions.weaknessCount)},
            {"opportunityQuestions",
             counted(questions.opportunityQuestions, questions.opportunityCount)},
            {"threatQuestions", counted(questions.threatQuestions, questions.threatCount)},
            {"analyzeQuestions",
             textsOf(questions.analyzeQuestions, questions.analyzeQuestions.size())}};
}

}  // namespace

Json stateOf(const Program& program) {
    const FrmMain& form = program.frmMain;
    return {{"panels", byName(form, panels, [](const Panel& panel) { return panel.isVisible(); })},
            {"visible", visibleOf(form)},
            {"captions", captionsOf(form)},
            {"toolTips", toolTipsOf(form)},
            {"texts", byName(form, boxes, [](const TextBox& box) { return text(box.text()); })},
            {"options", optionsOf(form)},
            {"mute", form.chkMute.isOn()},
            {"lists", byName(form, statementLists, listOf)},
            {"lstFiles",
             {{"selected", form.lstFiles.selectedIndex()},
              {"items", textsOf(form.lstFiles.items(), form.lstFiles.items().size())}}},
            {"members", membersOf(form, program.questions)},
            {"questions", questionsOf(program.questions)},
            {"undoRecords", textsOf(form.undoRecords, form.undoRecords.size())},
            {"redoRecords", textsOf(form.redoRecords, form.redoRecords.size())},
            {"cd",
             {{"filter", text(form.cd.filter)},
              {"initialPath", text(form.cd.initialPath)},
              {"fileName", text(form.cd.fileName)}}}};
}

}  // namespace orvanta::driver
