#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "view/platform.h"

namespace orvanta::driver {

// The words of the protocol, in the order of the enumerators that they stand for.

inline constexpr std::array<std::string_view, 4> iconWords{"none", "stop", "question",
                                                           "information"};
inline constexpr std::array<std::string_view, 3> buttonsWords{"ok", "yesNo", "yesNoCancel"};
inline constexpr std::array<std::string_view, 4> answerWords{"ok", "yes", "no", "cancel"};

inline std::string_view wordOf(MessageIcon icon) {
    return iconWords[static_cast<std::size_t>(icon)];
}
inline std::string_view wordOf(MessageButtons buttons) {
    return buttonsWords[static_cast<std::size_t>(buttons)];
}
inline std::string_view wordOf(MessageAnswer answer) {
    return answerWords[static_cast<std::size_t>(answer)];
}

inline std::optional<MessageAnswer> answerNamed(std::string_view word) {
    for (std::size_t i = 0; i < answerWords.size(); ++i)
        if (answerWords[i] == word) return static_cast<MessageAnswer>(i);
    return std::nullopt;
}

}  // namespace orvanta::driver
