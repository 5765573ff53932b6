#pragma once

#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyVector.h"
#include "tests/swf/AuthoringTest.h"
#include "vector/clsVector.h"

namespace tamber {

/// Movies of vector symbols whose drawings are rectangles.
class VectorAuthoringTest : public AuthoringTest {
protected:
    /// A drawing of 10 x 10 pixels with so many rectangles.
    static std::shared_ptr<clsVectorData> Rectangles(Long count) {
        auto artwork = std::make_shared<clsVectorData>();
        for (Long i = 0; i < count; ++i) {
            clsVector maker;
            maker.SetRectShape(i * 20, 0, 200, 200, 0x7F0000FF);
            artwork->colShapeData.push_back(maker.inVector->ShapeDataTbl(1));
        }
        return artwork;
    }

    std::shared_ptr<clsSymbolData> AddVector(Long shapes) {
        auto symbol = std::make_shared<clsSymbolData>(KindVector);
        symbol->Property<clsPropertyVector>()->SetArtwork(Rectangles(shapes), 10, 10);
        return AddSymbol(symbol);
    }

    static clsObjVector& Bend(clsLayerObject& object) {
        auto& element = *object.ObjectAs<clsObjVector>();
        element.blFreeTrans = true;
        element.FreeTransPoints = {40, 0, 160, 0, 200, 200, 0, 200};
        return element;
    }

    static std::vector<Long> Depths(const std::vector<ParsedPlace>& places) {
        std::vector<Long> depths;
        for (const ParsedPlace& place : places) depths.push_back(place.Depth);
        return depths;
    }
};

}  // namespace tamber
