#pragma once

#include <bitset>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// What a drawing may use and the reader passes over, or takes otherwise than it was meant.
enum class SvgFeature {
    Arc,
    Text,
    Image,
    Circle,
    Ellipse,
    Clipping,
    Mask,
    Pattern,
    Filter,
    Marker,
    StyleSheet,
    Animation,
    Script,
    ForeignObject,
    NestedSvg,
    RoundedCorner,
    SingleQuote,
    StrokeGradient,
    Dashes,
    Hidden,
    CurrentColor,
    Paint,
    PlainHref,
    AspectRatio,
    JoinedDecimals,
    PrefixedElement,
    TransformOrder,
    Count,
};

/// Collects the names of features left out, each once, in the order met.
class SvgLeftOut {
public:
    void Note(SvgFeature feature);
    bool Has(SvgFeature feature) const { return noted_.test(static_cast<std::size_t>(feature)); }
    /// Notes what the name of an element that is not drawn stands for, if it leaves a gap.
    void NoteElement(std::string_view name);
    /// Notes an attribute or style item that has no effect here, unless its value is "none".
    void NoteAttribute(std::string_view name, std::string_view value);

    std::vector<String> Names;

private:
    std::bitset<static_cast<std::size_t>(SvgFeature::Count)> noted_;
};

}  // namespace tamber
