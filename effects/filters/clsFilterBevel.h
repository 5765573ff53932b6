#pragma once

#include "effects/filters/FilterRecord.h"

namespace tamber {

/// A bevel on the edges of a placed symbol.
class clsFilterBevel : public FilterRecord<clsFilterBevel> {
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

    bool operator==(const clsFilterBevel&) const = default;

    static constexpr auto Fields() {
        using T = clsFilterBevel;
        return std::tuple{
            Field(u"ShadowBlue", &T::ShadowColorBlue, Mixes),
            Field(u"ShadowGreen", &T::ShadowColorGreen, Mixes),
            Field(u"ShadowRed", &T::ShadowColorRed, Mixes),
            Field(u"ShadowColorA", &T::ShadowColorA, Percent, Fades),
            Field(u"HighlightBlue", &T::HighlightColorBlue, Mixes),
            Field(u"HighlightGreen", &T::HighlightColorGreen, Mixes),
            Field(u"HighlightRed", &T::HighlightColorRed, Mixes),
            Field(u"HighlightColorA", &T::HighlightColorA, Percent, Fades),
            Field(u"BlurX", &T::blurX_, Fitted(FilterNumber), Mixes),
            Field(u"BlurY", &T::blurY_, Fitted(FilterNumber), Mixes),
            Field(u"Angle", &T::angle_, Fitted(FilterNumber), Mixes),
            Field(u"Distance", &T::distance_, Fitted(FilterNumber), Fades),
            Field(u"Strength", &T::strength_, Fitted(FilterStrength), Fades),
            Field(u"blInner", &T::blInner),
            Field(u"blKnockout", &T::blKnockout),
            Field(u"blCompositeSource", &T::blCompositeSource),
            Field(u"blOnTop", &T::blOnTop),
            Field(u"Passes", &T::Passes, Tells),
        };
    }

private:
    Single blurX_ = 2;
    Single blurY_ = 2;
    Single angle_ = 45;
    Single distance_ = 5;
    Single strength_ = 1;
};

}  // namespace tamber
