#include <gtest/gtest.h>

#include <numeric>

#include "app/editors/BitmapEditor.h"
#include "app/editors/EdgingEditor.h"
#include "app/editors/FilterEditor.h"
#include "app/editors/FilterPresets.h"
#include "app/editors/FreeTransformationEditor.h"
#include "app/editors/ScalingGridEditor.h"
#include "app/editors/TextRules.h"
#include "document/records/clsPropertyText.h"
#include "platform/RecordingUserInterface.h"

namespace tamber {
namespace {

using Place = EdgingEditor::Place;

TEST(EdgingEditor, edits_the_curve_that_is_chosen_over_its_graph) {
    clsLayerObjElement element;
    EdgingEditor editor(element, 4, 200, 100);
    EXPECT_EQ(editor.PlaceOf({0.25f, 0.75f}), (Place{50, 25}));
    ASSERT_EQ(editor.Curves().size(), 1u);
    EXPECT_EQ(editor.Curves()[0].Start, (Place{0, 100}));
    EXPECT_EQ(editor.Curves()[0].End, (Place{200, 0}));
    EXPECT_EQ(editor.Add({100, 20}), 1u);
    EXPECT_EQ(editor.Find({103, 22}, 5), 1u);
    EXPECT_EQ(editor.Find({106, 20}, 5), std::nullopt);
    // Raised to a cubic curve: two thirds of the way to the control point.
    EXPECT_NEAR(editor.Curves()[0].Control1.X, 200 / 3.0, 1e-4);
    EXPECT_NEAR(editor.Curves()[0].Control1.Y, 100 - 160 / 3.0, 1e-4);
    // Half of the time: (0, 0), (0.5, 0.8), (1, 1) at u = 0.5 has gone 0.25 of 1 and half of 0.8.
    EXPECT_NEAR(editor.ProgressAt(0.5), 0.65, 1e-4);
    const auto frames = editor.FramePoints();
    ASSERT_EQ(frames.size(), 5u);
    EXPECT_NEAR(frames[2].Y, 35, 0.01);
    EXPECT_EQ(frames[4], (Place{200, 0}));
    EXPECT_FALSE(editor.Move(0, {10, 10}));
    EXPECT_TRUE(editor.Move(1, {500, -20}));
    EXPECT_EQ(element.EdgingTblXY.Points[1], (EdgingPoint{1, 1}));

    editor.Move(1, {50, 50});
    editor.Copy();
    editor.EditsParameters(true);
    EXPECT_TRUE(editor.Paste());
    EXPECT_EQ(element.EdgingTblPrm, element.EdgingTblXY);
    EXPECT_TRUE(editor.Remove(1));
    EXPECT_EQ(element.EdgingTblPrm.Points.size(), 2u);
    EXPECT_EQ(element.EdgingTblXY.Points.size(), 3u);
    editor.AllMode(true);
    EXPECT_EQ(element.EdgingAllMode, 2);
    editor.EditsParameters(false);
    editor.AllMode(true);
    EXPECT_EQ(element.EdgingAllMode, 1);
    editor.AllMode(false);
    EXPECT_EQ(element.EdgingAllMode, 0);
    editor.Reset();
    EXPECT_EQ(element.EdgingTblXY.Points.size(), 2u);
}

TEST(ScalingGridEditor, keeps_the_order_of_its_guides) {
    ScalingGridEditor editor(100, 40);
    EXPECT_EQ(editor.At(ScalingGridEditor::XMax), 75);
    EXPECT_EQ(editor.At(ScalingGridEditor::YMin), 10);
    EXPECT_EQ(editor.Find(27, 21, 4), ScalingGridEditor::XMin);
    EXPECT_EQ(editor.Find(50, 20, 4), std::nullopt);
    EXPECT_FALSE(editor.Move(ScalingGridEditor::XMin, 80));
    EXPECT_EQ(editor.At(ScalingGridEditor::XMin), 75);
    EXPECT_FALSE(editor.Move(ScalingGridEditor::YMax, 400));
    EXPECT_EQ(editor.At(ScalingGridEditor::YMax), 40);
    EXPECT_FALSE(editor.Validate(ScalingGridEditor::XMax, 74));
    EXPECT_TRUE(editor.Validate(ScalingGridEditor::XMax, 90.5));
    EXPECT_EQ(editor.Twips(ScalingGridEditor::XMax), 1810);
    editor.Take(100, 200, 300, 400);
    EXPECT_EQ(editor.At(ScalingGridEditor::YMax), 20);
}

TEST(FreeTransformationEditor, stretches_from_the_drawing_as_it_was_read) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    auto artwork = std::make_shared<clsVectorData>();
    FreeTransformationEditor editor(artwork, 10, 20);
    EXPECT_EQ(editor.Preview(), artwork);
    EXPECT_TRUE(editor.Put(2, 15, 30));
    EXPECT_EQ(editor.Corners()[2], (SwfPoint{300, 600}));
    EXPECT_NE(editor.Preview(), artwork);
    EXPECT_EQ(editor.Find(16, 29, 2), 2u);
    EXPECT_FALSE(editor.Put(2, 1600.1, 0));
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Text, u"範囲外の数値が入力されました。");
    EXPECT_EQ(interface.Messages[0].Title, u"入力値不正");
    EXPECT_EQ(editor.Corners()[2], (SwfPoint{300, 600}));
    editor.Drag(0, -5000, 1);
    EXPECT_EQ(editor.Corners()[0], (SwfPoint{-32000, 20}));
    EXPECT_FALSE(editor.Corners({SwfPoint{0, 40000}}));
    editor.SetDefault();
    EXPECT_TRUE(editor.IsDefault());
}

