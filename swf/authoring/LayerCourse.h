#pragma once

#include <cstdint>

#include "document/symbols/clsLayer.h"

namespace tamber {

/// How a key frame comes to show what it shows.
struct KeyFrameStand {
    Long Index = 0;        ///< of the key frame; 0: nothing stands
    bool blShown = false;  ///< a hidden key frame clears the layer
    bool blAnew = true;    ///< nothing stands on the layer from the key frames before
    bool blTween = false;  ///< a tween to the next key frame begins
    /// The character is the one that the key frame before shows.
    bool blSame = false;
    /// That character has come to the end of a tween.
    bool blEnded = false;
    /// Key frame for whose outline the character is made; 0 for the layer's own character.
    Long Owner = 0;
    /// It stands until the next key frame takes over.
    bool blStays = false;
    /// Pictures that the layer has shown, since it stands, up to this key frame.
    std::int64_t PicturesBefore = 0;
};

/// What a layer shows from key frame to key frame. The whole movie, and any one frame of it, go by
/// this.
class LayerCourse {
public:
    explicit LayerCourse(const clsLayer& layer);

    /// Key frame `index`, behind that of `before` (or none); elements that are not placed lie
    /// between them at most.
    KeyFrameStand Next(const KeyFrameStand& before, Long index) const;
    /// What is seen on a frame; `Index` 0 for nothing. Whether it stood before is not told.
    KeyFrameStand On(Long frame) const;

    /// Frames of the key frame at `index`: its span, cut where the next one begins. Spans overlap
    /// in damaged files, and where frames were taken out over the end of one.
    Long SpanOf(Long index) const;
    /// The key frame at `index` is a tween's start: shown, and with one behind it.
    bool OpensTween(Long index) const;
    /// Frames that each picture of a koma stays; 0 for a layer of one picture.
    Long FramesAPicture() const { return framesAPicture_; }
    /// The picture, counted from `PicturesBefore`, that stands `offset` frames behind the first of
    /// a span.
    std::int64_t PictureAt(const KeyFrameStand& stand, Long offset) const;

private:
    bool IsDeformed(Long index) const;
    bool NeedsOwnCharacter(Long index) const;
    bool ReachesNext(Long index) const;
    std::int64_t PicturesIn(const KeyFrameStand& stand) const;
    KeyFrameStand At(Long index) const;
    Long PastOf(Long index) const;

    const clsLayer& layer_;
    bool drawing_;
    Long framesAPicture_;
};

}  // namespace tamber
