#pragma once

#include <optional>
#include <vector>

#include "document/elements/clsLayerObjElement.h"

namespace tamber {

/// Edits the speed curves of a tween over a graph: time to the right, progress upwards.
class EdgingEditor {
public:
    /// A place of the graph, pixels from its left upper corner.
    struct Place {
        double X = 0;
        double Y = 0;
        bool operator==(const Place&) const = default;
    };
    /// A part of the curve as a cubic one.
    struct Curve {
        Place Start, Control1, Control2, End;
    };

    /// The element whose curves change, and the frames of its tween. Size of the graph in pixels.
    EdgingEditor(clsLayerObjElement& element, Long frameCount, double width, double height)
        : element_(element), frameCount_(frameCount), width_(width), height_(height) {}

    /// Whether the parameters' curve is edited, and not that of the movement.
    bool EditsParameters() const { return second_; }
    void EditsParameters(bool second) { second_ = second; }
    /// The curve that is edited stands for both.
    bool AllMode() const { return element_.EdgingAllMode != 0; }
    void AllMode(bool all);

    const clsEdgingTable& Table() const;
    Place PlaceOf(EdgingPoint point) const;
    EdgingPoint PointAt(Place place) const;
    /// The control point within `reach` pixels.
    std::optional<std::size_t> Find(Place place, double reach) const;
    /// Returns where the point stands in the table.
    std::size_t Add(Place place);
    bool Move(std::size_t index, Place place);
    bool Remove(std::size_t index);
    void Reset();

    /// Keeps the curve for a paste into any element.
    void Copy() const;
    /// False when no curve was copied yet.
    bool Paste();

    /// The curve; for a table of the end points alone the straight line.
    std::vector<Curve> Curves() const;
    /// Where each frame of the tween lies on the curve, from its first to the frame behind it.
    std::vector<Place> FramePoints() const;
    /// Progress at a time, each 0 to 1.
    double ProgressAt(double time) const;

private:
    clsEdgingTable& Edited();

    clsLayerObjElement& element_;
    Long frameCount_;
    double width_;
    double height_;
    bool second_ = false;
};

}  // namespace tamber
