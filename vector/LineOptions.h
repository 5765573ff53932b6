#pragma once

#include "vector/clsVectorData2.h"

namespace tamber {

/// What a symbol puts in place of the line styles of its drawing.
struct LineOptions {
    bool blNoLineScale = false;  ///< width stays when the symbol is scaled
    bool blPixelHinting = false;
    Long CapStyle = 0;       ///< 0 round, 1 none, 2 square
    Long JoinStyle = 0;      ///< 0 round, 1 bevel, 2 miter
    Long MiterLimit = 1024;  ///< 1/256

    /// Copies of line styles with these options.
    LineStyleList Apply(const LineStyleList& lines) const;
};

/// A copy of a shape with the options on its lines; without options the lines are shared. The
/// records are shared in either case.
std::shared_ptr<clsVectorData2> WithLineOptions(const clsVectorData2& shape,
                                                const LineOptions* options);

}  // namespace tamber
