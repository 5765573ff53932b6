#include <gtest/gtest.h>

#include "document/Project.h"
#include "document/elements/clsLayerFolder.h"
#include "document/elements/clsLayerObjElement.h"
#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyVector.h"
#include "platform/RuntimeError.h"

namespace tamber {
namespace {

struct Span {
    Long Start;
    Long Count;
    bool blFixed = false;
    bool blTween = false;
    bool operator==(const Span&) const = default;
};

void PrintTo(const Span& span, std::ostream* out) {
    *out << span.Start << "+" << span.Count << (span.blFixed ? "F" : "")
         << (span.blTween ? "T" : "");
}

std::shared_ptr<clsLayer> MakeLayer(const std::vector<Span>& spans, Long kind = KindBitmap) {
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(std::make_shared<clsSymbolData>(kind));
    for (const Span& span : spans) {
        Long index = 0;
        layer->Add(span.Start, nullptr, index);
        layer->Object(index)->DispCount(span.Count);
        layer->Object(index)->blFixed = span.blFixed;
        layer->Object(index)->blTween = span.blTween;
    }
    return layer;
}

std::vector<Span> Spans(const clsLayer& layer) {
    std::vector<Span> spans;
    for (const auto& object : layer.colObject)
        spans.push_back(
            {object->StartFrame(), object->DispCount(), object->blFixed, object->blTween});
    return spans;
}

TEST(Layer, adds_key_frames_in_order_and_refuses_a_taken_frame) {
    auto layer = MakeLayer({{5, 2}});
    Long index = 0;
    layer->Add(5, nullptr, index);
    EXPECT_EQ(index, -1);
    layer->Add(0, nullptr, index);
    EXPECT_EQ(index, 2);
    layer->Add(1, nullptr, index);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(Spans(*layer), (std::vector<Span>{{1, 1}, {5, 2}, {7, 1}}));
}

TEST(Layer, keeps_its_last_key_frame) {
    auto layer = MakeLayer({{1, 1}, {2, 1}});
    layer->SelectIndex = 2;
    layer->Remove(1);
    EXPECT_EQ(layer->SelectIndex, 1);
    layer->Remove(1);
    EXPECT_EQ(Spans(*layer), (std::vector<Span>{{2, 1}}));
    bool changed = true;
    layer->RemoveRange(1, 9, false, changed);
    EXPECT_FALSE(changed);
    layer->RemoveRange(1, 9, true, changed);
    EXPECT_TRUE(changed);
    EXPECT_EQ(layer->ObjectCount(), 0);
}

TEST(Layer, shifts_spans_right_and_left) {
    const struct {
        const char* Name;
        bool Right;
        Long F1, F2;
        std::vector<Span> Before, After;
        bool Changed;
    } cases[] = {
        {"a span grows", true, 4, 4, {{1, 10}, {11, 1}}, {{1, 11}, {12, 1}}, true},
        {"exchanged ends", true, 5, 4, {{1, 10}}, {{1, 12}}, true},
        {"behind the end", true, 11, 11, {{1, 10}}, {{1, 10}}, false},
        {"from the start", true, 1, 2, {{1, 1}}, {{3, 1}}, true},
        {"the only key frame stays", false, 2, 4, {{3, 1}}, {{2, 1}}, true},
        {"only one starting there", false, 3, 4, {{3, 1}}, {{3, 1}}, false},
        {"a plain span shrinks", false, 2, 3, {{1, 5}, {6, 1}}, {{1, 3}, {4, 1}}, true},
        {"a plain span that ends within stays",
         false,
         4,
         7,
         {{1, 5}, {9, 1}},
         {{1, 5}, {5, 1}},
         true},
        {"a key frame goes", false, 3, 4, {{1, 2}, {3, 2}, {5, 1}}, {{1, 2}, {3, 1}}, true},
        {"a tween meets the next",
         false,
         3,
         4,
         {{1, 4, false, true}, {5, 1}},
         {{1, 2, false, true}, {3, 1}},
         true},
        {"a fixed last one loses",
         false,
         3,
         4,
         {{1, 2}, {3, 2}, {5, 9, true}},
         {{1, 2}, {3, 9, true}},
         true},
    };
    for (const auto& c : cases) {
        auto layer = MakeLayer(c.Before);
        bool changed = !c.Changed;
        if (c.Right)
            layer->ShiftRight(c.F1, c.F2, changed);
        else
            layer->ShiftLeft(c.F1, c.F2, changed);
        EXPECT_EQ(Spans(*layer), c.After) << c.Name;
        EXPECT_EQ(changed, c.Changed) << c.Name;
    }
}

TEST(Layer, fits_the_spans_around_a_moved_key_frame) {
    const struct {
        const char* Name;
        std::vector<Span> Before;
        Long Index;
        Long Last;
        std::vector<Span> After;
    } cases[] = {
        {"fixed last one reaches the end", {{3, 1, true}}, 1, 10, {{3, 8, true}}},
        {"fixed last one behind the end", {{12, 5, true}}, 1, 10, {{12, 1, true}}},
        {"tween reaches the next",
         {{1, 1, false, true}, {8, 1}},
         1,
         8,
         {{1, 7, false, true}, {8, 1}}},
        {"plain one before is only cut", {{1, 6}, {4, 1}}, 2, 8, {{1, 3}, {4, 1}}},
        {"plain one before is not stretched", {{1, 2}, {6, 1}}, 2, 8, {{1, 2}, {6, 1}}},
        {"fixed one before is stretched", {{1, 2, true}, {6, 1}}, 2, 8, {{1, 5, true}, {6, 1}}},
    };
    for (const auto& c : cases) {
        auto layer = MakeLayer(c.Before);
        layer->ChangeStartFrame(c.Index, c.Last);
        EXPECT_EQ(Spans(*layer), c.After) << c.Name;
    }
}

TEST(Layer, finds_the_ends_of_tweens_and_blocks) {
    auto layer = MakeLayer({{1, 2}, {3, 2, false, true}, {5, 2, false, true}, {7, 2}, {10, 1}});
    EXPECT_EQ(layer->tweenStartFrame(4), 3);
    EXPECT_EQ(layer->tweenEndFrame(2), 7);
    EXPECT_EQ(layer->tweenEndFrame(5), 10);
    EXPECT_EQ(layer->blockStartFrame(4), 1);
    EXPECT_EQ(layer->blockEndFrame(1), 8);
    layer->Object(2)->blVisible = false;
    EXPECT_EQ(layer->blockStartFrame(4), 5);
    EXPECT_EQ(layer->blockEndFrame(1), 2);
}

TEST(Layer, refuses_frames_out_of_range) {
    clsLayerObject object;
    try {
        object.StartFrame(0);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number, static_cast<Long>(0x80040000));
        EXPECT_EQ(error.Source, u"clsLayer[StartFrame]");
        EXPECT_EQ(error.Description, u"範囲外の数値が設定されました。");
    }
    EXPECT_THROW(object.DispCount(0), RuntimeError);
    object.StartFrame(5);
    EXPECT_THROW(object.endFrame(4), RuntimeError);
    object.endFrame(7);
    EXPECT_EQ(object.DispCount(), 3);
}

TEST(Layer, folders_nest_and_hide_their_rows) {
    Collection<clsLayer> layers;
    for (const Long kind : {KindLayerFolder, KindLayerFolder, KindBitmap, KindBitmap})
        layers.Add(MakeLayer({{1, 1}}, kind));
    layers(1)->Folder()->LayerCount = 2;
    layers(2)->Folder()->LayerCount = 1;
    NestLayers(layers);
    EXPECT_EQ(layers(3)->FolderDepth(), 2);
    EXPECT_EQ(layers(4)->FolderDepth(), 0);
    layers(3)->Visible(false, false);
    EXPECT_FALSE(layers(1)->Visible(true));
    EXPECT_TRUE(layers(3)->Visible(true));
    EXPECT_FALSE(layers(3)->Visible(false));
    layers(2)->Folder()->Expand = false;
    EXPECT_FALSE(layers(3)->Expand(0));
    EXPECT_TRUE(layers(2)->Expand(0));
    EXPECT_FALSE(layers(2)->Expand(1));
    layers(2)->AddInFolder(3);
    EXPECT_EQ(layers(1)->Folder()->LayerCount, 5);
    EXPECT_EQ(layers(2)->Folder()->LayerCount, 4);
}

TEST(Layer, another_kind_of_symbol_keeps_placement_and_frames) {
    auto layer = MakeLayer({{2, 3, true}}, KindBitmap);
    layer->Object(1)->Placement()->X(12.5F);
    layer->SymbolData(std::make_shared<clsSymbolData>(KindVector));
    ASSERT_NE(layer->Object(1)->ObjectAs<clsObjVector>(), nullptr);
    EXPECT_EQ(layer->Object(1)->Placement()->X(), 12.5F);
    EXPECT_EQ(Spans(*layer), (std::vector<Span>{{2, 3, true}}));
}

TEST(Layer, copies_stand_alone) {
    auto layer = MakeLayer({{1, 1}});
    layer->Object(1)->Placement()->Addtp(std::make_shared<clsTweenPointData>());
    auto copy = layer->Copy();
    copy->Object(1)->Placement()->X(9);
    copy->Object(1)->StartFrame(4);
    EXPECT_EQ(copy->Object(1)->Placement()->tpCount(), 1);
    EXPECT_EQ(layer->Object(1)->Placement()->X(), 0);
    EXPECT_EQ(layer->Object(1)->StartFrame(), 1);
}

TEST(Layer, wraps_a_simple_action_in_its_event) {
    clsLayer layer;
    EXPECT_EQ(layer.Script(8), u"");
    layer.inScript.eScriptMode(clsScriptData::ModeStop);
    layer.OnEventName(u"rollout");
    EXPECT_EQ(layer.eOnEvent, 16384);
    EXPECT_EQ(layer.Script(8), u"on (rollout) {\r\n\tstop();\r\n}");
    layer.OnEventName(u"?");
    EXPECT_EQ(layer.eOnEvent, 1024);
    layer.eOnEvent = 0;
    EXPECT_EQ(layer.OnEventName(), u"press");
}

TEST(Layer, counts_its_depths) {
    auto layer = MakeLayer({{1, 1, false, true}, {2, 1}, {3, 1}}, KindVector);
    auto& drawing = *layer->SymbolData()->Property<clsPropertyVector>();
    auto artwork = std::make_shared<clsVectorData>();
    artwork->colShapeData.resize(4);
    drawing.inVector = artwork;
    EXPECT_EQ(layer->DepthCnt(true), 1);
    auto& bent = *layer->Object(2)->ObjectAs<clsObjVector>();
    bent.blDivide = true;
    bent.blFreeTrans = true;
    bent.FreeTransPoints[2] = 7;
    EXPECT_EQ(layer->DepthCnt(true), 1);
    bent.FreeTransPoints[4] = 7;
    EXPECT_EQ(layer->DepthCnt(true), 4);
    EXPECT_EQ(layer->DepthCnt(false), 1);
    drawing.blDivide = true;
    EXPECT_EQ(layer->DepthCnt(false), 4);
    layer->ClippingDepth = 2;
    EXPECT_EQ(layer->DepthCnt(true), 1);
    EXPECT_EQ(MakeLayer({{1, 1}}, KindSound)->DepthCnt(false), 0);
    auto hidden = MakeLayer({{1, 1}});
    EXPECT_EQ(hidden->DepthCnt(false), 1);
    hidden->Visible(true, false);
    EXPECT_EQ(hidden->DepthCnt(false), 0);
}

TEST(Placement, rounds_and_clamps_what_is_set) {
    clsLayerObjElement element;
    element.X(1.26F);
    EXPECT_EQ(element.X(), 1.3F);
    element.X(1.24F);
    EXPECT_EQ(element.X(), 1.2F);
    element.X(-0.25F);
    EXPECT_EQ(element.X(), -0.3F);
    element.ScaleX(20000);
    EXPECT_FLOAT_EQ(element.ScaleX(), 16383.9904F);
    element.ScaleX(-20000);
    EXPECT_EQ(element.ScaleX(), -16384.0F);
    element.SkewX(100);
    EXPECT_EQ(element.SkewX(), 89.0F);
    element.Angle(720);
    EXPECT_EQ(element.Angle(), 720.0F);
}

TEST(Placement, chooses_the_curve_in_use) {
    clsLayerObjElement element;
    EXPECT_EQ(&element.EdgingTbl(true), &element.EdgingTblXY);
    element.EdgingAllMode = 2;
    EXPECT_EQ(&element.EdgingTbl(false), &element.EdgingTblPrm);
    element.EdgingAllMode = 0;
    EXPECT_EQ(&element.EdgingTbl(false), &element.EdgingTblXY);
    EXPECT_EQ(&element.EdgingTbl(true), &element.EdgingTblPrm);
}

TEST(Placement, copies_the_path_only_when_asked) {
    clsLayerObjElement from;
    from.Addtp(std::make_shared<clsTweenPointData>());
    clsLayerObjElement to;
    from.X(3);
    from.CopyTo(to, false);
    EXPECT_TRUE(from.Compare(to));
    EXPECT_EQ(to.tpCount(), 0);
    from.CopyTo(to, true);
    EXPECT_EQ(to.tpCount(), 1);
    to.inFilter->blGlow = true;
    EXPECT_FALSE(from.Compare(to));
}

TEST(Script, composes_simple_actions) {
    const struct {
        Long Mode, Prm1, Prm2;
        StringView Str1, Str2, Target, Script, Comment;
        Long Version;
    } cases[] = {
        {-1, 0, 0, u"", u"", u"mc", u"free", u"", 8},
        {0, 0, 0, u"", u"", u"", u"play();", u"再生", 8},
        {1, 0, 0, u"", u"", u"mc", u"mc.stop();", u"停止", 5},
        {1, 0, 0, u"", u"", u"mc", u"mc/stop();", u"停止", 4},
        {2, 0, 0, u"5", u"", u"", u"gotoAndPlay(5);", u"ジャンプして再生(5)", 8},
        {2, 1, 1, u"a", u"", u"", u"gotoAndStop(\"a\");", u"ジャンプして停止(\"a\")", 8},
        {3, 0, 0, u"", u"", u"", u"prevFrame();", u"前のフレームへ移動して停止", 8},
        {4, 0, 0, u"", u"", u"", u"nextFrame();", u"次のフレームへ移動して停止", 8},
        {5, 0, 0, u"u", u"", u"", u"getURL(\"u\");", u"URLを取得(\"u\")", 8},
        {5, 0, 0, u"u", u"w", u"", u"getURL(\"u\",\"w\");", u"URLを取得(\"u\",\"w\")", 8},
        {9, 0, 0, u"", u"", u"mc", u"mc.", u"", 8},
    };
    for (const auto& c : cases) {
        clsScriptData script;
        script.ScriptText = u"free";
        script.eScriptMode(c.Mode);
        script.nPrm1 = c.Prm1;
        script.nPrm2 = c.Prm2;
        script.strPrm1 = c.Str1;
        script.strPrm2 = c.Str2;
        script.TargetPath = c.Target;
        EXPECT_EQ(script.Script(c.Version), c.Script);
        EXPECT_EQ(script.Comment(), c.Comment);
    }
}

TEST(Script, jump_mode_drops_parameters_of_other_modes) {
    clsScriptData script;
    script.nPrm1 = 7;
    script.nPrm2 = 1;
    script.eScriptMode(clsScriptData::ModeJump);
    EXPECT_EQ(script.nPrm1, 0);
    EXPECT_EQ(script.nPrm2, 1);
}

TEST(Script, is_cut_for_a_tool_tip) {
    clsScriptData script;
    script.ScriptText = u"a\t&bc";
    EXPECT_EQ(script.PrevScript(5, 8), u"a    &&bc");
    EXPECT_EQ(script.PrevScript(3, 8), u"a    &&...");
}

TEST(EdgingTable, is_edited_between_its_fixed_ends) {
    clsEdgingTable table;
    EXPECT_EQ(table.InsertPoint({0.5f, 2}), 1u);
    EXPECT_EQ(table.InsertPoint({0.25f, 0.5f}), 1u);
    EXPECT_EQ(table.InsertPoint({1, 0}), 3u);
    EXPECT_EQ(table.Points,
              (std::vector<EdgingPoint>{{0, 0}, {0.25f, 0.5f}, {0.5f, 1}, {1, 0}, {1, 1}}));
    EXPECT_TRUE(table.MovePoint(1, {0.75f, -1}));
    EXPECT_EQ(table.Points[1], (EdgingPoint{0.5f, 0}));
    EXPECT_FALSE(table.MovePoint(0, {0.5f, 0.5f}));
    EXPECT_FALSE(table.MovePoint(4, {0.5f, 0.5f}));
    EXPECT_EQ(table.FindPoint({0.52f, 0.9f}, {0.05f, 0.2f}), 2u);
    EXPECT_EQ(table.FindPoint({0, 0}, {0.05f, 0.2f}), std::nullopt);
    EXPECT_FALSE(table.RemovePoint(4));
    EXPECT_TRUE(table.RemovePoint(2));
    EXPECT_EQ(table.Points.size(), 4u);
    table.Reset();
    EXPECT_EQ(table, clsEdgingTable());
}

}  // namespace
}  // namespace tamber
