#include "swf/tags/clsSWFTFillStyle.h"

#include "swf/mdlSWFTag.h"

#include <array>

namespace tamber {

void clsSWFTFillStyle::FillMode(Long mode) {
    mode_ = mode;
    switch (mode) {
        case Solid:
            object_ = std::make_shared<clsSWFTFillSolid>();
            break;
        case Linear:
        case Radial:
            object_ = std::make_shared<clsSWFTFillLinearRadial>();
            break;
        case Focal:
            object_ = std::make_shared<clsSWFTFillFocalRadial>();
            break;
        case BitmapTiled:
        case BitmapClipped:
        case BitmapTiledHard:
        case BitmapClippedHard:
            object_ = std::make_shared<clsSWFTFillBmpClippedTiled>();
            break;
        default:
            object_.reset();
    }
}

Long clsSWFTFillStyle::FillType() const {
    static constexpr std::array<Long, 8> Types{0x00, 0x10, 0x12, 0x13, 0x40, 0x41, 0x42, 0x43};
    if (mode_ < 0 || mode_ >= static_cast<Long>(Types.size())) return -1;
    return Types[static_cast<std::size_t>(mode_)];
}

clsSWFTFillStyle clsSWFTFillStyle::Copy() const {
    clsSWFTFillStyle copy = *this;
    if (object_) copy.object_ = object_->Copy();
    return copy;
}

void clsSWFTFillStyle::Save(const clsSWFTFillStyle* other) const {
    if (!object_) return;
    mdlSWFTag::SetBytes(1, FillType());
    object_->Save(other != nullptr ? other->object_.get() : nullptr);
}

}  // namespace tamber
