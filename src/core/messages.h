#pragma once

#include "core/constants.h"
#include "view/platform.h"

namespace orvanta {

/// A refusal: stop icon, the product's title.
inline void refuse(MessageBoxes& messages, std::string_view text) {
    messages.show(
        {.text = std::string(text), .icon = MessageIcon::Stop, .title = std::string(appTitle)});
}

/// What the icon of a message says to those who do not see it.
constexpr std::string_view nameOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            break;
        case MessageIcon::Stop:
            return "Stop";
        case MessageIcon::Question:
            return "Question";
        case MessageIcon::Information:
            return "Information";
    }
    return {};
}

/// Good news: information icon, the product's title.
inline void inform(MessageBoxes& messages, std::string_view text) {
    messages.show({.text = std::string(text),
                   .icon = MessageIcon::Information,
                   .title = std::string(appTitle)});
}

inline constexpr std::string_view noModuleMessage = "Please select any SWOT analysis type.";
inline constexpr std::string_view missingAnalyzeFileMessage = "File does not exists.";

/// Asks before an existing file is replaced; false for any answer but Yes. `title` is left out
/// where the box carries the default one.
inline bool mayOverwrite(MessageBoxes& messages, std::optional<std::string> title) {
    return messages.show({.text = "Do you want to overwrite the file?",
                          .icon = MessageIcon::Question,
                          .buttons = MessageButtons::YesNo,
                          .defaultAnswer = MessageAnswer::No,
                          .title = std::move(title)}) == MessageAnswer::Yes;
}

}  // namespace orvanta
