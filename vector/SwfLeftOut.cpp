#include "vector/SwfLeftOut.h"

#include <algorithm>

#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

struct NamedTag {
    Long Code;
    StringView Name;
};

constexpr NamedTag Characters[] = {
    {TagCode::DefineSprite, u"スプライト"},       {TagCode::DefineButton, u"ボタン"},
    {TagCode::DefineButton2, u"ボタン"},          {TagCode::DefineText, u"テキスト"},
    {TagCode::DefineText2, u"テキスト"},          {TagCode::DefineEditText, u"テキスト"},
    {TagCode::DefineMorphShape, u"モーフィング"}, {TagCode::DefineMorphShape2, u"モーフィング"},
    {TagCode::DefineVideoStream, u"動画"},
};

constexpr NamedTag Others[] = {
    {TagCode::RemoveObject, u"配置の取り消し"},
    {TagCode::RemoveObject2, u"配置の取り消し"},
    {TagCode::DoAction, u"スクリプト"},
    {TagCode::DoInitAction, u"スクリプト"},
    {TagCode::StartSound, u"サウンド"},
    {TagCode::SoundStreamBlock, u"サウンド"},
    {TagCode::ImportAssets, u"他のムービーの素材"},
    {TagCode::ImportAssets2, u"他のムービーの素材"},
};

template <std::size_t Count>
StringView NameIn(const NamedTag (&tags)[Count], Long code) {
    for (const NamedTag& tag : tags)
        if (tag.Code == code) return tag.Name;
    return {};
}

}  // namespace

void SwfLeftOut::Note(StringView name) {
    if (std::find(Names.begin(), Names.end(), name) == Names.end()) Names.emplace_back(name);
}

void SwfLeftOut::NoteTag(Long code) {
    const StringView name = NameIn(Others, code);
    if (!name.empty()) Note(name);
}

StringView SwfLeftOut::CharacterName(Long code) {
    return NameIn(Characters, code);
}

}  // namespace tamber
