#pragma once

#include <string_view>

#include "document/cells/ProjectFileVersion.h"
#include "document/cells/clsCSV.h"
#include "platform/types.h"

namespace tamber {

/// Place of a name in a list separated by commas, -1 when it is not there.
Long ColumnOf(std::string_view names, StringView name);

/// Lets `target` read the cells of `source`, which stand in one row under `names`, one of them
/// replaced. False when no cell has the name; a value that cannot be read raises.
template <class Source, class Target>
bool LoadWithCell(const Source& source, Target& target, std::string_view names, StringView field,
                  StringView value) {
    const Long column = ColumnOf(names, field);
    if (column < 0) return false;
    clsCSV cells;
    source.Save(cells);
    cells.SetValue(String(value), column, 0);
    cells.SetPosition(0, 0);
    const ProjectFileVersionScope newest(NewestProjectFileVersion);
    target.Load(cells);
    return true;
}

/// Sets a cell of a record, which stays as it is when the value cannot be read.
template <class Record>
bool SetCell(Record& record, std::string_view names, StringView field, StringView value) {
    Record changed;
    if (!LoadWithCell(record, changed, names, field, value)) return false;
    record = changed;
    return true;
}

}  // namespace tamber