TEST(FilterEditor, links_calculates_and_warns_once) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    const clsFilterData none;
    FilterEditor editor(none);
    editor.CheckVersion(7);
    EXPECT_TRUE(interface.Messages.empty());
    editor.Filters().*FilterEditor::Entries()[4].Switch = true;
    EXPECT_TRUE(editor.Filters().blBlur);
    EXPECT_TRUE(editor.IsChanged());
    editor.CheckVersion(8);
    EXPECT_TRUE(interface.Messages.empty());
    editor.CheckVersion(7);
    editor.CheckVersion(7);
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Text,
              u"フィルタはSWF8以降の機能です。\r\nSWF7では使用できません。\r\n"
              u"SWFファイル生成時に参照されません。");

    editor.Blur(editor.Filters().fltGlow, 3, 9);
    EXPECT_EQ(editor.Filters().fltGlow.BlurY(), 9);
    editor.chkBlurLink = true;
    editor.Blur(editor.Filters().fltGlow, 3, 9);
    EXPECT_EQ(editor.Filters().fltGlow.BlurY(), 3);

    clsFilterConvolution& convolution = editor.Filters().fltConvolution;
    editor.ConvolutionCell(0, 4);
    EXPECT_EQ(convolution.Divisor(), 1);
    editor.AutoConvolution(true);
    EXPECT_EQ(convolution.Divisor(), 5);
    editor.ConvolutionCell(0, -1);
    EXPECT_EQ(convolution.Divisor(), 1);
    EXPECT_EQ(convolution.Bias(), 128);
    editor.ConvolutionCell(0, -2);
    EXPECT_EQ(convolution.Divisor(), -1);
    EXPECT_EQ(convolution.Bias(), 255);
}

TEST(FilterEditor, has_the_presets_by_their_captions) {
    // Sums of the cells as the table of captions gives them.
    const std::pair<StringView, double> sums[] = {{u"デフォルト", 1}, {u"ぼかし", 9},
                                                  {u"ぼかし2", 49},   {u"シャープ", 2},
                                                  {u"エンボス", 0},   {u"カラー付きエンボス", 1},
                                                  {u"エッジ", 0},     {u"輪郭", 1}};
    const auto presets = ConvolutionPresets();
    ASSERT_EQ(presets.size(), std::size(sums));
    for (std::size_t i = 0; i < presets.size(); ++i) {
        EXPECT_EQ(presets[i].Caption, sums[i].first);
        EXPECT_EQ(std::accumulate(presets[i].Cells.begin(), presets[i].Cells.end(), 0.0),
                  sums[i].second);
    }
    FilterEditor editor{clsFilterData()};
    editor.UseColorMatrixPreset(2);
    EXPECT_EQ(editor.Filters().fltColorMatrix.MatrixTbl(0), 0.2811f);
    EXPECT_EQ(editor.Filters().fltColorMatrix.MatrixTbl(11), 0.3346f);
    EXPECT_EQ(editor.Filters().fltColorMatrix.MatrixTbl(18), 1);
}

