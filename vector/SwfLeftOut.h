#pragma once

#include <vector>

#include "platform/types.h"

namespace tamber {

/// Collects the names of what the first frame of a movie has and the reader passes over, or takes
/// otherwise than it was meant, each once, in the order met.
class SwfLeftOut {
public:
    static constexpr StringView LaterFrames = u"2フレーム目以降";
    static constexpr StringView SecondPlacement = u"同じ図形の再度の配置";
    static constexpr StringView ClassPlacement = u"クラス名での配置";
    static constexpr StringView Transformation = u"配置の拡大縮小や回転";
    static constexpr StringView ColorTransform = u"配置のカラー変換";
    static constexpr StringView Clipping = u"クリッピング";
    static constexpr StringView Filter = u"フィルタ";
    static constexpr StringView BlendMode = u"ブレンドモード";

    void Note(StringView name);
    /// Notes what a tag does to the frame, if it leaves a gap.
    void NoteTag(Long code);
    /// Name of the characters that a tag defines; empty for a tag that defines none, or shapes.
    static StringView CharacterName(Long code);

    std::vector<String> Names;
};

}  // namespace tamber
