#pragma once

#include "document/records/clsPropertyText.h"
#include "swf/tags/clsFontAdmin.h"

namespace tamber {

/// Works out the boxes of texts from their fonts; keeps the glyphs that it has met.
class TextMeasure {
public:
    /// Sets `Width` and `height` of a text, pixels: those of its lines as they are set, with the
    /// margin that a text field has; the outline's for a text that follows one. A text field of a
    /// fixed size keeps its own.
    void SetTextSize(clsPropertyText& text);

private:
    clsFontAdmin fonts_;
};

}  // namespace tamber
