#include "sessionfiles/merging.h"

#include <array>
#include <vector>

#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/section_tags.h"
#include "core/text.h"
#include "core/workspace.h"
#include "sessionfiles/section_writer.h"
#include "view/within_memory.h"

namespace orvanta {

namespace {

// Names and steps of the sources are no part of a merged file.
constexpr std::array knownSections{Section::Module, Section::Strength, Section::Weakness,
                                   Section::Opportunity, Section::Threats};

struct Merged {
    std::string moduleWord;
    std::array<std::vector<std::string>, 4> statements;
};

void takeData(Merged& merged, Section section, std::string_view line) {
    if (section == Section::Module) {
        merged.moduleWord = trimBlanks(line);
        return;
    }
    // Statements of blanks only are dropped.
    const std::string_view text = trimBlanks(line);
    if (text.empty()) return;
    merged.statements[indexOf(kindOfSection(section)->kind)].emplace_back(text);
}

void readSource(std::string_view bytes, Merged& merged) {
    OpenSection open;
    LineSource lines(bytes);
    while (const auto line = lines.next())
        if (const auto section = open.takeLine(trimBlanks(*line), knownSections))
            takeData(merged, *section, *line);
}

std::string bytesOf(const Merged& merged) {
    SectionWriter writer;
    writer.section(Section::Module, merged.moduleWord);
    for (const KindControls& controls : kindControls) {
        writer.open(controls.section);
        for (const std::string& statement : merged.statements[indexOf(controls.kind)])
            writer.line(statement);
        writer.close(controls.section);
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
        form.cd.fileName.clear();
        form.cd.showSave();
        const std::string target = form.cd.fileName;
        if (fileExists(program, target) &&
            !mayOverwrite(program.platform.messages, std::string(appTitle)))
            return;
        program.platform.disk.replace(target, mergedBytes(program));
        inform(program.platform.messages, "Brainstorm files merged.");
    });
}

}  // namespace orvanta
