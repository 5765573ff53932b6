#include "document/records/clsPropertySymbolFolder.h"

namespace tamber {

void clsPropertySymbolFolder::Load(clsCSV& csv) {
    FolderName = csv.TakeText();
    LayerCount = csv.TakeLong();
    Expand = csv.TakeBoolean();
}

void clsPropertySymbolFolder::Save(clsCSV& csv) const {
    csv.Put(FolderName);
    csv.Put(LayerCount);
    csv.Put(Expand);
}

}  // namespace tamber
