#pragma once

#include "document/symbols/clsPropertyData.h"

namespace tamber {

/// A video.
class clsPropertyMovie : public clsPropertyData {
public:
    Long StartFrame = 1;
    bool blSound = true;
    bool blSmoothing = false;
    /// From the file, not stored.
    Long Width = 0;
    Long height = 0;

    Long eType() const override { return KindMovie; }
    bool HasInstanceName() const override { return true; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }
};

}  // namespace tamber
