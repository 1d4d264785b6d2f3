#pragma once

#include "reports/document_model.h"

namespace orvanta {

/// Takes care of where the pages of a document end, as one would before printing: what leads to a
/// table stays with it, a row is not torn where it surely fits on a page, and a list that surely
/// fills more than one page is not held together any longer.
void careForPages(Document& document);

}  // namespace orvanta
