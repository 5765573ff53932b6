#include <gtest/gtest.h>

#include "document/Project.h"
#include "document/elements/SymbolKinds.h"
#include "document/elements/clsLayerFolder.h"
#include "document/elements/clsObjFrameLabel.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySprite.h"
#include "swf/tags/clsSWFTagPlaceObject.h"
#include "tests/swf/AuthoringTest.h"

namespace tamber {
namespace {

std::vector<SwfPoint> Positions(const std::vector<ParsedPlace>& places) {
    std::vector<SwfPoint> points;
    for (const ParsedPlace& place : places)
        points.push_back({place.Matrix.TranslateX, place.Matrix.TranslateY});
    return points;
}

TEST_F(AuthoringTest, one_bitmap_over_two_frames_gives_the_told_tags) {
    AddKeyFrame(*AddLayer(AddBitmap(4, 3)), 1, 2);
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, 36, 2, 26, 1, 1, 0}));
    EXPECT_EQ(movie.Frames, 2);
    EXPECT_EQ(movie.Stage, (SwfRect{0, 0, 6400, 4800}));
    // Flags of a new character with matrix and colour transform, depth 16383, character 2, identity
    // matrix, identity colours.
    EXPECT_EQ(movie.Bodies(26)[0], (Bytes{0x0E, 0xFF, 0x3F, 2, 0, 0x02, 0x00, 0x00}));
    EXPECT_EQ(Build(8).Codes(), (std::vector<Long>{69, 9, 36, 2, 26, 1, 1, 0}));
}

TEST_F(AuthoringTest, identifiers_are_the_builds_own_until_they_are_shown) {
    const auto picture = AddBitmap(1, 1);
    const auto unused = AddBitmap(1, 1);
    AddKeyFrame(*AddLayer(picture), 1, 1);
    const MovieOutcome outcome = mdlSWFAuthoring::BuildMovie(Request());
    EXPECT_EQ(picture->DefineID(), 0);
    unused->DefineID(7);
    outcome.Identifiers.ShowIn(library);
    EXPECT_EQ(picture->DefineID(), 2);
    EXPECT_EQ(picture->DefineNum, 0);
    EXPECT_EQ(unused->DefineID(), 0);
}

TEST_F(AuthoringTest, an_empty_project_is_one_frame) {
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 1, 0}));
}

TEST_F(AuthoringTest, a_symbol_not_needed_at_once_is_defined_in_frame_2) {
    AddKeyFrame(*AddLayer(AddBitmap(1, 1)), 4, 1);
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 1, 36, 2, 1, 1, 26, 1, 0}));
}

TEST_F(AuthoringTest, a_symbol_on_a_hidden_layer_is_not_defined) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    AddKeyFrame(*layer, 1, 3);
    layer->Visible(true, false);
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 1, 0}));
}

TEST_F(AuthoringTest, a_shape_never_placed_is_left_out_and_its_bitmap_stays) {
    AddKeyFrame(*AddLayer(AddBitmap(1, 1)), 1, 1).blVisible = false;
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 36, 1, 0}));
}

TEST_F(AuthoringTest, key_frames_that_touch_move_and_a_gap_removes) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    AddKeyFrame(*layer, 1, 1, 1, 2);
    AddKeyFrame(*layer, 2, 1, 3, 4);
    AddKeyFrame(*layer, 4, 1, 5, 6);
    AddKeyFrame(*AddLayer(library(1)), 1, 6);
    const ParsedMovie movie = Build();
    // Frame 1: both layers; 2: a move; 3: a removal; 4: placed anew; 5: removed.
    EXPECT_EQ(movie.Codes(),
              (std::vector<Long>{9, 36, 2, 26, 26, 1, 26, 1, 28, 1, 26, 1, 28, 1, 1, 0}));
    const auto places = test::Places(movie);
    EXPECT_EQ(places[2].Character, 0);
    EXPECT_EQ(places[2].Matrix.TranslateX, 60);
    EXPECT_EQ(places[3].Character, 2);
    EXPECT_EQ(places[3].Matrix.TranslateY, 120);
}

TEST_F(AuthoringTest, an_invisible_key_frame_takes_the_character_away) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    AddKeyFrame(*layer, 1, 1);
    AddKeyFrame(*layer, 2, 1).blVisible = false;
    AddKeyFrame(*layer, 3, 1);
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 36, 2, 26, 1, 28, 1, 26, 1, 0}));
}

