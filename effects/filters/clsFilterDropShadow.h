#pragma once

#include "document/cells/clsCSV.h"
#include "effects/filters/FilterValues.h"

namespace tamber {

/// A shadow behind a placed symbol.
class clsFilterDropShadow {
public:
    Byte DropShadowColorRed = 0;
    Byte DropShadowColorGreen = 0;
    Byte DropShadowColorBlue = 0;
    /// Percent, 0 to 100.
    Byte DropShadowColorA = 100;
    bool blInner = false;
    bool blKnockout = false;
    bool blCompositeSource = true;
    Long Passes = 2;

    Long DropShadowColor() const {
        return FilterColor(DropShadowColorRed, DropShadowColorGreen, DropShadowColorBlue);
    }
    void DropShadowColor(Long color) {
        SetFilterColor(color, DropShadowColorRed, DropShadowColorGreen, DropShadowColorBlue);
    }
    /// Text for the colour box.
    String DropShadowColorText() const { return FilterColorText(DropShadowColor()); }
    Single BlurX() const { return blurX_; }
    void BlurX(Single value) { blurX_ = FilterNumber(value); }
    Single BlurY() const { return blurY_; }
    void BlurY(Single value) { blurY_ = FilterNumber(value); }
    Single Angle() const { return angle_; }
    void Angle(Single value) { angle_ = FilterNumber(value); }
    Single Distance() const { return distance_; }
    void Distance(Single value) { distance_ = FilterNumber(value); }
    Single Strength() const { return strength_; }
    void Strength(Single value) { strength_ = FilterStrength(value); }

    /// True when a value differs that a tween can change.
    bool CkMorphing(const clsFilterDropShadow& other) const;
    /// The weighted sum of the two; counts and switches are of this one.
    clsFilterDropShadow Morphing(const clsFilterDropShadow& other, double weightThis,
                                 double weightOther) const;
    /// True when anything differs.
    bool CkUpDate(const clsFilterDropShadow& other) const { return !(*this == other); }
    clsFilterDropShadow Copy() const { return *this; }
    void CopyTo(clsFilterDropShadow& target) const { target = *this; }
    /// The filter with the source's shape and no strength, as a tween begins or ends with.
    static clsFilterDropShadow AuthoringCopy(const clsFilterDropShadow* source);
    static void AuthoringCopyTo(clsFilterDropShadow& target, const clsFilterDropShadow* source);
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsFilterDropShadow&) const = default;

private:
    Single blurX_ = 2;
    Single blurY_ = 2;
    Single angle_ = 45;
    Single distance_ = 5;
    Single strength_ = 1;
};

}  // namespace tamber
