#pragma once

#include <memory>
#include <optional>

#include "document/symbols/Nesting.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
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
    /// While it is read or written; an open project's are those of the program.
    std::optional<HtmlSettings> Html;
};

}  // namespace tamber
