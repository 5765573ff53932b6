#pragma once

#include <memory>

#include "document/cells/Fields.h"
#include "platform/types.h"

namespace tamber {

class clsLayerObjElement;

/// What a key frame holds: how the layer's symbol appears there.
class clsElement {
public:
    virtual ~clsElement() = default;

    virtual Long eType() const = 0;
    virtual void Load(clsCSV& csv) = 0;
    virtual void Save(clsCSV& csv) const = 0;
    /// A copy with motion path.
    std::shared_ptr<clsElement> Copy() const;
    /// Copies what both kinds have. The motion path is copied only with `withPoints`.
    virtual void CopyTo(clsElement& target, bool withPoints) const = 0;
    /// True when the other is of this kind and all its values agree.
    virtual bool Compare(const clsElement& other) const = 0;
    /// Tells all values by name, as `SetField` takes them.
    virtual void TellFields(const FieldSink& sink) const = 0;
    virtual bool SetField(StringView name, StringView value) = 0;
    /// Placement values; null for a kind without them.
    virtual clsLayerObjElement* Placement() { return nullptr; }
    virtual const clsLayerObjElement* Placement() const { return nullptr; }
};

/// A new element of a kind; null when the kind has none.
std::shared_ptr<clsElement> MakeElement(Long kind);

}  // namespace tamber
