#pragma once

#include <sys/wait.h>
#include <unistd.h>

// Part of the library that counts the lines for scripts/coverage.sh; null in any other build.
extern "C" [[gnu::weak]] void __gcov_dump();  // NOLINT(bugprone-reserved-identifier)

namespace orvanta::test {

/// The system's user for whom nothing is meant.
constexpr unsigned nobody = 65534;

/// Becomes somebody whom permissions bind: nobody where the test runs as root, whom they don't.
/// False where that fails.
inline bool becomeOrdinaryUser() {
    return ::geteuid() != 0 ||
           (::setresgid(nobody, nobody, 0) == 0 && ::setresuid(nobody, nobody, 0) == 0);
}

/// Ends a process that a test forked off, without what a test program does at its end. The lines
/// that it ran are counted, as the user who started the tests.
[[noreturn]] inline void endChild(int code) {
    uid_t real = 0, effective = 0, former = 0;
    ::getresuid(&real, &effective, &former);
    if (__gcov_dump && ::seteuid(former) == 0) __gcov_dump();
    ::_exit(code);
}

/// What an act comes to, from 0 to 254, when it is done by an ordinary user. It runs in a process
/// of its own.
template <class Act>
int asOrdinaryUser(Act act) {
    const pid_t child = ::fork();
    if (child == 0) endChild(becomeOrdinaryUser() ? act() : 255);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace orvanta::test
