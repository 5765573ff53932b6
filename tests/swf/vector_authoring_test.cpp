#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySprite.h"
#include "swf/SwfBits.h"
#include "tests/swf/VectorAuthoringTest.h"

namespace tamber {
namespace {

constexpr Long DefineShape3 = 32;
constexpr Long DefineMorph = 46;

/// Bounds of a shape's body, behind its identifier.
SwfRect BoundsOf(const Bytes& body) {
    return SwfBits(ByteView(body).subspan(2)).GetRect();
}

TEST_F(VectorAuthoringTest, a_drawing_is_one_shape_and_a_divided_one_a_shape_a_piece) {
    const auto symbol = AddVector(3);
    AddKeyFrame(*AddLayer(symbol), 1, 1);
    ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, DefineShape3, 26, 1, 0}));
    EXPECT_EQ(BoundsOf(movie.Bodies(DefineShape3)[0]), (SwfRect{0, 0, 240, 200}));

    symbol->Property<clsPropertyVector>()->blDivide = true;
    AddKeyFrame(*AddLayer(AddBitmap(1, 1)), 1, 1);
    movie = Build();
    EXPECT_EQ(movie.Bodies(DefineShape3).size(), 3u);
    const auto places = test::Places(movie);
    EXPECT_EQ(Depths(places), (std::vector<Long>{16381, 16382, 16383, 16380}));
    EXPECT_EQ(places[0].Character, 1);
    EXPECT_EQ(places[2].Character, 3);
}

TEST_F(VectorAuthoringTest, a_mask_has_a_form_of_its_own) {
    const auto symbol = AddVector(2);
    symbol->Property<clsPropertyVector>()->blDivide = true;
    AddKeyFrame(*AddLayer(symbol), 1, 1);
    const auto mask = AddLayer(symbol);
    mask->ClippingDepth = 1;
    AddKeyFrame(*mask, 1, 1);
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Bodies(DefineShape3).size(), 3u);
    const auto places = test::Places(movie);
    EXPECT_EQ(Depths(places), (std::vector<Long>{16382, 16383, 16381}));
    EXPECT_EQ(places[2].Character, 3);
    // The two depths of the row before it.
    EXPECT_EQ(places[2].ClipDepth, 16383);
}

TEST_F(VectorAuthoringTest, a_tween_to_a_drawing_of_equal_structure_morphs) {
    const auto from = AddVector(1);
    const auto to = AddVector(1);
    from->Property<clsPropertyVector>()->MorphSymbol(to);
    const auto layer = AddLayer(from);
    AddKeyFrame(*layer, 1, 2).blTween = true;
    AddKeyFrame(*layer, 3, 1, 10, 0);
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, DefineMorph, 26, 1, 26, 1, 26, 1, 0}));
    const auto places = test::Places(movie);
    EXPECT_EQ(places[0].Ratio, 0);
    EXPECT_EQ(places[1].Ratio, 32768);
    EXPECT_EQ(places[2].Ratio, 65535);
    EXPECT_TRUE(interface.Messages.empty());
}

TEST_F(VectorAuthoringTest, a_pair_that_cannot_morph_is_told_and_stays_plain) {
    const auto from = AddVector(1);
    from->Property<clsPropertyVector>()->MorphSymbol(AddVector(2));
    AddKeyFrame(*AddLayer(from), 1, 1);
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, DefineShape3, 26, 1, 0}));
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Title, u"モーフィング正当性チェック");
    EXPECT_EQ(interface.Messages[0].Text, u"モーフィングできませんでした。[ID：1→ID：2]");
}

