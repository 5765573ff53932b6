#pragma once

#include <set>

#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Notice.h"

namespace tamber {

/// Versions of the movie from which there are video, imports, and gradients with a focus of their
/// own.
inline constexpr Long MovieVersion = 6;
inline constexpr Long LinkVersion = 5;
inline constexpr Long FocalVersion = 8;

/// Tells what a movie of a version cannot hold: of each layer or symbol once.
class Omissions {
public:
    Omissions(Long version, Notices& told) : version_(version), told_(told) {}

    /// The version has nothing for the layer's kind, which is told each time.
    bool IsGated(const clsLayer& layer);
    void LeaveOut(const clsLayer& layer);
    void LeaveOutExport(const clsSymbolData& symbol);
    /// Tells pictures of a koma that cannot be generated, if there are any.
    void CheckKomas(const clsLayer& layer);
    /// The same for states of a button.
    void CheckStates(const clsLayer& layer);
    /// The same for gradients of a drawing that older players cannot read.
    void CheckGradients(const clsSymbolData& symbol);

private:
    void Warn(String text, const clsLayer& layer);

    Long version_;
    Notices& told_;
    std::set<const clsLayer*> layers_;
    std::set<const clsSymbolData*> drawings_;
};

}  // namespace tamber