TEST_F(AuthoringTest, depths_fall_from_the_top_row_or_rise_from_the_bottom_one) {
    AddBitmap(1, 1);
    for (int i = 0; i < 3; ++i) AddKeyFrame(*AddLayer(library(1)), 1, 1, static_cast<Single>(i));
    auto places = test::Places(Build());
    EXPECT_EQ(places[0].Depth, 16383);
    EXPECT_EQ(places[0].Matrix.TranslateX, 0);
    EXPECT_EQ(places[2].Depth, 16381);
    blTopToBottom = false;
    places = test::Places(Build());
    EXPECT_EQ(places[0].Depth, 257);
    EXPECT_EQ(places[0].Matrix.TranslateX, 40);
    EXPECT_EQ(places[2].Depth, 259);
}

TEST_F(AuthoringTest, a_hidden_folder_hides_its_rows_only_in_the_falling_order) {
    const auto folder = AddLayer(std::make_shared<clsSymbolData>(KindLayerFolder));
    AddKeyFrame(*folder, 1, 1);
    folder->Folder()->LayerCount = 1;
    folder->Visible(true, false);
    AddKeyFrame(*AddLayer(AddBitmap(1, 1)), 1, 1);
    NestLayers(layers);
    EXPECT_TRUE(test::Places(Build()).empty());
    blTopToBottom = false;
    EXPECT_EQ(test::Places(Build()).size(), 1u);
}

TEST_F(AuthoringTest, a_mask_clips_the_layers_listed_before_it) {
    AddBitmap(1, 1);
    for (int i = 0; i < 3; ++i) AddKeyFrame(*AddLayer(library(1)), 1, 1);
    layers(3)->ClippingDepth = 2;
    const auto places = test::Places(Build());
    // No colour transform on a mask; it reaches from depth 16381 to 16383.
    EXPECT_EQ(places[2].Flags, 64 + 4 + 2);
    EXPECT_EQ(places[2].ClipDepth, 16383);
}

TEST_F(AuthoringTest, a_mask_that_moves_stays_one_without_saying_so_again) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    layer->ClippingDepth = 1;
    AddKeyFrame(*layer, 1, 2).blTween = true;
    AddKeyFrame(*layer, 3, 1, 5, 5);
    const auto places = test::Places(Build());
    ASSERT_EQ(places.size(), 3u);
    EXPECT_EQ(places[0].Flags & 64, 64);
    EXPECT_EQ(places[2].Flags, 8 + 4 + 1);
}

TEST_F(AuthoringTest, a_linear_tween_places_each_frame) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    AddKeyFrame(*layer, 1, 4, 0, 0).blTween = true;
    AddKeyFrame(*layer, 5, 1, 4, 8);
    EXPECT_EQ(Positions(test::Places(Build())),
              (std::vector<SwfPoint>{{0, 0}, {20, 40}, {40, 80}, {60, 120}, {80, 160}}));
}

TEST_F(AuthoringTest, a_tween_of_one_frame_is_its_start_and_then_its_end) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    AddKeyFrame(*layer, 1, 1, 0, 0).blTween = true;
    AddKeyFrame(*layer, 2, 1, 10, 0);
    EXPECT_EQ(Positions(test::Places(Build())), (std::vector<SwfPoint>{{0, 0}, {200, 0}}));
}

TEST_F(AuthoringTest, the_last_key_frame_stands_still_though_it_is_marked_as_tween) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    AddKeyFrame(*layer, 1, 3).blTween = true;
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 36, 2, 26, 1, 1, 1, 0}));
}

TEST_F(AuthoringTest, easing_bends_the_middle_of_a_tween) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    clsLayerObject& start = AddKeyFrame(*layer, 1, 2, 0, 0);
    start.blTween = true;
    start.Placement()->Edging = 100;
    AddKeyFrame(*layer, 3, 1, 100, 0);
    // 100 / (255 pi) = 0.124827...; round(0.624827 * 65535) = 40948; 2000 * 40948 / 65535 = 1249.7.
    EXPECT_EQ(Positions(test::Places(Build()))[1].X, 1250);
}

TEST_F(AuthoringTest, a_curve_table_eases_position_and_scale_by_itself) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    clsLayerObject& start = AddKeyFrame(*layer, 1, 2, 0, 0);
    start.blTween = true;
    clsLayerObjElement& placement = *start.Placement();
    placement.blCustomEdging = true;
    placement.EdgingAllMode = 0;
    // One quadratic with its control point at (0.5, 1): at time 0.5 the progress is 0.75.
    placement.EdgingTblXY.Points = {{0, 0}, {0.5f, 1}, {1, 1}};
    clsLayerObject& end = AddKeyFrame(*layer, 3, 1, 100, 0);
    end.Placement()->ScaleX(3);
    const ParsedPlace middle = test::Places(Build())[1];
    EXPECT_EQ(middle.Matrix.TranslateX, 1500);
    // The other values have no curve and run evenly: 1 + 2 * 32768 / 65535.
    EXPECT_NEAR(middle.Matrix.ScaleX / 65536.0, 2.0, 0.0001);
}

