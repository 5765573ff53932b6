#include "media/JpegWriter.h"

#include <algorithm>
#include <cstdlib>

#include "media/JpegError.h"

namespace tamber {

namespace {

/// The function that calls libjpeg holds nothing that needs releasing; see `JpegError`.
class JpegEncoder {
public:
    explicit JpegEncoder(const clsDib& dib) : dib_(dib) { jpeg_.err = error_.Install(); }
    ~JpegEncoder() {
        jpeg_destroy_compress(&jpeg_);
        std::free(data_);
    }
    JpegEncoder(const JpegEncoder&) = delete;
    JpegEncoder& operator=(const JpegEncoder&) = delete;

    bool Encode(int quality, JpegColour colour) {
        if (setjmp(error_.Back) != 0) return false;
        jpeg_create_compress(&jpeg_);
        jpeg_mem_dest(&jpeg_, &data_, &size_);
        jpeg_.image_width = static_cast<JDIMENSION>(dib_.Width());
        jpeg_.image_height = static_cast<JDIMENSION>(dib_.Height());
        jpeg_.input_components = 4;
        jpeg_.in_color_space = JCS_EXT_BGRX;
        jpeg_set_defaults(&jpeg_);
        jpeg_set_quality(&jpeg_, quality, TRUE);
        jpeg_.optimize_coding = TRUE;
        const int step = colour == JpegColour::Full ? 1 : 2;
        jpeg_.comp_info[0].h_samp_factor = step;
        jpeg_.comp_info[0].v_samp_factor = step;
        jpeg_start_compress(&jpeg_, TRUE);
        while (jpeg_.next_scanline < jpeg_.image_height) {
            auto* row = const_cast<JSAMPROW>(dib_.Row(static_cast<Long>(jpeg_.next_scanline)));
            jpeg_write_scanlines(&jpeg_, &row, 1);
        }
        jpeg_finish_compress(&jpeg_);
        return true;
    }

    ByteView Stream() const { return ByteView(data_, size_); }

private:
    const clsDib& dib_;
    JpegError error_;
    jpeg_compress_struct jpeg_{};
    unsigned char* data_ = nullptr;
    unsigned long size_ = 0;
};

}  // namespace

bool WriteJpeg(const clsDib& dib, Long quality, JpegColour colour, Bytes& stream) {
    stream.clear();
    if (dib.Empty() || dib.BitCount() != 32) return false;
    JpegEncoder encoder(dib);
    if (!encoder.Encode(std::clamp(quality, 1, 100), colour)) return false;
    const ByteView made = encoder.Stream();
    stream.assign(made.begin(), made.end());
    return true;
}

}  // namespace tamber
