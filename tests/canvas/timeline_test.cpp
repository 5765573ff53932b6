#include <gtest/gtest.h>

#include "canvas/timeline/FrameClipboard.h"
#include "canvas/timeline/FrameLabels.h"
#include "canvas/timeline/FrameShift.h"
#include "canvas/timeline/KeyFrameSpan.h"
#include "document/edit/TimelineLength.h"
#include "document/elements/clsLayerObjElement.h"
#include "document/elements/clsObjFrameLabel.h"
#include "tests/support/TimelineText.h"

namespace tamber {
namespace {

TEST(FrameClipboard, takes_the_key_frames_that_start_in_the_range) {
    struct Case {
        const char* Layer;
        Long Frame1;
        Long Frame2;
        const char* Copied;
        Long Frames;
    };
    const Case cases[]{
        {"1-10", 3, 5, "", 0},
        {"1-2 4-5 8-9", 3, 6, "2-3", 4},
        {"1-2 4-5 8-9", 6, 3, "2-3", 4},
        {"1-2 4-9 10-12", 4, 6, "1-3", 3},
        {"1-3T 4-9F 10-12", 1, 6, "1-3T 4-4F", 6},
        {"1-3 4-9T 10-12", 4, 9, "1-1T", 6},
    };
    for (const Case& c : cases) {
        FrameClipboard clipboard;
        clipboard.Copy(*LayerOf(KindSprite, c.Layer), c.Frame1, c.Frame2);
        EXPECT_EQ(clipboard.Empty(), c.Frames == 0);
        if (clipboard.Empty()) continue;
        clsLayer shown;
        shown.colObject = *clipboard.colCopyFrames;
        EXPECT_EQ(Spans(shown), c.Copied);
        EXPECT_EQ(clipboard.CopyFrameCount, c.Frames);
    }
}

TEST(FrameClipboard, pastes_with_as_much_room_as_is_asked_for) {
    using Room = FrameClipboard::Room;
    struct Case {
        const char* Source;
        Long Frame1;
        Long Frame2;
        const char* Target;
        Long At;
        Room How;
        const char* After;
        Long First;
    };
    // The timeline ends with frame 30.
    const Case cases[]{
        // Nothing behind, or far behind: nothing moves.
        {"1-2 3-4", 1, 4, "1-1", 5, Room::AsNeeded, "1-1 5-6 7-8", 2},
        {"1-2 3-4", 1, 4, "1-1 20-21", 5, Room::AsNeeded, "1-1 5-6 7-8 20-21", 2},
        // Gives way by the overlap alone: 5 + 4 - 1 against 7.
        {"1-2 3-4", 1, 4, "1-1 7-8", 5, Room::AsNeeded, "1-1 5-6 7-8 9-10", 2},
        {"1-2 3-4", 1, 4, "1-1 7-8", 5, Room::Insert, "1-1 5-6 7-8 11-12", 2},
        {"1-2 3-4", 1, 4, "1-1 7-8 10-10", 5, Room::Clear, "1-1 5-6 7-8 10-10", 2},
        // The layer may be empty for a moment.
        {"1-2 3-4", 1, 4, "2-9", 1, Room::Clear, "1-2 3-4", 1},
        // A span that the paste falls into is cut.
        {"1-2", 1, 2, "1-10", 4, Room::Insert, "1-3 4-5", 2},
        {"1-2", 1, 2, "1-10F", 4, Room::Insert, "1-3F 4-5", 2},
        // The last one reaches the next key frame, or the timeline's end.
        {"1-9T 10-10", 1, 9, "1-1 20-21", 5, Room::AsNeeded, "1-1 5-19T 20-21", 2},
        {"1-9F", 1, 9, "1-1", 5, Room::AsNeeded, "1-1 5-30F", 2},
    };
    for (const Case& c : cases) {
        FrameClipboard clipboard;
        clipboard.Copy(*LayerOf(KindSprite, c.Source), c.Frame1, c.Frame2);
        const auto target = LayerOf(KindSprite, c.Target);
        EXPECT_EQ(clipboard.Paste(*target, c.At, c.How, 30), c.First) << c.After;
        EXPECT_EQ(Spans(*target), c.After);
    }
}

TEST(FrameClipboard, gives_fresh_copies_of_the_layers_kind) {
    const auto source = LayerOf(KindSprite, "1-2");
    source->Object(1)->Placement()->X(12.5f);
    FrameClipboard clipboard;
    clipboard.Copy(*source, 1, 2);
    source->Object(1)->Placement()->X(1);
    const auto target = LayerOf(KindBitmap, "1-1");
    clipboard.Paste(*target, 5, FrameClipboard::Room::AsNeeded, 1);
    clipboard.Paste(*target, 9, FrameClipboard::Room::AsNeeded, 1);
    EXPECT_EQ(Spans(*target), "1-1 5-6 9-10");
    target->Object(2)->Placement()->X(3);
    EXPECT_EQ(target->Object(3)->Placement()->X(), 12.5f);
    EXPECT_EQ(target->Object(3)->Object->eType(), KindBitmap);
    EXPECT_EQ(target->Object(3)->SymbolType(), KindBitmap);
}

TEST(Timeline, ends_where_a_layer_ends_that_is_not_stretched) {
    struct Case {
        std::vector<const char*> Layers;
        Long Last;
        std::vector<const char*> Fitted;
    };
    const Case cases[]{
        {{}, 1, {}},
        {{"1-10F"}, 1, {"1-1F"}},
        {{"1-10F", "1-4"}, 4, {"1-4F", "1-4"}},
        {{"1-2 8-20F", "1-4"}, 8, {"1-2 8-8F", "1-4"}},
        {{"1-2F 8-20", "1-1F"}, 20, {"1-2F 8-20", "1-20F"}},
        // An empty key frame counts for nothing; the one before it is not the layer's last.
        {{"1-9F 10-30E", "1-4"}, 9, {"1-9F 10-30E", "1-4"}},
        {{"1-9E"}, 1, {"1-9E"}},
    };
    for (const Case& c : cases) {
        Collection<clsLayer> layers;
        for (const char* spans : c.Layers) layers.Add(LayerOf(KindSprite, spans));
        EXPECT_EQ(LastFrame(layers), c.Last);
        FitFixedKeyFrames(layers);
        for (Long i = 1; i <= layers.Count(); ++i)
            EXPECT_EQ(Spans(*layers(i)), c.Fitted[static_cast<std::size_t>(i - 1)]);
    }
}

TEST(Timeline, shifts_the_rows_that_are_selected) {
    const auto make = [] {
        Collection<clsLayer> layers;
        layers.Add(LayerOf(KindSprite, "1-2 4-4"));
        layers.Add(LayerOf(KindLayerFolder, "1-1"));
        layers.Add(LayerOf(KindSprite, "2-3"));
        layers.Add(LayerOf(KindBackGround, "1-9"));
        layers(2)->Folder()->LayerCount = 1;
        layers(3)->ParentFolder(layers(2));
        return layers;
    };
    const auto all = [](const Collection<clsLayer>& layers) {
        std::string text;
        for (const auto& layer : layers) text += (text.empty() ? "" : " | ") + Spans(*layer);
        return text;
    };
    struct Case {
        Long Row1;
        Long Row2;
        ShiftDirection Direction;
        bool Changed;
        const char* After;
    };
    const Case cases[]{
        {4, 1, ShiftDirection::Right, true, "1-4 6-6 | 1-1 | 4-5 | 1-9"},
        {2, 2, ShiftDirection::Right, true, "1-2 4-4 | 1-1 | 4-5 | 1-9"},
        {1, 1, ShiftDirection::Right, true, "1-4 6-6 | 1-1 | 2-3 | 1-9"},
        // By itself the background moves too.
        {4, 4, ShiftDirection::Right, true, "1-2 4-4 | 1-1 | 2-3 | 1-11"},
        {1, 1, ShiftDirection::Left, true, "1-1 2-2 | 1-1 | 2-3 | 1-9"},
        {3, 3, ShiftDirection::Left, false, "1-2 4-4 | 1-1 | 2-3 | 1-9"},
        {5, 5, ShiftDirection::Right, false, "1-2 4-4 | 1-1 | 2-3 | 1-9"},
    };
    for (const Case& c : cases) {
        const Collection<clsLayer> layers = make();
        EXPECT_EQ(ShiftSelected(layers, c.Row1, c.Row2, 3, 2, c.Direction), c.Changed);
        EXPECT_EQ(all(layers), c.After);
    }
    // The end of the first span goes with the removed frames.
    Collection<clsLayer> overlapping;
    overlapping.Add(LayerOf(KindSprite, "1-5 7-9"));
    EXPECT_TRUE(ShiftSelected(overlapping, 1, 1, 4, 6, ShiftDirection::Left));
    EXPECT_EQ(Spans(*overlapping(1)), "1-3 4-6");
    Collection<clsLayer> background;
    background.Add(LayerOf(KindBackGround, "1-9"));
    EXPECT_FALSE(ShiftRows(background, {1, 1}, 1, 1, ShiftDirection::Right));
}

TEST(KeyFrameSpan, stays_between_its_neighbours) {
    struct Case {
        const char* Before;
        Long Index;
        Long Start;
        bool Done;
        const char* After;
    };
    const Case starts[]{
        {"1-3 5-6 9-9", 2, 1, false, "1-3 5-6 9-9"}, {"1-3 5-6 9-9", 2, 9, false, "1-3 5-6 9-9"},
        {"1-3 5-6 9-9", 2, 3, true, "1-2 3-4 9-9"},  {"1-3 5-6 9-9", 2, 8, true, "1-3 8-8 9-9"},
        {"1-3 5-6 9-9", 1, 0, false, "1-3 5-6 9-9"}, {"1-4T 5-6", 2, 8, true, "1-7T 8-9"},
        {"1-4 5-6F", 2, 8, true, "1-4 8-20F"},
    };
    for (const Case& c : starts) {
        const auto layer = LayerOf(KindSprite, c.Before);
        EXPECT_EQ(MoveStart(*layer, c.Index, c.Start, 20), c.Done);
        EXPECT_EQ(Spans(*layer), c.After);
    }
    const Case lengths[]{
        {"1-3 5-6", 1, 4, true, "1-4 5-6"},    {"1-3 5-6", 1, 5, false, "1-3 5-6"},
        {"1-3 5-6", 2, 90, true, "1-3 5-94"},  {"1-3F", 1, 2, false, "1-3F"},
        {"1-4T 5-6", 1, 2, false, "1-4T 5-6"}, {"1-3 5-6", 2, 0, false, "1-3 5-6"},
        {"1-3T", 1, 2, true, "1-2T"},
    };
    for (const Case& c : lengths) {
        const auto layer = LayerOf(KindSprite, c.Before);
        EXPECT_EQ(SetLength(*layer, c.Index, c.Start), c.Done);
        EXPECT_EQ(Spans(*layer), c.After);
    }
}

TEST(FrameLabels, are_listed_by_frames) {
    Collection<clsLayer> layers;
    for (const char* spans : {"3-3 9-9", "1-1 9-9 20-20"})
        layers.Add(LayerOf(KindFrameLabel, spans));
    const auto name = [&layers](Long row, Long index, StringView text) {
        layers(row)->Object(index)->ObjectAs<clsObjFrameLabel>()->LabelName = text;
    };
    name(1, 1, u"b");
    name(1, 2, u"c");
    name(2, 1, u"a");
    name(2, 2, u"d");
    std::string shown;
    for (const FrameLabel& label : FrameLabels(layers))
        shown += ToNarrow(label.Name) + std::to_string(label.Frame) + " ";
    EXPECT_EQ(shown, "a1 b3 c9 d9 ");
}

}  // namespace
}  // namespace tamber
