#include "document/symbols/clsLayer.h"

#include <algorithm>
#include <utility>

#include "document/elements/clsLayerFolder.h"
#include "document/elements/clsObjSprite.h"
#include "document/elements/clsObjVector.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/RuntimeError.h"
#include "platform/text.h"

namespace tamber {

clsLayer::clsLayer() {
    inScript.eScriptMode(NoScript);
}

void clsLayer::SymbolData(std::shared_ptr<clsSymbolData> symbol) {
    const bool rebuild =
        symbol && symbol_ && ObjectCount() > 0 && symbol->eTypeEx() != symbol_->eTypeEx();
    symbol_ = std::move(symbol);
    if (!rebuild) return;
    const Collection<clsLayerObject> old = std::exchange(colObject, {});
    for (const auto& object : old) {
        auto changed = std::make_shared<clsLayerObject>();
        changed->SymbolType(symbol_->eTypeEx());
        object->CopyTo(*changed, true);
        colObject.Add(std::move(changed));
    }
}

String clsLayer::ExpText() const {
    if (!remark_.empty() || !symbol_ || symbol_->ID < 1) return remark_;
    return ToText(symbol_->ID);
}

std::shared_ptr<clsLayerObject> clsLayer::SelectObject() const {
    return SelectIndex >= 1 && SelectIndex <= ObjectCount() ? Object(SelectIndex) : nullptr;
}

void clsLayer::SelectObject(const std::shared_ptr<clsLayerObject>& object) {
    const auto found = std::find(colObject.begin(), colObject.end(), object);
    if (found != colObject.end()) SelectIndex = static_cast<Long>(found - colObject.begin()) + 1;
}

std::shared_ptr<clsLayerObject> clsLayer::PreviousObject() const {
    return SelectIndex > 1 && SelectIndex <= ObjectCount() ? Object(SelectIndex - 1) : nullptr;
}

std::shared_ptr<clsLayerObject> clsLayer::NextObject() const {
    return SelectIndex >= 1 && SelectIndex < ObjectCount() ? Object(SelectIndex + 1) : nullptr;
}

std::shared_ptr<clsLayerObject> clsLayer::FastObject() const {
    return colObject.Empty() ? nullptr : Object(1);
}

std::shared_ptr<clsLayerObject> clsLayer::EndObject() const {
    return colObject.Empty() ? nullptr : Object(ObjectCount());
}

void clsLayer::SelNext() {
    if (SelectIndex < ObjectCount()) ++SelectIndex;
}

void clsLayer::SelPrevious() {
    if (SelectIndex > 1) --SelectIndex;
}

Long clsLayer::SetSelectIndex(Long frame) {
    for (Long i = 1; i <= ObjectCount(); ++i)
        if (Object(i)->CheckFrame(frame)) SelectIndex = i;
    return SelectIndex;
}

Long clsLayer::GetCursorObjIndex(Long x) const {
    const Long frame = CheckFrame(x);
    for (Long i = 1; i <= ObjectCount(); ++i)
        if (Object(i)->StartFrame() == frame) return i;
    return 0;
}

Long clsLayer::CheckFrame(Long x) const {
    return std::max(x / std::max(FrameWidth, 1) + FirstFrame, 1);
}

void clsLayer::Add(Long frame, std::shared_ptr<clsLayerObject> object, Long& index) {
    if (!object) {
        object = std::make_shared<clsLayerObject>();
        if (symbol_) object->SymbolType(symbol_->eTypeEx());
    }
    if (frame < 1) {
        object->StartFrame(colObject.Empty() ? 1 : EndObject()->endFrame() + 1);
        colObject.Add(std::move(object));
        index = ObjectCount();
        return;
    }
    Long before = ObjectCount();
    while (before > 0 && Object(before)->StartFrame() > frame) --before;
    if (before > 0 && Object(before)->StartFrame() == frame) {
        index = -1;
        return;
    }
    object->StartFrame(frame);
    index = before + 1;
    colObject.Insert(std::move(object), index);
}

void clsLayer::Remove(Long index) {
    if (ObjectCount() <= 1) return;
    colObject.Remove(index);
    if (SelectIndex >= index && SelectIndex > 1) --SelectIndex;
}

void clsLayer::RemoveRange(Long f1, Long f2, bool allowEmpty, bool& changed) {
    changed = false;
    for (Long i = ObjectCount(); i >= 1; --i) {
        const Long start = Object(i)->StartFrame();
        if (start > f2) continue;
        if (start < f1) break;
        if (ObjectCount() > 1) {
            Remove(i);
            changed = true;
        } else if (allowEmpty) {
            colObject.Remove(i);
            changed = true;
        }
    }
}

void clsLayer::ChangeStartFrame(Long index, Long lastFrame) {
    clsLayerObject& object = *Object(index);
    if (index == ObjectCount()) {
        if (object.blFixed) {
            if (object.StartFrame() > lastFrame)
                object.DispCount(1);
            else
                object.endFrame(lastFrame);
        }
    } else if (object.blFixed || object.blTween) {
        object.endFrame(Object(index + 1)->StartFrame() - 1);
    }
    if (index <= 1) return;
    clsLayerObject& previous = *Object(index - 1);
    if (previous.blFixed || previous.blTween || previous.endFrame() >= object.StartFrame())
        previous.endFrame(object.StartFrame() - 1);
}

void clsLayer::ShiftRight(Long f1, Long f2, bool& changed) {
    changed = false;
    if (f1 > f2) std::swap(f1, f2);
    const Long count = f2 - f1 + 1;
    if (colObject.Empty() || EndObject()->endFrame() < f1) return;
    Long i = ObjectCount();
    for (; i >= 1 && Object(i)->StartFrame() >= f1; --i)
        Object(i)->StartFrame(Object(i)->StartFrame() + count);
    if (i >= 1 && Object(i)->endFrame() >= f1) Object(i)->endFrame(Object(i)->endFrame() + count);
    changed = true;
}

void clsLayer::ShiftLeft(Long f1, Long f2, bool& changed) {
    changed = false;
    if (f1 > f2) std::swap(f1, f2);
    const Long count = f2 - f1 + 1;
    if (colObject.Empty()) return;
    if (ObjectCount() == 1 ? Object(1)->StartFrame() == f1 : EndObject()->endFrame() < f1) return;
    Long i = ObjectCount();
    for (; i >= 1 && Object(i)->StartFrame() > f2; --i)
        Object(i)->StartFrame(Object(i)->StartFrame() - count);
    for (; i >= 1 && Object(i)->StartFrame() >= f1; --i) {
        if (ObjectCount() > 1)
            Remove(i);
        else
            Object(i)->StartFrame(f1);
    }
    if (i >= 1) {
        clsLayerObject& before = *Object(i);
        const bool longEnough = before.DispCount() > count;
        if (before.blFixed || before.blTween) {
            if (i < ObjectCount())
                before.DispCount(Object(i + 1)->StartFrame() - before.StartFrame());
            else if (longEnough)
                before.DispCount(before.DispCount() - count);
        } else if (before.endFrame() >= f2 && longEnough) {
            before.DispCount(before.DispCount() - count);
        }
    }
    changed = true;
}

Long clsLayer::tweenStartFrame(Long index) const {
    while (index > 1 && Object(index - 1)->blTween) --index;
    return Object(index)->StartFrame();
}

Long clsLayer::tweenEndFrame(Long index) const {
    while (index < ObjectCount() && Object(index)->blTween) ++index;
    return Object(index)->StartFrame();
}

Long clsLayer::blockStartFrame(Long index) const {
    while (index > 1 && Object(index - 1)->blVisible &&
           Object(index - 1)->endFrame() >= Object(index)->StartFrame() - 1)
        --index;
    return Object(index)->StartFrame();
}

Long clsLayer::blockEndFrame(Long index) const {
    while (index < ObjectCount() && Object(index + 1)->blVisible &&
           Object(index)->endFrame() >= Object(index + 1)->StartFrame() - 1)
        ++index;
    return Object(index)->endFrame();
}

bool clsLayer::Visible(bool own) const {
    if (own || !visible_) return visible_;
    for (auto folder = ParentFolder(); folder; folder = folder->ParentFolder())
        if (!folder->visible_) return false;
    return true;
}

void clsLayer::Visible(bool own, bool value) {
    clsLayer* target = this;
    if (!own)
        for (auto folder = ParentFolder(); folder; folder = folder->ParentFolder())
            target = folder.get();
    target->visible_ = value;
}

clsLayerFolder* clsLayer::Folder() const {
    return colObject.Empty() ? nullptr : Object(1)->ObjectAs<clsLayerFolder>();
}

bool clsLayer::Expand(Long depth) const {
    if (depth > 0)
        if (const clsLayerFolder* state = Folder(); state && !state->Expand) return false;
    for (auto folder = ParentFolder(); folder; folder = folder->ParentFolder())
        if (const clsLayerFolder* state = folder->Folder(); state && !state->Expand) return false;
    return true;
}

Long clsLayer::FolderDepth() const {
    Long depth = 0;
    for (auto folder = ParentFolder(); folder; folder = folder->ParentFolder()) ++depth;
    return depth;
}

void clsLayer::AddInFolder(Long count) {
    if (clsLayerFolder* state = Folder()) state->LayerCount += count;
    for (auto folder = ParentFolder(); folder; folder = folder->ParentFolder())
        if (clsLayerFolder* state = folder->Folder()) state->LayerCount += count;
}

String clsLayer::LayerNameView() const {
    if (!LayerName.empty()) return LayerName;
    if (!InstanceName.empty()) return u"{" + InstanceName + u"}";
    return symbol_ ? symbol_->Value() : String();
}

bool clsLayer::IsOfButton() const {
    return symbol_ && symbol_->eType() == KindButton;
}

bool clsLayer::blInstance() const {
    return symbol_ && symbol_->PropertyData() && symbol_->PropertyData()->HasInstanceName();
}

bool clsLayer::blEffect() const {
    if (!symbol_) return false;
    if (symbol_->PropertyData() && symbol_->PropertyData()->TakesEffects()) return true;
    if (symbol_->eType() != KindSprite) return false;
    const auto selected = SelectObject();
    const auto* sprite = selected ? selected->ObjectAs<clsObjSprite>() : nullptr;
    return sprite != nullptr && sprite->inEfElement.blEffect;
}

String clsLayer::Script(Long swfVersion) const {
    String text = inScript.Script(swfVersion);
    const Long mode = inScript.eScriptMode();
    if (mode < clsScriptData::ModePlay || mode > clsScriptData::ModeUrl) return text;
    return u"on (" + OnEventName() + u") {\r\n\t" + text + u"\r\n}";
}

Long clsLayer::DepthCnt(bool inTween) const {
    if (!symbol_) return 0;
    const KindDepths depths = KindOf(symbol_->eTypeEx()).Depths;
    if (depths == KindDepths::None) return 0;
    if (depths == KindDepths::One) return Visible(true) ? 1 : 0;
    const clsPropertyData* record = symbol_->PropertyData().get();
    if (ClippingDepth != 0 || record == nullptr) return 1;
    const Long divided = record->DividedDepths();
    if (divided != 1 || !inTween) return divided;
    bool follows = false;
    for (const auto& object : colObject) {
        const auto* element = object->ObjectAs<clsObjVector>();
        if ((object->blTween || follows) && element && element->blFreeTransEx() &&
            element->blDivide)
            return record->ShapeCount();
        follows = object->blTween;
    }
    return 1;
}

std::shared_ptr<clsLayer> clsLayer::Copy() const {
    auto copy = std::make_shared<clsLayer>();
    CopyTo(*copy);
    return copy;
}

std::shared_ptr<clsLayer> clsLayer::CopyHead() const {
    auto copy = std::make_shared<clsLayer>(*this);
    copy->colObject.Clear();
    return copy;
}

void clsLayer::CopyTo(clsLayer& target) const {
    if (&target == this) return;
    target = *this;
    target.colObject.Clear();
    for (const auto& object : colObject) target.colObject.Add(object->Copy());
}

bool clsLayer::CompareHead(const clsLayer& other) const {
    return symbol_ == other.symbol_ && SameFields(*this, other) &&
           inScript.TargetPath == other.inScript.TargetPath;
}

void clsLayer::Load(clsCSV& csv) {
    LoadFields(*this, csv);
    const Long count = csv.TakeLong();
    csv.CrLf();
    colObject.Clear();
    for (Long i = 0; i < count; ++i) {
        auto object = std::make_shared<clsLayerObject>();
        object->SymbolType(symbol_->eTypeEx());
        object->Load(csv);
        if (!colObject.Empty() && object->StartFrame() <= EndObject()->StartFrame())
            throw RuntimeError(ErrorOutOfRange, u"clsLayer[StartFrame]",
                               u"範囲外の数値が設定されました。");
        colObject.Add(std::move(object));
    }
}

void clsLayer::Save(clsCSV& csv) const {
    csv.Put(symbol_->ID);
    SaveFields(*this, csv);
    csv.Put(ObjectCount());
    csv.CrLf();
    for (const auto& object : colObject) object->Save(csv);
}

}  // namespace tamber
