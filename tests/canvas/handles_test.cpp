#include <gtest/gtest.h>

#include <random>

#include "canvas/handles/HandleCursor.h"
#include "canvas/handles/ScaleDrag.h"
#include "canvas/handles/clsDragMove.h"
#include "canvas/handles/clsEditBounds.h"
#include "document/records/clsPropertySprite.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/twips.h"
#include "swf/mdlSWFTag.h"

namespace tamber {
namespace {

/// A sprite of 100 by 50 pixels at 200, 100, held at its middle.
class HandlesTest : public ::testing::Test {
protected:
    HandlesTest() {
        sprite_ = std::make_shared<clsSymbolData>(KindSprite);
        sprite_->Property<clsPropertySprite>()->Width = 100;
        sprite_->Property<clsPropertySprite>()->height = 50;
        layer_ = std::make_shared<clsLayer>();
        layer_->SymbolData(sprite_);
        AddKeyFrame(1);
        Element().X(200);
        Element().Y(100);
        Element().OffsetX(50);
        Element().OffsetY(25);
        bounds.Element = std::make_shared<clsLayerObjElement>();
        Select();
    }

    void AddKeyFrame(Long frame) {
        Long index = 0;
        layer_->Add(frame, nullptr, index);
    }
    clsLayerObjElement& Element(Long index = 1) { return *layer_->Object(index)->Placement(); }
    /// The handles take the layer's first key frame as it is now.
    void Select() {
        layer_->SelectIndex = 1;
        Element().CopyTo(*bounds.Element, true);
        bounds.Element->Cleartp();
        Element().TPCopyTo(*bounds.Element);
        bounds.EditLayer(layer_);
    }
    CanvasPoint PlaceOf(Long handle) const {
        return bounds.View.ToCanvas(ElementFrame(*bounds.Element, bounds.Box()).PlaceOf(handle));
    }
    /// Drags a handle from its place by pixels of the canvas.
    bool Drag(Long handle, CanvasPoint way, Long keys = 0) {
        const CanvasPoint from =
            handle == DragHandle::Offset
                ? bounds.View.ToCanvas({bounds.Element->X(), bounds.Element->Y()})
                : PlaceOf(handle);
        bounds.DragStatus = handle;
        bounds.SetDragMovePoint(from);
        return bounds.MoveDragPoint(from + way, keys);
    }
    std::array<Single, 7> Values() const {
        const clsLayerObjElement& e = *bounds.Element;
        return {e.X(), e.Y(), e.ScaleX(), e.ScaleY(), e.OffsetX(), e.OffsetY(), e.Angle()};
    }

