#pragma once

#include "document/cells/clsCSV.h"
#include "effects/filters/FilterValues.h"

namespace tamber {

/// A colour transform of a placed symbol: a factor in percent and a term for each channel.
class clsFilterEditColor {
public:
    Long MultR = 100;
    Long MultG = 100;
    Long MultB = 100;
    Long MultA = 100;
    Long AddR = 0;
    Long AddG = 0;
    Long AddB = 0;
    Long AddA = 0;

    bool CkDefault() const { return *this == clsFilterEditColor(); }
    void SetDefault() { *this = clsFilterEditColor(); }

    /// True when a value differs that a tween can change.
    bool CkMorphing(const clsFilterEditColor& other) const;
    /// The weighted sum of the two; counts and switches are of this one.
    clsFilterEditColor Morphing(const clsFilterEditColor& other, double weightThis,
                                double weightOther) const;
    /// True when anything differs.
    bool CkUpDate(const clsFilterEditColor& other) const { return !(*this == other); }
    clsFilterEditColor Copy() const { return *this; }
    void CopyTo(clsFilterEditColor& target) const { target = *this; }
    /// The transform without effect.
    static clsFilterEditColor AuthoringCopy(const clsFilterEditColor* source);
    static void AuthoringCopyTo(clsFilterEditColor& target, const clsFilterEditColor* source);
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsFilterEditColor&) const = default;
};

}  // namespace tamber
