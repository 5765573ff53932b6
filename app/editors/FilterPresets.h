#pragma once

#include <span>

#include "effects/filters/clsFilterColorMatrix.h"
#include "effects/filters/clsFilterConvolution.h"

namespace tamber {

struct ColorMatrixPreset {
    StringView Caption;
    clsFilterColorMatrix::Matrix Cells;
};

struct ConvolutionPreset {
    StringView Caption;
    clsFilterConvolution::Matrix Cells;
};

/// In the order of `mnuColorMatrixPresetItem`.
std::span<const ColorMatrixPreset> ColorMatrixPresets();
/// In the order of `mnuConvolutionPresetItem`.
std::span<const ConvolutionPreset> ConvolutionPresets();

}  // namespace tamber
