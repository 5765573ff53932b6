#pragma once

#include <memory>
#include <optional>

#include "canvas/handles/CanvasView.h"
#include "canvas/handles/DragHandle.h"
#include "canvas/handles/ElementFrame.h"
#include "canvas/handles/HandlePicture.h"
#include "canvas/handles/Snapping.h"
#include "document/symbols/clsLayer.h"

namespace tamber {

/// The handles of the selected element on the canvas: which of them lies under the mouse, and what
/// a drag of it makes of the element.
class clsEditBounds {
public:
    /// 0: the element as a whole; 1: its tween line, too.
    Long mode = 0;
    CanvasView View;
    /// The handle in use.
    Long DragStatus = DragHandle::None;
    /// The tween point in use, or the one that a part of the line begins with, from 1; 0 for none.
    Long TweenNum = 0;
    /// Both scales change alike.
    bool blFixedRatio = false;
    /// The tween lines of all key frames of the layer are shown.
    bool blDrawAllLine = false;
    /// What a drag keeps to; null for nothing. It may change within a drag.
    const Snapping* Snap = nullptr;
    /// The element that is changed; a drag changes it as it goes.
    std::shared_ptr<clsLayerObjElement> Element;

    const std::shared_ptr<clsLayer>& EditLayer() const { return layer_; }
    /// Takes what the layer's symbol covers.
    void EditLayer(std::shared_ptr<clsLayer> layer);
    /// What the symbol covers around its origin, pixels.
    const SymbolBox& Box() const { return box_; }

    /// The handle under a point of the canvas; one of the tween line sets `TweenNum`.
    Long CkBounds(CanvasPoint mouse);
    /// Begins a drag of `DragStatus`.
    void SetDragMovePoint(CanvasPoint mouse);
    /// Applies a drag to here, with the keys held. False when an axis would collapse: its scale
    /// then stays.
    bool MoveDragPoint(CanvasPoint mouse, Long keys);
    /// Takes the drag back.
    void CancelDrag();
    /// The element differs from what it was before the drag.
    bool CkUpDate() const;
    /// Moves the element by pixels of the stage.
    void Nudge(double x, double y);
    /// Gives `target` what the element became, but for its control point.
    void ElementCopyTo(clsLayerObjElement& target) const;

    /// Adds a point to the tween line behind the node `section`, from 0, and returns its number.
    Long AddTweenPoint(Long section, CanvasPoint stage, bool blControl);
    /// Makes a point the line passes through a control point, and the other way round.
    void TurnTweenPoint(Long number);
    void RemoveTweenPoint(Long number);

    HandlePicture Show() const;
    /// Lines of `Snap` that the drag keeps to now, pixels of the stage.
    std::optional<double> SnappedX() const { return snappedX_; }
    std::optional<double> SnappedY() const { return snappedY_; }

private:
    bool IsTweened() const;
    std::optional<TweenLine> Line() const;
    std::optional<TweenLine> LineOf(Long index) const;
    Long CkTweenLine(CanvasPoint mouse);
    std::vector<HandlePicture::Mark> Squares(const ElementFrame& frame) const;
    CanvasPoint RotationPlace(const ElementFrame& frame) const;

    CanvasPoint Snapped(CanvasPoint place);
    CanvasPoint SnappedWay(CanvasPoint way);
    void MoveElement(CanvasPoint way, Long keys);
    void MoveTweenPoint(CanvasPoint way);
    void MoveOffset(CanvasPoint way);
    void Turn(CanvasPoint mouse, Long keys);
    bool Scale(CanvasPoint way, Long keys);
    void AddTweenMarks(HandlePicture& picture) const;

    std::shared_ptr<clsLayer> layer_;
    SymbolBox box_;
    CanvasPoint start_;
    /// The element before the drag.
    std::shared_ptr<clsLayerObjElement> before_;
    std::optional<double> snappedX_;
    std::optional<double> snappedY_;
};

}  // namespace tamber
