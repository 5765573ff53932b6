#pragma once

#include "document/records/FieldRecord.h"

namespace tamber {

/// A video.
class clsPropertyMovie : public FieldRecord<clsPropertyMovie> {
public:
    Long StartFrame = 1;
    bool blSound = true;
    bool blSmoothing = false;
    /// From the file, not stored.
    Long Width = 0;
    Long height = 0;

    Long eType() const override { return KindMovie; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }

    static constexpr auto Fields() {
        using T = clsPropertyMovie;
        return std::tuple{
            Field(u"StartFrame", &T::StartFrame),
            Field(u"blSound", &T::blSound),
            Field(u"blSmoothing", &T::blSmoothing),
        };
    }
};

}  // namespace tamber
