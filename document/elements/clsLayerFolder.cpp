#include "document/elements/clsLayerFolder.h"

namespace tamber {

void clsLayerFolder::Load(clsCSV& csv) {
    FolderName = csv.TakeText();
    FolderDepth = csv.TakeLong();
    LayerCount = csv.TakeLong();
    Expand = csv.TakeBoolean();
    Comment = csv.TakeText();
}

void clsLayerFolder::Save(clsCSV& csv) const {
    csv.Put(FolderName);
    csv.Put(FolderDepth);
    csv.Put(LayerCount);
    csv.Put(Expand);
    csv.Put(Comment);
}

void clsLayerFolder::CopyTo(clsElement& target, bool) const {
    if (auto* other = dynamic_cast<clsLayerFolder*>(&target)) *other = *this;
}

bool clsLayerFolder::Compare(const clsElement& other) const {
    const auto* same = dynamic_cast<const clsLayerFolder*>(&other);
    return same != nullptr && FolderName == same->FolderName && FolderDepth == same->FolderDepth &&
           LayerCount == same->LayerCount && Expand == same->Expand && Comment == same->Comment;
}

}  // namespace tamber
