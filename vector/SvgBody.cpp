#include "vector/SvgBody.h"

#include <algorithm>
#include <array>

#include "vector/SvgColors.h"
#include "vector/SvgGradients.h"
#include "vector/SvgNumbers.h"
#include "vector/SvgPathData.h"

namespace tamber {

namespace {

constexpr Long WidestLine = 65535;

/// Width of a line in the artwork: the mean of the scales along both axes counts.
Long LineWidthOf(const SvgStyleState& state, const SvgTransformation& transformation) {
    const Single width = static_cast<Single>(state.StrokeWidth) * transformation.WidthScale();
    return std::min(ToSvgTwips(width) / 2, WidestLine);
}

bool IsEmpty(const SwfRect& bounds) {
    return bounds.xMin >= bounds.xMax && bounds.yMin >= bounds.yMax;
}

clsSWFTFillStyle SolidFill(Long rgba) {
    clsSWFTFillStyle fill(clsSWFTFillStyle::Solid);
    fill.StyleAs<clsSWFTFillSolid>()->SolidColor = rgba;
    return fill;
}

/// Puts the line style into the shape, and raises its version where caps and joins need it.
void AddLine(const SvgStyleState& state, Long width, clsVectorData2& shape) {
    clsSWFTLineStyle line;
    line.Width = width;
    line.Color = ToSvgRgba(state.StrokeColor, state.StrokeAlpha());
    if (state.LineCap != 0 || state.LineJoin != 0) {
        line.StartCapStyle = line.EndCapStyle = state.LineCap;
        line.JoinStyle = state.LineJoin;
        line.MiterLimitFactor = state.MiterLimit;
        shape.Ver = 4;
    }
    shape.colLineStyles->push_back(std::move(line));
}

/// Attributes that are lengths in twips, found by their names.
template <std::size_t Count>
class Lengths {
public:
    explicit Lengths(const std::array<std::string_view, Count>& names) : names_(names) {}

