#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "driver.h"
#include "memory_disk.h"
#include "target.h"

namespace orvanta::fuzz {

/// The whole program on a disk in memory, behind the toolkit-free view; it has not been started.
/// The program's folder is "app", the documents folder "docs". Settings are forgotten.
class FuzzedProgram {
public:
    FuzzedProgram() { disk.folders = {"app", "app/System", "docs"}; }

    driver::Json answerTo(const std::string& line) { return m_driver.answer(line); }
    Program& program() { return m_driver.program(); }
    FrmMain& form() { return program().frmMain; }

    test::MemoryDisk disk;

private:
    std::unique_ptr<driver::Stage> m_stage = driver::makeModelStage();
    driver::Driver m_driver{*m_stage, disk, {"app", "docs", "/dev/null"}};
};

/// The number of the failure that an act ends with; 0 for none.
template <class Act>
int failureOf(Act act) {
    try {
        act();
        return 0;
    } catch (const Failure& failure) {
        return failure.number;
    }
}

/// True for one of the failures, or for none at all.
inline bool isNoneOr(std::initializer_list<ErrorNumber> expected, int failure) {
    bool found = failure == 0;
    for (const ErrorNumber number : expected) found = found || failure == static_cast<int>(number);
    return found;
}

/// The texts of a list, from the first row to the last.
std::vector<std::string> textsOf(const StatementList& list);

/// Requires of each of the fourteen lists that no key stands twice, that a row is found by its key
/// where it stands, and that the selected row is one of its rows.
void requireSoundLists(const FrmMain& form);

/// The same bytes with the line ends of another system.
std::string withLineEnds(std::string_view bytes, std::string_view end);

}  // namespace orvanta::fuzz
