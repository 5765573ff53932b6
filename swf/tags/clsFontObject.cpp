#include "swf/tags/clsFontObject.h"

#include <algorithm>
#include <numeric>

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
    for (std::size_t i = 0; i < map_.size(); ++i) codes_[i] = CodeOf(map_[i]);
    std::vector<std::size_t> order(map_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [this](std::size_t a, std::size_t b) { return codes_[a] < codes_[b]; });
    clsFontObject sorted(FontName);
    for (const std::size_t i : order) {
        sorted.map_ += map_[i];
        sorted.data_.push_back(data_[i]);
        sorted.codes_.push_back(codes_[i]);
    }
    map_ = std::move(sorted.map_);
    data_ = std::move(sorted.data_);
    codes_ = std::move(sorted.codes_);
}

Long clsFontObject::GetFontIndex(char16_t character) const {
    // Characters without a place in the code page share the code of "?".
    const auto [first, last] = std::equal_range(codes_.begin(), codes_.end(), CodeOf(character));
    for (auto code = first; code != last; ++code) {
        const auto index = static_cast<std::size_t>(code - codes_.begin());
        if (map_[index] == character) return static_cast<Long>(index) + 1;
    }
    return 0;
}

void clsFontObject::AddGlyph(char16_t character, const GlyphOutlineRecord& outline) {
    clsFontData glyph;
    glyph.CellIncX = outline.CellIncX;
    glyph.tagShapeRecords = std::make_shared<clsSWFTShapeRecords>();
    glyph.tagShapeRecords->SetFill0(1);
    for (const OutlineContour& contour : outline.Contours)
        DrawContour(*glyph.tagShapeRecords, contour);
    const std::uint32_t code = CodeOf(character);
    const auto place = std::upper_bound(codes_.begin(), codes_.end(), code) - codes_.begin();
    map_.insert(map_.begin() + place, character);
    data_.insert(data_.begin() + place, std::move(glyph));
    codes_.insert(codes_.begin() + place, code);
}

}  // namespace tamber
