#pragma once

#include <memory>

#include "swf/authoring/PlaceObjectFactory.h"
#include "swf/authoring/SpanPictures.h"
#include "swf/authoring/TweenPath.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// Ratio at the end of a tween.
inline constexpr Long FullRatio = 65535;

/// The character that stands changes its shape with the ratio: the symbol's own morph, or the
/// outlines that the key frames give it.
bool Morphs(const clsLayer& layer, const KeyFrameStand& stand);

/// A tween from one key frame to the next.
struct Tween {
    /// That of a layer's key frame that opens one, with the placements of its two ends.
    Tween(const clsLayer& layer, const LayerCourse& course, const KeyFrameStand& stand,
          std::shared_ptr<clsSWFTagPlaceObject> startTag,
          std::shared_ptr<clsSWFTagPlaceObject> endTag);

    Long Frame;  ///< first frame
    Long Span;   ///< frames up to the next key frame
    std::shared_ptr<clsSWFTagPlaceObject> StartTag;
    std::shared_ptr<clsSWFTagPlaceObject> EndTag;
    const clsLayerObjElement* Element;  ///< of the start
    bool blVector;                      ///< its placements carry a ratio
    bool blMorph;                       ///< its symbol is a morph
    bool blPictures;                    ///< pictures are placed anew within it
};

/// The way from the key frame at `index` of a layer to the next.
TweenPath TweenPathOf(const clsLayer& layer, Long index, TimelineOrigin origin);

/// Puts one placement on each of the tween's `Span` frames. The end tag is left to the caller.
void AddTween(clsSWFAdmin& admin, const Tween& tween, const TweenPath& path,
              const SpanPictures& pictures);

/// Gives the start tag the values of the frame `offset` frames behind the tween's first, and puts
/// it on frame 1.
void AddTweenFrame(clsSWFAdmin& admin, const Tween& tween, const TweenPath& path, Long offset);

/// Puts a picture on a frame: the old one goes, a copy of `tag` with character `id` comes.
void PlacePicture(clsSWFAdmin& admin, Long frame, const clsSWFTagPlaceObject& tag, Long id);

}  // namespace tamber
