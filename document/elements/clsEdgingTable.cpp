#include "document/elements/clsEdgingTable.h"

#include <algorithm>
#include <cmath>

#include "platform/RuntimeError.h"

namespace tamber {

std::size_t clsEdgingTable::InsertPoint(EdgingPoint point) {
    point = {std::clamp(point.X, 0.0f, 1.0f), std::clamp(point.Y, 0.0f, 1.0f)};
    std::size_t index = 1;
    while (index + 1 < Points.size() && Points[index].X <= point.X) ++index;
    index = std::min(index, Points.size());
    Points.insert(Points.begin() + static_cast<std::ptrdiff_t>(index), point);
    return index;
}

bool clsEdgingTable::MovePoint(std::size_t index, EdgingPoint point) {
    if (!IsControl(index)) return false;
    const Single from = Points[index - 1].X;
    const Single to = std::max(from, Points[index + 1].X);
    Points[index] = {std::clamp(point.X, from, to), std::clamp(point.Y, 0.0f, 1.0f)};
    return true;
}

bool clsEdgingTable::RemovePoint(std::size_t index) {
    if (!IsControl(index)) return false;
    Points.erase(Points.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

void clsEdgingTable::Reset() {
    Points = {{0, 0}, {1, 1}};
}

std::optional<std::size_t> clsEdgingTable::FindPoint(EdgingPoint point, EdgingPoint reach) const {
    std::optional<std::size_t> nearest;
    Single least = 0;
    for (std::size_t i = 1; i + 1 < Points.size(); ++i) {
        const Single dx = std::abs(Points[i].X - point.X);
        const Single dy = std::abs(Points[i].Y - point.Y);
        if (dx > reach.X || dy > reach.Y || (nearest && dx + dy >= least)) continue;
        nearest = i;
        least = dx + dy;
    }
    return nearest;
}

void clsEdgingTable::Load(clsCSV& csv) {
    const Long upper = csv.TakeLong();
    if (upper < 0)
        throw RuntimeError(ErrorOutOfRange, u"clsEdgingTable", u"範囲外の数値が設定されました。");
    Points.clear();
    if (upper > 0) csv.CrLf();
    // A row with fewer cells than told ends the loop by an empty cell, which is no number.
    for (Long i = 0; i < upper; ++i) {
        EdgingPoint point;
        point.X = csv.TakeSingle();
        point.Y = csv.TakeSingle();
        Points.push_back(point);
    }
    Points.push_back({1, 1});
}

void clsEdgingTable::Save(clsCSV& csv) const {
    csv.Put(static_cast<Long>(Points.size()) - 1);
    if (Points.size() < 2) return;
    csv.CrLf();
    for (std::size_t i = 0; i + 1 < Points.size(); ++i) {
        csv.Put(Points[i].X);
        csv.Put(Points[i].Y);
    }
}

}  // namespace tamber