TEST_F(VectorAuthoringTest, a_gradient_with_a_focus_is_told_once_below_version_8) {
    const auto symbol = AddVector(2);
    symbol->FilePathName = u"/d/玉.svg";
    symbol->Property<clsPropertyVector>()->inVector->ShapeDataTbl(2)->colFillStyles->emplace_back(
        clsSWFTFillStyle::Focal);
    const auto layer = AddLayer(symbol);
    AddKeyFrame(*layer, 1, 1);
    Bend(AddKeyFrame(*layer, 2, 1));
    const auto mask = AddLayer(symbol);
    mask->ClippingDepth = 1;
    AddKeyFrame(*mask, 1, 2);
    Build(7);
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Text,
              u"焦点をずらした円形グラデーションはSWF8以降の機能です。\r\n"
              u"SWF7では正しく表示されません。\r\nベクタ（玉.svg）");
    interface.Messages.clear();
    Build(8);
    EXPECT_TRUE(interface.Messages.empty());
}

TEST_F(VectorAuthoringTest, a_koma_shows_the_start_of_a_morph) {
    const auto from = AddVector(1);
    from->Property<clsPropertyVector>()->MorphSymbol(AddVector(1));
    auto koma = std::make_shared<clsSymbolData>(KindKoma);
    koma->Property<clsPropertyKoma>()->colKomas->Add(from);
    AddKeyFrame(*AddLayer(AddSymbol(koma)), 1, 1);
    AddKeyFrame(*AddLayer(from), 1, 1);
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Bodies(DefineShape3).size(), 1u);
    EXPECT_EQ(movie.Bodies(DefineMorph).size(), 1u);
}

TEST_F(VectorAuthoringTest, a_koma_shows_a_divided_drawing_whole) {
    const auto drawing = AddVector(3);
    drawing->Property<clsPropertyVector>()->blDivide = true;
    auto koma = std::make_shared<clsSymbolData>(KindKoma);
    koma->Property<clsPropertyKoma>()->colKomas->Add(drawing);
    AddKeyFrame(*AddLayer(AddSymbol(koma)), 1, 1);
    const ParsedMovie movie = Build();
    ASSERT_EQ(movie.Bodies(DefineShape3).size(), 1u);
    EXPECT_EQ(BoundsOf(movie.Bodies(DefineShape3)[0]), (SwfRect{0, 0, 240, 200}));
}

TEST_F(VectorAuthoringTest, a_morph_has_as_many_edges_at_its_end_however_long) {
    const auto curve = [](Long reach) {
        auto artwork = Rectangles(1);
        artwork->colShapeData[0]->inSWFTShapeRecords->DrawCurveTo(reach, 0, reach, 100);
        return artwork;
    };
    const auto bodySize = [&](Long reach) {
        library.Clear();
        layers.Clear();
        const auto from = AddVector(1);
        from->Property<clsPropertyVector>()->inVector = curve(100);
        const auto to = AddVector(1);
        to->Property<clsPropertyVector>()->inVector = curve(reach);
        from->Property<clsPropertyVector>()->MorphSymbol(to);
        AddKeyFrame(*AddLayer(from), 1, 1);
        return Build().Bodies(DefineMorph).at(0).size();
    };
    // The longest curve of a record has 17 bits a field; a longer one is cut and takes no more
    // than the bounds grow by.
    EXPECT_LE(bodySize(900000), bodySize(65000) + 4);
}

TEST_F(VectorAuthoringTest, bitmaps_of_a_drawing_stand_in_frame_1_for_each_definition) {
    auto artwork = Rectangles(1);
    auto bitmap = std::make_shared<clsVectorBitmap>(20);
    bitmap->bufBitmap = {3, 1, 0, 1, 0};
    artwork->colBitmap.push_back(bitmap);
    auto& shape = *artwork->colShapeData[0];
    (*shape.colFillStyles)[0].FillMode(clsSWFTFillStyle::BitmapTiled);
    (*shape.colFillStyles)[0].StyleAs<clsSWFTFillBmpClippedTiled>()->Bitmap = bitmap;
    const auto symbol = AddVector(1);
    symbol->Property<clsPropertyVector>()->inVector = artwork;
    AddKeyFrame(*AddLayer(symbol), 2, 1);
    const auto mask = AddLayer(symbol);
    mask->ClippingDepth = 1;
    AddKeyFrame(*mask, 2, 1);
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(),
              (std::vector<Long>{9, 20, 20, 1, DefineShape3, DefineShape3, 26, 26, 1, 0}));
    const auto identifiers = [&movie](Long code) {
        std::vector<Long> result;
        for (const Bytes& body : movie.Bodies(code)) result.push_back(body[0]);
        return result;
    };
    EXPECT_EQ(identifiers(20), (std::vector<Long>{1, 3}));
    EXPECT_EQ(identifiers(DefineShape3), (std::vector<Long>{2, 4}));
    EXPECT_EQ(bitmap->ID, 0);
}

