#pragma once

#include "document/symbols/clsPropertyData.h"

namespace tamber {

/// Base of the records: what of `Self` is stored, its fields say.
template <class Self>
class FieldRecord : public clsPropertyData {
public:
    void Load(clsCSV& csv) override { LoadFields(Own(), csv); }
    void Save(clsCSV& csv) const override { SaveFields(Own(), csv); }
    std::shared_ptr<clsPropertyData> Copy() const override { return std::make_shared<Self>(Own()); }
    void CopyTo(clsPropertyData& target) const override { CopyRecord(Own(), target); }
    void TellFields(const FieldSink& sink) const override { tamber::TellFields(Own(), sink); }
    bool SetField(StringView name, StringView value) override {
        return tamber::SetField(Own(), name, value);
    }

private:
    Self& Own() { return static_cast<Self&>(*this); }
    const Self& Own() const { return static_cast<const Self&>(*this); }
};

}  // namespace tamber
