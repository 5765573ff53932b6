#pragma once

#include "document/records/FieldRecord.h"

namespace tamber {

/// A picture.
class clsPropertyBmp : public FieldRecord<clsPropertyBmp> {
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
    /// From the file: the picture as the movie takes it, the alpha beside a JPEG compressed. Not
    /// stored.
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

    static constexpr auto Fields() {
        using T = clsPropertyBmp;
        return std::tuple{
            Field(u"blToumei", &T::blToumei),
            Field(u"ToumeiColorRed", &T::ToumeiColorRed),
            Field(u"ToumeiColorGreen", &T::ToumeiColorGreen),
            Field(u"ToumeiColorBlue", &T::ToumeiColorBlue),
            Field(u"blShading", &T::blShading),
            Field(u"ShadingType", &T::ShadingType, Words({{1, u"CR"}, {2, u"BL"}}, 0)),
            Field(u"ShadingNum", &T::ShadingNum),
            Field(u"blJpegComp", &T::blJpegComp),
            Field(u"JpegQuality", &T::JpegQuality),
        };
    }
};

}  // namespace tamber
