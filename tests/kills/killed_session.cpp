#include "killed_session.h"

#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "core/kind_controls.h"
#include "core/statement_lists.h"
#include "core/text.h"
#include "state.h"

namespace orvanta::kills {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int mostCalls = 40;  // their beginnings and ends

const std::string start = R"({"do":"start"})";

/// Stops a child at its calls of the system, so that a kill meets any of them, however busy the
/// machine is. The child waits for a line.
class CallByCall {
public:
    explicit CallByCall(pid_t child) : m_child(child) {
        if (::ptrace(PTRACE_SEIZE, child, nullptr, PTRACE_O_TRACESYSGOOD) != 0 ||
            ::ptrace(PTRACE_INTERRUPT, child, nullptr, nullptr) != 0)
            throw scenarios::Broken("the driver can't be traced");
        ::waitpid(child, nullptr, 0);
    }

    /// Goes on to the beginning or the end of the next call. False if it is the one that answers.
    bool next() {
        int status = 0;
        ::ptrace(PTRACE_SYSCALL, m_child, nullptr, nullptr);
        if (::waitpid(m_child, &status, 0) != m_child || !WIFSTOPPED(status))
            throw scenarios::Broken("the driver ended by itself");
        __ptrace_syscall_info call{};
        ::ptrace(PTRACE_GET_SYSCALL_INFO, m_child, sizeof call, &call);
        return call.op != PTRACE_SYSCALL_INFO_ENTRY || call.entry.nr != SYS_write ||
               call.entry.args[0] != STDOUT_FILENO;
    }

private:
    const pid_t m_child;
};

const std::string sourceFile = test::brainstormFile("Dana", "GBS", {"Own fleet", "Brand"}, {"Slow"},
                                                    {"Export", "Online"}, {"Rivals"});

driver::Folders foldersIn(const std::string& folder, const std::string& settings) {
    return {folder + "/app", folder + "/documents", settings};
}

std::unique_ptr<scenarios::DriverProcess> startedIn(const std::string& driver,
                                                    const std::string& folder) {
    const std::vector<std::string> command{driver,
                                           "--app",
                                           folder + "/app",
                                           "--documents",
                                           folder + "/documents",
                                           "--settings",
                                           folder + "/settings"};
    return std::make_unique<scenarios::DriverProcess>(command, folder,
                                                      Clock::now() + std::chrono::minutes(2));
}

Statements statementsOf(const FrmMain& form) {
    Statements statements;
    for (const ListMember member : statementLists)
        for (const test::ShownRow& row : test::rowsOf(form.*member))
            statements[(form.*member).name()].push_back(row.text);
    return statements;
}

Statements statementsOf(const driver::Json& state) {
    Statements statements;
    for (const auto& [name, list] : state["lists"].items())
        for (const driver::Json& row : list["rows"])
            statements[name].push_back(windows1252From(row["text"].get<std::string>()));
    return statements;
}

/// What a brainstorm file makes of a text: none but threats lose their escapes.
std::string readBack(const std::string& list, const std::string& text) {
    const std::string trimmed(trimBlanks(text));
    return list == "lvBThreat" ? trimmed : replaceAll(trimmed, "&lt;", "<");
}

Statements readBack(const Statements& standing, bool ofBrainstorm) {
    Statements read;
    for (const auto& [list, texts] : standing)
        for (const std::string& text : texts)
            if (list.starts_with("lvB") == ofBrainstorm)
                read[list].push_back(ofBrainstorm ? readBack(list, text)
                                                  : std::string(trimBlanks(text)));
    return read;
}

}  // namespace

KilledSession::Twin::Twin(const std::string& folder)
    : player(*stage, disk, foldersIn(folder, "/dev/null")) {
    disk.folders = {folder + "/app", folder + "/documents"};
    disk.files = {{folder + "/app/gbsquestions.txt", test::bankOf(2)},
                  {folder + "/documents/a.bsm", sourceFile},
                  {folder + "/documents/b.bsm", sourceFile}};
}

KilledSession::KilledSession(std::string driver, std::uint32_t seed)
    : m_driver(std::move(driver)), m_lines(seed, m_folder.path()), m_twin(m_folder.path()) {
    for (const std::string& folder : m_twin.disk.folders) fs::create_directory(folder);
    for (const auto& [path, bytes] : m_twin.disk.files)
        m_folder.write(path.substr(m_folder.path().size() + 1), bytes);
}

std::string KilledSession::run() {
    try {
        m_process = startedIn(m_driver, m_folder.path());
        if (std::string wrong = play(); !wrong.empty()) return wrong;
        return findLoss();
    } catch (const scenarios::Broken& broken) {
        return broken.what();
    }
}

std::string KilledSession::play() {
    for (int lines = 12 + m_lines.below(60); lines > 0; --lines)
        if (std::string wrong = playLine(m_lines.next(m_twin.form())); !wrong.empty()) return wrong;
    std::vector<std::string> last{m_lines.next(m_twin.form())};
    if (m_lines.below(4) != 0) last = m_lines.toAWrite(m_twin.form());
    for (std::size_t i = 0; i + 1 < last.size(); ++i)
        if (std::string wrong = playLine(last[i]); !wrong.empty()) return wrong;
    killAmid(last.back());
    return {};
}

