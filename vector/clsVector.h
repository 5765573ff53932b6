#pragma once

#include <memory>
#include <vector>

#include "vector/clsVectorData.h"

namespace tamber {

/// Reads one vector file; lives for the time of a load.
class clsVector {
public:
    /// Pixels.
    Long Width = 0;
    Long height = 0;
    std::shared_ptr<clsVectorData> inVector;
    /// Features of the file that the drawing goes without, each once, in the order met.
    std::vector<String> LeftOut;

    /// Reads a `.pdr`, `.swf`, `.svg` or `.svgz` file, told apart by the extension in any letter
    /// case. False when it cannot be read; what was read until then counts for nothing.
    bool LoadFromFile(StringView path);
    /// A filled rectangle in twips, the size of the artwork. With colour 0 the fill is fully
    /// transparent.
    void SetRectShape(Long x, Long y, Long rectWidth, Long rectHeight, Long color);
};

}  // namespace tamber
