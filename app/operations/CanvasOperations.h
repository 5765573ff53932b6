#pragma once

#include "app/session/Session.h"
#include "canvas/EditSnapshot.h"

namespace tamber {

/// The small movie of one frame that the canvas shows.
class CanvasOperations {
public:
    explicit CanvasOperations(Session& session) : session_(session) {}

    /// Folder of the movie: the project's, or the program's for one without a name and where the
    /// settings say so.
    String TempMoviePath() const;
    /// Writes a movie of what the edited timeline shows on a frame; 0 stands for the frame of the
    /// cursor or, as the settings say, where the selected key frame starts. Nothing is said; false
    /// when it could not be written, and the old one stays.
    bool Write(Long frame);
    /// Path of the movie to show; empty where the timeline has no rows.
    const String& Shown() const { return shown_; }
    /// Colour behind the main timeline, red in the low byte; white for a sprite's.
    Long BackColor() const;
    /// The placements of the movie, each with its row and key frame.
    const PlacedTags& Tags() const { return tags_; }
    /// The frame that was shown last, 0 for none.
    Long PreviousFrame() const { return previousFrame_; }
    /// Removes the movie.
    void Delete();

private:
    /// Where the movie lies when the program's folder takes no files; empty for nowhere.
    String SparePath() const;
    bool WriteInto(StringView folder, Long frame);

    Session& session_;
    clsSWFAdmin snapshot_;
    PlacedTags tags_;
    String path_;
    String shown_;
    Long previousFrame_ = 0;
};

}  // namespace tamber
