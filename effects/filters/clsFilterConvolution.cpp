#include "effects/filters/clsFilterConvolution.h"

#include <algorithm>
#include <numeric>

#include "platform/RuntimeError.h"

namespace tamber {

Single clsFilterConvolution::MatrixTbl(Long index) const {
    if (index < 0 || index >= 25)
        throw RuntimeError(ErrorOutOfRange, u"clsFilterConvolution[MatrixTbl]",
                           u"範囲外の数値が設定されました。");
    return matrix_[static_cast<std::size_t>(index)];
}

void clsFilterConvolution::MatrixTbl(Long index, Single value) {
    if (index < 0 || index >= 25)
        throw RuntimeError(ErrorOutOfRange, u"clsFilterConvolution[MatrixTbl]",
                           u"範囲外の数値が設定されました。");
    matrix_[static_cast<std::size_t>(index)] = FilterNumber(value);
}

void clsFilterConvolution::SetMatrixTbl(const Matrix& values) {
    std::transform(values.begin(), values.end(), matrix_.begin(), FilterNumber);
}

void clsFilterConvolution::GetAutoCalculation(Single& divisor, Single& bias) const {
    const Single sum = std::accumulate(matrix_.begin(), matrix_.end(), 0.0F);
    divisor = sum == 0 ? 1 : sum;
    bias = sum > 0 ? 0 : sum < 0 ? 255 : 128;
}

bool clsFilterConvolution::CkMorphing(const clsFilterConvolution& other) const {
    return matrix_ != other.matrix_ || Divisor() != other.Divisor() || Bias() != other.Bias() ||
           DefaultColor() != other.DefaultColor() || DefaultColorA != other.DefaultColorA;
}

clsFilterConvolution clsFilterConvolution::Morphing(const clsFilterConvolution& other,
                                                    double weightThis, double weightOther) const {
    clsFilterConvolution result = *this;
    result.Divisor(Mix(Divisor(), other.Divisor(), weightThis, weightOther));
    result.Bias(Mix(Bias(), other.Bias(), weightThis, weightOther));
    for (std::size_t i = 0; i < matrix_.size(); ++i)
        result.matrix_[i] =
            FilterNumber(Mix(matrix_[i], other.matrix_[i], weightThis, weightOther));
    result.DefaultColorRed =
        MixByte(DefaultColorRed, other.DefaultColorRed, weightThis, weightOther);
    result.DefaultColorGreen =
        MixByte(DefaultColorGreen, other.DefaultColorGreen, weightThis, weightOther);
    result.DefaultColorBlue =
        MixByte(DefaultColorBlue, other.DefaultColorBlue, weightThis, weightOther);
    result.DefaultColorA = MixPercent(DefaultColorA, other.DefaultColorA, weightThis, weightOther);
    return result;
}

clsFilterConvolution clsFilterConvolution::AuthoringCopy(const clsFilterConvolution* source) {
    clsFilterConvolution result;
    AuthoringCopyTo(result, source);
    return result;
}

void clsFilterConvolution::AuthoringCopyTo(clsFilterConvolution& target,
                                           const clsFilterConvolution*) {
    target = clsFilterConvolution();
}

void clsFilterConvolution::Load(clsCSV& csv) {
    // A larger size would reach beyond the 25 cells.
    MatrixX = std::clamp(csv.TakeLong(), 0, 5);
    MatrixY = std::clamp(csv.TakeLong(), 0, 5);
    Divisor(csv.TakeSingle());
    Bias(csv.TakeSingle());
    for (Single& cell : matrix_) cell = FilterNumber(csv.TakeSingle());
    DefaultColorBlue = csv.TakeByte();
    DefaultColorGreen = csv.TakeByte();
    DefaultColorRed = csv.TakeByte();
    DefaultColorA = TakePercent(csv);
    blClamp = csv.TakeBoolean();
    blPreserveAlpha = csv.TakeBoolean();
}

void clsFilterConvolution::Save(clsCSV& csv) const {
    csv.Put(MatrixX);
    csv.Put(MatrixY);
    csv.Put(Divisor());
    csv.Put(Bias());
    for (const Single cell : matrix_) csv.Put(cell);
    csv.Put(Long{DefaultColorBlue});
    csv.Put(Long{DefaultColorGreen});
    csv.Put(Long{DefaultColorRed});
    csv.Put(Long{DefaultColorA});
    csv.Put(blClamp);
    csv.Put(blPreserveAlpha);
}

}  // namespace tamber
