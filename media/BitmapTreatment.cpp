#include "media/BitmapTreatment.h"

#include <algorithm>
#include <utility>

#include "media/JpegWriter.h"
#include "media/LosslessPixels.h"
#include "swf/mdlZlib.h"

namespace tamber {

namespace {

/// Quality of a JPEG that must be compressed again although nobody asked for it: high enough that
/// the loss is not seen.
constexpr Long KeepingQuality = 95;

/// Alpha that the key colour gives to a colour.
class KeyColour {
public:
    explicit KeyColour(const BitmapOptions& options) : options_(options) {
        const bool range = options.blShading && options.ShadingType != ShadingBlur;
        const std::int64_t radius = range ? options.ShadingNum : 0;
        divisor_ = radius * radius + 1;
    }

    /// The squared distance to the key colour against the squared radius; with a radius of 0 the
    /// key colour alone is transparent.
    Byte Alpha(Byte red, Byte green, Byte blue) const {
        const std::int64_t distance = Squared(red - options_.ToumeiColorRed) +
                                      Squared(green - options_.ToumeiColorGreen) +
                                      Squared(blue - options_.ToumeiColorBlue);
        return distance < divisor_ ? static_cast<Byte>(distance * 255 / divisor_) : Byte{255};
    }

private:
    static std::int64_t Squared(int value) { return static_cast<std::int64_t>(value) * value; }

    const BitmapOptions& options_;
    std::int64_t divisor_;
};

bool IsBlurred(const BitmapOptions& options) {
    return options.blToumei && options.blShading && options.ShadingType == ShadingBlur;
}

/// Gives each pixel the lower of its alpha and the one that the key colour gives it.
void KeyOutPixels(clsDib& dib, const BitmapOptions& options) {
    const KeyColour key(options);
    const auto width = static_cast<std::size_t>(dib.Width());
    Byte* alpha = dib.ADib.data();
    for (Long y = 0; y < dib.Height(); ++y) {
        const Byte* pixel = dib.Row(y);
        for (std::size_t x = 0; x < width; ++x, pixel += 4, ++alpha)
            *alpha = std::min(*alpha, key.Alpha(pixel[2], pixel[1], pixel[0]));
    }
}

/// A blur spreads alpha to pixels around. What the file itself hides must not come to light by it.
void KeepHidden(clsDib& dib) {
    const auto width = static_cast<std::size_t>(dib.Width());
    Byte* alpha = dib.ADib.data();
    for (Long y = 0; y < dib.Height(); ++y) {
        const Byte* pixel = dib.Row(y);
        for (std::size_t x = 0; x < width; ++x, pixel += 4, ++alpha)
            *alpha = std::min(*alpha, pixel[3]);
    }
}

void KeyOutPalette(clsDib& dib, const BitmapOptions& options) {
    const KeyColour key(options);
    for (RgbQuad& color : dib.dib.bmiColors)
        color.rgbReserved =
            std::min(color.rgbReserved, key.Alpha(color.rgbRed, color.rgbGreen, color.rgbBlue));
}

/// A player takes the colours beside an alpha plane as multiplied by it already, and holds each at
/// the alpha's value at most. For an alpha of 0 or 255 that shows a JPEG file's own colours right;
/// for one in between they would shine through.
bool HasPartialAlpha(const clsDib& dib) {
    return std::any_of(dib.ADib.begin(), dib.ADib.end(),
                       [](Byte alpha) { return alpha > 0 && alpha < 255; });
}

bool CompressTreated(clsDib& dib, const BitmapOptions& options, Bytes& stream) {
    dib.StoreAlpha();
    PremultiplyColours(dib);
    return options.blJpegComp ? WriteJpeg(dib, options.JpegQuality, JpegColour::Halved, stream)
                              : WriteJpeg(dib, KeepingQuality, JpegColour::Full, stream);
}

bool MakeJpeg(clsDib& dib, const BitmapOptions& options, BitmapBuffers& buffers) {
    buffers.blJpeg = true;
    const bool compress = options.blJpegComp || !dib.blPlayerJpeg;
    if (compress || options.blToumei) TreatAlpha(dib, options);
    if (!compress && !HasPartialAlpha(dib))
        buffers.bufBmp = std::move(dib.JpegStream);
    else if (!CompressTreated(dib, options, buffers.bufBmp))
        return false;
    if (dib.blBlend()) buffers.bufAlpha = mdlZlib::ZlibCompress(dib.ADib);
    return true;
}

/// Palette images stay so as long as the palette can tell the transparency, and five bits a
/// channel as long as there is none.
void MakeLossless(clsDib& dib, const BitmapOptions& options, BitmapBuffers& buffers) {
    dib.ChangePaletteTo8();
    const bool fiveBits = dib.BitCount() == 16 && dib.dib.bmiHeader.biCompression == DibRgb;
    if (dib.BitCount() == 8 && !IsBlurred(options)) {
        if (options.blToumei) KeyOutPalette(dib, options);
    } else if (options.blToumei) {
        TreatAlpha(dib, options);
        dib.StoreAlpha();
    } else if (!fiveBits) {
        dib.ChangeTo32();
    }
    buffers.BitCount = dib.BitCount();
    buffers.bufBmp = mdlZlib::ZlibCompress(LosslessPixels(std::move(dib)));
}

}  // namespace

void TreatAlpha(clsDib& dib, const BitmapOptions& options) {
    dib.MkAlphaTable();
    if (!options.blToumei) return;
    KeyOutPixels(dib, options);
    if (!IsBlurred(options)) return;
    dib.BlendAlpha(options.ShadingNum);
    KeepHidden(dib);
}

bool PrepareBitmap(clsDib dib, const BitmapOptions& options, BitmapBuffers& buffers) {
    if (dib.Empty()) return false;
    BitmapBuffers made;
    made.Width = dib.Width();
    made.height = dib.Height();
    made.BitCount = dib.BitCount();
    if (!options.blJpegComp && dib.eType != PictureKind::Jpeg)
        MakeLossless(dib, options, made);
    else if (!MakeJpeg(dib, options, made))
        return false;
    buffers = std::move(made);
    return true;
}

bool SetBitmapData(StringView path, const BitmapOptions& options, BitmapBuffers& buffers) {
    clsDib dib;
    return dib.LoadFromFile(path) && PrepareBitmap(std::move(dib), options, buffers);
}

}  // namespace tamber
