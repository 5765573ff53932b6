#pragma once

#include <memory>

#include "swf/tags/clsSWFTFillStyle.h"

namespace tamber {

/// One entry of a line style list: width and colour; caps, joins and flags too from DefineShape4
/// and DefineMorphShape2 on.
class clsSWFTLineStyle {
public:
    static constexpr Long JoinMiter = 2;

    Long Width = 0;  ///< twips, 16 bits
    Long Color = 0;  ///< RGBA, red in the low byte
    Long StartCapStyle = 0;
    Long JoinStyle = 0;
    Long EndCapStyle = 0;
    Long MiterLimitFactor = 0;
    std::shared_ptr<clsSWFTFillStyle> inFillStyle;
    bool blNoHScaleFlag = false;
    bool blNoVScaleFlag = false;
    bool blPixelHintingFlag = false;
    bool blNoClose = false;

    /// `version` is that of the shape, -2 for DefineMorphShape2; `other` the end of a morph pair.
    void Save(Long version, const clsSWFTLineStyle* other) const;

private:
    void SaveOptions() const;
};

}  // namespace tamber
