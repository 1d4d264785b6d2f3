#include <windows.h>

#include <utility>

#include "driver_process.h"

namespace orvanta::scenarios {

namespace {

SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};

/// A pipe of which the child gets one end.
struct Pipe {
    Pipe() {
        if (!CreatePipe(&out, &in, &inheritable, 0)) throw Broken("no pipe can be made");
    }
    HANDLE keep(HANDLE end) const {
        SetHandleInformation(end, HANDLE_FLAG_INHERIT, 0);
        return end;
    }

    HANDLE out = nullptr, in = nullptr;
};

/// None of the words holds a quote.
std::wstring commandLine(const std::vector<std::string>& command) {
    std::wstring line;
    for (const std::string& word : command)
        line += L'"' + std::filesystem::path(word).wstring() + L"\" ";
    return line;
}

HANDLE started(std::wstring line, HANDLE input, HANDLE output, HANDLE errors) {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = input;
    start.hStdOutput = output;
    start.hStdError = errors;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &start, &process))
        throw Broken("the driver can't be started");
    CloseHandle(process.hThread);
    return process.hProcess;
}

std::string endOf(HANDLE child) {
    DWORD code = 0;
    WaitForSingleObject(child, INFINITE);
    GetExitCodeProcess(child, &code);
    return "with exit code " + std::to_string(code);
}

DWORD millisecondsTo(Deadline deadline) {
    using namespace std::chrono;
    const auto left = duration_cast<milliseconds>(deadline - steady_clock::now()).count();
    return left > 0 ? static_cast<DWORD>(left) : 0;
}

}  // namespace

DriverProcess::DriverProcess(const std::vector<std::string>& command,
                             const std::filesystem::path& home, Deadline deadline)
    : m_errors(home / "driver.err"), m_deadline(deadline) {
    const Pipe input, output;
    m_toChild = input.keep(input.in);
    m_fromChild = output.keep(output.out);
    const HANDLE errors = CreateFileW(m_errors.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ,
                                      &inheritable, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    m_child = started(commandLine(command), input.out, output.in, errors);
    for (const HANDLE ofChild : {input.out, output.in, errors}) CloseHandle(ofChild);
    m_watch = std::jthread([this] {
        if (WaitForSingleObject(m_child, millisecondsTo(m_deadline)) != WAIT_TIMEOUT) return;
        m_late = true;
        TerminateProcess(m_child, 1);
    });
}

DriverProcess::~DriverProcess() {
    kill();
    if (m_toChild != none) CloseHandle(m_toChild);
    CloseHandle(m_fromChild);
    CloseHandle(m_child);
}

void DriverProcess::send(const std::string& line) {
    const std::string bytes = line + '\n';
    DWORD sent = 0;
    if (!WriteFile(m_toChild, bytes.data(), static_cast<DWORD>(bytes.size()), &sent, nullptr) ||
        sent != bytes.size())
        breakOff("the driver reads no more");
}

void DriverProcess::readMore() {
    char bytes[65536];
    DWORD count = 0;
    if (!ReadFile(m_fromChild, bytes, sizeof bytes, &count, nullptr) || count == 0) endOfAnswers();
    m_unread.append(bytes, count);
}

void DriverProcess::finish(int expectedExitCode) {
    CloseHandle(std::exchange(m_toChild, none));
    char unasked;
    DWORD count = 0;
    const bool saysMore = ReadFile(m_fromChild, &unasked, 1, &count, nullptr) && count > 0;
    if (!m_unread.empty() || saysMore) breakOff("the driver says more than it was asked");
    const std::string end = endOf(m_child);
    if (m_late) breakOff("the driver does not end");
    if (end != "with exit code " + std::to_string(expectedExitCode))
        throw Broken("the driver ended " + end + "\n" + errorsSaid());
}

void DriverProcess::kill() {
    TerminateProcess(m_child, 1);
    WaitForSingleObject(m_child, INFINITE);
    if (m_watch.joinable()) m_watch.join();
}

void DriverProcess::endOfAnswers() {
    if (m_late) breakOff("no answer in time");
    breakOff("the driver ended " + endOf(m_child) + " instead of answering");
}

void DriverProcess::breakOff(const std::string& reason) {
    throw Broken(reason + "\n" + errorsSaid());
}

}  // namespace orvanta::scenarios
