// How long programs take from their start to their first window on an X display that is theirs
// alone, each in turn and again and again:
//   orvanta_start_benchmark ROUNDS PROGRAM...
// Prints a line for each program: its best time on the processor and its best elapsed time, in
// milliseconds, its least memory (PSS) in KiB, its name.

#include <X11/Xlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <string>
#include <vector>

namespace {

struct Start {
    double onProcessor, elapsed;  // milliseconds
    long memory;                  // KiB
};

std::filesystem::path procFolder(pid_t process) {
    return std::filesystem::path("/proc") / std::to_string(process);
}

/// What all threads of a process have had of the processor so far, in milliseconds.
double processorTime(pid_t process) {
    double nanoseconds = 0;
    for (const auto& thread : std::filesystem::directory_iterator(procFolder(process) / "task")) {
        double ofThread = 0;
        std::ifstream(thread.path() / "schedstat") >> ofThread;
        nanoseconds += ofThread;
    }
    return nanoseconds / 1e6;
}

/// The memory of a process, what it shares counted in part.
long proportionalMemory(pid_t process) {
    std::ifstream file(procFolder(process) / "smaps_rollup");
    std::string word;
    while (file >> word && word != "Pss:") {
    }
    long kibibytes = 0;
    file >> kibibytes;
    return kibibytes;
}

void waitForWindow(Display& display) {
    XEvent event;
    do XNextEvent(&display, &event);
    while (event.type != MapNotify);
}

Start startOnce(Display& display, const char* program) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point begin = Clock::now();
    const pid_t process = ::fork();
    if (process == 0) {
        ::execl(program, program, nullptr);
        ::_exit(EXIT_FAILURE);
    }
    waitForWindow(display);
    const std::chrono::duration<double, std::milli> elapsed = Clock::now() - begin;
    const Start start{processorTime(process), elapsed.count(), proportionalMemory(process)};
    ::kill(process, SIGTERM);
    ::waitpid(process, nullptr, 0);
    XSync(&display, True);
    return start;
}

}  // namespace

int main(int argc, char** argv) {
    Display* display = XOpenDisplay(nullptr);
    if (!display || argc < 3) return EXIT_FAILURE;
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    const std::vector<const char*> programs(argv + 2, argv + argc);
    constexpr double never = std::numeric_limits<double>::max();
    std::vector<Start> best(programs.size(), {never, never, std::numeric_limits<long>::max()});
    for (int round = std::stoi(argv[1]); round > 0; --round) {
        for (std::size_t i = 0; i < programs.size(); ++i) {
            const Start start = startOnce(*display, programs[i]);
            best[i] = {std::min(best[i].onProcessor, start.onProcessor),
                       std::min(best[i].elapsed, start.elapsed),
                       std::min(best[i].memory, start.memory)};
        }
    }
    for (std::size_t i = 0; i < programs.size(); ++i)
        std::cout << best[i].onProcessor << ' ' << best[i].elapsed << ' ' << best[i].memory << ' '
                  << programs[i] << '\n';
    XCloseDisplay(display);
}
