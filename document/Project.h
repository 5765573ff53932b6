#pragma once

#include <memory>
#include <optional>

#include "document/clsLayer.h"
#include "document/clsSymbolData.h"
#include "platform/Collection.h"
#include "platform/types.h"

namespace tamber {

/// Settings of the HTML page, when a project holds them.
struct HtmlSettings {
    String SizeUnit;
    String WIDTH;
    String HEIGHT;
    String align;
    String salign;
    bool play = true;
    bool loop = true;
    bool menu = true;
    String quality;
    String wmode;
    String scale;
    bool NamedAnchors = false;
    bool operator==(const HtmlSettings&) const = default;
};

/// Sprites and buttons shown within each other at most.
inline constexpr Long DeepestNesting = 500;

/// All that a project file holds.
struct Project {
    /// The library, a folder directly followed by its contents.
    std::shared_ptr<Collection<clsSymbolData>> colSymbol =
        std::make_shared<Collection<clsSymbolData>>();
    std::shared_ptr<Collection<clsLayer>> colMainLayer = std::make_shared<Collection<clsLayer>>();
    /// Stage size in pixels.
    Long MainWidth = 0;
    Long MainHeight = 0;
    Single FrameRate = 0;
    Long SWFVersion = 0;
    std::optional<HtmlSettings> Html;
};

/// Sets `ParentFolder` of each row from the row counts of the folders before it.
void NestSymbols(Collection<clsSymbolData>& symbols);
void NestLayers(Collection<clsLayer>& layers);

}  // namespace tamber
