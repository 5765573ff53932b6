#pragma once

#include "document/elements/FieldElement.h"
#include "document/elements/SymbolKinds.h"

namespace tamber {

/// What a sound does at a frame.
class clsObjSound : public FieldElement<clsObjSound> {
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

    static constexpr auto Fields() {
        using T = clsObjSound;
        return std::tuple{
            Field(u"eEvent", &T::eEvent),
            Field(u"Loops", &T::Loops),
            Field(u"VolumeL", &T::VolumeL),
            Field(u"VolumeR", &T::VolumeR),
            Field(u"StartTime", &T::StartTime),
            Field(u"StopTime", &T::StopTime),
            Group(IfFilled(), Field(u"FadeInTime", &T::FadeInTime)),
            Group(IfFilled(), Field(u"FadeOutTime", &T::FadeOutTime)),
        };
    }
};

}  // namespace tamber
