#pragma once

#include "swf/clsSWFTag.h"
#include "swf/tags/clsSWFTFill.h"

namespace tamber {

/// A bitmap tag taken whole out of a movie: code (20, 21, 35 or 36), identifier in 16 bits, and the
/// rest of its body as it stood. One of code 6 has become one of 21, joined with the movie's
/// tables. `ID` is that of the source while reading, later that of the movie being written.
class clsVectorBitmap : public clsSWFTag, public BitmapReference {
public:
    Bytes bufBitmap;

    explicit clsVectorBitmap(Long tagNum) : tagNum_(tagNum) {}

    Long TagNum() const override { return tagNum_; }
    void Save() override;

private:
    Long tagNum_;
};

}  // namespace tamber
