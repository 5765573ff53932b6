#pragma once

#include "document/records/FieldRecord.h"

namespace tamber {

/// A video that the movie fetches when it plays.
class clsPropertyMovieEmp : public FieldRecord<clsPropertyMovieEmp> {
public:
    String MovieName;
    Long Width = 0;
    Long height = 0;

    Long eType() const override { return KindMovieEmp; }
    std::optional<String> Name() const override { return MovieName; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }

    static constexpr auto Fields() {
        using T = clsPropertyMovieEmp;
        return std::tuple{
            Field(u"MovieName", &T::MovieName),
            Field(u"Width", &T::Width),
            Field(u"height", &T::height),
        };
    }
};

}  // namespace tamber
