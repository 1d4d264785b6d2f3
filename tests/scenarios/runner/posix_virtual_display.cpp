#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "driver_process.h"
#include "virtual_display.h"

namespace orvanta::scenarios {

namespace {

constexpr int startMilliseconds = 30'000;

/// The server itself picks a free number and tells it, so that servers started at once never
/// take each other's.
[[noreturn]] void becomeServer(int numberOut) {
    ::dup2(::open("/dev/null", O_RDWR), 0);
    ::dup2(0, 1);
    ::dup2(0, 2);
    const std::string number = std::to_string(::dup(numberOut));
    ::execlp("Xvfb", "Xvfb", "-displayfd", number.c_str(), "-screen", "0", "1280x1024x24",
             "-noreset", "-nolisten", "tcp", static_cast<char*>(nullptr));
    ::_exit(127);
}

std::string lineFrom(int input) {
    std::string line;
    char character;
    pollfd waiting{input, POLLIN, 0};
    while (::poll(&waiting, 1, startMilliseconds) > 0 && ::read(input, &character, 1) == 1) {
        if (character == '\n') return line;
        line += character;
    }
    return {};
}

}  // namespace

VirtualDisplay::VirtualDisplay() {
    int number[2];
    if (::pipe2(number, O_CLOEXEC) != 0) throw Broken("no pipe can be made");
    m_server = ::fork();
    if (m_server < 0) throw Broken("no process can be made");
    if (m_server == 0) becomeServer(number[1]);
    ::close(number[1]);
    const std::string display = lineFrom(number[0]);
    ::close(number[0]);
    if (display.empty()) throw Broken("Xvfb does not start");
    ::setenv("DISPLAY", (":" + display).c_str(), 1);
    ::unsetenv("WAYLAND_DISPLAY");
}

VirtualDisplay::~VirtualDisplay() {
    ::kill(m_server, SIGTERM);
    ::waitpid(m_server, nullptr, 0);
}

}  // namespace orvanta::scenarios
