#include "app/editors/FreeTransformationEditor.h"

#include "platform/UserInterface.h"
#include "platform/rounding.h"
#include "platform/twips.h"

namespace tamber {

FreeTransformationEditor::FreeTransformationEditor(std::shared_ptr<const clsVectorData> artwork,
                                                   Long width, Long height)
    : artwork_(std::move(artwork)), width_(width), height_(height), corners_(DefaultCorners()) {}

CornerPoints FreeTransformationEditor::DefaultCorners() const {
    const Long right = width_ * TwipsPerPixel;
    const Long bottom = height_ * TwipsPerPixel;
    return {SwfPoint{0, 0}, SwfPoint{right, 0}, SwfPoint{right, bottom}, SwfPoint{0, bottom}};
}

Long FreeTransformationEditor::Held(double pixels) const {
    return RoundToLong(std::clamp(pixels, -double(Limit()), double(Limit())) * TwipsPerPixel);
}

bool FreeTransformationEditor::Corners(const CornerPoints& corners) {
    const auto fits = [&](SwfPoint corner) {
        return InRange(double(corner.X) / TwipsPerPixel) &&
               InRange(double(corner.Y) / TwipsPerPixel);
    };
    if (!std::all_of(corners.begin(), corners.end(), fits)) return false;
    corners_ = corners;
    return true;
}

bool FreeTransformationEditor::Put(std::size_t corner, double x, double y) {
    if (!InRange(x) || !InRange(y)) {
        ShowMessage(u"範囲外の数値が入力されました。", u"入力値不正", MessageIcon::Warning);
        return false;
    }
    Drag(corner, x, y);
    return true;
}

void FreeTransformationEditor::Drag(std::size_t corner, double x, double y) {
    corners_[corner] = {Held(x), Held(y)};
}

std::optional<std::size_t> FreeTransformationEditor::Find(double x, double y, double reach) const {
    for (std::size_t i = corners_.size(); i-- > 0;)
        if (std::abs(double(corners_[i].X) / TwipsPerPixel - x) <= reach &&
            std::abs(double(corners_[i].Y) / TwipsPerPixel - y) <= reach)
            return i;
    return std::nullopt;
}

void FreeTransformationEditor::SetDefault() {
    corners_ = DefaultCorners();
}

bool FreeTransformationEditor::IsDefault() const {
    return corners_ == DefaultCorners();
}

std::shared_ptr<const clsVectorData> FreeTransformationEditor::Preview() const {
    if (!artwork_ || IsDefault()) return artwork_;
    return artwork_->FreeTransform(width_ * TwipsPerPixel, height_ * TwipsPerPixel, corners_);
}

}  // namespace tamber
