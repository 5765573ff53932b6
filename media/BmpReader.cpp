#include "media/BmpReader.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>

#include "media/BmpRle.h"
#include "media/PictureLimits.h"

namespace tamber {

namespace {

constexpr std::size_t FileHeaderSize = 14;
constexpr std::uint32_t CoreHeaderSize = 12;
constexpr std::uint32_t InfoHeaderSize = 40;
/// Header with the masks of red, green and blue, and the one with alpha's as well.
constexpr std::uint32_t RgbMaskHeaderSize = 52;
constexpr std::uint32_t AlphaMaskHeaderSize = 56;

constexpr std::uint32_t CompressionRle8 = 1;
constexpr std::uint32_t CompressionRle4 = 2;
constexpr std::uint32_t CompressionAlphaBitFields = 6;

/// Two bytes of run-length code stand for 255 pixels at most.
constexpr std::int64_t RlePixelsPerByte = 128;

class BmpFile {
public:
    BmpFile(ByteView file, clsDib& dib) : file_(file), header_(dib.dib.bmiHeader), dib_(dib) {}

    bool Read() {
        if (!Has(0, FileHeaderSize + 4)) return false;
        headerSize_ = U32(FileHeaderSize);
        const bool core = headerSize_ == CoreHeaderSize;
        if (!(core ? ReadCoreHeader() : ReadInfoHeader())) return false;
        if (header_.biPlanes != 1 || !SizeAllowed() || !DepthAllowed()) return false;
        if (!ReadMasks()) return false;
        FindPixels(core ? 3 : 4);
        ReadPalette(core ? 3 : 4);
        return IsRle() ? ReadRunLength() : ReadRows();
    }

private:
    bool Has(std::size_t at, std::size_t count) const {
        return at <= file_.size() && count <= file_.size() - at;
    }
    std::uint16_t U16(std::size_t at) const {
        return static_cast<std::uint16_t>(file_[at] | file_[at + 1] << 8);
    }
    std::uint32_t U32(std::size_t at) const {
        return U16(at) | static_cast<std::uint32_t>(U16(at + 2)) << 16;
    }
    Long I32(std::size_t at) const { return static_cast<Long>(U32(at)); }

    bool ReadCoreHeader() {
        if (!Has(FileHeaderSize, CoreHeaderSize)) return false;
        header_.biWidth = U16(18);
        header_.biHeight = U16(20);
        header_.biPlanes = U16(22);
        header_.biBitCount = U16(24);
        return true;
    }

    bool ReadInfoHeader() {
        constexpr std::uint32_t sizes[] = {
            InfoHeaderSize, RgbMaskHeaderSize, AlphaMaskHeaderSize, 64, 108, 124};
        if (std::find(std::begin(sizes), std::end(sizes), headerSize_) == std::end(sizes) ||
            !Has(FileHeaderSize, headerSize_))
            return false;
        header_.biWidth = I32(18);
        header_.biHeight = I32(22);
        header_.biPlanes = U16(26);
        header_.biBitCount = U16(28);
        header_.biCompression = U32(30);
        header_.biXPelsPerMeter = I32(38);
        header_.biYPelsPerMeter = I32(42);
        header_.biClrUsed = U32(46);
        header_.biClrImportant = U32(50);
        return true;
    }

    bool SizeAllowed() const {
        const std::int64_t rows = header_.biHeight;
        return PictureSizeAllowed(header_.biWidth, rows < 0 ? -rows : rows);
    }

    bool IsRle() const {
        return header_.biCompression == CompressionRle8 || header_.biCompression == CompressionRle4;
    }

    bool DepthAllowed() const {
        const int bits = header_.biBitCount;
        switch (header_.biCompression) {
            case DibRgb:
                return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 ||
                       bits == 32;
            case CompressionRle8:
                return bits == 8;
            case CompressionRle4:
                return bits == 4;
            case DibBitFields:
            case CompressionAlphaBitFields:
                return bits == 16 || bits == 32;
            default:
                return false;
        }
    }

    /// The masks stand behind a 40-byte header and, at the same place, within a longer one.
    bool ReadMasks() {
        afterHeader_ = FileHeaderSize + headerSize_;
        if (header_.biCompression != DibBitFields &&
            header_.biCompression != CompressionAlphaBitFields)
            return true;
        const bool alpha = header_.biCompression == CompressionAlphaBitFields ||
                           headerSize_ >= AlphaMaskHeaderSize;
        const std::size_t count = alpha ? 4 : 3;
        const std::size_t at = FileHeaderSize + InfoHeaderSize;
        if (!Has(at, count * 4)) return false;
        for (std::size_t i = 0; i < count; ++i) dib_.dib.bmiMasks[i] = U32(at + i * 4);
        afterHeader_ = std::max(afterHeader_, at + count * 4);
        header_.biCompression = DibBitFields;
        if (!std::all_of(dib_.dib.bmiMasks.begin(), dib_.dib.bmiMasks.end(),
                         [this](std::uint32_t mask) { return MaskAllowed(mask); }))
            return false;
        if (header_.biBitCount == 16 && IsFiveBits()) header_.biCompression = DibRgb;
        return true;
    }

