#pragma once

#include "bench.h"
#include "reports/word_processor.h"

namespace orvanta::test {

/// A row of an analyze file: key and text.
using AnalysisRows = std::vector<ShownRow>;

/// What an analyze file holds, in its order.
struct Analysis {
    AnalysisRows strengths{}, weaknesses{}, opportunities{}, threats{};
    AnalysisRows opportunityMap{}, threatMap{};

    std::string bytes() const;
};

/// Two opportunities, the first with a strength and a weakness and another strength; two threats,
/// the second with a weakness; no weakness that stands alone.
Analysis smallAnalysis();

/// The report routine on a memory disk, with a word processor of the test's choosing. The
/// analysis is "docs/team.aze", its document "docs/team.rtf".
class ReportBench : public Bench {
public:
    explicit ReportBench(const Analysis& analysis = smallAnalysis());

    void makeDocument(WordProcessors& wordProcessors);
    /// With the program's own word processor; the bytes of the document.
    std::string document();

    /// What a person was shown or told meanwhile.
    Json happened();

    /// Each time that the wait cursor was put on or taken off.
    std::vector<bool> waitCursor;
};

}  // namespace orvanta::test
