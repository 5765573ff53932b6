#pragma once

#include "document/ProjectReader.h"
#include "platform/fonts.h"
#include "swf/authoring/TextMeasure.h"

namespace tamber {

/// Reads the files behind a project's symbols. Pictures and drawings are decoded; of sounds and
/// videos the program keeps the path alone.
class AssetReader : public ProjectAssets {
public:
    bool LoadBitmap(clsSymbolData& symbol) const override;
    bool LoadVector(clsSymbolData& symbol) const override;
    bool LoadSound(clsSymbolData&) const override { return true; }
    bool LoadMovie(clsSymbolData&) const override { return true; }
    bool FontAvailable(StringView name) const override { return FontInstalled(name); }
    String DefaultFont() const override;
    void SetTextSize(clsSymbolData& symbol) const override;

private:
    mutable TextMeasure measure_;
};

}  // namespace tamber
