#include "media/JpegReader.h"

#include <array>

#include "media/JpegError.h"
#include "media/PictureLimits.h"

namespace tamber {

namespace {

/// A block of 64 pixels takes a bit of Huffman code at least.
constexpr std::int64_t PixelsPerByte = 512;
/// Scans of a progressive file; usual ones have about ten. Each further one costs a walk over the
/// whole picture, however short it is.
constexpr int MaxScans = 100;

void CheckScans(j_common_ptr object) {
    const auto* jpeg = reinterpret_cast<j_decompress_ptr>(object);
    if (jpeg->input_scan_number > MaxScans) object->err->error_exit(object);
}

/// Inks as stored to colours: programs that write an Adobe marker store inks inverted.
void InksToColours(const Byte* inks, Byte* target, std::size_t width, bool inverted) {
    const int flip = inverted ? 0 : 255;
    for (std::size_t x = 0; x < width; ++x, inks += 4, target += 3) {
        const int black = inks[3] ^ flip;
        for (std::size_t channel = 0; channel < 3; ++channel)
            target[2 - channel] = static_cast<Byte>((inks[channel] ^ flip) * black / 255);
    }
}

/// The functions that call libjpeg hold nothing that needs releasing; see `JpegError`.
class JpegDecoder {
public:
    JpegDecoder(ByteView file, clsDib& dib) : file_(file), dib_(dib) {
        jpeg_.err = error_.Install();
        progress_.progress_monitor = CheckScans;
    }
    ~JpegDecoder() { jpeg_destroy_decompress(&jpeg_); }
    JpegDecoder(const JpegDecoder&) = delete;
    JpegDecoder& operator=(const JpegDecoder&) = delete;

    bool Decode() {
        if (!ReadHeader()) return false;
        const Long width = static_cast<Long>(jpeg_.image_width);
        dib_.Create(width, static_cast<Long>(jpeg_.image_height), Grey() ? 8 : 24);
        if (Inks()) inkRow_.resize(static_cast<std::size_t>(width) * 4);
        if (!ReadRows()) return false;
        if (Grey()) StoreGreys();
        StoreDensity();
        return true;
    }

private:
    bool ReadHeader() {
        if (setjmp(error_.Back) != 0) return false;
        jpeg_create_decompress(&jpeg_);
        jpeg_.progress = &progress_;
        jpeg_mem_src(&jpeg_, file_.data(), file_.size());
        jpeg_read_header(&jpeg_, TRUE);
        const std::int64_t width = jpeg_.image_width;
        const std::int64_t height = jpeg_.image_height;
        if (!PictureSizeAllowed(width, height) ||
            !PictureFillsFile(width * height, file_.size(), PixelsPerByte))
            return false;
        return ChooseColours();
    }

    bool ChooseColours() {
        switch (jpeg_.jpeg_color_space) {
            case JCS_GRAYSCALE:
                dib_.blPlayerJpeg = !jpeg_.arith_code;
                jpeg_.out_color_space = JCS_GRAYSCALE;
                return true;
            case JCS_YCbCr:
                dib_.blPlayerJpeg = !jpeg_.arith_code;
                jpeg_.out_color_space = JCS_EXT_BGR;
                return true;
            case JCS_RGB:
                jpeg_.out_color_space = JCS_EXT_BGR;
                return true;
            case JCS_CMYK:
            case JCS_YCCK:
                jpeg_.out_color_space = JCS_CMYK;
                return true;
            default:
                return false;
        }
    }

    bool Grey() const { return jpeg_.out_color_space == JCS_GRAYSCALE; }
    bool Inks() const { return jpeg_.out_color_space == JCS_CMYK; }

    bool ReadRows() {
        if (setjmp(error_.Back) != 0) return false;
        jpeg_start_decompress(&jpeg_);
        while (jpeg_.output_scanline < jpeg_.output_height) {
            Byte* const target = dib_.Row(static_cast<Long>(jpeg_.output_scanline));
            JSAMPROW row = Inks() ? inkRow_.data() : target;
            jpeg_read_scanlines(&jpeg_, &row, 1);
            if (Inks()) InksToColours(row, target, jpeg_.output_width, jpeg_.saw_Adobe_marker != 0);
        }
        jpeg_finish_decompress(&jpeg_);
        return true;
    }

    void StoreGreys() {
        for (std::size_t i = 0; i < 256; ++i) {
            const auto level = static_cast<Byte>(i);
            dib_.dib.bmiColors[i] = RgbQuad{level, level, level, 255};
        }
        dib_.dib.bmiHeader.biClrUsed = 256;
    }

    void StoreDensity() {
        DibHeader& header = dib_.dib.bmiHeader;
        header.biXPelsPerMeter = PixelsPerMeter(jpeg_.X_density);
        header.biYPelsPerMeter = PixelsPerMeter(jpeg_.Y_density);
    }

    Long PixelsPerMeter(Long density) const {
        enum { PerInch = 1, PerCentimetre = 2 };
        if (jpeg_.density_unit == PerInch) return (density * 10000 + 127) / 254;
        return jpeg_.density_unit == PerCentimetre ? density * 100 : 0;
    }

    ByteView file_;
    clsDib& dib_;
    JpegError error_;
    jpeg_progress_mgr progress_{};
    jpeg_decompress_struct jpeg_{};
    Bytes inkRow_;
};

}  // namespace

bool ReadJpeg(ByteView file, clsDib& dib) {
    return JpegDecoder(file, dib).Decode();
}

}  // namespace tamber
