#pragma once

#include <memory>

#include "document/elements/clsLayerObjElement.h"
#include "swf/tags/clsSWFTagPlaceObject.h"

namespace tamber {

/// Corner of the stage or sprite that positions are counted from, in pixels.
struct TimelineOrigin {
    Single X = 0;
    Single Y = 0;
};

/// A placement of an element in a movie of `version`. `placeID` 0 moves what stands at the depth;
/// `previous` is the element that stood there before, or null.
std::shared_ptr<clsSWFTagPlaceObject> NewPlaceObject(Long version, Long placeID, Long depth,
                                                     const clsLayerObjElement& element,
                                                     TimelineOrigin origin,
                                                     const clsLayerObjElement* previous);

}  // namespace tamber
