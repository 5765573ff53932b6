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

}  // namespace tamber
