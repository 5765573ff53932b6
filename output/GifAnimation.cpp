#include "output/GifAnimation.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamber {

namespace {

constexpr int Colors = 256;
constexpr Long ShortestDelay = 2;
constexpr Long LongestDelay = 65535;
constexpr std::uint32_t HalfOpaque = 128;
constexpr int Hundredths = 100;

int Append(GifFileType* gif, const GifByteType* data, int length) {
    auto& bytes = *static_cast<Bytes*>(gif->UserData);
    bytes.insert(bytes.end(), data, data + length);
    return length;
}

/// A picture in 256 colours; the index 255 is kept for what is not seen, where something is not.
struct IndexedPicture {
    std::vector<GifByteType> Indexes;
    ColorMapObject* Map = nullptr;
    Long Transparent = NO_TRANSPARENT_COLOR;

    IndexedPicture() = default;
    IndexedPicture(const IndexedPicture&) = delete;
    IndexedPicture& operator=(const IndexedPicture&) = delete;
    ~IndexedPicture() { GifFreeMapObject(Map); }

    bool Make(const Raster& picture, bool transparent) {
        const std::size_t count = picture.Pixels().size();
        std::vector<GifByteType> planes[3];
        for (int channel = 0; channel < 3; ++channel) {
            planes[channel].resize(count);
            const int shift = 16 - 8 * channel;
            std::transform(picture.Pixels().begin(), picture.Pixels().end(),
                           planes[channel].begin(), [shift](std::uint32_t pixel) {
                               return static_cast<GifByteType>(Plain(pixel, shift));
                           });
        }
        Map = GifMakeMapObject(Colors, nullptr);
        if (Map == nullptr) return false;
        Indexes.resize(count);
        int colors = transparent ? Colors - 1 : Colors;
        if (GifQuantizeBuffer(static_cast<unsigned>(picture.Width()),
                              static_cast<unsigned>(picture.Height()), &colors, planes[0].data(),
                              planes[1].data(), planes[2].data(), Indexes.data(),
                              Map->Colors) != GIF_OK)
            return false;
        Refine(picture);
        if (!transparent) return true;
        Transparent = Colors - 1;
        for (std::size_t i = 0; i < count; ++i)
            if (picture.Pixels()[i] >> 24 < HalfOpaque)
                Indexes[i] = static_cast<GifByteType>(Transparent);
        return true;
    }

    /// The library works on five bits of a colour; each entry becomes the mean of what it stands
    /// for.
    void Refine(const Raster& picture) const {
        struct Sum {
            std::uint64_t Parts[3] = {};
            std::uint64_t Count = 0;
        };
        std::vector<Sum> sums(Colors);
        for (std::size_t i = 0; i < Indexes.size(); ++i) {
            Sum& sum = sums[Indexes[i]];
            ++sum.Count;
            for (int channel = 0; channel < 3; ++channel)
                sum.Parts[channel] += Plain(picture.Pixels()[i], 16 - 8 * channel);
        }
        for (std::size_t i = 0; i < sums.size(); ++i) {
            const Sum& sum = sums[i];
            const auto mean = [&sum](int channel) {
                return static_cast<GifByteType>((sum.Parts[channel] + sum.Count / 2) / sum.Count);
            };
            if (sum.Count > 0) Map->Colors[i] = {mean(0), mean(1), mean(2)};
        }
    }

    static std::uint32_t Plain(std::uint32_t pixel, int shift) {
        const std::uint32_t alpha = pixel >> 24;
        const std::uint32_t part = pixel >> shift & 255;
        return alpha == 0 || alpha == 255 ? part : std::min(part * 255 / alpha, 255u);
    }
};

}  // namespace

GifAnimation::GifAnimation(const AnimationFormat& format) : format_(format) {}

GifAnimation::~GifAnimation() {
    int error = 0;
    if (gif_ != nullptr) EGifCloseFile(gif_, &error);
}

bool GifAnimation::Begin() {
    int error = 0;
    gif_ = EGifOpen(&bytes_, Append, &error);
    if (gif_ == nullptr) return false;
    EGifSetGifVersion(gif_, true);
    if (EGifPutScreenDesc(gif_, format_.Width, format_.Height, 8, 0, nullptr) != GIF_OK)
        return false;
    if (format_.Loops == 1) return true;
    const Long rounds = format_.Loops == 0 ? 0 : std::min(format_.Loops - 1, LongestDelay);
    const GifByteType loop[] = {1, static_cast<GifByteType>(rounds),
                                static_cast<GifByteType>(rounds >> 8)};
    return EGifPutExtensionLeader(gif_, APPLICATION_EXT_FUNC_CODE) == GIF_OK &&
           EGifPutExtensionBlock(gif_, 11, "NETSCAPE2.0") == GIF_OK &&
           EGifPutExtensionBlock(gif_, 3, loop) == GIF_OK &&
           EGifPutExtensionTrailer(gif_) == GIF_OK;
}

Long GifAnimation::TimeOf(Long picture) const {
    return static_cast<Long>(std::lround(picture * Hundredths / format_.Rate));
}

bool GifAnimation::PutControl(Long delay, Long transparent) {
    GraphicsControlBlock control{};
    control.DisposalMode = format_.blTransparent ? DISPOSE_BACKGROUND : DISPOSE_DO_NOT;
    control.DelayTime = std::clamp(delay, ShortestDelay, LongestDelay);
    control.TransparentColor = transparent;
    GifByteType block[4];
    const std::size_t length = EGifGCBToExtension(&control, block);
    return EGifPutExtension(gif_, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(length), block) ==
           GIF_OK;
}

bool GifAnimation::PutPicture(const ChangedBox& box, Long delay) {
    IndexedPicture indexed;
    if (!indexed.Make(PartOf(waiting_, box), format_.blTransparent)) return false;
    if (!PutControl(delay, indexed.Transparent)) return false;
    if (EGifPutImageDesc(gif_, box.Left, box.Top, box.Width, box.Height, false, indexed.Map) !=
        GIF_OK)
        return false;
    for (Long y = 0; y < box.Height; ++y)
        if (EGifPutLine(gif_, indexed.Indexes.data() + std::size_t(y) * std::size_t(box.Width),
                        box.Width) != GIF_OK)
            return false;
    return true;
}

bool GifAnimation::PutWaiting(Long until) {
    if (waiting_.IsEmpty()) return true;
    if (gif_ == nullptr && !Begin()) return false;
    ChangedBox box{0, 0, waiting_.Width(), waiting_.Height()};
    if (!format_.blTransparent && !shown_.IsEmpty()) box = ChangeBetween(shown_, waiting_);
    if (box.Width == 0) box = {0, 0, 1, 1};
    if (!PutPicture(box, until - since_)) return false;
    shown_ = std::move(waiting_);
    waiting_ = Raster();
    return true;
}

bool GifAnimation::Add(const Raster& picture) {
    const Long time = TimeOf(count_++);
    if (!waiting_.IsEmpty()) {
        const bool isSame = !format_.blTransparent && ChangeBetween(waiting_, picture).Width == 0;
        if (time - since_ < ShortestDelay || isSame) return true;
    }
    if (!PutWaiting(time)) return false;
    waiting_ = picture;
    since_ = time;
    return true;
}

Bytes GifAnimation::Finish() {
    if (!PutWaiting(TimeOf(count_)) || gif_ == nullptr) return {};
    int error = 0;
    const bool closed = EGifCloseFile(std::exchange(gif_, nullptr), &error) == GIF_OK;
    return closed ? std::move(bytes_) : Bytes();
}

}  // namespace tamber
