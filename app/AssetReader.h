#pragma once

#include "document/ProjectReader.h"

namespace tamber {

/// Reads the files behind a project's symbols. Pictures and drawings are decoded; of sounds and
/// videos the program keeps the path alone.
class AssetReader : public ProjectAssets {
public:
    bool LoadBitmap(clsSymbolData& symbol) const override;
    bool LoadVector(clsSymbolData& symbol) const override;
    bool LoadSound(clsSymbolData&) const override { return true; }
    bool LoadMovie(clsSymbolData&) const override { return true; }
    /// Texts keep the font that the project names.
    bool FontAvailable(StringView) const override { return true; }
    String DefaultFont() const override;
    /// The box that the project holds stays.
    void SetTextSize(clsSymbolData&) const override {}
};

}  // namespace tamber
