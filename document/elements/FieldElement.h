#pragma once

#include "document/elements/clsElement.h"

namespace tamber {

/// Base of the elements without a placement: all that `Self` holds is what its fields say.
template <class Self>
class FieldElement : public clsElement {
public:
    void Load(clsCSV& csv) override { LoadFields(Own(), csv); }
    void Save(clsCSV& csv) const override { SaveFields(Own(), csv); }
    void CopyTo(clsElement& target, bool) const override {
        if (auto* other = dynamic_cast<Self*>(&target)) *other = Own();
    }
    bool Compare(const clsElement& other) const override {
        const auto* same = dynamic_cast<const Self*>(&other);
        return same != nullptr && SameFields(Own(), *same);
    }
    void TellFields(const FieldSink& sink) const override { tamber::TellFields(Own(), sink); }
    bool SetField(StringView name, StringView value) override {
        return tamber::SetField(Own(), name, value);
    }

private:
    Self& Own() { return static_cast<Self&>(*this); }
    const Self& Own() const { return static_cast<const Self&>(*this); }
};

}  // namespace tamber
