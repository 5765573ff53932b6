#include "effects/filters/clsFilterData.h"

namespace tamber {

namespace {

template <class T>
void MorphOne(bool on, const T& record, const T& other, double weightThis, double weightOther,
              bool& resultOn, T& result) {
    resultOn = on;
    if (on) result = record.Morphing(other, weightThis, weightOther);
}

template <class T>
void AuthorOne(bool on, const T& record, bool otherOn, const T& other, bool merge, bool& resultOn,
               T& result) {
    resultOn = on || (merge && otherOn);
    if (on)
        result = record;
    else
        T::AuthoringCopyTo(result, merge ? &other : nullptr);
}

}  // namespace

Long clsFilterData::FilterCount() const {
    return Long{blDropShadow} + Long{blBlur} + Long{blGlow} + Long{blBevel} + Long{blConvolution} +
           Long{blColorMatrix};
}

bool clsFilterData::CkMorphing(const clsFilterData& other) const {
    return (blDropShadow && fltDropShadow.CkMorphing(other.fltDropShadow)) ||
           (blBlur && fltBlur.CkMorphing(other.fltBlur)) ||
           (blGlow && fltGlow.CkMorphing(other.fltGlow)) ||
           (blBevel && fltBevel.CkMorphing(other.fltBevel)) ||
           (blConvolution && fltConvolution.CkMorphing(other.fltConvolution)) ||
           (blColorMatrix && fltColorMatrix.CkMorphing(other.fltColorMatrix));
}

std::shared_ptr<clsFilterData> clsFilterData::Morphing(const clsFilterData& other,
                                                       double weightThis,
                                                       double weightOther) const {
    auto result = std::make_shared<clsFilterData>();
    MorphOne(blEditColor, fltEditColor, other.fltEditColor, weightThis, weightOther,
             result->blEditColor, result->fltEditColor);
    MorphOne(blDropShadow, fltDropShadow, other.fltDropShadow, weightThis, weightOther,
             result->blDropShadow, result->fltDropShadow);
    MorphOne(blBlur, fltBlur, other.fltBlur, weightThis, weightOther, result->blBlur,
             result->fltBlur);
    MorphOne(blGlow, fltGlow, other.fltGlow, weightThis, weightOther, result->blGlow,
             result->fltGlow);
    MorphOne(blBevel, fltBevel, other.fltBevel, weightThis, weightOther, result->blBevel,
             result->fltBevel);
    MorphOne(blConvolution, fltConvolution, other.fltConvolution, weightThis, weightOther,
             result->blConvolution, result->fltConvolution);
    MorphOne(blColorMatrix, fltColorMatrix, other.fltColorMatrix, weightThis, weightOther,
             result->blColorMatrix, result->fltColorMatrix);
    return result;
}

std::shared_ptr<clsFilterData> clsFilterData::AuthoringCopy(const clsFilterData& other,
                                                            bool merge) const {
    auto result = std::make_shared<clsFilterData>();
    AuthoringCopyTo(other, merge, *result);
    return result;
}

void clsFilterData::AuthoringCopyTo(const clsFilterData& other, bool merge,
                                    clsFilterData& result) const {
    AuthorOne(blEditColor, fltEditColor, other.blEditColor, other.fltEditColor, merge,
              result.blEditColor, result.fltEditColor);
    AuthorOne(blDropShadow, fltDropShadow, other.blDropShadow, other.fltDropShadow, merge,
              result.blDropShadow, result.fltDropShadow);
    AuthorOne(blBlur, fltBlur, other.blBlur, other.fltBlur, merge, result.blBlur, result.fltBlur);
    AuthorOne(blGlow, fltGlow, other.blGlow, other.fltGlow, merge, result.blGlow, result.fltGlow);
    AuthorOne(blBevel, fltBevel, other.blBevel, other.fltBevel, merge, result.blBevel,
              result.fltBevel);
    AuthorOne(blConvolution, fltConvolution, other.blConvolution, other.fltConvolution, merge,
              result.blConvolution, result.fltConvolution);
    AuthorOne(blColorMatrix, fltColorMatrix, other.blColorMatrix, other.fltColorMatrix, merge,
              result.blColorMatrix, result.fltColorMatrix);
}

void clsFilterData::Load(clsCSV& csv) {
    blEditColor = csv.TakeBoolean();
    fltEditColor.Load(csv);
    blDropShadow = csv.TakeBoolean();
    fltDropShadow.Load(csv);
    blBlur = csv.TakeBoolean();
    fltBlur.Load(csv);
    blGlow = csv.TakeBoolean();
    fltGlow.Load(csv);
    blBevel = csv.TakeBoolean();
    fltBevel.Load(csv);
    blConvolution = csv.TakeBoolean();
    fltConvolution.Load(csv);
    blColorMatrix = csv.TakeBoolean();
    fltColorMatrix.Load(csv);
}

void clsFilterData::Save(clsCSV& csv) const {
    csv.Put(blEditColor);
    fltEditColor.Save(csv);
    csv.Put(blDropShadow);
    fltDropShadow.Save(csv);
    csv.Put(blBlur);
    fltBlur.Save(csv);
    csv.Put(blGlow);
    fltGlow.Save(csv);
    csv.Put(blBevel);
    fltBevel.Save(csv);
    csv.Put(blConvolution);
    fltConvolution.Save(csv);
    csv.Put(blColorMatrix);
    fltColorMatrix.Save(csv);
}

}  // namespace tamber
