#pragma once

#include <memory>
#include <vector>

#include "effects/filters/clsFilterData.h"
#include "swf/SwfTypes.h"
#include "swf/clsSWFTag.h"
#include "swf/tags/SwfEventActions.h"

namespace tamber {

/// First version whose players know filters and blend modes.
inline constexpr Long FilterVersion = 8;

/// PlaceObject2, or PlaceObject3 with a blend mode or filters from version 8 on. Holds the values
/// of the editor; the arithmetic is done when it is saved.
class clsSWFTagPlaceObject : public clsSWFTag {
public:
    /// Character identifier; 0 moves the character that is at the depth.
    Long PlaceID = 0;
    Long depth = 0;
    /// Neighbouring depths and identifiers that this one object writes.
    Long PlaceCnt = 1;
    /// Row and key frame that it was made of, in a snapshot; not written.
    Long LayerIndex = 0;
    Long ObjIndex = 0;

    bool blHasMatrix = false;
    Single ScaleX = 1;
    Single ScaleY = 1;
    Single Rotate = 0;  ///< degrees
    Single SkewX = 0;
    Single SkewY = 0;
    Long TranslateX = 0;  ///< twips
    Long TranslateY = 0;
    Long CtrlX = 0;
    Long CtrlY = 0;

    bool blHasColorTransform = false;
    SwfColorTransform Color;

    /// What a tween from this placement interpolates.
    bool blMatrixMorphing = true;
    bool blColorMorphing = true;
    bool blFilterMorphing = false;

    Long ClippingDepth = 0;  ///< depths clipped, counted from `depth`
    String Name;
    std::vector<SwfEventActions> MCAction;

    void SetMatrix(Single scaleX, Single scaleY, Single rotate, Long translateX, Long translateY,
                   Long ctrlX, Long ctrlY, Single skewX, Single skewY);
    void SetColorTransform(const SwfColorTransform& transform);
    /// The three additions.
    void SetColorAddTerm(Long value);
    void SetColorAlpha(Long value);
    void InitColorTransform();
    /// Colour editing of an element with its brightness and opacity in percent.
    void SetEditColorFilter(const clsFilterEditColor& editColor, Long bright, Long toumei);

    bool CkMatrixDefault() const;
    bool CkColorDefault() const;
    bool CkMatrixMorphing(const clsSWFTagPlaceObject& other) const;
    bool CkColorMorphing(const clsSWFTagPlaceObject& other) const;
    /// True when a filter that is switched on differs from the other's.
    bool CkFilterMorphing(const clsSWFTagPlaceObject& other) const;

    bool HasRatio() const { return blHasRatio_; }
    Long Ratio() const { return ratio_; }
    void Ratio(Long value);  ///< 0 to 65535
    bool blHasBlend() const { return blHasBlend_; }
    Long eBlend() const { return eBlend_; }
    void eBlend(Long value);
    Long FilterCount() const { return filterCount_; }
    const std::shared_ptr<const clsFilterData>& inFilter() const { return inFilter_; }
    /// Below version 8 the filters are passed over.
    void inFilter(std::shared_ptr<const clsFilterData> filters);

    Long Ver() const;
    Long TagNum() const override;
    void Save() override;

private:
    void SaveOne(Long offset) const;
    void SaveClipActions() const;
    Byte Flags() const;

    Long ratio_ = 0;
    Long eBlend_ = 0;
    Long filterCount_ = 0;
    std::shared_ptr<const clsFilterData> inFilter_;
    bool blHasRatio_ = false;
    bool blHasBlend_ = false;
};

}  // namespace tamber