std::string KilledSession::playLine(const std::string& line) {
    const auto sent = Clock::now();
    m_process->send(line);
    const std::string answer = m_process->receive();
    if (line == tick) m_lastTick = Clock::now() - sent;
    const std::string expected = m_twin.player.answer(line).dump();
    noteCopies();
    return answer == expected ? "" : line + " was answered " + answer + ", not " + expected;
}

void KilledSession::noteCopies() {
    Standing& now = m_after;
    const Program& program = m_twin.player.program();
    for (const std::string& copy :
         {program.brainstormTemporaryFile(), program.analyzeTemporaryFile()}) {
        const auto file = m_twin.disk.files.find(copy);
        const auto former = now.files.find(copy);
        if (file == m_twin.disk.files.end())
            now.copied.erase(copy);
        else if (former == now.files.end() || former->second != file->second)
            now.copied[copy] = statementsOf(m_twin.form());
    }
    now.files = m_twin.disk.files;
}

void KilledSession::killAmid(const std::string& line) {
    m_before = m_after;
    m_lines.below(2) != 0 ? killByTime(line) : killByCall(line);
    m_twin.player.answer(line);
    noteCopies();
}

void KilledSession::killByTime(const std::string& line) {
    const auto wait = m_lastTick * m_lines.below(2500) / 1000;
    const auto sent = Clock::now();
    m_process->send(line);
    while (Clock::now() - sent < wait) continue;
    m_process->kill();
}

void KilledSession::killByCall(const std::string& line) {
    CallByCall calls(m_process->pid());
    m_process->send(line);
    for (int left = 1 + m_lines.below(mostCalls); left > 0 && calls.next();) --left;
    m_process->kill();
}

Files KilledSession::filesNow() {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.path())) {
        const std::string path = entry.path().string();
        const std::string name = path.substr(m_folder.path().size() + 1);
        if (!entry.is_regular_file() || name.find('/') == name.npos) continue;
        if (name.find("/.orvanta-") == name.npos)
            files[path] = m_folder.read(name);
        else
            m_leftAFile = true;
    }
    return files;
}

std::string KilledSession::findLoss() {
    const Files found = filesNow();
    m_moment = found == m_before.files  ? Moment::NothingWritten
               : found == m_after.files ? Moment::AllWritten
                                        : Moment::Amid;
    if (std::string wrong = fileThatIsNeither(found); !wrong.empty()) return wrong;
    for (const auto& [copy, statements] : m_before.copied)
        for (const auto& [path, bytes] : m_after.files)
            if (!found.contains(copy) && (!found.contains(path) || found.at(path) != bytes))
                return std::string(copy).append(" went before ").append(path + " was written");
    return startAnew(found);
}

std::string KilledSession::fileThatIsNeither(const Files& found) const {
    const auto isIn = [](const Files& files, const std::string& path, const std::string& bytes) {
        const auto file = files.find(path);
        return file != files.end() && file->second == bytes;
    };
    for (const auto& [path, bytes] : found)
        if (!isIn(m_before.files, path, bytes) && !isIn(m_after.files, path, bytes))
            return std::string(path).append(" is neither the former file nor the new one:\n" +
                                            bytes);
    for (const auto& [path, bytes] : m_before.files)
        if (m_after.files.contains(path) && !found.contains(path)) return path + " is gone";
    return {};
}

/// What is to be in the lists behind the next start: what stood when the copy was made.
Statements KilledSession::expectedFrom(const Files& found) const {
    const Program& program = const_cast<KilledSession*>(this)->m_twin.player.program();
    const std::string brainstorm = program.brainstormTemporaryFile();
    const std::string& copy =
        found.contains(brainstorm) ? brainstorm : program.analyzeTemporaryFile();
    const auto file = found.find(copy);
    if (file == found.end()) return {};
    const auto former = m_before.files.find(copy);
    const bool isFormer = former != m_before.files.end() && former->second == file->second;
    return readBack((isFormer ? m_before : m_after).copied.at(copy), copy == brainstorm);
}

std::string KilledSession::startAnew(const Files& found) {
    m_process = startedIn(m_driver, m_folder.path());
    m_process->send(start);
    m_process->receive();
    m_process->send(R"({"do":"state"})");
    const driver::Json state = driver::Json::parse(m_process->receive())["state"];
    const Statements back = statementsOf(state), expected = expectedFrom(found);
    m_broughtBack = !expected.empty();
    if (back != expected)
        return "back are " +
               driver::Json(back).dump(1, ' ', false, driver::Json::error_handler_t::replace) +
               "\ninstead of " +
               driver::Json(expected).dump(1, ' ', false, driver::Json::error_handler_t::replace);
    return {};
}

}  // namespace orvanta::kills
