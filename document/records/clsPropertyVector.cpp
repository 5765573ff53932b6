#include "document/records/clsPropertyVector.h"

#include "document/symbols/clsSymbolData.h"
#include "platform/twips.h"
#include "vector/MorphCheck.h"
#include "vector/ShapeFlattening.h"

namespace tamber {

namespace {
/// Lines have caps, joins and flags from this version of the movie on.
constexpr Long LineOptionVersion = 8;
}  // namespace

String clsPropertyVector::OptionText() const {
    String mark;
    if (const auto target = MorphSymbol()) {
        const auto* drawing = target->Property<clsPropertyVector>();
        mark = drawing != nullptr && drawing->blDivide ? u"#" : u"*";
    }
    return (blLineOption ? u"$" : u"") + mark;
}

Long clsPropertyVector::ShapeCount() const {
    return inVector ? static_cast<Long>(inVector->colShapeData.size()) : 1;
}

std::optional<LineOptions> clsPropertyVector::OptionsInForce(Long version) const {
    if (!blLineOption || version < LineOptionVersion) return std::nullopt;
    return LineOptions{blNoLineScale, blPixelHinting, CapStyle, JoinStyle, MiterLimit};
}

std::shared_ptr<clsVectorData2> clsPropertyVector::inVector2(bool blKeepStyles,
                                                             Long version) const {
    static const clsVectorData empty;
    const clsVectorData& artwork = inVector ? *inVector : empty;
    const auto options = OptionsInForce(version);
    const LineOptions* given = options ? &*options : nullptr;
    return blKeepStyles ? FlattenKeepingStyles(artwork, given)
                        : FlattenIntoOneTable(artwork, given);
}

std::shared_ptr<clsVectorData2> clsPropertyVector::SetPrmVector2(const clsVectorData2& shape,
                                                                 Long version) const {
    const auto options = OptionsInForce(version);
    return WithLineOptions(shape, options ? &*options : nullptr);
}

Long clsPropertyVector::CheckMorph(const clsPropertyVector& other, Long version) const {
    if (!inVector || !other.inVector) return MorphCheck::ShapeCount;
    return tamber::CheckMorph(*inVector, *other.inVector, version);
}

void clsPropertyVector::CopyToLineOption(clsPropertyVector& target) const {
    target.blLineOption = blLineOption;
    target.blNoLineScale = blNoLineScale;
    target.blPixelHinting = blPixelHinting;
    target.CapStyle = CapStyle;
    target.JoinStyle = JoinStyle;
    target.MiterLimit = MiterLimit;
}

void clsPropertyVector::SetArtwork(std::shared_ptr<const clsVectorData> artwork, Long width,
                                   Long pixelHeight) {
    Width = width;
    height = pixelHeight;
    inVector = std::move(artwork);
    if (blFreeTrans && inVector)
        inVector = inVector->FreeTransform(width * TwipsPerPixel, pixelHeight * TwipsPerPixel,
                                           CornersOf(FreeTransPoints));
}

Long clsPropertyVector::MorphIndex() const {
    const auto symbol = MorphSymbol();
    return symbol ? symbol->Index : 0;
}

Long clsPropertyVector::MorphID() const {
    const auto symbol = MorphSymbol();
    return symbol ? symbol->ID : 0;
}

}  // namespace tamber
