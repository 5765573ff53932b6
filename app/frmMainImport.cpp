#include "app/AssetReader.h"
#include "app/frmMain.h"
#include "canvas/timeline/SymbolRows.h"

namespace tamber {

bool frmMain::mnuKVFImport(StringView path, const ChooseImport& choose) {
    const String chosen = ExistingProject(path, u"プロジェクトのインポート");
    if (chosen.empty()) return false;
    const AssetReader assets;
    Project incoming;
    ImportOptions options;
    if (!ShowLoad(LoadProject(chosen, incoming, assets, inProject.SWFVersion))) return false;
    if (!choose(incoming, options)) return false;
    Collection<clsLayer> layers =
        ProjectImport(inProject, std::move(incoming), std::move(options), assets).Run();
    LibraryChanged();
    if (EditsClass()) return true;
    RemoveRefusedRows(layers, [this](const clsSymbolData& symbol) { return ShowsItself(symbol); });
    InsertLayers(PlaceAt(*editLayers_, 0, false, false), layers);
    return true;
}

}  // namespace tamber
