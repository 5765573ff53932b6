#pragma once

#include <memory>

#include "document/records/FieldRecord.h"
#include "platform/Collection.h"

namespace tamber {

class clsLayer;
class clsUndoRedo;
class clsSymbolData;

/// A sprite: a timeline of its own.
class clsPropertySprite : public FieldRecord<clsPropertySprite> {
public:
    String SpriteName;
    Long Width = 0;
    Long height = 0;
    Long baseX = 0;
    Long baseY = 0;
    /// Nine-slice scaling by the grid, which is told in twips of the sprite's stage.
    bool bl9Scale = false;
    Long GridLeft = 0;
    Long GridTop = 0;
    Long GridRight = 0;
    Long GridBottom = 0;
    std::shared_ptr<Collection<clsLayer>> colLayer = std::make_shared<Collection<clsLayer>>();
    /// History of the timeline, where each has its own; null until it is edited. A copy has none.
    std::shared_ptr<clsUndoRedo> cUndoRedo;

    /// True when the timeline, and all that it shows, reaches `symbol`.
    bool CkHasLoop(const clsSymbolData& symbol) const;

    Long eType() const override { return KindSprite; }
    std::optional<String> Name() const override { return SpriteName; }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }
    void CopyTo(clsPropertyData& target) const override;

    static constexpr auto Fields() {
        using T = clsPropertySprite;
        return std::tuple{
            Field(u"SpriteName", &T::SpriteName),
            Field(u"Width", &T::Width),
            Field(u"height", &T::height),
            Field(u"baseX", &T::baseX),
            Field(u"baseY", &T::baseY),
            Group(IfFilled(), Field(u"bl9Scale", &T::bl9Scale), Field(u"GridLeft", &T::GridLeft),
                  Field(u"GridRight", &T::GridRight), Field(u"GridTop", &T::GridTop),
                  Field(u"GridBottom", &T::GridBottom)),
        };
    }
};

}  // namespace tamber
