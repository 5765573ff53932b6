#include "swf/tags/clsFontObject.h"

#include <algorithm>

#include "platform/codepage.h"

namespace tamber {

namespace {

OutlinePoint Middle(OutlinePoint a, OutlinePoint b) {
    return {(a.X + b.X) / 2, (a.Y + b.Y) / 2};
}

void DrawSpline(clsSWFTShapeRecords& records, const std::vector<OutlinePoint>& points) {
    if (points.size() < 2) return;
    for (std::size_t i = 0; i + 2 < points.size(); ++i) {
        const OutlinePoint anchor = Middle(points[i], points[i + 1]);
        records.DrawCurveTo(points[i].X, points[i].Y, anchor.X, anchor.Y);
    }
    const OutlinePoint control = points[points.size() - 2];
    records.DrawCurveTo(control.X, control.Y, points.back().X, points.back().Y);
}

void DrawContour(clsSWFTShapeRecords& records, const OutlineContour& contour) {
    records.MovePenTo(contour.Start.X, contour.Start.Y);
    for (const OutlineCurve& curve : contour.Curves) {
        if (curve.Type == OutlineCurve::Lines)
            for (const OutlinePoint point : curve.Points) records.DrawLineTo(point.X, point.Y);
        if (curve.Type == OutlineCurve::Spline) DrawSpline(records, curve.Points);
    }
    if (records.CurrentX != contour.Start.X || records.CurrentY != contour.Start.Y)
        records.DrawLineTo(contour.Start.X, contour.Start.Y);
}

/// Records that the contours of an outline take at most.
std::size_t RecordCount(const GlyphOutlineRecord& outline) {
    std::size_t count = 1;
    for (const OutlineContour& contour : outline.Contours) {
        count += 2;
        for (const OutlineCurve& curve : contour.Curves) count += curve.Points.size();
    }
    return count;
}

}  // namespace

std::uint32_t AnsiCode(char16_t character) {
    std::uint32_t code = 0;
    for (const Byte byte : EncodeAnsi(StringView(&character, 1))) code = code << 8 | byte;
    return code;
}

std::uint32_t clsFontObject::CodeOf(char16_t character) const {
    return sJis_ ? AnsiCode(character) : character;
}

void clsFontObject::AuthorFrame(Long frame) {
    if (frame > 0 && (authorFrame_ == 0 || frame < authorFrame_)) authorFrame_ = frame;
}

void clsFontObject::blSJis(bool value) {
    if (value == sJis_) return;
    sJis_ = value;
    for (Glyph& glyph : glyphs_) glyph.Code = CodeOf(glyph.Character);
    sorted_ = false;
}

void clsFontObject::Sort() const {
    if (sorted_) return;
    // Characters without a place in the code page share the code of "?" and keep their order.
    std::stable_sort(glyphs_.begin(), glyphs_.end(),
                     [](const Glyph& a, const Glyph& b) { return a.Code < b.Code; });
    for (std::size_t i = 0; i < glyphs_.size(); ++i)
        positions_[glyphs_[i].Character] = static_cast<Long>(i) + 1;
    sorted_ = true;
}

String clsFontObject::FontMap() const {
    Sort();
    String map;
    map.reserve(glyphs_.size());
    for (const Glyph& glyph : glyphs_) map += glyph.Character;
    return map;
}

void clsFontObject::AddGlyph(char16_t character, const GlyphOutlineRecord& outline) {
    Glyph glyph{character, CodeOf(character), {}};
    glyph.Data.CellIncX = outline.CellIncX;
    glyph.Data.tagShapeRecords = std::make_shared<clsSWFTShapeRecords>();
    clsSWFTShapeRecords& records = *glyph.Data.tagShapeRecords;
    records.colShapeRecords.reserve(RecordCount(outline));
    records.SetFill0(1);
    for (const OutlineContour& contour : outline.Contours) DrawContour(records, contour);
    sorted_ = sorted_ && (glyphs_.empty() || glyphs_.back().Code <= glyph.Code);
    glyphs_.push_back(std::move(glyph));
    positions_[character] = GlyphCount();
}

}  // namespace tamber
