#pragma once

#include "vector/LineOptions.h"
#include "vector/clsVectorData.h"

namespace tamber {

/// One shape of a whole artwork. Each piece keeps its tables, which its first style change brings
/// along as new styles. With options every line has them.
std::shared_ptr<clsVectorData2> FlattenKeepingStyles(const clsVectorData& artwork,
                                                     const LineOptions* options);
/// One shape of a whole artwork with one table of styles, as a morph needs it.
std::shared_ptr<clsVectorData2> FlattenIntoOneTable(const clsVectorData& artwork,
                                                    const LineOptions* options);

}  // namespace tamber
