#include "effects/filters/clsFilterBlur.h"

namespace tamber {

bool clsFilterBlur::CkMorphing(const clsFilterBlur& other) const {
    return BlurX() != other.BlurX() || BlurY() != other.BlurY() || Passes != other.Passes;
}

clsFilterBlur clsFilterBlur::Morphing(const clsFilterBlur& other, double weightThis,
                                      double weightOther) const {
    clsFilterBlur result = *this;
    result.BlurX(Mix(BlurX(), other.BlurX(), weightThis, weightOther));
    result.BlurY(Mix(BlurY(), other.BlurY(), weightThis, weightOther));
    return result;
}

clsFilterBlur clsFilterBlur::AuthoringCopy(const clsFilterBlur* source) {
    clsFilterBlur result;
    AuthoringCopyTo(result, source);
    return result;
}

void clsFilterBlur::AuthoringCopyTo(clsFilterBlur& target, const clsFilterBlur* source) {
    target = source != nullptr ? *source : clsFilterBlur();
    target.BlurX(0);
    target.BlurY(0);
}

void clsFilterBlur::Load(clsCSV& csv) {
    BlurX(csv.TakeSingle());
    BlurY(csv.TakeSingle());
    Passes = csv.TakeLong();
}

void clsFilterBlur::Save(clsCSV& csv) const {
    csv.Put(BlurX());
    csv.Put(BlurY());
    csv.Put(Passes);
}

}  // namespace tamber
