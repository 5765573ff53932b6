#include "swf/authoring/ButtonDefinition.h"

#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyVector.h"
#include "platform/twips.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

constexpr Long Black = static_cast<Long>(0xFF000000);

/// 100 percent is 255 here, other than in placements.
Long Factor(Long percent) {
    return mdlSWFTag::ToColorField(std::int64_t{percent} * 255 / 100);
}

SwfButtonMatrix ToSwf(const clsButtonMatrix& matrix) {
    const clsFilterEditColor& color = matrix.EditColor;
    SwfButtonMatrix result;
    result.Translate = {mdlSWFTag::ToField(double{TwipsPerPixel} * matrix.TranslatePosX),
                        mdlSWFTag::ToField(double{TwipsPerPixel} * matrix.TranslatePosY)};
    result.Color = {Factor(color.MultR),
                    Factor(color.MultG),
                    Factor(color.MultB),
                    Factor(color.MultA),
                    mdlSWFTag::ToColorField(color.AddR),
                    mdlSWFTag::ToColorField(color.AddG),
                    mdlSWFTag::ToColorField(color.AddB),
                    mdlSWFTag::ToColorField(color.AddA)};
    return result;
}

SwfPoint OriginOf(const clsSymbolData& symbol) {
    const auto* sprite = symbol.Property<clsPropertySprite>();
    return sprite != nullptr ? SwfPoint{sprite->baseX, sprite->baseY} : SwfPoint{};
}

}  // namespace

std::shared_ptr<clsSymbolData> NewHitRect(const clsSymbolData& up) {
    const Long width = up.PixelWidth();
    const Long pixelHeight = up.PixelHeight();
    if (width <= 0 || pixelHeight <= 0) return nullptr;
    const auto twips = [](Long pixels) {
        return mdlSWFTag::ToField(double{TwipsPerPixel} * pixels);
    };
    const SwfPoint origin = OriginOf(up);
    const Long left = twips(-origin.X);
    const Long top = twips(-origin.Y);
    const Long right = twips(width - origin.X);
    const Long bottom = twips(pixelHeight - origin.Y);
    auto shape = std::make_shared<clsVectorData2>();
    clsSWFTFillStyle fill(clsSWFTFillStyle::Solid);
    fill.StyleAs<clsSWFTFillSolid>()->SolidColor = Black;
    shape->colFillStyles->push_back(fill);
    clsSWFTShapeRecords& records = *shape->inSWFTShapeRecords;
    records.SetFill0(1);
    records.MovePenTo(right, bottom);
    records.DrawLineHTo(left);
    records.DrawLineVTo(top);
    records.DrawLineHTo(right);
    records.DrawLineVTo(bottom);
    auto artwork = std::make_shared<clsVectorData>();
    artwork->colShapeData.push_back(std::move(shape));
    auto symbol = std::make_shared<clsSymbolData>(KindVector);
    symbol->Property<clsPropertyVector>()->SetArtwork(std::move(artwork), width, pixelHeight);
    return symbol;
}

std::shared_ptr<clsSWFTagDefineButton> GetNewButton(clsSWFAdmin& admin,
                                                    const clsPropertyButton& button,
                                                    const ButtonCharacters& characters,
                                                    Long depth) {
    auto tag = std::make_shared<clsSWFTagDefineButton>();
    tag->depth = depth;
    tag->UpSymbolID = characters.Up;
    // A state without a symbol shows what the up state does.
    const auto orUp = [&characters](Long id) { return id != 0 ? id : characters.Up; };
    tag->DownSymbolID = orUp(characters.Down);
    tag->OverSymbolID = orUp(characters.Over);
    tag->HitTestSymbolID = characters.HitTest;
    tag->matrixUP = ToSwf(button.matrixUP);
    tag->matrixDown = ToSwf(characters.Down != 0 ? button.matrixDown : button.matrixUP);
    tag->matrixOver = ToSwf(characters.Over != 0 ? button.matrixOver : button.matrixUP);
    tag->ID = admin.AddDefinition(tag);
    return tag;
}

}  // namespace tamber
