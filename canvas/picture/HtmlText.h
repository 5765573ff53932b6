#pragma once

#include "canvas/picture/TextFieldLayout.h"

namespace tamber {

/// The runs of a text with the marks that text fields know: p and br end a line, font changes
/// colour and size, p has an alignment, others are passed over. `plain` is how it begins.
std::vector<TextRun> HtmlRuns(StringView html, const TextRun& plain);

}  // namespace tamber
