#include "document/clsPropertyClass.h"

#include <utility>

#include "document/Project.h"
#include "document/clsObjFrameAction.h"
#include "platform/RuntimeError.h"

namespace tamber {

void clsPropertyClass::Load(clsCSV& csv) {
    className = csv.TakeText();
    Extends = csv.TakeText();
    const Long count = csv.TakeLong();
    colLayer = std::make_shared<Collection<clsLayer>>();
    for (Long i = 0; i < count; ++i) {
        csv.CrLf();
        // Both cells may be empty, so that only the table's end tells a count that is too high.
        if (csv.Y() >= csv.Rows())
            throw RuntimeError(ErrorOutOfRange, u"clsPropertyClass",
                               u"範囲外の数値が設定されました。");
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(std::make_shared<clsSymbolData>(KindFrameAction));
        Long index = 0;
        layer->Add(1, nullptr, index);
        auto* action = layer->Object(index)->ObjectAs<clsObjFrameAction>();
        action->Comment = csv.TakeText();
        action->inScript.ScriptText = csv.TakeText();
        colLayer->Add(std::move(layer));
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
    CopyRecord(*this, target);
    auto layers = std::make_shared<Collection<clsLayer>>();
    for (const auto& layer : *colLayer) layers->Add(layer->Copy());
    NestLayers(*layers);
    auto& copy = dynamic_cast<clsPropertyClass&>(target);
    copy.colLayer = std::move(layers);
    copy.cUndoRedo.reset();
}

}  // namespace tamber
