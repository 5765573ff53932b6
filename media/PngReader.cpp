#include "media/PngReader.h"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstring>

#include "media/PictureLimits.h"

namespace tamber {

namespace {

/// Deflate makes at most 1032 bytes out of one.
constexpr std::int64_t DeflateRatio = 1032;

/// libpng leaves a function that fails by longjmp, so what needs releasing is held here, and the
/// functions that call libpng hold nothing of their own.
class PngDecoder {
public:
    PngDecoder(ByteView file, clsDib& dib) : rest_(file), fileSize_(file.size()), dib_(dib) {}
    ~PngDecoder() { png_destroy_read_struct(&png_, &info_, nullptr); }
    PngDecoder(const PngDecoder&) = delete;
    PngDecoder& operator=(const PngDecoder&) = delete;

    bool Decode() {
        if (!Open() || !ReadHeader()) return false;
        dib_.Create(static_cast<Long>(width_), static_cast<Long>(height_), palette_ ? 8 : 32);
        rows_.resize(height_);
        for (std::size_t y = 0; y < height_; ++y) rows_[y] = dib_.Row(static_cast<Long>(y));
        if (!ReadRows()) return false;
        StoreInfo();
        return true;
    }

private:
    static void Fail(png_structp png, png_const_charp) { png_longjmp(png, 1); }
    static void Warn(png_structp, png_const_charp) {}

    static void ReadBytes(png_structp png, png_bytep target, png_size_t count) {
        ByteView& rest = static_cast<PngDecoder*>(png_get_io_ptr(png))->rest_;
        if (count > rest.size()) png_error(png, "end of data");
        std::memcpy(target, rest.data(), count);
        rest = rest.subspan(count);
    }

    bool Open() {
        png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, Fail, Warn);
        if (png_ != nullptr) info_ = png_create_info_struct(png_);
        return info_ != nullptr;
    }

    bool ReadHeader() {
        if (setjmp(png_jmpbuf(png_)) != 0) return false;
        png_set_read_fn(png_, this, ReadBytes);
        png_set_user_limits(png_, MaxPictureSide, MaxPictureSide);
        SkipTexts();
        png_read_info(png_, info_);
        width_ = png_get_image_width(png_, info_);
        height_ = png_get_image_height(png_, info_);
        if (!PictureSizeAllowed(width_, height_) || !SizeInFile()) return false;
        SetTransformations();
        png_read_update_info(png_, info_);
        return true;
    }

    /// Chunks that the picture does not need are passed over unread.
    void SkipTexts() {
        static const png_byte names[] =
            "bKGD\0cHRM\0eXIf\0gAMA\0hIST\0iCCP\0iTXt\0oFFs\0pCAL\0sBIT\0sCAL\0sPLT\0sRGB\0"
            "tEXt\0tIME\0zTXt";
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, names, sizeof names / 5);
    }

    bool SizeInFile() const {
        const std::int64_t rowBytes = static_cast<std::int64_t>(png_get_rowbytes(png_, info_));
        return PictureFillsFile(rowBytes * height_, fileSize_, DeflateRatio);
    }

    void SetTransformations() {
        const int type = png_get_color_type(png_, info_);
        const int depth = png_get_bit_depth(png_, info_);
        const bool keyColour = png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
        palette_ = type == PNG_COLOR_TYPE_PALETTE || (type == PNG_COLOR_TYPE_GRAY && !keyColour);
        greyDepth_ = type == PNG_COLOR_TYPE_GRAY ? std::min(depth, 8) : 0;
        alpha_ = !palette_ && ((type & PNG_COLOR_MASK_ALPHA) != 0 || keyColour);
        if (depth == 16) png_set_strip_16(png_);
        if (palette_) {
            png_set_packing(png_);
        } else {
            if (greyDepth_ != 0) png_set_expand_gray_1_2_4_to_8(png_);
            if (keyColour) png_set_tRNS_to_alpha(png_);
            if ((type & PNG_COLOR_MASK_COLOR) == 0) png_set_gray_to_rgb(png_);
            png_set_bgr(png_);
            if (!alpha_) png_set_filler(png_, 255, PNG_FILLER_AFTER);
        }
        png_set_interlace_handling(png_);
    }

    bool ReadRows() {
        if (setjmp(png_jmpbuf(png_)) != 0) return false;
        if (png_get_rowbytes(png_, info_) > dib_.Stride()) return false;
        png_read_image(png_, rows_.data());
        png_read_end(png_, nullptr);
        return true;
    }

    void StoreInfo() {
        dib_.blHasBlend = alpha_;
        dib_.dib.bmiHeader.biXPelsPerMeter =
            static_cast<Long>(png_get_x_pixels_per_meter(png_, info_));
        dib_.dib.bmiHeader.biYPelsPerMeter =
            static_cast<Long>(png_get_y_pixels_per_meter(png_, info_));
        if (!palette_) return;
        if (greyDepth_ != 0)
            StoreGreys();
        else
            StorePalette();
    }

    void StoreGreys() {
        const std::size_t count = std::size_t{1} << greyDepth_;
        for (std::size_t i = 0; i < count; ++i) {
            const auto level = static_cast<Byte>(i * 255 / (count - 1));
            dib_.dib.bmiColors[i] = RgbQuad{level, level, level, 255};
        }
        dib_.dib.bmiHeader.biClrUsed = static_cast<std::uint32_t>(count);
    }

    void StorePalette() {
        png_colorp colours = nullptr;
        int count = 0;
        png_get_PLTE(png_, info_, &colours, &count);
        png_bytep alphas = nullptr;
        int alphaCount = 0;
        png_get_tRNS(png_, info_, &alphas, &alphaCount, nullptr);
        for (int i = 0; i < std::min(count, 256); ++i) {
            const Byte alpha = i < alphaCount ? alphas[i] : Byte{255};
            dib_.dib.bmiColors[static_cast<std::size_t>(i)] =
                RgbQuad{colours[i].blue, colours[i].green, colours[i].red, alpha};
            if (alpha < 255) ++dib_.PalTransCount;
        }
        dib_.blHasPalTrans = dib_.PalTransCount > 0;
        dib_.dib.bmiHeader.biClrUsed = static_cast<std::uint32_t>(count);
    }

    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    ByteView rest_;
    std::size_t fileSize_;
    clsDib& dib_;
    std::uint32_t width_ = 0;
    std::uint32_t height_ = 0;
    bool palette_ = false;
    bool alpha_ = false;
    /// Bits of a grey level, 0 for a picture in colour.
    int greyDepth_ = 0;
    std::vector<png_bytep> rows_;
};

}  // namespace

bool ReadPng(ByteView file, clsDib& dib) {
    return PngDecoder(file, dib).Decode();
}

}  // namespace tamber
