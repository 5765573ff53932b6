#include "app/fields/KeyFrameFields.h"
#include "document/elements/clsLayerObjElement.h"
#include "document/elements/clsObjFrameLabel.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "tests/support/ControllerTest.h"
#include "tests/support/TimelineText.h"

namespace tamber {
namespace {

class TimelineCommands : public ControllerTest {
protected:
    /// Puts a row at the top of the edited timeline, without a step.
    void AddRow(const std::string& spans, Long kind = KindFrameLabel, StringView name = {}) {
        auto layer = LayerOf(kind, spans);
        layer->LayerName = name;
        main_.colEditLayer()->Insert(layer, 1);
    }
    void Place(Long symbol, Long row) {
        main_.SelectSymbols(symbol, symbol);
        main_.AddToLayer(row, false, false);
    }
    Long Steps() const { return main_.cUndoRedo().TotalHistory; }
    clsLayerObjElement& Placement(Long row, Long index) const {
        return *Row(row).Object(index)->Placement();
    }
};

TEST_F(TimelineCommands, cut_paste_and_undo_key_frames) {
    AddRow("1-2 3-4 10-12");
    main_.ChangeSelectIndex(1, 1);
    main_.SelectFrames(4, 1);
    main_.mnuCutKeyFrames();
    EXPECT_EQ(Spans(Row(1)), "10-12");
    main_.SelectFrames(9, 9);
    main_.mnuPasteKeyFrames();
    EXPECT_EQ(Spans(Row(1)), "9-10 11-12 13-15");
    EXPECT_EQ(Row(1).SelectIndex, 1);
    EXPECT_EQ(main_.SelFrame2(), 12);
    main_.SelectFrames(11, 11);
    main_.mnuInsertKeyFrames();
    EXPECT_EQ(Spans(Row(1)), "9-10 11-12 13-14 15-16 17-19");
    main_.SelectFrames(10, 10);
    main_.mnuOverWriteKeyFrames();
    EXPECT_EQ(Spans(Row(1)), "9-9 10-11 12-13 15-16 17-19");
    // The background reaches to the end of all.
    EXPECT_EQ(Spans(Row(2)), "1-19F");
    EXPECT_EQ(Steps(), 4);
    for (int i = 0; i < 4; ++i) main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.colEditLayer()->Count(), 1);
    EXPECT_FALSE(main_.CanUndo());
    for (int i = 0; i < 4; ++i) main_.mnuUndoRedo(1);
    EXPECT_EQ(Spans(Row(1)), "9-9 10-11 12-13 15-16 17-19");
}

TEST_F(TimelineCommands, out_of_place_do_nothing) {
    main_.SelectFrames(3, 3);
    main_.mnuPasteKeyFrames();
    main_.mnuAddKeyFrame();
    main_.mnuPasteLayer();
    main_.mnuRemoveLayer();
    main_.mnuRemoveKeyFrames();
    main_.mnuShiftLeftAll();
    main_.mnuShiftRightAll();
    main_.cmdCopyLObject(0);
    main_.AddToLayer(1, false, false);
    EXPECT_FALSE(main_.ChangeLayerSymbol(1));
    EXPECT_EQ(Spans(Row(1)), "1-1F");
    EXPECT_EQ(Steps(), 0);
    EXPECT_TRUE(interface_.Messages.empty());
    // A copied span that does not start in the range leaves nothing to paste.
    AddRow("1-9");
    main_.SelectFrames(4, 6);
    main_.mnuCopyKeyFrames();
    main_.mnuPasteKeyFrames();
    // A taken frame takes no second key frame, and the last one stays.
    main_.SelectFrames(1, 9);
    main_.mnuAddKeyFrame();
    main_.mnuRemoveKeyFrames();
    EXPECT_EQ(Spans(Row(1)), "1-9");
    EXPECT_EQ(Steps(), 0);
    // Onto the background nothing is pasted.
    main_.mnuCopyKeyFrames();
    main_.ChangeSelectIndex(2, 2);
    main_.mnuInsertKeyFrames();
    EXPECT_EQ(Steps(), 0);
}

TEST_F(TimelineCommands, removing_leaves_what_is_fixed_before_as_it_is) {
    AddRow("1-3F 4-6 9-9");
    main_.ChangeSelectIndex(1, 1);
    main_.SelectFrames(4, 4);
    main_.mnuRemoveKeyFrames();
    EXPECT_EQ(Spans(Row(1)), "1-3F 9-9");
}

TEST_F(TimelineCommands, flags_stretch_the_span) {
    AddRow("1-2 6-8");
    AddRow("1-20");
    main_.ChangeSelectIndex(2, 2);
    main_.SelectFrames(1, 1);
    main_.chkFixed(true);
    EXPECT_EQ(Spans(Row(2)), "1-5F 6-8");
    main_.chkFixed(false);
    EXPECT_EQ(Spans(Row(2)), "1-5 6-8");
    main_.SelectFrames(6, 6);
    main_.chkFixed(true);
    EXPECT_EQ(Spans(Row(2)), "1-5 6-20F");
    EXPECT_EQ(Spans(Row(3)), "1-20F");
    main_.chkFixed(false);
    main_.chkTween(true);
    EXPECT_EQ(Spans(Row(2)), "1-5 6-6T");
    EXPECT_EQ(Steps(), 5);
    main_.chkTween(true);
    EXPECT_EQ(Steps(), 5);
    EXPECT_FALSE(main_.ChangeStartFrame(1));
    EXPECT_TRUE(main_.ChangeStartFrame(9));
    EXPECT_TRUE(main_.ChangeDispCount(3));
    EXPECT_EQ(Spans(Row(2)), "1-5 9-11T");
    EXPECT_EQ(Steps(), 7);
}

TEST_F(TimelineCommands, a_changed_key_frame_is_shown_on_the_canvas) {
    Place(AddSprite(10), 1);
    watcher_.Take();
    const auto moveTo = [this](Single x) {
        return main_.ChangeKeyFrame(u"X", [x](clsLayerObject& object) {
            object.Placement()->X(x);
            return true;
        });
    };
    EXPECT_TRUE(moveTo(5));
    EXPECT_TRUE(watcher_.Take().Has(Change::KeyFrames));
    EXPECT_TRUE(moveTo(5));
    EXPECT_TRUE(watcher_.Take().Empty());
    // The next one joins the step.
    EXPECT_TRUE(moveTo(6));
    EXPECT_EQ(Steps(), 2);
}

TEST_F(TimelineCommands, a_fixed_key_frame_leaves_the_timeline_as_long_as_it_is) {
    AddRow("1-10");
    main_.ChangeSelectIndex(1, 1);
    main_.SelectFrames(1, 1);
    main_.chkFixed(true);
    EXPECT_EQ(Spans(Row(1)), "1-10F");
    main_.chkFixed(false);
    EXPECT_EQ(Spans(Row(1)), "1-10");
    EXPECT_EQ(Spans(Row(2)), "1-10F");
}

TEST_F(TimelineCommands, elements_are_copied_from_the_neighbour_and_keep_their_path) {
    AddSprite(10);
    Place(1, 1);
    main_.ChangeSelectIndex(1, 1);
    main_.SelectFrames(5, 5);
    main_.mnuAddKeyFrame();
    Placement(1, 1).X(40);
    auto point = std::make_shared<clsTweenPointData>();
    point->X = 7;
    Placement(1, 2).Addtp(point);
    const Long steps = Steps();
    main_.cmdCopyLObject(0);
    EXPECT_EQ(Placement(1, 2).X(), 40);
    ASSERT_EQ(Placement(1, 2).tpCount(), 1);
    EXPECT_EQ(Placement(1, 2).TweenPoint(1)->X, 7);
    EXPECT_EQ(Steps(), steps + 1);
    // The same values again, and no neighbour.
    main_.cmdCopyLObject(0);
    main_.cmdCopyLObject(1);
    EXPECT_EQ(Steps(), steps + 1);
}

TEST_F(TimelineCommands, edits_of_one_box_are_one_step) {
    AddSprite(10);
    Place(1, 1);
    const Long steps = Steps();
    const auto edit = [this](StringView field, StringView value) {
        return main_.ChangeKeyFrame(
            field, [&](clsLayerObject& object) { return SetKeyFrameField(object, field, value); });
    };
    EXPECT_TRUE(edit(u"X", u"1.25"));
    EXPECT_TRUE(edit(u"X", u"3"));
    EXPECT_EQ(Steps(), steps + 1);
    EXPECT_TRUE(edit(u"Glow.BlurX", u"9"));
    EXPECT_TRUE(edit(u"X", u"4"));
    EXPECT_EQ(Steps(), steps + 3);
    EXPECT_TRUE(edit(u"X", u"4"));
    EXPECT_EQ(Steps(), steps + 3);
    // Another selection ends the run.
    main_.SelectFrames(1, 1);
    EXPECT_TRUE(edit(u"X", u"5"));
    EXPECT_EQ(Steps(), steps + 4);
    EXPECT_FALSE(edit(u"Toumei", u"101"));
    EXPECT_FALSE(edit(u"LabelName", u"a"));
    EXPECT_THROW(edit(u"X", u"far"), RuntimeError);
    EXPECT_EQ(Placement(1, 1).X(), 5);
    EXPECT_EQ(Placement(1, 1).inFilter->fltGlow.BlurX(), 9);
    main_.mnuUndoRedo(0);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Placement(1, 1).X(), 3);
}

