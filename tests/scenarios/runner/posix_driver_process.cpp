#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <utility>

#include "driver_process.h"

namespace orvanta::scenarios {

namespace {

/// What the child does instead of returning.
[[noreturn]] void becomeDriver(const std::vector<std::string>& command,
                               const std::filesystem::path& home, int input, int output) {
    const int errors = ::open((home / "driver.err").c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    ::dup2(input, 0);
    ::dup2(output, 1);
    if (errors >= 0) ::dup2(errors, 2);
    ::setenv("HOME", home.c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", home.c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", home.c_str(), 1);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    std::vector<char*> words;
    words.reserve(command.size() + 1);
    for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    ::execv(words[0], words.data());
    ::_exit(127);
}

std::string endOf(int status) {
    if (WIFSIGNALED(status)) return "killed by signal " + std::to_string(WTERMSIG(status));
    return "with exit code " + std::to_string(WEXITSTATUS(status));
}

int millisecondsTo(Deadline deadline) {
    using namespace std::chrono;
    const auto left = duration_cast<milliseconds>(deadline - steady_clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

}  // namespace

DriverProcess::DriverProcess(const std::vector<std::string>& command,
                             const std::filesystem::path& home, Deadline deadline)
    : m_errors(home / "driver.err"), m_deadline(deadline) {
    int input[2], output[2];
    if (::pipe2(input, O_CLOEXEC) != 0 || ::pipe2(output, O_CLOEXEC) != 0)
        throw Broken("no pipe can be made");
    m_child = ::fork();
    if (m_child < 0) throw Broken("no process can be made");
    if (m_child == 0) becomeDriver(command, home, input[0], output[1]);
    ::close(input[0]);
    ::close(output[1]);
    m_toChild = input[1];
    m_fromChild = output[0];
}

DriverProcess::~DriverProcess() {
    if (m_toChild >= 0) ::close(m_toChild);
    ::close(m_fromChild);
    if (m_child < 0) return;
    ::kill(m_child, SIGKILL);
    ::waitpid(m_child, nullptr, 0);
}

void DriverProcess::send(const std::string& line) {
    const std::string bytes = line + '\n';
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = ::write(m_toChild, bytes.data() + sent, bytes.size() - sent);
        if (count <= 0) breakOff("the driver reads no more");
        sent += static_cast<std::size_t>(count);
    }
}

void DriverProcess::readMore() {
    pollfd waiting{m_fromChild, POLLIN, 0};
    if (::poll(&waiting, 1, millisecondsTo(m_deadline)) == 0) breakOff("no answer in time");
    char bytes[65536];
    const ssize_t count = ::read(m_fromChild, bytes, sizeof bytes);
    if (count <= 0) endOfAnswers();
    m_unread.append(bytes, static_cast<std::size_t>(count));
}

void DriverProcess::finish(int expectedExitCode) {
    ::close(m_toChild);
    m_toChild = -1;
    pollfd waiting{m_fromChild, POLLIN, 0};
    char unasked;
    if (::poll(&waiting, 1, millisecondsTo(m_deadline)) == 0) breakOff("the driver does not end");
    if (!m_unread.empty() || ::read(m_fromChild, &unasked, 1) > 0)
        breakOff("the driver says more than it was asked");
    int status = 0;
    ::waitpid(m_child, &status, 0);
    m_child = -1;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != expectedExitCode)
        throw Broken("the driver ended " + endOf(status) + "\n" + errorsSaid());
}

void DriverProcess::kill() {
    ::kill(m_child, SIGKILL);
    ::waitpid(std::exchange(m_child, -1), nullptr, 0);
}

void DriverProcess::endOfAnswers() {
    int status = 0;
    ::waitpid(std::exchange(m_child, -1), &status, 0);
    throw Broken("the driver ended " + endOf(status) + " instead of answering\n" + errorsSaid());
}

void DriverProcess::breakOff(const std::string& reason) {
    ::kill(m_child, SIGTERM);
    throw Broken(reason + "\n" + errorsSaid());
}

}  // namespace orvanta::scenarios
