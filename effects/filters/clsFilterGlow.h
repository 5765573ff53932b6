#pragma once

#include "document/cells/clsCSV.h"
#include "effects/filters/FilterValues.h"

namespace tamber {

/// A glow around a placed symbol.
class clsFilterGlow {
public:
    Byte GlowColorRed = 0;
    Byte GlowColorGreen = 255;
    Byte GlowColorBlue = 255;
    /// Percent, 0 to 100.
    Byte GlowColorA = 100;
    bool blInner = false;
    bool blKnockout = false;
    bool blCompositeSource = true;
    Long Passes = 2;

    Long GlowColor() const { return FilterColor(GlowColorRed, GlowColorGreen, GlowColorBlue); }
    void GlowColor(Long color) {
        SetFilterColor(color, GlowColorRed, GlowColorGreen, GlowColorBlue);
    }
    /// Text for the colour box.
    String GlowColorText() const { return FilterColorText(GlowColor()); }
    Single BlurX() const { return blurX_; }
    void BlurX(Single value) { blurX_ = FilterNumber(value); }
    Single BlurY() const { return blurY_; }
    void BlurY(Single value) { blurY_ = FilterNumber(value); }
    Single Strength() const { return strength_; }
    void Strength(Single value) { strength_ = FilterStrength(value); }

    /// True when a value differs that a tween can change.
    bool CkMorphing(const clsFilterGlow& other) const;
    /// The weighted sum of the two; counts and switches are of this one.
    clsFilterGlow Morphing(const clsFilterGlow& other, double weightThis, double weightOther) const;
    /// True when anything differs.
    bool CkUpDate(const clsFilterGlow& other) const { return !(*this == other); }
    clsFilterGlow Copy() const { return *this; }
    void CopyTo(clsFilterGlow& target) const { target = *this; }
    /// The filter with the source's shape and no strength, as a tween begins or ends with.
    static clsFilterGlow AuthoringCopy(const clsFilterGlow* source);
    static void AuthoringCopyTo(clsFilterGlow& target, const clsFilterGlow* source);
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsFilterGlow&) const = default;

private:
    Single blurX_ = 10;
    Single blurY_ = 10;
    Single strength_ = 1;
};

}  // namespace tamber
