#include "app/editors/TextRules.h"

#include "document/records/clsPropertyText.h"
#include "platform/UserInterface.h"

namespace tamber {

namespace {

/// Version of the movie from which fields take their size from their text.
constexpr Long AutoSizeVersion = 5;
constexpr char16_t PasswordMark = u'*';

const clsPropertyText& TextOf(const clsSymbolData& symbol) {
    return *symbol.Property<clsPropertyText>();
}

void EmbedPasswordMark(clsPropertyText& text) {
    if (!text.blDynamic || !text.blPassword) return;
    if (text.DefineText.find(PasswordMark) != String::npos) return;
    ShowMessage(u"パスワード表示時は、'*'を埋め込む必要があります。\r\n'*'を埋め込みます。",
                u"'*'埋め込み", MessageIcon::Information);
    text.DefineText.insert(text.DefineText.begin(), PasswordMark);
}

}  // namespace

bool TextRules::ShowsEmbedding(const clsSymbolData& symbol) {
    const clsPropertyText& text = TextOf(symbol);
    return text.blDynamic && !text.FontName.starts_with(u'_');
}

bool TextRules::CanAutoSize(const clsSymbolData& symbol, Long version) {
    return !TextOf(symbol).blDynamic || version >= AutoSizeVersion;
}

bool TextRules::CheckText(clsSymbolData& symbol, Long version) {
    auto& text = *symbol.Property<clsPropertyText>();
    if (!text.blDynamic && text.InitialText.empty()) {
        ShowMessage(u"テキストが入力されていません。", u"テキスト未入力", MessageIcon::Warning);
        return false;
    }
    if (symbol.blExport && symbol.ObjectName.empty()) {
        ShowMessage(u"シンボル書き出し用の識別子を設定して下さい。", ProgramTitle,
                    MessageIcon::Warning);
        return false;
    }
    EmbedPasswordMark(text);
    if (text.blAutoSize && !CanAutoSize(symbol, version)) {
        ShowMessage(
            u"SWF4では、ダイナミックテキストの自動サイズは使用できません。\r\n"
            u"正しく表示されません。",
            ProgramTitle, MessageIcon::Warning);
        text.blAutoSize = false;
    }
    return true;
}

}  // namespace tamber
