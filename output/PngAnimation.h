#pragma once

#include "output/AnimationFile.h"

namespace tamber {

/// An animated PNG: a PNG file of the first picture, with a chunk `acTL` that counts the pictures
/// and, before each picture, one `fcTL` of its place and time; the later ones stand in `fdAT`.
/// Each holds what differs from the one before.
class PngAnimation : public AnimationFile {
public:
    explicit PngAnimation(const AnimationFormat& format) : format_(format) {}

    bool Add(const Raster& picture) override;
    Bytes Finish() override;

private:
    void PutControl(const ChangedBox& box);

    AnimationFormat format_;
    /// From the first picture's control on.
    Bytes chunks_;
    Bytes head_;
    Raster shown_;
    std::uint32_t sequence_ = 0;
    std::uint32_t count_ = 0;
};

}  // namespace tamber
