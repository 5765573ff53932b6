#pragma once

#include "effects/filters/FilterRecord.h"

namespace tamber {

/// A glow around a placed symbol.
class clsFilterGlow : public FilterRecord<clsFilterGlow> {
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

    bool operator==(const clsFilterGlow&) const = default;

    static constexpr auto Fields() {
        using T = clsFilterGlow;
        return std::tuple{
            Field(u"Blue", &T::GlowColorBlue, Mixes),
            Field(u"Green", &T::GlowColorGreen, Mixes),
            Field(u"Red", &T::GlowColorRed, Mixes),
            Field(u"ColorA", &T::GlowColorA, Percent, Fades),
            Field(u"BlurX", &T::blurX_, Fitted(FilterNumber), Mixes),
            Field(u"BlurY", &T::blurY_, Fitted(FilterNumber), Mixes),
            Field(u"Strength", &T::strength_, Fitted(FilterStrength), Fades),
            Field(u"blInner", &T::blInner),
            Field(u"blKnockout", &T::blKnockout),
            Field(u"blCompositeSource", &T::blCompositeSource),
            Field(u"Passes", &T::Passes, Tells),
        };
    }

private:
    Single blurX_ = 10;
    Single blurY_ = 10;
    Single strength_ = 1;
};

}  // namespace tamber
