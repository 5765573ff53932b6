#include "swf/authoring/Omissions.h"

#include <algorithm>

#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyVector.h"
#include "platform/UserInterface.h"
#include "platform/text.h"
#include "swf/authoring/VectorDefinition.h"

namespace tamber {

namespace {

/// For a picture of a koma and a state of a button: buttons are made for layers, and komas have no
/// character of their own.
bool CanBePart(Long kind) {
    return KindOf(kind).blPlaced && kind != KindButton && kind != KindKoma;
}

}  // namespace

void Omissions::Warn(String text, const clsLayer& layer) {
    told_.push_back({std::move(text),
                     String(ProgramTitle),
                     MessageIcon::Warning,
                     {.Layer = layer.LayerNameView()}});
}

bool Omissions::IsGated(const clsLayer& layer) {
    const Long kind = layer.SymbolData()->eType();
    const String name = layer.LayerNameView();
    const String cannot = u"SWF" + ToText(version_) + u"では使用できません。\r\n";
    if ((kind == KindMovie || kind == KindMovieEmp) && version_ < MovieVersion) {
        Warn(u"FLVビデオ再生はSWF6以降の機能です。\r\n" + cannot + u"動画（" + name + u"）", layer);
        return true;
    }
    if (kind == KindLink && version_ < LinkVersion) {
        Warn(u"リンクシンボルはSWF5以降の機能です。\r\n" + cannot + u"リンクシンボル（" + name +
                 u"）",
             layer);
        return true;
    }
    return false;
}

void Omissions::LeaveOut(const clsLayer& layer) {
    if (!layers_.insert(&layer).second) return;
    Warn(u"この種類のレイヤーの生成には対応していません。\r\n" + layer.SymbolData()->TypeText() +
             u"（" + layer.LayerNameView() + u"）",
         layer);
}

void Omissions::LeaveOutExport(const clsSymbolData& symbol) {
    told_.push_back({u"「" + symbol.ExportName() +
                         u"」は書き出せません。\r\n"
                         u"この種類のシンボルの生成には対応していません。",
                     String(ProgramTitle),
                     MessageIcon::None,
                     {.SymbolID = symbol.ID}});
}

void Omissions::CheckKomas(const clsLayer& layer) {
    const auto& komas = *layer.SymbolData()->Property<clsPropertyKoma>()->colKomas;
    const bool whole = std::all_of(komas.begin(), komas.end(),
                                   [](const auto& koma) { return CanBePart(koma->eType()); });
    if (whole || !layers_.insert(&layer).second) return;
    Warn(
        u"生成に対応していない種類のコマがあります。\r\nコマ動画（" + layer.LayerNameView() + u"）",
        layer);
}

void Omissions::CheckGradients(const clsSymbolData& symbol) {
    if (version_ >= FocalVersion) return;
    if (!HasFocalGradient(*symbol.Property<clsPropertyVector>())) return;
    if (!drawings_.insert(&symbol).second) return;
    Notice notice;
    notice.Text = u"焦点をずらした円形グラデーションはSWF8以降の機能です。\r\nSWF" +
                  ToText(version_) + u"では正しく表示されません。\r\nベクタ（" + symbol.Value() +
                  u"）";
    notice.Severity = MessageIcon::Warning;
    notice.Place.SymbolID = symbol.ID;
    told_.push_back(std::move(notice));
}

void Omissions::CheckStates(const clsLayer& layer) {
    const auto& button = *layer.SymbolData()->Property<clsPropertyButton>();
    const auto whole = [](const auto& state) { return !state || CanBePart(state->eType()); };
    if ((whole(button.UpSymbol()) && whole(button.OverSymbol()) && whole(button.DownSymbol()) &&
         whole(button.HitTestSymbol())) ||
        !layers_.insert(&layer).second)
        return;
    Warn(u"生成に対応していない種類の状態があります。\r\nボタン（" + layer.LayerNameView() + u"）",
         layer);
}

}  // namespace tamber