    bool Take(const SvgAttribute& attribute) {
        const auto found = std::find(names_.begin(), names_.end(), attribute.Name);
        if (found == names_.end()) return false;
        values_[static_cast<std::size_t>(found - names_.begin())] = ParseSvgLength(attribute.Value);
        return true;
    }
    Long operator[](std::size_t index) const { return values_[index]; }

private:
    std::array<std::string_view, Count> names_;
    std::array<Long, Count> values_{};
};

}  // namespace

void SvgBody::ParseSvgBody(SvgScanner& scanner, const SvgStyleState& state) {
    const std::size_t outside = Matrices.size();
    Levels levels{{state, outside}};
    for (std::string_view name = scanner.NextTag(); !name.empty() && name != "/svg";
         name = scanner.NextTag()) {
        ReadTag(scanner, name, levels);
        if (uses_.empty()) progress_.At(scanner.Position());
    }
    Matrices.resize(outside);
}

void SvgBody::ReadTag(SvgScanner& scanner, std::string_view name, Levels& levels) {
    if (name.front() == '/') {
        if (name == "/g" || name == "/symbol") CloseLevel(levels);
        scanner.PassTagEnd();
    } else if (name == "g" || name == "symbol") {
        OpenLevel(scanner, levels);
    } else if (name == "a" || name == "switch") {
        scanner.PassTagEnd();
    } else if (name == "use") {
        ReadSvgUseElement(scanner, levels.back().State);
    } else {
        if (!ReadShape(scanner, name, levels.back().State)) document_.LeftOut.NoteElement(name);
        scanner.SkipElement();
    }
}

void SvgBody::OpenLevel(SvgScanner& scanner, Levels& levels) {
    Level level{levels.back().State, Matrices.size()};
    ParseSvgAttributes(scanner, level.State, Matrices, [](const SvgAttribute&) { return false; });
    if (scanner.PassTagEnd())
        Matrices.resize(level.Matrices);
    else
        levels.push_back(level);
    SvgBudget::Check(levels.size() <= SvgBudget::MostLevels);
}

void SvgBody::CloseLevel(Levels& levels) {
    if (levels.size() == 1) return;
    Matrices.resize(levels.back().Matrices);
    levels.pop_back();
}

bool SvgBody::ReadShape(SvgScanner& scanner, std::string_view name, const SvgStyleState& state) {
    if (name == "path" || name == "polyline" || name == "polygon")
        ReadSvgPathElement(scanner, name, state);
    else if (name == "rect")
        ReadSvgRectElement(scanner, state);
    else if (name == "line")
        ReadSvgLineElement(scanner, state);
    else
        return false;
    return true;
}

void SvgBody::ParseSvgAttributes(SvgScanner& scanner, SvgStyleState& state, SvgMatrixList& matrices,
                                 const TakeAttribute& take) {
    std::string_view transform;
    for (SvgAttribute attribute; scanner.NextAttribute(attribute);) {
        if (attribute.Name == "transform")
            transform = attribute.Value;
        else if (!take(attribute))
            state.Apply(attribute, document_);
    }
    ParseTransformList(transform, matrices);
}

void SvgBody::ReadSvgPathElement(SvgScanner& scanner, std::string_view name, SvgStyleState state) {
    SvgMatrixList own;
    std::string_view d;
    std::string_view points;
    ParseSvgAttributes(scanner, state, own, [&](const SvgAttribute& attribute) {
        if (attribute.Name == "d")
            d = attribute.Value;
        else if (attribute.Name == "points")
            points = attribute.Value;
        else
            return false;
        return true;
    });
    const bool fill = state.WantsFill();
    if (name == "path") {
        if (d.empty()) return;
        AddShape(state, own, fill,
                 [&](SvgPen& pen) { ParseSvgPathData(d, fill, pen, document_.LeftOut); });
    } else if (!points.empty()) {
        const bool polygon = name == "polygon";
        AddShape(state, own, fill, [&](SvgPen& pen) {
            DrawSvgPoints(points, fill, polygon, pen, document_.LeftOut);
        });
    }
}

void SvgBody::ReadSvgRectElement(SvgScanner& scanner, SvgStyleState state) {
    SvgMatrixList own;
    Lengths<4> lengths({"x", "y", "width", "height"});
    Lengths<2> radii({"rx", "ry"});
    ParseSvgAttributes(scanner, state, own, [&](const SvgAttribute& attribute) {
        return lengths.Take(attribute) || radii.Take(attribute);
    });
    if (lengths[2] <= 0 || lengths[3] <= 0) return;
    if (radii[0] > 0 || radii[1] > 0) document_.LeftOut.Note(SvgFeature::RoundedCorner);
    const Long left = lengths[0];
    const Long top = lengths[1];
    const Long right = AddSvgTwips(left, lengths[2]);
    const Long bottom = AddSvgTwips(top, lengths[3]);
    AddShape(state, own, state.WantsFill(), [&](SvgPen& pen) {
        pen.MovePenTo(left, top);
        pen.DrawLineTo(right, top);
        pen.DrawLineTo(right, bottom);
        pen.DrawLineTo(left, bottom);
        pen.DrawLineTo(left, top);
    });
}

void SvgBody::ReadSvgLineElement(SvgScanner& scanner, SvgStyleState state) {
    SvgMatrixList own;
    Lengths<4> ends({"x1", "y1", "x2", "y2"});
    ParseSvgAttributes(scanner, state, own,
                       [&](const SvgAttribute& attribute) { return ends.Take(attribute); });
    AddShape(state, own, false, [&](SvgPen& pen) {
        pen.MovePenTo(ends[0], ends[1]);
        pen.DrawLineTo(ends[2], ends[3]);
    });
}

void SvgBody::ReadSvgUseElement(SvgScanner& scanner, SvgStyleState state) {
    const std::size_t outside = Matrices.size();
    Lengths<4> lengths({"x", "y", "width", "height"});
    std::string_view target;
    ParseSvgAttributes(scanner, state, Matrices, [&](const SvgAttribute& attribute) {
        if (attribute.Name != "xlink:href") return lengths.Take(attribute);
        target = attribute.Value;
        return true;
    });
    scanner.PassTagEnd();
    if (lengths[0] != 0 || lengths[1] != 0) {
        clsSvgMatrixData shift;
        shift.sftX = lengths[0];
        shift.sftY = lengths[1];
        Matrices.push_back(shift);
    }
    if (target.starts_with('#')) target.remove_prefix(1);
    DrawUse(target, scanner.TagStart(), state);
    Matrices.resize(outside);
}

void SvgBody::DrawUse(std::string_view id, std::size_t place, const SvgStyleState& state) {
    const auto* element = document_.FindId<clsSvgIDInfo>(id);
    if (element == nullptr) return;
    const bool within = place >= element->SIndex && place < element->EIndex;
    if (within || std::find(uses_.begin(), uses_.end(), element->SIndex) != uses_.end()) return;
    SvgBudget::Spend(document_.Budget.Repeats, element->EIndex - element->SIndex);
    SvgBudget::Check(uses_.size() < SvgBudget::MostUses);
    uses_.push_back(element->SIndex);
    SvgScanner scanner(document_.Text.substr(0, element->EIndex), element->SIndex,
                       document_.LeftOut);
    ParseSvgBody(scanner, state);
    uses_.pop_back();
}

void SvgBody::AddShape(const SvgStyleState& state, const SvgMatrixList& own, bool fill,
                       const Draw& draw) {
    SvgBudget::Spend(document_.Budget.Shapes, 1);
    const SvgTransformation transformation{own, Matrices};
    auto shape = std::make_shared<clsVectorData2>();
    clsSWFTShapeRecords& records = *shape->inSWFTShapeRecords;
    const bool line = state.WantsLine();
    const Long width = line ? LineWidthOf(state, transformation) : 0;
    records.SetFill0(fill ? 1 : 0);
    records.SetLine(line ? 1 : 0);
    SvgPen pen(records, transformation, line, width, document_.Budget);
    draw(pen);
    if (IsEmpty(records.GetEdgeBounds())) return;
    if (!document_.LeftOut.Has(SvgFeature::TransformOrder) && transformation.DependsOnOrder())
        document_.LeftOut.Note(SvgFeature::TransformOrder);
    if (fill) {
        shape->colFillStyles->push_back(MakeFill(state, transformation, draw));
        if (shape->colFillStyles->back().FillMode() == clsSWFTFillStyle::Focal) shape->Ver = 4;
    }
    if (line) AddLine(state, width, *shape);
    artwork_.colShapeData.push_back(std::move(shape));
}

clsSWFTFillStyle SvgBody::MakeFill(const SvgStyleState& state,
                                   const SvgTransformation& transformation, const Draw& draw) {
    if (state.FillText.starts_with("url")) {
        if (const auto gradient = FindSvgGradient(document_, state.FillText)) {
            const SwfRect extent = gradient->NeedsBounds() ? ExtentOf(draw) : SwfRect();
            clsSWFTFillStyle fill = MakeSvgGradientFill(document_, *gradient, transformation,
                                                        extent, state.FillAlpha());
            if (fill.StyleObject()) return fill;
        }
    }
    return SolidFill(ToSvgRgba(std::max(state.FillColor, 0), state.FillAlpha()));
}

SwfRect SvgBody::ExtentOf(const Draw& draw) {
    const SvgMatrixList none;
    const SvgTransformation unchanged{none, none};
    clsSWFTShapeRecords records;
    SvgPen pen(records, unchanged, false, 0, document_.Budget);
    draw(pen);
    return records.GetEdgeBounds();
}

}  // namespace tamber
