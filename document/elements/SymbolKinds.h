#pragma once

#include <memory>

#include "platform/types.h"

namespace tamber {

class clsElement;

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

/// Colour as one Long, red in the low byte.
constexpr Long ColorLong(Byte red, Byte green, Byte blue) {
    return red | green << 8 | blue << 16;
}

/// Depths of a movie that a placement takes.
enum class KindDepths { None, One, Shapes };

/// What is the same for all symbols of a kind.
struct SymbolKind {
    Long Number = 0;
    /// As lists show it and files hold it.
    StringView Word = u"不明";
    /// A new element for a key frame; null for a kind that key frames do not show.
    std::shared_ptr<clsElement> (*NewElement)() = nullptr;
    KindDepths Depths = KindDepths::One;
    /// The ID of a kind whose symbols have no numbers of their own; else 0.
    Long FixedId = 0;
    /// Name of a row that shows no entry of the library; empty for the other kinds.
    StringView FixedName = {};
    /// Of its row, red in the low byte.
    Long BackColor = ColorLong(255, 255, 255);
    /// Can be on a layer and has a number; folders and classes of the library are not.
    bool blLayer = true;
    /// Its rows have depths of the movie, whether it is generated or not.
    bool blTakesDepths = false;
    /// Its rows can have an instance name; of texts and links each says so itself.
    bool blInstance = false;
    /// A timeline places it as a character of the movie.
    bool blPlaced = false;
    /// A button or a koma can show it.
    bool blPicture = false;
    /// Its exports are not generated.
    bool blLacksExport = false;
    /// The files that it is made from, as a dialog calls and finds them; empty for none.
    StringView FileName = {};
    StringView FilePatterns = {};
};

/// The row of a kind in the table; that of kind 0, which knows nothing, for an unknown one.
const SymbolKind& KindOf(Long kind);
/// The kind that has a fixed ID; kind 0 when none has it.
const SymbolKind& KindOfFixedId(Long id);

/// Word of a kind; "不明" for an unknown one.
StringView SymbolKindText(Long kind);
/// Kind of a word, 0 for an unknown one.
Long SymbolKindFromText(StringView word);

}  // namespace tamber
