#pragma once

#include "effects/filters/FilterRecord.h"

namespace tamber {

/// A colour transform of a placed symbol: a factor in percent and a term for each channel.
class clsFilterEditColor : public FilterRecord<clsFilterEditColor> {
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

    bool operator==(const clsFilterEditColor&) const = default;

    static constexpr auto Fields() {
        using T = clsFilterEditColor;
        return std::tuple{
            Field(u"MultR", &T::MultR, Mixes), Field(u"MultG", &T::MultG, Mixes),
            Field(u"MultB", &T::MultB, Mixes), Field(u"MultA", &T::MultA, Mixes),
            Field(u"AddR", &T::AddR, Mixes),   Field(u"AddG", &T::AddG, Mixes),
            Field(u"AddB", &T::AddB, Mixes),   Field(u"AddA", &T::AddA, Mixes),
        };
    }
};

}  // namespace tamber
