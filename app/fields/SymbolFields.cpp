#include "app/fields/SymbolFields.h"

#include "app/fields/CellNames.h"
#include "app/fields/RecordCells.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/records/clsPropertyText.h"
#include "platform/text.h"

namespace tamber {

namespace {

bool SetFolderField(clsPropertySymbolFolder& folder, StringView field, StringView value) {
    if (field == u"FolderName")
        folder.FolderName = value;
    else if (field == u"Expand")
        folder.Expand = ToBoolean(value);
    else
        return false;
    return true;
}

bool SetLinkField(clsPropertyLinkSymbol& link, StringView field, StringView value) {
    if (field == u"SymbolName")
        link.SymbolName = value;
    else if (field == u"URL")
        link.URL = value;
    else if (field == u"Width")
        link.Width = ToLong(value);
    else if (field == u"height")
        link.height = ToLong(value);
    else
        return false;
    return true;
}

/// Tried on a record of its own first: the symbol's keeps its references and what its file holds.
bool SetRecordField(clsSymbolData& symbol, StringView field, StringView value) {
    const auto* text = symbol.Property<clsPropertyText>();
    const auto names = OptionCellNames(symbol.eType(), text != nullptr && text->blDynamic);
    clsPropertyData& record = *symbol.PropertyData();
    return LoadWithCell(record, *MakePropertyData(symbol.eType()), names, field, value) &&
           LoadWithCell(record, record, names, field, value);
}

}  // namespace

bool SetSymbolField(clsSymbolData& symbol, StringView field, StringView value) {
    if (field == u"ObjectName") {
        symbol.ObjectName = value;
    } else if (field == u"LinkClassName") {
        symbol.LinkClassName = value;
    } else if (field == u"blExport") {
        symbol.blExport = ToBoolean(value);
    } else if (field == u"blExportTop") {
        symbol.blExportTop = ToBoolean(value);
    } else if (auto* folder = symbol.Property<clsPropertySymbolFolder>()) {
        return SetFolderField(*folder, field, value);
    } else if (auto* link = symbol.Property<clsPropertyLinkSymbol>()) {
        return SetLinkField(*link, field, value);
    } else if (auto* record = symbol.Property<clsPropertyClass>()) {
        if (field != u"Extends") return false;
        record->Extends = value;
    } else {
        return symbol.PropertyData() && SetRecordField(symbol, field, value);
    }
    return true;
}

}  // namespace tamber
