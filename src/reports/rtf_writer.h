#pragma once

#include <string>

#include "reports/document_model.h"

namespace orvanta {

/// The document as RTF, 7-bit, in a form that the usual readers take alike.
std::string rtfBytes(const Document& document);

}  // namespace orvanta
