#include <gtest/gtest.h>

#include "document/cells/clsCSV.h"
#include "effects/clsEffectElement.h"

#include "effects/filters/clsFilterData.h"
#include "platform/RuntimeError.h"

namespace tamber {
namespace {

TEST(Filter, numbers_are_limited_and_held_to_four_decimals) {
    clsFilterBlur blur;
    const struct {
        Single Set, Read;
    } cases[] = {
        {1.23456F, 1.2346F}, {40000, 32767.99F}, {-40000, -32768}, {0.00004F, 0}, {2.5F, 2.5F},
    };
    for (const auto& c : cases) {
        blur.BlurX(c.Set);
        EXPECT_EQ(blur.BlurX(), c.Read);
    }
    clsFilterGlow glow;
    glow.Strength(300);
    EXPECT_EQ(glow.Strength(), 255.99F);
    glow.Strength(-1);
    EXPECT_EQ(glow.Strength(), 0.0F);
}

TEST(Filter, colours_are_one_long_with_red_lowest) {
    clsFilterGlow glow;
    EXPECT_EQ(glow.GlowColor(), 0xFFFF00);
    glow.GlowColor(0x030201);
    EXPECT_EQ(glow.GlowColorRed, 1);
    EXPECT_EQ(glow.GlowColorBlue, 3);
    EXPECT_EQ(glow.GlowColorText(), u"#010203");
}

TEST(Filter, weights_beyond_0_to_1_leave_a_channel_in_its_range) {
    clsFilterDropShadow none;
    none.DropShadowColorA = 0;
    EXPECT_EQ(none.Morphing(clsFilterDropShadow(), 2, -1).DropShadowColorA, 0);
}

TEST(Filter, switches_alone_do_not_morph_but_count_as_a_change) {
    clsFilterBevel a;
    clsFilterBevel b;
    b.blOnTop = true;
    EXPECT_FALSE(a.CkMorphing(b));
    EXPECT_TRUE(a.CkUpDate(b));
    b.HighlightColorGreen = 1;
    EXPECT_TRUE(a.CkMorphing(b));
}

TEST(Filter, set_morphs_only_what_is_switched_on) {
    clsFilterData a;
    clsFilterData b;
    b.fltBlur.BlurX(8);
    EXPECT_FALSE(a.CkMorphing(b));
    a.blBlur = true;
    EXPECT_TRUE(a.CkMorphing(b));
    const auto mixed = a.Morphing(b, 0.75, 0.25);
    EXPECT_TRUE(mixed->blBlur);
    EXPECT_FALSE(mixed->blGlow);
    EXPECT_EQ(mixed->fltBlur.BlurX(), 5.0F);
    EXPECT_EQ(mixed->FilterCount(), 1);
}

TEST(Filter, an_end_without_the_filter_takes_its_shape_at_no_strength) {
    clsFilterData plain;
    clsFilterData full;
    full.blDropShadow = full.blGlow = full.blBlur = full.blBevel = full.blColorMatrix = true;
    full.fltDropShadow.BlurX(7);
    full.fltDropShadow.BlurY(9);
    full.fltDropShadow.Angle(30);
    full.fltGlow.BlurY(6);
    full.fltGlow.Passes = 3;
    full.fltBlur.Passes = 3;
    full.fltBevel.ShadowColorRed = 5;
    full.fltColorMatrix.MatrixTbl(1, 0.5F);
    const auto end = plain.AuthoringCopy(full, true);
    EXPECT_EQ(end->FilterCount(), 5);
    EXPECT_EQ(end->fltDropShadow.BlurX(), 7.0F);
    EXPECT_EQ(end->fltDropShadow.BlurY(), 7.0F);
    EXPECT_EQ(end->fltDropShadow.Angle(), 30.0F);
    EXPECT_EQ(end->fltDropShadow.Distance(), 0.0F);
    EXPECT_EQ(end->fltDropShadow.Strength(), 0.0F);
    EXPECT_EQ(end->fltDropShadow.DropShadowColorA, 0);
    EXPECT_EQ(end->fltGlow.BlurY(), 6.0F);
    EXPECT_EQ(end->fltGlow.Passes, 3);
    EXPECT_EQ(end->fltGlow.GlowColorA, 0);
    EXPECT_EQ(end->fltBlur.BlurX(), 0.0F);
    EXPECT_EQ(end->fltBlur.Passes, 3);
    EXPECT_EQ(end->fltBevel.ShadowColorRed, 5);
    EXPECT_EQ(end->fltBevel.HighlightColorA, 0);
    EXPECT_EQ(end->fltBevel.Distance(), 0.0F);
    EXPECT_EQ(end->fltColorMatrix, clsFilterColorMatrix());
    EXPECT_EQ(plain.AuthoringCopy(full, false)->FilterCount(), 0);
    EXPECT_EQ(*full.AuthoringCopy(plain, true), full);
}

TEST(Filter, convolution_suggests_divisor_and_bias) {
    const struct {
        Single Middle, Divisor, Bias;
    } cases[] = {{3, 3, 0}, {0, 1, 128}, {-2, -2, 255}};
    for (const auto& c : cases) {
        clsFilterConvolution filter;
        filter.MatrixTbl(12, c.Middle);
        Single divisor = 0;
        Single bias = 0;
        filter.GetAutoCalculation(divisor, bias);
        EXPECT_EQ(divisor, c.Divisor);
        EXPECT_EQ(bias, c.Bias);
    }
    EXPECT_THROW(clsFilterConvolution().MatrixTbl(25), RuntimeError);
}

TEST(Filter, edit_colour_knows_its_defaults) {
    clsFilterEditColor color;
    EXPECT_TRUE(color.CkDefault());
    color.AddA = 1;
    EXPECT_FALSE(color.CkDefault());
    color.SetDefault();
    EXPECT_TRUE(color.CkDefault());
}

TEST(EffectElement, keeps_a_stored_parameter_that_is_empty) {
    clsCSV csv;
    csv.Text(u"True,in,False,1,Left,False,20,fade,a,,b,2,");
    clsEffectElement element;
    element.Load(csv);
    clsCSV saved;
    element.Save(saved);
    EXPECT_EQ(saved.Text().substr(0, 42), u"True,in,False,1,Left,False,20,fade,a,,b,2,");
}

}  // namespace
}  // namespace tamber
