#include "vector/PdrObject.h"

#include <algorithm>

#include "platform/RuntimeError.h"
#include "vector/VectorLimits.h"

namespace tamber {

namespace {

/// Versions from which an object names its shape, and has gradient stops and a second scale.
constexpr Long VersionOfShapeID = 20;
constexpr Long VersionOfStops = 30;
constexpr Long MaxLineWidth = 0xFFFF;
constexpr Byte LastPosition = 255;
constexpr Byte MiddlePosition = 128;

void Require(bool valid) {
    if (!valid) throw RuntimeError(ErrorOutOfRangeInput, u"PdrObject", u"");
}

void AddStop(clsSWFTFillLinearRadial& gradient, Long color, Byte position) {
    gradient.ColorTbl.push_back(color);
    gradient.ColorPosTbl.push_back(position);
}

}  // namespace

void PdrObject::Read(clsCSV& cells, Long version) {
    const Long last = ReadHead(cells, version);
    if (version >= VersionOfStops) ReadStops(cells);
    ReadPoints(cells, last);
    if (blClosed) return;
    lineVisible = true;
    Points.front().isControl = false;
    Points.back().isControl = false;
}

Long PdrObject::ReadHead(clsCSV& cells, Long version) {
    const Long last = cells.TakeLong();
    Require(last >= 0);
    blClosed = cells.TakeBoolean();
    lineWidth = std::clamp(cells.TakeLong(), 0, MaxLineWidth);
    lineVisible = cells.TakeLong() != 0;
    lineColor = cells.TakeLong();
    fillKind = cells.TakeLong();
    Require(fillKind >= NoFill && fillKind <= Radial);
    color1 = cells.TakeLong();
    gradCenterX = ToCoordinate(cells.TakeLong());
    gradCenterY = ToCoordinate(cells.TakeLong());
    gradAngle = cells.TakeSingle();
    gradScaleX = cells.TakeSingle();
    gradScaleY = version >= VersionOfStops ? cells.TakeSingle() : gradScaleX;
    color2 = cells.TakeLong();
    cells.MovePosition(2, 0);
    if (version >= VersionOfShapeID) {
        blShared = cells.TakeBoolean();
        shapeID = cells.TakeLong();
    }
    cells.CrLf();
    return last;
}

void PdrObject::ReadStops(clsCSV& cells) {
    const Long count = cells.TakeLong();
    Require(count >= 0);
    cells.CrLf();
    for (Long i = 0; i < count; ++i) {
        const Long color = cells.TakeLong();
        Stops.push_back({color, cells.TakeByte()});
        cells.CrLf();
    }
}

void PdrObject::ReadPoints(clsCSV& cells, Long last) {
    for (std::int64_t i = 0; i <= last; ++i) {
        const bool isControl = cells.TakeLong() != 0;
        const Long x = cells.TakeLong();
        Points.push_back({isControl, ToCoordinates(x, cells.TakeLong())});
        cells.CrLf();
    }
}

clsSWFTFillStyle PdrObject::MakeFill() const {
    if (fillKind == Solid) {
        clsSWFTFillStyle fill(clsSWFTFillStyle::Solid);
        fill.StyleAs<clsSWFTFillSolid>()->SolidColor = color1;
        return fill;
    }
    clsSWFTFillStyle fill(fillKind == Radial ? clsSWFTFillStyle::Radial : clsSWFTFillStyle::Linear);
    FillGradient(*fill.StyleAs<clsSWFTFillLinearRadial>());
    return fill;
}

void PdrObject::FillGradient(clsSWFTFillLinearRadial& gradient) const {
    gradient.inMatrix.GradCenterX = gradCenterX;
    gradient.inMatrix.GradCenterY = gradCenterY;
    gradient.inMatrix.GradAngle = gradAngle;
    gradient.inMatrix.GradScaleX = gradScaleX;
    gradient.inMatrix.GradScaleY = gradScaleY;
    AddStop(gradient, color1, 0);
    if (fillKind != LinearMirrored) {
        for (const ColorStop& stop : Stops) AddStop(gradient, stop.Color, stop.Position);
        AddStop(gradient, color2, LastPosition);
        return;
    }
    for (const ColorStop& stop : Stops) AddStop(gradient, stop.Color, stop.Position / 2);
    AddStop(gradient, color2, MiddlePosition);
    for (auto stop = Stops.rbegin(); stop != Stops.rend(); ++stop)
        AddStop(gradient, stop->Color, static_cast<Byte>(LastPosition - stop->Position / 2));
    AddStop(gradient, color1, LastPosition);
}

}  // namespace tamber
