#include <benchmark/benchmark.h>
#include <malloc.h>

#include "analyses.h"
#include "analyze/source_files.h"
#include "bench.h"
#include "core/text.h"
#include "floors.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/merging.h"

namespace orvanta::benchmarks {

namespace {

test::Texts statements(const std::string& file) {
    test::Texts texts;
    for (int i = 0; i < 25; ++i)
        texts.push_back("Statement " + std::to_string(i) + " of " + file + ", not a short one");
    return texts;
}

/// A program that lists so many brainstorm files of a hundred statements each.
class Team : public test::Bench {
public:
    explicit Team(int files) {
        start();
        for (int i = 0; i < files; ++i) {
            const std::string name = "member " + std::to_string(i), path = "docs/" + name + ".bsm";
            const test::Texts texts = statements(name);
            disk.files[path] = test::brainstormFile(name, "MP", texts, texts, texts, texts);
            form().lstFiles.add(path);
        }
    }
};

void consolidateFilesOf100Statements(benchmark::State& state) {
    Team team(static_cast<int>(state.range(0)));
    for (auto _ : state) consolidateSourceFiles(team.program());
    if (team.form().lvAStrength.count() != 25 * state.range(0)) state.SkipWithError("rows missing");
}
BENCHMARK(consolidateFilesOf100Statements)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);

void consolidateFilesOf100StatementsFloor(benchmark::State& state) {
    const Team team(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        FloorLists lists;
        for (const auto& [path, bytes] : team.disk.files)
            if (path.ends_with(".bsm")) readBrainstormFile(std::string(bytes), lists);
        benchmark::DoNotOptimize(lists);
    }
}
BENCHMARK(consolidateFilesOf100StatementsFloor)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);

/// What a statement with its companions takes beside the bytes of its text.
void memoryOfConsolidatedStatements(benchmark::State& state) {
    Team team(static_cast<int>(state.range(0)));
    std::size_t texts = 0;
    const std::size_t before = mallinfo2().uordblks;
    for (auto _ : state) consolidateSourceFiles(team.program());
    const std::size_t bytes = mallinfo2().uordblks - before;
    const StatementList& strengths = team.form().lvAStrength;
    for (int position = 1; position <= strengths.count(); ++position)
        texts += strengths.row(position).text.size();
    const double statements = 4.0 * strengths.count();
    // No counter: those of one benchmark alone have no place in the table that the script reads.
    state.SetLabel(std::to_string(static_cast<double>(bytes - 4 * texts) / statements));
}
BENCHMARK(memoryOfConsolidatedStatements)->Arg(1000)->Unit(benchmark::kMillisecond);

/// A brainstorm file of so many strengths of one letter each.
std::string shortStatements(int count) {
    return test::brainstormFile("member", "MP", test::Texts(static_cast<std::size_t>(count), "x"),
                                {}, {}, {});
}

void consolidateShortStatements(benchmark::State& state) {
    test::Bench bench;
    bench.start();
    bench.disk.files["docs/member.bsm"] = shortStatements(static_cast<int>(state.range(0)));
    bench.form().lstFiles.add("docs/member.bsm");
    for (auto _ : state) {
        consolidateSourceFiles(bench.program());
        state.PauseTiming();
        clearAnalye(bench.program());
        state.ResumeTiming();
    }
}
BENCHMARK(consolidateShortStatements)
    ->Arg(1'000'000)
    ->Arg(2'000'000)
    ->Unit(benchmark::kMillisecond);

/// The least that consolidating such a file can take: its lines are found and nothing else.
void splitShortStatements(benchmark::State& state) {
    const std::string bytes = shortStatements(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        LineSource lines(bytes);
        while (auto line = lines.next()) benchmark::DoNotOptimize(line);
    }
}
BENCHMARK(splitShortStatements)->Arg(1'000'000)->Arg(2'000'000)->Unit(benchmark::kMillisecond);

void mergeFilesOf100Statements(benchmark::State& state) {
    Team team(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        team.answerFile("docs/merged.bsm");
        team.answerMessage("yes");
        mergeBrainstormFiles(team.program());
    }
}
BENCHMARK(mergeFilesOf100Statements)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);

void loadAnalysis(benchmark::State& state) {
    test::Bench bench;
    bench.start();
    bench.disk.files["docs/team.aze"] = analysisOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        clearAnalye(bench.program());
        loadAnalyzeData(bench.program(), "docs/team.aze", false);
    }
    if (bench.form().lvThreat.count() != state.range(0) / 4) state.SkipWithError("rows missing");
}
BENCHMARK(loadAnalysis)->Arg(50'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void loadAnalysisFloor(benchmark::State& state) {
    const std::string bytes = analysisOf(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(readAnalysis(std::string(bytes)));
}
BENCHMARK(loadAnalysisFloor)->Arg(50'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void saveAnalysis(benchmark::State& state) {
    test::Bench bench;
    bench.start();
    bench.disk.files["docs/team.aze"] = analysisOf(static_cast<int>(state.range(0)));
    loadAnalyzeData(bench.program(), "docs/team.aze", false);
    for (auto _ : state) saveAnalyzeData(bench.program(), "docs/again.aze", false);
    if (bench.disk.files["docs/again.aze"] != bench.disk.files["docs/team.aze"])
        state.SkipWithError("the saved file is another");
}
BENCHMARK(saveAnalysis)->Arg(50'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void saveAnalysisFloor(benchmark::State& state) {
    const FloorLists lists = readAnalysis(analysisOf(static_cast<int>(state.range(0))));
    std::string file;
    for (auto _ : state) file = std::string_view(writtenAnalysis(lists));  // the disk's own bytes
    benchmark::DoNotOptimize(file);
}
BENCHMARK(saveAnalysisFloor)->Arg(50'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace orvanta::benchmarks
