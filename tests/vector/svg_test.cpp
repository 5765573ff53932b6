#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>

#include "platform/RecordingUserInterface.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "swf/SwfBits.h"
#include "swf/mdlSWFTag.h"
#include "swf/mdlZlib.h"
#include "tests/swf/Written.h"
#include "vector/SvgColors.h"
#include "vector/SvgNumbers.h"
#include "vector/SvgReader.h"
#include "vector/clsSvgMatrixData.h"

namespace tamber {
namespace {

Bytes ToBytes(std::string_view text) {
    return Bytes(text.begin(), text.end());
}

clsVector Read(std::string_view text, bool expected = true) {
    clsVector vector;
    EXPECT_EQ(ReadSvgBytes(ToBytes(text), u"svg", vector), expected) << text;
    return vector;
}

std::string Number(Long value) {
    return std::to_string(value);
}

/// Records as words: Mx,y Lx,y Qcx,cy,x,y, and f0 l1 and so on for styles.
std::string Words(const clsVectorData2& shape) {
    std::string words;
    for (const clsSWFTShapeRecord& record : shape.inSWFTShapeRecords->colShapeRecords) {
        if (const auto* held = std::get_if<std::shared_ptr<clsSWFTShapeStyleChange>>(&record)) {
            const clsSWFTShapeStyleChange& change = **held;
            if (change.blFillStyle0) words += "f" + Number(change.FillStyle0) + " ";
            if (change.blLineStyle) words += "l" + Number(change.LineStyle) + " ";
            if (change.blMove) words += "M" + Number(change.MoveX) + "," + Number(change.MoveY);
        } else if (const auto* line = std::get_if<clsSWFTShapeStraightEdge>(&record)) {
            words += "L" + Number(line->DrawX) + "," + Number(line->DrawY);
        } else if (const auto* curve = std::get_if<clsSWFTShapeCurveEdge>(&record)) {
            words += "Q" + Number(curve->ControlX) + "," + Number(curve->ControlY) + "," +
                     Number(curve->AnchorX) + "," + Number(curve->AnchorY);
        }
        words += words.ends_with(' ') ? "" : " ";
    }
    while (words.ends_with(' ')) words.pop_back();
    return words;
}

/// Words of every shape of a drawing, " | " between them.
std::string Drawn(std::string_view body) {
    const clsVector vector =
        Read("<svg width=\"10\" height=\"10\">" + std::string(body) + "</svg>");
    std::string all;
    for (const auto& shape : vector.inVector->colShapeData)
        all += (all.empty() ? "" : " | ") + Words(*shape);
    return all;
}

struct DrawCase {
    const char* Body;
    const char* Words;
};

class Drawing : public testing::TestWithParam<DrawCase> {};

TEST_P(Drawing, gives_the_records_worked_out_by_hand) {
    EXPECT_EQ(Drawn(GetParam().Body), GetParam().Words) << GetParam().Body;
}

INSTANTIATE_TEST_SUITE_P(
    Path, Drawing,
    testing::Values(
        // A fill closes a subpath; a stroke stays open there.
        DrawCase{R"~(<path d="M0 0L10 0 10 10"/>)~", "f1 l0 M0,0 L200,0 L200,200 L0,0"},
        DrawCase{R"~(<path stroke="red" d="M0 0L10 0 10 10"/>)~",
                 "f1 l1 M0,0 L200,0 L200,200 l0 L0,0"},
        DrawCase{R"~(<path stroke="red" d="M0 0L10 0 10 10M1 1h1v1z"/>)~",
                 "f1 l1 M0,0 L200,0 L200,200 l0 L0,0 l1 M20,20 L40,20 L40,40 L20,20"},
        DrawCase{R"~(<path fill="none" stroke="red" d="M0 0L10 0 10 10"/>)~",
                 "f0 l1 M0,0 L200,0 L200,200"},
        DrawCase{R"~(<path fill="none" stroke="red" d="M0 0h10v10Z"/>)~",
                 "f0 l1 M0,0 L200,0 L200,200 L0,0"},
        // The pen is at the start already; after Z the next command goes on from there.
        DrawCase{R"~(<path d="M0 0h10v10h-10v-10z l-5,0"/>)~",
                 "f1 l0 M0,0 L200,0 L200,200 L0,200 L0,0 L-100,0 L0,0"},
        DrawCase{R"~(<path d="m1 1 1 0 0 1 m 5 5 1 0 0 1"/>)~",
                 "f1 l0 M20,20 L40,20 L40,40 L20,20 M140,140 L160,140 L160,160 L140,140"},
        DrawCase{R"~(<path fill="none" d="M1,1 H 3 h-1,1 V3 v-1"/>)~",
                 "f0 l0 M20,20 L60,20 L40,20 L60,20 L60,60 L60,40"},
        // An arc draws nothing and the pen stays.
        DrawCase{R"~(<path fill="none" d="M1 1 A 5 5 0 0 1 9 9 L2 2 a1,1 0 01.5.5 l1 0"/>)~",
                 "f0 l0 M20,20 L40,40 L60,40"},
        DrawCase{R"~(<path fill="none" d="M10-5L1e1,2.5-1+2"/>)~",
                 "f0 l0 M200,-100 L200,50 L-20,40"},
        // Unknown letters are passed over, an unfinished pair is dropped.
        DrawCase{R"~(<path fill="none" d="M0 0 L 1 1 ? 2 2 x L 3"/>)~",
                 "f0 l0 M0,0 L20,20 L40,40"}));

INSTANTIATE_TEST_SUITE_P(
    Curves, Drawing,
    testing::Values(
        DrawCase{R"~(<path fill="none" d="M0 0Q1 2 3 4t1 1T9 9"/>)~",
                 // Controls reflected: 2*(3,4)-(1,2) = (5,6), then 2*(4,5)-(5,6) = (3,4).
                 "f0 l0 M0,0 Q20,40,60,80 Q100,120,80,100 Q60,80,180,180"},
        DrawCase{R"~(<path fill="none" d="M1 1T3 3"/>)~", "f0 l0 M20,20 Q20,20,60,60"},
        // x = 3t^2 - 2t^3 on 0..64 px, y = 3t(1-t) * 64 px: at t = k/8 in twips
        // x: 0 55 200 405 640 875 1080 1225 1280; y: 0 420 720 900 960 900 720 420 0.
        DrawCase{R"~(<path fill="none" d="M0 0C0 64 64 64 64 0"/>)~",
                 "f0 l0 M0,0 Q10,480,200,720 Q390,960,640,960 Q890,960,1080,720 Q1270,480,1280,0"},
        // S after a C mirrors its second control: (64,64) about (64,0) is (64,-64), the same curve
        // upside down and moved; without one the control is the pen itself.
        DrawCase{R"~(<path fill="none" d="M0 0C0 64 64 64 64 0S128-64 128 0"/>)~",
                 "f0 l0 M0,0 Q10,480,200,720 Q390,960,640,960 Q890,960,1080,720 "
                 "Q1270,480,1280,0 Q1290,-480,1480,-720 Q1670,-960,1920,-960 "
                 "Q2170,-960,2360,-720 Q2550,-480,2560,0"},
        // On one line, 160 (3t^2 - 2t^3) twips: 0 6.875 25 50.625 80 109.375 135 153.125 160.
        DrawCase{R"~(<path fill="none" d="M0 0s8 0 8 0l0 8"/>)~",
                 "f0 l0 M0,0 Q1,0,25,0 Q49,0,80,0 Q111,0,135,0 Q159,0,160,0 L160,160"}));

INSTANTIATE_TEST_SUITE_P(
    Shapes, Drawing,
    testing::Values(
        DrawCase{R"~(<rect x="1" y="2" width="3" height="4" rx="1"/>)~",
                 "f1 l0 M20,40 L80,40 L80,120 L20,120 L20,40"},
        DrawCase{R"~(<rect width="1in" height="1mm"/>)~", "f1 l0 M0,0 L1800,0 L1800,71 L0,71 L0,0"},
        DrawCase{R"~(<line x1="1" y1="1" x2="2" y2="3" stroke="red"/>)~", "f0 l1 M20,20 L40,60"},
        DrawCase{R"~(<polygon points="0,0 1,0 1,1" stroke="red"/>)~",
                 "f1 l1 M0,0 L20,0 L20,20 L0,0"},
        DrawCase{R"~(<polyline points="0,0 1,0 1,1" stroke="red"/>)~",
                 "f1 l1 M0,0 L20,0 L20,20 l0 L0,0"},
        DrawCase{R"~(<polyline points="0,0 1,0 1,1 0,0 5" stroke="red"/>)~",
                 "f1 l1 M0,0 L20,0 L20,20 L0,0"},
        DrawCase{R"~(<polyline points="0,0 1,0 1,1" fill="none"/>)~", "f0 l0 M0,0 L20,0 L20,20"},
        // Nothing to see: no data, one point, no size; then something.
        DrawCase{R"~(<path/><path d=""/><path d="M1 1z"/><rect width="1"/><polygon points="1"/>)~"
                 R"~(<path fill="none" d="M0 0h1"/>)~",
                 "f0 l0 M0,0 L20,0"}));

INSTANTIATE_TEST_SUITE_P(
    Structure, Drawing,
    testing::Values(
        DrawCase{R"~(<g transform="translate(1 2)"><g/><path fill="none" d="M0 0h1"/></g>)~"
                 R"~(<path fill="none" d="M0 0h1"/>)~",
                 "f0 l0 M20,40 L40,40 | f0 l0 M0,0 L20,0"},
        DrawCase{R"~(<defs><rect width="9" height="9"/></defs><a><switch>)~"
                 R"~(<line x2="1"><title>t</title></line></switch></a><line x2="2"></line>)~",
                 "f0 l0 M0,0 L20,0 | f0 l0 M0,0 L40,0"},
        // Text with signs of markup, in places where it is none.
        DrawCase{R"~(<!-- <line x2="7"/> --><style><![CDATA[a>b{} <line x2="8"/>]]></style>)~"
                 R"~(<?x <line x2="9"/>?><desc a="</desc>">x</desc><line x2="1"/>)~",
                 "f0 l0 M0,0 L20,0"},
        DrawCase{R"~(<use xlink:href="#a" x="2" y="1"/><defs><g id="a" transform="scale(2)">)~"
                 R"~(<line x2="1"/><line x2="3"/></g></defs><use xlink:href="#b"/>)~",
                 // Moved by the reuse, then scaled by the group within it.
                 "f0 l0 M80,40 L120,40 | f0 l0 M80,40 L200,40"},
        // A reuse within its own target is passed over.
        DrawCase{R"~(<g id="a"><line x2="1"/><use xlink:href="#a"/></g>)~", "f0 l0 M0,0 L20,0"},
        // A value in single quotes is none.
        DrawCase{R"~(<line x2='5' y2="1"/><line x2="2"/>)~",
                 "f0 l0 M0,0 L0,20 | f0 l0 M0,0 L40,0"}));

INSTANTIATE_TEST_SUITE_P(
    Transformations, Drawing,
    testing::Values(
        DrawCase{R"~(<line x2="2" transform="translate(1)"/>)~", "f0 l0 M20,0 L60,0"},
        DrawCase{R"~(<line x1="1" y1="1" x2="2" transform="scale(2,3)"/>)~", "f0 l0 M40,60 L80,0"},
        DrawCase{R"~(<line x2="2" y2="1" transform="rotate(90 10 10)"/>)~",
                 // x' = 20 - y, y' = x, in pixels.
                 "f0 l0 M400,0 L380,40"},
        DrawCase{R"~(<line x2="2" y2="1" transform="skewX(45)"/>)~", "f0 l0 M0,0 L60,20"},
        DrawCase{R"~(<line x2="2" y2="1" transform="skewY(45)"/>)~", "f0 l0 M0,0 L40,60"},
        DrawCase{R"~(<line x2="2" y2="1" transform="matrix(1 2 3 4 5 6)"/>)~",
                 // (2,1): 2 + 3 + 5 = 10, 4 + 4 + 6 = 14.
                 "f0 l0 M100,120 L200,280"},
        // The list of one element from its front, then that of what is around it.
        DrawCase{R"~(<line x2="1" transform="translate(1),scale(2)"/>)~", "f0 l0 M40,0 L80,0"},
        DrawCase{R"~(<g transform="scale(2)"><line x2="1" transform="translate(1)"/></g>)~",
                 "f0 l0 M40,0 L80,0"}));

TEST(SvgTransform, lists_what_the_attribute_names) {
    SvgMatrixList list;
    ParseTransformList("rotate(90 10 20) scale(1) translate() skewX() none(3) translate(5,-6",
                       list);
    ASSERT_EQ(list.size(), 1u);
    // 10 - (0*10 - 1*20) = 30 px, 20 - (1*10 + 0*20) = 10 px.
    EXPECT_EQ(list[0].sftX, 600);
    EXPECT_EQ(list[0].sftY, 200);
    EXPECT_FLOAT_EQ(list[0].Skew0, 1);
    EXPECT_FLOAT_EQ(list[0].Skew1, -1);
    EXPECT_NEAR(list[0].ScaleX, 0, 1e-6);
}

TEST(SvgText, has_plain_spaces_for_ideographic_ones_in_either_encoding) {
    const auto path = [](std::string_view space) {
        return "<svg><path fill=\"none\" stroke=\"red\" d=\"M1" + std::string(space) +
               "2L3 4\"/></svg>";
    };
    const std::string texts[] = {path(" "), "<?xml encoding=\"UTF-8\"?>" + path("\xE3\x80\x80"),
                                 path("\x81\x40")};
    for (const std::string& text : texts) {
        const clsVector vector = Read(text);
        const SwfRect edges =
            vector.inVector->colShapeData.at(0)->inSWFTShapeRecords->GetEdgeBounds();
        EXPECT_EQ(edges.xMin, 20) << text;
        EXPECT_EQ(edges.yMin, 40) << text;
        EXPECT_EQ(edges.yMax, 80) << text;
    }
}

TEST(SvgNumbers, are_read_as_far_as_they_go) {
    struct {
        std::string_view Text;
        std::vector<Long> Twips;
    } cases[] = {
        {"10-5", {200, -100}},
        {" 1,2\t3\n4x5", {20, 40, 60, 80}},
        {".5+.25", {10, 5}},
        {"1e2 1E-1 -2.5e+1", {2000, 2, -500}},
        {"1e1-5 2", {200, 40}},
        {"1.5.5 2", {30, 40}},
        {"- . 1", {0, 0, 20}},
        {"0.025 0.075 12345678901234567890e-19", {0, 2, 25}},
        {"1e39 -1e39 1e-50", {SvgFarthest, -SvgFarthest, 0}},
        {"123.4567 1234567.5 12345678.5 1/2", {2469, 24691350, 246913568, 20}},
        {"1234567 .1234567 7. 6", {24691340, 2, 140, 120}},
        {"-12.345 1..5 2", {-247, 20, 40}},
        {"x1", {}},
    };
    // Short numbers are read in another way where more text follows.
    const std::string more(20, ' ');
    for (const auto& item : cases) {
        EXPECT_EQ(ParseSvgNumberList(item.Text), item.Twips) << item.Text;
        EXPECT_EQ(ParseSvgNumberList(std::string(item.Text) + more), item.Twips) << item.Text;
    }
}

TEST(SvgLengths, take_units_at_90_to_the_inch) {
    struct {
        std::string_view Text;
        Long Twips;
        Single Part;
    } cases[] = {
        {"2", 40, 2},        {"2px", 40, 2},          {"2pt", 50, 2.5f},
        {"2pc", 600, 30},    {"2mm", 142, 7.086614f}, {"2cm", 1417, 70.86614f},
        {"2in", 3600, 180},  {"2em", 600, 30},        {"2ex", 420, 21},
        {"50%", 1000, 0.5f}, {"-1.5", -30, -1.5f},    {"auto", 0, 0},
        {"", 0, 0},
    };
    for (const auto& item : cases) {
        EXPECT_EQ(ParseSvgLength(item.Text), item.Twips) << item.Text;
        EXPECT_FLOAT_EQ(ParseSvgLengthPercent(item.Text), item.Part) << item.Text;
    }
}

TEST(SvgColors, are_hexadecimal_decimal_or_names) {
    struct {
        std::string_view Text;
        Long Color;
    } cases[] = {
        {"#1aF", 0x11AAFF},
        {"#12abEF", 0x12ABEF},
        {"#12", 0},
        {"#12345g", 0},
        {"rgb(1, 2 ,255)", 0x0102FF},
        {"rgb(1,2)", 0},
        {"rgb(300,-1,7.9)", 0xFF0007},
        {"rgb 1", 0},
        {"aliceblue", 0xF0F8FF},
        {"yellowgreen", 0x9ACD32},
        {"gray", 0x808080},
        {"navajowhite", 0xFFDEAD},
        {"Red", 0},
        {"reds", 0},
        {"", 0},
    };
    for (const auto& item : cases) EXPECT_EQ(ParseSvgColor(item.Text), item.Color) << item.Text;
    EXPECT_EQ(ToSvgRgba(0x112233, 0x44), 0x44332211);
}

Long SolidOf(const clsVectorData2& shape) {
    return shape.colFillStyles->at(0).StyleAs<clsSWFTFillSolid>()->SolidColor;
}

TEST(SvgStyle, passes_down_and_multiplies_opacities) {
    const clsVector vector = Read(R"~(<!DOCTYPE svg [<!ENTITY st "fill:#010203;fill-opacity:1">]>
        <svg opacity="0.5"><g style="fill: blue ; fill-opacity:50%">
        <rect width="1" height="1" opacity=".5"/></g><rect width="1" height="1" fill="#ff0"/>
        <g style="&st;"><rect width="1" height="1"/></g></svg>)~");
    const auto& shapes = vector.inVector->colShapeData;
    ASSERT_EQ(shapes.size(), 3u);
    // 255*0.5 = 127.5, to even 128, again 64; 128 * 64 / 255 = 32.
    EXPECT_EQ(SolidOf(*shapes[0]), 0x20FF0000);
    EXPECT_EQ(SolidOf(*shapes[1]), static_cast<Long>(0x8000FFFF));
    EXPECT_EQ(SolidOf(*shapes[2]), static_cast<Long>(0x80030201));
}

TEST(SvgStyle, makes_lines_as_wide_as_their_transformations_say) {
    const clsVector vector = Read(R"~(<svg width="9" height="9"><g stroke="#fff" fill="none">
        <line x2="1"/>
        <line x2="1" transform="scale(2,3)" style="stroke-width:1px;stroke-linecap:square"/>
        <line x2="1" stroke-linecap="round" stroke-linejoin="round" stroke-width="3"/>
        <line x2="1" stroke-miterlimit="2.5" stroke-linejoin="bevel" stroke-width="0"/></g></svg>)~");
    const auto& shapes = vector.inVector->colShapeData;
    ASSERT_EQ(shapes.size(), 4u);
    const auto line = [&](std::size_t i) { return shapes[i]->colLineStyles->at(0); };
    EXPECT_EQ(line(0).Width, 20);
    EXPECT_EQ(line(0).Color, -1);
    EXPECT_EQ(line(0).StartCapStyle, 1);
    EXPECT_EQ(line(0).JoinStyle, 2);
    EXPECT_EQ(line(0).MiterLimitFactor, 1024);
    EXPECT_EQ(shapes[0]->Ver, 4);
    EXPECT_EQ(shapes[0]->inSWFTShapeRecords->GetBounds(false), (SwfRect{-10, -10, 30, 10}));
    EXPECT_EQ(line(1).Width, 50);  // 20 * (2 + 3) / 2
    EXPECT_EQ(line(1).EndCapStyle, 2);
    EXPECT_EQ(line(2).Width, 60);
    EXPECT_EQ(shapes[2]->Ver, 3);
    EXPECT_TRUE(shapes[3]->colLineStyles->empty());
}

TEST(SvgStyle, goes_without_attributes_that_have_no_value_between_double_quotes) {
    const clsVector vector = Read(R"~(<svg><g fill="red" stroke="blue" stroke-width="2">
        <rect width="1" height="1" opacity='0.5' fill='none' stroke-width='3' style='fill:none'/>
        <rect width="1" height="1" opacity=0.5 fill stroke-width = stroke="lime"/></g></svg>)~");
    const auto& shapes = vector.inVector->colShapeData;
    ASSERT_EQ(shapes.size(), 2u);
    for (const auto& shape : shapes) {
        EXPECT_EQ(SolidOf(*shape), static_cast<Long>(0xFF0000FF));
        ASSERT_EQ(shape->colLineStyles->size(), 1u);
        EXPECT_EQ(shape->colLineStyles->at(0).Width, 40);
    }
    EXPECT_EQ(shapes[0]->colLineStyles->at(0).Color, static_cast<Long>(0xFFFF0000));
    EXPECT_EQ(shapes[1]->colLineStyles->at(0).Color, static_cast<Long>(0xFF00FF00));
}

TEST(SvgSize, comes_from_the_sides_the_box_or_the_shapes) {
    struct {
        const char* Root;
        Long Width;
        Long Height;
        const char* Corner;  ///< where the point 10, 10 goes, twips
    } cases[] = {
        {R"~(width="30" height="40")~", 30, 40, "L200,200"},
        {R"~(width="30.9" height="2in")~", 30, 180, "L200,200"},
        {"", 10, 10, "L200,200"},
        {R"~(width="30")~", 30, 10, "L200,200"},
        {R"~(viewBox="0 0 20 40")~", 20, 40, "L200,200"},
        {R"~(width="100%" height="50%" viewBox="0,0,20,40")~", 20, 20, "L200,100"},
        {R"~(width="40" viewBox="0 0 20 40")~", 40, 80, "L400,400"},
        {R"~(height="20" viewBox="0 0 20 40")~", 10, 20, "L100,100"},
        // Scale 2, room of 40 px to the sides, the box begins at 5, 5: 200*2 +
        // 400 - 200, 400 - 200.
        {R"~(width="80" height="40" viewBox="5 5 20 20")~", 80, 40, "L600,200"},
        {R"~(width="100%" viewBox="0 0 0 40")~", 10, 10, "L200,200"},
    };
    for (const auto& item : cases) {
        const clsVector vector = Read(std::string("<svg ") + item.Root +
                                      R"~(><path fill="none" d="M0 0L10 10"/></svg>)~");
        EXPECT_EQ(vector.Width, item.Width) << item.Root;
        EXPECT_EQ(vector.height, item.Height) << item.Root;
        EXPECT_TRUE(Words(*vector.inVector->colShapeData.at(0)).ends_with(item.Corner))
            << item.Root << ": " << Words(*vector.inVector->colShapeData[0]);
    }
}

/// The fill of a shape of 200 x 100 twips as a movie holds its matrix.
SwfMatrix SavedMatrix(const clsSWFTFillStyle& fill) {
    const Bytes saved = test::Written([&] { fill.StyleObject()->Matrix()->Save(); });
    return SwfBits(saved).GetMatrix();
}

struct GradientCase {
    const char* Gradient;
    const char* Transform;
    Long FillMode;
    SwfMatrix Matrix;  ///< 65536 is 1.0
};

class SvgGradient : public testing::TestWithParam<GradientCase> {};

TEST_P(SvgGradient, fits_its_square_to_the_shape) {
    const GradientCase& item = GetParam();
    const std::string name =
        std::string_view(item.Gradient).starts_with("r") ? "radialGradient" : "linearGradient";
    const clsVector vector = Read("<svg width=\"10\" height=\"10\"><" + name + " id=\"a\" " +
                                  (item.Gradient + 1) + "><stop/><stop offset=\"1\"/></" + name +
                                  "><g transform=\"translate(1)\"><rect width=\"10\" height=\"5\" "
                                  "fill=\"url(#a)\" "
                                  "transform=\"" +
                                  item.Transform + "\"/></g></svg>");
    const clsSWFTFillStyle& fill = vector.inVector->colShapeData.at(0)->colFillStyles->at(0);
    EXPECT_EQ(fill.FillMode(), item.FillMode);
    const SwfMatrix saved = SavedMatrix(fill);
    EXPECT_NEAR(saved.ScaleX, item.Matrix.ScaleX, 1);
    EXPECT_NEAR(saved.ScaleY, item.Matrix.ScaleY, 1);
    EXPECT_NEAR(saved.RotateSkew0, item.Matrix.RotateSkew0, 1);
    EXPECT_NEAR(saved.RotateSkew1, item.Matrix.RotateSkew1, 1);
    EXPECT_EQ(saved.TranslateX, item.Matrix.TranslateX);
    EXPECT_EQ(saved.TranslateY, item.Matrix.TranslateY);
}

// A linear square's side is 32768 twips and a radial one's half 16384, so that
// an axis of n twips gives 2n, or 4n, in 16.16 fixed point. The group adds 20
// twips to every x.
INSTANTIATE_TEST_SUITE_P(
    Axes, SvgGradient,
    testing::Values(GradientCase{"l", "", 1, {400, 200, 0, 0, 120, 0}},
                    GradientCase{"lx1=\"100%\" x2=\"0\"", "", 1, {-400, -200, 0, 0, 120, 0}},
                    // Along (200,100), across (-200,100).
                    GradientCase{"ly2=\"1\"", "", 1, {400, 200, 200, -400, 120, 50}},
                    GradientCase{
                        "ly2=\"-1\" x2=\"0\"", "scale(2 4)", 1, {0, 0, -800, 800, 20, -200}},
                    GradientCase{"lgradientUnits=\"userSpaceOnUse\" x1=\"10\" y1=\"10\" "
                                 "x2=\"10\" y2=\"20\" "
                                 "gradientTransform=\"translate(5)\"",
                                 "scale(2)",
                                 1,
                                 {0, 0, 800, -800, 620, 600}},
                    GradientCase{"lgradientUnits=\"userSpaceOnUse\" x1=\"0\" x2=\"50%\"",
                                 "",
                                 1,
                                 {200, 200, 0, 0, 70, 0}},
                    // No length: as small as a scale may be, 20 / 32768.
                    GradientCase{"lx2=\"0\"", "", 1, {40, 40, 0, 0, 20, 0}},
                    GradientCase{"r", "", 2, {400, 200, 0, 0, 120, 50}},
                    GradientCase{"rgradientUnits=\"userSpaceOnUse\" cx=\"20\" cy=\"10\" r=\"10\"",
                                 "rotate(90)",
                                 2,
                                 {0, 0, 800, -800, -180, 400}},
                    // The focus is 100 twips below the centre.
                    GradientCase{"rgradientUnits=\"userSpaceOnUse\" cx=\"10\" cy=\"10\" "
                                 "r=\"10\" fy=\"15\"",
                                 "",
                                 3,
                                 {0, 0, 800, -800, 220, 200}}));

TEST(SvgGradients, take_colours_from_links_and_fall_back) {
    const clsVector vector = Read(
        R"~(<svg width="9" height="9"><defs>
        <radialGradient id="f" fx=".25" spreadMethod="reflect">
        <stop offset=".5" stop-color="#102030"/>
        <stop offset="100%" style="stop-color:red;stop-opacity:0.2"></stop></radialGradient>
        <linearGradient id="link" xlink:href="#f" spreadMethod="repeat"/>
        <linearGradient id="one"><stop stop-color="lime"/></linearGradient>
        <linearGradient id="x" xlink:href="#y"/><linearGradient id="y" xlink:href="#x"/></defs>
        <g fill="#000001"><rect width="1" height="1" fill="url(#f)"/>
        <rect width="1" height="1" style="opacity:.5;fill:url(#link)"/>
        <rect width="1" height="1" fill="url(#one)"/><rect width="1" height="1" fill="url(#x)"/>
        <rect width="1" height="1" fill="url(#none)"/></g></svg>)~");
    const auto& shapes = vector.inVector->colShapeData;
    ASSERT_EQ(shapes.size(), 5u);
    auto* focal = shapes[0]->colFillStyles->at(0).StyleAs<clsSWFTFillFocalRadial>();
    ASSERT_NE(focal, nullptr);
    EXPECT_EQ(focal->FocalPoint, 128);  // 0.25 of a radius of 0.5
    EXPECT_EQ(focal->spreadMode, 1);
    EXPECT_EQ(focal->ColorPosTbl, (std::vector<Byte>{128, 255}));
    EXPECT_EQ(focal->ColorTbl, (std::vector<Long>{static_cast<Long>(0xFF302010), 0x330000FF}));
    EXPECT_EQ(shapes[0]->Ver, 4);
    auto* linear = shapes[1]->colFillStyles->at(0).StyleAs<clsSWFTFillLinearRadial>();
    ASSERT_NE(linear, nullptr);
    EXPECT_EQ(linear->spreadMode, 2);
    // Opacity 128: 255 * 128 / 255, and 51 * 128 / 255 = 25.
    EXPECT_EQ(linear->ColorTbl, (std::vector<Long>{static_cast<Long>(0x80302010), 0x190000FF}));
    EXPECT_EQ(shapes[1]->Ver, 3);
    EXPECT_EQ(SolidOf(*shapes[2]), static_cast<Long>(0xFF00FF00));
    EXPECT_EQ(SolidOf(*shapes[3]), static_cast<Long>(0xFF010000));
    EXPECT_EQ(SolidOf(*shapes[4]), static_cast<Long>(0xFF010000));
}

TEST(SvgText, is_in_the_declared_encoding_or_code_page_932) {
    // An ideographic space parts the name from an attribute in the right
    // encoding only.
    const std::string utf8 = "<svg><line\xE3\x80\x80x2=\"2\"/></svg>";
    const std::string ansi = "<svg><line\x81\x40x2=\"2\"/></svg>";
    Read("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + utf8);
    Read("<?xml encoding=\"utf-8\" ?>" + utf8);
    Read(ansi);
    Read(utf8, false);
    Read("<?xml encoding='utf-8'?>" + utf8, false);
    Read("<?xml encoding=\"utf-8\"?>" + ansi, false);
}

constexpr std::string_view OneLine = R"~(<svg><line x2="2"/></svg>)~";

Bytes Gzip(const Bytes& bytes) {
    z_stream zip{};
    deflateInit2(&zip, 9, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    Bytes out(deflateBound(&zip, bytes.size()) + 64);
    zip.next_in = const_cast<Bytef*>(bytes.data());
    zip.avail_in = static_cast<uInt>(bytes.size());
    zip.next_out = out.data();
    zip.avail_out = static_cast<uInt>(out.size());
    deflate(&zip, Z_FINISH);
    out.resize(zip.total_out);
    deflateEnd(&zip);
    return out;
}

Bytes Joined(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(Svgz, is_gzip_zlib_or_plain_text) {
    const Bytes text = ToBytes(OneLine);
    const Bytes gzip = Gzip(text);
    const Bytes zlib = mdlZlib::ZlibCompress(text);
    const struct {
        Bytes File;
        bool Expected;
    } cases[] = {
        {gzip, true},
        {zlib, true},
        {text, true},
        {Joined(Gzip(ToBytes("<svg>")), Gzip(ToBytes("<line x2=\"1\"/>"))), true},
        {Joined(gzip, ToBytes("rest")), true},
        {Bytes(gzip.begin(), gzip.end() - 9), false},
        {Bytes(zlib.begin(), zlib.end() - 5), false},
        {Joined(gzip, Bytes(gzip.begin(), gzip.end() - 9)), false},
        {Gzip(Bytes(std::size_t{65} << 20, ' ')), false},
        {{}, false},
        {{0x1F}, false},
        {{0x1F, 0x8B}, false},
    };
    for (const auto& item : cases) {
        clsVector vector;
        EXPECT_EQ(ReadSvgBytes(item.File, u"svgz", vector), item.Expected)
            << &item - std::begin(cases);
    }
}

TEST(SvgLeftOut, names_each_feature_once_in_the_order_met) {
    const clsVector vector = Read(R"~(<svg width="9" height="9">
        <defs><pattern id="p"/><clipPath id="c"><circle r="5"/></clipPath></defs>
        <path d="M0 0 A1 1 0 0 1 2 2L1 2" class=""/><path d="M0 0a1 1 0 0 1 2 2l1 1" class="x"/>
        <rect width="9" height="9" rx="2" fill="url(#p)"/><text x='1'>a</text>
        <g clip-path="url(#c)" filter="none" style="mask:none;stroke-dasharray:4;display:inline">
        <line x2="1" stroke="url(#q)"/></g><circle r="1"/><use href="#c"/>
        <line x2="1" display="none"/><path d="M0 0L.5.5 1"/></svg>)~");
    const std::vector<String> expected{
        u"一重引用符の属性",   u"円弧", u"スタイルシート",  u"角丸",
        u"パターン",           u"文字", u"クリッピング",    u"破線",
        u"線のグラデーション", u"円",   u"xlinkのないhref", u"非表示の指定",
        u"小数点の続く数値"};
    // The quotes are met by the first pass already.
    EXPECT_EQ(vector.LeftOut, expected);
    EXPECT_TRUE(Read(OneLine).LeftOut.empty());
}

TEST(SvgLeftOut, names_the_order_of_transformations_where_another_would_show) {
    const struct {
        const char* Body;
        bool IsNamed;
    } cases[] = {
        {R"~(<line x2="1" transform="translate(1) scale(2)"/>)~", true},
        {R"~(<g transform="scale(2)"><line x2="1" transform="translate(1)"/></g>)~", false},
        {R"~(<g transform="scale(2)"><g transform="translate(1)"><line x2="1"/></g></g>)~", true},
        {R"~(<g transform="scale(2)"><use xlink:href="#a" x="1"/></g>)~", true},
        {R"~(<g transform="scale(2)"><line id="a" x2="1"/></g>)~", false},
        {R"~(<line x2="1" transform="translate(1) translate(2,3)"/>)~", false},
        {R"~(<line x2="1" transform="scale(2) scale(3,4)"/>)~", false},
        {R"~(<line x2="1" transform="scale(2) rotate(30)"/>)~", false},
        {R"~(<line x2="1" transform="scale(2,3) rotate(30)"/>)~", true},
        {R"~(<line x2="1" transform="rotate(30) scale(2,3) rotate(-30) rotate(30)"/>)~", true},
        {R"~(<line x2="1" transform="rotate(10 5 7.01) rotate(20 5 7.01)"/>)~", false},
        {R"~(<line x2="1" transform="rotate(10 5 7) rotate(20 5 50)"/>)~", true},
        {R"~(<line x2="1" transform="translate(0.001) rotate(20)"/>)~", false},
        {R"~(<line transform="translate(1) scale(2)"/>)~", false},
    };
    for (const auto& item : cases) {
        const clsVector vector = Read(
            "<svg width=\"9\" height=\"9\"><defs><line id=\"a\" x2=\"1\"/>"
            "</defs><line x2=\"1\"/>" +
            std::string(item.Body) + "</svg>");
        const std::vector<String> named{u"変換の順序"};
        EXPECT_EQ(vector.LeftOut, item.IsNamed ? named : std::vector<String>()) << item.Body;
    }
    const struct {
        const char* Gradient;
        bool IsNamed;
    } gradients[] = {
        {R"~(gradientTransform="rotate(90)")~", false},
        {R"~(gradientTransform="translate(0.5)")~", true},
        {R"~(gradientTransform="scale(2) translate(1)" gradientUnits="userSpaceOnUse")~", true},
        {R"~(gradientTransform="translate(1)" gradientUnits="userSpaceOnUse")~", false},
    };
    for (const auto& item : gradients) {
        const clsVector vector =
            Read("<svg><linearGradient id=\"a\" " + std::string(item.Gradient) +
                 "><stop/><stop offset=\"1\"/></linearGradient>"
                 "<rect width=\"9\" height=\"9\" fill=\"url(#a)\"/></svg>");
        EXPECT_EQ(vector.LeftOut.size(), item.IsNamed ? 1u : 0u) << item.Gradient;
    }
    // The box is fitted before the group's shift, which it should have scaled.
    EXPECT_EQ(Read(R"~(<svg width="9" viewBox="0 0 3 3"><g transform="translate(1)">
        <line x2="1"/></g></svg>)~")
                  .LeftOut.size(),
              1u);
    EXPECT_TRUE(Read(R"~(<svg width="9" viewBox="0 0 9 9"><g transform="translate(1)">
        <line x2="1"/></g></svg>)~")
                    .LeftOut.empty());
}

std::string Repeated(std::string_view part, std::size_t count) {
    std::string text;
    text.reserve(part.size() * count);
    for (std::size_t i = 0; i < count; ++i) text += part;
    return text;
}

/// Ten groups, each of which shows the next one ten times: 10^10 lines.
std::string ReuseTree() {
    std::string text = R"~(<svg><g id="a0"><line x2="1"/></g>)~";
    for (int i = 1; i <= 10; ++i)
        text += "<g id=\"a" + std::to_string(i) + "\">" +
                Repeated("<use xlink:href=\"#a" + std::to_string(i - 1) + "\"/>", 10) + "</g>";
    return text + "</svg>";
}

TEST(SvgHostile, texts_end_soon_and_are_refused_or_read) {
    const struct {
        std::string Text;
        bool Expected;
    } cases[] = {
        {"", false},
        {"<svg", false},
        {"<svg width=\"", false},
        {std::string("<svg>\0<line x2=\"1\"/>\0", 22), true},
        {"<svg><line x2=\"1\"", true},
        {"<svg><line x2=\"1\" y2=\"5", true},
        {"<svg><g><g><line x2=\"1\"/><g", true},
        {"<svg></g></symbol></a></x><line x2=\"1\"/>", true},
        {"<svg></svg><line x2=\"1\"/>", false},
        {"<svg><!-- <line x2=\"1\"/>", false},
        {"<svg><line x2=\"1e999\" y2=\"-9999999999999\" "
         "transform=\"scale(1e38)scale(1e38)\" "
         "stroke=\"red\" stroke-width=\"1e30\"/></svg>",
         true},
        {"<svg viewBox=\"-1e38 1e38 1e38 1e-38\" width=\"1e30\"><line "
         "x2=\"1\"/></svg>",
         true},
        {"<!DOCTYPE svg [" + Repeated("<!ENTITY a ", 100000) + "]><svg>", false},
        {"<!DOCTYPE svg [<!ENTITY a \"&a;\">]><svg><line x2=\"1\" "
         "style=\"&a;\"/></svg>",
         true},
        {"<svg>" + Repeated("<g>", 100000) + "<line x2=\"1\"/>" + Repeated("</g>", 100000), true},
        {"<svg>" + Repeated("<defs><x>", 200000), false},
        {"<svg>" + Repeated("<g id=\"a\">", 300000), false},
        {"<svg>" + Repeated("<g transform=\"scale(2)\">", 300), false},
        {"<svg><line x2=\"1\" transform=\"" + Repeated("scale(2)", 300) + "\"/></svg>", false},
        {"<svg>" + Repeated("<line", 300000), false},
        {"<svg>" + Repeated("<a='\"", 300000), false},
        {ReuseTree(), false},
        {"<!DOCTYPE svg [<!ENTITY a \"" + Repeated(";", 100000) + "\">]><svg>" +
             Repeated("<g style=\"&a;\"/>", 1000) + "</svg>",
         false},
        {"<svg><path d=\"M0 0" + Repeated("h1 1 1 1 ", 2500000) + "\"/></svg>", false},
    };
    for (const auto& item : cases) {
        const auto start = std::chrono::steady_clock::now();
        clsVector vector;
        EXPECT_EQ(ReadSvgBytes(ToBytes(item.Text), u"svg", vector), item.Expected)
            << item.Text.substr(0, 60);
        // Generous for a build with sanitizers; what these texts aim at takes
        // minutes.
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20))
            << item.Text.substr(0, 60);
    }
}

class ProgressRecorder : public RecordingUserInterface {
public:
    std::vector<std::pair<Long, Long>> Steps;
    String Text;

    void Progress(StringView text, Long done, Long total) override {
        Text = text;
        Steps.emplace_back(done, total);
    }
};

TEST(SvgProgress, is_seldom_and_always_ends) {
    const std::string name = (std::filesystem::path(testing::TempDir()) / "絵.SVG").string();
    for (const std::string& body :
         {Repeated("<line x2=\"1\"/>", 5000), std::string("<path d=\"M0 0\"/>")}) {
        std::ofstream(name, std::ios::binary) << "<svg>" << body << "</svg>";
        ProgressRecorder recorder;
        const UserInterfaceScope scope(recorder);
        clsVector vector;
        EXPECT_EQ(vector.LoadFromFile(FromNarrow(name)), body.size() > 1000);
        EXPECT_EQ(recorder.Text, u"ベクタファイル読込中...[絵.SVG]");
        const auto total = static_cast<Long>(body.size() + 11);
        EXPECT_EQ(recorder.Steps.front(), std::pair(0, total));
        EXPECT_EQ(recorder.Steps.back(), std::pair(total, total));
        EXPECT_TRUE(std::is_sorted(recorder.Steps.begin(), recorder.Steps.end()));
        EXPECT_LE(recorder.Steps.size(), 102u);
        EXPECT_GE(recorder.Steps.size(), body.size() > 1000 ? 90u : 2u);
    }
    std::filesystem::remove(name);
    clsVector vector;
    EXPECT_FALSE(vector.LoadFromFile(FromNarrow(name)));
}

}  // namespace
}  // namespace tamber
