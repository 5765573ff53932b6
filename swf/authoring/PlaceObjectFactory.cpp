#include "swf/authoring/PlaceObjectFactory.h"

#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

Long ToTwips(Single pixels, Single origin) {
    return mdlSWFTag::ToField((static_cast<double>(pixels) - origin) * 20.0);
}

void SetColour(clsSWFTagPlaceObject& tag, const clsLayerObjElement& element) {
    if (element.inFilter->blEditColor) {
        tag.SetEditColorFilter(element.inFilter->fltEditColor, element.Bright, element.Toumei);
        return;
    }
    tag.SetColorAddTerm(element.Bright * 255 / 100);
    tag.SetColorAlpha(element.Toumei * 256 / 100);
}

void SetBlendAndFilters(clsSWFTagPlaceObject& tag, const clsLayerObjElement& element,
                        const clsLayerObjElement* previous) {
    const bool newCharacter = tag.PlaceID != 0;
    const bool blendCounts = newCharacter          ? element.eBlend != 0
                             : previous != nullptr ? element.eBlend != previous->eBlend
                                                   : true;
    if (blendCounts) tag.eBlend(element.eBlend);
    const clsFilterData* other = previous != nullptr ? previous->inFilter.get() : nullptr;
    if (element.inFilter->FilterCount() == 0 && (other == nullptr || other->FilterCount() == 0))
        return;
    tag.inFilter(other != nullptr ? element.inFilter->AuthoringCopy(*other, true)
                                  : element.inFilter->Copy());
}

}  // namespace

std::shared_ptr<clsSWFTagPlaceObject> NewPlaceObject(Long version, Long placeID, Long depth,
                                                     const clsLayerObjElement& element,
                                                     TimelineOrigin origin,
                                                     const clsLayerObjElement* previous) {
    auto tag = std::make_shared<clsSWFTagPlaceObject>();
    tag->PlaceID = placeID;
    tag->depth = depth;
    tag->SetMatrix(element.ScaleX(), element.ScaleY(), element.Angle(),
                   ToTwips(element.X(), origin.X), ToTwips(element.Y(), origin.Y),
                   ToTwips(element.OffsetX(), 0), ToTwips(element.OffsetY(), 0), element.SkewX(),
                   element.SkewY());
    SetColour(*tag, element);
    if (version >= FilterVersion) SetBlendAndFilters(*tag, element, previous);
    return tag;
}

}  // namespace tamber
