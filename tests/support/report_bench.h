#pragma once

#include <functional>

#include "bench.h"
#include "reports/word_processor.h"

namespace orvanta::test {

inline const std::string usageText =
    "Edit this table as required in your word processor. "
    "You can also copy any table below into PowerPoint by selecting the "
    "table and copying it to the Windows Clipboard (click anywhere inside "
    "table, then select from the Word menu: Table, Select, Table, then Edit, "
    "Copy) and then pasting it into any other Windows application.";

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

/// A world whose dialogs and word processor are others.
Platform withOthers(const Platform& world, ModalForms& forms, WordProcessors& wordProcessors);

/// A program on a memory disk that makes documents with a word processor of the test's choosing.
/// The analysis is "docs/team.aze", its document "docs/team.rtf".
class ReportBench : public Bench {
public:
    explicit ReportBench(const Analysis& analysis = smallAnalysis());

    /// The program that makes the documents. It shares the bench's disk, boxes and answers.
    Program& reporter() { return m_reporter; }
    /// The word processor that it starts from now on.
    void use(WordProcessors& wordProcessors) { m_wordProcessors.chosen = &wordProcessors; }

    void makeDocument(WordProcessors& wordProcessors);
    /// With the program's own word processor; the bytes of the document.
    std::string document();

    /// What a person was shown or told meanwhile.
    Json happened();

    /// Each time that the wait cursor was put on or taken off.
    std::vector<bool> waitCursor;
    /// Runs when a dialog paints itself before it makes the program wait.
    std::function<void(FrmReportType&)> onRepaint = [](FrmReportType&) {};

private:
    struct ChosenWordProcessors : WordProcessors {
        WordProcessors* chosen = nullptr;
        WordObjectPtr createApplication() override { return chosen->createApplication(); }
    };

    /// Shows nothing.
    class Forms : public ModalForms {
    public:
        explicit Forms(ReportBench& bench) : m_bench(bench) {}
        void run(FrmSplash&) override {}
        void run(FrmEdit&) override {}
        void run(FrmReportType&) override {}
        void run(FrmAbout&) override {}
        void repaint(FrmReportType& form) override { m_bench.onRepaint(form); }
        void setWaitCursor(bool on) override { m_bench.waitCursor.push_back(on); }

    private:
        ReportBench& m_bench;
    };

    ChosenWordProcessors m_wordProcessors;
    Forms m_forms{*this};
    Platform m_platform;
    Program m_reporter{m_platform, "app", "app"};
};

}  // namespace orvanta::test
