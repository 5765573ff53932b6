#include "document/records/clsPropertyClass.h"

#include "document/elements/clsObjFrameAction.h"
#include "document/symbols/clsLayer.h"
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
    LoadFields(*this, csv);
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

template <class Visit>
void clsPropertyClass::ForEachPart(Visit&& visit) const {
    for (const auto& layer : *colLayer) {
        const auto first = layer->FastObject();
        const auto* action = first ? first->ObjectAs<clsObjFrameAction>() : nullptr;
        visit(action ? action->Comment : String(), action ? action->inScript.ScriptText : String());
    }
}

void clsPropertyClass::Save(clsCSV& csv) const {
    SaveFields(*this, csv);
    csv.Put(colLayer->Count());
    ForEachPart([&csv](const String& comment, const String& text) {
        csv.CrLf();
        csv.Put(comment);
        csv.Put(text);
    });
}

void clsPropertyClass::TellFields(const FieldSink& sink) const {
    FieldRecord::TellFields(sink);
    sink(u"layers", ToText(colLayer->Count()));
    ForEachPart([&sink](const String& comment, const String& text) {
        sink({}, comment);
        sink({}, text);
    });
}

void clsPropertyClass::CopyTo(clsPropertyData& target) const {
    auto& copy = dynamic_cast<clsPropertyClass&>(target);
    copy.className = className + u"_copy";
    copy.Extends = Extends;
}

}  // namespace tamber
