#pragma once

#include <array>
#include <memory>

#include "document/clsPropertyData.h"

namespace tamber {

class clsSymbolData;

/// A vector drawing.
class clsPropertyVector : public clsPropertyData {
public:
    /// Each shape takes a depth of its own.
    bool blDivide = false;
    bool blFreeTrans = false;
    std::array<Long, 8> FreeTransPoints{};
    /// The line options below are in force.
    bool blLineOption = false;
    bool blNoLineScale = false;
    bool blPixelHinting = false;
    Long CapStyle = 0;
    Long JoinStyle = 0;
    Long MiterLimit = 1024;
    /// From the file, not stored. A drawing not read counts as one shape.
    Long ShapeCount = 1;
    Long Width = 0;
    Long height = 0;

    /// Target of a morph, or null.
    std::shared_ptr<clsSymbolData> MorphSymbol() const { return morph_.lock(); }
    void MorphSymbol(const std::shared_ptr<clsSymbolData>& symbol) { morph_ = symbol; }
    Long MorphIndex() const;
    Long MorphID() const;
    Long eType() const override { return KindVector; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }

private:
    std::weak_ptr<clsSymbolData> morph_;
};

}  // namespace tamber
