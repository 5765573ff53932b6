#pragma once

#include <memory>

#include "canvas/timeline/RowRange.h"
#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"

namespace tamber {

/// Whole rows copied from a timeline, folders with all that they hold, to be pasted any number of
/// times.
class LayerClipboard {
public:
    bool Empty() const { return rows_.Empty(); }
    void Copy(const Collection<clsLayer>& layers, RowRange range);
    /// Rows of their own for a paste, nested among themselves.
    Collection<clsLayer> CopyRows() const;

private:
    Collection<clsLayer> rows_;
};

/// Takes the rows of a range out, folders with all that they hold. False when there was none.
bool RemoveLayers(Collection<clsLayer>& layers, RowRange range);

}  // namespace tamber
