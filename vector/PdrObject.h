#pragma once

#include <vector>

#include "document/cells/clsCSV.h"
#include "swf/tags/clsSWFTFillStyle.h"
#include "vector/PdrContour.h"

namespace tamber {

/// One object of a PDR file: a contour with its line and fill.
struct PdrObject {
    enum FillKind : Long { NoFill = 0, Solid = 1, Linear = 2, LinearMirrored = 3, Radial = 4 };
    struct ColorStop {
        Long Color = 0;
        Byte Position = 0;
    };

    bool blClosed = false;
    bool lineVisible = false;
    Long lineWidth = 0;  ///< twips, 0 to 65535
    Long lineColor = 0;
    Long fillKind = NoFill;
    Long color1 = 0;
    Long color2 = 0;
    Long gradCenterX = 0;  ///< twips
    Long gradCenterY = 0;
    Single gradAngle = 0;  ///< degrees
    Single gradScaleX = 1;
    Single gradScaleY = 1;
    bool blShared = false;  ///< goes into one shape with the other objects of its shapeID
    Long shapeID = 0;
    std::vector<ColorStop> Stops;
    std::vector<PdrPoint> Points;

    /// Reads the rows of an object and leaves the cursor behind them. A cell that does not stand
    /// for its value raises a RuntimeError.
    void Read(clsCSV& cells, Long version);
    /// The fill of a kind other than NoFill.
    clsSWFTFillStyle MakeFill() const;

private:
    Long ReadHead(clsCSV& cells, Long version);
    void ReadStops(clsCSV& cells);
    void ReadPoints(clsCSV& cells, Long last);
    void FillGradient(clsSWFTFillLinearRadial& gradient) const;
};

}  // namespace tamber
