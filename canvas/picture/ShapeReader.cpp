#include "canvas/picture/ShapeReader.h"

#include <algorithm>
#include <limits>

#include "platform/RuntimeError.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

/// A count of styles that says that a longer one follows.
constexpr Long ExtendedCount = 255;

enum FillType : Long {
    SolidFill = 0x00,
    LinearGradient = 0x10,
    RadialGradient = 0x12,
    FocalGradient = 0x13,
    FirstBitmap = 0x40,
    LastBitmap = 0x43,
};

enum StyleChange : Long { Move = 1, HasFill0 = 2, HasFill1 = 4, HasLine = 8, HasNewStyles = 16 };
/// Of the five bits of an edge record: whether it is straight, and two less than the width of its
/// numbers.
constexpr Long StraightEdge = 16;
constexpr Long EdgeBits = 15;
/// Of the flags of DefineShape4.
constexpr Long UsesWindingRule = 4;
constexpr Long JoinMiter = 2;

Long Sum(Long a, Long b) {
    return static_cast<Long>(std::clamp<std::int64_t>(std::int64_t{a} + b,
                                                      std::numeric_limits<Long>::min() / 2,
                                                      std::numeric_limits<Long>::max() / 2));
}

cairo_extend_t SpreadOf(Long mode) {
    return mode == 1 ? CAIRO_EXTEND_REFLECT : mode == 2 ? CAIRO_EXTEND_REPEAT : CAIRO_EXTEND_PAD;
}

void SetGradientModes(PictureFill& fill, Long modes) {
    fill.Spread = SpreadOf(modes >> 6);
    fill.blLinearLight = (modes >> 4 & 3) == 1;
}

}  // namespace

bool ShapeReader::IsMorph() const {
    return tag_ == TagCode::DefineMorphShape || tag_ == TagCode::DefineMorphShape2;
}

bool ShapeReader::HasAlpha() const {
    return tag_ != TagCode::DefineShape && tag_ != TagCode::DefineShape2;
}

Long ShapeReader::ReadCount(bool isFill) {
    const Long count = UI(1);
    const bool extends = !isFill || tag_ != TagCode::DefineShape;
    return count == ExtendedCount && extends ? UI(2) : count;
}

void ShapeReader::ReadStyles(ShapeLayer& layer, ShapeLayer* end) {
    for (Long count = ReadCount(true); count > 0; --count) {
        PictureFill* const other = end != nullptr ? &end->Fills.emplace_back() : nullptr;
        ReadFill(layer.Fills.emplace_back(), other);
    }
    for (Long count = ReadCount(false); count > 0; --count) {
        PictureLine* const other = end != nullptr ? &end->Lines.emplace_back() : nullptr;
        ReadLine(layer.Lines.emplace_back(), other);
    }
}

void ShapeReader::ReadIndexWidths() {
    const Long widths = UI(1);
    fillBits_ = widths >> 4;
    lineBits_ = widths & 15;
}

void ShapeReader::ReadFill(PictureFill& fill, PictureFill* end) {
    const Long type = UI(1);
    if (type == SolidFill) {
        fill.Color = ReadColor();
        if (end != nullptr) end->Color = ReadColor();
    } else if (type == LinearGradient || type == RadialGradient || type == FocalGradient) {
        ReadGradient(type, fill, end);
    } else if (type >= FirstBitmap && type <= LastBitmap) {
        ReadBitmap(type, fill, end);
    } else {
        throw RuntimeError(ErrorOutOfRange, u"ShapeReader", u"");
    }
}

void ShapeReader::ReadGradient(Long type, PictureFill& fill, PictureFill* end) {
    fill.What = type == LinearGradient ? PictureFill::Kind::Linear : PictureFill::Kind::Radial;
    fill.Matrix = ReadMatrix();
    if (end != nullptr) {
        end->What = fill.What;
        end->Matrix = ReadMatrix();
    }
    const Long modes = UI(1);
    SetGradientModes(fill, modes);
    for (Long count = modes & 15; count > 0; --count) {
        const auto ratio = static_cast<Byte>(UI(1));
        fill.Stops.push_back({ratio, ReadColor()});
        if (end == nullptr) continue;
        const auto endRatio = static_cast<Byte>(UI(1));
        end->Stops.push_back({endRatio, ReadColor()});
    }
    constexpr double One = 256;
    if (type != FocalGradient) return;
    fill.Focal = static_cast<std::int16_t>(UI(2)) / One;
    if (end != nullptr) end->Focal = static_cast<std::int16_t>(UI(2)) / One;
}

void ShapeReader::ReadBitmap(Long type, PictureFill& fill, PictureFill* end) {
    fill.What = PictureFill::Kind::Bitmap;
    fill.Bitmap = findBitmap_(UI(2));
    fill.Spread = (type & 1) == 0 ? CAIRO_EXTEND_REPEAT : CAIRO_EXTEND_PAD;
    fill.blSmooth = (type & 2) == 0;
    fill.Matrix = ReadMatrix();
    if (end == nullptr) return;
    *end = fill;
    end->Matrix = ReadMatrix();
}

void ShapeReader::ReadLine(PictureLine& line, PictureLine* end) {
    line.Width = UI(2);
    if (end != nullptr) end->Width = UI(2);
    bool hasFill = false;
    if (tag_ == TagCode::DefineShape4 || tag_ == TagCode::DefineMorphShape2)
        ReadLineOptions(line, hasFill);
    if (hasFill) {
        ReadFill(line.Paint, end != nullptr ? &end->Paint : nullptr);
        return;
    }
    line.Paint.Color = ReadColor();
    if (end != nullptr) end->Paint.Color = ReadColor();
}

