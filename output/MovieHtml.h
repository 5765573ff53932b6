#pragma once

#include <vector>

#include "document/Project.h"

namespace tamber {

/// What the page of a movie is filled with.
struct MoviePage {
    /// Name of the movie's file, without its folder.
    String FileName;
    /// Size of the movie, pixels.
    Long Width = 0;
    Long Height = 0;
    Long Version = 6;
    HtmlSettings Settings;
    /// Named anchors of the frames.
    std::vector<String> Anchors;
    /// The page loads the player that lies beside it.
    bool blPlayer = false;
};

/// Folder beside a page in which its player lies, and the script that starts it.
inline constexpr StringView PlayerFolder = u"ruffle";
inline constexpr StringView PlayerScript = u"ruffle.js";

/// Fills the markers of a template, such as "<<WIDTH>>". What stands at its default takes its
/// marker's line along; a unit of the size that is not known leaves the markers of the size.
void MakeHtml(String& text, const MoviePage& page);

}  // namespace tamber
