#pragma once

#include <optional>

#include "document/Project.h"
#include "platform/Notice.h"
#include "platform/types.h"

namespace tamber {

/// Font where even the default one is not available.
inline constexpr StringView LastFont = u"ＭＳ ゴシック";

/// What reads the files that a project refers to.
class ProjectAssets {
public:
    virtual ~ProjectAssets() = default;

    /// Fills the record of a symbol, whose file exists, from that file; true for kinds that keep
    /// nothing of it. False when it cannot be read. What there is to tell goes into `told`.
    virtual bool LoadFile(clsSymbolData& symbol, Notices& told) const = 0;
    /// Fills the record with something to see in place of a file that cannot be had.
    virtual void SetPlaceholder(clsSymbolData& symbol) const = 0;
    virtual bool FontAvailable(StringView name) const = 0;
    /// Font for texts whose own is not available; it need not be available itself.
    virtual String DefaultFont() const = 0;
    /// Texts of a font that is not available are drawn with a face that is meant for that.
    virtual bool SubstituteAvailable() const = 0;
    /// Works out the box of a text whose record is complete.
    virtual void SetTextSize(clsSymbolData& symbol) const = 0;
};

/// What a reading came to.
struct ProjectLoad {
    bool Done = false;
    /// To be shown whether it is done or not; never empty when it is not.
    Notices Told;
    explicit operator bool() const { return Done; }
};

/// Reads a project file, plain or compressed. On failure `out` is as before. With `importInto`, the
/// version of a project that shall take the contents, another version is asked about, and texts
/// keep their fonts and boxes. What comes before a question is shown when it is asked: files that
/// are missing or cannot be read are asked about, and symbols that go without theirs keep its path.
ProjectLoad LoadProject(StringView path, Project& out, const ProjectAssets& assets,
                        std::optional<Long> importInto = std::nullopt);

/// As `LoadProject`, from the bytes of a file. `path` tells the folder that paths are relative to.
ProjectLoad LoadProjectBytes(ByteView bytes, StringView path, Project& out,
                             const ProjectAssets& assets,
                             std::optional<Long> importInto = std::nullopt);

/// Shows what a reading tells. True when it is done.
bool ShowLoad(const ProjectLoad& load);

}  // namespace tamber
