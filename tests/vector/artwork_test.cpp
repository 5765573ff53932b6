#include <gtest/gtest.h>

#include <filesystem>

#include "platform/codepage.h"
#include "swf/authoring/clsSWFAdmin.h"
#include "vector/FreeTransformation.h"
#include "vector/MorphCheck.h"
#include "vector/ShapeFlattening.h"
#include "vector/clsVector.h"

namespace tamber {
namespace {

using StyleChange = std::shared_ptr<clsSWFTShapeStyleChange>;

const clsSWFTShapeStyleChange& ChangeAt(const clsVectorData2& shape, std::size_t index) {
    return *std::get<StyleChange>(shape.inSWFTShapeRecords->colShapeRecords.at(index));
}

/// A filled triangle with a line of `width` round it: a style change and three edges.
std::shared_ptr<clsVectorData2> Triangle(Long x, Long width) {
    auto shape = std::make_shared<clsVectorData2>();
    shape->colFillStyles->emplace_back(clsSWFTFillStyle::Solid);
    clsSWFTLineStyle line;
    line.Width = width;
    shape->colLineStyles->push_back(line);
    auto& records = *shape->inSWFTShapeRecords;
    records.SetFill0(1);
    records.SetLine(1);
    records.LineWidth = width / 2;
    records.MovePenTo(x, 0);
    records.DrawLineTo(x + 100, 0);
    records.DrawCurveTo(x + 100, 50, x, 100);
    records.DrawLineTo(x, 0);
    return shape;
}

std::shared_ptr<clsVectorData> TwoTriangles() {
    auto artwork = std::make_shared<clsVectorData>();
    artwork->colShapeData = {Triangle(0, 40), Triangle(200, 10)};
    return artwork;
}

TEST(Flattening, a_piece_brings_its_styles_along) {
    const auto artwork = TwoTriangles();
    artwork->colShapeData[1]->Ver = 4;
    const auto whole = FlattenKeepingStyles(*artwork, nullptr);
    EXPECT_EQ(whole->Ver, 4);
    EXPECT_TRUE(whole->colFillStyles->empty());
    ASSERT_EQ(whole->inSWFTShapeRecords->colShapeRecords.size(), 8u);
    for (const std::size_t first : {0u, 4u}) {
        const auto& change = ChangeAt(*whole, first);
        EXPECT_EQ(change.colFillStyles.size(), 1u);
        EXPECT_EQ(change.colLineStyles.size(), 1u);
        EXPECT_TRUE(change.blFillStyle1);
        EXPECT_EQ(change.FillStyle1, 0);
        EXPECT_EQ(change.FillStyle0, 1);
    }
    // Half of each piece's own width round it.
    EXPECT_EQ(whole->inSWFTShapeRecords->GetBounds(false), (SwfRect{-20, -20, 305, 120}));
    EXPECT_FALSE(ChangeAt(*artwork->colShapeData[0], 0).hasNewStyles());
}

TEST(Flattening, one_table_shifts_the_indices_of_later_pieces) {
    const auto whole = FlattenIntoOneTable(*TwoTriangles(), nullptr);
    EXPECT_EQ(whole->colFillStyles->size(), 2u);
    EXPECT_EQ(whole->colLineStyles->size(), 2u);
    EXPECT_EQ(ChangeAt(*whole, 0).FillStyle0, 1);
    EXPECT_EQ(ChangeAt(*whole, 4).FillStyle0, 2);
    EXPECT_EQ(ChangeAt(*whole, 4).FillStyle1, 0);
    EXPECT_EQ(ChangeAt(*whole, 4).LineStyle, 2);
    EXPECT_FALSE(ChangeAt(*whole, 4).hasNewStyles());
    EXPECT_EQ(whole->inSWFTShapeRecords->GetBounds(false), (SwfRect{-20, -20, 305, 120}));
}

TEST(Flattening, line_options_change_copies_only) {
    const auto artwork = TwoTriangles();
    const LineOptions options{true, true, 2, 1, 512};
    const auto whole = FlattenKeepingStyles(*artwork, &options);
    const clsSWFTLineStyle& line = ChangeAt(*whole, 4).colLineStyles[0];
    EXPECT_TRUE(line.blNoHScaleFlag && line.blNoVScaleFlag && line.blPixelHintingFlag);
    EXPECT_EQ(line.StartCapStyle, 2);
    EXPECT_EQ(line.EndCapStyle, 2);
    EXPECT_EQ(line.JoinStyle, 1);
    EXPECT_EQ(line.MiterLimitFactor, 512);
    EXPECT_EQ(whole->Ver, 4);
    EXPECT_TRUE(whole->blUsesNonScalingStrokes);
    EXPECT_FALSE(whole->blUsesScalingStrokes);
    const auto piece = WithLineOptions(*artwork->colShapeData[0], &options);
    EXPECT_EQ((*piece->colLineStyles)[0].JoinStyle, 1);
    EXPECT_EQ((*artwork->colShapeData[0]->colLineStyles)[0].JoinStyle, 0);
    EXPECT_EQ(WithLineOptions(*artwork->colShapeData[0], nullptr)->Ver, 3);
}

TEST(FreeTransformation, the_rectangle_itself_changes_no_point) {
    const FreeTransformation same(2000, 1000, {{{0, 0}, {2000, 0}, {2000, 1000}, {0, 1000}}});
    for (const SwfPoint point : {SwfPoint{0, 0}, {2000, 1000}, {333, 777}, {-500, 1200}}) {
        Single angle = 0;
        EXPECT_EQ(same.MapPoint(point, &angle), point);
        EXPECT_EQ(angle, 90);
    }
}

TEST(FreeTransformation, points_lie_where_the_divided_sides_meet) {
    const struct {
        CornerPoints corners;
        SwfPoint point;
        SwfPoint mapped;
    } cases[] = {
        // A parallelogram leaning right by half its height.
        {{{{0, 0}, {100, 0}, {150, 100}, {50, 100}}}, {50, 50}, {75, 50}},
        // A trapezium: the middle of the top is (50, 0), of the bottom (50, 100).
        {{{{25, 0}, {75, 0}, {100, 100}, {0, 100}}}, {50, 50}, {50, 50}},
        // Its left side at half height is (12.5, 50), its right one (87.5, 50); a quarter across
        // the
        // top is 37.5, across the bottom 25, and 31.25 half way down.
        {{{{25, 0}, {75, 0}, {100, 100}, {0, 100}}}, {25, 50}, {31, 50}},
        // Top and bottom fall together: upright lines have no direction, the middle counts.
        {{{{0, 50}, {100, 50}, {100, 50}, {0, 50}}}, {30, 90}, {30, 50}},
        // Turned by a right angle.
        {{{{100, 0}, {100, 100}, {0, 100}, {0, 0}}}, {25, 10}, {90, 25}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FreeTransformation(100, 100, c.corners).MapPoint(c.point), c.mapped);
    EXPECT_EQ(FreeTransformation(0, 0, cases[0].corners).MapPoint({5, 5}), (SwfPoint{0, 0}));
}

TEST(FreeTransformation, a_shape_is_rebuilt_with_its_bounds_and_fills) {
    auto shape = Triangle(0, 40);
    shape->colFillStyles->emplace_back(clsSWFTFillStyle::Linear);
    FillMatrix& matrix = *shape->colFillStyles->back().StyleObject()->Matrix();
    matrix.GradCenterX = 50;
    matrix.GradCenterY = 50;
    matrix.GradAngle = 10;
    shape->colFillStyles->emplace_back(clsSWFTFillStyle::Radial);
    FillMatrix& whole = *shape->colFillStyles->back().StyleObject()->Matrix();
    whole.blMatrix2 = true;
    whole.Matrix2.TranslateX = 50;
    whole.Matrix2.TranslateY = 100;
    // Twice as wide and moved by (10, 20).
    const auto bent =
        shape->FreeTransform(100, 100, {{{10, 20}, {210, 20}, {210, 120}, {10, 120}}});
    EXPECT_EQ(bent->inSWFTShapeRecords->GetBounds(false), (SwfRect{-10, 0, 230, 140}));
    EXPECT_EQ(bent->inSWFTShapeRecords->GetEdgeBounds(), (SwfRect{10, 20, 210, 120}));
    const FillMatrix& moved = *(*bent->colFillStyles)[1].StyleObject()->Matrix();
    EXPECT_EQ(moved.GradCenterX, 110);
    EXPECT_EQ(moved.GradCenterY, 70);
    EXPECT_EQ(moved.GradAngle, 100);
    EXPECT_EQ((*bent->colFillStyles)[2].StyleObject()->Matrix()->Matrix2.TranslateX, 110);
    EXPECT_EQ(matrix.GradCenterX, 50);
    EXPECT_EQ(ChangeAt(*bent, 0).MoveX, 10);
    EXPECT_EQ(bent->colLineStyles, shape->colLineStyles);
}

TEST(Morph, the_first_difference_is_the_result) {
    const auto start = TwoTriangles();
    const auto check = [&start](auto change) {
        auto end = TwoTriangles();
        change(*end);
        return CheckMorph(*start, *end, 8);
    };
    const auto records = [](clsVectorData & end) -> auto& {
        return end.colShapeData[1]->inSWFTShapeRecords->colShapeRecords;
    };
    EXPECT_EQ(check([](auto&) {}), 0);
    EXPECT_EQ(check([](auto& e) { e.colBitmap.push_back(std::make_shared<clsVectorBitmap>(20)); }),
              4);
    EXPECT_EQ(check([](auto& e) { e.colShapeData.pop_back(); }), 9);
    EXPECT_EQ(check([&](auto& e) { records(e).pop_back(); }), 3);
    EXPECT_EQ(check([](auto& e) { e.colShapeData[1]->colFillStyles->clear(); }), 1);
    EXPECT_EQ(check([](auto& e) { e.colShapeData[1]->colLineStyles->clear(); }), 2);
    EXPECT_EQ(check([](auto& e) { (*e.colShapeData[0]->colFillStyles)[0].FillMode(1); }), 4);
    EXPECT_EQ(check([&](auto& e) { records(e)[3] = clsSWFTShapeCurveEdge{}; }), 5);
    EXPECT_EQ(check([&](auto& e) { std::get<StyleChange>(records(e)[0])->FillStyle1 = 1; }), 6);
    EXPECT_EQ(check([&](auto& e) { std::get<StyleChange>(records(e)[0])->LineStyle = 0; }), 7);
    start->colShapeData[0]->Ver = 4;
    const auto fillLine = [](auto& e) {
        (*e.colShapeData[0]->colLineStyles)[0].inFillStyle =
            std::make_shared<clsSWFTFillStyle>(clsSWFTFillStyle::Linear);
    };
    EXPECT_EQ(check(fillLine), 8);
    auto end = TwoTriangles();
    fillLine(*end);
    EXPECT_EQ(CheckMorph(*start, *end, 7), 0);
}

TEST(Vector, a_curve_too_long_for_a_record_is_written_in_halves) {
    clsVectorData2 shape;
    shape.inSWFTShapeRecords->SetFill0(1);
    shape.inSWFTShapeRecords->MovePenTo(0, 0);
    shape.inSWFTShapeRecords->DrawCurveTo(100000, 0, 100000, 100000);
    shape.colFillStyles->emplace_back(clsSWFTFillStyle::Solid);
    clsSWFAdmin admin;
    auto tag = admin.GetNewShape(3, shape);
    admin.AddTag(1, tag, true);
    auto place = std::make_shared<clsSWFTagPlaceObject>();
    place->PlaceID = tag->ID;
    place->depth = 1;
    place->SetMatrix(1, 1, 0, 0, 0, 0, 0, 0, 0);
    admin.AddPlaceObj(1, place);
    const auto file = std::filesystem::path(testing::TempDir()) / "long_curve.swf";
    Notices told;
    ASSERT_TRUE(admin.Save(FromNarrow(file.string()), told));
    clsVector read;
    ASSERT_TRUE(read.LoadFromFile(FromNarrow(file.string())));
    std::filesystem::remove(file);
    const auto& records = read.inVector->ShapeDataTbl(1)->inSWFTShapeRecords->colShapeRecords;
    ASSERT_EQ(records.size(), 3u);
    const auto expect = [&records](std::size_t index, Long cx, Long cy, Long ax, Long ay) {
        const auto& curve = std::get<clsSWFTShapeCurveEdge>(records[index]);
        EXPECT_EQ((SwfPoint{curve.ControlX, curve.ControlY}), (SwfPoint{cx, cy}));
        EXPECT_EQ((SwfPoint{curve.AnchorX, curve.AnchorY}), (SwfPoint{ax, ay}));
    };
    expect(1, 50000, 0, 75000, 25000);
    expect(2, 100000, 50000, 100000, 100000);
}

TEST(Vector, a_rectangle_is_one_closed_shape) {
    clsVector vector;
    vector.SetRectShape(10, 20, 100, 50, 0x7F0000FF);
    EXPECT_EQ(vector.Width, 100);
    EXPECT_EQ(vector.height, 50);
    const auto& shape = *vector.inVector->ShapeDataTbl(1);
    EXPECT_EQ((*shape.colFillStyles)[0].StyleAs<clsSWFTFillSolid>()->SolidColor, 0x7F0000FF);
    EXPECT_EQ(shape.inSWFTShapeRecords->GetBounds(false), (SwfRect{10, 20, 110, 70}));
    EXPECT_EQ(shape.inSWFTShapeRecords->colShapeRecords.size(), 5u);
    EXPECT_EQ(shape.inSWFTShapeRecords->CurrentY, 20);
}

TEST(Vector, a_file_of_another_kind_is_refused_without_a_look) {
    clsVector vector;
    EXPECT_FALSE(vector.LoadFromFile(u"/no/such/file.txt"));
    EXPECT_FALSE(vector.LoadFromFile(u"/no/such/svg"));
    EXPECT_FALSE(vector.LoadFromFile(u"/no/such/file.SVG"));
}

}  // namespace
}  // namespace tamber
