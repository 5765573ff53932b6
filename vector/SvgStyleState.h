#pragma once

#include <functional>

#include "vector/SvgDocument.h"
#include "vector/SvgScanner.h"

namespace tamber {

/// The part of the style that passes from an element to those within it.
struct SvgStyleState {
    static constexpr Long NoColor = -1;

    /// As written, for a reference to a gradient.
    std::string_view FillText = "black";
    /// 0xRRGGBB, NoColor for none.
    Long FillColor = 0;
    Long StrokeColor = NoColor;
    /// 0 to 255; those of outer elements are multiplied in.
    Long FillOpacity = 255;
    Long StrokeOpacity = 255;
    Long Opacity = 255;
    Long StrokeWidth = 20;   ///< twips
    Long LineCap = 1;        ///< 0 round, 1 none, 2 square
    Long LineJoin = 2;       ///< 0 round, 1 bevel, 2 miter
    Long MiterLimit = 1024;  ///< 1/256

    bool WantsFill() const { return (!FillText.empty() && FillText != "none") || FillColor >= 0; }
    bool WantsLine() const { return StrokeColor >= 0 && StrokeWidth >= 1; }
    Long FillAlpha() const { return FillOpacity * Opacity / 255; }
    Long StrokeAlpha() const { return StrokeOpacity * Opacity / 255; }

    /// Takes one attribute of an element, with the items of a `style`.
    void Apply(const SvgAttribute& attribute, SvgDocument& document);

private:
    /// False for an item that has no effect.
    bool ApplyPaint(const SvgAttribute& item, SvgLeftOut& leftOut);
    bool ApplyLine(const SvgAttribute& item);
    bool ApplyOpacity(const SvgAttribute& item);
};

/// Calls `take` with each item of a `style` value. Entities in front of it are put in.
void ForEachSvgStyleItem(std::string_view style, SvgDocument& document,
                         const std::function<void(const SvgAttribute&)>& take);

/// Opacity or place, 0 to 255, that is this part of `whole`.
Long SvgShare(std::string_view text, Long whole);

}  // namespace tamber
