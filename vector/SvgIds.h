#pragma once

#include "vector/SvgDocument.h"

namespace tamber {

/// Enters the entities of a document type that begins between two places of the text, and returns
/// the place behind their declaration, or `from` when there is none.
std::size_t ReadSvgEntities(SvgDocument& document, std::size_t from, std::size_t to);

/// Enters, in one pass from `from` on, all that an id leads to: places of elements, and gradients.
void ScanSvgIds(SvgDocument& document, std::size_t from);

}  // namespace tamber
