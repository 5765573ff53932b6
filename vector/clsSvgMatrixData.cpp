#include "vector/clsSvgMatrixData.h"

#include <cmath>

#include "vector/SvgBudget.h"
#include "vector/SvgScanner.h"

namespace tamber {

namespace {

constexpr double Pi = 3.14159265358979;
/// Twips that can be told from rounded shifts.
constexpr double LeastStep = 4;

using Arguments = std::vector<Single>;

/// Numbers separated by white space and commas; a letter of an exponent in front is passed over.
Arguments SplitArguments(std::string_view text) {
    const auto separates = [](char c) { return IsSvgSpace(c) || c == ','; };
    Arguments arguments;
    for (std::size_t at = 0; at < text.size();) {
        if (separates(text[at])) {
            ++at;
            continue;
        }
        std::size_t end = at;
        while (end < text.size() && !separates(text[end])) ++end;
        while (at < end && (text[at] == 'E' || text[at] == 'e')) ++at;
        arguments.push_back(ParseSvgNumber(text.substr(at, end - at)));
        at = end;
    }
    return arguments;
}

Single Radians(Single degrees) {
    return static_cast<Single>(static_cast<double>(degrees) * Pi / 180);
}

void AddTranslation(std::string_view arguments, SvgMatrixList& matrices) {
    const std::vector<Long> shift = ParseSvgNumberList(arguments);
    if (shift.empty()) return;
    clsSvgMatrixData matrix;
    matrix.sftX = shift[0];
    if (shift.size() > 1) matrix.sftY = shift[1];
    matrices.push_back(matrix);
}

void AddScale(const Arguments& scale, SvgMatrixList& matrices) {
    if (scale.empty()) return;
    clsSvgMatrixData matrix;
    matrix.ScaleX = scale[0];
    matrix.ScaleY = scale.size() > 1 ? scale[1] : scale[0];
    if (matrix.ScaleX != 1 || matrix.ScaleY != 1) matrices.push_back(matrix);
}

void AddRotation(const Arguments& rotation, SvgMatrixList& matrices) {
    if (rotation.empty()) return;
    const Single angle = Radians(rotation[0]);
    clsSvgMatrixData matrix;
    matrix.ScaleX = matrix.ScaleY = std::cos(angle);
    matrix.Skew0 = std::sin(angle);
    matrix.Skew1 = -matrix.Skew0;
    if (rotation.size() >= 3) {
        const Single cx = rotation[1];
        const Single cy = rotation[2];
        matrix.sftX = ToSvgTwips((cx - (matrix.ScaleX * cx + matrix.Skew1 * cy)) * TwipsPerPixel);
        matrix.sftY = ToSvgTwips((cy - (matrix.Skew0 * cx + matrix.ScaleY * cy)) * TwipsPerPixel);
    }
    matrices.push_back(matrix);
}

void AddSkew(const Arguments& skew, Single clsSvgMatrixData::*field, SvgMatrixList& matrices) {
    if (skew.empty()) return;
    clsSvgMatrixData matrix;
    matrix.*field = std::tan(Radians(skew[0]));
    matrices.push_back(matrix);
}

void AddMatrix(const Arguments& m, SvgMatrixList& matrices) {
    if (m.size() < 6) return;
    matrices.push_back({m[0], m[3], m[1], m[2], ToSvgTwips(m[4] * TwipsPerPixel),
                        ToSvgTwips(m[5] * TwipsPerPixel)});
}

void AddTransform(std::string_view name, std::string_view text, SvgMatrixList& matrices) {
    if (name == "translate") return AddTranslation(text, matrices);
    const Arguments arguments = SplitArguments(text);
    if (name == "scale") AddScale(arguments, matrices);
    if (name == "rotate") AddRotation(arguments, matrices);
    if (name == "skewX") AddSkew(arguments, &clsSvgMatrixData::Skew1, matrices);
    if (name == "skewY") AddSkew(arguments, &clsSvgMatrixData::Skew0, matrices);
    if (name == "matrix") AddMatrix(arguments, matrices);
}

}  // namespace

void ParseTransformList(std::string_view text, SvgMatrixList& matrices) {
    while (true) {
        const std::size_t open = text.find('(');
        if (open == std::string_view::npos) return;
        const std::size_t close = text.find(')', open);
        if (close == std::string_view::npos) return;
        std::string_view name = TrimSvgSpace(text.substr(0, open));
        while (name.starts_with(',')) name = TrimSvgSpace(name.substr(1));
        AddTransform(name, text.substr(open + 1, close - open - 1), matrices);
        SvgBudget::Check(matrices.size() <= SvgBudget::MostMatrices);
        text.remove_prefix(close + 1);
    }
}

Single SvgTransformation::WidthScale() const {
    SvgAffine whole;
    whole.Then(Own);
    whole.Then(Around);
    return static_cast<Single>(std::hypot(whole.A, whole.C) + std::hypot(whole.B, whole.D));
}

bool SvgTransformation::DependsOnOrder(double reach) const {
    if (Own.size() + Around.size() < 2) return false;
    SvgAffine forward;
    forward.Then(Own);
    forward.Then(Around);
    SvgAffine backward;
    backward.ThenBackward(Own);
    backward.ThenBackward(Around);
    return forward.IsElsewhere(backward, reach);
}

void SvgAffine::Then(const clsSvgMatrixData& next) {
    const SvgAffine before = *this;
    A = next.ScaleX * before.A + next.Skew1 * before.B;
    C = next.ScaleX * before.C + next.Skew1 * before.D;
    E = next.ScaleX * before.E + next.Skew1 * before.F + next.sftX;
    B = next.Skew0 * before.A + next.ScaleY * before.B;
    D = next.Skew0 * before.C + next.ScaleY * before.D;
    F = next.Skew0 * before.E + next.ScaleY * before.F + next.sftY;
}

void SvgAffine::Then(const SvgMatrixList& list) {
    for (const clsSvgMatrixData& matrix : list) Then(matrix);
}

void SvgAffine::ThenBackward(const SvgMatrixList& list) {
    for (auto matrix = list.rbegin(); matrix != list.rend(); ++matrix) Then(*matrix);
}

bool SvgAffine::IsElsewhere(const SvgAffine& other, double reach) const {
    const double x = reach * (std::abs(A - other.A) + std::abs(C - other.C));
    const double y = reach * (std::abs(B - other.B) + std::abs(D - other.D));
    return x + std::abs(E - other.E) > LeastStep || y + std::abs(F - other.F) > LeastStep;
}

}  // namespace tamber
