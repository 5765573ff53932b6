#pragma once

#include <memory>

#include "document/records/clsPropertySprite.h"
#include "swf/authoring/PlaceObjectFactory.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// Version of the movie from which there is nine-slice scaling.
inline constexpr Long ScalingGridVersion = 8;

/// Corner of a sprite that its positions are counted from.
TimelineOrigin OriginOf(const clsPropertySprite& sprite);

/// An empty timeline for a sprite, which shares the definitions of `admin`; size in twips.
std::shared_ptr<clsSWFAdmin> NewInner(const clsSWFAdmin& admin, Long width, Long height,
                                      Long frameCount);

/// Adds the definition of a sprite whose timeline is written, and its init actions. The result is
/// its identifier.
Long AddSprite(clsSWFAdmin& admin, const std::shared_ptr<clsSWFAdmin>& inner, Long frame);

/// Adds the nine-slice grid of a sprite that has one.
void AddScalingGrid(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long id, Long frame);

}  // namespace tamber
