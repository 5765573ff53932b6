#pragma once

#include "swf/tags/clsSWFTFill.h"

namespace tamber {

/// One entry of a fill style list: type byte, then what the style paints with.
class clsSWFTFillStyle {
public:
    enum Mode : Long {
        Solid = 0,
        Linear = 1,
        Radial = 2,
        Focal = 3,
        BitmapTiled = 4,
        BitmapClipped = 5,
        BitmapTiledHard = 6,
        BitmapClippedHard = 7,
    };

    /// A style without an object writes nothing.
    clsSWFTFillStyle() = default;
    explicit clsSWFTFillStyle(Long mode) { FillMode(mode); }
    /// The fill of a bitmap symbol's shape.
    explicit clsSWFTFillStyle(std::shared_ptr<clsSWFTFillStyleBitmap> fill)
        : mode_(BitmapClipped), object_(std::move(fill)) {}

    Long FillMode() const { return mode_; }
    /// Makes a new style object of the mode, 0 to 7; another mode leaves none.
    void FillMode(Long mode);
    /// The byte in the file, -1 for a mode out of range.
    Long FillType() const;

    const std::shared_ptr<clsSWFTFill>& StyleObject() const { return object_; }
    /// A style with an object of its own, where a plain copy shares it.
    clsSWFTFillStyle Copy() const;
    /// The style object, when it is of this class, else null.
    template <class Fill>
    Fill* StyleAs() const {
        return dynamic_cast<Fill*>(object_.get());
    }

    void Save(const clsSWFTFillStyle* other) const;

private:
    Long mode_ = Solid;
    std::shared_ptr<clsSWFTFill> object_;
};

}  // namespace tamber
