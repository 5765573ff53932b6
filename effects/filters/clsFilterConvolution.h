#pragma once

#include <array>

#include "effects/filters/FilterRecord.h"

namespace tamber {

/// A convolution of a placed symbol's pixels.
class clsFilterConvolution : public FilterRecord<clsFilterConvolution> {
public:
    using Matrix = std::array<Single, 25>;

    /// A larger size would reach beyond the 25 cells.
    static constexpr Within MatrixSide{0, 5};

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

    bool operator==(const clsFilterConvolution&) const = default;

    static constexpr auto Fields() {
        using T = clsFilterConvolution;
        return std::tuple{
            Field(u"MatrixX", &T::MatrixX, MatrixSide),
            Field(u"MatrixY", &T::MatrixY, MatrixSide),
            Field(u"Divisor", &T::divisor_, Fitted(FilterNumber), Mixes),
            Field(u"Bias", &T::bias_, Fitted(FilterNumber), Mixes),
            Array(u"m", &T::matrix_, Fitted(FilterNumber), Mixes),
            Field(u"Default.Blue", &T::DefaultColorBlue, Mixes),
            Field(u"Default.Green", &T::DefaultColorGreen, Mixes),
            Field(u"Default.Red", &T::DefaultColorRed, Mixes),
            Field(u"Default.ColorA", &T::DefaultColorA, Percent, Mixes),
            Field(u"blClamp", &T::blClamp),
            Field(u"blPreserveAlpha", &T::blPreserveAlpha),
        };
    }

private:
    Single divisor_ = 1;
    Single bias_ = 0;
    Matrix matrix_{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
};

}  // namespace tamber
