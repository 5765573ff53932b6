#pragma once

#include "document/symbols/clsPropertyData.h"

namespace tamber {

/// A video that the movie fetches when it plays.
class clsPropertyMovieEmp : public clsPropertyData {
public:
    String MovieName;
    Long Width = 0;
    Long height = 0;

    Long eType() const override { return KindMovieEmp; }
    std::optional<String> Name() const override { return MovieName; }
    bool HasInstanceName() const override { return true; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }
};

}  // namespace tamber