TEST_F(TimelineCommands, fields_set_what_the_key_frame_shows) {
    struct Case {
        Long Kind;
        StringView Field;
        StringView Value;
        bool Done;
    };
    const Case cases[]{
        {KindSprite, u"blFreeTrans", u"True", false},
        {KindVector, u"FreeTransPoint8", u"-20", true},
        {KindVector, u"FreeTransPoint9", u"1", false},
        {KindBitmap, u"eBlend", u"15", false},
        {KindLayerFolder, u"LayerCount", u"4", false},
        {KindLayerFolder, u"blVisible", u"False", true},
    };
    for (const Case& c : cases) {
        const auto layer = LayerOf(c.Kind, "1-1");
        const auto before = layer->Object(1)->Copy();
        EXPECT_EQ(SetKeyFrameField(*layer->Object(1), c.Field, c.Value), c.Done)
            << ToNarrow(c.Field);
        EXPECT_NE(layer->Object(1)->Compare(*before), c.Done) << ToNarrow(c.Field);
    }
}

TEST_F(TimelineCommands, rows_are_cut_and_pasted_above_the_selected_one) {
    AddRow("1-1", KindFrameLabel, u"c");
    AddRow("1-1", KindFrameLabel, u"b");
    AddRow("1-1", KindFrameLabel, u"a");
    main_.ChangeSelectIndex(1, 2);
    main_.mnuCutLayer();
    EXPECT_EQ(Rows(*main_.colEditLayer()), "c ");
    EXPECT_EQ(main_.SelIndex1(), 1);
    main_.ChangeSelectIndex(2, 2);
    main_.mnuPasteLayer();
    main_.mnuPasteLayer();
    EXPECT_EQ(Rows(*main_.colEditLayer()), "c a b a b ");
    EXPECT_EQ(main_.SelIndex1(), 2);
    EXPECT_EQ(main_.SelIndex2(), 3);
    main_.ChangeSelectIndex(4, 3);
    main_.mnuRemoveLayer();
    EXPECT_EQ(Rows(*main_.colEditLayer()), "c a b ");
    EXPECT_EQ(main_.SelIndex1(), 3);
    EXPECT_EQ(main_.SelIndex2(), 3);
    main_.ChangeSelectIndex(1, 99);
    EXPECT_EQ(main_.SelIndex2(), 4);
    main_.mnuRemoveLayer();
    EXPECT_EQ(main_.colEditLayer()->Count(), 1);
    main_.mnuAddLayer_Folder(u"箱");
    EXPECT_EQ(Rows(*main_.colEditLayer()), "箱(0) ");
}

