#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsElement.h"

namespace tamber {

/// What a sound does at a frame.
class clsObjSound : public clsElement {
public:
    /// 0 play, 1 stop, 2 play streaming, 3 stop streaming.
    Long eEvent = 0;
    Long Loops = 1;
    /// Percent.
    Long VolumeL = 100;
    Long VolumeR = 100;
    Long StartTime = 0;
    /// -1: to the end.
    Long StopTime = -1;
    Long FadeInTime = 0;
    Long FadeOutTime = 0;

    Long eType() const override { return KindSound; }
    bool blStreaming() const { return eEvent == 2 || eEvent == 3; }
    bool blPlay() const { return eEvent == 0 || eEvent == 2; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsElement& target, bool withPoints) const override;
    bool Compare(const clsElement& other) const override;
};

}  // namespace tamber
