#include "report_bench.h"

#include "core/constants.h"
#include "reports/document_writer.h"
#include "reports/word_report.h"

namespace orvanta::test {

Platform withOthers(const Platform& world, ModalForms& forms, WordProcessors& wordProcessors) {
    return {world.disk,     world.messages, world.fileDialogs,
            world.settings, world.shell,    world.player,
            world.screen,   forms,          world.questionPrinter,
            wordProcessors, world.lifetime, world.folders};
}

std::string Analysis::bytes() const {
    Texts file{"<MODULE>", "GBS", "</MODULE>"};
    const auto section = [&](const std::string& word, const AnalysisRows& rows) {
        file.push_back("<" + word + ">");
        for (const ShownRow& row : rows)
            file.push_back(row.key + std::string(rowFieldDelimiter) +
                           "[Ann]: " + std::string(rowFieldDelimiter) + row.text);
        file.push_back("</" + word + ">");
    };
    section("STRENGTH", strengths);
    section("WEAKNESS", weaknesses);
    section("OPPORTUNITY", opportunities);
    section("THREATS", threats);
    section("OPPORTUNITYMAPPING", opportunityMap);
    section("THREATMAPPING", threatMap);
    return lines(file);
}

Analysis smallAnalysis() {
    return {.strengths = {{"S1", "Loyal customers"}, {"S2", "Own fleet"}},
            .weaknesses = {},
            .opportunities = {{"O2", "New market"}, {"O1", "Partner abroad"}},
            .threats = {{"T1", "Strike"}, {"T2", "New competitor"}},
            .opportunityMap = {{"O2", "New market"},
                               {"O2-S1", "Loyal customers"},
                               {"O2-W1", "Slow delivery"},
                               {"O2-S2", "Own fleet"},
                               {"O1", "Partner abroad"}},
            .threatMap = {{"T1", "Strike"}, {"T2", "New competitor"}, {"T2-W1", "Slow delivery"}}};
}

ReportBench::ReportBench(const Analysis& analysis)
    : m_platform(withOthers(program().platform, m_forms, m_wordProcessors)) {
    disk.files["docs/team.aze"] = analysis.bytes();
    start();
}

void ReportBench::makeDocument(WordProcessors& wordProcessors) {
    use(wordProcessors);
    generateWordReport(m_reporter, "docs/team.aze", "docs/team.rtf");
}

std::string ReportBench::document() {
    DocumentWriter writer(disk);
    makeDocument(writer);
    return disk.files["docs/team.rtf"];
}

Json ReportBench::happened() {
    play({{"do", "state"}});  // any line brings what has happened since the last one
    return events();
}

}  // namespace orvanta::test