TEST_F(AuthoringTest, a_path_is_run_at_even_speed_along_its_points) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    clsLayerObject& start = AddKeyFrame(*layer, 1, 4, 0, 0);
    start.blTween = true;
    auto corner = std::make_shared<clsTweenPointData>();
    corner->X = 30;
    start.Placement()->Addtp(corner);
    AddKeyFrame(*layer, 5, 1, 30, 10);
    // 30 pixels along, then 10 down: 10, 20, 30 pixels of the way.
    EXPECT_EQ(Positions(test::Places(Build())),
              (std::vector<SwfPoint>{{0, 0}, {200, 0}, {400, 0}, {600, 0}, {600, 200}}));
}

TEST_F(AuthoringTest, a_curved_path_passes_the_middle_of_its_arc) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    clsLayerObject& start = AddKeyFrame(*layer, 1, 2, 0, 0);
    start.blTween = true;
    auto control = std::make_shared<clsTweenPointData>();
    control->PointType = 1;
    control->X = 50;
    control->Y = 100;
    start.Placement()->Addtp(control);
    AddKeyFrame(*layer, 3, 1, 100, 0);
    const SwfPoint middle = Positions(test::Places(Build()))[1];
    EXPECT_NEAR(middle.X, 1000, 1);
    EXPECT_NEAR(middle.Y, 1000, 1);
}

TEST_F(AuthoringTest, a_koma_shows_its_pictures_in_turn) {
    const auto first = AddBitmap(1, 1);
    const auto second = AddBitmap(2, 2);
    const auto koma = AddSymbol(std::make_shared<clsSymbolData>(KindKoma));
    koma->Property<clsPropertyKoma>()->DispCount = 2;
    koma->Property<clsPropertyKoma>()->colKomas->Add(first);
    koma->Property<clsPropertyKoma>()->colKomas->Add(second);
    AddKeyFrame(*AddLayer(koma), 1, 5);
    const auto places = test::Places(Build());
    ASSERT_EQ(places.size(), 3u);
    EXPECT_EQ(places[0].Frame, 1);
    EXPECT_EQ(places[1].Frame, 3);
    EXPECT_EQ(places[2].Frame, 5);
    EXPECT_EQ(places[0].Character, 2);
    EXPECT_EQ(places[1].Character, 4);
    EXPECT_EQ(places[2].Character, 2);
}

TEST_F(AuthoringTest, a_koma_that_begins_with_nothing_to_see_has_its_first_picture_in_frame_1) {
    const auto koma = AddSymbol(std::make_shared<clsSymbolData>(KindKoma));
    for (const auto& picture : {std::make_shared<clsSymbolData>(KindVector), AddBitmap(1, 1)})
        koma->Property<clsPropertyKoma>()->colKomas->Add(picture);
    AddKeyFrame(*AddLayer(koma), 1, 2);
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 36, 2, 28, 26, 1, 28, 26, 1, 0}));
}

TEST_F(AuthoringTest, a_sprite_has_the_highest_number_and_counts_from_its_base) {
    const auto bitmap = AddBitmap(1, 1);
    const auto sprite = AddSymbol(std::make_shared<clsSymbolData>(KindSprite));
    auto& record = *sprite->Property<clsPropertySprite>();
    record.baseX = 10;
    record.colLayer->Add(LayerOf(bitmap));
    AddKeyFrame(*record.colLayer->Item(1), 1, 2, 15, 0);
    AddKeyFrame(*AddLayer(sprite), 1, 1);
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, 36, 2, 39, 26, 1, 0}));
    const Bytes body = movie.Bodies(39)[0];
    EXPECT_EQ(Bytes(body.begin(), body.begin() + 4), (Bytes{3, 0, 2, 0}));
    // Inside: a placement of 11 or so bytes, two ShowFrames, End.
    EXPECT_EQ(Bytes(body.end() - 6, body.end()), (Bytes{0x40, 0, 0x40, 0, 0, 0}));
    EXPECT_EQ(test::Places(movie)[0].Character, 3);
}

