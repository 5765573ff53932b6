#include "document/records/clsPropertyButton.h"

#include <algorithm>

#include "document/symbols/clsSymbolData.h"

namespace tamber {

namespace {

Long IndexOf(const std::shared_ptr<clsSymbolData>& symbol) {
    return symbol ? symbol->Index : 0;
}
Long IdOf(const std::shared_ptr<clsSymbolData>& symbol) {
    return symbol ? symbol->ID : 0;
}

/// A state has a size of its own unless it is a button again.
bool IsShape(const std::shared_ptr<clsSymbolData>& symbol) {
    return symbol && symbol->eType() != KindButton;
}

}  // namespace

Long clsPropertyButton::UpIndex() const {
    return IndexOf(UpSymbol());
}
Long clsPropertyButton::DownIndex() const {
    return IndexOf(DownSymbol());
}
Long clsPropertyButton::OverIndex() const {
    return IndexOf(OverSymbol());
}
Long clsPropertyButton::HitTestIndex() const {
    return IndexOf(HitTestSymbol());
}
Long clsPropertyButton::UpID() const {
    return IdOf(UpSymbol());
}
Long clsPropertyButton::DownID() const {
    return IdOf(DownSymbol());
}
Long clsPropertyButton::OverID() const {
    return IdOf(OverSymbol());
}
Long clsPropertyButton::HitTestID() const {
    return IdOf(HitTestSymbol());
}

Long clsPropertyButton::PixelWidth() const {
    Long width = 0;
    for (const auto& state : {UpSymbol(), DownSymbol(), OverSymbol()})
        if (IsShape(state)) width = std::max(width, state->PixelWidth());
    return width;
}

Long clsPropertyButton::PixelHeight() const {
    Long rows = 0;
    for (const auto& state : {UpSymbol(), DownSymbol(), OverSymbol()})
        if (IsShape(state)) rows = std::max(rows, state->PixelHeight());
    return rows;
}

}  // namespace tamber
