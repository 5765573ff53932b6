#pragma once

#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Notice.h"
#include "swf/authoring/DefinitionTable.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// Where definitions go: the timeline that hands out their identifiers, the one that holds their
/// tags (a sprite's own may not) and its frame; and what there is to tell.
struct DefinitionPlace {
    clsSWFAdmin& Numbers;
    clsSWFAdmin& Tags;
    Long Frame;
    Notices& Told;
};

/// The drawing has shapes to define.
bool HasShapes(const clsPropertyVector& record);

/// The drawing has a radial gradient whose focus lies beside its centre.
bool HasFocalGradient(const clsPropertyVector& record);

/// Writes the definitions of a vector symbol in one of the forms. The result is the last
/// identifier: a divided symbol has one for each shape in its plain form; 0 for a drawing without
/// shapes.
Long DefineVector(const DefinitionPlace& place, const clsSymbolData& symbol, Long form);

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
