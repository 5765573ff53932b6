#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "swf/authoring/ButtonDefinition.h"
#include "swf/authoring/LayerCharacters.h"
#include "swf/authoring/MovieBuild.h"
#include "swf/authoring/TimelineWriter.h"

namespace tamber {

/// Defines symbols on first need, each by its kind. `frame` is that of the movie which the
/// definition goes into; identifiers are 0 for what has no character.
class SymbolDefiner {
public:
    /// `writer` fills the timelines of sprites.
    SymbolDefiner(MovieBuild& build, TimelineWriter& writer) : build_(build), writer_(writer) {}

    /// `layer` is the one that shows the symbol, or null. The result is the last identifier.
    Long EnsureDefined(clsSWFAdmin& admin, const clsLayer* layer, const clsSymbolData& symbol,
                       Long frame);
    Long EnsureForm(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame);
    /// Identifiers of the wanted pictures of a koma's layer.
    std::vector<Long> DefineKomas(clsSWFAdmin& admin, const clsLayer& layer, bool isMain,
                                  Long frame);
    /// The button of one layer, with the actions of its script; its states are defined in
    /// `stateFrame`.
    Long DefineButton(clsSWFAdmin& admin, const clsLayer& layer, Long depth, Long frame,
                      Long stateFrame);
    /// The drawing of a layer, as a key frame deforms it, and within a tween as its `end` does,
    /// else null. It is divided where the layer has the depths.
    ShownCharacter DefineDeformed(clsSWFAdmin& admin, const clsLayer& layer,
                                  const clsLayerObject& start, const clsLayerObject* end,
                                  Long frame);

    /// The definition of a symbol gives it an identifier, in a movie of `version`.
    static bool HasCharacter(const clsSymbolData& symbol, Long version);

private:
    Long DefineSymbol(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame);
    Long DefineByKind(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame);
    Long DefineBitmap(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    Long DefineText(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    Long DefineVector(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame);
    Long DefineSprite(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    void DefineSpriteChildren(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame);
    /// A class is an empty sprite whose init action makes it.
    Long GetNewClass(clsSWFAdmin& admin, const clsPropertyClass& record, Long frame);
    /// The place of a video, without pictures.
    Long DefineVideoPlace(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    Long DefineLink(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    ButtonCharacters DefineButtonStates(clsSWFAdmin& admin, const clsPropertyButton& button,
                                        Long frame);
    Long DefineState(clsSWFAdmin& admin, const clsSymbolData* state, Long frame);
    const clsSymbolData* HitAreaOf(const clsPropertyButton& button);
    void AddExport(clsSWFAdmin& admin, const clsSymbolData& symbol, Long id, Long frame);

    MovieBuild& build_;
    TimelineWriter& writer_;
    /// Hit areas that were made for buttons without one; null for an up state without a size.
    std::unordered_map<const clsPropertyButton*, std::shared_ptr<clsSymbolData>> hitAreas_;
    /// Sprites that stand for texts which follow an outline.
    std::vector<std::shared_ptr<clsSymbolData>> fitTexts_;
    Long nesting_ = 0;
};

}  // namespace tamber
