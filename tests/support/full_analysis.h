#pragma once

#include "bench.h"

namespace orvanta::test {

/// A row line of an analyze file.
inline std::string rowLine(const std::string& key, const std::string& label,
                           const std::string& text) {
    return key + "<!-SWOT-!>" + label + "<!-SWOT-!>" + text;
}

/// The lines of an analyze file with something in each section.
inline const Texts fullAnalysis{"<MODULE>",
                                "MP",
                                "</MODULE>",
                                "<STRENGTH>",
                                rowLine("S2", "[Dana Reyes]: ", "Loyal customers"),
                                rowLine("S1", "[Lee Park]: ", "Strong brand"),
                                "</STRENGTH>",
                                "<WEAKNESS>",
                                rowLine("W1", "", "Slow delivery"),
                                "</WEAKNESS>",
                                "<OPPORTUNITY>",
                                rowLine("O1", "[Lee Park]: ", "New market"),
                                "</OPPORTUNITY>",
                                "<THREATS>",
                                rowLine("T1", "[Dana Reyes]: ", "New competitor"),
                                "</THREATS>",
                                "<OPPORTUNITYMAPPING>",
                                rowLine("O1", "[Lee Park]: ", "New market"),
                                rowLine("O1-S2", "[Dana Reyes]: ", "Loyal customers"),
                                rowLine("O1-W1", "", "Slow delivery"),
                                "</OPPORTUNITYMAPPING>",
                                "<THREATMAPPING>",
                                rowLine("T1", "[Dana Reyes]: ", "New competitor"),
                                "</THREATMAPPING>"};

}  // namespace orvanta::test
