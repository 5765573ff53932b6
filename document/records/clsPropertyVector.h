#pragma once

#include <array>
#include <memory>
#include <optional>

#include "document/records/FieldRecord.h"
#include "vector/LineOptions.h"
#include "vector/clsVectorData.h"

namespace tamber {

class clsSymbolData;

/// A vector drawing.
class clsPropertyVector : public FieldRecord<clsPropertyVector> {
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
    /// Size in pixels and drawing, from the file and not stored; null until it is read.
    Long Width = 0;
    Long height = 0;
    std::shared_ptr<const clsVectorData> inVector;

    /// Shapes of the drawing; one that is not read counts as one shape.
    Long ShapeCount() const override;
    /// The drawing as one shape with the line options, which count from `version` 8 of the movie
    /// on: with the styles of each piece kept apart, or in one table as a morph needs it.
    std::shared_ptr<clsVectorData2> inVector2(bool blKeepStyles, Long version) const;
    /// A copy of one shape of the drawing with the line options.
    std::shared_ptr<clsVectorData2> SetPrmVector2(const clsVectorData2& shape, Long version) const;
    /// One of the results of MorphCheck, for a movie of a version.
    Long CheckMorph(const clsPropertyVector& other, Long version) const;
    void CopyToLineOption(clsPropertyVector& target) const;
    /// The drawing, stretched over the four corners when `blFreeTrans` says so.
    void SetArtwork(std::shared_ptr<const clsVectorData> artwork, Long width, Long pixelHeight);

    /// Target of a morph, or null.
    std::shared_ptr<clsSymbolData> MorphSymbol() const { return morph_.lock(); }
    void MorphSymbol(const std::shared_ptr<clsSymbolData>& symbol) { morph_ = symbol; }
    Long MorphIndex() const;
    Long MorphID() const;
    Long eType() const override { return KindVector; }
    String OptionText() const override;
    Long DividedDepths() const override { return blDivide ? ShapeCount() : 1; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }

    static constexpr auto Fields() {
        using T = clsPropertyVector;
        return std::tuple{
            Field(u"blDivide", &T::blDivide),
            Group(IfFilled(), Field(u"blFreeTrans", &T::blFreeTrans),
                  Array(u"FreeTransPoint", &T::FreeTransPoints),
                  Group(IfFilled(), Field(u"blLineOption", &T::blLineOption),
                        Field(u"blNoLineScale", &T::blNoLineScale),
                        Field(u"blPixelHinting", &T::blPixelHinting),
                        Field(u"CapStyle", &T::CapStyle), Field(u"JoinStyle", &T::JoinStyle),
                        Field(u"MiterLimit", &T::MiterLimit))),
        };
    }

private:
    std::optional<LineOptions> OptionsInForce(Long version) const;

    std::weak_ptr<clsSymbolData> morph_;
};

}  // namespace tamber
