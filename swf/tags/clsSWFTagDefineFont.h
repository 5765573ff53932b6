#pragma once

#include "swf/clsSWFTag.h"
#include "swf/tags/TagCodes.h"
#include "swf/tags/clsFontObject.h"

namespace tamber {

/// DefineFont (`Ver` 1): identifier, offsets and glyph shapes alone. DefineFont2: identifier,
/// flags, language, name, offsets, glyph shapes, codes, and the layout with the ascent at 0 and the
/// descent at 1024, since glyphs are measured from the top of their cell.
class clsSWFTagDefineFont : public clsSWFTag {
public:
    Long Ver = 2;
    Long ID = 0;
    bool Italic = false;
    bool Bold = false;
    /// The face; "_" in front for a device font.
    String FontName;
    std::shared_ptr<const clsFontObject> FontObject;
    Long FontLeading = 0;
    /// Added to every advance of the layout table.
    Long FontCharSpace = 16;

    /// -1 for a `Ver` that there is not.
    Long TagNum() const override {
        return Ver == 1 ? TagCode::DefineFont : Ver == 2 ? TagCode::DefineFont2 : -1;
    }
    /// A font without glyphs that is no device font writes nothing.
    void Save() override;

private:
    bool HasWideCodes() const;
    void SaveFont2() const;
    void SaveFlags() const;
    void SaveName() const;
    /// Offsets from the table's start, so many bytes each, of the glyphs and of what is behind them
    /// where `withEnd` is set; then the shapes.
    void SaveGlyphs(Long offsetBytes, bool withEnd) const;
    void SaveCodes() const;
    void SaveLayout() const;
};

}  // namespace tamber
