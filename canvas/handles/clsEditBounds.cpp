#include "canvas/handles/clsEditBounds.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "canvas/handles/ScaleDrag.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Pixels of the canvas around a tween point that still hit it.
constexpr double TweenReach = 2;
/// A handle's square goes from so many pixels before its place to so many behind it.
constexpr double SquareBefore = 3;
constexpr double SquareBehind = 4;
/// Edges shorter than this have no handle: the corners would lie under it.
constexpr double ShortestEdge = 24;
/// From the upper edge to the rotation handle, pixels of the canvas.
constexpr double RotationStalk = 24;
constexpr double TurningStep = 15;

bool InSquare(CanvasPoint place, CanvasPoint mouse) {
    const CanvasPoint way = mouse - place;
    return way.X >= -SquareBefore && way.X < SquareBehind && way.Y >= -SquareBefore &&
           way.Y < SquareBehind;
}

double Length(CanvasPoint way) {
    return std::hypot(way.X, way.Y);
}

CanvasPoint PlaceOf(const clsLayerObjElement& element) {
    return {element.X(), element.Y()};
}

/// Only along the axis on which it goes further.
CanvasPoint Straight(CanvasPoint way) {
    if (std::abs(way.X) >= std::abs(way.Y)) return {way.X, 0};
    return {0, way.Y};
}

void Put(clsLayerObjElement& element, CanvasPoint place) {
    element.X(static_cast<Single>(place.X));
    element.Y(static_cast<Single>(place.Y));
}

String LabelOf(CanvasPoint stage) {
    return u"A X:" + ToText(OneDecimal(static_cast<Single>(stage.X))) + u" Y:" +
           ToText(OneDecimal(static_cast<Single>(stage.Y)));
}

double DegreesBetween(CanvasPoint from, CanvasPoint to) {
    return (std::atan2(to.Y, to.X) - std::atan2(from.Y, from.X)) * 180 / std::numbers::pi;
}

}  // namespace

void clsEditBounds::EditLayer(std::shared_ptr<clsLayer> layer) {
    layer_ = std::move(layer);
    box_ = layer_ && layer_->SymbolData() ? BoxOf(*layer_->SymbolData()) : SymbolBox{};
}

bool clsEditBounds::IsTweened() const {
    return LineOf(layer_ ? layer_->SelectIndex : 0).has_value();
}

/// The line of the element as it is now.
std::optional<TweenLine> clsEditBounds::Line() const {
    if (!IsTweened()) return std::nullopt;
    return TweenLine(*Element, PlaceOf(*layer_->NextObject()->Placement()), View);
}

std::optional<TweenLine> clsEditBounds::LineOf(Long index) const {
    if (!layer_ || index < 1 || index >= layer_->ObjectCount()) return std::nullopt;
    const clsLayerObject& object = *layer_->Object(index);
    const auto* next = layer_->Object(index + 1)->Placement();
    if (!object.blTween || object.Placement() == nullptr || next == nullptr) return std::nullopt;
    return TweenLine(*object.Placement(), PlaceOf(*next), View);
}

Long clsEditBounds::CkTweenLine(CanvasPoint mouse) {
    const auto line = Line();
    if (!line) return DragHandle::None;
    if (const auto node = line->NodeAt(mouse, TweenReach)) {
        TweenNum = static_cast<Long>(*node);
        if (TweenNum == 0) return DragHandle::TweenStart;
        const bool here = !line->IsControl(*node) && line->Nodes()[*node] == line->Nodes()[0];
        return here ? DragHandle::TweenAnchor : DragHandle::TweenControl;
    }
    if (const auto section = line->SectionAt(mouse, TweenReach)) {
        TweenNum = static_cast<Long>(*section);
        return DragHandle::TweenControl;
    }
    return DragHandle::None;
}

Long clsEditBounds::CkBounds(CanvasPoint mouse) {
    TweenNum = 0;
    if (!Element) return DragHandle::None;
    if (mode == 1)
        if (const Long hit = CkTweenLine(mouse)) return hit;
    const ElementFrame frame(*Element, box_);
    if (InSquare(RotationPlace(frame), mouse)) return DragHandle::Rotation;
    if (InSquare(View.ToCanvas(PlaceOf(*Element)), mouse)) return DragHandle::Offset;
    for (const HandlePicture::Mark& square : Squares(frame))
        if (InSquare(square.Place, mouse)) return square.Handle;
    return frame.Contains(View.ToStage(mouse)) ? DragHandle::Body : DragHandle::None;
}

