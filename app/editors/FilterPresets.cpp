#include "app/editors/FilterPresets.h"

namespace tamber {

std::span<const ColorMatrixPreset> ColorMatrixPresets() {
    // Brightness of the colours as television weighs them.
    constexpr Single R = 0.299f;
    constexpr Single G = 0.587f;
    constexpr Single B = 0.114f;
    static constexpr ColorMatrixPreset presets[] = {
        {u"デフォルト", {1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0}},
        {u"モノクロ", {R, G, B, 0, 0, R, G, B, 0, 0, R, G, B, 0, 0, 0, 0, 0, 1, 0}},
        {u"セピア", {R * 0.94f, G * 0.94f, B * 0.94f, 0, 0, R * 0.78f, G * 0.78f, B * 0.78f, 0, 0,
                     R * 0.57f, G * 0.57f, B * 0.57f, 0, 0, 0,         0,         0,         1, 0}},
        {u"反転", {-1, 0, 0, 0, 255, 0, -1, 0, 0, 255, 0, 0, -1, 0, 255, 0, 0, 0, 1, 0}},
    };
    return presets;
}

std::span<const ConvolutionPreset> ConvolutionPresets() {
    static constexpr ConvolutionPreset presets[] = {
        {u"デフォルト", {0, 0, 0, 0, 0,  //
                         0, 0, 0, 0, 0,  //
                         0, 0, 1, 0, 0,  //
                         0, 0, 0, 0, 0,  //
                         0, 0, 0, 0, 0}},
        {u"ぼかし", {0, 0, 0, 0, 0,  //
                     0, 1, 1, 1, 0,  //
                     0, 1, 1, 1, 0,  //
                     0, 1, 1, 1, 0,  //
                     0, 0, 0, 0, 0}},
        {u"ぼかし2", {9, 0, 3, 0, 9,  //
                      0, 0, 0, 0, 0,  //
                      3, 0, 1, 0, 3,  //
                      0, 0, 0, 0, 0,  //
                      9, 0, 3, 0, 9}},
        {u"シャープ", {0, 0,  0,  0,  0,  //
                       0, -1, -1, -1, 0,  //
                       0, -1, 10, -1, 0,  //
                       0, -1, -1, -1, 0,  //
                       0, 0,  0,  0,  0}},
        {u"エンボス", {0, 0, 0,  0,  0,  //
                       0, 1, 1,  0,  0,  //
                       0, 1, 0,  -1, 0,  //
                       0, 0, -1, -1, 0,  //
                       0, 0, 0,  0,  0}},
        {u"カラー付きエンボス", {0, 0, 0,  0,  0,  //
                                 0, 1, 1,  0,  0,  //
                                 0, 1, 1,  -1, 0,  //
                                 0, 0, -1, -1, 0,  //
                                 0, 0, 0,  0,  0}},
        {u"エッジ", {0, 2,  0,  0, 1,  //
                     2, 0,  -4, 0, 0,  //
                     0, -5, 5,  5, 0,  //
                     0, 0,  -4, 0, 0,  //
                     0, 0,  -2, 0, 0}},
        {u"輪郭", {0, 0, 0,  0, 0,  //
                   0, 1, 1,  1, 0,  //
                   0, 1, -7, 1, 0,  //
                   0, 1, 1,  1, 0,  //
                   0, 0, 0,  0, 0}},
    };
    return presets;
}

}  // namespace tamber
