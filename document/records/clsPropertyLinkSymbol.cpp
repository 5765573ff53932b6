#include "document/records/clsPropertyLinkSymbol.h"

#include <utility>

#include "platform/RuntimeError.h"

namespace tamber {

void clsPropertyLinkSymbol::Load(clsCSV& csv) {
    SymbolName = csv.TakeText();
    URL = csv.TakeText();
    Width = csv.TakeLong();
    height = csv.TakeLong();
    eSymbolType(SymbolKindFromText(csv.TakeText()));
    if (objPropertyData) objPropertyData->Load(csv);
}

void clsPropertyLinkSymbol::Save(clsCSV& csv) const {
    csv.Put(SymbolName);
    csv.Put(URL);
    csv.Put(Width);
    csv.Put(height);
    csv.Put(SymbolTypeText());
    if (objPropertyData) objPropertyData->Save(csv);
}

void clsPropertyLinkSymbol::eSymbolType(Long kind) {
    if (kind == KindLink)
        throw RuntimeError(ErrorOutOfRange, u"clsPropertyLinkSymbol[eSymbolType]",
                           u"範囲外の数値が設定されました。");
    targetKind_ = kind;
    objPropertyData = MakePropertyData(kind);
}

void clsPropertyLinkSymbol::CopyTo(clsPropertyData& target) const {
    CopyRecord(*this, target);
    if (!objPropertyData) return;
    auto record = MakePropertyData(targetKind_);
    objPropertyData->CopyTo(*record);
    dynamic_cast<clsPropertyLinkSymbol&>(target).objPropertyData = std::move(record);
}

}  // namespace tamber
