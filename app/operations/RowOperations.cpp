#include "app/operations/RowOperations.h"

#include <algorithm>

#include "app/session/Transaction.h"
#include "canvas/timeline/SymbolRows.h"
#include "document/edit/TimelineLength.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/SymbolContents.h"
#include "platform/UserInterface.h"

namespace tamber {

namespace {

using Kind = tamber::Change;
using Layers = Collection<clsLayer>;

constexpr SessionChange RowsChanged = Kind::Rows | Kind::Selection;

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

/// False for a symbol that does not show the timeline's owner.
bool TellLoop(const clsSymbolData& symbol, const clsSymbolData& owner) {
    if (!ShowsSymbol(symbol, owner)) return false;
    ShowMessage(u"「" + symbol.Value() + u"」\r\n循環参照になります。", u"循環参照");
    return true;
}

}  // namespace

void RemoveLoops(Collection<clsLayer>& layers, const clsSymbolData& owner) {
    RemoveRefusedRows(layers,
                      [&owner](const clsSymbolData& symbol) { return TellLoop(symbol, owner); });
}

bool RowOperations::InLibrary(const clsSymbolData& symbol) const {
    const auto& library = *session_.colSymbol();
    return symbol.Index >= 1 && symbol.Index <= library.Count() &&
           library(symbol.Index).get() == &symbol;
}

bool RowOperations::ShowsItself(const clsSymbolData& symbol) const {
    const auto& edited = session_.EditSymbol();
    return edited && TellLoop(symbol, *edited);
}

void RowOperations::Insert(const RowPlace& place, Collection<clsLayer> rows) {
    if (const auto& edited = session_.EditSymbol()) RemoveLoops(rows, *edited);
    if (rows.Empty()) return;
    ChangeTimeline(session_, RowsChanged, [&](Layers& layers) {
        InsertRows(layers, place, rows);
        FitFixedKeyFrames(layers);
        session_.SelectRows(place.Row, place.Row + rows.Count() - 1);
        return true;
    });
}

void RowOperations::Copy() {
    const Selection& selected = session_.inSelection;
    const auto layers = session_.colEditLayer();
    session_.inCopyLayers.Copy(*layers, SelectedRows(*layers, selected.Row1, selected.Row2));
    session_.Note(Kind::Clipboard);
}

void RowOperations::Cut() {
    Copy();
    Remove();
}

void RowOperations::Paste() {
    Collection<clsLayer> rows = session_.inCopyLayers.CopyRows();
    RemoveRefusedRows(rows, [this](const clsSymbolData& symbol) {
        if (session_.EditsClass()) return symbol.eType() != KindFrameAction;
        return symbol.ID > 0 && !InLibrary(symbol);
    });
    const Long row = std::min(session_.inSelection.Row1, session_.inSelection.Row2);
    Insert(PlaceAt(*session_.colEditLayer(), row, false, false), std::move(rows));
}

void RowOperations::Remove() {
    const Selection& selected = session_.inSelection;
    const RowRange range = SelectedRows(*session_.colEditLayer(), selected.Row1, selected.Row2);
    const Long all = session_.colEditLayer()->Count();
    if (session_.EditsClass() && range.Last - range.First + 1 == all) return;
    ChangeTimeline(session_, RowsChanged, [&](Layers& layers) {
        if (!RemoveLayers(layers, range)) return false;
        FitFixedKeyFrames(layers);
        session_.SelectRows(range.First, range.First);
        return true;
    });
}

void RowOperations::AddSymbols(Long row, bool inFolder, bool after) {
    if (session_.EditsClass()) return;
    const Selection& selected = session_.inSelection;
    Insert(PlaceAt(*session_.colEditLayer(), row, inFolder, after),
           LayersForSymbols(*session_.colSymbol(), selected.Symbol1, selected.Symbol2,
                            selected.Frame1));
}

void RowOperations::AddOwn(const std::shared_ptr<clsLayer>& layer) {
    Collection<clsLayer> rows;
    rows.Add(layer);
    const Long row = std::min(session_.inSelection.Row1, session_.inSelection.Row2);
    Insert(PlaceAt(*session_.colEditLayer(), row, false, false), std::move(rows));
}

void RowOperations::AddLabel() {
    if (!session_.EditsClass()) AddOwn(MakeOwnLayer(KindFrameLabel, session_.inSelection.Frame1));
}

void RowOperations::AddAction() {
    const Long frame = session_.EditsClass() ? 1 : session_.inSelection.Frame1;
    AddOwn(MakeOwnLayer(KindFrameAction, frame));
}

void RowOperations::AddFolder(StringView name) {
    if (session_.EditsClass()) return;
    const auto layer = MakeOwnLayer(KindLayerFolder, 1);
    layer->LayerName = name;
    AddOwn(layer);
}

bool RowOperations::Change(StringView tag, const std::function<bool(clsLayer&)>& apply) {
    const auto layer = session_.EditLayer();
    if (!layer) return false;
    // Key frames stay shared: what a row's own values hold is in its head.
    const auto changed = std::make_shared<clsLayer>(*layer);
    if (!apply(*changed)) return false;
    if (changed->CompareHead(*layer)) {
        session_.Note(Kind::Rows);
        return true;
    }
    Transaction change(session_);
    *layer = *changed;
    FitFixedKeyFrames(*session_.colEditLayer());
    change.Commit(Kind::Rows | Kind::KeyFrames, tag);
    return true;
}

bool RowOperations::ChangeSymbol(Long index) {
    if (index < 1 || index > session_.colSymbol()->Count()) return false;
    const auto symbol = (*session_.colSymbol())(index);
    return Change({}, [&](clsLayer& layer) {
        const bool ofLibrary = layer.SymbolData() && layer.SymbolData()->ID > 0;
        if (!ofLibrary || !KindOf(symbol->eType()).blLayer || ShowsItself(*symbol)) return false;
        layer.SymbolData(symbol);
        return true;
    });
}

bool RowOperations::ChangeInstanceName(StringView name) {
    if (!IsInstanceName(name)) {
        ShowMessage(NameRule, u"インスタンス名");
        return false;
    }
    return Change({}, [name](clsLayer& layer) {
        if (!layer.blInstance()) return false;
        layer.InstanceName = name;
        return true;
    });
}

}  // namespace tamber
