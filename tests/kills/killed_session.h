#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bench.h"
#include "driver_process.h"
#include "random_lines.h"
#include "temporary_folder.h"

namespace orvanta::kills {

/// What a list held: its name and, from the first row to the last, its texts.
using Statements = std::map<std::string, std::vector<std::string>>;

/// Files by path, with their bytes.
using Files = std::map<std::string, std::string>;

/// Where the kill met the last line.
enum class Moment { NothingWritten, Amid, AllWritten };

/// A session of made-up lines, played by the test driver and by the same program in memory, line
/// for line. Its process is killed at a random moment of its last line, and another one started.
class KilledSession {
public:
    KilledSession(std::string driver, std::uint32_t seed);

    /// Empty if nothing was lost; else what was, and where.
    std::string run();

    Moment moment() const { return m_moment; }
    /// True if the kill left the new file of a save that was under way.
    bool leftAFile() const { return m_leftAFile; }
    /// True if there were statements to bring back at the next start.
    bool broughtBack() const { return m_broughtBack; }

private:
    /// The program in memory, as the driver's process should be.
    struct Twin {
        explicit Twin(const std::string& folder);

        FrmMain& form() { return player.program().frmMain; }

        test::MemoryDisk disk;
        std::unique_ptr<driver::Stage> stage = driver::makeModelStage();
        driver::Driver player;
    };

    /// What lies on the disk, and what stood in the lists when each copy was made.
    struct Standing {
        Files files;
        std::map<std::string, Statements> copied;  // by the path of the copy
    };

    std::string play();
    std::string playLine(const std::string& line);
    void noteCopies();
    void killAmid(const std::string& line);
    void killByTime(const std::string& line);
    void killByCall(const std::string& line);
    std::string findLoss();
    std::string fileThatIsNeither(const Files& found) const;
    std::string startAnew(const Files& found);
    Statements expectedFrom(const Files& found) const;
    Files filesNow();

    const std::string m_driver;
    test::TemporaryFolder m_folder{test::memoryFolder()};
    RandomLines m_lines;
    Twin m_twin;
    std::unique_ptr<scenarios::DriverProcess> m_process;
    std::chrono::nanoseconds m_lastTick{500'000};
    Standing m_before, m_after;  // of the last line
    Moment m_moment = Moment::NothingWritten;
    bool m_leftAFile = false, m_broughtBack = false;
};

}  // namespace orvanta::kills
