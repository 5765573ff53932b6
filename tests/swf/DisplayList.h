#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

#include "tests/swf/MovieParser.h"

namespace tamber::test {

/// What stands at one depth of a frame.
struct Shown {
    Bytes Definition;  ///< code and body of the definition, without its identifier
    std::array<Long, 6> Matrix{};
    std::array<Long, 8> Color{256, 256, 256, 256, 0, 0, 0, 0};
    Long Ratio = 0;
    Long ClipDepth = 0;
    Long Blend = 0;
    Bytes Filters;

    bool operator==(const Shown&) const = default;
};

inline void PrintTo(const Shown& shown, std::ostream* out) {
    *out << shown.Definition.size() << " bytes, matrix " << testing::PrintToString(shown.Matrix)
         << ", color " << testing::PrintToString(shown.Color) << ", ratio " << shown.Ratio
         << ", clips to " << shown.ClipDepth << ", blend " << shown.Blend << ", filters "
         << testing::PrintToString(shown.Filters);
}

using ShownFrame = std::map<Long, Shown>;

/// Plays the main timeline of a movie: what stands at each depth, frame by frame. Definitions must
/// not refer to others by identifier.
class DisplayListPlayer {
public:
    std::vector<ShownFrame> Play(const ParsedMovie& movie) {
        for (const ParsedTag& tag : movie.Tags) Take(tag);
        return frames_;
    }

private:
    void Take(const ParsedTag& tag) {
        if (tag.Code == 1) frames_.push_back(Seen());
        if (tag.Code == 26 || tag.Code == 70) Place(tag);
        if (tag.Code == 28) {
            // A koma's first picture has one too, which removes nothing.
            now_.erase(static_cast<Long>(SwfBits(tag.Body).GetUI(2)));
        }
        const bool defines = tag.Code == 32 || tag.Code == 83 || tag.Code == 46 || tag.Code == 84;
        if (!defines) return;
        Bytes definition{static_cast<Byte>(tag.Code)};
        definition.insert(definition.end(), tag.Body.begin() + 2, tag.Body.end());
        definitions_[tag.Body[0] | tag.Body[1] << 8] = definition;
    }

    /// The frame as it looks: masks have no colours, and what does not morph has no ratio.
    ShownFrame Seen() const {
        ShownFrame frame = now_;
        for (auto& [depth, shown] : frame) {
            if (shown.ClipDepth != 0) shown.Color = Shown().Color;
            const Byte code = shown.Definition.front();
            if (code != 46 && code != 84) shown.Ratio = 0;
        }
        return frame;
    }

    void Place(const ParsedTag& tag) {
        SwfBits bits(tag.Body);
        const auto number = [&bits](Long byteCount) {
            return static_cast<Long>(bits.GetUI(byteCount));
        };
        const Long flags = number(1);
        const Long more = tag.Code == 70 ? number(1) : 0;
        const Long depth = number(2);
        EXPECT_EQ(now_.count(depth), (flags & 1) != 0 ? 1u : 0u) << "depth " << depth;
        Shown& shown = now_[depth];
        if ((flags & 2) != 0) shown.Definition = definitions_.at(number(2));
        if ((flags & 4) != 0) {
            const SwfMatrix m = bits.GetMatrix();
            shown.Matrix = {m.ScaleX,      m.ScaleY,     m.RotateSkew0,
                            m.RotateSkew1, m.TranslateX, m.TranslateY};
        }
        if ((flags & 8) != 0) shown.Color = ReadColor(bits);
        if ((flags & 16) != 0) shown.Ratio = number(2);
        if ((flags & 64) != 0) shown.ClipDepth = number(2);
        Bytes tail(bits.Rest().begin(), bits.Rest().end());
        if ((more & 2) != 0) {
            shown.Blend = tail.back();
            tail.pop_back();
        }
        if ((more & 1) != 0) shown.Filters = tail;
    }

    static std::array<Long, 8> ReadColor(SwfBits& bits) {
        const SwfColorTransform t = bits.GetCXForm(true);
        return {t.MultR, t.MultG, t.MultB, t.MultA, t.AddR, t.AddG, t.AddB, t.AddA};
    }

    std::map<Long, Bytes> definitions_;
    ShownFrame now_;
    std::vector<ShownFrame> frames_;
};

}  // namespace tamber::test