std::vector<HandlePicture::Mark> clsEditBounds::Squares(const ElementFrame& frame) const {
    std::vector<HandlePicture::Mark> squares;
    const auto place = [&](Long handle) { return View.ToCanvas(frame.PlaceOf(handle)); };
    for (Long handle = DragHandle::TopLeft; handle <= DragHandle::BottomLeft; ++handle)
        squares.push_back({handle, place(handle)});
    const double across = Length(place(DragHandle::TopRight) - place(DragHandle::TopLeft));
    const double upright = Length(place(DragHandle::BottomLeft) - place(DragHandle::TopLeft));
    for (Long handle = DragHandle::Top; handle <= DragHandle::Left; ++handle) {
        const bool lies = handle == DragHandle::Top || handle == DragHandle::Bottom;
        if ((lies ? across : upright) >= ShortestEdge) squares.push_back({handle, place(handle)});
    }
    return squares;
}

/// Outside of the middle of the upper edge.
CanvasPoint clsEditBounds::RotationPlace(const ElementFrame& frame) const {
    const CanvasPoint foot = View.ToCanvas(frame.PlaceOf(DragHandle::Top));
    const double side = Element->ScaleY() < 0 ? RotationStalk : -RotationStalk;
    return foot + frame.FromAxes({0, side});
}

void clsEditBounds::SetDragMovePoint(CanvasPoint mouse) {
    start_ = mouse;
    snappedX_.reset();
    snappedY_.reset();
    before_ = std::make_shared<clsLayerObjElement>();
    Element->CopyTo(*before_, true);
}

void clsEditBounds::CancelDrag() {
    if (before_) before_->CopyTo(*Element, true);
    before_.reset();
    DragStatus = DragHandle::None;
}

bool clsEditBounds::MoveDragPoint(CanvasPoint mouse, Long keys) {
    if (!before_ || DragStatus == DragHandle::None) return true;
    before_->CopyTo(*Element, true);
    snappedX_.reset();
    snappedY_.reset();
    const CanvasPoint moved = mouse - start_;
    const CanvasPoint way{moved.X / View.Zoom, moved.Y / View.Zoom};
    switch (DragStatus) {
        case DragHandle::Body:
        case DragHandle::TweenAnchor:
        case DragHandle::TweenStart:
            MoveElement(way, keys);
            return true;
        case DragHandle::TweenControl:
            MoveTweenPoint(way);
            return true;
        case DragHandle::Offset:
            MoveOffset(way);
            return true;
        case DragHandle::Rotation:
            Turn(mouse, keys);
            return true;
        default:
            return Scale(way, keys);
    }
}

CanvasPoint clsEditBounds::Snapped(CanvasPoint place) {
    if (Snap == nullptr) return place;
    const Snapping::Pull x = Snap->PullX(place.X);
    const Snapping::Pull y = Snap->PullY(place.Y);
    snappedX_ = x.Line;
    snappedY_ = y.Line;
    return place + CanvasPoint{x.Way, y.Way};
}

/// The way of the whole element, so that its frame keeps to the lines.
CanvasPoint clsEditBounds::SnappedWay(CanvasPoint way) {
    if (Snap == nullptr) return way;
    const StageBox was = ElementFrame(*before_, box_).Bounds();
    const StageBox is{was.Left + way.X, was.Top + way.Y, was.Right + way.X, was.Bottom + way.Y};
    const Snapping::Pull x = Snap->PullX(is);
    const Snapping::Pull y = Snap->PullY(is);
    snappedX_ = x.Line;
    snappedY_ = y.Line;
    return way + CanvasPoint{x.Way, y.Way};
}

void clsEditBounds::MoveElement(CanvasPoint way, Long keys) {
    const CanvasPoint kept = (keys & DragKey::Shift) != 0 ? Straight(way) : way;
    const CanvasPoint went = SnappedWay(kept);
    Put(*Element, PlaceOf(*before_) + went);
    if (TweenNum < 1 || TweenNum > Element->tpCount()) return;
    clsTweenPointData& point = *Element->TweenPoint(TweenNum);
    point.X = static_cast<Single>(point.X + went.X);
    point.Y = static_cast<Single>(point.Y + went.Y);
}

/// A part of the line that is straight becomes a curve.
void clsEditBounds::MoveTweenPoint(CanvasPoint way) {
    const auto line = Line();
    if (!line) return;
    Long number = TweenNum;
    const bool grabbed = line->NodeAt(start_, TweenReach) == static_cast<std::size_t>(number);
    if (!grabbed || number == 0) number = AddTweenPoint(TweenNum, View.ToStage(start_), true);
    clsTweenPointData& point = *Element->TweenPoint(number);
    const CanvasPoint place = Snapped(CanvasPoint{point.X, point.Y} + way);
    point.X = OneDecimal(static_cast<Single>(place.X));
    point.Y = OneDecimal(static_cast<Single>(place.Y));
}

