#pragma once

#include <vector>

#include "document/clsCSV.h"
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

    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;
    bool operator==(const clsEdgingTable&) const = default;
};

}  // namespace tamber