TEST_F(TimelineCommands, a_sprite_never_shows_itself) {
    const Long outer = AddSprite(10);
    const Long inner = AddSprite(10);
    auto button = std::make_shared<clsSymbolData>(KindButton);
    button->ID = button->Index = 3;
    button->Property<clsPropertyButton>()->UpSymbol((*main_.colSymbol())(outer));
    main_.colSymbol()->Add(button);
    const auto nameOf = [this](Long index) { return (*main_.colSymbol())(index)->Value(); };
    Place(outer, 1);
    main_.mnuCopyLayer();
    main_.ChangeSprite(outer);
    Place(inner, 1);
    main_.ChangeSprite(inner);
    const auto expectRefused = [&](Long symbol) {
        ASSERT_EQ(interface_.Messages.size(), 1u);
        EXPECT_EQ(interface_.Messages[0].Text,
                  u"「" + nameOf(symbol) + u"」\r\n循環参照になります。");
        EXPECT_EQ(interface_.Messages[0].Title, u"循環参照");
        interface_.Messages.clear();
    };
    for (const Long symbol : {outer, inner, button->Index}) {
        Place(symbol, 1);
        EXPECT_TRUE(main_.colEditLayer()->Empty());
        expectRefused(symbol);
    }
    main_.mnuPasteLayer();
    EXPECT_TRUE(main_.colEditLayer()->Empty());
    expectRefused(outer);
    const Long third = AddSprite(10);
    Place(third, 1);
    EXPECT_FALSE(main_.ChangeLayerSymbol(outer));
    expectRefused(outer);
    EXPECT_EQ(Row(1).SymbolData(), (*main_.colSymbol())(third));
}

