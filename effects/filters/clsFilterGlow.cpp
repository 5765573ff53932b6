#include "effects/filters/clsFilterGlow.h"

namespace tamber {

bool clsFilterGlow::CkMorphing(const clsFilterGlow& other) const {
    return GlowColor() != other.GlowColor() || GlowColorA != other.GlowColorA ||
           BlurX() != other.BlurX() || BlurY() != other.BlurY() || Strength() != other.Strength() ||
           Passes != other.Passes;
}

clsFilterGlow clsFilterGlow::Morphing(const clsFilterGlow& other, double weightThis,
                                      double weightOther) const {
    clsFilterGlow result = *this;
    result.GlowColorRed = MixByte(GlowColorRed, other.GlowColorRed, weightThis, weightOther);
    result.GlowColorGreen = MixByte(GlowColorGreen, other.GlowColorGreen, weightThis, weightOther);
    result.GlowColorBlue = MixByte(GlowColorBlue, other.GlowColorBlue, weightThis, weightOther);
    result.GlowColorA = MixPercent(GlowColorA, other.GlowColorA, weightThis, weightOther);
    result.BlurX(Mix(BlurX(), other.BlurX(), weightThis, weightOther));
    result.BlurY(Mix(BlurY(), other.BlurY(), weightThis, weightOther));
    result.Strength(Mix(Strength(), other.Strength(), weightThis, weightOther));
    return result;
}

clsFilterGlow clsFilterGlow::AuthoringCopy(const clsFilterGlow* source) {
    clsFilterGlow result;
    AuthoringCopyTo(result, source);
    return result;
}

void clsFilterGlow::AuthoringCopyTo(clsFilterGlow& target, const clsFilterGlow* source) {
    target = source != nullptr ? *source : clsFilterGlow();
    target.GlowColorA = 0;
    target.Strength(0);
}

void clsFilterGlow::Load(clsCSV& csv) {
    GlowColorBlue = csv.TakeByte();
    GlowColorGreen = csv.TakeByte();
    GlowColorRed = csv.TakeByte();
    GlowColorA = TakePercent(csv);
    BlurX(csv.TakeSingle());
    BlurY(csv.TakeSingle());
    Strength(csv.TakeSingle());
    blInner = csv.TakeBoolean();
    blKnockout = csv.TakeBoolean();
    blCompositeSource = csv.TakeBoolean();
    Passes = csv.TakeLong();
}

void clsFilterGlow::Save(clsCSV& csv) const {
    csv.Put(Long{GlowColorBlue});
    csv.Put(Long{GlowColorGreen});
    csv.Put(Long{GlowColorRed});
    csv.Put(Long{GlowColorA});
    csv.Put(BlurX());
    csv.Put(BlurY());
    csv.Put(Strength());
    csv.Put(blInner);
    csv.Put(blKnockout);
    csv.Put(blCompositeSource);
    csv.Put(Passes);
}

}  // namespace tamber
