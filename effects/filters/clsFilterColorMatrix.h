#pragma once

#include <array>

#include "document/cells/clsCSV.h"
#include "effects/filters/FilterValues.h"

namespace tamber {

/// A matrix over the colours of a placed symbol: four rows of five.
class clsFilterColorMatrix {
public:
    using Matrix = std::array<Single, 20>;

    /// Cell 0 to 19, row by row; any other raises.
    Single MatrixTbl(Long index) const;
    void MatrixTbl(Long index, Single value);
    const Matrix& MatrixTblPtr() const { return matrix_; }
    void SetMatrixTbl(const Matrix& values);

    /// True when a value differs that a tween can change.
    bool CkMorphing(const clsFilterColorMatrix& other) const;
    /// The weighted sum of the two; counts and switches are of this one.
    clsFilterColorMatrix Morphing(const clsFilterColorMatrix& other, double weightThis,
                                  double weightOther) const;
    /// True when anything differs.
    bool CkUpDate(const clsFilterColorMatrix& other) const { return !(*this == other); }
    clsFilterColorMatrix Copy() const { return *this; }
    void CopyTo(clsFilterColorMatrix& target) const { target = *this; }
    /// A filter without effect: there is no lesser form of it.
    static clsFilterColorMatrix AuthoringCopy(const clsFilterColorMatrix* source);
    static void AuthoringCopyTo(clsFilterColorMatrix& target, const clsFilterColorMatrix* source);
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsFilterColorMatrix&) const = default;

private:
    Matrix matrix_{1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0};
};

}  // namespace tamber
