#include "vector/SwfShapeReader.h"

#include "platform/RuntimeError.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"
#include "vector/VectorLimits.h"

namespace tamber {

namespace {

/// Index of the transparent fill that each piece begins with. The file's own fills follow.
constexpr Long PlaceholderFill = 1;
constexpr Long DefaultMiterLimit = 1024;
constexpr Long ExtendedCount = 255;

enum FillType : Long {
    SolidFill = 0x00,
    LinearGradient = 0x10,
    RadialGradient = 0x12,
    FocalGradient = 0x13,
    FirstBitmap = 0x40,
    LastBitmap = 0x43,
};

enum RecordFlag : Long {
    StateMove = 1,
    StateFill0 = 2,
    StateFill1 = 4,
    StateLine = 8,
    StateNewStyles = 16,
    /// Of an edge record; the other four bits are the width of its fields less 2.
    StraightEdge = 16,
    EdgeBits = 15,
};

enum StrokeFlag : Long { UsesScalingStrokes = 1, UsesNonScalingStrokes = 2 };

/// Room of the parts of a piece, in edges.
constexpr Long PieceCost = 24;
constexpr Long StyleChangeCost = 6;
constexpr Long FillCost = 8;
constexpr Long LineCost = 4;

Long AddToField(Long field, Long offset) {
    return mdlSWFTag::ToField(static_cast<double>(field) + offset);
}

}  // namespace

void SwfShapeReader::Charge(Long cost) {
    budget_ -= cost;
    if (budget_ < 0) throw RuntimeError(ErrorOutOfRange, u"ReadSwfShapeRecords", u"");
}

void SwfShapeReader::Read(const SwfShapeEntry& entry) {
    entry_ = &entry;
    bits_ = SwfBits(entry.Body);
    bits_.GetRect();
    strokeFlags_ = UsesScalingStrokes;
    if (entry.TagNum == TagCode::DefineShape4) {
        bits_.GetRect();
        strokeFlags_ = UI(1);
    }
    pen_ = ToCoordinates(entry.Placement.X, entry.Placement.Y);
    StartPiece();
    ReadStyles();
    ReadSwfShapeRecords();
    ClosePiece();
}

Long SwfShapeReader::ReadCount() {
    const Long count = UI(1);
    return count == ExtendedCount ? UI(2) : count;
}

void SwfShapeReader::StartPiece() {
    Charge(PieceCost);
    piece_ = std::make_shared<clsVectorData2>();
    if (entry_->TagNum > TagCode::DefineShape3) piece_->Ver = 4;
    piece_->blUsesScalingStrokes = (strokeFlags_ & UsesScalingStrokes) != 0;
    piece_->blUsesNonScalingStrokes = (strokeFlags_ & UsesNonScalingStrokes) != 0;
    AddPlaceholderFill();
    Records().SetFill0(PlaceholderFill);
    penDown_ = false;
}

void SwfShapeReader::AddPlaceholderFill() {
    piece_->colFillStyles->emplace_back(clsSWFTFillStyle::Solid);
}

void SwfShapeReader::ClosePiece() {
    artwork_.colShapeData.push_back(std::move(piece_));
}

bool SwfShapeReader::HasStyles() const {
    return !piece_->colLineStyles->empty() || piece_->colFillStyles->size() > 1;
}

void SwfShapeReader::ReadStyles() {
    ReadFillStyles();
    ReadLineStyles();
    const Long widths = UI(1);
    fillBits_ = widths >> 4;
    lineBits_ = widths & 15;
}

void SwfShapeReader::ReadFillStyles() {
    fillIndexes_.assign(1, PlaceholderFill);
    const Long count = ReadCount();
    for (Long i = 0; i < count; ++i) {
        Charge(FillCost);
        std::optional<clsSWFTFillStyle> fill = ReadSwfFillStyle();
        if (fill) piece_->colFillStyles->push_back(std::move(*fill));
        fillIndexes_.push_back(fill ? static_cast<Long>(piece_->colFillStyles->size())
                                    : PlaceholderFill);
    }
}

void SwfShapeReader::ReadLineStyles() {
    const Long count = ReadCount();
    for (Long i = 0; i < count; ++i) {
        Charge(LineCost);
        piece_->colLineStyles->push_back(
            entry_->TagNum == TagCode::DefineShape4 ? ReadSwfLineStyles2() : ReadSwfLineStyle());
    }
}

Long SwfShapeReader::ReadColor() {
    constexpr auto Opaque = static_cast<Long>(0xFF000000);
    return entry_->TagNum < TagCode::DefineShape3 ? UI(3) | Opaque : UI(4);
}

void SwfShapeReader::ReadMatrix(FillMatrix& matrix) {
    matrix.blMatrix2 = true;
    matrix.Matrix2 = bits_.GetMatrix();
    matrix.Matrix2.TranslateX = AddToField(matrix.Matrix2.TranslateX, entry_->Placement.X);
    matrix.Matrix2.TranslateY = AddToField(matrix.Matrix2.TranslateY, entry_->Placement.Y);
}

std::optional<clsSWFTFillStyle> SwfShapeReader::ReadSwfFillStyle() {
    const Long type = UI(1);
    if (type >= FirstBitmap && type <= LastBitmap)
        return ReadBitmapFill(type - FirstBitmap + clsSWFTFillStyle::BitmapTiled);
    switch (type) {
        case SolidFill: {
            clsSWFTFillStyle fill(clsSWFTFillStyle::Solid);
            fill.StyleAs<clsSWFTFillSolid>()->SolidColor = ReadColor();
            return fill;
        }
        case LinearGradient:
            return ReadGradient(clsSWFTFillStyle::Linear);
        case RadialGradient:
            return ReadGradient(clsSWFTFillStyle::Radial);
        case FocalGradient: {
            clsSWFTFillStyle fill = ReadGradient(clsSWFTFillStyle::Focal);
            fill.StyleAs<clsSWFTFillFocalRadial>()->FocalPoint = static_cast<std::int16_t>(UI(2));
            return fill;
        }
        default:
            throw RuntimeError(ErrorOutOfRange, u"GetFillStyle", u"Fill Style Typeが不正です");
    }
}

clsSWFTFillStyle SwfShapeReader::ReadGradient(Long mode) {
    clsSWFTFillStyle fill(mode);
    auto& gradient = *fill.StyleAs<clsSWFTFillLinearRadial>();
    ReadMatrix(gradient.inMatrix);
    const Long modes = UI(1);
    gradient.spreadMode = modes >> 6;
    gradient.interpolationMode = modes >> 4 & 3;
    for (Long i = modes & 15; i > 0; --i) {
        gradient.ColorPosTbl.push_back(static_cast<Byte>(UI(1)));
        gradient.ColorTbl.push_back(ReadColor());
    }
    return fill;
}

std::optional<clsSWFTFillStyle> SwfShapeReader::ReadBitmapFill(Long mode) {
    const Long id = UI(2);
    clsSWFTFillStyle fill(mode);
    auto& picture = *fill.StyleAs<clsSWFTFillBmpClippedTiled>();
    ReadMatrix(picture.inMatrix);
    const auto found = bitmaps_.find(id);
    if (found == bitmaps_.end()) return std::nullopt;
    picture.Bitmap = found->second;
    return fill;
}

clsSWFTLineStyle SwfShapeReader::ReadSwfLineStyle() {
    clsSWFTLineStyle line;
    line.Width = UI(2);
    line.Color = ReadColor();
    return line;
}

clsSWFTLineStyle SwfShapeReader::ReadSwfLineStyles2() {
    clsSWFTLineStyle line;
    line.Width = UI(2);
    line.StartCapStyle = Bits(2);
    line.JoinStyle = Bits(2);
    const bool hasFill = Bits(1) != 0;
    line.blNoHScaleFlag = Bits(1) != 0;
    line.blNoVScaleFlag = Bits(1) != 0;
    line.blPixelHintingFlag = Bits(1) != 0;
    const Long ends = UI(1);
    line.EndCapStyle = ends & 3;
    line.blNoClose = (ends & 4) != 0;
    line.MiterLimitFactor =
        line.JoinStyle == clsSWFTLineStyle::JoinMiter ? UI(2) : DefaultMiterLimit;
    if (!hasFill) {
        line.Color = ReadColor();
    } else if (std::optional<clsSWFTFillStyle> fill = ReadSwfFillStyle()) {
        Charge(FillCost);
        line.inFillStyle = std::make_shared<clsSWFTFillStyle>(std::move(*fill));
    }
    return line;
}

void SwfShapeReader::ReadSwfShapeRecords() {
    for (;;) {
        const bool edge = Bits(1) != 0;
        const Long flags = Bits(5);
        if (!edge && flags == 0) return;
        const Long bits = (flags & EdgeBits) + 2;
        if (!edge)
            ReadStyleChange(flags);
        else if ((flags & StraightEdge) != 0)
            ReadStraightEdge(bits);
        else
            ReadCurveEdge(bits);
    }
}

void SwfShapeReader::ReadStyleChange(Long flags) {
    Charge(StyleChangeCost);
    if ((flags & StateMove) != 0) {
        const Long width = Bits(5);
        const std::int64_t x = bits_.GetSBits(width);
        const std::int64_t y = bits_.GetSBits(width);
        pen_ = ToCoordinates(x + entry_->Placement.X, y + entry_->Placement.Y);
    }
    const Long fill0 = (flags & StateFill0) != 0 ? Bits(fillBits_) : 0;
    const Long fill1 = (flags & StateFill1) != 0 ? Bits(fillBits_) : 0;
    const Long line = (flags & StateLine) != 0 ? Bits(lineBits_) : 0;
    // The indices of a record that brings new styles mean the new ones.
    const bool newStyles = (flags & StateNewStyles) != 0;
    if (newStyles) {
        if (HasStyles()) {
            ClosePiece();
            StartPiece();
        }
        ReadStyles();
    }
    clsSWFTShapeRecords& records = Records();
    if ((flags & StateFill0) != 0) records.SetFill0(FillIndex(fill0));
    if ((flags & StateFill1) != 0 || (newStyles && records.FillStyle1 != 0))
        records.SetFill1(fill1 == 0 ? 0 : FillIndex(fill1));
    if ((flags & StateLine) != 0 || (newStyles && records.LineStyle != 0))
        SelectLine(LineIndex(line));
    if ((flags & StateMove) != 0) {
        records.MovePenTo(pen_.X, pen_.Y);
        penDown_ = true;
    }
}

/// A path may begin without a move: at the shape's origin, or where the piece before ended.
void SwfShapeReader::StartPath() {
    if (!penDown_) Records().MovePenTo(pen_.X, pen_.Y);
    penDown_ = true;
}

void SwfShapeReader::ReadStraightEdge(Long bits) {
    Charge(1);
    StartPath();
    std::int64_t x = pen_.X;
    std::int64_t y = pen_.Y;
    if (Bits(1) != 0) {
        x += bits_.GetSBits(bits);
        y += bits_.GetSBits(bits);
    } else if (Bits(1) != 0) {
        y += bits_.GetSBits(bits);
    } else {
        x += bits_.GetSBits(bits);
    }
    pen_ = ToCoordinates(x, y);
    Records().DrawLineTo(pen_.X, pen_.Y);
}

void SwfShapeReader::ReadCurveEdge(Long bits) {
    Charge(1);
    StartPath();
    std::int64_t x = std::int64_t{pen_.X} + bits_.GetSBits(bits);
    std::int64_t y = std::int64_t{pen_.Y} + bits_.GetSBits(bits);
    const SwfPoint control = ToCoordinates(x, y);
    x = std::int64_t{control.X} + bits_.GetSBits(bits);
    y = std::int64_t{control.Y} + bits_.GetSBits(bits);
    pen_ = ToCoordinates(x, y);
    Records().DrawCurveTo(control.X, control.Y, pen_.X, pen_.Y);
}

void SwfShapeReader::SelectLine(Long index) {
    clsSWFTShapeRecords& records = Records();
    records.SetLine(index);
    records.LineWidth =
        index == 0 ? 0 : (*piece_->colLineStyles)[static_cast<std::size_t>(index - 1)].Width / 2;
    // The stroke also covers the place where the pen stands.
    if (penDown_) records.SetXY(records.CurrentX, records.CurrentY);
}

/// Index 0, one beyond the table and a bitmap that is missing paint nothing.
Long SwfShapeReader::FillIndex(Long index) const {
    const auto position = static_cast<std::size_t>(index);
    return position < fillIndexes_.size() ? fillIndexes_[position] : PlaceholderFill;
}

Long SwfShapeReader::LineIndex(Long index) const {
    return static_cast<std::size_t>(index) <= piece_->colLineStyles->size() ? index : 0;
}

}  // namespace tamber
