#pragma once

#include "effects/filters/FilterRecord.h"

namespace tamber {

/// A blur of a placed symbol.
class clsFilterBlur : public FilterRecord<clsFilterBlur> {
public:
    Long Passes = 2;

    Single BlurX() const { return blurX_; }
    void BlurX(Single value) { blurX_ = FilterNumber(value); }
    Single BlurY() const { return blurY_; }
    void BlurY(Single value) { blurY_ = FilterNumber(value); }

    bool operator==(const clsFilterBlur&) const = default;

    static constexpr auto Fields() {
        using T = clsFilterBlur;
        return std::tuple{
            Field(u"BlurX", &T::blurX_, Fitted(FilterNumber), Fades),
            Field(u"BlurY", &T::blurY_, Fitted(FilterNumber), Fades),
            Field(u"Passes", &T::Passes, Tells),
        };
    }

private:
    Single blurX_ = 4;
    Single blurY_ = 4;
};

}  // namespace tamber
