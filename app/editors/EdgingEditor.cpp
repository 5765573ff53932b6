#include "app/editors/EdgingEditor.h"

#include <algorithm>

#include "swf/authoring/EdgingCurve.h"

namespace tamber {

namespace {

/// Values of `EdgingAllMode`.
constexpr Long ModeSeparate = 0;
constexpr Long ModeMovement = 1;
constexpr Long ModeParameters = 2;

constexpr double FullRatio = 65535;

std::optional<clsEdgingTable>& Copied() {
    static std::optional<clsEdgingTable> copied;
    return copied;
}

EdgingEditor::Place Middle(EdgingEditor::Place a, EdgingEditor::Place b) {
    return {(a.X + b.X) / 2, (a.Y + b.Y) / 2};
}

EdgingEditor::Place TwoThirds(EdgingEditor::Place from, EdgingEditor::Place to) {
    return {from.X + (to.X - from.X) * 2 / 3, from.Y + (to.Y - from.Y) * 2 / 3};
}

}  // namespace

void EdgingEditor::AllMode(bool all) {
    element_.EdgingAllMode = !all ? ModeSeparate : second_ ? ModeParameters : ModeMovement;
}

const clsEdgingTable& EdgingEditor::Table() const {
    return second_ ? element_.EdgingTblPrm : element_.EdgingTblXY;
}

clsEdgingTable& EdgingEditor::Edited() {
    return second_ ? element_.EdgingTblPrm : element_.EdgingTblXY;
}

EdgingEditor::Place EdgingEditor::PlaceOf(EdgingPoint point) const {
    return {point.X * width_, (1 - point.Y) * height_};
}

EdgingPoint EdgingEditor::PointAt(Place place) const {
    return {static_cast<Single>(place.X / width_), static_cast<Single>(1 - place.Y / height_)};
}

std::optional<std::size_t> EdgingEditor::Find(Place place, double reach) const {
    return Table().FindPoint(PointAt(place), {static_cast<Single>(reach / width_),
                                              static_cast<Single>(reach / height_)});
}

std::size_t EdgingEditor::Add(Place place) {
    return Edited().InsertPoint(PointAt(place));
}

bool EdgingEditor::Move(std::size_t index, Place place) {
    return Edited().MovePoint(index, PointAt(place));
}

bool EdgingEditor::Remove(std::size_t index) {
    return Edited().RemovePoint(index);
}

void EdgingEditor::Reset() {
    Edited().Reset();
}

void EdgingEditor::Copy() const {
    Copied() = Table();
}

bool EdgingEditor::Paste() {
    if (!Copied()) return false;
    Edited() = *Copied();
    return true;
}

std::vector<EdgingEditor::Curve> EdgingEditor::Curves() const {
    const std::vector<EdgingPoint>& points = Table().Points;
    const auto place = [&](std::size_t i) { return PlaceOf(points[i]); };
    const Place first = points.size() < 2 ? PlaceOf({0, 0}) : place(0);
    const Place last = place(points.size() - 1);
    if (points.size() < 3) return {{first, first, last, last}};
    std::vector<Curve> curves;
    Place from = first;
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        const Place to = i + 2 == points.size() ? last : Middle(place(i), place(i + 1));
        curves.push_back({from, TwoThirds(from, place(i)), TwoThirds(to, place(i)), to});
        from = to;
    }
    return curves;
}

double EdgingEditor::ProgressAt(double time) const {
    const EdgingCurve curve(Table());
    return curve.Empty() ? time : curve.TweenRatio(static_cast<Single>(time)) / FullRatio;
}

std::vector<EdgingEditor::Place> EdgingEditor::FramePoints() const {
    std::vector<Place> places;
    const EdgingCurve curve(Table());
    for (Long frame = 0; frame <= frameCount_; ++frame) {
        const auto time = static_cast<Single>(double(frame) / std::max(frameCount_, 1));
        const auto progress =
            curve.Empty() ? time : static_cast<Single>(curve.TweenRatio(time) / FullRatio);
        places.push_back(PlaceOf({time, progress}));
    }
    return places;
}

}  // namespace tamber
