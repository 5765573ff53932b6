#include "swf/tags/clsSWFTagPlaceObject.h"

#include <algorithm>
#include <cmath>

#include "effects/filters/FilterList.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

Single TangentOf(Single degrees) {
    return static_cast<Single>(std::tan(static_cast<double>(degrees) * 3.14159265358979 / 180.0));
}

Long EventBytes() {
    return mdlSWFTag::swfVersion() < WideEventVersion ? 2 : 4;
}

void SetClipEvent(const SwfEventActions& event) {
    const auto length = static_cast<Long>(event.Actions.size());
    mdlSWFTag::SetBytes(EventBytes(), event.Flags);
    if ((event.Flags & ClipKeyPress) != 0) {
        mdlSWFTag::SetBytes(4, length + 2);
        mdlSWFTag::SetBytes(1, event.KeyCode);
    } else {
        mdlSWFTag::SetBytes(4, length + 1);
    }
    mdlSWFTag::SetByteArray(event.Actions);
    mdlSWFTag::SetBytes(1, 0);
}

}  // namespace

void clsSWFTagPlaceObject::SetMatrix(Single scaleX, Single scaleY, Single rotate, Long translateX,
                                     Long translateY, Long ctrlX, Long ctrlY, Single skewX,
                                     Single skewY) {
    ScaleX = scaleX;
    ScaleY = scaleY;
    Rotate = rotate;
    TranslateX = translateX;
    TranslateY = translateY;
    CtrlX = ctrlX;
    CtrlY = ctrlY;
    SkewX = skewX;
    SkewY = skewY;
    blHasMatrix = true;
}

void clsSWFTagPlaceObject::SetColorTransform(const SwfColorTransform& transform) {
    Color = transform;
    blHasColorTransform = true;
}

void clsSWFTagPlaceObject::SetColorAddTerm(Long value) {
    Color.AddR = Color.AddG = Color.AddB = value;
    blHasColorTransform = true;
}

void clsSWFTagPlaceObject::SetColorAlpha(Long value) {
    Color.MultA = value;
    blHasColorTransform = true;
}

void clsSWFTagPlaceObject::InitColorTransform() {
    SetColorTransform({});
}

void clsSWFTagPlaceObject::SetEditColorFilter(const clsFilterEditColor& editColor, Long bright,
                                              Long toumei) {
    const std::int64_t b = bright * 255 / 100;
    const std::int64_t opacity = toumei;
    SwfColorTransform t;
    t.MultR = mdlSWFTag::ToColorField(std::int64_t{editColor.MultR} * 256 / 100);
    t.MultG = mdlSWFTag::ToColorField(std::int64_t{editColor.MultG} * 256 / 100);
    t.MultB = mdlSWFTag::ToColorField(std::int64_t{editColor.MultB} * 256 / 100);
    t.MultA = mdlSWFTag::ToColorField(editColor.MultA * opacity * 256 / 10000);
    t.AddR = mdlSWFTag::ToColorField(std::min<std::int64_t>(b + editColor.AddR, 255));
    t.AddG = mdlSWFTag::ToColorField(std::min<std::int64_t>(b + editColor.AddG, 255));
    t.AddB = mdlSWFTag::ToColorField(std::min<std::int64_t>(b + editColor.AddB, 255));
    t.AddA = mdlSWFTag::ToColorField(editColor.AddA);
    SetColorTransform(t);
}

bool clsSWFTagPlaceObject::CkMatrixDefault() const {
    return !CkMatrixMorphing(clsSWFTagPlaceObject());
}

bool clsSWFTagPlaceObject::CkColorDefault() const {
    return Color == SwfColorTransform{};
}

bool clsSWFTagPlaceObject::CkMatrixMorphing(const clsSWFTagPlaceObject& other) const {
    return ScaleX != other.ScaleX || ScaleY != other.ScaleY || Rotate != other.Rotate ||
           SkewX != other.SkewX || SkewY != other.SkewY || TranslateX != other.TranslateX ||
           TranslateY != other.TranslateY || CtrlX != other.CtrlX || CtrlY != other.CtrlY;
}

