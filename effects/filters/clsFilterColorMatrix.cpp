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

bool clsFilterColorMatrix::CkMorphing(const clsFilterColorMatrix& other) const {
    return matrix_ != other.matrix_;
}

clsFilterColorMatrix clsFilterColorMatrix::Morphing(const clsFilterColorMatrix& other,
                                                    double weightThis, double weightOther) const {
    clsFilterColorMatrix result;
    for (std::size_t i = 0; i < matrix_.size(); ++i)
        result.matrix_[i] =
            FilterNumber(Mix(matrix_[i], other.matrix_[i], weightThis, weightOther));
    return result;
}

clsFilterColorMatrix clsFilterColorMatrix::AuthoringCopy(const clsFilterColorMatrix* source) {
    clsFilterColorMatrix result;
    AuthoringCopyTo(result, source);
    return result;
}

void clsFilterColorMatrix::AuthoringCopyTo(clsFilterColorMatrix& target,
                                           const clsFilterColorMatrix*) {
    target = clsFilterColorMatrix();
}

void clsFilterColorMatrix::Load(clsCSV& csv) {
    for (Single& cell : matrix_) cell = FilterNumber(csv.TakeSingle());
}

void clsFilterColorMatrix::Save(clsCSV& csv) const {
    for (const Single cell : matrix_) csv.Put(cell);
}

}  // namespace tamber
