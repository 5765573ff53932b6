#include "vector/LineOptions.h"

namespace tamber {

LineStyleList LineOptions::Apply(const LineStyleList& lines) const {
    LineStyleList changed = lines;
    for (clsSWFTLineStyle& line : changed) {
        line.blNoHScaleFlag = line.blNoVScaleFlag = blNoLineScale;
        line.blPixelHintingFlag = blPixelHinting;
        line.StartCapStyle = line.EndCapStyle = CapStyle;
        line.JoinStyle = JoinStyle;
        line.MiterLimitFactor = MiterLimit;
    }
    return changed;
}

std::shared_ptr<clsVectorData2> WithLineOptions(const clsVectorData2& shape,
                                                const LineOptions* options) {
    auto copy = std::make_shared<clsVectorData2>(shape);
    if (options == nullptr) return copy;
    copy->Ver = 4;
    copy->blUsesNonScalingStrokes = options->blNoLineScale;
    copy->blUsesScalingStrokes = !options->blNoLineScale;
    copy->colLineStyles = std::make_shared<LineStyleList>(options->Apply(*shape.colLineStyles));
    return copy;
}

}  // namespace tamber
