#pragma once

#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsSymbolData.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// Values of `clsSymbolData::DefineNum` for a vector symbol.
namespace VectorForm {
inline constexpr Long Plain = 0;
/// For a mask or an export: one shape, one table of styles.
inline constexpr Long Clip = 1;
/// The start of a morph, or a divided drawing as a whole, for a place that has one depth and no
/// tween, as a koma.
inline constexpr Long MorphStart = 2;
}  // namespace VectorForm

/// Where definitions go: the timeline that hands out their identifiers, the one that holds their
/// tags (a sprite's own may not) and its frame.
struct DefinitionPlace {
    clsSWFAdmin& Numbers;
    clsSWFAdmin& Tags;
    Long Frame = 1;
};

/// The drawing has shapes to define.
bool HasShapes(const clsPropertyVector& record);

/// The drawing has a radial gradient whose focus lies beside its centre.
bool HasFocalGradient(const clsPropertyVector& record);

/// Writes the definitions of a vector symbol in the form that its `DefineNum` selects, and sets its
/// `DefineID` to the last of them. A divided symbol has one for each shape in its plain form. A
/// drawing without shapes has none.
void DefineVector(const DefinitionPlace& place, clsSymbolData& symbol);

/// Temporary symbols for a key frame that deforms its drawing.
struct DeformedVector {
    std::shared_ptr<clsSymbolData> Start;
    /// What the start morphs into within a tween, else null.
    std::shared_ptr<clsSymbolData> End;
};

/// The drawing of `symbol` as `start` deforms it, and within a tween as `end` does, which is null
/// outside one.
DeformedVector DeformSymbol(const clsSymbolData& symbol, const clsObjVector* start,
                            const clsObjVector* end);

}  // namespace tamber
