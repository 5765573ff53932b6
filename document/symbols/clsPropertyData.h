#pragma once

#include <memory>
#include <optional>

#include "document/cells/Fields.h"
#include "document/elements/SymbolKinds.h"
#include "platform/types.h"

namespace tamber {

/// What a library symbol holds beside its name: one class a kind.
class clsPropertyData {
public:
    virtual ~clsPropertyData() = default;

    virtual Long eType() const = 0;
    String TypeText() const { return String(SymbolKindText(eType())); }
    /// The kind, with a link's target and an expanded folder told apart.
    virtual Long eTypeEx() const { return eType(); }
    /// Word of the kind in lists.
    virtual String TypeTextEx() const { return TypeText(); }
    /// Name to display; nothing for a kind that is called like its file.
    virtual std::optional<String> Name() const { return std::nullopt; }
    /// Name by which a movie exports the symbol, where the user gave none; nothing for the one to
    /// display.
    virtual std::optional<String> LinkageName() const { return std::nullopt; }
    /// Mark in the list of the library.
    virtual String OptionText() const { return {}; }
    /// The symbol can be exported when the user wants it to.
    virtual bool CanExport() const { return true; }
    /// Layers that show the symbol can have an instance name.
    virtual bool HasInstanceName() const { return KindOf(eType()).blInstance; }
    /// Key frames that show the symbol can take an effect.
    virtual bool TakesEffects() const { return false; }
    /// Depths of a placement as shapes of their own; 1 for one that stays whole.
    virtual Long DividedDepths() const { return 1; }
    /// Depths of a placement whose key frames divide it.
    virtual Long ShapeCount() const { return 1; }
    /// Rows below a folder, nested ones included; -1 for other kinds.
    virtual Long RowsBelow() const { return -1; }
    /// Adds to the row count of a folder.
    virtual void AddRows(Long) {}
    virtual void Load(clsCSV& csv) = 0;
    virtual void Save(clsCSV& csv) const = 0;
    /// A record of its own with the same values and references. What a record holds by reference
    /// (artwork, timeline, other symbols) the two share.
    virtual std::shared_ptr<clsPropertyData> Copy() const = 0;
    /// Makes a record of the same class one for another symbol, with a timeline of its own; any
    /// other raises.
    virtual void CopyTo(clsPropertyData& target) const = 0;
    /// Tells the options by name, as `SetField` takes them.
    virtual void TellFields(const FieldSink& sink) const = 0;
    virtual bool SetField(StringView name, StringView value) = 0;
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
