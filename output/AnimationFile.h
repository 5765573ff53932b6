#pragma once

#include <memory>

#include "canvas/picture/Raster.h"

namespace tamber {

/// What all pictures of an animation have in common.
struct AnimationFormat {
    Long Width = 0;
    Long Height = 0;
    /// Pictures a second, 1/256 to 255.
    double Rate = 12;
    /// Rounds; 0 for ever.
    Long Loops = 0;
    bool blTransparent = false;
};

/// A file of pictures that follow each other. It holds the packed pictures and the last one alone.
class AnimationFile {
public:
    virtual ~AnimationFile() = default;

    /// Appends a picture of the format's size. False when it cannot be packed.
    virtual bool Add(const Raster& picture) = 0;
    /// The file's bytes, once; empty when they cannot be made.
    virtual Bytes Finish() = 0;
};

/// By the extension of a path: gif, png or webp in any letter case; null for others.
std::unique_ptr<AnimationFile> MakeAnimationFile(StringView path, const AnimationFormat& format);

/// The box of the pixels that differ, as left, top, width and height; no width where none does.
struct ChangedBox {
    Long Left = 0;
    Long Top = 0;
    Long Width = 0;
    Long Height = 0;
};
ChangedBox ChangeBetween(const Raster& from, const Raster& to);
/// The pixels of a box.
Raster PartOf(const Raster& picture, const ChangedBox& box);

}  // namespace tamber
