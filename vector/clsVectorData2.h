#pragma once

#include <memory>

#include "swf/tags/clsSWFTShapeRecords.h"
#include "vector/CornerPoints.h"

namespace tamber {

/// One shape of an artwork: what the body of one DefineShape needs.
class clsVectorData2 {
public:
    /// Version of DefineShape; 4 where a line style has caps, joins or flags.
    Long Ver = 3;
    std::shared_ptr<clsSWFTShapeRecords> inSWFTShapeRecords =
        std::make_shared<clsSWFTShapeRecords>();
    std::shared_ptr<FillStyleList> colFillStyles = std::make_shared<FillStyleList>();
    std::shared_ptr<LineStyleList> colLineStyles = std::make_shared<LineStyleList>();
    bool blUsesNonScalingStrokes = false;
    bool blUsesScalingStrokes = true;

    /// The shape with its rectangle of `width` x `height` twips stretched over four corners.
    /// Straight edges stay straight between their mapped ends.
    std::shared_ptr<clsVectorData2> FreeTransform(Long width, Long height,
                                                  const CornerPoints& corners) const;
};

}  // namespace tamber
