#pragma once

#include <string>

#include "core/session_state.h"

namespace orvanta {

/// Writes the correlation of an analyze file to the System folder and opens it in the browser.
/// Texts go into the page as they stand, nothing is escaped. Fails where a file can't be read or
/// written, and with Overflow beyond 32,767 opportunities and threats; the page then ends where
/// it broke off, behind its head at least, and is not opened.
void generateHtmlReport(Program& program, const std::string& analyzeFile);

}  // namespace orvanta
