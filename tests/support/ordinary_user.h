#pragma once

#include <sys/wait.h>
#include <unistd.h>

namespace orvanta::test {

/// What an act comes to, from 0 to 254, when it is done by somebody whom permissions bind: the
/// system's nobody where the test runs as root, whom they don't. It runs in a process of its own.
template <class Act>
int asOrdinaryUser(Act act) {
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr int nobody = 65534;
        if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0)) ::_exit(255);
        ::_exit(act());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace orvanta::test
