#pragma once

#include <optional>

#include "document/Project.h"
#include "platform/types.h"

namespace tamber {

/// What reads the files that a project refers to. Each reader is given a symbol whose file exists
/// and fills its record; false when the file cannot be read.
class ProjectAssets {
public:
    virtual ~ProjectAssets() = default;

    virtual bool LoadBitmap(clsSymbolData& symbol) const = 0;
    virtual bool LoadVector(clsSymbolData& symbol) const = 0;
    virtual bool LoadSound(clsSymbolData& symbol) const = 0;
    virtual bool LoadMovie(clsSymbolData& symbol) const = 0;
    /// Reads the file of a symbol by its kind; true for kinds that have none.
    bool LoadFile(clsSymbolData& symbol) const;
    virtual bool FontAvailable(StringView name) const = 0;
    /// Font for texts whose own is not available.
    virtual String DefaultFont() const = 0;
    /// Works out the box of a text whose record is complete.
    virtual void SetTextSize(clsSymbolData& symbol) const = 0;
};

/// Reads a project file, plain or compressed. On failure the user was told, the result is false and
/// `out` is as before. With `importInto`, the version of a project that shall take the contents,
/// another version is asked about, and texts keep their fonts and boxes.
bool LoadProject(StringView path, Project& out, const ProjectAssets& assets,
                 std::optional<Long> importInto = std::nullopt);

/// As `LoadProject`, from the bytes of a file. `path` tells the folder that paths are relative to.
bool LoadProjectBytes(ByteView bytes, StringView path, Project& out, const ProjectAssets& assets,
                      std::optional<Long> importInto = std::nullopt);

}  // namespace tamber