    clsEditBounds bounds;
    std::shared_ptr<clsSymbolData> sprite_;
    std::shared_ptr<clsLayer> layer_;
};

void ExpectNear(CanvasPoint is, CanvasPoint wanted, double within) {
    EXPECT_NEAR(is.X, wanted.X, within);
    EXPECT_NEAR(is.Y, wanted.Y, within);
}

TEST_F(HandlesTest, the_frame_lies_where_the_movie_puts_the_symbol) {
    sprite_->Property<clsPropertySprite>()->baseX = 7;
    clsLayerObjElement& element = *bounds.Element;
    element.ScaleX(1.5f);
    element.ScaleY(-0.75f);
    element.Angle(33);
    element.SkewX(20);
    element.SkewY(-10);
    const auto tangent = [](double degrees) {
        return static_cast<Single>(std::tan(degrees * 3.14159265358979 / 180));
    };
    const SwfTransform matrix = mdlSWFTag::ComposeTransform(1.5f, -0.75f, 33, {4000, 2000},
                                                            {1000, 500}, tangent(20), tangent(-10));
    // The sprite's right lower corner, 100 - 7 and 50, through the placement's own matrix.
    const double x = 93;
    const double y = 50;
    const CanvasPoint wanted{
        matrix.ScaleX * x + matrix.RotateSkew1 * y + matrix.Translate.X / 20.0,
        matrix.RotateSkew0 * x + matrix.ScaleY * y + matrix.Translate.Y / 20.0};
    bounds.EditLayer(layer_);
    const ElementFrame frame(element, bounds.Box());
    ExpectNear(frame.PlaceOf(DragHandle::BottomRight), wanted, 0.06);
    const CanvasPoint back = frame.ToLocal(frame.ToStage({12, -5}));
    ExpectNear(back, {12, -5}, 1e-9);
    EXPECT_TRUE(frame.Contains(frame.ToStage({42.9, 24.9})));
    EXPECT_FALSE(frame.Contains(frame.ToStage({43.1, 0})));
}

TEST_F(HandlesTest, what_lies_under_the_mouse_is_told) {
    bounds.View = {2, 10, 20};
    // The frame is 150 to 250 by 75 to 125 on the stage.
    EXPECT_EQ(bounds.CkBounds({310, 170}), DragHandle::TopLeft);
    EXPECT_EQ(bounds.CkBounds({313, 167}), DragHandle::TopLeft);
    EXPECT_EQ(bounds.CkBounds({314, 180}), DragHandle::Body);
    EXPECT_EQ(bounds.CkBounds({306, 166}), DragHandle::None);
    EXPECT_EQ(bounds.CkBounds({510, 270}), DragHandle::BottomRight);
    EXPECT_EQ(bounds.CkBounds({310, 220}), DragHandle::Left);
    EXPECT_EQ(bounds.CkBounds({410, 220}), DragHandle::Offset);
    EXPECT_EQ(bounds.CkBounds(bounds.Show().Rotation), DragHandle::Rotation);
    // Handles of edges that are too short give way to the body.
    bounds.View = {0.3, 0, 0};
    EXPECT_EQ(bounds.Show().Squares.size(), 6u);
}

TEST_F(HandlesTest, cursors_follow_the_turned_frame) {
    struct Case {
        Long Handle;
        Single Angle, ScaleX;
        Long Cursor;
    };
    for (const Case& item : {
             Case{DragHandle::Top, 0, 1, HandleCursor::Vertical},
             Case{DragHandle::Top, 45, 1, HandleCursor::NorthEastSouthWest},
             Case{DragHandle::Right, 45, 1, HandleCursor::NorthWestSouthEast},
             Case{DragHandle::TopLeft, 0, 1, HandleCursor::NorthWestSouthEast},
             Case{DragHandle::TopLeft, 0, -1, HandleCursor::NorthEastSouthWest},
             Case{DragHandle::TopRight, -90, 1, HandleCursor::NorthWestSouthEast},
             Case{DragHandle::BottomLeft, 22, 1, HandleCursor::NorthEastSouthWest},
             Case{DragHandle::BottomLeft, 23, 1, HandleCursor::Horizontal},
             Case{DragHandle::Bottom, 535, 1, HandleCursor::Vertical},
             Case{DragHandle::TweenStart, 45, 1, HandleCursor::Move},
             Case{DragHandle::Offset, 45, 1, HandleCursor::Offset},
             Case{DragHandle::None, 45, 1, 0},
         }) {
        bounds.Element->Angle(item.Angle);
        bounds.Element->ScaleX(item.ScaleX);
        EXPECT_EQ(MousePointer(item.Handle, bounds.Element.get()), item.Cursor)
            << item.Handle << " at " << item.Angle;
    }
    EXPECT_EQ(MousePointer(DragHandle::Top, nullptr), HandleCursor::NoElement);
}

TEST_F(HandlesTest, each_handle_scales_moves_or_turns) {
    struct Case {
        const char* What;
        Long Handle;
        CanvasPoint Way;
        Long Keys;
        bool Fixed;
        std::array<Single, 7> Wanted;  // X, Y, ScaleX, ScaleY, OffsetX, OffsetY, Angle
    };
    for (const Case& item : {
             Case{"body", 1, {12.34, -5}, 0, false, {212.3f, 95, 1, 1, 50, 25, 0}},
             Case{"body held straight", 1, {12, -5}, 1, false, {212, 100, 1, 1, 50, 25, 0}},
             Case{"right edge", 7, {50, 9}, 0, false, {225, 100, 1.5f, 1, 50, 25, 0}},
             Case{"top edge upwards", 6, {0, -50}, 0, false, {200, 75, 1, 2, 50, 25, 0}},
             Case{"over the opposite edge", 9, {150, 0}, 0, false, {275, 100, -0.5f, 1, 50, 25, 0}},
             Case{"corner", 4, {100, 25}, 0, false, {250, 112.5f, 2, 1.5f, 50, 25, 0}},
             Case{"about the offset", 7, {25, 0}, 4, false, {200, 100, 1.5f, 1, 50, 25, 0}},
             Case{"about the offset, with Ctrl",
                  2,
                  {-50, -25},
                  2,
                  false,
                  {200, 100, 2, 2, 50, 25, 0}},
             // The corner at the lower left stands still.
             Case{"edge, fixed ratio", 6, {0, -50}, 0, true, {250, 75, 2, 2, 50, 25, 0}},
             Case{"corner, fixed ratio", 4, {100, 50}, 0, true, {250, 125, 2, 2, 50, 25, 0}},
             Case{"corner, ratio by Shift", 4, {100, 50}, 1, false, {250, 125, 2, 2, 50, 25, 0}},
             Case{"offset point", 10, {10, -5}, 0, false, {210, 95, 1, 1, 60, 20, 0}},
         }) {
        SCOPED_TRACE(item.What);
        Select();
        bounds.blFixedRatio = item.Fixed;
        EXPECT_TRUE(Drag(item.Handle, item.Way, item.Keys));
        EXPECT_EQ(Values(), item.Wanted);
    }
}

TEST_F(HandlesTest, turning_goes_around_the_offset_point) {
    bounds.DragStatus = DragHandle::Rotation;
    bounds.SetDragMovePoint({300, 100});
    bounds.MoveDragPoint({200, 200}, 0);
    EXPECT_EQ(bounds.Element->Angle(), 90);
    bounds.MoveDragPoint({300, 101}, 0);
    EXPECT_EQ(bounds.Element->Angle(), 0.57f);
    bounds.MoveDragPoint({300, 120}, DragKey::Shift);
    EXPECT_EQ(bounds.Element->Angle(), 15);
    EXPECT_EQ(bounds.Element->X(), 200);
}

TEST_F(HandlesTest, an_axis_does_not_collapse) {
    EXPECT_FALSE(Drag(DragHandle::Right, {-100, 0}));
    EXPECT_EQ(bounds.Element->ScaleX(), 1);
    // The offset point lies on the left edge: about it the left handles have nothing to scale.
    Element().OffsetX(0);
    Select();
    for (const Long handle : {DragHandle::TopLeft, DragHandle::BottomLeft, DragHandle::Left}) {
        EXPECT_TRUE(Drag(handle, {-30, -30}, DragKey::Alt));
        EXPECT_EQ(bounds.Element->ScaleX(), 1);
        EXPECT_EQ(bounds.Element->ScaleY(), 1);
    }
    // A symbol without a width.
    sprite_->Property<clsPropertySprite>()->Width = 0;
    Select();
    EXPECT_FALSE(Drag(DragHandle::Right, {30, 0}));
    EXPECT_EQ(bounds.Element->ScaleX(), 1);
}

TEST_F(HandlesTest, only_what_differs_is_a_change) {
    Drag(DragHandle::Body, {10, 0});
    EXPECT_TRUE(bounds.CkUpDate());
    bounds.MoveDragPoint(PlaceOf(DragHandle::Body) - CanvasPoint{10, 0}, 0);
    EXPECT_FALSE(bounds.CkUpDate());
    bounds.MoveDragPoint({0, 0}, 0);
    bounds.CancelDrag();
    EXPECT_EQ(bounds.Element->X(), 200);
    bounds.Nudge(-1, 10);
    EXPECT_EQ(bounds.Element->X(), 199);
    EXPECT_EQ(bounds.Element->Y(), 110);
}

/// What stands still while a handle is dragged does so to within a tenth of a pixel, whatever the
/// element looks like by then.
TEST_F(HandlesTest, a_walk_of_drags_keeps_still_what_is_to_stand_still) {
    std::mt19937 random(7);
    const auto upTo = [&](Long limit) { return static_cast<Long>(random() % unsigned(limit)); };
    bounds.View = {1.7, 33, -12};
    for (Long step = 0; step < 3000; ++step) {
        if (step % 50 == 0) Select();
        const Long handle = 2 + upTo(10);
        const bool about = upTo(3) == 0;
        bounds.blFixedRatio = upTo(2) == 0;
        bounds.Element->SkewX(static_cast<Single>(upTo(41) - 20));
        const ElementFrame before(*bounds.Element, bounds.Box());
        const CanvasPoint anchor = before.LocalOf(AnchorOf(handle));
        const CanvasPoint origin{bounds.Element->X(), bounds.Element->Y()};
        const Single offset = bounds.Element->OffsetX();
        Drag(handle, {double(upTo(61) - 30), double(upTo(61) - 30)}, about ? DragKey::Alt : 0);
        const ElementFrame after(*bounds.Element, bounds.Box());
        SCOPED_TRACE(step);
        if (handle == DragHandle::Offset) {
            for (std::size_t i = 0; i < 4; ++i)
                ExpectNear(after.Corners()[i], before.Corners()[i], 0.1);
        } else if (handle == DragHandle::Rotation || about) {
            EXPECT_EQ(bounds.Element->X(), static_cast<Single>(origin.X));
            EXPECT_EQ(bounds.Element->OffsetX(), offset);
        } else {
            ExpectNear(after.ToStage(anchor), before.ToStage(anchor), 0.1);
        }
        if (std::abs(bounds.Element->ScaleX()) > 20 || std::abs(bounds.Element->ScaleY()) > 20)
            Select();
    }
}

TEST_F(HandlesTest, a_drag_keeps_to_the_lines_near_it) {
    Snapping snap;
    snap.Reach = 5;
    snap.AddBox({300, 0, 400, 60});
    bounds.Snap = &snap;
    // The right edge at 250 comes to within 4 of the neighbour's left one at 300.
    Drag(DragHandle::Body, {46, 30});
    EXPECT_EQ(bounds.Element->X(), 250);
    EXPECT_EQ(bounds.Element->Y(), 130);
    EXPECT_EQ(bounds.SnappedX(), 300.0);
    EXPECT_EQ(bounds.SnappedY(), std::nullopt);
    // Turned off within the gesture.
    bounds.Snap = nullptr;
    bounds.MoveDragPoint(PlaceOf(DragHandle::Body) - CanvasPoint{4, 0}, 0);
    EXPECT_EQ(bounds.Element->X(), 246);
    Select();
    bounds.Snap = &snap;
    Drag(DragHandle::Right, {52, 0});
    EXPECT_EQ(bounds.Element->ScaleX(), 1.5f);
    // A grid has lines everywhere.
    Select();
    snap.GridWidth = 16;
    snap.Reach = 8;
    Drag(DragHandle::Offset, {5, 5});
    EXPECT_EQ(bounds.Element->X(), 208);
    EXPECT_EQ(bounds.Element->Y(), 112);
}

TEST_F(HandlesTest, tween_points_are_dragged_and_added) {
    AddKeyFrame(10);
    Element(2).X(300);
    Element(2).Y(100);
    layer_->Object(1)->blTween = true;
    const auto add = [&](Long type, Single x, Single y) {
        auto point = std::make_shared<clsTweenPointData>();
        point->PointType = type;
        point->X = x;
        point->Y = y;
        Element().Addtp(point);
    };
    add(0, 200, 100);
    add(1, 250, 180);
    Select();
    EXPECT_EQ(bounds.CkBounds({250, 180}), DragHandle::None);
    bounds.mode = 1;
    EXPECT_EQ(bounds.CkBounds({252, 178}), DragHandle::TweenControl);
    EXPECT_EQ(bounds.TweenNum, 2);
    EXPECT_EQ(bounds.CkBounds({200, 100}), DragHandle::TweenAnchor);
    EXPECT_EQ(bounds.TweenNum, 1);
    // The anchor takes the element along.
    bounds.DragStatus = DragHandle::TweenAnchor;
    bounds.SetDragMovePoint({200, 100});
    bounds.MoveDragPoint({210, 105}, 0);
    EXPECT_EQ(bounds.Element->X(), 210);
    EXPECT_EQ(bounds.Element->TweenPoint(1)->X, 210);
    EXPECT_TRUE(bounds.CkUpDate());
    // The control point goes alone.
    bounds.CancelDrag();
    bounds.TweenNum = 2;
    bounds.DragStatus = DragHandle::TweenControl;
    bounds.SetDragMovePoint({250, 180});
    bounds.MoveDragPoint({260, 190}, 0);
    EXPECT_EQ(bounds.Element->TweenPoint(2)->X, 260);
    EXPECT_EQ(bounds.Element->X(), 200);
    EXPECT_TRUE(bounds.CkUpDate());
    bounds.mode = 0;
    EXPECT_FALSE(bounds.CkUpDate());
    bounds.mode = 1;
    // A straight part becomes a curve where it is taken.
    Element().Cleartp();
    Select();
    EXPECT_EQ(bounds.CkBounds({250, 101}), DragHandle::TweenControl);
    EXPECT_EQ(bounds.TweenNum, 0);
    bounds.DragStatus = DragHandle::TweenControl;
    bounds.SetDragMovePoint({250, 100});
    bounds.MoveDragPoint({250, 60}, 0);
    ASSERT_EQ(bounds.Element->tpCount(), 1);
    EXPECT_EQ(bounds.Element->TweenPoint(1)->PointType, 1);
    EXPECT_EQ(bounds.Element->TweenPoint(1)->Y, 60);
    const HandlePicture picture = bounds.Show();
    ASSERT_EQ(picture.TweenLines.at(0).size(), 1u);
    // A third of the way from the element to the control point, raised to a cubic curve.
    ExpectNear(picture.TweenLines[0][0].Control1, {200 + 50 * 2 / 3.0, 100 - 40 * 2 / 3.0}, 1e-9);
    EXPECT_EQ(picture.TweenPoints.at(0).Label, u"A X:200 Y:100");
    EXPECT_EQ(picture.TweenPoints.at(1).Label, u"");
    bounds.TurnTweenPoint(1);
    EXPECT_EQ(bounds.Show().TweenLines.at(0).size(), 2u);
    bounds.RemoveTweenPoint(1);
    EXPECT_EQ(bounds.Element->tpCount(), 0);
}

TEST(DragMove, counts_in_whole_units_and_either_direction) {
    clsDragMove drag;
    drag.DragX = 100;
    drag.DragY = 100;
    drag.X = 5;
    drag.Y = 7;
    Long x = -1;
    Long y = -1;
    drag.DragMove(130, 130, x, y);
    EXPECT_EQ(x, -1);
    drag.CellcX = 8;
    drag.CellcY = 10;
    drag.PolY = true;
    drag.DragMove(130, 130, x, y);
    EXPECT_EQ(x, 9);
    EXPECT_EQ(y, 4);
}

}  // namespace
}  // namespace tamber
