#pragma once

#include "swf/clsSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// DefineBitsLossless or DefineBitsLossless2: identifier, format, width, height, for colour-mapped
/// pictures a byte 255 (a palette of 256 entries), then the zlib stream of the pixels.
class clsSWFTagDefineBitsLossless : public clsSWFTag {
public:
    Long Ver = 2;
    Long ID = 0;
    Long Format = 0;  ///< 3 colour-mapped, 4 15-bit, 5 32-bit
    Long Width = 0;
    Long height = 0;

    /// Takes a finished zlib stream. Bit counts other than 8, 16 and 32 leave the tag unset.
    void SetBitmap(Bytes stream, Long bitCount);

    Long TagNum() const override {
        return Ver == 1 ? TagCode::DefineBitsLossless : TagCode::DefineBitsLossless2;
    }
    void Save() override;

private:
    Bytes pixels_;
};

}  // namespace tamber
