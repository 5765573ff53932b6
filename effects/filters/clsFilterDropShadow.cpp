#include "effects/filters/clsFilterDropShadow.h"

namespace tamber {

bool clsFilterDropShadow::CkMorphing(const clsFilterDropShadow& other) const {
    return DropShadowColor() != other.DropShadowColor() ||
           DropShadowColorA != other.DropShadowColorA || BlurX() != other.BlurX() ||
           BlurY() != other.BlurY() || Angle() != other.Angle() || Distance() != other.Distance() ||
           Strength() != other.Strength() || Passes != other.Passes;
}

clsFilterDropShadow clsFilterDropShadow::Morphing(const clsFilterDropShadow& other,
                                                  double weightThis, double weightOther) const {
    clsFilterDropShadow result = *this;
    result.DropShadowColorRed =
        MixByte(DropShadowColorRed, other.DropShadowColorRed, weightThis, weightOther);
    result.DropShadowColorGreen =
        MixByte(DropShadowColorGreen, other.DropShadowColorGreen, weightThis, weightOther);
    result.DropShadowColorBlue =
        MixByte(DropShadowColorBlue, other.DropShadowColorBlue, weightThis, weightOther);
    result.DropShadowColorA =
        MixPercent(DropShadowColorA, other.DropShadowColorA, weightThis, weightOther);
    result.BlurX(Mix(BlurX(), other.BlurX(), weightThis, weightOther));
    result.BlurY(Mix(BlurY(), other.BlurY(), weightThis, weightOther));
    result.Angle(Mix(Angle(), other.Angle(), weightThis, weightOther));
    result.Distance(Mix(Distance(), other.Distance(), weightThis, weightOther));
    result.Strength(Mix(Strength(), other.Strength(), weightThis, weightOther));
    return result;
}

clsFilterDropShadow clsFilterDropShadow::AuthoringCopy(const clsFilterDropShadow* source) {
    clsFilterDropShadow result;
    AuthoringCopyTo(result, source);
    return result;
}

void clsFilterDropShadow::AuthoringCopyTo(clsFilterDropShadow& target,
                                          const clsFilterDropShadow* source) {
    target = source != nullptr ? *source : clsFilterDropShadow();
    // Both blurs follow the horizontal one, so that movies come out as they always did.
    target.BlurY(target.BlurX());
    target.DropShadowColorA = 0;
    target.Distance(0);
    target.Strength(0);
}

void clsFilterDropShadow::Load(clsCSV& csv) {
    DropShadowColorBlue = csv.TakeByte();
    DropShadowColorGreen = csv.TakeByte();
    DropShadowColorRed = csv.TakeByte();
    DropShadowColorA = TakePercent(csv);
    BlurX(csv.TakeSingle());
    BlurY(csv.TakeSingle());
    Angle(csv.TakeSingle());
    Distance(csv.TakeSingle());
    Strength(csv.TakeSingle());
    blInner = csv.TakeBoolean();
    blKnockout = csv.TakeBoolean();
    blCompositeSource = csv.TakeBoolean();
    Passes = csv.TakeLong();
}

void clsFilterDropShadow::Save(clsCSV& csv) const {
    csv.Put(Long{DropShadowColorBlue});
    csv.Put(Long{DropShadowColorGreen});
    csv.Put(Long{DropShadowColorRed});
    csv.Put(Long{DropShadowColorA});
    csv.Put(BlurX());
    csv.Put(BlurY());
    csv.Put(Angle());
    csv.Put(Distance());
    csv.Put(Strength());
    csv.Put(blInner);
    csv.Put(blKnockout);
    csv.Put(blCompositeSource);
    csv.Put(Passes);
}

}  // namespace tamber
