#pragma once

#include <memory>

#include "document/symbols/clsPropertyData.h"
#include "platform/Collection.h"

namespace tamber {

class clsSymbolData;

/// Pictures shown one after the other.
class clsPropertyKoma : public clsPropertyData {
public:
    String KomaName;
    /// Frames a picture.
    Long DispCount = 1;
    std::shared_ptr<Collection<clsSymbolData>> colKomas =
        std::make_shared<Collection<clsSymbolData>>();
    /// Largest of the pictures.
    Long Width = 0;
    Long height = 0;

    void SetSize();

    Long eType() const override { return KindKoma; }
    std::optional<String> Name() const override { return KomaName; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }
};

}  // namespace tamber