/// The control point goes, the picture stays.
void clsEditBounds::MoveOffset(CanvasPoint way) {
    if (before_->ScaleX() == 0 || before_->ScaleY() == 0) return;
    const ElementFrame frame(*before_, box_);
    const CanvasPoint local = frame.ToLocal(Snapped(PlaceOf(*before_) + way));
    Element->OffsetX(static_cast<Single>(before_->OffsetX() + local.X));
    Element->OffsetY(static_cast<Single>(before_->OffsetY() + local.Y));
    Put(*Element, frame.ToStage({double(Element->OffsetX()) - before_->OffsetX(),
                                 double(Element->OffsetY()) - before_->OffsetY()}));
}

void clsEditBounds::Turn(CanvasPoint mouse, Long keys) {
    const CanvasPoint origin = View.ToCanvas(PlaceOf(*before_));
    double angle = before_->Angle() + DegreesBetween(start_ - origin, mouse - origin);
    if ((keys & DragKey::Shift) != 0) angle = std::round(angle / TurningStep) * TurningStep;
    Element->Angle(static_cast<Single>(std::round(angle * 100) / 100));
}

bool clsEditBounds::Scale(CanvasPoint way, Long keys) {
    ScaleDrag drag;
    drag.Handle = DragStatus;
    drag.blFixedRatio = blFixedRatio || (keys & DragKey::Shift) != 0;
    drag.blAboutOffset = (keys & (DragKey::Alt | DragKey::Ctrl)) != 0;
    const CanvasPoint place = ElementFrame(*before_, box_).PlaceOf(DragStatus);
    const CanvasPoint went = Snapped(place + way) - place;
    return SetScale(*Element, *before_, box_, drag, went);
}

bool clsEditBounds::CkUpDate() const {
    if (!before_ || !Element) return false;
    if (!Element->Compare(*before_)) return true;
    if (mode != 1) return false;
    return !std::equal(Element->colTweenPoint.begin(), Element->colTweenPoint.end(),
                       before_->colTweenPoint.begin(), before_->colTweenPoint.end(),
                       [](const auto& a, const auto& b) { return *a == *b; });
}

void clsEditBounds::Nudge(double x, double y) {
    Put(*Element, PlaceOf(*Element) + CanvasPoint{x, y});
}

void clsEditBounds::ElementCopyTo(clsLayerObjElement& target) const {
    const Single x = target.OffsetX();
    const Single y = target.OffsetY();
    Element->CopyTo(target, false);
    target.OffsetX(x);
    target.OffsetY(y);
}

Long clsEditBounds::AddTweenPoint(Long section, CanvasPoint stage, bool blControl) {
    auto point = std::make_shared<clsTweenPointData>();
    point->PointType = blControl ? 1 : 0;
    point->X = OneDecimal(static_cast<Single>(stage.X));
    point->Y = OneDecimal(static_cast<Single>(stage.Y));
    const Long number = section + 1;
    Element->Addtp(std::move(point), number > Element->tpCount() ? 0 : number);
    return number;
}

void clsEditBounds::TurnTweenPoint(Long number) {
    clsTweenPointData& point = *Element->TweenPoint(number);
    point.PointType = point.PointType == 0 ? 1 : 0;
}

void clsEditBounds::RemoveTweenPoint(Long number) {
    Element->Removetp(number);
}

void clsEditBounds::AddTweenMarks(HandlePicture& picture) const {
    const auto line = Line();
    if (!line) return;
    picture.TweenLines.push_back(line->Curves());
    if (mode != 1) return;
    for (std::size_t i = 0; i < line->Nodes().size(); ++i) {
        const CanvasPoint place = line->Nodes()[i];
        const bool control = line->IsControl(i);
        picture.TweenPoints.push_back({place, control,
                                       static_cast<std::size_t>(TweenNum) == i && i > 0,
                                       control ? String() : LabelOf(View.ToStage(place))});
    }
}

HandlePicture clsEditBounds::Show() const {
    HandlePicture picture;
    if (!Element) return picture;
    const ElementFrame frame(*Element, box_);
    const auto corners = frame.Corners();
    for (std::size_t i = 0; i < corners.size(); ++i) picture.Frame[i] = View.ToCanvas(corners[i]);
    picture.Squares = Squares(frame);
    picture.Offset = View.ToCanvas(PlaceOf(*Element));
    picture.RotationFoot = View.ToCanvas(frame.PlaceOf(DragHandle::Top));
    picture.Rotation = RotationPlace(frame);
    AddTweenMarks(picture);
    if (!blDrawAllLine || !layer_) return picture;
    for (Long i = 1; i < layer_->ObjectCount(); ++i)
        if (const auto line = i == layer_->SelectIndex ? std::nullopt : LineOf(i))
            picture.TweenLines.push_back(line->Curves());
    return picture;
}

}  // namespace tamber
