#include "core/answer_prompt.h"

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

}  // namespace orvanta
