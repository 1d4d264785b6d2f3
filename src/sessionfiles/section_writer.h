#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/section_tags.h"

namespace orvanta {

/// Builds the bytes of a session file. Each line ends in CR LF, the last one too.
class SectionWriter {
public:
    /// A line that is joined from these.
    template <class... Texts>
    void line(const Texts&... texts) {
        (m_bytes.append(texts), ...);
        m_bytes.append("\r\n");
    }
    void open(Section section) { line("<", wordOf(section), ">"); }
    void close(Section section) { line("</", wordOf(section), ">"); }

    /// A section of one line.
    void section(Section section, std::string_view text) {
        open(section);
        line(text);
        close(section);
    }

    /// The bytes; nothing can be written behind this.
    std::string finish() { return std::move(m_bytes); }

private:
    std::string m_bytes;
};

}  // namespace orvanta
