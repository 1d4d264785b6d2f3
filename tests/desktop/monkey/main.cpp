// A monkey in the real window: it clicks, types, drags, resizes, opens menus and boxes, closes and
// starts again, all by chance. The same acts are played as lines of the test driver by a second
// program without a window; behind each act both must be alike, and what is claimed must hold.
//   orvanta_monkey SESSIONS [SECONDS [FIRST_SEED]]
// Ends with so many sessions or, before the next one, behind so many seconds; 0: no such end. Each
// session is a process of its own with a seed that it is told by.

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "desktop/theme.h"
#include "played_program.h"

namespace {

using namespace orvanta::monkey;

constexpr int actsInASession = 500, actsBetweenLooksAtFiles = 10;

struct Outcome {
    int runs = 1, lines = 0, mapped = 0;
    std::string wrong{};
};

int mappedRows(const orvanta::FrmMain& form) {
    int mapped = 0;
    for (const auto* list : {&form.lvOpportunity, &form.lvThreat})
        for (int position = 1; position <= list->count(); ++position)
            mapped += list->row(position).key.find('-') != std::string::npos;
    return mapped;
}

/// Runs of the program, one behind the other, in the same folders.
class Session {
public:
    explicit Session(std::uint32_t seed) : m_monkey(seed, m_files), m_inStep(seed % 2 == 0) {
        if (m_inStep) m_monkey.undoNothing();
    }

    Outcome play() {
        begin();
        while (m_outcome.wrong.empty() && m_monkey.tally().acts < actsInASession) act();
        end();
        return m_outcome;
    }
    const Monkey& monkey() const { return m_monkey; }
    const Recorder::Lines& lines() const { return m_lines; }

private:
    void begin() {
        m_played = std::make_unique<PlayedProgram>(m_files, m_monkey);
        m_outcome.wrong = m_played->start();
    }

    void act() {
        m_outcome.wrong = m_played->act(m_inStep);
        m_inStep = m_inStep && !m_played->hasOpenedNoAnalysis();
        m_outcome.mapped = std::max(m_outcome.mapped, mappedRows(m_played->form()));
        if (m_outcome.wrong.empty() && m_monkey.tally().acts >= m_nextLook) lookAtFiles();
        // Now and then the program is killed.
        if (m_outcome.wrong.empty() && (m_played->hasEnded() || m_monkey.wantsToKill())) {
            lookAtFiles();
            end();
            ++m_outcome.runs;
            if (m_outcome.wrong.empty()) begin();
        }
    }

    void lookAtFiles() {
        m_nextLook = m_monkey.tally().acts + actsBetweenLooksAtFiles;
        m_outcome.wrong = m_played->differingFile();
    }

    void end() {
        m_lines = m_played->lines();
        m_outcome.lines += static_cast<int>(m_lines.size());
        m_monkey.leave();
        m_played.reset();
    }

    Sandbox m_files;
    Monkey m_monkey;
    bool m_inStep;
    std::unique_ptr<PlayedProgram> m_played;
    int m_nextLook = actsBetweenLooksAtFiles;
    Outcome m_outcome;
    Recorder::Lines m_lines;
};

void tell(const Session& session, const Outcome& outcome) {
    for (const std::string& act : session.monkey().story()) std::printf("  %s\n", act.c_str());
    const auto first = session.lines().size() - std::min<std::size_t>(session.lines().size(), 30);
    for (std::size_t i = first; i < session.lines().size(); ++i)
        std::printf("  %s\n", session.lines()[i].dump().c_str());
    std::printf("%s\n", outcome.wrong.c_str());
}

/// Without what the platform says of itself.
void tellWarning(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

int playSession(std::uint32_t seed, int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    ::setenv("QT_HASH_SEED", "0", 1);
    qInstallMessageHandler(tellWarning);
    QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QApplication::setKeyboardInputInterval(-1);  // each letter is looked for by itself
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    orvanta::desktop::applyTheme(application);
    Session session(seed);
    const Outcome outcome = session.play();
    if (!outcome.wrong.empty()) tell(session, outcome);
    const Monkey::Tally& tally = session.monkey().tally();
    std::printf("seed %u: %d acts, %d lines, %d runs, %d acts on boxes, %d rows mapped at most;",
                seed, tally.acts, outcome.lines, outcome.runs, tally.boxes, outcome.mapped);
    for (const auto& [screen, acts] : tally.screens) std::printf(" %s %d", screen.c_str(), acts);
    std::printf("\n");
    return outcome.wrong.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

bool endsWell(std::uint32_t seed, int argc, char** argv) {
    std::fflush(stdout);
    const pid_t child = ::fork();
    if (child == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);  // it goes with whoever waits for it
        std::exit(playSession(seed, argc, argv));
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

std::uint32_t number(int argc, char** argv, int place, std::uint32_t otherwise) {
    return place < argc ? static_cast<std::uint32_t>(std::atoi(argv[place])) : otherwise;
}

}  // namespace

int main(int argc, char** argv) {
    using Clock = std::chrono::steady_clock;
    const auto sessions = number(argc, argv, 1, 1), seconds = number(argc, argv, 2, 0),
               first = number(argc, argv, 3, 1);
    const auto end = Clock::now() + std::chrono::seconds(seconds);
    std::uint32_t seed = first, failed = 0;
    while ((sessions == 0 || seed < first + sessions) && (seconds == 0 || Clock::now() < end))
        failed += !endsWell(seed++, argc, argv);
    std::printf("monkey: of the sessions with the seeds %u to %u, %u failed\n", first, seed - 1,
                failed);
    return failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
