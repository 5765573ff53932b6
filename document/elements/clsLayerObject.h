#pragma once

#include <memory>

#include "document/cells/Fields.h"
#include "document/elements/clsElement.h"
#include "platform/types.h"

namespace tamber {

/// First frame of a key frame; one below 1 raises.
Long FirstFrame(Long frame);
/// Frames of a key frame from a file, at least 1.
Long FramesRead(Long count);

/// A key frame: a span of frames, counted from 1, and the element it shows.
class clsLayerObject {
public:
    /// Animates to the next key frame.
    bool blTween = false;
    /// Shown until the next key frame, or to the end of the timeline.
    bool blFixed = false;
    /// False: holds its frames but places nothing.
    bool blVisible = true;
    /// Null for a kind without an element.
    std::shared_ptr<clsElement> Object;

    Long StartFrame() const { return start_; }
    void StartFrame(Long frame);
    /// Number of frames, at least 1.
    Long DispCount() const { return count_; }
    void DispCount(Long count);
    Long endFrame() const;
    void endFrame(Long frame);
    Long SymbolType() const { return kind_; }
    /// Makes a new element of the kind.
    void SymbolType(Long kind);
    /// True when the frame lies within the span.
    bool CheckFrame(Long frame) const { return frame >= start_ && frame <= endFrame(); }

    /// The element's placement, or null.
    clsLayerObjElement* Placement() const { return Object ? Object->Placement() : nullptr; }
    /// The element as its class, or null when it is of another.
    template <class T>
    T* ObjectAs() const {
        return dynamic_cast<T*>(Object.get());
    }

    /// A key frame with an element of its own, motion path included.
    std::shared_ptr<clsLayerObject> Copy() const;
    /// Copies frames and flags. With `deep` the target's element takes the values of this one; else
    /// the two share this one.
    void CopyTo(clsLayerObject& target, bool deep) const;
    /// True when frames, flags and element agree, motion path included.
    bool Compare(const clsLayerObject& other) const;
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;

    static constexpr auto Fields() {
        using T = clsLayerObject;
        constexpr FromVersion WithVisible(0x50A00);
        return std::tuple{
            Field(u"StartFrame", &T::start_, Fitted(FirstFrame), Follows),
            Field(u"DispCount", &T::count_, Fitted(FramesRead), Follows),
            Field(u"blFixed", &T::blFixed, Follows),
            Field(u"blTween", &T::blTween, Follows),
            Group(WithVisible, Field(u"blVisible", &T::blVisible)),
        };
    }

private:
    Long start_ = 1;
    Long count_ = 1;
    Long kind_ = 0;
};

}  // namespace tamber
