#include "document/records/clsPropertyLinkSymbol.h"

#include <utility>

#include "platform/RuntimeError.h"

namespace tamber {

namespace {
constexpr StringView TargetPrefix = u"target.";
}  // namespace

void clsPropertyLinkSymbol::Load(clsCSV& csv) {
    LoadFields(*this, csv);
    eSymbolType(SymbolKindFromText(csv.TakeText()));
    if (objPropertyData) objPropertyData->Load(csv);
}

void clsPropertyLinkSymbol::Save(clsCSV& csv) const {
    SaveFields(*this, csv);
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

std::shared_ptr<clsPropertyData> clsPropertyLinkSymbol::Copy() const {
    auto copy = std::make_shared<clsPropertyLinkSymbol>(*this);
    if (objPropertyData) copy->objPropertyData = objPropertyData->Copy();
    return copy;
}

void clsPropertyLinkSymbol::CopyTo(clsPropertyData& target) const {
    CopyRecord(*this, target);
    if (!objPropertyData) return;
    auto record = MakePropertyData(targetKind_);
    objPropertyData->CopyTo(*record);
    dynamic_cast<clsPropertyLinkSymbol&>(target).objPropertyData = std::move(record);
}

void clsPropertyLinkSymbol::TellFields(const FieldSink& sink) const {
    FieldRecord::TellFields(sink);
    sink(u"target", SymbolTypeText());
    if (!objPropertyData) return;
    objPropertyData->TellFields([&sink](StringView name, const String& value) {
        sink(name.empty() ? String() : String(TargetPrefix) + String(name), value);
    });
}

bool clsPropertyLinkSymbol::SetField(StringView name, StringView value) {
    if (!objPropertyData || !name.starts_with(TargetPrefix))
        return FieldRecord::SetField(name, value);
    return objPropertyData->SetField(name.substr(TargetPrefix.size()), value);
}

}  // namespace tamber