TEST_F(TimelineCommands, rows_take_another_symbol_and_usable_names) {
    AddSprite(10);
    auto picture = std::make_shared<clsSymbolData>(KindBitmap);
    picture->ID = picture->Index = 2;
    main_.colSymbol()->Add(picture);
    Place(1, 1);
    Placement(1, 1).X(33);
    EXPECT_TRUE(main_.ChangeInstanceName(u"hero_1"));
    for (const StringView name : {u"1st", u"_x", u"主人公", u"a b"}) {
        EXPECT_FALSE(main_.ChangeInstanceName(name));
        EXPECT_EQ(interface_.Messages.back().Text,
                  u"・半角英数字とアンダースコア( _ )のみを使用して下さい\r\n"
                  u"・最初の文字は英字にして下さい");
    }
    EXPECT_EQ(Row(1).InstanceName, u"hero_1");
    const Long steps = Steps();
    EXPECT_TRUE(main_.ChangeLayerSymbol(2));
    EXPECT_EQ(Placement(1, 1).X(), 33);
    EXPECT_EQ(Row(1).Object(1)->SymbolType(), KindBitmap);
    EXPECT_FALSE(main_.ChangeInstanceName(u"picture"));
    EXPECT_EQ(Steps(), steps + 1);
    // The background shows nothing of the library.
    main_.ChangeSelectIndex(2, 2);
    EXPECT_FALSE(main_.ChangeLayerSymbol(2));
}

TEST_F(TimelineCommands, a_class_keeps_rows_of_one_action_each) {
    auto symbol = std::make_shared<clsSymbolData>(KindClass);
    symbol->Index = 1;
    main_.colSymbol()->Add(symbol);
    auto& layers = *symbol->Property<clsPropertyClass>()->colLayer;
    if (layers.Empty()) layers.Add(LayerOf(KindFrameAction, "1-1"));
    AddRow("1-1");
    main_.ChangeSelectIndex(1, 1);
    main_.mnuCopyLayer();
    main_.ChangeSprite(1);
    main_.SelectFrames(5, 5);
    main_.mnuAddKeyFrame();
    main_.mnuPasteLayer();
    main_.mnuRemoveLayer();
    main_.mnuAddLayer_FrameLabel();
    EXPECT_EQ(layers.Count(), 1);
    main_.mnuAddLayer_FrameAction();
    ASSERT_EQ(layers.Count(), 2);
    EXPECT_EQ(Spans(*layers(1)), "1-1");
    EXPECT_EQ(Spans(*layers(2)), "1-1");
}

TEST_F(TimelineCommands, the_cursor_jumps_to_labels) {
    AddRow("1-1 7-7");
    Row(1).Object(2)->ObjectAs<clsObjFrameLabel>()->LabelName = u"着地";
    EXPECT_TRUE(main_.mnuJump(u"着地"));
    EXPECT_EQ(main_.SelFrame1(), 7);
    EXPECT_FALSE(main_.mnuJump(u"離陸"));
    EXPECT_EQ(main_.SelFrame1(), 7);
    main_.mnuJump(0);
    EXPECT_EQ(main_.SelFrame1(), 1);
    main_.mnuJump(70000);
    EXPECT_EQ(main_.SelFrame1(), 65535);
}

}  // namespace
}  // namespace tamber
