#include "swf/authoring/FitText.h"

#include <gtest/gtest.h>

#include "document/symbols/clsLayer.h"
#include "document/elements/clsLayerObjElement.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "swf/authoring/OutlinePath.h"
#include "swf/authoring/TextDefinition.h"

namespace tamber {
namespace {

/// A text of 20 pixels whose characters are 10 pixels wide, along a way of 100 pixels that leads
/// right for 60 pixels and then down.
class FitTextTest : public testing::Test {
protected:
    FitTextTest() {
        auto artwork = std::make_shared<clsVectorData>();
        artwork->colShapeData.push_back(std::make_shared<clsVectorData2>());
        auto& records = *artwork->colShapeData[0]->inSWFTShapeRecords;
        records.MovePenTo(0, 200);
        records.DrawLineTo(1200, 200);
        records.DrawLineTo(1200, 1000);
        outline->Property<clsPropertyVector>()->SetArtwork(artwork, 60, 50);
        text.FontName = u"F";
        text.FontSize = 20;
        text.InitialText = u"a\r\nba";
        text.FitShapeSymbol(outline);
        for (const char16_t c : StringView(u"ab")) {
            GlyphOutlineRecord glyph;
            glyph.CellIncX = 512;
            fonts.CinFontObject(u"F_")->AddGlyph(c, glyph);
        }
    }

    struct Placed {
        Single X, Y, Angle;
        bool operator==(const Placed&) const = default;
    };
    std::vector<Placed> Places() const {
        const auto sprite = FitTextSprite(symbol, fonts);
        std::vector<Placed> places;
        for (const auto& layer : *sprite->Property<clsPropertySprite>()->colLayer) {
            const auto& element = *layer->Object(1)->Placement();
            EXPECT_EQ(element.OffsetX(), 5);
            EXPECT_EQ(element.OffsetY(), 10);
            places.push_back({element.X(), element.Y(), element.Angle()});
        }
        return places;
    }

    std::shared_ptr<clsSymbolData> outline = std::make_shared<clsSymbolData>(KindVector);
    clsSymbolData symbol{KindText};
    clsPropertyText& text = *symbol.Property<clsPropertyText>();
    clsFontAdmin fonts;
};

TEST_F(FitTextTest, characters_stand_in_the_middle_of_their_share_of_the_way) {
    using V = std::vector<Placed>;
    EXPECT_TRUE(FollowsOutline(symbol));
    EXPECT_EQ(Places(), (V{{5, 10, 0}, {15, 10, 0}, {25, 10, 0}}));
    text.Alignment = 1;
    EXPECT_EQ(Places(), (V{{60, 25, 90}, {60, 35, 90}, {60, 45, 90}}));
    text.Alignment = 2;
    EXPECT_EQ(Places(), (V{{40, 10, 0}, {50, 10, 0}, {60, 10, 0}}));
    text.FontCharSpace = 10;
    text.Alignment = 0;
    EXPECT_EQ(Places(), (V{{5, 10, 0}, {25, 10, 0}, {45, 10, 0}}));
    // (100 - 30) / 2 between them.
    text.blFitEven = true;
    EXPECT_EQ(Places(), (V{{5, 10, 0}, {50, 10, 0}, {60, 45, 90}}));
    text.blFitAngle = false;
    EXPECT_EQ(Places()[2], (Placed{60, 45, 0}));
}

TEST_F(FitTextTest, the_way_can_be_gone_back_and_the_text_stand_above_or_below_it) {
    text.blFitOpposite = true;
    EXPECT_EQ(Places()[0], (Placed{60, 45, -90}));
    text.blFitOpposite = false;
    text.eBasePos = 0;
    EXPECT_EQ(Places()[0], (Placed{5, 20, 0}));
    text.eBasePos = 2;
    EXPECT_EQ(Places()[0], (Placed{5, 0, 0}));
    text.Alignment = 1;
    // Downwards, above is to the right.
    EXPECT_EQ(Places()[0], (Placed{70, 25, 90}));
    text.FitShapeScaleX = 2;
    text.Alignment = 0;
    EXPECT_EQ(Places()[2], (Placed{25, 0, 0}));
}

TEST_F(FitTextTest, equal_characters_share_a_symbol) {
    const auto sprite = FitTextSprite(symbol, fonts);
    const auto& layers = *sprite->Property<clsPropertySprite>()->colLayer;
    EXPECT_EQ(layers(1)->SymbolData(), layers(3)->SymbolData());
    EXPECT_EQ(layers(2)->SymbolData()->Property<clsPropertyText>()->InitialText, u"b");
    text.blDynamic = true;
    EXPECT_FALSE(FollowsOutline(symbol));
}

TEST(OutlinePath, curves_are_walked_at_even_speed) {
    clsSWFTShapeRecords records;
    records.MovePenTo(0, 0);
    records.DrawCurveTo(2000, 0, 2000, 2000);
    const OutlinePath path(records, 1, 1);
    // A parabola with legs of 100: 100 (sqrt 2 + asinh 1) / sqrt 2 long.
    EXPECT_NEAR(path.Length(), 162.3225, 0.001);
    const auto middle = path.At(path.Length() / 2);
    EXPECT_NEAR(middle.Point.X, 75, 0.001);
    EXPECT_NEAR(middle.Point.Y, 25, 0.001);
    EXPECT_NEAR(middle.Angle, 45, 0.001);
    EXPECT_EQ(OutlinePath(clsSWFTShapeRecords(), 1, 1).At(3).Angle, 0);
}

}  // namespace
}  // namespace tamber
