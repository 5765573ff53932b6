#pragma once

#include "app/session/Session.h"
#include "canvas/picture/PictureMovie.h"

namespace tamber {

/// Movies of the open project that are drawn and not written.
class PictureOperations {
public:
    explicit PictureOperations(Session& session) : session_(session) {}

    /// The whole movie. Null, with the reason told, when it cannot be built.
    std::shared_ptr<const PictureMovie> Movie() const;
    /// A movie of the symbol with a number alone. Null, which is told, where there is no such
    /// symbol to see.
    std::shared_ptr<const PictureMovie> SymbolMovie(Long id) const;

private:
    Session& session_;
};

}  // namespace tamber
