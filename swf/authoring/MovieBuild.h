#pragma once

#include "swf/authoring/DefinitionTable.h"
#include "swf/authoring/MovieScripts.h"
#include "swf/authoring/Omissions.h"
#include "swf/authoring/clsSWFAdmin.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

/// What the parts of one build share. The version is that of the movie, also for placements that
/// are written at once.
struct MovieBuild {
    MovieBuild(clsSWFAdmin& movie, Notices& told)
        : Movie(movie), Told(told), Left(movie.Ver, told), Scripts(movie.Ver, told) {
        mdlSWFTag::swfVersion(movie.Ver);
    }

    Long Version() const { return Movie.Ver; }

    clsSWFAdmin& Movie;
    Notices& Told;
    Omissions Left;
    MovieScripts Scripts;
    /// What has been defined.
    DefinitionTable Identifiers;
};

}  // namespace tamber
