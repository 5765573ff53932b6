#pragma once

#include <optional>
#include <vector>

#include "document/cells/clsCSV.h"
#include "platform/types.h"

namespace tamber {

/// A point of a speed curve: time and progress, each 0 to 1.
struct EdgingPoint {
    Single X = 0;
    Single Y = 0;
    bool operator==(const EdgingPoint&) const = default;
};

/// A speed curve of a tween: the control polygon from (0, 0) to (1, 1).
class clsEdgingTable {
public:
    std::vector<EdgingPoint> Points{{0, 0}, {1, 1}};

    /// Adds a control point between those before and after it in time and returns its position in
    /// the table. Values are limited to 0 to 1.
    std::size_t InsertPoint(EdgingPoint point);
    /// Moves a control point, at most as far in time as its neighbours. False for an end point.
    bool MovePoint(std::size_t index, EdgingPoint point);
    /// False for an end point.
    bool RemovePoint(std::size_t index);
    /// Back to the two end points.
    void Reset();
    /// Position of the control point nearest to `point`, end points left aside; nothing when none
    /// is within `reach` in both time and progress.
    std::optional<std::size_t> FindPoint(EdgingPoint point, EdgingPoint reach) const;

    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsEdgingTable&) const = default;

private:
    bool IsControl(std::size_t index) const { return index > 0 && index + 1 < Points.size(); }
};

}  // namespace tamber
