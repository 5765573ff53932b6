#include "app/editors/FilterEditor.h"

#include "app/editors/FilterPresets.h"
#include "platform/UserInterface.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Version of the movie from which there are filters.
constexpr Long FirstVersion = 8;

}  // namespace

const std::array<FilterEditor::Entry, 7>& FilterEditor::Entries() {
    using T = clsFilterData;
    static constexpr std::array<Entry, 7> entries{{
        {u"カラー", &T::blEditColor},
        {u"カラーマトリクス", &T::blColorMatrix},
        {u"コンボリューション行列", &T::blConvolution},
        {u"ドロップシャドウ", &T::blDropShadow},
        {u"ブラー", &T::blBlur},
        {u"グロー", &T::blGlow},
        {u"ベベル", &T::blBevel},
    }};
    return entries;
}

void FilterEditor::AutoConvolution(bool on) {
    autoConvolution_ = on;
    CalculateConvolution();
}

void FilterEditor::ConvolutionCell(Long index, Single value) {
    filters_.fltConvolution.MatrixTbl(index, value);
    CalculateConvolution();
}

void FilterEditor::UseConvolutionPreset(std::size_t index) {
    filters_.fltConvolution.SetMatrixTbl(ConvolutionPresets()[index].Cells);
    filters_.fltConvolution.MatrixX = 5;
    filters_.fltConvolution.MatrixY = 5;
    CalculateConvolution();
}

void FilterEditor::UseColorMatrixPreset(std::size_t index) {
    filters_.fltColorMatrix.SetMatrixTbl(ColorMatrixPresets()[index].Cells);
}

void FilterEditor::CalculateConvolution() {
    if (!autoConvolution_) return;
    Single divisor = 1;
    Single bias = 0;
    filters_.fltConvolution.GetAutoCalculation(divisor, bias);
    filters_.fltConvolution.Divisor(divisor);
    filters_.fltConvolution.Bias(bias);
}

void FilterEditor::CheckVersion(Long version) {
    if (warned_ || version >= FirstVersion) return;
    if (filters_.FilterCount() == 0 && !filters_.blEditColor) return;
    warned_ = true;
    ShowMessage(u"フィルタはSWF8以降の機能です。\r\nSWF" + ToText(version) +
                    u"では使用できません。\r\nSWFファイル生成時に参照されません。",
                ProgramTitle, MessageIcon::Warning);
}

}  // namespace tamber
