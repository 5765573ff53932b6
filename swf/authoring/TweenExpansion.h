#pragma once

#include <memory>

#include "swf/authoring/KomaTable.h"
#include "swf/authoring/TweenPath.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// Ratio at the end of a tween.
inline constexpr Long FullRatio = 65535;

/// A tween from one key frame to the next.
struct Tween {
    Long Frame = 1;  ///< first frame
    Long Span = 1;   ///< frames up to the next key frame
    std::shared_ptr<clsSWFTagPlaceObject> StartTag;
    std::shared_ptr<clsSWFTagPlaceObject> EndTag;
    const clsLayerObjElement* Element = nullptr;  ///< of the start
    bool blVector = false;                        ///< its placements carry a ratio
    bool blMorph = false;                         ///< its character changes shape with it
    KomaTable* Koma = nullptr;                    ///< of a koma symbol
};

/// Puts one placement on each of the tween's `Span` frames. The end tag is left to the caller. With
/// a `fixedFrame`, one of these frames, the start tag takes the values of that frame and is put on
/// frame 1 alone.
void AddTween(clsSWFAdmin& admin, const Tween& tween, const TweenPath& path, Long fixedFrame = 0);

/// Puts the koma's next picture on a frame, when its turn has come: the old one goes, a copy of
/// `tag` with the new one comes.
void PlaceKoma(clsSWFAdmin& admin, Long frame, const clsSWFTagPlaceObject& tag, KomaTable& koma);

}  // namespace tamber
