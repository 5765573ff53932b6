#pragma once

#include "document/records/FieldRecord.h"

namespace tamber {

/// A sound.
class clsPropertySound : public FieldRecord<clsPropertySound> {
public:
    /// The wave table is built when the display needs it.
    bool blWavRead = true;

    Long eType() const override { return KindSound; }

    static constexpr auto Fields() {
        using T = clsPropertySound;
        return std::tuple{
            Group(IfFilled(), Field(u"blWavRead", &T::blWavRead)),
        };
    }
};

}  // namespace tamber
