#pragma once

#include "platform/types.h"

namespace tamber {

/// A state of the editor's text.
struct clsTextHistory {
    String Text;
    Long SelStart = 0;
    Long SelLength = 0;
    /// Scroll positions, -1 for none recorded.
    Long ScrollX = -1;
    Long ScrollY = -1;
};

/// The control that shows a text.
class TextControl {
public:
    virtual ~TextControl() = default;

    virtual clsTextHistory Capture() const = 0;
    /// Shows a text with its selection and scroll positions.
    virtual void Restore(const clsTextHistory& state) = 0;
};

}  // namespace tamber
