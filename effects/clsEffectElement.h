#pragma once

#include <memory>

#include "document/cells/clsCSV.h"
#include "effects/clsEffectParam.h"
#include "platform/Collection.h"
#include "platform/types.h"

namespace tamber {

/// The effect on a span of an element.
class clsEffectElement {
public:
    static constexpr Long TypeIn = 0;
    static constexpr Long TypeOut = 1;
    static constexpr Long TypeLoop = 2;

    bool blEffect = false;
    Long EffectType = TypeIn;
    String EffectName;
    /// Frames between one letter and the next.
    Long EffectInterval = 0;
    /// Letter order: 0 left, 1 right, 2 centre, 3 edge, 4 random.
    Long EfIntervalType = 0;
    /// All letters stop together.
    bool blAllStop = false;
    /// The element is a text, so that it can be shown letter by letter.
    bool ApplyOneEnable = false;
    /// Frames of the effect's span.
    Long EffectFrames = 20;
    /// Parameters the user changed, by name; null when there are none.
    std::shared_ptr<Collection<clsEffectParam>> colEffectPrm;

    /// One letter at a time; always false without `ApplyOneEnable`.
    bool blApplyOne() const { return ApplyOneEnable && applyOne_; }
    void blApplyOne(bool value) { applyOne_ = ApplyOneEnable && value; }

    /// Parameters are copied too; `ApplyOneEnable` stays the target's own.
    void CopyTo(clsEffectElement& target) const;
    bool Compare(const clsEffectElement& other) const;
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;

private:
    bool applyOne_ = false;
};

}  // namespace tamber
