#include "vector/SvgGradients.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "platform/rounding.h"
#include "vector/SvgColors.h"
#include "vector/SvgNumbers.h"
#include "vector/SvgStyleState.h"

namespace tamber {

namespace {

constexpr double Pi = 3.14159265358979;
/// The square of a gradient in a movie, twips; a radial one reaches from its middle to its sides.
constexpr double GradientSquare = 32768;
constexpr double SmallestScale = 20 / GradientSquare;
/// Scales are fixed point numbers with 16 bits before the point.
constexpr double LargestScale = 16384;
constexpr Long FocalOne = 256;
/// Movies hold no more colours in a gradient.
constexpr std::size_t MostStops = 15;
/// Gradients that may lie between one and the colours it takes over.
constexpr int MostLinks = 16;

SvgCoordinate ParseCoordinate(std::string_view text) {
    return {ParseSvgLengthPercent(text), HasSvgPercent(text)};
}

std::string_view CutHash(std::string_view reference) {
    if (reference.starts_with('#')) reference.remove_prefix(1);
    return reference;
}

/// Reads one gradient element.
class GradientReader {
public:
    GradientReader(SvgDocument& document, SvgScanner& scanner, bool radial)
        : document_(document), scanner_(scanner), radial_(radial) {
        gradient_->GradName = radial ? "Radial" : "Linear";
        if (radial)
            gradient_->StartX.Value = gradient_->StartY.Value = 0.5f;
        else
            gradient_->EndX.Value = 1;
    }

    void Read() {
        for (SvgAttribute attribute; scanner_.NextAttribute(attribute);) ReadAttribute(attribute);
        if (radial_ && !focusX_) gradient_->EndX = gradient_->StartX;
        if (radial_ && !focusY_) gradient_->EndY = gradient_->StartY;
        if (!gradient_->linkName.empty())
            scanner_.SkipElement();
        else if (!scanner_.PassTagEnd())
            ReadStops();
        document_.AddId(id_, gradient_);
    }

private:
    void ReadAttribute(const SvgAttribute& attribute) {
        const std::string_view name = attribute.Name;
        const std::string_view value = attribute.Value;
        if (name == "id")
            id_ = value;
        else if (name == "gradientUnits")
            gradient_->UserSpaceOnUse = value == "userSpaceOnUse";
        else if (name == "xlink:href")
            gradient_->linkName = CutHash(value);
        else if (name == "spreadMethod")
            gradient_->Spread = value == "reflect" ? 1 : value == "repeat" ? 2 : 0;
        else if (name == "gradientTransform")
            ParseTransformList(value, gradient_->colGradientMatrix);
        else if (!(radial_ ? ReadRadial(attribute) : ReadLinear(attribute)))
            document_.LeftOut.NoteAttribute(name, value);
    }

    bool ReadLinear(const SvgAttribute& attribute) {
        const SvgCoordinate place = ParseCoordinate(attribute.Value);
        if (attribute.Name == "x1")
            gradient_->StartX = place;
        else if (attribute.Name == "y1")
            gradient_->StartY = place;
        else if (attribute.Name == "x2")
            gradient_->EndX = place;
        else if (attribute.Name == "y2")
            gradient_->EndY = place;
        else
            return false;
        return true;
    }

    bool ReadRadial(const SvgAttribute& attribute) {
        const SvgCoordinate place = ParseCoordinate(attribute.Value);
        if (attribute.Name == "cx") {
            gradient_->StartX = place;
        } else if (attribute.Name == "cy") {
            gradient_->StartY = place;
        } else if (attribute.Name == "r") {
            gradient_->r = place;
        } else if (attribute.Name == "fx") {
            gradient_->EndX = place;
            focusX_ = true;
        } else if (attribute.Name == "fy") {
            gradient_->EndY = place;
            focusY_ = true;
        } else {
            return false;
        }
        return true;
    }

    void ReadStops() {
        for (std::string_view name = scanner_.NextTag(); !name.empty(); name = scanner_.NextTag()) {
            if (name == "/linearGradient" || name == "/radialGradient") {
                scanner_.PassTagEnd();
                return;
            }
            if (name == "stop")
                ReadStop();
            else if (name.front() != '/')
                scanner_.SkipElement();
        }
    }

    void ReadStop() {
        Long color = 0;
        Long opacity = 255;
        Long place = 0;
        const auto take = [&](const SvgAttribute& item) {
            if (item.Name == "offset")
                place = SvgShare(item.Value, 255);
            else if (item.Name == "stop-color")
                color = ParseSvgColor(item.Value);
            else if (item.Name == "stop-opacity")
                opacity = SvgShare(item.Value, 255);
            else
                document_.LeftOut.NoteAttribute(item.Name, item.Value);
        };
        for (SvgAttribute attribute; scanner_.NextAttribute(attribute);) {
            if (attribute.Name == "style")
                ForEachSvgStyleItem(attribute.Value, document_, take);
            else
                take(attribute);
        }
        scanner_.SkipElement();
        if (gradient_->ColorTbl.size() == MostStops) return;
        gradient_->ColorTbl.push_back(color);
        gradient_->OpacityTbl.push_back(opacity);
        gradient_->ColorPosTbl.push_back(static_cast<Byte>(place));
    }

