#pragma once

#include <string>

#include "core/session_state.h"
#include "reports/report_source.h"

namespace orvanta {

/// The table of a correlation report. Texts go into it as they stand, nothing is escaped. Fails
/// with Overflow beyond 32,767 opportunities and threats.
std::string htmlReportBytes(const ReportLists& lists);

/// Writes the correlation of an analyze file to the System folder and opens it in the browser.
/// Fails where a file can't be read or written.
void generateHtmlReport(Program& program, const std::string& analyzeFile);

}  // namespace orvanta