TEST(BitmapEditor, shows_the_picture_as_it_is_treated) {
    clsDib picture;
    picture.eType = PictureKind::Png;
    picture.Create(8, 8, 32);
    for (Long y = 0; y < 8; ++y)
        for (Long x = 0; x < 8; ++x) {
            Byte* pixel = picture.Row(y) + 4 * x;
            pixel[0] = pixel[1] = pixel[2] = x < 4 ? 255 : static_cast<Byte>(8 * y);
            pixel[3] = 255;
        }
    BitmapEditor editor(picture, {});
    EXPECT_EQ(editor.Preview().ADib.at(0), 255);
    EXPECT_FALSE(editor.PickColor(8, 0));
    EXPECT_TRUE(editor.PickColor(1, 1));
    editor.Transparent(true);
    EXPECT_EQ(editor.Preview().ADib.at(0), 0);
    EXPECT_EQ(editor.Preview().ADib.at(4), 255);
    EXPECT_EQ(editor.NumberLabel(), u"");
    editor.EdgeTreatment(BitmapEditor::Edges::Blur);
    EXPECT_EQ(editor.NumberLabel(), u"強度：");
    EXPECT_EQ(editor.Options().ShadingNum, 20);
    editor.Number(1);
    // Weights 1, 2, 1 across: of the column left of the edge a quarter lies in what is opaque.
    EXPECT_EQ(editor.Preview().ADib.at(3), 63);
    editor.EdgeTreatment(BitmapEditor::Edges::ColorRange);
    EXPECT_EQ(editor.NumberLabel(), u"範囲：");
    editor.Number(1000);
    EXPECT_EQ(editor.Options().ShadingNum, 442);
    editor.EdgeTreatment(BitmapEditor::Edges::None);
    editor.Transparent(false);
    const std::size_t whole = editor.MovieSize();
    editor.JpegComp(true);
    editor.JpegQuality(0);
    EXPECT_EQ(editor.Options().JpegQuality, 1);
    EXPECT_NE(editor.Preview().Pixel(4, 7).rgbRed, 56);
    EXPECT_NE(editor.MovieSize(), whole);
}

TEST(TextRules, ask_for_what_a_text_needs) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    clsSymbolData symbol(KindText);
    auto& text = *symbol.Property<clsPropertyText>();
    EXPECT_FALSE(TextRules::CheckText(symbol, 4));
    text.InitialText = u"文字";
    EXPECT_TRUE(TextRules::CheckText(symbol, 4));
    EXPECT_TRUE(text.blAutoSize);
    EXPECT_FALSE(TextRules::ShowsEmbedding(symbol));
    text.blDynamic = true;
    text.blPassword = true;
    text.DefineText = u"abc";
    symbol.blExport = true;
    EXPECT_FALSE(TextRules::CheckText(symbol, 5));
    symbol.ObjectName = u"field";
    EXPECT_TRUE(TextRules::CheckText(symbol, 5));
    EXPECT_EQ(text.DefineText, u"*abc");
    EXPECT_TRUE(text.blAutoSize);
    EXPECT_TRUE(TextRules::CheckText(symbol, 4));
    EXPECT_FALSE(text.blAutoSize);
    EXPECT_TRUE(TextRules::ShowsEmbedding(symbol));
    text.FontName = u"_sans";
    EXPECT_FALSE(TextRules::ShowsEmbedding(symbol));
    std::vector<String> told;
    for (const auto& message : interface.Messages) told.push_back(message.Text);
    EXPECT_EQ(told, (std::vector<String>{
                        u"テキストが入力されていません。",
                        u"シンボル書き出し用の識別子を設定して下さい。",
                        u"パスワード表示時は、'*'を埋め込む必要があります。\r\n'*'を埋め込みます。",
                        u"SWF4では、ダイナミックテキストの自動サイズは使用できません。\r\n"
                        u"正しく表示されません。"}));
}

}  // namespace
}  // namespace tamber
