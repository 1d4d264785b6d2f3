#include "reports/word_report.h"

#include "core/failures.h"
#include "core/messages.h"
#include "core/workspace.h"

namespace orvanta {

void generateWordReport(Program& program, const std::string& analyzeFile,
                        const std::string& targetFile) {
    if (!fileExists(program, analyzeFile))
        return refuse(program.platform.messages, "File does not exists.");
    const CarryOn step;
    program.platform.modalForms.setWaitCursor(true);
    step([&] { program.platform.wordProcessors.writeReport(analyzeFile, targetFile); });
    program.platform.modalForms.setWaitCursor(false);
}

}  // namespace orvanta
