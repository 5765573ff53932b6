#include "app/AssetReader.h"
#include "app/frmMain.h"
#include "canvas/LayerPlacement.h"
#include "platform/UserInterface.h"
#include "platform/paths.h"

namespace tamber {

bool frmMain::mnuKVFImport(StringView path, const ChooseImport& choose) {
    String chosen(path);
    if (chosen.empty()) {
        FileDialog dialog;
        dialog.Title = u"プロジェクトのインポート";
        dialog.Filters = {{u"KVFファイル (*.kvf;*.kvfz)", u"*.kvf;*.kvfz"}};
        chosen = CurrentUserInterface().OpenFileDialog(dialog);
        if (chosen.empty()) return false;
    }
    if (!FileExists(chosen)) {
        ShowMessage(chosen + u"\r\n\r\nファイルが見つかりません。");
        return false;
    }
    const AssetReader assets;
    Project incoming;
    ImportOptions options;
    if (!LoadProject(chosen, incoming, assets, inProject.SWFVersion)) return false;
    if (!choose(incoming, options)) return false;
    Collection<clsLayer> layers =
        ProjectImport(inProject, std::move(incoming), std::move(options), assets).Run();
    libraryChanged_ = true;
    view_->RefreshFgrdSymbol();
    if (EditsClass()) return true;
    RemoveRefusedRows(layers, [this](const clsSymbolData& symbol) { return ShowsItself(symbol); });
    InsertLayers(PlaceAt(*editLayers_, 0, false, false), layers);
    return true;
}

}  // namespace tamber
