#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"

namespace tamber {

/// A placed video, or with `blEmpty` a placed empty movie.
class clsObjMovie : public clsPlacedElement {
public:
    bool blEmpty = false;

    Long eType() const override { return blEmpty ? KindMovieEmp : KindMovie; }
};

}  // namespace tamber
