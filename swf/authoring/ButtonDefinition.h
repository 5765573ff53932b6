#pragma once

#include "document/records/clsPropertyButton.h"
#include "document/symbols/clsSymbolData.h"
#include "swf/authoring/clsSWFAdmin.h"
#include "swf/tags/clsSWFTagDefineButton.h"

namespace tamber {

/// A drawing of a plain rectangle, as the hit area of a button that has none: of the size, in
/// pixels, and the place of what its up state shows. Null when that has no size.
std::shared_ptr<clsSymbolData> NewHitRect(const clsSymbolData& up);

/// Identifiers of what a button's states show, 0 for none.
struct ButtonCharacters {
    Long HitTest = 0;
    Long Down = 0;
    Long Over = 0;
    Long Up = 0;
};

/// A new DefineButton2 of a button, without actions.
std::shared_ptr<clsSWFTagDefineButton> GetNewButton(clsSWFAdmin& admin,
                                                    const clsPropertyButton& button,
                                                    const ButtonCharacters& characters, Long depth);

}  // namespace tamber
