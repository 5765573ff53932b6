#pragma once

#include <memory>

#include "document/SymbolKinds.h"
#include "document/clsCSV.h"
#include "platform/types.h"

namespace tamber {

/// What a library symbol holds beside its name: one class a kind.
class clsPropertyData {
public:
    virtual ~clsPropertyData() = default;

    virtual Long eType() const = 0;
    String TypeText() const { return String(SymbolKindText(eType())); }
    virtual void Load(clsCSV& csv) = 0;
    virtual void Save(clsCSV& csv) const = 0;
    /// Copies into a record of the same class; any other raises.
    virtual void CopyTo(clsPropertyData& target) const = 0;
    /// Size in pixels, 0 for a kind without one.
    virtual Long PixelWidth() const { return 0; }
    virtual Long PixelHeight() const { return 0; }
};

/// A new record of a kind; null when the kind has none.
std::shared_ptr<clsPropertyData> MakePropertyData(Long kind);

/// Assigns one record to another of the same class, for CopyTo.
template <class T>
void CopyRecord(const T& from, clsPropertyData& to) {
    dynamic_cast<T&>(to) = from;
}

}  // namespace tamber
