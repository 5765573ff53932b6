#pragma once

#include "output/MovieHtml.h"

namespace tamber {

/// Settings of a page as the program holds them.
HtmlSettings HtmlSection();
/// Makes them those of the program: `kept` in the settings file, else for this run.
void HtmlSection(const HtmlSettings& html, bool kept);

/// Fills the program's `template.txt` and writes it beside a movie, with ".html" for its extension.
/// A page that loads a player gets it from the installed package; where there is none, a status
/// line tells what to do. False, with a message, when there is no template or nothing could be
/// written.
bool WriteMoviePage(StringView moviePath, MoviePage page);

}  // namespace tamber
