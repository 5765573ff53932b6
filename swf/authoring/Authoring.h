#pragma once

#include <set>
#include <unordered_map>
#include <vector>

#include "swf/authoring/ButtonDefinition.h"
#include "swf/authoring/LayerCharacter.h"
#include "swf/authoring/MovieScripts.h"
#include "swf/authoring/clsSWFAdmin.h"
#include "swf/authoring/mdlSWFAuthoring.h"

namespace tamber {

class clsPropertyClass;
class clsPropertySprite;

/// Versions of the movie from which there are imports, and nine-slice scaling.
inline constexpr Long LinkVersion = 5;
inline constexpr Long ScalingGridVersion = 8;
/// Version of the movie from which players know gradients with a focus of their own.
inline constexpr Long FocalVersion = 8;

/// A timeline being walked: its tags, and where its positions are counted from.
struct Timeline {
    clsSWFAdmin& Admin;
    const Collection<clsLayer>& Layers;
    TimelineOrigin Origin;
    /// Frame of the movie that a sprite's definitions go into; 0 for the movie's own timeline.
    Long SpriteFrame = 0;

    bool IsMain() const { return SpriteFrame == 0; }
};

/// One build: defines symbols on first need and walks the timelines.
class Authoring {
public:
    Authoring(const MovieRequest& request, clsSWFAdmin& movie, Notices& told)
        : Scripts(mdlSWFTag::swfVersion(), told), request_(request), movie_(movie), told_(told) {}

    /// Notes which exported sprites belong to which class.
    void CollectClassLinks();
    void PreDefineFrameOne(clsSWFAdmin& admin);
    void DefineExports(clsSWFAdmin& admin, Long mode);
    void WriteTimeline(const Timeline& timeline);
    /// Puts what rows of a timeline show on one frame on frame 1: no scripts, labels or sounds, and
    /// of sprites their first frame. The result are the placements, each with its row and key
    /// frame.
    PlacedTags WriteFrameSnapshot(clsSWFAdmin& admin, const SnapshotRequest& snapshot);

    /// What has been defined. Nothing can be defined behind this.
    DefinitionTable TakeIdentifiers() { return std::move(identifiers_); }

    MovieScripts Scripts;

private:
    /// `layer` is the one that shows the symbol, or null. The result is the last identifier.
    Long EnsureDefined(clsSWFAdmin& admin, const clsLayer* layer, const clsSymbolData& symbol,
                       Long frame);
    Long EnsureForm(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame);
    Long DefineSymbol(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame);
    Long DefineByKind(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame);
    void DefineSpriteChildren(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame);
    /// Defines the pictures of a koma's layer: all, or in a snapshot the one that the layer shows
    /// on frame `shown`.
    std::vector<Long> DefineKomas(clsSWFAdmin& admin, const clsLayer& layer, Long frame,
                                  Long shown);
    Long DefineBitmap(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    Long DefineText(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    Long DefineVector(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame);
    Long DefineSprite(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    /// New definitions, with identifiers of their own. Init actions go into `frame`.
    Long GetNewSprite(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame);
    Long GetNewSpriteEdit(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame);
    /// A class is an empty sprite whose init action makes it.
    Long GetNewClass(clsSWFAdmin& admin, const clsPropertyClass& record, Long frame);
    Long DefineLink(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    /// Adds the definition of a sprite whose timeline is written, and its init actions.
    Long AddSprite(clsSWFAdmin& admin, const std::shared_ptr<clsSWFAdmin>& inner, Long frame);
    ButtonCharacters DefineButtonStates(clsSWFAdmin& admin, const clsPropertyButton& button,
                                        Long frame);
    Long DefineHitArea(clsSWFAdmin& admin, const clsPropertyButton& button, Long frame);
    const clsSymbolData* HitAreaOf(const clsPropertyButton& button);
    /// An empty timeline for a sprite, which shares the definitions of `admin`.
    static std::shared_ptr<clsSWFAdmin> NewInner(const clsSWFAdmin& admin, Long width, Long height,
                                                 Long frameCount);
    void AddScalingGrid(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long id, Long frame);
    void AddExport(clsSWFAdmin& admin, const clsSymbolData& symbol, Long id, Long frame);

    /// Frame for what need not be defined in the first one.
    Long LateFrame() const { return snapshot_ == nullptr ? 2 : 1; }
    /// Frame of a timeline that a snapshot shows: of sprites the first.
    Long SnapshotFrame(const Timeline& timeline) const;
    /// A row with so many depths from `depth` on has something for the walk.
    bool IsWalked(const Timeline& timeline, Long index, Long depth, Long depths) const;
    void WriteLayer(const Timeline& timeline, Long index, Long& depth);
    void WriteUnplaced(const Timeline& timeline, const clsLayer& layer);
    void WriteBackground(const Timeline& timeline, const clsLayer& layer);
    void WriteLabels(const Timeline& timeline, const clsLayer& layer);
    void PlaceLayer(const Timeline& timeline, Long index, Long depth);
    void DefineExport(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    void WriteFrameActions(const Timeline& timeline, const clsLayer& layer);
    /// Defines the button of one layer, with the layer's script. 0 for a layer without key frames.
    Long DefineButton(const Timeline& timeline, const clsLayer& layer, Long depth);
    void PlaceKomas(const Timeline& timeline, Long index, LayerCharacter character);
    void Place(const Timeline& timeline, Long index, const LayerCharacter& character);
    DeformedCharacter Deform(const Timeline& timeline, const clsLayer& layer,
                             const clsLayerObject& start, const clsLayerObject* end);
    bool IsGated(const clsLayer& layer);
    void Warn(String text, const clsLayer& layer);
    void LeaveOut(const clsLayer& layer);
    void LeaveOutKomas(const clsLayer& layer);
    void WarnOfFocus(const clsSymbolData& symbol);
    void LeaveOutStates(const clsLayer& layer);
    void ShowProgress(Long done, Long total) const;

    const MovieRequest& request_;
    clsSWFAdmin& movie_;
    Notices& told_;
    DefinitionTable identifiers_;
    /// Hit areas that were made for buttons without one; null for an up state without a size.
    std::unordered_map<const clsPropertyButton*, std::shared_ptr<clsSymbolData>> hitAreas_;
    /// Sprites that stand for texts which follow an outline.
    std::vector<std::shared_ptr<clsSymbolData>> fitTexts_;
    const SnapshotRequest* snapshot_ = nullptr;
    PlacedTags placed_;
    std::set<const clsLayer*> leftOut_;
    std::set<const clsSymbolData*> focal_;
    Long nesting_ = 0;
};

}  // namespace tamber
