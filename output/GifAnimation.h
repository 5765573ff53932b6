#pragma once

#include <gif_lib.h>

#include "output/AnimationFile.h"

namespace tamber {

/// An animated GIF: each picture has 256 colours of its own, and holds what differs from the one
/// before. Its time is told in hundredths of a second, of which programs take no less than two; of
/// faster pictures some are left out.
class GifAnimation : public AnimationFile {
public:
    explicit GifAnimation(const AnimationFormat& format);
    ~GifAnimation() override;

    bool Add(const Raster& picture) override;
    Bytes Finish() override;

private:
    bool Begin();
    /// Writes the picture that waits, shown up to a time in hundredths of a second.
    bool PutWaiting(Long until);
    bool PutPicture(const ChangedBox& box, Long delay);
    bool PutControl(Long delay, Long transparent);
    Long TimeOf(Long picture) const;

    AnimationFormat format_;
    Bytes bytes_;
    GifFileType* gif_ = nullptr;
    /// Pictures taken so far.
    Long count_ = 0;
    /// The picture that is not written yet, since when it is shown, and the one before it.
    Raster waiting_;
    Long since_ = 0;
    Raster shown_;
};

}  // namespace tamber
