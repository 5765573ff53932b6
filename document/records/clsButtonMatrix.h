#pragma once

#include "document/cells/Fields.h"
#include "effects/filters/clsFilterEditColor.h"

namespace tamber {

/// Where and in which colours a button shows a state. Positions are pixels.
class clsButtonMatrix {
public:
    Long TranslatePosX = 0;
    Long TranslatePosY = 0;
    clsFilterEditColor EditColor;

    bool CkDefault() const { return *this == clsButtonMatrix(); }
    /// A flag, and the values only when they aren't the defaults.
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsButtonMatrix&) const = default;

    static constexpr auto Fields() {
        using T = clsButtonMatrix;
        return std::tuple{
            Field(u"TranslatePosX", &T::TranslatePosX),
            Field(u"TranslatePosY", &T::TranslatePosY),
            Record(u"EditColor", u"", &T::EditColor),
        };
    }
};

}  // namespace tamber
