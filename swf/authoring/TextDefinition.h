#pragma once

#include "document/records/clsPropertyText.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"
#include "swf/authoring/clsSWFAdmin.h"
#include "swf/tags/clsSWFTagCSMTextSettings.h"
#include "swf/tags/clsSWFTagDefineEditText.h"
#include "swf/tags/clsSWFTagDefineText.h"

namespace tamber {

/// The face that a text is set in.
LogFont FaceOf(const clsPropertyText& text);
/// Key of a text's font in the font table.
String FontKeyOf(const clsPropertyText& text);
/// Size and distances of a text in twips.
TextFormat FormatOf(const clsPropertyText& text);

/// Fonts of a library for a movie of `version`, with every character that its texts show or may be
/// given.
std::shared_ptr<clsFontAdmin> RefreshFontAdmin(const Collection<clsSymbolData>& library,
                                               Long version);

/// New definitions in an admin whose font table holds the text's font.
std::shared_ptr<clsSWFTagDefineText> GetNewText(clsSWFAdmin& admin, const clsPropertyText& text);
std::shared_ptr<clsSWFTagDefineEditText> GetNewEditText(clsSWFAdmin& admin,
                                                        const clsPropertyText& text);
std::shared_ptr<clsSWFTagCSMTextSettings> GetNewCSMTextSettings(Long textID,
                                                                const clsPropertyText& text);

/// Writes the definition of a text symbol that follows no outline: static text or a text field, and
/// from version 8 on how it is smoothed. The result is its identifier.
Long DefineText(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);

}  // namespace tamber
