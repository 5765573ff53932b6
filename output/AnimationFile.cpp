#include "output/AnimationFile.h"

#include <algorithm>

#include "output/GifAnimation.h"
#include "output/PngAnimation.h"
#include "output/WebpAnimation.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

std::unique_ptr<AnimationFile> MakeAnimationFile(StringView path, const AnimationFormat& format) {
    const String extension = FoldCase(GetFileExt(path));
    if (extension == u"gif") return std::make_unique<GifAnimation>(format);
    if (extension == u"png") return std::make_unique<PngAnimation>(format);
    if (extension == u"webp") return std::make_unique<WebpAnimation>(format);
    return nullptr;
}

ChangedBox ChangeBetween(const Raster& from, const Raster& to) {
    Long left = to.Width();
    Long right = 0;
    Long top = to.Height();
    Long bottom = 0;
    for (Long y = 0; y < to.Height(); ++y) {
        const std::uint32_t* was = from.Row(y);
        const std::uint32_t* is = to.Row(y);
        const auto first = static_cast<Long>(std::mismatch(is, is + to.Width(), was).first - is);
        if (first == to.Width()) continue;
        Long last = to.Width();
        while (is[last - 1] == was[last - 1]) --last;
        left = std::min(left, first);
        right = std::max(right, last);
        top = std::min(top, y);
        bottom = y + 1;
    }
    if (right <= left) return {};
    return {left, top, right - left, bottom - top};
}

Raster PartOf(const Raster& picture, const ChangedBox& box) {
    Raster part(box.Width, box.Height);
    for (Long y = 0; y < box.Height; ++y)
        std::copy_n(picture.Row(box.Top + y) + box.Left, box.Width, part.Row(y));
    return part;
}

}  // namespace tamber
