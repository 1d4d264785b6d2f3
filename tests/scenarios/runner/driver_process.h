#pragma once

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#ifdef _WIN32
#include <atomic>
#include <thread>
#endif

namespace orvanta::scenarios {

/// The scenario can't be played to its end: the driver crashed, hung or can't be started.
struct Broken : std::runtime_error {
    using std::runtime_error::runtime_error;
};

using Deadline = std::chrono::steady_clock::time_point;

/// One run of the test driver as a child process that answers lines.
class DriverProcess {
public:
#ifdef _WIN32
    using Id = void*;
    static constexpr Id none = nullptr;
#else
    using Id = int;
    static constexpr Id none = -1;
#endif

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
    Id pid() const { return m_child; }
    /// Ends it at once, whatever it does.
    void kill();

private:
    void readMore();
    std::string errorsSaid() const;
    [[noreturn]] void endOfAnswers();
    [[noreturn]] void breakOff(const std::string& reason);

    std::filesystem::path m_errors;
    Deadline m_deadline;
    Id m_child = none, m_toChild = none, m_fromChild = none;
    std::string m_unread;
#ifdef _WIN32
    std::atomic<bool> m_late = false;
    std::jthread m_watch;  // ends a child that is late, and with it the waiting for its answer
#endif
};

}  // namespace orvanta::scenarios
