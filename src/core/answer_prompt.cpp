#include "core/answer_prompt.h"

#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/text.h"

namespace orvanta {

bool wantsAnswerAdded(Program& program, TextBox& box) {
    if (box.text().empty()) return false;
    const MessageAnswer answer =
        program.platform.messages.show({.text = "Do you want to add the answer?",
                                        .icon = MessageIcon::Question,
                                        .buttons = MessageButtons::YesNo,
                                        .defaultAnswer = MessageAnswer::Yes});
    if (answer == MessageAnswer::Yes) return true;
    box.setText({});
    return false;
}

std::optional<std::string> answerIn(Program& program, TextBox& box, StatementKind kind) {
    std::string answer(trimBlanks(box.text()));
    if (!answer.empty()) return answer;
    refuse(program.platform.messages, kindControls[kind].blankMessage);
    box.giveFocus();
    return std::nullopt;
}

void emptyForNextAnswer(TextBox& box) {
    box.setText({});
    box.giveFocus();
}

}  // namespace orvanta
