#pragma once

#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "document/Project.h"
#include "document/ProjectReader.h"

namespace tamber {

/// What a person chose for an import.
struct ImportOptions {
    /// Number of the sprite that holds the main timeline; 0 for the next free one.
    Long ID = 0;
    /// What `IDMode` 1 adds to each number.
    Long AddID = 0;
    String SpriteName = u"スプライト";
    String FolderName = u"フォルダ";
    String LayerFolderName = u"フォルダ";
    /// 0 keeps the numbers, 1 adds `AddID`.
    Long IDMode = 0;
    /// Symbols whose number and kind a symbol of the library has are left out; what refers to them
    /// refers to that one.
    bool blNotRepetition = false;
    /// The main timeline becomes a sprite.
    bool chkSprite = false;
    /// The main timeline is left out.
    bool chkNoMain = false;
    /// The symbols stand in a folder.
    bool chkFolder = false;
    /// The layers of the main timeline stand in a folder.
    bool chkLayerFolder = false;
    /// Rows of the incoming library, and of its main timeline, that come along; all when not set.
    std::optional<std::vector<Long>> Symbols;
    std::optional<std::vector<Long>> Layers;
};

/// Brings symbols, and if wanted the main timeline, of one project into another. References follow
/// the symbols; those to symbols that do not come along are emptied, and layers that show such a
/// symbol are left out.
class ProjectImport {
public:
    /// `incoming` is a project of its own, from which everything is taken.
    ProjectImport(Project& target, Project incoming, ImportOptions options,
                  const ProjectAssets& assets);

    /// Adds the symbols to the library. The rows that shall join the edited timeline come back.
    Collection<clsLayer> Run();

private:
    void ChooseSymbols();
    std::shared_ptr<clsSymbolData> Repeated(const clsSymbolData& symbol) const;
    void ReplaceFonts() const;
    /// Gives numbers of their own to the symbols from row `first` of the library on.
    void Renumber(Long first) const;
    void MapReferences(clsSymbolData& symbol) const;
    /// The symbol that takes the place of one of the incoming project, or null.
    std::shared_ptr<clsSymbolData> NewOf(const std::shared_ptr<clsSymbolData>& old) const;
    /// The rows that still have a symbol, with the chosen ones of these.
    Collection<clsLayer> MapLayers(const Collection<clsLayer>& layers,
                                   const std::vector<bool>& chosen) const;
    Collection<clsLayer> TakeMainLayers();
    void AddSprite(Collection<clsLayer> layers);
    void AddToLibrary();

    Project& target_;
    Project incoming_;
    ImportOptions options_;
    const ProjectAssets& assets_;
    /// What comes along, in order.
    std::vector<std::shared_ptr<clsSymbolData>> symbols_;
    /// The sprite of the main timeline, or null.
    std::shared_ptr<clsSymbolData> sprite_;
    std::unordered_map<const clsSymbolData*, std::shared_ptr<clsSymbolData>> newOf_;
    /// The library as it was, by number and kind.
    std::map<std::pair<Long, Long>, std::vector<std::shared_ptr<clsSymbolData>>> existing_;
};

}  // namespace tamber