bool clsSWFTagPlaceObject::CkColorMorphing(const clsSWFTagPlaceObject& other) const {
    return !(Color == other.Color);
}

bool clsSWFTagPlaceObject::CkFilterMorphing(const clsSWFTagPlaceObject& other) const {
    return inFilter_ && other.inFilter_ && inFilter_->CkMorphing(*other.inFilter_);
}

void clsSWFTagPlaceObject::Ratio(Long value) {
    ratio_ = value;
    blHasRatio_ = true;
}

void clsSWFTagPlaceObject::eBlend(Long value) {
    eBlend_ = value;
    blHasBlend_ = true;
}

void clsSWFTagPlaceObject::inFilter(std::shared_ptr<const clsFilterData> filters) {
    if (mdlSWFTag::swfVersion() < FilterVersion) return;
    inFilter_ = std::move(filters);
    filterCount_ = inFilter_ ? inFilter_->FilterCount() : 0;
}

Long clsSWFTagPlaceObject::Ver() const {
    const bool extended = blHasBlend_ || filterCount_ != 0;
    return mdlSWFTag::swfVersion() >= FilterVersion && extended ? 3 : 2;
}

Long clsSWFTagPlaceObject::TagNum() const {
    return Ver() == 3 ? TagCode::PlaceObject3 : TagCode::PlaceObject2;
}

Byte clsSWFTagPlaceObject::Flags() const {
    int flags = PlaceID != 0 ? 2 : 1;
    if (!MCAction.empty()) flags |= 128;
    if (ClippingDepth != 0) flags |= 64;
    if (!Name.empty()) flags |= 32;
    if (blHasRatio_) flags |= 16;
    if (blHasColorTransform && ClippingDepth == 0) flags |= 8;
    if (blHasMatrix) flags |= 4;
    return static_cast<Byte>(flags);
}

void clsSWFTagPlaceObject::SaveClipActions() const {
    Long allEvents = 0;
    for (const SwfEventActions& event : MCAction) allEvents |= event.Flags;
    mdlSWFTag::SetBytes(2, 0);
    mdlSWFTag::SetBytes(EventBytes(), allEvents);
    for (const SwfEventActions& event : MCAction) SetClipEvent(event);
    mdlSWFTag::SetBytes(EventBytes(), 0);
}

void clsSWFTagPlaceObject::SaveOne(Long offset) const {
    const Byte flags = Flags();
    const bool extended = Ver() == 3;
    mdlSWFTag::SetBytes(1, flags);
    if (extended) mdlSWFTag::SetBytes(1, (blHasBlend_ ? 2 : 0) | (filterCount_ != 0 ? 1 : 0));
    mdlSWFTag::SetBytes(2, depth + offset);
    if (PlaceID != 0) mdlSWFTag::SetBytes(2, PlaceID + offset);
    if (blHasMatrix) {
        SwfTransform transform =
            mdlSWFTag::ComposeTransform(ScaleX, ScaleY, Rotate, {TranslateX, TranslateY},
                                        {CtrlX, CtrlY}, TangentOf(SkewX), TangentOf(SkewY));
        mdlSWFTag::ClampToField(transform);
        mdlSWFTag::SetTransform(transform);
    }
    if ((flags & 8) != 0) mdlSWFTag::SetCXFormWithAlpha(Color);
    if (blHasRatio_) mdlSWFTag::SetBytes(2, ratio_);
    // Players look instance names up in the code page, whatever the version.
    if (!Name.empty()) mdlSWFTag::SetString(Name, true, false);
    if (ClippingDepth != 0) mdlSWFTag::SetBytes(2, ClippingDepth + depth);
    if (extended) {
        if (filterCount_ != 0) WriteFilterList(*inFilter_, filterCount_);
        if (blHasBlend_) mdlSWFTag::SetBytes(1, eBlend_);
    }
    if (!MCAction.empty()) SaveClipActions();
}

void clsSWFTagPlaceObject::Save() {
    for (Long i = 0; i < PlaceCnt; ++i) {
        const std::size_t body = mdlSWFTag::BeginTag(TagNum());
        SaveOne(i);
        mdlSWFTag::EndTagShortest(TagNum(), body);
    }
}

}  // namespace tamber
