#include "analyses.h"

#include "bench.h"

namespace orvanta::benchmarks {

namespace {

std::string rowLine(const std::string& key, const std::string& text) {
    return key + "<!-SWOT-!>[Dana Reyes]: <!-SWOT-!>" + text;
}

std::string statement(char letter, int number) {
    return "Statement " + std::to_string(number) + " of the kind " + letter +
           ", as long as people tend to write them";
}

class File {
public:
    void addStatements(const std::string& word, char letter, int count) {
        open(word);
        for (int number = 1; number <= count; ++number)
            m_lines.push_back(rowLine(keyOf(letter, number), statement(letter, number)));
        close(word);
    }

    /// Every other parent has one mapped statement more.
    void addMappings(const std::string& word, char letter, int parents) {
        open(word);
        for (int number = 1; number <= parents; ++number) {
            const std::string parent = keyOf(letter, number);
            m_lines.push_back(rowLine(parent, statement(letter, number)));
            addMapped(parent, 'S', number);
            if (number % 2 == 0) addMapped(parent, 'W', number);
        }
        close(word);
    }

    std::string bytes() const { return test::lines(m_lines); }

private:
    static std::string keyOf(char letter, int number) { return letter + std::to_string(number); }
    void open(const std::string& word) { m_lines.push_back("<" + word + ">"); }
    void close(const std::string& word) { m_lines.push_back("</" + word + ">"); }
    void addMapped(const std::string& parent, char letter, int number) {
        m_lines.push_back(rowLine(parent + "-" + keyOf(letter, number), statement(letter, number)));
    }

    test::Texts m_lines{"<MODULE>", "MP", "</MODULE>"};
};

}  // namespace

std::string analysisOf(int rows) {
    const int picked = rows * 3 / 20, parents = rows / 10;
    File file;
    file.addStatements("STRENGTH", 'S', picked);
    file.addStatements("WEAKNESS", 'W', picked);
    file.addStatements("OPPORTUNITY", 'O', parents);
    file.addStatements("THREATS", 'T', parents);
    file.addMappings("OPPORTUNITYMAPPING", 'O', parents);
    file.addMappings("THREATMAPPING", 'T', parents);
    return file.bytes();
}

}  // namespace orvanta::benchmarks
