#pragma once

#include "platform/types.h"

namespace tamber {

/// Kinds of symbols and of the elements that show them.
inline constexpr Long KindBackGround = 1;
inline constexpr Long KindFrameLabel = 2;
inline constexpr Long KindBitmap = 3;
inline constexpr Long KindText = 4;
inline constexpr Long KindSound = 5;
inline constexpr Long KindVector = 6;
inline constexpr Long KindSprite = 7;
inline constexpr Long KindMovie = 8;
inline constexpr Long KindMovieEmp = 9;
inline constexpr Long KindFrameAction = 10;
inline constexpr Long KindButton = 11;
inline constexpr Long KindKoma = 12;
inline constexpr Long KindSymbolFolder = 13;
/// `eTypeEx` only: a symbol folder shown expanded.
inline constexpr Long KindSymbolFolderExpanded = 14;
inline constexpr Long KindClass = 15;
inline constexpr Long KindLayerFolder = 16;
inline constexpr Long KindLink = 17;

/// Word of a kind as lists show it and files hold it; "不明" for any other kind.
StringView SymbolKindText(Long kind);
/// Kind of a word, 0 for an unknown one.
Long SymbolKindFromText(StringView word);

/// Colour as one Long, red in the low byte.
constexpr Long ColorLong(Byte red, Byte green, Byte blue) {
    return red | green << 8 | blue << 16;
}

}  // namespace tamber
