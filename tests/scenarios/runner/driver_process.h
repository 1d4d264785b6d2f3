#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvanta::scenarios {

/// The scenario can't be played to its end: the driver crashed, hung or can't be started.
struct Broken : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Deadline = std::chrono::steady_clock::time_point;

/// One run of the test driver as a child process that answers lines.
class DriverProcess {
public:
    /// Starts it in `home`, which also takes what it says on its error stream (driver.err).
    DriverProcess(const std::vector<std::string>& command, const std::filesystem::path& home,
                  Deadline deadline);
    DriverProcess(const DriverProcess&) = delete;
    DriverProcess& operator=(const DriverProcess&) = delete;
    /// A child that still runs is killed.
    ~DriverProcess();

    void send(const std::string& line);
    /// The next line of the driver.
    std::string receive();
    /// Closes the driver's input and waits for its end.
    void finish(int expectedExitCode);
    pid_t pid() const { return m_child; }
    /// Ends it at once, whatever it does.
    void kill();

private:
    void readMore();
    [[noreturn]] void endOfAnswers();
    [[noreturn]] void breakOff(const std::string& reason);

    std::filesystem::path m_errors;
    Deadline m_deadline;
    pid_t m_child = -1;
    int m_toChild = -1, m_fromChild = -1;
    std::string m_unread;
};

}  // namespace orvanta::scenarios
