#pragma once

#include "app/operations/Placeholder.h"
#include "document/ProjectReader.h"
#include "platform/fonts.h"
#include "swf/authoring/TextMeasure.h"

namespace tamber {

/// Reads the files behind a project's symbols. Pictures and drawings are decoded; of sounds and
/// videos the program keeps the path alone.
///
/// It keeps the glyphs that it has met, so that one reader for all work is much the fastest.
class AssetReader : public ProjectAssets {
public:
    AssetReader() = default;
    AssetReader(const AssetReader&) = delete;
    AssetReader& operator=(const AssetReader&) = delete;

    bool LoadFile(clsSymbolData& symbol, Notices& told) const override;
    void SetPlaceholder(clsSymbolData& symbol) const override { tamber::SetPlaceholder(symbol); }
    bool FontAvailable(StringView name) const override { return FontInstalled(name); }
    String DefaultFont() const override;
    bool SubstituteAvailable() const override { return SubstituteInstalled(); }
    void SetTextSize(clsSymbolData& symbol) const override;

private:
    mutable TextMeasure measure_;
};

}  // namespace tamber
