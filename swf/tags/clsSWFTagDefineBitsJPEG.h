#pragma once

#include "swf/clsSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// DefineBitsJPEG2 (identifier, FF D9 FF D8, stream) or, with an alpha plane, DefineBitsJPEG3
/// (identifier, offset of the alpha data, the same, the zlib stream of the plane).
class clsSWFTagDefineBitsJPEG : public clsSWFTag {
public:
    Long ID = 0;

    /// The whole JPEG stream, its own SOI included.
    void bufJpeg(Bytes stream) { jpeg_ = std::move(stream); }
    /// The zlib stream of one byte of alpha a pixel.
    void bufAlpha(Bytes stream) {
        alpha_ = std::move(stream);
        ver_ = 3;
    }

    Long Ver() const { return ver_; }
    Long TagNum() const override {
        return ver_ == 2 ? TagCode::DefineBitsJPEG2 : TagCode::DefineBitsJPEG3;
    }
    void Save() override;

private:
    Long ver_ = 2;
    Bytes jpeg_;
    Bytes alpha_;
};

}  // namespace tamber
