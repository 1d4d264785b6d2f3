#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <string>

#include "ordinary_user.h"

namespace orvanta::test {

/// How a process of the test's own ended, and what it told before.
struct Ended {
    int status = -1;  // as waitpid gives it
    std::string told;

    bool isKilled() const { return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL; }
    bool isWell() const { return WIFEXITED(status) && WEXITSTATUS(status) == 0; }
};

/// Runs an act that gives a text in a process of its own, which is a copy of this one.
template <class Act>
Ended inChild(Act act) {
    std::array<int, 2> ends{};
    Ended ended;
    if (::pipe(ends.data()) != 0) return ended;
    const pid_t child = ::fork();
    if (child == 0) {
        const std::string told = act();
        endChild(::write(ends[1], told.data(), told.size()) < 0 ? 1 : 0);
    }
    ::close(ends[1]);
    std::array<char, 4096> taken;
    for (ssize_t size; (size = ::read(ends[0], taken.data(), taken.size())) > 0;)
        ended.told.append(taken.data(), static_cast<std::size_t>(size));
    ::close(ends[0]);
    ::waitpid(child, &ended.status, 0);
    return ended;
}

}  // namespace orvanta::test
