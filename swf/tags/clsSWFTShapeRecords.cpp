#include "swf/tags/clsSWFTShapeRecords.h"

#include "swf/mdlSWFTag.h"

#include <algorithm>

namespace tamber {

namespace {
constexpr Long LongestForward = 65535;
constexpr Long LongestBackward = 65536;
}  // namespace

clsSWFTShapeStyleChange& clsSWFTShapeRecords::LastStyleChange() {
    if (colShapeRecords.empty() || RecordType(colShapeRecords.back()) != 0)
        colShapeRecords.emplace_back(std::make_shared<clsSWFTShapeStyleChange>());
    return *std::get<std::shared_ptr<clsSWFTShapeStyleChange>>(colShapeRecords.back());
}

void clsSWFTShapeRecords::SetFill0(Long index) {
    clsSWFTShapeStyleChange& change = LastStyleChange();
    change.FillStyle0 = index;
    change.blFillStyle0 = true;
    FillStyle0 = index;
}

void clsSWFTShapeRecords::SetFill1(Long index) {
    clsSWFTShapeStyleChange& change = LastStyleChange();
    change.FillStyle1 = index;
    change.blFillStyle1 = true;
    FillStyle1 = index;
}

void clsSWFTShapeRecords::SetLine(Long index) {
    clsSWFTShapeStyleChange& change = LastStyleChange();
    change.LineStyle = index;
    change.blLineStyle = true;
    LineStyle = index;
}

Long clsSWFTShapeRecords::AddNewFillStyle(clsSWFTFillStyle fill) {
    FillStyleList& list = LastStyleChange().colFillStyles;
    list.push_back(std::move(fill));
    return static_cast<Long>(list.size());
}

Long clsSWFTShapeRecords::AddNewLineStyle(clsSWFTLineStyle line) {
    LineStyleList& list = LastStyleChange().colLineStyles;
    list.push_back(std::move(line));
    return static_cast<Long>(list.size());
}

void clsSWFTShapeRecords::MovePenTo(Long x, Long y) {
    clsSWFTShapeStyleChange& change = LastStyleChange();
    change.blMove = true;
    change.MoveX = x;
    change.MoveY = y;
    SetXY(x, y);
}

void clsSWFTShapeRecords::DrawLineHTo(Long x) {
    while (x - CurrentX > LongestForward) DrawLineTo(CurrentX + LongestForward, CurrentY);
    while (x - CurrentX < -LongestBackward) DrawLineTo(CurrentX - LongestBackward, CurrentY);
    DrawLineTo(x, CurrentY);
}

void clsSWFTShapeRecords::DrawLineVTo(Long y) {
    while (y - CurrentY > LongestForward) DrawLineTo(CurrentX, CurrentY + LongestForward);
    while (y - CurrentY < -LongestBackward) DrawLineTo(CurrentX, CurrentY - LongestBackward);
    DrawLineTo(CurrentX, y);
}

void clsSWFTShapeRecords::DrawCurve(Long dcx, Long dcy, Long dax, Long day) {
    const Long cx = CurrentX + dcx;
    const Long cy = CurrentY + dcy;
    DrawCurveTo(cx, cy, cx + dax, cy + day);
}

void clsSWFTShapeRecords::AddRecordCollection(const std::vector<clsSWFTShapeRecord>& records,
                                              Long xMin, Long xMax, Long yMin, Long yMax) {
    auto from = records.begin();
    if (!colShapeRecords.empty() && from != records.end() && RecordType(*from) == 0 &&
        RecordType(colShapeRecords.back()) == 0) {
        const auto& first = *std::get<std::shared_ptr<clsSWFTShapeStyleChange>>(*from);
        clsSWFTShapeStyleChange& last = LastStyleChange();
        last.blMove = last.blMove || first.blMove;
        last.MoveX = first.MoveX;
        last.MoveY = first.MoveY;
        ++from;
    }
    colShapeRecords.insert(colShapeRecords.end(), from, records.end());
    bounds_ = {xMin, xMax, yMin, yMax};
}

SwfRect clsSWFTShapeRecords::GetBounds(bool blRecompute) {
    if (!blRecompute) return bounds_.Rectangle();
    bounds_ = {};
    for (const clsSWFTShapeRecord& record : colShapeRecords) {
        if (const auto* change = std::get_if<std::shared_ptr<clsSWFTShapeStyleChange>>(&record)) {
            if ((*change)->blMove && !(*change)->hasNewStyles())
                bounds_.Include((*change)->MoveX, (*change)->MoveY, 0);
        } else if (const auto* line = std::get_if<clsSWFTShapeStraightEdge>(&record)) {
            bounds_.Include(line->DrawX, line->DrawY, 0);
        } else if (const auto* curve = std::get_if<clsSWFTShapeCurveEdge>(&record)) {
            bounds_.Include(curve->ControlX, curve->ControlY, 0);
            bounds_.Include(curve->AnchorX, curve->AnchorY, 0);
        }
    }
    return bounds_.Rectangle();
}

void clsSWFTShapeRecords::Save(Long fillBits, Long lineBits, Long version) const {
    mdlSWFTag::SetBits(4, fillBits);
    mdlSWFTag::SetBits(4, lineBits);
    ShapePen pen{0, 0, fillBits, lineBits, version};
    for (auto record = colShapeRecords.begin(); record != colShapeRecords.end();) {
        if (const auto* change = std::get_if<std::shared_ptr<clsSWFTShapeStyleChange>>(&*record)) {
            (*change)->Save(pen);
            ++record;
            continue;
        }
        const auto end = std::find_if(record, colShapeRecords.end(),
                                      [](const auto& next) { return RecordType(next) == 0; });
        SaveEdges({record, end}, pen);
        record = end;
    }
    mdlSWFTag::SetBits(6, 0);
}

}  // namespace tamber
