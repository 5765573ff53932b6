#pragma once

#include <map>

#include "canvas/picture/GlyphSource.h"
#include "platform/fonts.h"

namespace tamber {

/// A font of the machine, for texts without outlines of their own.
class DeviceFont : public GlyphSource {
public:
    /// `name`: of a family, or one of the player's own as "_sans".
    DeviceFont(StringView name, bool bold, bool italic);

    Glyph Find(char16_t character) const override;
    double Ascent() const override { return 0; }
    double Descent() const override { return 1; }
    double Unit() const override { return CellUnits; }

private:
    static constexpr double CellUnits = 1024;

    LogFont font_;
    mutable std::map<char16_t, std::pair<PicturePath, double>> glyphs_;
    mutable GlyphOutlineRecord record_;
};

}  // namespace tamber
