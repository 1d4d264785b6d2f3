#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/frm_main.h"
#include "core/question_banks.h"
#include "core/statement_kind.h"
#include "view/platform.h"

namespace orvanta {

inline constexpr std::string_view brainstormTemporaryName = "brainstorm.tmp",
                                  analyzeTemporaryName = "analyze.tmp";

/// One run of the program.
struct Program {
    /// `appPath`: the folder of the program file. `scratchPath`: where the temporary files and
    /// the System folder live, the same folder wherever that can be written. Neither ends in a
    /// separator. The platform must outlive the program.
    Program(Platform& platform, std::string appPath, std::string scratchPath);

    Platform& platform;
    const std::string appPath, scratchPath;
    std::string workFolder;
    QuestionBanks questions;
    FrmMain frmMain;

    std::string brainstormTemporaryFile() const {
        return scratchPath + pathSeparator + std::string(brainstormTemporaryName);
    }
    std::string analyzeTemporaryFile() const {
        return scratchPath + pathSeparator + std::string(analyzeTemporaryName);
    }
};

/// The next key of a section, "S", "W", "O" or "T": its letter and a number from 1. Empty for
/// any other section. Fails with Overflow behind 2,147,483,647.
std::string getNextKey(Program& program, std::string_view section);
std::string getNextKey(Program& program, StatementKind kind);

/// The last number handed out for a kind.
std::int32_t& keyCount(FrmMain& form, StatementKind kind);

void resetKeys(Program& program);
void clearJournal(Program& program);
void clearBrainstorm(Program& program);
void clearAnalye(Program& program);

}  // namespace orvanta
