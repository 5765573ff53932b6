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
    void TellFields(const FieldSink& sink) const override { tamber::TellFields(placement_, sink); }
    bool SetField(StringView name, StringView value) override {
        return tamber::SetField(placement_, name, value);
    }
    clsLayerObjElement* Placement() override { return &placement_; }
    const clsLayerObjElement* Placement() const override { return &placement_; }

private:
    clsLayerObjElement placement_;
};

/// Base of the visual elements that have fields of their own behind the placement.
template <class Self>
class PlacedFieldElement : public clsPlacedElement {
public:
    void Load(clsCSV& csv) override {
        clsPlacedElement::Load(csv);
        LoadFields(Own(), csv);
    }
    void Save(clsCSV& csv) const override {
        clsPlacedElement::Save(csv);
        SaveFields(Own(), csv);
    }
    void CopyTo(clsElement& target, bool withPoints) const override {
        clsPlacedElement::CopyTo(target, withPoints);
        if (auto* other = dynamic_cast<Self*>(&target)) CopyFields(Own(), *other);
    }
    bool Compare(const clsElement& other) const override {
        return clsPlacedElement::Compare(other) &&
               SameFields(Own(), dynamic_cast<const Self&>(other));
    }
    void TellFields(const FieldSink& sink) const override {
        clsPlacedElement::TellFields(sink);
        tamber::TellFields(Own(), sink);
    }
    bool SetField(StringView name, StringView value) override {
        return clsPlacedElement::SetField(name, value) || tamber::SetField(Own(), name, value);
    }

private:
    Self& Own() { return static_cast<Self&>(*this); }
    const Self& Own() const { return static_cast<const Self&>(*this); }
};

}  // namespace tamber
