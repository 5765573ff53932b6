#include "swf/authoring/TweenExpansion.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/rounding.h"
#include "swf/authoring/EdgingCurve.h"
#include "swf/tags/clsSWFTagRemoveObject.h"

namespace tamber {

namespace {

constexpr double Pi = 3.14159265358979;
/// 255 times pi: an easing value of 255 begins twice as fast and ends at rest.
constexpr double EdgingScale = 801.1061266653965;

/// How far position and parameters are at a time of the tween.
class TweenEasing {
public:
    explicit TweenEasing(const clsLayerObjElement& element)
        : separate_(element.EdgingAllMode == 0) {
        if (!element.blCustomEdging) {
            factor_ = element.Edging / EdgingScale;
            return;
        }
        position_.emplace(element.EdgingTbl(false));
        if (separate_) parameter_.emplace(element.EdgingTblPrm);
    }

    Long PositionRatio(Single t) const { return Ratio(t, position_); }
    Long ParameterRatio(Single t) const { return Ratio(t, separate_ ? parameter_ : position_); }

private:
    Long Ratio(Single t, const std::optional<EdgingCurve>& curve) const {
        return std::clamp(FreeRatio(t, curve), 0, FullRatio);
    }
    Long FreeRatio(Single t, const std::optional<EdgingCurve>& curve) const {
        if (curve && !curve->Empty()) return curve->TweenRatio(t);
        if (factor_ == 0) return RoundToLong(static_cast<double>(t) * FullRatio);
        return RoundToLong((t + factor_ * std::sin(t * Pi)) * FullRatio);
    }

    bool separate_;
    double factor_ = 0;
    std::optional<EdgingCurve> position_;
    std::optional<EdgingCurve> parameter_;
};

/// Linear mix of two placements' values.
struct Mix {
    double q;  ///< weight of the start
    double p;  ///< weight of the end

