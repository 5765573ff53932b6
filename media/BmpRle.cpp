#include "media/BmpRle.h"

#include <algorithm>

namespace tamber {

namespace {

class RleDecoder {
public:
    RleDecoder(ByteView codes, Long codedBits, clsDib& dib)
        : codes_(codes),
          nibbles_(codedBits == 4),
          bits_(dib.Bits.data()),
          stride_(dib.Stride()),
          width_(static_cast<std::size_t>(dib.Width())),
          height_(static_cast<std::size_t>(dib.Height())) {}

    bool Decode() {
        while (!ended_) {
            if (codes_.size() - at_ < 2) return false;
            const Byte count = codes_[at_];
            const Byte code = codes_[at_ + 1];
            at_ += 2;
            if (count == 0 ? !Escape(code) : !Run(count, code)) return false;
        }
        return true;
    }

private:
    enum : Byte { EndOfRow = 0, EndOfPicture = 1, Delta = 2 };

    bool Escape(Byte code) {
        switch (code) {
            case EndOfRow:
                x_ = 0;
                ++y_;
                ended_ = y_ == height_ && at_ == codes_.size();
                return y_ <= height_;
            case EndOfPicture:
                ended_ = true;
                return true;
            case Delta:
                return Jump();
            default:
                return Absolute(code);
        }
    }

    bool Jump() {
        if (codes_.size() - at_ < 2) return false;
        x_ += codes_[at_];
        y_ += codes_[at_ + 1];
        at_ += 2;
        return x_ <= width_ && y_ < height_;
    }

    bool Run(std::size_t count, Byte value) {
        if (y_ >= height_) return false;
        const Byte pair[2] = {First(value), Second(value)};
        for (std::size_t i = 0; i < count; ++i) Put(pair[i % 2]);
        EndWithLastPixel();
        return true;
    }

    bool Absolute(std::size_t count) {
        const std::size_t bytes = nibbles_ ? (count + 1) / 2 : count;
        const std::size_t padded = (bytes + 1) / 2 * 2;
        if (y_ >= height_ || codes_.size() - at_ < padded) return false;
        for (std::size_t i = 0; i < count; ++i) {
            const Byte value = codes_[at_ + (nibbles_ ? i / 2 : i)];
            Put(i % 2 == 0 ? First(value) : Second(value));
        }
        at_ += padded;
        EndWithLastPixel();
        return true;
    }

    /// Some files leave out the code that ends the picture.
    void EndWithLastPixel() { ended_ = at_ == codes_.size() && y_ + 1 == height_ && x_ == width_; }

    Byte First(Byte value) const { return nibbles_ ? value >> 4 : value; }
    Byte Second(Byte value) const { return nibbles_ ? value & 15 : value; }

    void Put(Byte index) {
        if (x_ < width_) bits_[y_ * stride_ + x_++] = index;
    }

    ByteView codes_;
    bool nibbles_;
    Byte* bits_;
    std::size_t stride_;
    std::size_t width_;
    std::size_t height_;
    std::size_t at_ = 0;
    std::size_t x_ = 0;
    std::size_t y_ = 0;
    bool ended_ = false;
};

}  // namespace

bool DecodeBmpRle(ByteView codes, Long codedBits, clsDib& dib) {
    return RleDecoder(codes, codedBits, dib).Decode();
}

}  // namespace tamber
