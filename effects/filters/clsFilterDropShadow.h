#pragma once

#include "effects/filters/FilterRecord.h"

namespace tamber {

/// A shadow behind a placed symbol.
class clsFilterDropShadow : public FilterRecord<clsFilterDropShadow> {
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

    /// As those of the others, but both blurs follow the source's horizontal one, so that movies
    /// come out as they always did.
    static void AuthoringCopyTo(clsFilterDropShadow& target, const clsFilterDropShadow* source) {
        FilterRecord::AuthoringCopyTo(target, source);
        target.BlurY(target.BlurX());
    }
    bool operator==(const clsFilterDropShadow&) const = default;

    static constexpr auto Fields() {
        using T = clsFilterDropShadow;
        return std::tuple{
            Field(u"Blue", &T::DropShadowColorBlue, Mixes),
            Field(u"Green", &T::DropShadowColorGreen, Mixes),
            Field(u"Red", &T::DropShadowColorRed, Mixes),
            Field(u"ColorA", &T::DropShadowColorA, Percent, Fades),
            Field(u"BlurX", &T::blurX_, Fitted(FilterNumber), Mixes),
            Field(u"BlurY", &T::blurY_, Fitted(FilterNumber), Mixes),
            Field(u"Angle", &T::angle_, Fitted(FilterNumber), Mixes),
            Field(u"Distance", &T::distance_, Fitted(FilterNumber), Fades),
            Field(u"Strength", &T::strength_, Fitted(FilterStrength), Fades),
            Field(u"blInner", &T::blInner),
            Field(u"blKnockout", &T::blKnockout),
            Field(u"blCompositeSource", &T::blCompositeSource),
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
