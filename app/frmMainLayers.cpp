#include <algorithm>

#include "app/frmMain.h"
#include "canvas/timeline/SymbolRows.h"
#include "canvas/timeline/RowRange.h"
#include "document/records/SymbolContents.h"
#include "document/elements/SymbolKinds.h"
#include "document/edit/TimelineLength.h"
#include "platform/UserInterface.h"

// The commands on the rows of the edited timeline.

namespace tamber {

namespace {

constexpr StringView NameRule =
    u"・半角英数字とアンダースコア( _ )のみを使用して下さい\r\n"
    u"・最初の文字は英字にして下さい";

bool IsLetter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// A name that scripts can use, or none.
bool IsInstanceName(StringView name) {
    if (name.empty()) return true;
    return IsLetter(name.front()) && std::all_of(name.begin(), name.end(), [](char16_t c) {
               return IsLetter(c) || (c >= u'0' && c <= u'9') || c == u'_';
           });
}

/// Folders and classes are no pictures of a layer.
bool IsPlaceable(const clsSymbolData& symbol) {
    return symbol.eType() != KindSymbolFolder && symbol.eType() != KindClass;
}

/// False for a symbol that does not show the timeline's owner.
bool TellLoop(const clsSymbolData& symbol, const clsSymbolData& owner) {
    if (!ShowsSymbol(symbol, owner)) return false;
    ShowMessage(u"「" + symbol.Value() + u"」\r\n循環参照になります。", u"循環参照");
    return true;
}

}  // namespace

void frmMain::ChangeSelectIndex(Long row1, Long row2) {
    const Long rows = std::max(editLayers_->Count(), 1);
    SelIndex1 = std::clamp(row1, 1, rows);
    SelIndex2 = std::clamp(row2, 1, rows);
    view_->DispDataTbl();
    ShowEditFrame();
}

bool frmMain::InLibrary(const clsSymbolData& symbol) const {
    return symbol.Index >= 1 && symbol.Index <= colSymbol()->Count() &&
           (*colSymbol())(symbol.Index).get() == &symbol;
}

bool frmMain::ShowsItself(const clsSymbolData& symbol) const {
    const auto edited = EditSymbol();
    return edited && TellLoop(symbol, *edited);
}

void frmMain::RemoveLoops(Collection<clsLayer>& layers, const clsSymbolData& owner) {
    RemoveRefusedRows(layers,
                      [&owner](const clsSymbolData& symbol) { return TellLoop(symbol, owner); });
}

void frmMain::InsertLayers(const RowPlace& place, const Collection<clsLayer>& rows) {
    if (rows.Empty()) return;
    InsertRows(*editLayers_, place, rows);
    FitFixedKeyFrames(*editLayers_);
    ChangeSelectIndex(place.Row, place.Row + rows.Count() - 1);
    AddUndoRedoData(UndoStep::Change);
}

void frmMain::mnuCopyLayer() {
    inCopyLayers.Copy(*editLayers_, SelectedRows(*editLayers_, SelIndex1, SelIndex2));
}

void frmMain::mnuCutLayer() {
    mnuCopyLayer();
    mnuRemoveLayer();
}

void frmMain::mnuPasteLayer() {
    Collection<clsLayer> rows = inCopyLayers.CopyRows();
    RemoveRefusedRows(rows, [this](const clsSymbolData& symbol) {
        if (EditsClass()) return symbol.eType() != KindFrameAction;
        return (symbol.ID > 0 && !InLibrary(symbol)) || ShowsItself(symbol);
    });
    InsertLayers(PlaceAt(*editLayers_, std::min(SelIndex1, SelIndex2), false, false), rows);
}

void frmMain::mnuRemoveLayer() {
    const RowRange range = SelectedRows(*editLayers_, SelIndex1, SelIndex2);
    if (EditsClass() && range.Last - range.First + 1 == editLayers_->Count()) return;
    if (!RemoveLayers(*editLayers_, range)) return;
    FitFixedKeyFrames(*editLayers_);
    ChangeSelectIndex(range.First, range.First);
    AddUndoRedoData(UndoStep::Change);
}

void frmMain::AddToLayer(Long row, bool inFolder, bool after) {
    if (EditsClass()) return;
    Collection<clsLayer> rows = LayersForSymbols(*colSymbol(), SelSymbol1, SelSymbol2, SelFrame1);
    RemoveRefusedRows(rows, [this](const clsSymbolData& symbol) { return ShowsItself(symbol); });
    InsertLayers(PlaceAt(*editLayers_, row, inFolder, after), rows);
}

void frmMain::AddOwnLayer(const std::shared_ptr<clsLayer>& layer) {
    Collection<clsLayer> rows;
    rows.Add(layer);
    InsertLayers(PlaceAt(*editLayers_, std::min(SelIndex1, SelIndex2), false, false), rows);
}

void frmMain::mnuAddLayer_FrameLabel() {
    if (!EditsClass()) AddOwnLayer(MakeOwnLayer(KindFrameLabel, SelFrame1));
}

void frmMain::mnuAddLayer_FrameAction() {
    AddOwnLayer(MakeOwnLayer(KindFrameAction, EditsClass() ? 1 : SelFrame1));
}

void frmMain::mnuAddLayer_Folder(StringView name) {
    if (EditsClass()) return;
    const auto layer = MakeOwnLayer(KindLayerFolder, 1);
    layer->LayerName = name;
    AddOwnLayer(layer);
}

bool frmMain::ChangeLayer(StringView tag, const std::function<bool(clsLayer&)>& change) {
    const auto layer = EditLayer();
    if (!layer) return false;
    const auto before = layer->CopyHead();
    if (!change(*layer)) return false;
    if (layer->CompareHead(*before)) return true;
    FitFixedKeyFrames(*editLayers_);
    view_->DispDataTbl();
    view_->ShowEditFrame();
    AddUndoRedoData(UndoStep::Change, tag);
    return true;
}

bool frmMain::ChangeLayerSymbol(Long index) {
    if (index < 1 || index > colSymbol()->Count()) return false;
    const auto symbol = (*colSymbol())(index);
    return ChangeLayer({}, [&](clsLayer& layer) {
        const bool ofLibrary = layer.SymbolData() && layer.SymbolData()->ID > 0;
        if (!ofLibrary || !IsPlaceable(*symbol) || ShowsItself(*symbol)) return false;
        layer.SymbolData(symbol);
        return true;
    });
}

bool frmMain::ChangeInstanceName(StringView name) {
    if (!IsInstanceName(name)) {
        ShowMessage(NameRule, u"インスタンス名");
        return false;
    }
    return ChangeLayer({}, [name](clsLayer& layer) {
        if (!layer.blInstance()) return false;
        layer.InstanceName = name;
        return true;
    });
}

}  // namespace tamber
