#pragma once

#include "effects/filters/clsFilterData.h"

namespace tamber {

/// Writes the filter list of a PlaceObject3: a count byte, then each filter that is switched on in
/// the order colour matrix, convolution, bevel, drop shadow, glow, blur.
void WriteFilterList(const clsFilterData& filters, Long count);

}  // namespace tamber