    Single operator()(Single a, Single b) const { return static_cast<Single>(a * q + b * p); }
    Long operator()(Long a, Long b) const { return RoundToLong(a * q + b * p); }
};

void MixMatrix(clsSWFTagPlaceObject& tag, const clsSWFTagPlaceObject& a,
               const clsSWFTagPlaceObject& b, Mix mix, SwfPoint place) {
    tag.SetMatrix(mix(a.ScaleX, b.ScaleX), mix(a.ScaleY, b.ScaleY), mix(a.Rotate, b.Rotate),
                  place.X, place.Y, mix(a.CtrlX, b.CtrlX), mix(a.CtrlY, b.CtrlY),
                  mix(a.SkewX, b.SkewX), mix(a.SkewY, b.SkewY));
}

void MixColour(clsSWFTagPlaceObject& tag, const SwfColorTransform& a, const SwfColorTransform& b,
               Mix mix) {
    tag.SetColorTransform({mix(a.MultR, b.MultR), mix(a.MultG, b.MultG), mix(a.MultB, b.MultB),
                           mix(a.MultA, b.MultA), mix(a.AddR, b.AddR), mix(a.AddG, b.AddG),
                           mix(a.AddB, b.AddB), mix(a.AddA, b.AddA)});
}

/// Gives `tag` what differs between the ends of a tween, as it is at frame `frame` of it.
void Interpolate(clsSWFTagPlaceObject& tag, const Tween& tween, const TweenPath& path,
                 const TweenEasing& easing, Long frame) {
    const clsSWFTagPlaceObject& start = *tween.StartTag;
    const clsSWFTagPlaceObject& end = *tween.EndTag;
    const Single t = static_cast<Single>(frame) / static_cast<Single>(tween.Span);
    const Long parameterRatio = easing.ParameterRatio(t);
    const Mix mix{(FullRatio - parameterRatio) / static_cast<double>(FullRatio),
                  parameterRatio / static_cast<double>(FullRatio)};
    if (start.blMatrixMorphing) MixMatrix(tag, start, end, mix, path.At(easing.PositionRatio(t)));
    if (start.blColorMorphing) MixColour(tag, start.Color, end.Color, mix);
    if (start.blFilterMorphing && start.inFilter() && end.inFilter())
        tag.inFilter(start.inFilter()->Morphing(*end.inFilter(), mix.q, mix.p));
    if (tween.blVector) tag.Ratio(parameterRatio);
}

clsSWFTagPlaceObject MoveOf(const clsSWFTagPlaceObject& start) {
    clsSWFTagPlaceObject tag;
    tag.depth = start.depth;
    tag.PlaceCnt = start.PlaceCnt;
    tag.ClippingDepth = start.ClippingDepth;
    return tag;
}

/// Gives the side of a tween that lacks a filter of the other a copy without strength, so that the
/// filter fades in as it fades out.
void CompleteFilters(clsSWFTagPlaceObject& start, const clsSWFTagPlaceObject& end) {
    if (end.FilterCount() == 0) return;
    const clsFilterData none;
    const clsFilterData& own = start.inFilter() ? *start.inFilter() : none;
    start.inFilter(own.AuthoringCopy(*end.inFilter(), true));
}

void ChooseMorphing(const Tween& tween, const TweenPath& path, Long version) {
    clsSWFTagPlaceObject& start = *tween.StartTag;
    const clsSWFTagPlaceObject& end = *tween.EndTag;
    const bool filters = version >= FilterVersion;
    if (filters) CompleteFilters(start, end);
    if (tween.blPictures) {
        start.blMatrixMorphing = start.blHasMatrix || end.blHasMatrix;
        start.blColorMorphing = start.blHasColorTransform || end.blHasColorTransform;
        start.blFilterMorphing = filters && start.FilterCount() + end.FilterCount() > 0;
        return;
    }
    if (path.SegmentCount() == 1) start.blMatrixMorphing = start.CkMatrixMorphing(end);
    start.blColorMorphing = start.CkColorMorphing(end);
    if (!filters) return;
    start.blFilterMorphing = tween.blMorph ? start.FilterCount() > 0 : start.CkFilterMorphing(end);
}

void RemoveFrom(clsSWFAdmin& admin, Long frame, const clsSWFTagPlaceObject& tag) {
    auto remove = std::make_shared<clsSWFTagRemoveObject>();
    remove->depth = tag.depth;
    remove->RemoveCnt = tag.PlaceCnt;
    admin.AddTag(frame, std::move(remove), false);
}

bool IsMorph(const clsSymbolData& symbol) {
    const auto* drawing = symbol.Property<clsPropertyVector>();
    return drawing != nullptr && drawing->MorphSymbol() != nullptr;
}

/// Gives the tag of a frame the picture that comes there.
void TurnPicture(clsSWFAdmin& admin, Long frame, const std::optional<Long>& id,
                 clsSWFTagPlaceObject& tag) {
    if (!id) return;
    RemoveFrom(admin, frame, tag);
    tag.PlaceID = *id;
}

}  // namespace

bool Morphs(const clsLayer& layer, const KeyFrameStand& stand) {
    return stand.Owner != 0 || IsMorph(*layer.SymbolData());
}

Tween::Tween(const clsLayer& layer, const LayerCourse& course, const KeyFrameStand& stand,
             std::shared_ptr<clsSWFTagPlaceObject> startTag,
             std::shared_ptr<clsSWFTagPlaceObject> endTag)
    : Frame(layer.Object(stand.Index)->StartFrame()),
      Span(course.SpanOf(stand.Index)),
      StartTag(std::move(startTag)),
      EndTag(std::move(endTag)),
      Element(layer.Object(stand.Index)->Placement()),
      blVector(layer.SymbolData()->eTypeEx() == KindVector),
      blMorph(IsMorph(*layer.SymbolData())),
      blPictures(course.FramesAPicture() != 0) {}

TweenPath TweenPathOf(const clsLayer& layer, Long index, TimelineOrigin origin) {
    return {*layer.Object(index)->Placement(), *layer.Object(index + 1)->Placement(), origin.X,
            origin.Y};
}

void PlacePicture(clsSWFAdmin& admin, Long frame, const clsSWFTagPlaceObject& tag, Long id) {
    RemoveFrom(admin, frame, tag);
    auto copy = std::make_shared<clsSWFTagPlaceObject>(tag);
    copy->PlaceID = id;
    admin.AddPlaceObj(frame, std::move(copy));
}

void AddTweenFrame(clsSWFAdmin& admin, const Tween& tween, const TweenPath& path, Long offset) {
    ChooseMorphing(tween, path, admin.Ver);
    if (tween.blVector) tween.StartTag->Ratio(0);
    if (offset > 0) {
        clsSWFTagPlaceObject tag(*tween.StartTag);
        Interpolate(tag, tween, path, TweenEasing(*tween.Element), offset);
        *tween.StartTag = std::move(tag);
    }
    admin.AddPlaceObj(1, tween.StartTag);
}

void AddTween(clsSWFAdmin& admin, const Tween& tween, const TweenPath& path,
              const SpanPictures& pictures) {
    ChooseMorphing(tween, path, admin.Ver);
    const TweenEasing easing(*tween.Element);
    if (tween.blVector) tween.StartTag->Ratio(0);
    TurnPicture(admin, tween.Frame, pictures.At(0), *tween.StartTag);
    admin.AddPlaceObj(tween.Frame, tween.StartTag);
    clsSWFTagPlaceObject move = MoveOf(*tween.StartTag);
    if (tween.blPictures && tween.StartTag->blHasBlend()) move.eBlend(tween.StartTag->eBlend());
    for (Long i = 1; i < tween.Span; ++i) {
        move.PlaceID = 0;
        Interpolate(move, tween, path, easing, i);
        TurnPicture(admin, tween.Frame + i, pictures.At(i), move);
        admin.AddWrittenPlace(tween.Frame + i, move);
    }
    if (tween.blVector) tween.EndTag->Ratio(FullRatio);
}

}  // namespace tamber