TEST_F(AuthoringTest, an_export_names_the_shape_or_from_version_8_the_picture) {
    const auto bitmap = AddBitmap(1, 1);
    bitmap->blExport = true;
    bitmap->ObjectName = u"pic";
    EXPECT_EQ(Build(6).Bodies(56)[0], (Bytes{1, 0, 2, 0, 'p', 'i', 'c', 0}));
    EXPECT_EQ(Build(8).Bodies(56)[0], (Bytes{1, 0, 1, 0, 'p', 'i', 'c', 0}));
}

TEST_F(AuthoringTest, labels_stand_first_in_their_frame_once) {
    const auto layer = AddLayer(std::make_shared<clsSymbolData>(KindFrameLabel));
    AddKeyFrame(*layer, 1, 1).ObjectAs<clsObjFrameLabel>()->LabelName = u"a";
    auto& anchor = *AddKeyFrame(*layer, 2, 1).ObjectAs<clsObjFrameLabel>();
    anchor.LabelName = u"b";
    anchor.blAnchor = true;
    const auto again = AddLayer(layer->SymbolData());
    AddKeyFrame(*again, 1, 1).ObjectAs<clsObjFrameLabel>()->LabelName = u"a";
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, 43, 1, 43, 1, 0}));
    EXPECT_EQ(movie.Bodies(43)[0], (Bytes{'a', 0}));
    EXPECT_EQ(movie.Bodies(43)[1], (Bytes{'b', 0, 1}));
}

TEST_F(AuthoringTest, version_4_is_not_compressed_and_says_so) {
    blCompress = true;
    EXPECT_EQ(Build(4).Header[0], 'F');
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Text, u"SWF4では、SWF圧縮できません");
    const ParsedMovie movie = Build(5);
    EXPECT_EQ(movie.Header[0], 'C');
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, 1, 0}));
    EXPECT_EQ(interface.Messages.size(), 1u);
}

TEST_F(AuthoringTest, layers_beyond_the_version_are_left_out_with_their_message) {
    for (const Long kind : {KindMovieEmp, KindLink}) {
        const auto layer = AddLayer(AddSymbol(std::make_shared<clsSymbolData>(kind)));
        layer->LayerName = u"名";
        AddKeyFrame(*layer, 1, 1);
    }
    EXPECT_EQ(Build(4).Codes(), (std::vector<Long>{9, 1, 0}));
    ASSERT_EQ(interface.Messages.size(), 2u);
    EXPECT_EQ(interface.Messages[0].Text,
              u"FLVビデオ再生はSWF6以降の機能です。\r\nSWF4では使用できません。\r\n動画（名）");
    EXPECT_EQ(interface.Messages[1].Text,
              u"リンクシンボルはSWF5以降の機能です。\r\nSWF4では使用できません。\r\n"
              u"リンクシンボル（名）");
}

TEST_F(AuthoringTest, blend_and_filters_appear_from_version_8_on) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    clsLayerObjElement& placement = *AddKeyFrame(*layer, 1, 1).Placement();
    placement.eBlend = 3;
    placement.inFilter->blBlur = true;
    EXPECT_EQ(Build(7).Bodies(70).size(), 0u);
    const Bytes body = Build(8).Bodies(70)[0];
    // Flags, blend and filters, depth, character, matrix, colours; one filter: blur 4 by 4, two
    // passes; multiply.
    EXPECT_EQ(body, (Bytes{0x0E, 3, 0xFF, 0x3F, 2, 0, 0x02, 0x00, 0x00,  //
                           1,    1, 0,    0,    4, 0, 0,    0,    4,    0, 16, 3}));
}

TEST_F(AuthoringTest, what_a_movie_file_cannot_hold_is_refused_before_anything_is_written) {
    const auto picture = AddBitmap(1, 1);
    EXPECT_EQ(Refusal(Request(9)), u"SWF9の生成には対応していません。");
    EXPECT_EQ(Refusal(Request(3)), u"SWF3の生成には対応していません。");
    MovieRequest request = Request();
    request.Width = 0x40000000;
    EXPECT_EQ(Refusal(request), u"ステージの大きさが範囲外です。");
    request.Width = -20;
    EXPECT_EQ(Refusal(request), u"ステージの大きさが範囲外です。");

    AddKeyFrame(*AddLayer(picture), 1, 0x7FFFFFFF);
    EXPECT_EQ(Refusal(Request()).substr(0, 12), u"フレーム数が多すぎます。");
    layers.Clear();
    for (Long i = 0; i < 62; ++i) {
        AddKeyFrame(*AddLayer(picture), 1, 65000).blTween = true;
        AddKeyFrame(*layers(layers.Count()), 65001, 1);
    }
    EXPECT_EQ(Refusal(Request()).substr(0, 20), u"トゥイーンのフレームの合計が多すぎます。");
    layers.Clear();
    for (Long i = 0; i < 16384; ++i) AddLayer(picture);
    EXPECT_EQ(Refusal(Request()).substr(0, 12), u"レイヤー数が多すぎます。");
    layers.Clear();
    for (Long i = 0; i < 32768; ++i) {
        AddSymbol(picture->Copy())->blExport = true;
        library(library.Count())->ObjectName = u"a";
    }
    EXPECT_EQ(Refusal(Request()).substr(0, 12), u"シンボル数が多すぎます。");
}

