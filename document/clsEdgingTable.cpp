#include "document/clsEdgingTable.h"

#include "platform/RuntimeError.h"

namespace tamber {

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
