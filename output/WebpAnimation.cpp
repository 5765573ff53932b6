#include "output/WebpAnimation.h"

#include <webp/encode.h>
#include <webp/mux.h>

#include <algorithm>
#include <cmath>

namespace tamber {

namespace {

constexpr double Thousandths = 1000;

/// Colours without their opacity, as the encoder wants them.
std::uint32_t Plain(std::uint32_t pixel) {
    const std::uint32_t alpha = pixel >> 24;
    if (alpha == 255) return pixel;
    if (alpha == 0) return 0;
    const auto part = [&](int shift) {
        return std::min((pixel >> shift & 255) * 255 / alpha, 255u) << shift;
    };
    return alpha << 24 | part(16) | part(8) | part(0);
}

WebPAnimEncoder* MakeEncoder(const AnimationFormat& format) {
    WebPAnimEncoderOptions options;
    if (!WebPAnimEncoderOptionsInit(&options)) return nullptr;
    options.anim_params.loop_count = format.Loops;
    return WebPAnimEncoderNew(format.Width, format.Height, &options);
}

}  // namespace

WebpAnimation::WebpAnimation(const AnimationFormat& format)
    : format_(format), encoder_(MakeEncoder(format)) {}

WebpAnimation::~WebpAnimation() {
    WebPAnimEncoderDelete(encoder_);
}

int WebpAnimation::NextTime() {
    return static_cast<int>(std::lround(count_++ * Thousandths / format_.Rate));
}

bool WebpAnimation::Add(const Raster& picture) {
    WebPConfig config;
    WebPPicture frame;
    if (encoder_ == nullptr || !WebPConfigInit(&config) || !WebPPictureInit(&frame)) return false;
    constexpr int Fast = 1;
    if (!WebPConfigLosslessPreset(&config, Fast)) return false;
    frame.use_argb = 1;
    frame.width = picture.Width();
    frame.height = picture.Height();
    if (!WebPPictureAlloc(&frame)) return false;
    for (Long y = 0; y < picture.Height(); ++y)
        std::transform(picture.Row(y), picture.Row(y) + picture.Width(),
                       frame.argb + std::ptrdiff_t{y} * frame.argb_stride, Plain);
    const bool added = WebPAnimEncoderAdd(encoder_, &frame, NextTime(), &config) != 0;
    WebPPictureFree(&frame);
    return added;
}

Bytes WebpAnimation::Finish() {
    WebPData data;
    WebPDataInit(&data);
    Bytes file;
    if (encoder_ != nullptr && WebPAnimEncoderAdd(encoder_, nullptr, NextTime(), nullptr) &&
        WebPAnimEncoderAssemble(encoder_, &data))
        file.assign(data.bytes, data.bytes + data.size);
    WebPDataClear(&data);
    return file;
}

}  // namespace tamber
