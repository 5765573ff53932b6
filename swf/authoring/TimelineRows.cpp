#include "swf/authoring/TimelineRows.h"

#include <algorithm>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsLayerFolder.h"

namespace tamber {

std::vector<Long> WalkedRows(const Collection<clsLayer>& layers, bool topToBottom) {
    std::vector<Long> rows;
    const Long count = layers.Count();
    for (Long i = 1; i <= count; ++i) {
        const Long index = topToBottom ? i : count + 1 - i;
        const clsLayer& layer = *layers(index);
        if (layer.Visible(true))
            rows.push_back(index);
        else if (const clsLayerFolder* folder = topToBottom ? layer.Folder() : nullptr)
            i += std::clamp(folder->LayerCount, 0, count - i);
    }
    return rows;
}

}  // namespace tamber
