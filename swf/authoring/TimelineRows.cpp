#include "swf/authoring/TimelineRows.h"

#include <algorithm>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsLayerFolder.h"

namespace tamber {

bool CanPlace(Long kind) {
    switch (kind) {
        case KindBitmap:
        case KindText:
        case KindVector:
        case KindSprite:
        case KindButton:
        case KindKoma:
        case KindLink:
            return true;
        default:
            return false;
    }
}

bool TakesDepths(Long kind) {
    return CanPlace(kind) || kind == KindMovie || kind == KindMovieEmp;
}

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
