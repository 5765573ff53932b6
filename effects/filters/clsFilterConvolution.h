#pragma once

#include <array>

#include "document/cells/clsCSV.h"
#include "effects/filters/FilterValues.h"

namespace tamber {

/// A convolution of a placed symbol's pixels.
class clsFilterConvolution {
public:
    using Matrix = std::array<Single, 25>;

    /// Size of the matrix in use, up to 5 by 5.
    Long MatrixX = 5;
    Long MatrixY = 5;
    Byte DefaultColorRed = 0;
    Byte DefaultColorGreen = 0;
    Byte DefaultColorBlue = 0;
    /// Percent, 0 to 100.
    Byte DefaultColorA = 0;
    bool blClamp = false;
    bool blPreserveAlpha = false;

    Single Divisor() const { return divisor_; }
    void Divisor(Single value) { divisor_ = FilterNumber(value); }
    Single Bias() const { return bias_; }
    void Bias(Single value) { bias_ = FilterNumber(value); }
    Long DefaultColor() const {
        return FilterColor(DefaultColorRed, DefaultColorGreen, DefaultColorBlue);
    }
    void DefaultColor(Long color) {
        SetFilterColor(color, DefaultColorRed, DefaultColorGreen, DefaultColorBlue);
    }
    /// Text for the colour box.
    String DefaultColorText() const { return FilterColorText(DefaultColor()); }
    /// Cell 0 to 24, row by row; any other raises.
    Single MatrixTbl(Long index) const;
    void MatrixTbl(Long index, Single value);
    const Matrix& MatrixTblPtr() const { return matrix_; }
    void SetMatrixTbl(const Matrix& values);
    /// Divisor and bias that keep the brightness of the picture.
    void GetAutoCalculation(Single& divisor, Single& bias) const;

    /// True when a value differs that a tween can change.
    bool CkMorphing(const clsFilterConvolution& other) const;
    /// The weighted sum of the two; counts and switches are of this one.
    clsFilterConvolution Morphing(const clsFilterConvolution& other, double weightThis,
                                  double weightOther) const;
    /// True when anything differs.
    bool CkUpDate(const clsFilterConvolution& other) const { return !(*this == other); }
    clsFilterConvolution Copy() const { return *this; }
    void CopyTo(clsFilterConvolution& target) const { target = *this; }
    /// A filter without effect: there is no lesser form of it.
    static clsFilterConvolution AuthoringCopy(const clsFilterConvolution* source);
    static void AuthoringCopyTo(clsFilterConvolution& target, const clsFilterConvolution* source);
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsFilterConvolution&) const = default;

private:
    Single divisor_ = 1;
    Single bias_ = 0;
    Matrix matrix_{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
};

}  // namespace tamber
