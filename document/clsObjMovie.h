#pragma once

#include "document/SymbolKinds.h"
#include "document/clsPlacedElement.h"

namespace tamber {

/// A placed video, or with `blEmpty` a placed empty movie.
class clsObjMovie : public clsPlacedElement {
public:
    bool blEmpty = false;

    Long eType() const override { return blEmpty ? KindMovieEmp : KindMovie; }
};

}  // namespace tamber
