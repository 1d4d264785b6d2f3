#pragma once

#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <vector>

#include "core/session_state.h"

namespace orvanta::kills {

inline const std::string tick = R"({"do":"tick"})";

/// The lines of a person who does anything, one from each seed, the same on every machine. They
/// fit what is on screen, mostly; those that don't are refused by the driver.
class RandomLines {
public:
    /// `folder`: holds the folder "documents" with "a.bsm" and "b.bsm".
    RandomLines(std::uint32_t seed, std::string folder);

    /// From 0 to limit - 1.
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    /// The next line, fit for what is on screen now.
    std::string next(FrmMain& form);
    /// Lines that end with one that writes a file, if there is something to write.
    std::vector<std::string> toAWrite(FrmMain& form);

private:
    using Lines = std::vector<std::string>;

    std::string textOf(int number) const;
    std::string answerFile(const std::string& name) const;
    Lines openAModule();
    Lines anything(FrmMain& form);
    Lines enterAStatement(FrmMain& form);
    Lines changeAStatement(FrmMain& form);
    Lines map(FrmMain& form);
    Lines leaveWithASave(FrmMain& form);

    const std::string m_folder;
    std::mt19937 m_random;
    std::deque<std::string> m_next;
};

}  // namespace orvanta::kills
