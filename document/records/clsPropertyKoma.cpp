#include "document/records/clsPropertyKoma.h"

#include <algorithm>

#include "document/symbols/clsSymbolData.h"

namespace tamber {

void clsPropertyKoma::SetSize() {
    Width = 0;
    height = 0;
    for (const auto& picture : *colKomas) {
        Width = std::max(Width, picture->PixelWidth());
        height = std::max(height, picture->PixelHeight());
    }
}

}  // namespace tamber
