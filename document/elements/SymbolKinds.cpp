#include "document/elements/SymbolKinds.h"

#include <array>
#include <utility>

namespace tamber {

namespace {

constexpr std::array<std::pair<Long, StringView>, 16> words{{
    {KindBackGround, u"―"},
    {KindFrameLabel, u"ﾗﾍﾞﾙ"},
    {KindBitmap, u"画像"},
    {KindText, u"ﾃｷｽﾄ"},
    {KindSound, u"ｻｳﾝﾄﾞ"},
    {KindVector, u"ﾍﾞｸﾀ"},
    {KindSprite, u"ｽﾌﾟﾗｲﾄ"},
    {KindMovie, u"動画"},
    {KindMovieEmp, u"空動画"},
    {KindFrameAction, u"ｱｸｼｮﾝ"},
    {KindButton, u"ﾎﾞﾀﾝ"},
    {KindKoma, u"ｺﾏ動画"},
    {KindSymbolFolder, u"Sﾌｫﾙﾀﾞ"},
    {KindClass, u"ｸﾗｽ"},
    {KindLayerFolder, u"ﾌｫﾙﾀﾞ"},
    {KindLink, u"ﾘﾝｸ"},
}};

}  // namespace

StringView SymbolKindText(Long kind) {
    for (const auto& [number, word] : words)
        if (number == kind) return word;
    return u"不明";
}

Long SymbolKindFromText(StringView text) {
    for (const auto& [number, word] : words)
        if (word == text) return number;
    return 0;
}

}  // namespace tamber
