#pragma once

#include "swf/tags/clsSWFTFillStyle.h"
#include "vector/SvgDocument.h"
#include "vector/SvgScanner.h"

namespace tamber {

/// Reads a gradient element, whose tag name was read last, to its end, and enters it under its id.
void ReadSvgGradient(SvgDocument& document, SvgScanner& scanner, std::string_view name);

/// The gradient that a fill such as "url(#id)" refers to; null when there is none.
std::shared_ptr<clsSvgGradientData> FindSvgGradient(SvgDocument& document, std::string_view fill);

/// Makes the fill of a shape; `bounds` is its extent before any transformation, `alpha` 0 to 255.
/// A gradient without colours gives a style without an object.
clsSWFTFillStyle MakeSvgGradientFill(SvgDocument& document, const clsSvgGradientData& gradient,
                                     const SvgTransformation& transformation, const SwfRect& bounds,
                                     Long alpha);

}  // namespace tamber
