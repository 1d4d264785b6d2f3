// The input is brainstorm files with a zero byte between them; they are merged. The new file
// holds the statements of the sources in their order, none of them blank or with blanks at its
// ends, and the sources and the lists on screen are as before. A merged file, merged alone, stays
// as it is. Where no source has a name or a step, which merging does not know, the new file reads
// as the sources read one after the other.

#include <algorithm>

#include "core/kind_controls.h"
#include "core/text.h"
#include "fuzzed_program.h"
#include "sessionfiles/brainstorm_file.h"
#include "sessionfiles/merging.h"

namespace orvanta::fuzz {

namespace {

using Files = std::vector<std::string>;

std::string nameOf(std::size_t index) { return "docs/" + std::to_string(index) + ".bsm"; }

std::string merged(const Files& sources) {
    FuzzedProgram fuzzed;
    for (std::size_t index = 0; index < sources.size(); ++index) {
        fuzzed.disk.files[nameOf(index)] = sources[index];
        fuzzed.form().lstFiles.add(nameOf(index));
    }
    fuzzed.answerTo(R"({"answer":"fileDialog","path":"docs/merged.bsm"})");
    mergeBrainstormFiles(fuzzed.program());
    for (std::size_t index = 0; index < sources.size(); ++index)
        require(fuzzed.disk.files.at(nameOf(index)) == sources[index], "the sources stay");
    for (const StatementKind kind : statementKinds)
        require(listOf(fuzzed.form(), Session::Brainstorm, kind).count() == 0 &&
                    listOf(fuzzed.form(), Session::Analyze, kind).count() == 0,
                "the lists on screen stay");
    require(fuzzed.disk.files.contains("docs/merged.bsm"), "any sources are merged");
    return fuzzed.disk.files.at("docs/merged.bsm");
}

/// The texts of each kind, without blank ones, of files that are read one after the other.
PerKind<std::vector<std::string>> textsOf(const Files& files) {
    FuzzedProgram fuzzed;
    for (std::size_t index = 0; index < files.size(); ++index) {
        fuzzed.disk.files[nameOf(index)] = files[index];
        loadBrainstormData(fuzzed.program(), nameOf(index), "BS", false);
    }
    PerKind<std::vector<std::string>> texts;
    for (const StatementKind kind : statementKinds) {
        texts[kind] = fuzz::textsOf(listOf(fuzzed.form(), Session::Brainstorm, kind));
        std::erase(texts[kind], "");
    }
    return texts;
}

/// What stands between the tags of the sections of statements.
std::vector<std::string> statementsIn(std::string_view file) {
    std::vector<std::string> statements;
    LineSource lines(file);
    for (int skipped = 0; skipped < 3; ++skipped) lines.next();  // the module
    while (const auto line = lines.next()) statements.emplace_back(*line);
    return statements;
}

bool hasNameOrStep(std::string_view file) {
    LineSource lines(file);
    constexpr std::array tags{"<NAME>", "</NAME>", "<STEP>", "</STEP>"};
    while (const auto line = lines.next())
        if (std::ranges::find(tags, trimBlanks(*line)) != tags.end()) return true;
    return false;
}

}  // namespace

void tryInput(std::string_view bytes) {
    Files sources;
    for (const std::string_view source : splitAt(bytes, std::string_view("\0", 1)))
        sources.emplace_back(source);
    const std::string file = merged(sources);
    for (const std::string& statement : statementsIn(file))
        require(!statement.empty() && statement == trimBlanks(statement),
                "no statement is blank or has blanks at its ends");
    require(merged({file}) == file, "a merged file stays as it is");
    Files each;
    for (const std::string& source : sources) each.push_back(merged({source}));
    require(statementsIn(merged(each)) == statementsIn(file),
            "statements stand in the order of the sources");
    if (std::ranges::any_of(sources, hasNameOrStep)) return;
    const auto ofFile = textsOf({file}), ofSources = textsOf(sources);
    for (const StatementKind kind : statementKinds)
        require(ofFile[kind] == ofSources[kind], "the new file reads as the sources do");
}

}  // namespace orvanta::fuzz
