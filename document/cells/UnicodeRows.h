#pragma once

#include "document/cells/clsCSV.h"

namespace tamber {

/// Puts behind the last row of a table a row for each cell that code page 932 cannot hold: the word
/// "UNICODE", the cell's row and column, from 0, and its text, in which every character outside
/// ASCII and every backslash stands as "\uXXXX", a UTF-16 unit in hexadecimal digits. The cell
/// itself stays, and is stored with what the code page has for its characters.
void AppendUnicodeRows(clsCSV& csv);

/// Gives the cells that rows at the end of a read table tell of their texts again. A row is passed
/// over when its cell is no longer what the code page makes of the text, as after an edit by a
/// program that does not know such rows.
void TakeUnicodeRows(clsCSV& csv);

}  // namespace tamber
