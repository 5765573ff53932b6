#pragma once

#include "vector/clsVectorData.h"

namespace tamber {

/// Whether one artwork can morph into another, or the first difference that prevents it.
namespace MorphCheck {
inline constexpr Long Possible = 0;
inline constexpr Long FillCount = 1;
inline constexpr Long LineCount = 2;
inline constexpr Long RecordCount = 3;
/// Different numbers of bitmaps, or fills of different kinds.
inline constexpr Long FillKind = 4;
inline constexpr Long RecordKind = 5;
inline constexpr Long FillIndex = 6;
inline constexpr Long LineIndex = 7;
inline constexpr Long LineKind = 8;
inline constexpr Long ShapeCount = 9;
}  // namespace MorphCheck

/// Compares shape by shape and record by record. The fills of lines count from `version` 8 on.
Long CheckMorph(const clsVectorData& start, const clsVectorData& end, Long version);
/// What the symbol's dialog says of a result.
StringView MorphCheckText(Long result);
/// What it says of a target that is no vector symbol.
inline constexpr StringView MorphTargetText = u"Error：ベクタ画像ではありません";

}  // namespace tamber
