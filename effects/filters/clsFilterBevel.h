#pragma once

#include "document/cells/clsCSV.h"
#include "effects/filters/FilterValues.h"

namespace tamber {

/// A bevel on the edges of a placed symbol.
class clsFilterBevel {
public:
    Byte ShadowColorRed = 0;
    Byte ShadowColorGreen = 0;
    Byte ShadowColorBlue = 0;
    /// Percent, 0 to 100.
    Byte ShadowColorA = 100;
    Byte HighlightColorRed = 255;
    Byte HighlightColorGreen = 255;
    Byte HighlightColorBlue = 255;
    /// Percent, 0 to 100.
    Byte HighlightColorA = 100;
    bool blInner = false;
    bool blKnockout = false;
    bool blCompositeSource = true;
    bool blOnTop = false;
    Long Passes = 2;

    Long ShadowColor() const {
        return FilterColor(ShadowColorRed, ShadowColorGreen, ShadowColorBlue);
    }
    void ShadowColor(Long color) {
        SetFilterColor(color, ShadowColorRed, ShadowColorGreen, ShadowColorBlue);
    }
    /// Text for the colour box.
    String ShadowColorText() const { return FilterColorText(ShadowColor()); }
    Long HighlightColor() const {
        return FilterColor(HighlightColorRed, HighlightColorGreen, HighlightColorBlue);
    }
    void HighlightColor(Long color) {
        SetFilterColor(color, HighlightColorRed, HighlightColorGreen, HighlightColorBlue);
    }
    /// Text for the colour box.
    String HighlightColorText() const { return FilterColorText(HighlightColor()); }
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
    bool CkMorphing(const clsFilterBevel& other) const;
    /// The weighted sum of the two; counts and switches are of this one.
    clsFilterBevel Morphing(const clsFilterBevel& other, double weightThis,
                            double weightOther) const;
    /// True when anything differs.
    bool CkUpDate(const clsFilterBevel& other) const { return !(*this == other); }
    clsFilterBevel Copy() const { return *this; }
    void CopyTo(clsFilterBevel& target) const { target = *this; }
    /// The filter with the source's shape and no strength, as a tween begins or ends with.
    static clsFilterBevel AuthoringCopy(const clsFilterBevel* source);
    static void AuthoringCopyTo(clsFilterBevel& target, const clsFilterBevel* source);
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsFilterBevel&) const = default;

private:
    Single blurX_ = 2;
    Single blurY_ = 2;
    Single angle_ = 45;
    Single distance_ = 5;
    Single strength_ = 1;
};

}  // namespace tamber
