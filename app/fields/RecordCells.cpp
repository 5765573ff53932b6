#include "app/fields/RecordCells.h"

#include <algorithm>

#include "platform/codepage.h"

namespace tamber {

Long ColumnOf(std::string_view names, StringView name) {
    const std::string wanted = ToNarrow(name);
    for (Long column = 0; !names.empty(); ++column) {
        const std::size_t end = std::min(names.find(','), names.size());
        if (names.substr(0, end) == wanted) return column;
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    return -1;
}

}  // namespace tamber
