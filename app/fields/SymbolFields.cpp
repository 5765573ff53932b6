#include "app/fields/SymbolFields.h"

namespace tamber {

bool SetSymbolField(clsSymbolData& symbol, StringView field, StringView value) {
    return SetField(symbol, field, value) ||
           (symbol.PropertyData() && symbol.PropertyData()->SetField(field, value));
}

}  // namespace tamber