    SvgDocument& document_;
    SvgScanner& scanner_;
    bool radial_;
    std::string_view id_;
    std::shared_ptr<clsSvgGradientData> gradient_ = std::make_shared<clsSvgGradientData>();
    bool focusX_ = false;
    bool focusY_ = false;
};

/// The gradient, or the first along its links, that has colours.
const clsSvgGradientData& FollowLinks(const SvgDocument& document,
                                      const clsSvgGradientData& gradient) {
    const clsSvgGradientData* with = &gradient;
    for (int i = 0; i < MostLinks && with->ColorTbl.empty(); ++i) {
        const auto* link = document.FindId<std::shared_ptr<clsSvgGradientData>>(with->linkName);
        if (link == nullptr) break;
        with = link->get();
    }
    return *with;
}

using Point = SvgAffine::Point;

double FitScale(double scale) {
    return scale >= SmallestScale ? std::min(scale, LargestScale) : SmallestScale;
}

/// Puts the axes of the gradient into a matrix of parts: `x` and `y` are what sides of the
/// gradient's square become, `side` their length there. A gradient looks the same mirrored along
/// `x`.
void FitAxes(FillMatrix& matrix, Point x, Point y, double side) {
    const double length = std::hypot(x.X, x.Y);
    const double angle = std::atan2(x.Y, x.X) * 180 / Pi;
    if (std::isfinite(angle))
        matrix.GradAngle = static_cast<Single>(angle < 0 ? angle + 360 : angle);
    matrix.GradScaleX = static_cast<Single>(FitScale(length / side));
    const double across = length > 0 ? (x.X * y.Y - x.Y * y.X) / length : std::hypot(y.X, y.Y);
    matrix.GradScaleY = static_cast<Single>(FitScale(std::abs(across) / side));
    // Below this a skew comes from rounding only.
    constexpr double SmallestSkew = 1e-6;
    const double skew = length > 0 ? (x.X * y.X + x.Y * y.Y) / (length * length) : 0;
    if (!(std::abs(skew) >= SmallestSkew)) return;
    const double fit = std::clamp(skew, -LargestScale, LargestScale);
    matrix.skewX2 = static_cast<Single>(across < 0 ? -fit : fit);
}

/// Makes the fill of one gradient on one shape.
class GradientFill {
public:
    GradientFill(const clsSvgGradientData& gradient, const SvgTransformation& transformation,
                 const SwfRect& bounds)
        : gradient_(gradient), bounds_(bounds) {
        width_ = static_cast<double>(bounds.xMax) - bounds.xMin;
        height_ = static_cast<double>(bounds.yMax) - bounds.yMin;
        if (!gradient.UserSpaceOnUse)
            way_ = {width_,
                    0,
                    0,
                    height_,
                    static_cast<double>(bounds.xMin),
                    static_cast<double>(bounds.yMin)};
        way_.Then(gradient.colGradientMatrix);
        way_.Then(transformation.Own);
        way_.Then(transformation.Around);
        start_ = Place(gradient.StartX, gradient.StartY);
        end_ = Place(gradient.EndX, gradient.EndY);
    }

    /// Fractions of the extent are taken to twips before the gradient's own transformations.
    bool DependsOnOrder() const {
        if (gradient_.colGradientMatrix.empty()) return false;
        SvgMatrixList list;
        if (!gradient_.UserSpaceOnUse)
            list.push_back({static_cast<Single>(width_), static_cast<Single>(height_), 0, 0,
                            bounds_.xMin, bounds_.yMin});
        list.insert(list.end(), gradient_.colGradientMatrix.begin(),
                    gradient_.colGradientMatrix.end());
        const SvgMatrixList none;
        return SvgTransformation{list, none}.DependsOnOrder(
            gradient_.UserSpaceOnUse ? SvgTransformation::UsualReach : 1);
    }

    clsSWFTFillStyle MakeLinearGradientFill() const {
        clsSWFTFillStyle fill(clsSWFTFillStyle::Linear);
        FillMatrix& matrix = *fill.StyleObject()->Matrix();
        const Point along{end_.X - start_.X, end_.Y - start_.Y};
        FitAxes(matrix, way_.MapVector(along), way_.MapVector({-along.Y, along.X}), GradientSquare);
        SetCentre(matrix, {(start_.X + end_.X) / 2, (start_.Y + end_.Y) / 2});
        return fill;
    }

