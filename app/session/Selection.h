#pragma once

#include <memory>

#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

/// What a person has selected. Pairs are the first and the last of a range, in either order.
struct Selection {
    /// The sprite or class whose timeline is edited; null for the main one.
    std::shared_ptr<clsSymbolData> Timeline;
    /// Rows of the edited timeline, from 1.
    Long Row1 = 1;
    Long Row2 = 1;
    /// Frames; the frame cursor stands on the first.
    Long Frame1 = 1;
    Long Frame2 = 1;
    /// Rows of the library; 0 when none is selected.
    Long Symbol1 = 0;
    Long Symbol2 = 0;
    /// The key frame that stayed selected when a frame was chosen that no key frame of its row
    /// covers; null behind a choice of one that is covered.
    std::shared_ptr<const clsLayerObject> PassedOver;
};

}  // namespace tamber
