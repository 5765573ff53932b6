#pragma once

#include <array>

#include "effects/filters/FilterRecord.h"

namespace tamber {

/// A matrix over the colours of a placed symbol: four rows of five.
class clsFilterColorMatrix : public FilterRecord<clsFilterColorMatrix> {
public:
    using Matrix = std::array<Single, 20>;

    /// Cell 0 to 19, row by row; any other raises.
    Single MatrixTbl(Long index) const;
    void MatrixTbl(Long index, Single value);
    const Matrix& MatrixTblPtr() const { return matrix_; }
    void SetMatrixTbl(const Matrix& values);

    bool operator==(const clsFilterColorMatrix&) const = default;

    static constexpr auto Fields() {
        using T = clsFilterColorMatrix;
        return std::tuple{
            Array(u"c", &T::matrix_, Fitted(FilterNumber), Mixes),
        };
    }

private:
    Matrix matrix_{1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0};
};

}  // namespace tamber
