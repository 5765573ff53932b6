#pragma once

#include <limits>
#include <memory>

#include "document/records/FieldRecord.h"
#include "platform/Collection.h"

namespace tamber {

class clsSymbolData;

/// Pictures shown one after the other.
class clsPropertyKoma : public FieldRecord<clsPropertyKoma> {
public:
    String KomaName;
    /// Frames a picture.
    Long DispCount = 1;
    std::shared_ptr<Collection<clsSymbolData>> colKomas =
        std::make_shared<Collection<clsSymbolData>>();
    /// Largest of the pictures.
    Long Width = 0;
    Long height = 0;

    void SetSize();

    Long eType() const override { return KindKoma; }
    std::optional<String> Name() const override { return KomaName; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }

    static constexpr auto Fields() {
        using T = clsPropertyKoma;
        return std::tuple{
            Field(u"KomaName", &T::KomaName),
            Field(u"DispCount", &T::DispCount, Among(1, std::numeric_limits<Long>::max())),
        };
    }
};

}  // namespace tamber
