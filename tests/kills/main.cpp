// Plays made-up sessions whose process is killed at a random moment, also inside a save. At the
// next start every statement that stood when the last copy was made must be back, and no file may
// be anything but the former one or the new one.
//   orvanta_kills DRIVER SESSIONS [FIRST_SEED]
// A session is told by its seed; the moment of the kill differs from run to run.

#include <cstdio>
#include <cstdlib>
#include <map>

#include "killed_session.h"

namespace {

using namespace orvanta::kills;

struct Tally {
    std::map<Moment, int> moments;
    int amidAWrite = 0, back = 0, failed = 0;
};

void play(const char* driver, std::uint32_t seed, Tally& tally) {
    KilledSession session(driver, seed);
    const std::string wrong = session.run();
    ++tally.moments[session.moment()];
    tally.amidAWrite += session.leftAFile();
    tally.back += session.broughtBack();
    if (wrong.empty()) return;
    ++tally.failed;
    std::printf("seed %u: %s\n", seed, wrong.c_str());
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: orvanta_kills DRIVER SESSIONS [FIRST_SEED]\n", stderr);
        return 2;
    }
    const auto sessions = static_cast<std::uint32_t>(std::atoi(argv[2]));
    const auto first = argc > 3 ? static_cast<std::uint32_t>(std::atoi(argv[3])) : 1;
    Tally tally;
    for (std::uint32_t seed = first; seed < first + sessions; ++seed) play(argv[1], seed, tally);
    std::printf(
        "kills: of the sessions with the seeds %u to %u, %d ended before their last line wrote "
        "anything, %d amid it, %d behind it; %d left the file of a write under way, %d brought "
        "statements back, %d lost something\n",
        first, first + sessions - 1, tally.moments[Moment::NothingWritten],
        tally.moments[Moment::Amid], tally.moments[Moment::AllWritten], tally.amidAWrite,
        tally.back, tally.failed);
    return tally.failed == 0 && sessions > 0 ? 0 : 1;
}
