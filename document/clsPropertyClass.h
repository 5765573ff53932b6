#pragma once

#include <memory>

#include "document/clsPropertyData.h"
#include "platform/Collection.h"

namespace tamber {

class clsLayer;
class clsUndoRedo;

/// A class of ActionScript; each layer holds a part of its text.
class clsPropertyClass : public clsPropertyData {
public:
    String className;
    String Extends;
    std::shared_ptr<Collection<clsLayer>> colLayer = std::make_shared<Collection<clsLayer>>();
    /// History of the timeline, where each has its own; null until it is edited. A copy has none.
    std::shared_ptr<clsUndoRedo> cUndoRedo;

    Long eType() const override { return KindClass; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override;
};

}  // namespace tamber
