#include "canvas/picture/DeviceFont.h"

namespace tamber {

namespace {

/// Characters whose outlines are kept; a text has far fewer.
constexpr std::size_t MostGlyphs = 4096;

PicturePath PathOf(const GlyphOutline& outline) {
    PicturePath path;
    auto edge = outline.Edges.begin();
    for (const OutlineContour& contour : outline.Contours) {
        path.MoveTo(contour.Start.X, contour.Start.Y);
        for (Long i = 0; i < contour.EdgeCount; ++i, ++edge) {
            if (edge->Curved)
                path.CurveTo(edge->Control.X, edge->Control.Y, edge->Anchor.X, edge->Anchor.Y);
            else
                path.LineTo(edge->Anchor.X, edge->Anchor.Y);
        }
        path.Close();
    }
    return path;
}

}  // namespace

DeviceFont::DeviceFont(StringView name, bool bold, bool italic) {
    font_.FaceName = name;
    font_.Bold = bold;
    font_.Italic = italic;
}

GlyphSource::Glyph DeviceFont::Find(char16_t character) const {
    auto found = glyphs_.find(character);
    if (found == glyphs_.end()) {
        if (glyphs_.size() >= MostGlyphs) glyphs_.clear();
        if (!GetCharOutline(record_, character, font_)) return {};
        found = glyphs_
                    .emplace(character,
                             std::pair(PathOf(record_.Outline), record_.CellIncX / CellUnits))
                    .first;
    }
    return {&found->second.first, found->second.second};
}

}  // namespace tamber
