#pragma once

#include "output/AnimationFile.h"

struct WebPAnimEncoder;

namespace tamber {

/// An animated WebP without losses, its times in whole thousandths of a second.
class WebpAnimation : public AnimationFile {
public:
    explicit WebpAnimation(const AnimationFormat& format);
    ~WebpAnimation() override;

    bool Add(const Raster& picture) override;
    Bytes Finish() override;

private:
    int NextTime();

    AnimationFormat format_;
    WebPAnimEncoder* encoder_;
    Long count_ = 0;
};

}  // namespace tamber
