#include "document/records/clsPropertyClass.h"

#include "document/symbols/clsLayer.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/RuntimeError.h"

namespace tamber {

clsPropertyClass::clsPropertyClass() {
    colLayer->Add(NewLayer());
}

std::shared_ptr<clsLayer> clsPropertyClass::NewLayer() {
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(std::make_shared<clsSymbolData>(KindFrameAction));
    Long index = 0;
    layer->Add(0, nullptr, index);
    return layer;
}

void clsPropertyClass::Load(clsCSV& csv) {
    className = csv.TakeText();
    Extends = csv.TakeText();
    const Long count = csv.TakeLong();
    colLayer = std::make_shared<Collection<clsLayer>>();
    colLayer->Add(NewLayer());
    for (Long i = 1; i <= count; ++i) {
        csv.CrLf();
        // Both cells may be empty, so that only the table's end tells a count that is too high.
        if (csv.Y() >= csv.Rows())
            throw RuntimeError(ErrorOutOfRange, u"clsPropertyClass",
                               u"範囲外の数値が設定されました。");
        if (i > 1) colLayer->Add(NewLayer());
        auto* action = colLayer->Item(i)->Object(1)->ObjectAs<clsObjFrameAction>();
        action->Comment = csv.TakeText();
        action->inScript.ScriptText = csv.TakeText();
    }
}

void clsPropertyClass::Save(clsCSV& csv) const {
    csv.Put(className);
    csv.Put(Extends);
    csv.Put(colLayer->Count());
    for (const auto& layer : *colLayer) {
        csv.CrLf();
        const auto first = layer->FastObject();
        const auto* action = first ? first->ObjectAs<clsObjFrameAction>() : nullptr;
        csv.Put(action ? StringView(action->Comment) : StringView());
        csv.Put(action ? StringView(action->inScript.ScriptText) : StringView());
    }
}

void clsPropertyClass::CopyTo(clsPropertyData& target) const {
    auto& copy = dynamic_cast<clsPropertyClass&>(target);
    copy.className = className + u"_copy";
    copy.Extends = Extends;
}

}  // namespace tamber
