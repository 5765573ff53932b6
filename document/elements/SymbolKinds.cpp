#include "document/elements/SymbolKinds.h"

#include <algorithm>
#include <array>

#include "document/elements/clsLayerFolder.h"
#include "document/elements/clsObjBackGround.h"
#include "document/elements/clsObjBitmap.h"
#include "document/elements/clsObjButton.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/elements/clsObjFrameLabel.h"
#include "document/elements/clsObjKoma.h"
#include "document/elements/clsObjMovie.h"
#include "document/elements/clsObjSound.h"
#include "document/elements/clsObjSprite.h"
#include "document/elements/clsObjText.h"
#include "document/elements/clsObjVector.h"

namespace tamber {

namespace {

template <class Element>
std::shared_ptr<clsElement> New() {
    return std::make_shared<Element>();
}

std::shared_ptr<clsElement> NewEmptyMovie() {
    auto movie = std::make_shared<clsObjMovie>();
    movie->blEmpty = true;
    return movie;
}

constexpr auto NoDepths = KindDepths::None;

/// Each kind stands at its number.
constexpr std::array Kinds{
    SymbolKind{},
    SymbolKind{.Number = KindBackGround,
               .Word = u"―",
               .NewElement = New<clsObjBackGround>,
               .FixedId = -1,
               .FixedName = u"背景"},
    SymbolKind{.Number = KindFrameLabel,
               .Word = u"ﾗﾍﾞﾙ",
               .NewElement = New<clsObjFrameLabel>,
               .Depths = NoDepths,
               .FixedId = -2,
               .FixedName = u"フレームラベル",
               .BackColor = ColorLong(230, 240, 255)},
    SymbolKind{.Number = KindBitmap,
               .Word = u"画像",
               .NewElement = New<clsObjBitmap>,
               .blTakesDepths = true,
               .blPlaced = true,
               .blPicture = true,
               .FileName = u"画像ファイル",
               .FilePatterns = u"*.bmp;*.jpg;*.jpeg;*.png;*.gif"},
    SymbolKind{.Number = KindText,
               .Word = u"ﾃｷｽﾄ",
               .NewElement = New<clsObjText>,
               .blTakesDepths = true,
               .blPlaced = true,
               .blPicture = true,
               .FileName = u"テキストファイル",
               .FilePatterns = u"*.txt;*.text"},
    SymbolKind{.Number = KindSound,
               .Word = u"ｻｳﾝﾄﾞ",
               .NewElement = New<clsObjSound>,
               .Depths = NoDepths,
               .blLacksExport = true,
               .FileName = u"サウンドファイル",
               .FilePatterns = u"*.mp3;*.wav;*.rmp;*.mid;*.mld;*.mmf"},
    SymbolKind{.Number = KindVector,
               .Word = u"ﾍﾞｸﾀ",
               .NewElement = New<clsObjVector>,
               .Depths = KindDepths::Shapes,
               .blTakesDepths = true,
               .blPlaced = true,
               .blPicture = true,
               .FileName = u"ベクタ画像ファイル",
               .FilePatterns = u"*.swf;*.pdr;*.svg;*.svgz"},
    SymbolKind{.Number = KindSprite,
               .Word = u"ｽﾌﾟﾗｲﾄ",
               .NewElement = New<clsObjSprite>,
               .blTakesDepths = true,
               .blInstance = true,
               .blPlaced = true,
               .blPicture = true},
    SymbolKind{.Number = KindMovie,
               .Word = u"動画",
               .NewElement = New<clsObjMovie>,
               .blTakesDepths = true,
               .blInstance = true,
               .blPicture = true,
               .FileName = u"動画ファイル",
               .FilePatterns = u"*.flv"},
    SymbolKind{.Number = KindMovieEmp,
               .Word = u"空動画",
               .NewElement = NewEmptyMovie,
               .blTakesDepths = true,
               .blInstance = true,
               .blPlaced = true,
               .blPicture = true,
               .blLacksExport = true},
    SymbolKind{.Number = KindFrameAction,
               .Word = u"ｱｸｼｮﾝ",
               .NewElement = New<clsObjFrameAction>,
               .Depths = NoDepths,
               .FixedId = -3,
               .FixedName = u"フレームアクション",
               .BackColor = ColorLong(255, 238, 255)},
    SymbolKind{.Number = KindButton,
               .Word = u"ﾎﾞﾀﾝ",
               .NewElement = New<clsObjButton>,
               .blTakesDepths = true,
               .blInstance = true,
               .blPlaced = true},
    SymbolKind{.Number = KindKoma,
               .Word = u"ｺﾏ動画",
               .NewElement = New<clsObjKoma>,
               .blTakesDepths = true,
               .blPlaced = true,
               .blPicture = true},
    SymbolKind{.Number = KindSymbolFolder, .Word = u"Sﾌｫﾙﾀﾞ", .blLayer = false},
    SymbolKind{.Number = KindSymbolFolderExpanded, .blLayer = false},
    SymbolKind{.Number = KindClass, .Word = u"ｸﾗｽ", .FixedId = -5, .blLayer = false},
    SymbolKind{.Number = KindLayerFolder,
               .Word = u"ﾌｫﾙﾀﾞ",
               .NewElement = New<clsLayerFolder>,
               .Depths = NoDepths,
               .FixedId = -4,
               .FixedName = u"フォルダ",
               .BackColor = ColorLong(255, 255, 220)},
    SymbolKind{.Number = KindLink, .Word = u"ﾘﾝｸ", .blTakesDepths = true, .blPlaced = true},
};

constexpr bool StandAtTheirNumbers() {
    for (std::size_t i = 0; i < Kinds.size(); ++i)
        if (Kinds[i].Number != static_cast<Long>(i)) return false;
    return true;
}
static_assert(StandAtTheirNumbers());

/// The first kind for which `holds`, or kind 0.
template <class Predicate>
const SymbolKind& FirstKind(Predicate holds) {
    const auto found = std::find_if(Kinds.begin(), Kinds.end(), holds);
    return found == Kinds.end() ? Kinds.front() : *found;
}

}  // namespace

const SymbolKind& KindOf(Long kind) {
    const bool known = kind > 0 && kind < static_cast<Long>(Kinds.size());
    return Kinds[known ? static_cast<std::size_t>(kind) : 0];
}

const SymbolKind& KindOfFixedId(Long id) {
    return FirstKind([id](const SymbolKind& kind) { return kind.FixedId == id; });
}

StringView SymbolKindText(Long kind) {
    return KindOf(kind).Word;
}

Long SymbolKindFromText(StringView text) {
    return FirstKind([text](const SymbolKind& kind) { return kind.Word == text; }).Number;
}

}  // namespace tamber
