#include "media/clsDib.h"

#include <algorithm>
#include <utility>

#include "media/BmpReader.h"
#include "media/GifReader.h"
#include "media/JpegReader.h"
#include "media/JpegWriter.h"
#include "media/PngReader.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

bool StartsWith(ByteView file, std::initializer_list<Byte> signature) {
    return file.size() >= signature.size() &&
           std::equal(signature.begin(), signature.end(), file.begin());
}

PictureKind KindOfContent(ByteView file) {
    if (StartsWith(file, {'B', 'M'})) return PictureKind::Bitmap;
    if (StartsWith(file, {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A})) return PictureKind::Png;
    if (StartsWith(file, {'G', 'I', 'F', '8'})) return PictureKind::Gif;
    if (StartsWith(file, {0xFF, 0xD8, 0xFF})) return PictureKind::Jpeg;
    return PictureKind::None;
}

bool ReadKind(PictureKind kind, ByteView file, clsDib& dib) {
    switch (kind) {
        case PictureKind::Bitmap:
            return ReadBmp(file, dib);
        case PictureKind::Png:
            return ReadPng(file, dib);
        case PictureKind::Gif:
            return ReadGif(file, dib);
        case PictureKind::Jpeg:
            return ReadJpeg(file, dib);
        case PictureKind::None:
            break;
    }
    return false;
}

bool IsPictureExtension(StringView extension) {
    const String folded = FoldCase(extension);
    return folded == u"bmp" || folded == u"png" || folded == u"gif" || folded == u"jpg" ||
           folded == u"jpeg";
}

StringView KindText(PictureKind kind) {
    switch (kind) {
        case PictureKind::Bitmap:
            return u"Bitmap";
        case PictureKind::Png:
            return u"PNG";
        case PictureKind::Gif:
            return u"GIF";
        case PictureKind::Jpeg:
            return u"JPEG";
        case PictureKind::None:
            break;
    }
    return u"UnKnown";
}

Byte Blend(Byte pixel, Byte alpha, Byte background) {
    return static_cast<Byte>((pixel * alpha + (255 - alpha) * background) / 255);
}

}  // namespace

bool clsDib::LoadFromFile(StringView path) {
    Erase();
    if (!IsPictureExtension(GetFileExt(path))) return false;
    Bytes file;
    if (!ReadFileBytes(path, file) || !LoadFromMemory(std::move(file))) return false;
    FileName = path;
    return true;
}

bool clsDib::LoadFromMemory(Bytes file) {
    Erase();
    const PictureKind kind = KindOfContent(file);
    if (!ReadKind(kind, file, *this)) {
        Erase();
        return false;
    }
    eType = kind;
    if (kind == PictureKind::Jpeg) JpegStream = std::move(file);
    return true;
}

void clsDib::Erase() {
    const RgbQuad background = BlendColor;
    *this = clsDib();
    BlendColor = background;
}

bool clsDib::SaveJpg(StringView path, Long quality) const {
    clsDib pixels = *this;
    pixels.ChangeTo32();
    Bytes stream;
    return WriteJpeg(pixels, quality, JpegColour::Halved, stream) && WriteFileBytes(stream, path);
}

Long clsDib::Height() const {
    return blBottomUp() ? dib.bmiHeader.biHeight : -dib.bmiHeader.biHeight;
}

bool clsDib::blBlend() const {
    return std::any_of(ADib.begin(), ADib.end(), [](Byte alpha) { return alpha < 255; });
}

std::size_t clsDib::StrideOf(Long width, Long bits) {
    const auto rowBits = static_cast<std::size_t>(width) * static_cast<std::size_t>(bits);
    return (rowBits + 31) / 32 * 4;
}

RgbQuad clsDib::Pixel(Long x, Long y) const {
    if (BitCount() != 32 || x < 0 || y < 0 || x >= Width() || y >= Height())
        return RgbQuad{0, 0, 0, 0};
    const Byte* pixel = Row(y) + static_cast<std::size_t>(x) * 4;
    return RgbQuad{pixel[0], pixel[1], pixel[2], pixel[3]};
}

void clsDib::Create(Long width, Long height, Long bits) {
    dib.bmiHeader.biWidth = width;
    dib.bmiHeader.biHeight = -height;
    SetBits(Bytes(StrideOf(width, bits) * static_cast<std::size_t>(height)), bits);
}

