#pragma once

#include "reports/document_model.h"

namespace orvanta {

/// The same document with care for where its pages end, as one would take it before printing:
/// what leads to a table stays with it, a row is not torn where it surely fits on a page, and a
/// list that surely fills more than one page is not held together any longer.
Document withCareForPages(const Document& document);

}  // namespace orvanta
