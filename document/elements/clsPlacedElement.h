#pragma once

#include "document/elements/clsElement.h"
#include "document/elements/clsLayerObjElement.h"

namespace tamber {

/// Base of the visual elements: they share the placement record.
class clsPlacedElement : public clsElement {
public:
    void Load(clsCSV& csv) override { placement_.Load(csv); }
    void Save(clsCSV& csv) const override { placement_.Save(csv); }
    void CopyTo(clsElement& target, bool withPoints) const override {
        if (clsLayerObjElement* other = target.Placement()) placement_.CopyTo(*other, withPoints);
    }
    bool Compare(const clsElement& other) const override {
        return other.eType() == eType() && placement_.Compare(*other.Placement());
    }
    clsLayerObjElement* Placement() override { return &placement_; }
    const clsLayerObjElement* Placement() const override { return &placement_; }

private:
    clsLayerObjElement placement_;
};

}  // namespace tamber
