#include "document/elements/clsLayerObject.h"

#include <algorithm>
#include <limits>

#include "document/elements/clsLayerObjElement.h"
#include "document/elements/clsObjFrameAction.h"
#include "platform/RuntimeError.h"

namespace tamber {

namespace {

void Require(bool valid, StringView source) {
    if (!valid)
        throw RuntimeError(ErrorOutOfRange, String(source), u"範囲外の数値が設定されました。");
}

bool SamePath(const clsLayerObjElement* a, const clsLayerObjElement* b) {
    if (a == nullptr || b == nullptr) return a == b;
    return std::equal(a->colTweenPoint.begin(), a->colTweenPoint.end(), b->colTweenPoint.begin(),
                      b->colTweenPoint.end(),
                      [](const auto& one, const auto& other) { return *one == *other; });
}

/// The comparison of scripts leaves this out.
bool SameTarget(const clsLayerObject& a, const clsLayerObject& b) {
    const auto* one = a.ObjectAs<clsObjFrameAction>();
    const auto* other = b.ObjectAs<clsObjFrameAction>();
    return one == nullptr || other == nullptr ||
           one->inScript.TargetPath == other->inScript.TargetPath;
}

}  // namespace

Long FirstFrame(Long frame) {
    Require(frame >= 1, u"clsLayer[StartFrame]");
    return frame;
}

Long FramesRead(Long count) {
    return std::max(count, 1);
}

void clsLayerObject::StartFrame(Long frame) {
    start_ = FirstFrame(frame);
}

void clsLayerObject::DispCount(Long count) {
    Require(count >= 1, u"clsLayer[DispCount]");
    count_ = count;
}

Long clsLayerObject::endFrame() const {
    const std::int64_t end = std::int64_t{start_} + count_ - 1;
    return static_cast<Long>(std::min<std::int64_t>(end, std::numeric_limits<Long>::max()));
}

void clsLayerObject::endFrame(Long frame) {
    Require(frame >= start_, u"clsLayer[EndFrame]");
    count_ = frame - start_ + 1;
}

void clsLayerObject::SymbolType(Long kind) {
    kind_ = kind;
    Object = MakeElement(kind);
}

std::shared_ptr<clsLayerObject> clsLayerObject::Copy() const {
    auto copy = std::make_shared<clsLayerObject>();
    CopyTo(*copy, false);
    if (Object) copy->Object = Object->Copy();
    return copy;
}

void clsLayerObject::CopyTo(clsLayerObject& target, bool deep) const {
    CopyFields(*this, target);
    if (!deep) {
        target.kind_ = kind_;
        target.Object = Object;
    } else if (Object && target.Object) {
        Object->CopyTo(*target.Object, true);
    }
}

bool clsLayerObject::Compare(const clsLayerObject& other) const {
    if (!SameFields(*this, other) || kind_ != other.kind_) return false;
    if (!Object || !other.Object) return Object == other.Object;
    return Object->Compare(*other.Object) && SamePath(Placement(), other.Placement()) &&
           SameTarget(*this, other);
}

void clsLayerObject::Load(clsCSV& csv) {
    LoadFields(*this, csv);
    if (Object) Object->Load(csv);
    csv.CrLf();
}

void clsLayerObject::Save(clsCSV& csv) const {
    SaveFields(*this, csv);
    if (Object) Object->Save(csv);
    csv.CrLf();
}

}  // namespace tamber
