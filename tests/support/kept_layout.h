#pragma once

#include <string>

#include "view/control.h"

namespace orvanta::test {

/// Expects a form to be laid out as tests/data/layouts/NAME.txt tells, a line for each control.
/// scripts/accept_outputs.sh keeps what it is like now.
void expectKeptLayout(const std::string& name, Twips width, Twips height,
                      const ControlSet& controls);

}  // namespace orvanta::test
