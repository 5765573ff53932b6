#pragma once

#include <cstddef>
#include <vector>

#include "media/DibInfo.h"
#include "platform/types.h"

namespace tamber {

/// What a picture file holds.
enum class PictureKind : Long { None = 0, Bitmap = 1, Png = 2, Gif = 3, Jpeg = 4 };

/// The one image in memory: a Windows DIB with the transparency that its file tells.
///
/// Depths are 1, 4, 8, 16, 24 and 32 bits. Rows are padded to whole 32-bit words. A 32-bit pixel is
/// blue, green, red, alpha. Copying the object copies the image.
class clsDib {
public:
    PictureKind eType = PictureKind::None;
    String FileName;
    /// The fourth byte of a 32-bit pixel is an alpha of the file's own.
    bool blHasBlend = false;
    /// An entry of the palette is transparent, wholly or in part.
    bool blHasPalTrans = false;
    /// Background behind transparent parts at display.
    RgbQuad BlendColor{255, 255, 255, 255};
    DibInfo dib;
    Bytes Bits;
    /// Alpha plane at work: one byte a pixel, top row first, rows not padded. Empty until
    /// `MkAlphaTable`.
    Bytes ADib;
    /// Transparent entries of a PNG palette, or the transparent index of a GIF.
    Long PalTransCount = 0;
    /// The whole file, for a JPEG only: a movie takes it as it stands.
    Bytes JpegStream;
    /// Every player shows `JpegStream`: grey, or brightness and colour apart, and Huffman coded.
    bool blPlayerJpeg = false;

    /// Reads a picture file. Its extension must be bmp, png, gif, jpg or jpeg in any letter case;
    /// which of the four kinds it is, its first bytes decide. False when it cannot be read, and the
    /// image is then empty.
    bool LoadFromFile(StringView path);
    /// As `LoadFromFile`, from the bytes of a file.
    bool LoadFromMemory(Bytes file);
    /// Makes the image empty, `BlendColor` excepted.
    void Erase();
    /// Writes the colours as a JPEG file, quality 1 to 100. Transparency is dropped.
    bool SaveJpg(StringView path, Long quality) const;

    Long Width() const { return dib.bmiHeader.biWidth; }
    /// Rows, whichever way round they are stored.
    Long Height() const;
    Long BitCount() const { return dib.bmiHeader.biBitCount; }
    bool blBottomUp() const { return dib.bmiHeader.biHeight > 0; }
    bool Empty() const { return Bits.empty(); }
    /// Alpha is in use: `ADib` has a value below 255.
    bool blBlend() const;
    /// Bytes from a row to the next.
    std::size_t Stride() const { return StrideOf(Width(), BitCount()); }
    static std::size_t StrideOf(Long width, Long bits);
    /// Row `y` of the picture, 0 being the top one.
    Byte* Row(Long y) { return Bits.data() + RowOffset(y); }
    const Byte* Row(Long y) const { return Bits.data() + RowOffset(y); }
    /// Colour and alpha of a pixel of a 32-bit image; all zero outside the image.
    RgbQuad Pixel(Long x, Long y) const;
    /// Makes a zeroed image with its top row first.
    void Create(Long width, Long height, Long bits);

    /// Each conversion takes an image of the depth it names and leaves any other as it is. The way
    /// round of the rows stays.
    void Change1to8();
    void Change4to8();
    /// The palette's alpha goes into the pixels.
    void Change8to32();
    /// Pixels of five bits a channel, blue lowest.
    void Change16to32();
    /// Pixels of 16 bits with masks.
    void ChangeBF16to32();
    void Change24to32();
    /// Pixels of 32 bits with masks.
    void ChangeBF32to32();
    /// Conversion of any depth to 8 bits for a palette image, to 32 bits for others.
    void ChangePaletteTo8();
    void ChangeTo32();
    /// Puts the rows the other way round in memory; the picture is the same.
    void ChangeTopBottom();

    /// Makes the image 32 bits deep and `ADib` from the transparency that the file tells.
    void MkAlphaTable();
    /// Puts `ADib`, where there is one, into the pixels' alpha.
    void StoreAlpha();
    /// Weights of the blur along one axis, n + 1 - |d| for d from -n to n. The weight of a pixel at
    /// (x, y) is the product of both axes', and the sum of all is the square of this table's.
    static std::vector<Long> GetAlphaTbl(Long n);
    /// Blurs `ADib` with the weights of `GetAlphaTbl`; pixels beyond an edge count as the edge's.
    /// `n` is held within 0 to `MaxBlur`.
    void BlendAlpha(Long n);
    static constexpr Long MaxBlur = 1000;

    /// A 24-bit copy for display, laid over `BlendColor` by `ADib`; empty before `MkAlphaTable`.
    clsDib BlendedCopy() const;
    /// Kind, header fields and transparency, a line each, for a property dialog.
    String InfoText() const;

private:
    std::size_t RowOffset(Long y) const {
        return static_cast<std::size_t>(blBottomUp() ? Height() - 1 - y : y) * Stride();
    }
    /// Sets depth and row bytes of a new pixel array.
    void SetBits(Bytes bits, Long depth);
    String TransparencyText() const;
};

/// A box in pixels.
struct PictureBox {
    Long Left = 0;
    Long Top = 0;
    Long Width = 0;
    Long Height = 0;
};

/// Where `AjustDraw` shows a picture: in the middle of the box, made smaller in proportion when it
/// is larger than the box, never made larger, and at least a pixel wide and high.
PictureBox AjustDraw(const PictureBox& box, Long width, Long height);

}  // namespace tamber
