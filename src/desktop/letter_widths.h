#pragma once

#include <QFontMetrics>
#include <array>
#include <string_view>

namespace orvanta::desktop {

/// How wide texts are in a font, without laying them out: the widths of their letters, added up.
/// A hundred thousand texts are measured in the time of a frame.
class LetterWidths {
public:
    explicit LetterWidths(const QFontMetrics& metrics);

    /// In pixels; `text` is Windows-1252.
    double of(std::string_view text) const;

private:
    std::array<float, 256> m_widths;
};

}  // namespace orvanta::desktop