    /// A mask is one run of bits within the pixel, or none.
    bool MaskAllowed(std::uint32_t mask) const {
        if (mask == 0) return true;
        const std::uint32_t run = mask >> std::countr_zero(mask);
        return (run & (run + 1)) == 0 && (header_.biBitCount == 32 || mask <= 0xFFFF);
    }

    bool IsFiveBits() const {
        return dib_.dib.bmiMasks == std::array<std::uint32_t, 4>{0x7C00, 0x03E0, 0x001F, 0};
    }

    std::size_t PaletteEntries() const {
        if (header_.biBitCount > 8) return 0;
        const std::size_t full = std::size_t{1} << header_.biBitCount;
        return header_.biClrUsed == 0 ? full : std::min<std::size_t>(header_.biClrUsed, full);
    }

    /// A file may leave the offset of its pixels 0: they then follow the palette.
    void FindPixels(std::size_t entrySize) {
        pixels_ = U32(10);
        if (pixels_ == 0) pixels_ = afterHeader_ + PaletteEntries() * entrySize;
    }

    /// Some files state more entries than stand between header and pixels.
    void ReadPalette(std::size_t entrySize) {
        const std::size_t end = std::min(pixels_, file_.size());
        const std::size_t room = end > afterHeader_ ? (end - afterHeader_) / entrySize : 0;
        const std::size_t count = std::min(PaletteEntries(), room);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t at = afterHeader_ + i * entrySize;
            dib_.dib.bmiColors[i] = RgbQuad{file_[at], file_[at + 1], file_[at + 2], 255};
        }
        header_.biClrUsed = static_cast<std::uint32_t>(count);
    }

    bool ReadRows() {
        const std::size_t size = dib_.Stride() * static_cast<std::size_t>(dib_.Height());
        if (!Has(pixels_, size)) return false;
        dib_.Bits.assign(file_.begin() + static_cast<std::ptrdiff_t>(pixels_),
                         file_.begin() + static_cast<std::ptrdiff_t>(pixels_ + size));
        header_.biSizeImage = static_cast<std::uint32_t>(size);
        DecideAlpha();
        return true;
    }

    /// An alpha mask whose bits are 0 in every pixel comes from programs that leave them unset.
    void DecideAlpha() {
        std::uint32_t& mask = dib_.dib.bmiMasks[3];
        if (header_.biCompression != DibBitFields || mask == 0) {
            if (header_.biBitCount == 32 && header_.biCompression == DibRgb) FillAlpha();
            return;
        }
        dib_.blHasBlend = AnyBit(mask);
        if (!dib_.blHasBlend) mask = 0;
    }

    bool AnyBit(std::uint32_t mask) const {
        const std::size_t bytes = header_.biBitCount / 8;
        const auto width = static_cast<std::size_t>(dib_.Width());
        for (Long y = 0; y < dib_.Height(); ++y) {
            const Byte* pixel = dib_.Row(y);
            for (std::size_t x = 0; x < width; ++x, pixel += bytes) {
                std::uint32_t value = 0;
                for (std::size_t i = 0; i < bytes; ++i)
                    value |= static_cast<std::uint32_t>(pixel[i]) << (8 * i);
                if ((value & mask) != 0) return true;
            }
        }
        return false;
    }

    /// Without an alpha mask the fourth byte of a pixel means nothing.
    void FillAlpha() {
        for (std::size_t at = 3; at < dib_.Bits.size(); at += 4) dib_.Bits[at] = 255;
    }

    bool ReadRunLength() {
        const std::int64_t area = static_cast<std::int64_t>(dib_.Width()) * dib_.Height();
        if (!Has(pixels_, 0) || !PictureFillsFile(area, file_.size(), RlePixelsPerByte))
            return false;
        const Long codedBits = header_.biBitCount;
        const Long height = header_.biHeight;
        dib_.Create(dib_.Width(), dib_.Height(), 8);
        header_.biHeight = height;
        return DecodeBmpRle(file_.subspan(pixels_), codedBits, dib_);
    }

    ByteView file_;
    DibHeader& header_;
    clsDib& dib_;
    std::uint32_t headerSize_ = 0;
    std::size_t afterHeader_ = 0;
    std::size_t pixels_ = 0;
};

}  // namespace

bool ReadBmp(ByteView file, clsDib& dib) {
    return BmpFile(file, dib).Read();
}

}  // namespace tamber