void clsDib::SetBits(Bytes bits, Long depth) {
    Bits = std::move(bits);
    dib.bmiHeader.biBitCount = static_cast<std::uint16_t>(depth);
    dib.bmiHeader.biCompression = DibRgb;
    dib.bmiHeader.biSizeImage = static_cast<std::uint32_t>(Bits.size());
}

void clsDib::MkAlphaTable() {
    ChangeTo32();
    const auto width = static_cast<std::size_t>(Width());
    ADib.resize(width * static_cast<std::size_t>(Height()));
    Byte* alpha = ADib.data();
    for (Long y = 0; y < Height(); ++y) {
        const Byte* row = Row(y);
        for (std::size_t x = 0; x < width; ++x) *alpha++ = row[x * 4 + 3];
    }
}

void clsDib::StoreAlpha() {
    if (ADib.empty()) return;
    const auto width = static_cast<std::size_t>(Width());
    const Byte* alpha = ADib.data();
    for (Long y = 0; y < Height(); ++y) {
        Byte* row = Row(y);
        for (std::size_t x = 0; x < width; ++x) row[x * 4 + 3] = *alpha++;
    }
}

clsDib clsDib::BlendedCopy() const {
    clsDib copy;
    if (ADib.empty()) return copy;
    copy.Create(Width(), Height(), 24);
    const auto width = static_cast<std::size_t>(Width());
    const Byte* alpha = ADib.data();
    for (Long y = 0; y < Height(); ++y) {
        const Byte* source = Row(y);
        Byte* target = copy.Row(y);
        for (std::size_t x = 0; x < width; ++x, source += 4, target += 3, ++alpha) {
            target[0] = Blend(source[0], *alpha, BlendColor.rgbBlue);
            target[1] = Blend(source[1], *alpha, BlendColor.rgbGreen);
            target[2] = Blend(source[2], *alpha, BlendColor.rgbRed);
        }
    }
    return copy;
}

String clsDib::InfoText() const {
    const DibHeader& header = dib.bmiHeader;
    const std::pair<StringView, std::int64_t> lines[] = {
        {u"biSize         ：", header.biSize},
        {u"biWidth        ：", header.biWidth},
        {u"biHeight       ：", Height()},
        {u"biPlanes       ：", header.biPlanes},
        {u"biBitCount     ：", header.biBitCount},
        {u"biCompression  ：", header.biCompression},
        {u"biSizeImage    ：", header.biSizeImage},
        {u"biXPelsPerMeter：", header.biXPelsPerMeter},
        {u"biYPelsPerMeter：", header.biYPelsPerMeter},
        {u"biClrUsed      ：", header.biClrUsed},
        {u"biClrImportant ：", header.biClrImportant},
    };
    String text(KindText(eType));
    text += vbCrLf;
    for (const auto& [label, value] : lines) {
        text += label;
        text += ToText(static_cast<Long>(value));
        text += vbCrLf;
    }
    return text + TransparencyText();
}

String clsDib::TransparencyText() const {
    if (blHasPalTrans) return u"透過情報有り[" + ToText(PalTransCount) + u"](パレット)";
    return blHasBlend ? u"透過情報有り" : u"";
}

PictureBox AjustDraw(const PictureBox& box, Long width, Long height) {
    std::int64_t w = std::max(width, 1);
    std::int64_t h = std::max(height, 1);
    if (w > box.Width || h > box.Height) {
        const bool widthDecides = w * box.Height >= h * box.Width;
        const std::int64_t scaledHeight = h * box.Width / w;
        const std::int64_t scaledWidth = w * box.Height / h;
        w = std::max<std::int64_t>(widthDecides ? box.Width : scaledWidth, 1);
        h = std::max<std::int64_t>(widthDecides ? scaledHeight : box.Height, 1);
    }
    const auto fitWidth = static_cast<Long>(w);
    const auto fitHeight = static_cast<Long>(h);
    return PictureBox{box.Left + (box.Width - fitWidth) / 2, box.Top + (box.Height - fitHeight) / 2,
                      fitWidth, fitHeight};
}

}  // namespace tamber
