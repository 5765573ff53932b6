#pragma once

#include "document/symbols/clsPropertyData.h"

namespace tamber {

/// A sound.
class clsPropertySound : public clsPropertyData {
public:
    /// The wave table is built when the display needs it.
    bool blWavRead = true;

    Long eType() const override { return KindSound; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }
};

}  // namespace tamber
