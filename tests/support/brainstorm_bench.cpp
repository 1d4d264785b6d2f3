#include "brainstorm_bench.h"

namespace orvanta::test {

std::ostream& operator<<(std::ostream& out, const AnsweredKind& kind) { return out << kind.name; }

const std::vector<AnsweredKind>& answeredKinds() {
    static const std::vector<AnsweredKind> kinds{
        {"Strength", "S", 1, "fraStrength", "lblSQuestion", "txtStrength", "lvBStrength", "BS",
         "Please enter strength."},
        {"Weakness", "W", 2, "fraWeakness", "lblWQuestion", "txtWeakness", "lvBWeakness", "BW",
         "Please enter weakness."},
        {"Opportunity", "O", 3, "fraOpportunity", "lblOQuestion", "txtOpportunity",
         "lvBOpportunity", "BO", "Please enter opportunity."},
        {"Threat", "T", 4, "fraThreats", "lblTQuestion", "txtThreat", "lvBThreat", "BT",
         "Please enter threat."},
    };
    return kinds;
}

BrainstormBench::BrainstormBench() {
    start();
    openBrainstorm();
}

void BrainstormBench::next(int presses) {
    for (int i = 0; i < presses; ++i) click("BNext");
    events();
}

void BrainstormBench::back(int presses) {
    for (int i = 0; i < presses; ++i) click("BBack");
    events();
}

void BrainstormBench::goTo(const AnsweredKind& kind, int question) {
    next(3 * (kind.image - 1) + question - 1);
}

void BrainstormBench::addClips(const std::string& code) {
    for (const AnsweredKind& kind : answeredKinds())
        for (int number = 1; number <= 3; ++number)
            disk.files[clipPath(code + "_" + kind.key(number))] = "clip";
}

std::string BrainstormBench::asked(const AnsweredKind& kind) {
    return control(kind.question).as<Label>()->caption();
}

Texts BrainstormBench::stepsShown() {
    Texts shown;
    for (const AnsweredKind& kind : answeredKinds())
        if (control(kind.panel).isVisible()) shown.push_back(kind.panel);
    return shown;
}

}  // namespace orvanta::test
