#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "document/Project.h"

namespace tamber {

/// A script of a project, and where it stands.
struct ScriptPlace {
    /// The sprite or class whose timeline it is in; null for the main one.
    std::shared_ptr<clsSymbolData> Timeline;
    /// Row, and key frame for an action of a frame; 0 for a script of the row itself.
    Long Row = 0;
    Long KeyFrame = 0;
    String Script{};
};

/// Calls `visit` with each script that is written out, those of the main timeline first. With
/// `sprites` those of sprites and classes, too.
void ForEachScript(const Project& project, bool sprites,
                   const std::function<void(const ScriptPlace& place)>& visit);

/// A place where a text was found.
struct ScriptHit {
    ScriptPlace Place;
    /// UTF-16 units from the script's beginning.
    std::size_t Offset = 0;
    /// The line, without blanks at its ends.
    String Line{};
};

/// All places of a text in the scripts of a project, at most `most`. `sprites`: see above.
std::vector<ScriptHit> FindInScripts(const Project& project, StringView wanted, bool sprites,
                                     std::size_t most = 1000);

}  // namespace tamber