TEST_F(AuthoringTest, what_is_not_generated_is_within_every_limit) {
    const auto picture = AddBitmap(1, 1);
    const auto beyond = [&](clsLayer& layer) { AddKeyFrame(layer, 1, 70000).blTween = true; };
    const auto unused = AddSymbol(std::make_shared<clsSymbolData>(KindSprite));
    unused->Property<clsPropertySprite>()->colLayer->Add(LayerOf(picture));
    beyond(*unused->Property<clsPropertySprite>()->colLayer->Item(1));
    const auto hidden = AddLayer(picture);
    beyond(*hidden);
    hidden->Visible(true, false);
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 1, 0}));
    unused->blExport = true;
    unused->ObjectName = u"a";
    std::filesystem::remove(path);
    EXPECT_EQ(Refusal(Request()).substr(0, 12), u"フレーム数が多すぎます。");
    unused->blExport = false;

    // As many rows as there are depths, and some that take none.
    layers.Clear();
    AddKeyFrame(*AddLayer(std::make_shared<clsSymbolData>(KindBackGround)), 1, 1);
    const auto folder = AddLayer(std::make_shared<clsSymbolData>(KindLayerFolder));
    AddKeyFrame(*folder, 1, 1);
    folder->Folder()->LayerCount = 5;
    folder->Visible(true, false);
    for (Long i = 0; i < 5 + 16383; ++i) AddLayer(picture);
    EXPECT_EQ(Build().Frames, 1);
    blTopToBottom = false;
    std::filesystem::remove(path);
    EXPECT_EQ(Refusal(Request()).substr(0, 12), u"レイヤー数が多すぎます。");
}

TEST_F(AuthoringTest, a_placement_has_terms_that_a_matrix_can_tell) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    clsLayerObjElement& placement = *AddKeyFrame(*layer, 1, 1, 2, 3).Placement();
    // 290 times tan(89 degrees) is 16614; the greatest Single that takes 31 bits is 16384 - 2 ^
    // -10.
    placement.ScaleX(290);
    placement.SkewX(89);
    const SwfMatrix matrix = test::Places(Build())[0].Matrix;
    EXPECT_EQ(matrix.ScaleX, 290 * 0x10000);
    EXPECT_EQ(matrix.RotateSkew1, 0x3FFFFFC0);
    EXPECT_EQ(matrix.TranslateX, 40);
    placement.SkewX(-89);
    EXPECT_EQ(test::Places(Build())[0].Matrix.RotateSkew1, -0x40000000);
}

TEST_F(AuthoringTest, the_highest_rate_fits_the_header) {
    MovieRequest request = Request();
    request.FrameRate = 255.999f;
    EXPECT_TRUE(mdlSWFAuthoring::BuildMovie(request).Written);
    EXPECT_EQ(test::ParseMovie(request.Path).Rate, 0xFFFF);
}

TEST_F(AuthoringTest, values_beyond_a_field_stay_within_it) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    AddKeyFrame(*layer, 1, 1, 1e30f, -1e30f);
    const ParsedPlace place = test::Places(Build())[0];
    EXPECT_EQ(place.Matrix.TranslateX, 0x3FFFFFFF);
    EXPECT_EQ(place.Matrix.TranslateY, -0x3FFFFFFF);

    clsFilterEditColor color;
    color.MultR = 0x7FFFFFFF;
    color.AddG = -0x7FFFFFFF;
    clsSWFTagPlaceObject tag;
    tag.SetEditColorFilter(color, 100, 100);
    EXPECT_EQ(tag.Color.MultR, 0x3FFF);
    EXPECT_EQ(tag.Color.AddG, -0x4000);
}

}  // namespace
}  // namespace tamber
