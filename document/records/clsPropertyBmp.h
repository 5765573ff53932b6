#pragma once

#include "document/symbols/clsPropertyData.h"

namespace tamber {

/// A picture.
class clsPropertyBmp : public clsPropertyData {
public:
    /// A key colour is transparent.
    bool blToumei = false;
    Byte ToumeiColorRed = 0;
    Byte ToumeiColorGreen = 0;
    Byte ToumeiColorBlue = 0;
    /// Fade the picture: by colour range, or with 2 by blur.
    bool blShading = false;
    Long ShadingType = 1;
    Long ShadingNum = 100;
    /// Compress to JPEG in the movie.
    bool blJpegComp = false;
    Long JpegQuality = 70;
    /// From the file: the picture as the movie takes it. Not stored.
    bool blJpeg = false;
    Bytes bufBmp;
    Bytes bufAlpha;
    Long BitCount = 0;
    Long Width = 0;
    Long height = 0;

    Long ToumeiColor() const {
        return ColorLong(ToumeiColorRed, ToumeiColorGreen, ToumeiColorBlue);
    }
    bool HasAlphaTbl() const { return !bufAlpha.empty(); }
    Long eType() const override { return KindBitmap; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }
};

}  // namespace tamber
