#include "app/fields/KeyFrameFields.h"

#include "app/fields/CellNames.h"
#include "app/fields/RecordCells.h"
#include "document/elements/clsLayerFolder.h"
#include "document/elements/clsLayerObjElement.h"
#include "document/elements/clsObjSprite.h"
#include "document/elements/clsObjText.h"
#include "document/elements/clsObjVector.h"
#include "platform/text.h"

namespace tamber {

namespace {

template <auto Member>
bool SetSingle(clsLayerObjElement& placement, StringView value) {
    (placement.*static_cast<void (clsLayerObjElement::*)(Single)>(Member))(ToSingle(value));
    return true;
}

template <Long clsLayerObjElement::*Member, Long Least, Long Most>
bool SetWhole(clsLayerObjElement& placement, StringView value) {
    const Long number = ToLong(value);
    if (number < Least || number > Most) return false;
    placement.*Member = number;
    return true;
}

template <bool clsLayerObjElement::*Member>
bool SetSwitch(clsLayerObjElement& placement, StringView value) {
    placement.*Member = ToBoolean(value);
    return true;
}

struct PlacementField {
    StringView Name;
    bool (*Set)(clsLayerObjElement& placement, StringView value);
};

using P = clsLayerObjElement;
using SingleSetter = void (P::*)(Single);
constexpr Long HighestBlend = 14;

constexpr PlacementField PlacementFields[]{
    {u"X", SetSingle<SingleSetter(&P::X)>},
    {u"Y", SetSingle<SingleSetter(&P::Y)>},
    {u"OffsetX", SetSingle<SingleSetter(&P::OffsetX)>},
    {u"OffsetY", SetSingle<SingleSetter(&P::OffsetY)>},
    {u"ScaleX", SetSingle<SingleSetter(&P::ScaleX)>},
    {u"ScaleY", SetSingle<SingleSetter(&P::ScaleY)>},
    {u"Angle", SetSingle<SingleSetter(&P::Angle)>},
    {u"SkewX", SetSingle<SingleSetter(&P::SkewX)>},
    {u"SkewY", SetSingle<SingleSetter(&P::SkewY)>},
    {u"Bright", SetWhole<&P::Bright, -100, 100>},
    {u"Toumei", SetWhole<&P::Toumei, 0, 100>},
    {u"Edging", SetWhole<&P::Edging, -255, 255>},
    {u"EdgingAllMode", SetWhole<&P::EdgingAllMode, 0, 2>},
    {u"eBlend", SetWhole<&P::eBlend, 0, HighestBlend>},
    {u"chkFixedRatio", SetSwitch<&P::chkFixedRatio>},
    {u"blCustomEdging", SetSwitch<&P::blCustomEdging>},
};

bool SetPlacementField(clsLayerObjElement& placement, StringView field, StringView value) {
    for (const PlacementField& known : PlacementFields)
        if (known.Name == field) return known.Set(placement, value);
    return SetCell(*placement.inFilter, FilterCellNames(), field, value);
}

bool SetVectorField(clsObjVector& vector, StringView field, StringView value) {
    constexpr StringView Point = u"FreeTransPoint";
    if (field == u"blFreeTrans") {
        vector.blFreeTrans = ToBoolean(value);
    } else if (field == u"blDivide") {
        vector.blDivide = ToBoolean(value);
    } else if (field.size() == Point.size() + 1 && field.starts_with(Point) &&
               field.back() >= u'1' && field.back() <= u'8') {
        vector.FreeTransPoints[static_cast<std::size_t>(field.back() - u'1')] = ToLong(value);
    } else {
        return false;
    }
    return true;
}

/// What only one kind of visual element has.
bool SetOwnField(clsLayerObject& object, StringView field, StringView value) {
    if (auto* vector = object.ObjectAs<clsObjVector>())
        return SetVectorField(*vector, field, value);
    if (auto* text = object.ObjectAs<clsObjText>())
        return SetCell(text->inEfElement, EffectCellNames(), field, value);
    if (auto* sprite = object.ObjectAs<clsObjSprite>())
        return SetCell(sprite->inEfElement, EffectCellNames(), field, value);
    return false;
}

/// An element of label, action, sound or background.
bool SetElementCell(clsLayerObject& object, StringView field, StringView value) {
    const Long kind = object.SymbolType();
    const auto changed = MakeElement(kind);
    // The counts of a folder follow its rows.
    if (kind == KindLayerFolder ||
        !LoadWithCell(*object.Object, *changed, ElementCellNames(kind), field, value))
        return false;
    object.Object = changed;
    return true;
}

}  // namespace

bool SetKeyFrameField(clsLayerObject& object, StringView field, StringView value) {
    if (field == u"blVisible") {
        object.blVisible = ToBoolean(value);
        return true;
    }
    if (!object.Object) return false;
    if (clsLayerObjElement* placement = object.Placement())
        return SetPlacementField(*placement, field, value) || SetOwnField(object, field, value);
    return SetElementCell(object, field, value);
}

bool SetLayerField(clsLayer& layer, StringView field, StringView value) {
    if (field == u"LayerName") {
        layer.LayerName = value;
    } else if (field == u"ExpText") {
        layer.ExpText(value);
    } else if (field == u"OnEvent") {
        layer.OnEventName(value);
    } else if (field == u"Visible") {
        layer.Visible(true, ToBoolean(value));
    } else if (field == u"Expand" && layer.Folder() != nullptr) {
        layer.Folder()->Expand = ToBoolean(value);
    } else if (field == u"ClippingDepth") {
        const Long depth = ToLong(value);
        if (depth < 0 || depth > clsLayer::MaxClippingDepth) return false;
        layer.ClippingDepth = depth;
    } else {
        return SetCell(layer.inScript, ScriptCellNames(), field, value);
    }
    return true;
}

}  // namespace tamber
