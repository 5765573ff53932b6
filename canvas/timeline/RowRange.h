#pragma once

#include <utility>

#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"

namespace tamber {

/// Rows of a timeline from the first to the last, none when `Last` lies before `First`.
struct RowRange {
    Long First = 1;
    Long Last = 0;
};

/// The rows selected, in either order, less the background row where they end on it.
RowRange SelectedRows(const Collection<clsLayer>& layers, Long row1, Long row2);

/// Rows below a folder row, nested ones included; 0 for other rows.
Long RowsBelow(const clsLayer& layer);

bool IsBackground(const clsLayer& layer);
bool IsFolder(const clsLayer& layer);

/// Where a row goes in.
struct RowPlace {
    /// From 1 to the count of rows and 1 more.
    Long Row = 1;
    /// The folder that holds it, or null.
    std::shared_ptr<clsLayer> Folder;
};

/// The place that a target row stands for: in a folder row with `inFolder`, else behind the row and
/// all that it holds with `after`, else before it. A row that a collapsed folder hides stands for
/// the outermost such folder. Behind the background there is no place; a row beyond the last one
/// stands for the end.
RowPlace PlaceAt(const Collection<clsLayer>& layers, Long row, bool inFolder, bool after);

/// Puts rows, nested among themselves, into a place; the folders' counts follow.
void InsertRows(Collection<clsLayer>& layers, const RowPlace& place,
                const Collection<clsLayer>& rows);

/// Takes a row out, a folder with all that it holds; the folders' counts follow. Gives the number
/// of rows that went.
Long RemoveRow(Collection<clsLayer>& layers, Long row);

}  // namespace tamber
