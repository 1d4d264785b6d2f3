#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace orvanta {

/// The sections of the program's text files. Each opens with "<WORD>" and closes with "</WORD>"
/// on a line of its own, upper case, blanks around it allowed.
enum class Section {
    Step,
    Name,
    Module,
    Strength,
    Weakness,
    Opportunity,
    Threats,  // plural against the singular of the other three; the formats are fixed
    OpportunityMapping,
    ThreatMapping,
    Count,
};

std::string_view wordOf(Section section);

struct SectionTag {
    Section section;
    bool opens;
};

/// The tag that a trimmed line is, among the sections that a format knows; none for any other
/// line.
std::optional<SectionTag> tagOf(std::string_view trimmedLine, std::span<const Section> known);

/// Follows the tags of a session file. The first opening tag wins until a section is closed;
/// any closing tag closes, whichever section it names.
class OpenSection {
public:
    void take(SectionTag tag) {
        if (!tag.opens)
            m_open.reset();
        else if (!m_open)
            m_open = tag.section;
    }
    /// Takes a trimmed line of a format; the section that it is data of, if it is data of one.
    std::optional<Section> takeLine(std::string_view trimmedLine, std::span<const Section> known);
    std::optional<Section> section() const { return m_open; }

private:
    std::optional<Section> m_open;
};

}  // namespace orvanta
