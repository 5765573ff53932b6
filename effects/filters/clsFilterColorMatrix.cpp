#include "effects/filters/clsFilterColorMatrix.h"

#include <algorithm>

#include "platform/RuntimeError.h"

namespace tamber {

Single clsFilterColorMatrix::MatrixTbl(Long index) const {
    if (index < 0 || index >= 20)
        throw RuntimeError(ErrorOutOfRange, u"clsFilterColorMatrix[MatrixTbl]",
                           u"範囲外の数値が設定されました。");
    return matrix_[static_cast<std::size_t>(index)];
}

void clsFilterColorMatrix::MatrixTbl(Long index, Single value) {
    if (index < 0 || index >= 20)
        throw RuntimeError(ErrorOutOfRange, u"clsFilterColorMatrix[MatrixTbl]",
                           u"範囲外の数値が設定されました。");
    matrix_[static_cast<std::size_t>(index)] = FilterNumber(value);
}

void clsFilterColorMatrix::SetMatrixTbl(const Matrix& values) {
    std::transform(values.begin(), values.end(), matrix_.begin(), FilterNumber);
}

}  // namespace tamber
