#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <memory>
#include <utility>
#include <vector>

#include "analyze/mapping.h"
#include "analyze/statements.h"
#include "bench.h"
#include "core/list_ranking.h"
#include "core/row_marks.h"
#include "journal/journal.h"

namespace orvanta::benchmarks {

namespace {

/// What this thread has had of the processor. A clock on the wall would count other programs too.
double processorSeconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// An analysis with so many strengths and as many opportunities, all strengths but the first and
/// the last mapped onto one threat. The rows lie in memory as a session that is opened lays them:
/// list after list, and the rows of the picking lists held in common.
class Session : public test::Bench {
public:
    explicit Session(benchmark::State& state)
        : m_state(state), m_rows(static_cast<int>(state.range(0))) {
        start();
        fill(form().lvAStrength, 'S', 1);
        form().lvStrengthOp.addAll(form().lvAStrength);
        form().lvStrengthTh.addAll(form().lvAStrength);
        fill(form().lvAOpportunity, 'O', 3);
        fill(form().lvOpportunity, 'O', 3);
        form().lvThreat.add({.key = "T1", .text = "Threat", .image = 4, .largeImage = 4});
        for (int i = 2; i < m_rows; ++i) add(form().lvThreat, "T1-S" + std::to_string(i), 1);
        form().keyCountS = form().keyCountO = m_rows;
    }

    int last() const { return m_rows; }
    void selectStrength(int position) { form().lvAStrength.select(position); }
    void addStrength() {
        form().txtAStrength.setText("Another statement of usual length");
        addAnalyzeStrength(program());
    }
    void undo() { replayJournal(program(), true); }

    /// Times an act again and again; what leads to it and back from it is left out.
    template <class Prepare, class Act, class Restore>
    void time(Prepare prepare, Act act, Restore restore) {
        for (auto _ : m_state) {
            prepare();
            const double start = processorSeconds();
            act();
            m_state.SetIterationTime(processorSeconds() - start);
            restore();
        }
        if (form().lvAStrength.count() != m_rows || form().lvOpportunity.count() != m_rows)
            m_state.SkipWithError("the lists were left changed");
    }

private:
    static void add(StatementList& list, const std::string& key, int image) {
        list.add({.key = key, .text = "Statement " + key, .image = image, .largeImage = image});
    }
    void fill(StatementList& list, char letter, int image) const {
        for (int i = 1; i <= m_rows; ++i) add(list, letter + std::to_string(i), image);
    }

    benchmark::State& m_state;
    const int m_rows;
};

const auto nothing = [] {};

void addAtTheEnd(benchmark::State& state) {
    Session session(state);
    session.time(
        nothing, [&] { session.addStrength(); }, [&] { session.undo(); });
}

void undoAnAddition(benchmark::State& state) {
    Session session(state);
    session.time([&] { session.addStrength(); }, [&] { session.undo(); }, nothing);
}

void removeAt(benchmark::State& state, bool first) {
    Session session(state);
    session.time([&] { session.selectStrength(first ? 1 : session.last()); },
                 [&] { removeAnalyzeStrength(session.program()); }, [&] { session.undo(); });
}
void removeTheFirst(benchmark::State& state) { removeAt(state, true); }
void removeTheLast(benchmark::State& state) { removeAt(state, false); }

/// The least that a removal takes: a look at each row that may be mapped, and three lists, which
/// own their rows, close up.
void removeFloor(benchmark::State& state, bool first) {
    using List = std::vector<std::pair<std::unique_ptr<Row>, std::uint64_t>>;
    const auto rows = static_cast<std::size_t>(state.range(0));
    std::array<List, 3> lists;
    std::array<List, 2> mappings;
    for (List& list : lists) list.resize(rows);
    for (List& list : mappings) list.resize(rows);
    const auto place = static_cast<std::ptrdiff_t>(first ? 0 : rows - 1);
    for (auto _ : state) {
        const double start = processorSeconds();
        for (const List& list : mappings)
            benchmark::DoNotOptimize(std::ranges::count(list, 1U, &List::value_type::second));
        for (List& list : lists) list.erase(list.begin() + place);
        state.SetIterationTime(processorSeconds() - start);
        for (List& list : lists) list.emplace(list.begin() + place);
    }
}
void removeTheFirstFloor(benchmark::State& state) { removeFloor(state, true); }
void removeTheLastFloor(benchmark::State& state) { removeFloor(state, false); }

void undoTheRemovalOfTheFirst(benchmark::State& state) {
    Session session(state);
    session.time(
        [&] {
            session.selectStrength(1);
            removeAnalyzeStrength(session.program());
        },
        [&] { session.undo(); }, nothing);
}

void drag(benchmark::State& state, bool down) {
    Session session(state);
    StatementList& list = session.form().lvAOpportunity;
    session.time([&] { list.select(down ? 1 : session.last()); },
                 [&] { moveListRow(list, list, down ? session.last() : 1, true); }, nothing);
}
void dragTheFirstToTheEnd(benchmark::State& state) { drag(state, true); }
void dragTheLastToTheTop(benchmark::State& state) { drag(state, false); }

void mapOntoTheLastOpportunity(benchmark::State& state) {
    Session session(state);
    FrmMain& form = session.form();
    session.time(
        [&] {
            form.lvStrengthOp.select(1);
            form.dragSection.assign(1, 'S');
        },
        [&] { mapDroppedStatement(session.program(), form.lvOpportunity, session.last()); },
        [&] { form.lvOpportunity.remove(session.last() + 1); });
}

void apply(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(15'000)->Arg(30'000)->UseManualTime()->Unit(benchmark::kMicrosecond);
}
BENCHMARK(addAtTheEnd)->Apply(apply);
BENCHMARK(undoAnAddition)->Apply(apply);
BENCHMARK(removeTheFirst)->Apply(apply);
BENCHMARK(removeTheLast)->Apply(apply);
BENCHMARK(removeTheFirstFloor)->Apply(apply);
BENCHMARK(removeTheLastFloor)->Apply(apply);
BENCHMARK(undoTheRemovalOfTheFirst)->Apply(apply);
BENCHMARK(dragTheFirstToTheEnd)->Apply(apply);
BENCHMARK(dragTheLastToTheTop)->Apply(apply);
BENCHMARK(mapOntoTheLastOpportunity)->Apply(apply);

}  // namespace

}  // namespace orvanta::benchmarks
