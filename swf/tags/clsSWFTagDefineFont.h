#pragma once

#include "swf/tags/TagCodes.h"
#include "swf/tags/clsFontObject.h"

namespace tamber {

/// DefineFont2: identifier, flags, language, name, offsets, glyph shapes, codes, and the layout
/// with the ascent at 0 and the descent at 1024, since glyphs are measured from the top of their
/// cell.
class clsSWFTagDefineFont : public clsSWFTag {
public:
    Long ID = 0;
    bool Italic = false;
    bool Bold = false;
    /// The face; "_" in front for a device font.
    String FontName;
    std::shared_ptr<const clsFontObject> FontObject;
    Long FontLeading = 0;
    /// Added to every advance of the layout table.
    Long FontCharSpace = 16;

    Long TagNum() const override { return TagCode::DefineFont2; }
    /// A font without glyphs that is no device font writes nothing.
    void Save() override;

private:
    bool HasWideCodes() const;
    void SaveFlags() const;
    void SaveName() const;
    void SaveGlyphs() const;
    void SaveCodes() const;
    void SaveLayout() const;
};

}  // namespace tamber
