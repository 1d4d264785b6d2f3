#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cassert>
#include <cerrno>
#include <csignal>

#include "desktop/system_signals.h"

namespace orvanta::desktop {

namespace {

constexpr std::array endingSignals{SIGTERM, SIGHUP, SIGINT};

// A handler reaches nothing but what is global: the pipe that carries the signals' numbers.
std::array<int, 2> pipeEnds{-1, -1};

void passOn(int signal) {
    const int formerError = errno;
    const auto byte = static_cast<char>(signal);
    (void)!::write(pipeEnds[1], &byte, 1);  // a full pipe holds enough of them already
    errno = formerError;
}

void handle(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

}  // namespace

SystemSignals::SystemSignals(std::function<void()> end, std::function<void()> raise)
    : m_end(std::move(end)), m_raise(std::move(raise)) {
    assert(pipeEnds[0] < 0);
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { take(); });
    for (const int signal : endingSignals) handle(signal, passOn);
    handle(raiseSignal(), passOn);
}

SystemSignals::~SystemSignals() {
    for (const int signal : endingSignals) handle(signal, SIG_DFL);
    handle(raiseSignal(), SIG_IGN);  // a late one is not to end the program
    for (int& end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}

int SystemSignals::raiseSignal() { return SIGUSR1; }

void SystemSignals::take() {
    char signal = 0;
    while (::read(pipeEnds[0], &signal, 1) == 1) (signal == raiseSignal() ? m_raise : m_end)();
}

}  // namespace orvanta::desktop