TEST_F(VectorAuthoringTest, a_tween_between_outlines_is_a_morph_of_its_own) {
    const auto symbol = AddVector(1);
    const auto layer = AddLayer(symbol);
    AddKeyFrame(*layer, 1, 2);
    AddKeyFrame(*layer, 3, 2).blTween = true;
    Bend(AddKeyFrame(*layer, 5, 1));
    AddKeyFrame(*layer, 6, 1);
    const ParsedMovie movie = Build();
    // The plain one stands in frame 1 and goes in 3; the morph holds until 5 and goes in 6.
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, DefineShape3, 26, 1, DefineMorph, 1, 28, 26, 1,
                                                26, 1, 26, 1, 28, 26, 1, 0}));
    const auto places = test::Places(movie);
    EXPECT_EQ(places[1].Character, 2);
    EXPECT_EQ(places[1].Ratio, 0);
    EXPECT_EQ(places[3].Ratio, 65535);
    EXPECT_EQ(places[3].Character, 0);
    EXPECT_EQ(places[4].Character, 1);
}

TEST_F(VectorAuthoringTest, a_bent_key_frame_without_a_tween_is_a_shape_of_its_own) {
    const auto layer = AddLayer(AddVector(1));
    layer->InstanceName = u"a";
    Bend(AddKeyFrame(*layer, 1, 1));
    AddKeyFrame(*layer, 2, 1);
    const ParsedMovie movie = Build();
    const auto places = test::Places(movie);
    ASSERT_EQ(places.size(), 2u);
    EXPECT_EQ(places[0].Character, 2);
    EXPECT_EQ(places[1].Character, 1);
    EXPECT_EQ(BoundsOf(movie.Bodies(DefineShape3)[1]), (SwfRect{0, 0, 200, 200}));
}

TEST_F(VectorAuthoringTest, a_bent_shape_in_a_sprite_is_defined_outside_it) {
    const auto drawing = AddVector(1);
    auto sprite = std::make_shared<clsSymbolData>(KindSprite);
    auto inner = LayerOf(drawing);
    Bend(AddKeyFrame(*inner, 1, 1));
    sprite->Property<clsPropertySprite>()->colLayer->Add(inner);
    AddKeyFrame(*AddLayer(AddSymbol(sprite)), 1, 1);
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, DefineShape3, 39, 26, 1, 0}));
    // The plain form is never placed and leaves a gap in the numbers.
    EXPECT_EQ(movie.Bodies(DefineShape3)[0][0], 2);
    EXPECT_EQ(movie.Bodies(39)[0][0], 3);
}

TEST_F(VectorAuthoringTest, line_options_make_version_4_shapes_from_version_8_on) {
    const auto symbol = AddVector(1);
    auto& record = *symbol->Property<clsPropertyVector>();
    record.blLineOption = true;
    record.blNoLineScale = true;
    AddKeyFrame(*AddLayer(symbol), 1, 1);
    EXPECT_EQ(Build(7).Bodies(83).size(), 0u);
    EXPECT_EQ(Build(8).Bodies(83).size(), 1u);
    record.MorphSymbol(symbol);
    EXPECT_EQ(Build(7).Bodies(46).size(), 1u);
    EXPECT_EQ(Build(8).Bodies(84).size(), 1u);
}

TEST_F(VectorAuthoringTest, an_export_is_the_clip_form) {
    const auto symbol = AddVector(2);
    symbol->Property<clsPropertyVector>()->blDivide = true;
    symbol->blExport = true;
    symbol->ObjectName = u"a";
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, DefineShape3, 56, 1, 0}));
}

}  // namespace
}  // namespace tamber
