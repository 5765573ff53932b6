#include "effects/filters/FilterList.h"

#include "platform/rounding.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

enum FilterId : Long {
    DropShadow = 0,
    Blur = 1,
    Glow = 2,
    Bevel = 3,
    Convolution = 5,
    ColorMatrix = 6,
};

void SetFixed16(Single value) {
    mdlSWFTag::SetBytes(4, RoundToLong(static_cast<double>(value) * 65536.0));
}

void SetFixed8(Single value) {
    mdlSWFTag::SetBytes(2, RoundToLong(static_cast<double>(value) * 256.0));
}

void SetAngle(Single degrees) {
    const double radians = static_cast<double>(degrees) * 3.14159265358979 / 180.0;
    mdlSWFTag::SetBytes(4, RoundToLong(radians * 65536.0));
}

/// Red, green, blue, and the alpha given in percent.
void SetColour(Long color, Byte alphaPercent) {
    mdlSWFTag::SetBytes(3, color);
    mdlSWFTag::SetBytes(1, alphaPercent * 255 / 100);
}

template <class Filter>
Long CommonFlags(const Filter& filter) {
    return (filter.blInner ? 128 : 0) | (filter.blKnockout ? 64 : 0) |
           (filter.blCompositeSource ? 32 : 0) | filter.Passes;
}

void Write(const clsFilterDropShadow& filter) {
    mdlSWFTag::SetBytes(1, DropShadow);
    SetColour(filter.DropShadowColor(), filter.DropShadowColorA);
    SetFixed16(filter.BlurX());
    SetFixed16(filter.BlurY());
    SetAngle(filter.Angle());
    SetFixed16(filter.Distance());
    SetFixed8(filter.Strength());
    mdlSWFTag::SetBytes(1, CommonFlags(filter));
}

void Write(const clsFilterBlur& filter) {
    mdlSWFTag::SetBytes(1, Blur);
    SetFixed16(filter.BlurX());
    SetFixed16(filter.BlurY());
    mdlSWFTag::SetBytes(1, filter.Passes << 3);
}

void Write(const clsFilterGlow& filter) {
    mdlSWFTag::SetBytes(1, Glow);
    SetColour(filter.GlowColor(), filter.GlowColorA);
    SetFixed16(filter.BlurX());
    SetFixed16(filter.BlurY());
    SetFixed8(filter.Strength());
    mdlSWFTag::SetBytes(1, CommonFlags(filter));
}

void Write(const clsFilterBevel& filter) {
    mdlSWFTag::SetBytes(1, Bevel);
    SetColour(filter.HighlightColor(), filter.HighlightColorA);
    SetColour(filter.ShadowColor(), filter.ShadowColorA);
    SetFixed16(filter.BlurX());
    SetFixed16(filter.BlurY());
    SetAngle(filter.Angle());
    SetFixed16(filter.Distance());
    SetFixed8(filter.Strength());
    mdlSWFTag::SetBytes(1, CommonFlags(filter) | (filter.blOnTop ? 16 : 0));
}

void Write(const clsFilterConvolution& filter) {
    mdlSWFTag::SetBytes(1, Convolution);
    mdlSWFTag::SetBytes(1, filter.MatrixX);
    mdlSWFTag::SetBytes(1, filter.MatrixY);
    mdlSWFTag::SetFloat(filter.Divisor());
    mdlSWFTag::SetFloat(filter.Bias());
    const auto& cells = filter.MatrixTblPtr();
    const Long count = (filter.MatrixX & 0xFF) * (filter.MatrixY & 0xFF);
    for (Long i = 0; i < count; ++i)
        mdlSWFTag::SetFloat(i < static_cast<Long>(cells.size()) ? cells[static_cast<std::size_t>(i)]
                                                                : 0.0f);
    SetColour(filter.DefaultColor(), filter.DefaultColorA);
    mdlSWFTag::SetBytes(1, (filter.blClamp ? 2 : 0) | (filter.blPreserveAlpha ? 1 : 0));
}

void Write(const clsFilterColorMatrix& filter) {
    mdlSWFTag::SetBytes(1, ColorMatrix);
    for (const Single cell : filter.MatrixTblPtr()) mdlSWFTag::SetFloat(cell);
}

}  // namespace

void WriteFilterList(const clsFilterData& filters, Long count) {
    mdlSWFTag::SetBytes(1, count);
    if (filters.blColorMatrix) Write(filters.fltColorMatrix);
    if (filters.blConvolution) Write(filters.fltConvolution);
    if (filters.blBevel) Write(filters.fltBevel);
    if (filters.blDropShadow) Write(filters.fltDropShadow);
    if (filters.blGlow) Write(filters.fltGlow);
    if (filters.blBlur) Write(filters.fltBlur);
}

}  // namespace tamber
