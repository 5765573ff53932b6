#include "effects/filters/clsFilterEditColor.h"

namespace tamber {

bool clsFilterEditColor::CkMorphing(const clsFilterEditColor& other) const {
    return CkUpDate(other);
}

clsFilterEditColor clsFilterEditColor::Morphing(const clsFilterEditColor& other, double weightThis,
                                                double weightOther) const {
    clsFilterEditColor result;
    result.MultR = MixLong(MultR, other.MultR, weightThis, weightOther);
    result.MultG = MixLong(MultG, other.MultG, weightThis, weightOther);
    result.MultB = MixLong(MultB, other.MultB, weightThis, weightOther);
    result.MultA = MixLong(MultA, other.MultA, weightThis, weightOther);
    result.AddR = MixLong(AddR, other.AddR, weightThis, weightOther);
    result.AddG = MixLong(AddG, other.AddG, weightThis, weightOther);
    result.AddB = MixLong(AddB, other.AddB, weightThis, weightOther);
    result.AddA = MixLong(AddA, other.AddA, weightThis, weightOther);
    return result;
}

clsFilterEditColor clsFilterEditColor::AuthoringCopy(const clsFilterEditColor* source) {
    clsFilterEditColor result;
    AuthoringCopyTo(result, source);
    return result;
}

void clsFilterEditColor::AuthoringCopyTo(clsFilterEditColor& target, const clsFilterEditColor*) {
    target = clsFilterEditColor();
}

void clsFilterEditColor::Load(clsCSV& csv) {
    for (Long* value : {&MultR, &MultG, &MultB, &MultA, &AddR, &AddG, &AddB, &AddA})
        *value = csv.TakeLong();
}

void clsFilterEditColor::Save(clsCSV& csv) const {
    for (const Long value : {MultR, MultG, MultB, MultA, AddR, AddG, AddB, AddA}) csv.Put(value);
}

}  // namespace tamber
