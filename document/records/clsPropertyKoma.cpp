#include "document/records/clsPropertyKoma.h"

#include <algorithm>

#include "document/symbols/clsSymbolData.h"

namespace tamber {

void clsPropertyKoma::Load(clsCSV& csv) {
    KomaName = csv.TakeText();
    DispCount = csv.TakeLong();
}

void clsPropertyKoma::Save(clsCSV& csv) const {
    csv.Put(KomaName);
    csv.Put(DispCount);
}

void clsPropertyKoma::SetSize() {
    Width = 0;
    height = 0;
    for (const auto& picture : *colKomas) {
        Width = std::max(Width, picture->PixelWidth());
        height = std::max(height, picture->PixelHeight());
    }
}

}  // namespace tamber
