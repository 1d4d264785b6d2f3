#include <benchmark/benchmark.h>

#include "analyses.h"
#include "bench.h"
#include "floors.h"
#include "reports/html_report.h"
#include "reports/word_report.h"

namespace orvanta::benchmarks {

namespace {

void makeWebPage(benchmark::State& state) {
    test::Bench bench;
    bench.start();
    bench.disk.files["docs/team.aze"] = analysisOf(static_cast<int>(state.range(0)));
    for (auto _ : state) generateHtmlReport(bench.program(), "docs/team.aze");
    if (!bench.disk.files["app/System/report.htm"].ends_with("</table>\r\n"))
        state.SkipWithError("no page");
}
BENCHMARK(makeWebPage)->Arg(50'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void makeWebPageFloor(benchmark::State& state) {
    const std::string bytes = analysisOf(static_cast<int>(state.range(0)));
    std::string page;
    for (auto _ : state) page = std::string_view(writtenPage(readAnalysis(std::string(bytes))));
    benchmark::DoNotOptimize(page);
}
BENCHMARK(makeWebPageFloor)->Arg(50'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void makeDocument(benchmark::State& state) {
    test::Bench bench;
    bench.start();
    bench.disk.files["docs/team.aze"] = analysisOf(static_cast<int>(state.range(0)));
    for (auto _ : state) generateWordReport(bench.program(), "docs/team.aze", "docs/team.rtf");
    if (!bench.disk.files["docs/team.rtf"].starts_with("{\\rtf1")) state.SkipWithError("no RTF");
}
BENCHMARK(makeDocument)->Arg(5'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace orvanta::benchmarks
