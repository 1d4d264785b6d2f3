#include "invention.h"

#include <array>
#include <random>
#include <string_view>
#include <vector>

namespace orvanta::readers {

namespace {

constexpr std::array<std::string_view, 48> vocabulary{
    "we",       "our",       "customers", "and",      "the",        "of",      "a",
    "to",       "delivery",  "prices",    "supplier", "region",     "in",      "market",
    "for",      "is",        "contract",  "trainees", "reputation", "office",  "new",
    "staff",    "who",       "service",   "margin",   "competitor", "with",    "at",
    "know-how", "warehouse", "on",        "software", "cash",       "growing", "regulation",
    "brand",    "over",      "season",    "owner's",  "machines",   "from",    "quality",
    "exports",  "demand",    "not",       "ageing",   "partners",   "network"};

struct Range {
    int least, most;
};

/// What differs from one analysis to the next.
struct Shape {
    Range opportunities, others;
    int mostWords, mostMapped;
};

constexpr std::array<Shape, 4> shapes{{
    {.opportunities = {2, 12}, .others = {1, 12}, .mostWords = 60, .mostMapped = 8},
    {.opportunities = {2, 4}, .others = {1, 4}, .mostWords = 60, .mostMapped = 40},
    {.opportunities = {3, 25}, .others = {3, 25}, .mostWords = 16, .mostMapped = 5},
    {.opportunities = {101, 112}, .others = {3, 30}, .mostWords = 10, .mostMapped = 1},
}};

class Inventor {
public:
    explicit Inventor(unsigned seed) : m_chance(seed), m_shape(shapes[seed % shapes.size()]) {}

    std::string analysis() {
        const auto strengths = list("STRENGTH", 'S', m_shape.others);
        const auto weaknesses = list("WEAKNESS", 'W', m_shape.others);
        const auto opportunities = list("OPPORTUNITY", 'O', m_shape.opportunities);
        const auto threats = list("THREATS", 'T', m_shape.others);
        mappings("OPPORTUNITYMAPPING", 'O', opportunities, strengths, weaknesses);
        mappings("THREATMAPPING", 'T', threats, strengths, weaknesses);
        return m_file;
    }

private:
    using Texts = std::vector<std::string>;

    // By hand: what the library's distributions draw differs from one to the next.
    int between(Range range) {
        return range.least +
               static_cast<int>(m_chance() % static_cast<unsigned>(range.most - range.least + 1));
    }

    std::string unbroken() {
        std::string text(static_cast<std::size_t>(between({60, 255})), 'x');
        for (char& letter : text) letter = static_cast<char>(between({'a', 'z'}));
        return text;
    }

    std::string statement() {
        if (between({1, 15}) == 1) return unbroken();
        std::string text;
        for (int words = between({5, m_shape.mostWords}); words > 0; --words)
            text.append(vocabulary[m_chance() % vocabulary.size()])
                .append(words > 1 ? between({1, 9}) == 1 ? ", " : " " : "");
        return text;
    }

    void line(const std::string& key, const std::string& text) {
        m_file += key + "<!-SWOT-!>[Ann]: <!-SWOT-!>" + text + "\r\n";
    }

    Texts list(const std::string& section, char letter, Range count) {
        Texts texts(static_cast<std::size_t>(between(count)));
        m_file += "<" + section + ">\r\n";
        for (std::size_t i = 0; i < texts.size(); ++i)
            line(letter + std::to_string(i + 1), texts[i] = statement());
        m_file += "</" + section + ">\r\n";
        return texts;
    }

    void mappings(const std::string& section, char letter, const Texts& parents,
                  const Texts& strengths, const Texts& weaknesses) {
        m_file += "<" + section + ">\r\n";
        for (std::size_t i = 0; i < parents.size(); ++i) {
            const std::string key = letter + std::to_string(i + 1);
            line(key, parents[i]);
            for (int mapped = between({0, m_shape.mostMapped}); mapped > 0; --mapped)
                between({0, 1}) == 0 ? map(key, 'S', strengths) : map(key, 'W', weaknesses);
        }
        m_file += "</" + section + ">\r\n";
    }

    void map(const std::string& parent, char letter, const Texts& texts) {
        const std::size_t index = m_chance() % texts.size();
        line(parent + "-" + letter + std::to_string(index + 1), texts[index]);
    }

    std::mt19937 m_chance;
    const Shape& m_shape;
    std::string m_file;
};

}  // namespace

std::string inventedAnalysis(unsigned seed) { return Inventor(seed).analysis(); }

}  // namespace orvanta::readers
