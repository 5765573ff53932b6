#pragma once

#include <memory>
#include <vector>

#include "vector/clsVectorBitmap.h"
#include "vector/clsVectorData2.h"

namespace tamber {

/// One vector artwork. It is read only once a symbol holds it.
class clsVectorData {
public:
    /// Shapes in painting order, the lowest first.
    std::vector<std::shared_ptr<clsVectorData2>> colShapeData;
    /// Bitmaps that fills of the shapes refer to.
    std::vector<std::shared_ptr<clsVectorBitmap>> colBitmap;

    /// The `index`-th shape, from 1.
    const std::shared_ptr<clsVectorData2>& ShapeDataTbl(Long index) const {
        return colShapeData.at(static_cast<std::size_t>(index - 1));
    }
    /// A new artwork, stretched from `width` x `height` twips over four corners.
    std::shared_ptr<clsVectorData> FreeTransform(Long width, Long height,
                                                 const CornerPoints& corners) const;
};

}  // namespace tamber