    clsSWFTFillStyle MakeRadialGradientFill() const {
        const double radius = Radius();
        const double distance = std::hypot(end_.X - start_.X, end_.Y - start_.Y);
        const bool focal = distance > 0;
        clsSWFTFillStyle fill(focal ? clsSWFTFillStyle::Focal : clsSWFTFillStyle::Radial);
        Point axis{radius, 0};
        if (focal) {
            // The focus of a movie's gradient lies on its x axis.
            axis = {(end_.X - start_.X) / distance * radius,
                    (end_.Y - start_.Y) / distance * radius};
            const double ratio = radius > 0 ? std::min(distance / radius, 1.0) : 0;
            fill.StyleAs<clsSWFTFillFocalRadial>()->FocalPoint = RoundToLong(ratio * FocalOne);
        }
        FillMatrix& matrix = *fill.StyleObject()->Matrix();
        FitAxes(matrix, way_.MapVector(axis), way_.MapVector({-axis.Y, axis.X}),
                GradientSquare / 2);
        SetCentre(matrix, start_);
        return fill;
    }

private:
    /// Fractions of the extent stay what they are until the way takes them to twips.
    Point Place(SvgCoordinate x, SvgCoordinate y) const {
        return {Axis(x, width_, bounds_.xMin), Axis(y, height_, bounds_.yMin)};
    }
    double Axis(SvgCoordinate place, double extent, Long from) const {
        if (!gradient_.UserSpaceOnUse) return place.Value;
        return place.Percent ? place.Value * extent + from
                             : static_cast<double>(place.Value) * TwipsPerPixel;
    }
    double Radius() const {
        if (!gradient_.UserSpaceOnUse) return gradient_.r.Value;
        if (!gradient_.r.Percent) return static_cast<double>(gradient_.r.Value) * TwipsPerPixel;
        return gradient_.r.Value * std::hypot(width_, height_) / std::sqrt(2.0);
    }
    void SetCentre(FillMatrix& matrix, Point centre) const {
        const Point mapped = way_.Map(centre);
        matrix.GradCenterX = ToSvgTwips(mapped.X);
        matrix.GradCenterY = ToSvgTwips(mapped.Y);
    }

    const clsSvgGradientData& gradient_;
    const SwfRect& bounds_;
    double width_;
    double height_;
    SvgAffine way_;
    Point start_;
    Point end_;
};

void CopyColors(const clsSvgGradientData& colors, Long spread, Long alpha,
                clsSWFTFillLinearRadial& fill) {
    for (std::size_t i = 0; i < colors.ColorTbl.size(); ++i)
        fill.ColorTbl.push_back(ToSvgRgba(colors.ColorTbl[i], colors.OpacityTbl[i] * alpha / 255));
    fill.ColorPosTbl = colors.ColorPosTbl;
    fill.spreadMode = spread;
}

}  // namespace

void ReadSvgGradient(SvgDocument& document, SvgScanner& scanner, std::string_view name) {
    GradientReader(document, scanner, name == "radialGradient").Read();
}

std::shared_ptr<clsSvgGradientData> FindSvgGradient(SvgDocument& document, std::string_view fill) {
    const std::size_t start = fill.find('#');
    if (start == std::string_view::npos) return nullptr;
    const std::size_t end = fill.find(')', start);
    if (end == std::string_view::npos) return nullptr;
    const std::string_view id = fill.substr(start + 1, end - start - 1);
    if (const auto* found = document.FindId<std::shared_ptr<clsSvgGradientData>>(id)) return *found;
    const auto* element = document.FindId<clsSvgIDInfo>(id);
    if (element != nullptr && document.Text.substr(element->SIndex).starts_with("<pattern"))
        document.LeftOut.Note(SvgFeature::Pattern);
    else
        document.LeftOut.Note(SvgFeature::Paint);
    return nullptr;
}

clsSWFTFillStyle MakeSvgGradientFill(SvgDocument& document, const clsSvgGradientData& gradient,
                                     const SvgTransformation& transformation, const SwfRect& bounds,
                                     Long alpha) {
    const clsSvgGradientData& colors = FollowLinks(document, gradient);
    if (colors.ColorTbl.empty()) return {};
    if (colors.ColorTbl.size() == 1) {
        clsSWFTFillStyle fill(clsSWFTFillStyle::Solid);
        fill.StyleAs<clsSWFTFillSolid>()->SolidColor =
            ToSvgRgba(colors.ColorTbl[0], colors.OpacityTbl[0] * alpha / 255);
        return fill;
    }
    const GradientFill maker(gradient, transformation, bounds);
    if (maker.DependsOnOrder()) document.LeftOut.Note(SvgFeature::TransformOrder);
    clsSWFTFillStyle fill = gradient.GradName == "Radial" ? maker.MakeRadialGradientFill()
                                                          : maker.MakeLinearGradientFill();
    CopyColors(colors, gradient.Spread, alpha, *fill.StyleAs<clsSWFTFillLinearRadial>());
    return fill;
}

}  // namespace tamber