void ShapeReader::ReadLineOptions(PictureLine& line, bool& hasFill) {
    constexpr cairo_line_cap_t Caps[] = {CAIRO_LINE_CAP_ROUND, CAIRO_LINE_CAP_BUTT,
                                         CAIRO_LINE_CAP_SQUARE, CAIRO_LINE_CAP_ROUND};
    constexpr cairo_line_join_t Joins[] = {CAIRO_LINE_JOIN_ROUND, CAIRO_LINE_JOIN_BEVEL,
                                           CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_ROUND};
    line.Cap = Caps[Bits(2)];
    const Long join = Bits(2);
    line.Join = Joins[join];
    hasFill = Bits(1) != 0;
    line.blNoScaleX = Bits(1) != 0;
    line.blNoScaleY = Bits(1) != 0;
    Bits(6);
    line.blNoClose = Bits(1) != 0;
    Bits(2);
    constexpr double One = 256;
    if (join == JoinMiter) line.MiterLimit = std::max(1.0, UI(2) / One);
}

void ShapeReader::ReadRecords(std::vector<ShapeLayer>& layers) {
    pen_ = {};
    styles_ = {};
    for (;;) {
        const bool isEdge = Bits(1) != 0;
        const Long flags = Bits(5);
        if (isEdge && --budget_ < 0) throw RuntimeError(ErrorOutOfRange, u"ShapeReader", u"");
        if (isEdge)
            layers.back().Steps.push_back(ReadEdge(flags));
        else if (flags == 0)
            return;
        else if (ReadStyleChange(flags, layers))
            ReadIndexWidths();
    }
}

/// True when new styles were read, which new widths of indices follow.
bool ShapeReader::ReadStyleChange(Long flags, std::vector<ShapeLayer>& layers) {
    if ((flags & Move) != 0) {
        const Long width = Bits(5);
        pen_.X = bits_.GetSBits(width);
        pen_.Y = bits_.GetSBits(width);
    }
    if ((flags & HasFill0) != 0) styles_.Fill0 = Bits(fillBits_);
    if ((flags & HasFill1) != 0) styles_.Fill1 = Bits(fillBits_);
    if ((flags & HasLine) != 0) styles_.Line = Bits(lineBits_);
    if ((flags & HasNewStyles) == 0) return false;
    ReadStyles(layers.emplace_back(), nullptr);
    return true;
}

OutlineStep ShapeReader::ReadEdge(Long flags) {
    OutlineStep step = styles_;
    step.From = pen_;
    const Long width = (flags & EdgeBits) + 2;
    const auto move = [this](Long x, Long y) {
        pen_ = {Sum(pen_.X, x), Sum(pen_.Y, y)};
        return pen_;
    };
    step.blCurved = (flags & StraightEdge) == 0;
    if (step.blCurved) {
        const Long controlX = bits_.GetSBits(width);
        const Long controlY = bits_.GetSBits(width);
        step.Control = move(controlX, controlY);
    }
    Long x = 0;
    Long y = 0;
    const bool isGeneral = step.blCurved || Bits(1) != 0;
    const bool isVertical = !isGeneral && Bits(1) != 0;
    if (isGeneral || !isVertical) x = bits_.GetSBits(width);
    if (isGeneral || isVertical) y = bits_.GetSBits(width);
    step.To = move(x, y);
    return step;
}

std::shared_ptr<ShapeCharacter> ShapeReader::ReadShape() {
    const PaintBox bounds = ToBox(bits_.GetRect());
    cairo_fill_rule_t rule = CAIRO_FILL_RULE_EVEN_ODD;
    if (tag_ == TagCode::DefineShape4) {
        bits_.GetRect();
        if ((UI(1) & UsesWindingRule) != 0) rule = CAIRO_FILL_RULE_WINDING;
    }
    std::vector<ShapeLayer> layers(1);
    ReadStyles(layers.front(), nullptr);
    ReadIndexWidths();
    ReadRecords(layers);
    return std::make_shared<ShapeCharacter>(layers, rule, bounds);
}

std::shared_ptr<MorphCharacter> ShapeReader::ReadMorph() {
    MorphCharacter::State from;
    MorphCharacter::State to;
    from.Bounds = ToBox(bits_.GetRect());
    to.Bounds = ToBox(bits_.GetRect());
    if (tag_ == TagCode::DefineMorphShape2) {
        bits_.GetRect();
        bits_.GetRect();
        UI(1);
    }
    const std::size_t endOffset = bits_.GetUI(4);
    SwfBits ends = bits_;
    ends.Take(endOffset);
    ReadStyles(from.Layer, &to.Layer);
    std::vector<ShapeLayer> layers(1);
    ReadIndexWidths();
    ReadRecords(layers);
    from.Layer.Steps = std::move(layers.front().Steps);
    bits_ = ends;
    layers.assign(1, {});
    ReadIndexWidths();
    ReadRecords(layers);
    to.Layer.Steps = std::move(layers.front().Steps);
    return std::make_shared<MorphCharacter>(std::move(from), std::move(to));
}

PicturePath ShapeReader::ReadGlyph() {
    std::vector<ShapeLayer> layers(1);
    ReadIndexWidths();
    ReadRecords(layers);
    return std::move(OutlineBuilder(layers.front().Steps).Fills(1).front());
}

}  // namespace tamber
