#include <gtest/gtest.h>

#include "swf/SwfBits.h"
#include "swf/tags/clsSWFTagDefineShape.h"
#include "tests/swf/Written.h"

namespace tamber {
namespace {

Bytes Saved(clsSWFTag& tag) {
    return test::Written([&] { tag.Save(); });
}

TEST(DefineShape, that_nothing_places_writes_no_bytes) {
    clsSWFTagDefineShape shape;
    shape.ShapeRecords->MovePenTo(0, 0);
    EXPECT_TRUE(Saved(shape).empty());
}

TEST(DefineShape, writes_a_solid_square_as_worked_out_by_hand) {
    clsSWFTagDefineShape shape;
    shape.ID = 7;
    shape.PlaceCnt = 1;
    clsSWFTFillStyle fill(clsSWFTFillStyle::Solid);
    fill.StyleAs<clsSWFTFillSolid>()->SolidColor = static_cast<Long>(0xFF332211);
    clsSWFTShapeRecords& records = *shape.ShapeRecords;
    records.SetFill0(shape.AddNewFillStyle(fill));
    records.MovePenTo(20, 20);
    records.DrawLineHTo(0);
    records.DrawLineVTo(0);
    // Body: ID 7; RECT of 6 bits 0 20 0 20; one fill 00 11 22 33 FF; no lines; index bits 1 and 1;
    // style change: 0 0 0 0 1 1, width 6, 20, 20, fill 1; line left 20: 1 1 0100 0 0 -20 (6 bits);
    // line up 20: 1 1 0100 0 1 -20; end 000000.
    const Bytes bytes = Saved(shape);
    ASSERT_GE(bytes.size(), 20u);
    EXPECT_EQ(bytes[0], 0x3F);
    EXPECT_EQ(bytes[1], 0x08);  // tag 32, long form
    EXPECT_EQ(bytes[2], bytes.size() - 6);
    EXPECT_EQ(Bytes(bytes.begin() + 6, bytes.begin() + 8), (Bytes{0x07, 0x00}));
    // 00110 000000 010100 000000 010100
    EXPECT_EQ(Bytes(bytes.begin() + 8, bytes.begin() + 12), (Bytes{0x30, 0x0A, 0x00, 0xA0}));
    EXPECT_EQ(Bytes(bytes.begin() + 12, bytes.begin() + 19),
              (Bytes{0x01, 0x00, 0x11, 0x22, 0x33, 0xFF, 0x00}));
    // 0001 0001 | 000011 00110 010100 010100 1 | 11 0100 0 0 101100 | 11 0100 0 1 101100 | 000000
    EXPECT_EQ(Bytes(bytes.begin() + 19, bytes.end()),
              (Bytes{0x11, 0x0C, 0xCA, 0x29, 0xD0, 0xB3, 0x46, 0xC0, 0x00}));
}

TEST(ShapeRecords, split_long_level_lines_at_17_bits) {
    clsSWFTShapeRecords records;
    records.MovePenTo(0, 0);
    records.DrawLineHTo(140000);
    ASSERT_EQ(records.colShapeRecords.size(), 4u);
    EXPECT_EQ(std::get<clsSWFTShapeStraightEdge>(records.colShapeRecords[1]).DrawX, 65535);
    EXPECT_EQ(std::get<clsSWFTShapeStraightEdge>(records.colShapeRecords[2]).DrawX, 131070);
    EXPECT_EQ(std::get<clsSWFTShapeStraightEdge>(records.colShapeRecords[3]).DrawX, 140000);
    records.DrawLineHTo(140000 - 65537);
    ASSERT_EQ(records.colShapeRecords.size(), 6u);
    EXPECT_EQ(std::get<clsSWFTShapeStraightEdge>(records.colShapeRecords[4]).DrawX, 140000 - 65536);
}

TEST(ShapeRecords, bounds_grow_by_the_line_width_but_edge_bounds_do_not) {
    clsSWFTShapeRecords records;
    records.LineWidth = 10;
    records.MovePenTo(100, 100);
    records.DrawCurveTo(150, 50, 200, 100);
    EXPECT_EQ(records.GetBounds(false), (SwfRect{90, 40, 210, 110}));
    EXPECT_EQ(records.GetEdgeBounds(), (SwfRect{100, 50, 200, 100}));
    EXPECT_EQ(records.GetBounds(true), (SwfRect{100, 50, 200, 100}));
}

TEST(StyleIndexBits, is_one_for_an_empty_list) {
    EXPECT_EQ(StyleIndexBits(0), 1);
    EXPECT_EQ(StyleIndexBits(1), 1);
    EXPECT_EQ(StyleIndexBits(3), 2);
    EXPECT_EQ(StyleIndexBits(4), 3);
}

TEST(Gradient, is_cut_at_8_colours_below_version_8_and_at_15_from_it) {
    for (const Long version : {7, 8}) {
        mdlSWFTag::swfVersion(version);
        clsSWFTFillLinearRadial gradient;
        gradient.ColorTbl.assign(20, 0);
        gradient.ColorPosTbl.assign(20, 0);
        // Matrix of two bytes, count byte, five bytes a colour.
        EXPECT_EQ(test::Written([&] { gradient.Save(nullptr); }).size(),
                  3u + 5u * (version == 7 ? 8 : 15));
    }
    mdlSWFTag::swfVersion(6);
}

TEST(BitmapFill, has_one_twip_more_below_version_8) {
    clsSWFTFillStyleBitmap fill;
    fill.BitmapID = 3;
    for (const Long version : {6, 8}) {
        mdlSWFTag::swfVersion(version);
        const Bytes saved = test::Written([&] { fill.Save(nullptr); });
        SwfBits bits(saved);
        EXPECT_EQ(bits.GetUI(2), 3u);
        const Long shift = version == 8 ? 0 : -1;
        EXPECT_EQ(bits.GetMatrix(), (SwfMatrix{20 * 65536, 20 * 65536, 0, 0, shift, shift}));
    }
    mdlSWFTag::swfVersion(6);
}

}  // namespace
}  // namespace tamber
