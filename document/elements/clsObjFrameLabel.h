#pragma once

#include "document/elements/FieldElement.h"
#include "document/elements/SymbolKinds.h"

namespace tamber {

/// A frame's label.
class clsObjFrameLabel : public FieldElement<clsObjFrameLabel> {
public:
    String LabelName;
    bool blAnchor = false;

    Long eType() const override { return KindFrameLabel; }

    static constexpr auto Fields() {
        using T = clsObjFrameLabel;
        return std::tuple{
            Field(u"LabelName", &T::LabelName),
            Group(IfFilled(), Field(u"blAnchor", &T::blAnchor)),
        };
    }
};

}  // namespace tamber
