#include "effects/filters/clsFilterBevel.h"

namespace tamber {

bool clsFilterBevel::CkMorphing(const clsFilterBevel& other) const {
    return ShadowColor() != other.ShadowColor() || ShadowColorA != other.ShadowColorA ||
           HighlightColor() != other.HighlightColor() || HighlightColorA != other.HighlightColorA ||
           BlurX() != other.BlurX() || BlurY() != other.BlurY() || Angle() != other.Angle() ||
           Distance() != other.Distance() || Strength() != other.Strength() ||
           Passes != other.Passes;
}

clsFilterBevel clsFilterBevel::Morphing(const clsFilterBevel& other, double weightThis,
                                        double weightOther) const {
    clsFilterBevel result = *this;
    result.ShadowColorRed = MixByte(ShadowColorRed, other.ShadowColorRed, weightThis, weightOther);
    result.ShadowColorGreen =
        MixByte(ShadowColorGreen, other.ShadowColorGreen, weightThis, weightOther);
    result.ShadowColorBlue =
        MixByte(ShadowColorBlue, other.ShadowColorBlue, weightThis, weightOther);
    result.ShadowColorA = MixPercent(ShadowColorA, other.ShadowColorA, weightThis, weightOther);
    result.HighlightColorRed =
        MixByte(HighlightColorRed, other.HighlightColorRed, weightThis, weightOther);
    result.HighlightColorGreen =
        MixByte(HighlightColorGreen, other.HighlightColorGreen, weightThis, weightOther);
    result.HighlightColorBlue =
        MixByte(HighlightColorBlue, other.HighlightColorBlue, weightThis, weightOther);
    result.HighlightColorA =
        MixPercent(HighlightColorA, other.HighlightColorA, weightThis, weightOther);
    result.BlurX(Mix(BlurX(), other.BlurX(), weightThis, weightOther));
    result.BlurY(Mix(BlurY(), other.BlurY(), weightThis, weightOther));
    result.Angle(Mix(Angle(), other.Angle(), weightThis, weightOther));
    result.Distance(Mix(Distance(), other.Distance(), weightThis, weightOther));
    result.Strength(Mix(Strength(), other.Strength(), weightThis, weightOther));
    return result;
}

clsFilterBevel clsFilterBevel::AuthoringCopy(const clsFilterBevel* source) {
    clsFilterBevel result;
    AuthoringCopyTo(result, source);
    return result;
}

void clsFilterBevel::AuthoringCopyTo(clsFilterBevel& target, const clsFilterBevel* source) {
    target = source != nullptr ? *source : clsFilterBevel();
    target.HighlightColorA = 0;
    target.ShadowColorA = 0;
    target.Distance(0);
    target.Strength(0);
}

void clsFilterBevel::Load(clsCSV& csv) {
    ShadowColorBlue = csv.TakeByte();
    ShadowColorGreen = csv.TakeByte();
    ShadowColorRed = csv.TakeByte();
    ShadowColorA = TakePercent(csv);
    HighlightColorBlue = csv.TakeByte();
    HighlightColorGreen = csv.TakeByte();
    HighlightColorRed = csv.TakeByte();
    HighlightColorA = TakePercent(csv);
    BlurX(csv.TakeSingle());
    BlurY(csv.TakeSingle());
    Angle(csv.TakeSingle());
    Distance(csv.TakeSingle());
    Strength(csv.TakeSingle());
    blInner = csv.TakeBoolean();
    blKnockout = csv.TakeBoolean();
    blCompositeSource = csv.TakeBoolean();
    blOnTop = csv.TakeBoolean();
    Passes = csv.TakeLong();
}

void clsFilterBevel::Save(clsCSV& csv) const {
    csv.Put(Long{ShadowColorBlue});
    csv.Put(Long{ShadowColorGreen});
    csv.Put(Long{ShadowColorRed});
    csv.Put(Long{ShadowColorA});
    csv.Put(Long{HighlightColorBlue});
    csv.Put(Long{HighlightColorGreen});
    csv.Put(Long{HighlightColorRed});
    csv.Put(Long{HighlightColorA});
    csv.Put(BlurX());
    csv.Put(BlurY());
    csv.Put(Angle());
    csv.Put(Distance());
    csv.Put(Strength());
    csv.Put(blInner);
    csv.Put(blKnockout);
    csv.Put(blCompositeSource);
    csv.Put(blOnTop);
    csv.Put(Passes);
}

}  // namespace tamber
