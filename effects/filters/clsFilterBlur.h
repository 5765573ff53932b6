#pragma once

#include "document/cells/clsCSV.h"
#include "effects/filters/FilterValues.h"

namespace tamber {

/// A blur of a placed symbol.
class clsFilterBlur {
public:
    Long Passes = 2;

    Single BlurX() const { return blurX_; }
    void BlurX(Single value) { blurX_ = FilterNumber(value); }
    Single BlurY() const { return blurY_; }
    void BlurY(Single value) { blurY_ = FilterNumber(value); }

    /// True when a value differs that a tween can change.
    bool CkMorphing(const clsFilterBlur& other) const;
    /// The weighted sum of the two; counts and switches are of this one.
    clsFilterBlur Morphing(const clsFilterBlur& other, double weightThis, double weightOther) const;
    /// True when anything differs.
    bool CkUpDate(const clsFilterBlur& other) const { return !(*this == other); }
    clsFilterBlur Copy() const { return *this; }
    void CopyTo(clsFilterBlur& target) const { target = *this; }
    /// The filter with the source's shape and no strength, as a tween begins or ends with.
    static clsFilterBlur AuthoringCopy(const clsFilterBlur* source);
    static void AuthoringCopyTo(clsFilterBlur& target, const clsFilterBlur* source);
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsFilterBlur&) const = default;

private:
    Single blurX_ = 4;
    Single blurY_ = 4;
};

}  // namespace tamber
