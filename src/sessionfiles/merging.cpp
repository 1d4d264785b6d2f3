#include "sessionfiles/merging.h"

#include <array>
#include <vector>

#include "core/constants.h"
#include "core/failures.h"
#include "core/files.h"
#include "core/kind_controls.h"
#include "core/messages.h"
#include "sessionfiles/section_reader.h"
#include "sessionfiles/section_writer.h"
#include "sessionfiles/session_disk.h"
#include "view/within_memory.h"

namespace orvanta {

namespace {

// Names and steps of the sources are no part of a merged file.
constexpr std::array mergedSections{Section::Module, Section::Strength, Section::Weakness,
                                    Section::Opportunity, Section::Threats};

struct Merged {
    std::string moduleWord;
    PerKind<std::vector<std::string>> statements;
};

void readSource(std::string_view bytes, Merged& merged) {
    readSections(bytes, mergedSections,
                 [&](Section section, std::string_view, std::string_view trimmed) {
                     if (section == Section::Module)
                         merged.moduleWord = trimmed;
                     else if (!trimmed.empty())  // statements of blanks only are dropped
                         merged.statements[*kindOfSection(section)].emplace_back(trimmed);
                 });
}

std::string bytesOf(const Merged& merged) {
    SectionWriter writer;
    writer.section(Section::Module, merged.moduleWord);
    for (const StatementKind kind : statementKinds) {
        writer.open(kindControls[kind].section);
        for (const std::string& statement : merged.statements[kind]) writer.line(statement);
        writer.close(kindControls[kind].section);
    }
    return writer.finish();
}

std::string mergedBytes(const Program& program) {
    return withinMemory([&] {
        Merged merged;
        for (const std::string& source : program.frmMain.lstFiles.items())
            if (fileExists(program, source)) readSource(program.platform.disk.read(source), merged);
        return bytesOf(merged);
    });
}

}  // namespace

void mergeBrainstormFiles(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        const std::string target = form.cd.askToSave();
        if (fileExists(program, target) &&
            !mayOverwrite(program.platform.messages, std::string(appTitle)))
            return;
        writeNamedSession(program.platform, target, mergedBytes(program));
        inform(program.platform.messages, "Brainstorm files merged.");
    });
}

}  // namespace orvanta
