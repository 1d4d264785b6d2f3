#pragma once

#include <string>

#include "core/frm_main.h"

namespace orvanta {

/// What a list says where nothing has come into it yet: what comes there, and how. Windows-1252;
/// empty where there is nothing to say.
std::string hintIn(const FrmMain& form, const StatementList& list);
/// The same for the list of source files.
std::string hintIn(const ListBox& files);

}  // namespace orvanta
