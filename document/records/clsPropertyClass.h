#pragma once

#include <memory>

#include "document/records/FieldRecord.h"
#include "platform/Collection.h"

namespace tamber {

class clsLayer;
class clsUndoRedo;

/// Begins the name by which a class is exported and imported, before the class's own.
inline constexpr StringView ClassExportPrefix = u"__Packages.";

/// A class of ActionScript; each layer holds a part of its text.
class clsPropertyClass : public FieldRecord<clsPropertyClass> {
public:
    String className;
    String Extends;
    /// At least one, each with a frame action as its one key frame.
    std::shared_ptr<Collection<clsLayer>> colLayer = std::make_shared<Collection<clsLayer>>();
    /// History of the timeline, where each has its own; null until it is edited. A copy has none.
    std::shared_ptr<clsUndoRedo> cUndoRedo;

    clsPropertyClass();
    /// A layer with an empty action.
    static std::shared_ptr<clsLayer> NewLayer();
    Long eType() const override { return KindClass; }
    std::optional<String> Name() const override {
        return Extends.empty() ? className : className + u"：" + Extends;
    }
    std::optional<String> LinkageName() const override {
        return String(ClassExportPrefix) + className;
    }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    /// The copy has a name of its own and none of the layers.
    void CopyTo(clsPropertyData& target) const override;
    void TellFields(const FieldSink& sink) const override;

    /// The layers follow behind them.
    static constexpr auto Fields() {
        using T = clsPropertyClass;
        return std::tuple{
            Field(u"className", &T::className, Follows),
            Field(u"Extends", &T::Extends),
        };
    }

private:
    /// Hands over comment and text of each layer.
    template <class Visit>
    void ForEachPart(Visit&& visit) const;
};

}  // namespace tamber
