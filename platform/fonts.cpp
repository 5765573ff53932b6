#include "platform/fonts.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/FontCatalogue.h"
#include "platform/FontFace.h"

namespace tamber {

namespace {

/// Fonts that stay open; a project of more changes between them.
constexpr std::size_t OpenFonts = 8;

/// The installed faces and those of them that are open.
class FontLibrary {
public:
    FontLibrary() {
        FT_Library library = nullptr;
        if (FT_Init_FreeType(&library) == 0) library_.reset(library);
    }

    /// Fills a record from its character and font.
    bool ReadOutline(GlyphOutlineRecord& record) {
        Refresh();
        const OpenFont& font = Find(record.Font);
        return font.Face && font.Face->ReadOutline(record, font.Style);
    }
    const FontCatalogue& Catalogue() {
        Refresh();
        return catalogue_;
    }

private:
    /// No face where none of the installed ones can be opened.
    struct OpenFont {
        LogFont Font;
        String File;
        int Index = 0;
        SyntheticStyle Style;
        std::shared_ptr<FontFace> Face;
    };
    struct Done {
        void operator()(FT_Library library) const { FT_Done_FreeType(library); }
    };

    void Refresh() {
        if (catalogue_.Refresh()) open_.clear();
    }
    const OpenFont& Find(const LogFont& font);
    OpenFont Open(const LogFont& font);
    std::shared_ptr<FontFace> FaceOf(const InstalledFace& face);

    std::unique_ptr<FT_LibraryRec_, Done> library_;
    FontCatalogue catalogue_;
    /// The one used last stands first.
    std::vector<OpenFont> open_;
};

const FontLibrary::OpenFont& FontLibrary::Find(const LogFont& font) {
    const auto known = std::ranges::find_if(open_, [&font](const OpenFont& open) {
        return open.Font.Bold == font.Bold && open.Font.Italic == font.Italic &&
               open.Font.FaceName == font.FaceName;
    });
    if (known != open_.end()) {
        std::rotate(open_.begin(), known, known + 1);
    } else {
        OpenFont opened = Open(font);
        if (open_.size() == OpenFonts) open_.pop_back();
        open_.insert(open_.begin(), std::move(opened));
    }
    return open_.front();
}

FontLibrary::OpenFont FontLibrary::Open(const LogFont& font) {
    OpenFont open;
    open.Font = font;
    for (const FaceChoice& choice : catalogue_.Choices(font)) {
        open.Face = FaceOf(*choice.Face);
        if (!open.Face) continue;
        open.File = choice.Face->File;
        open.Index = choice.Face->Index;
        open.Style = choice.Style;
        break;
    }
    return open;
}

std::shared_ptr<FontFace> FontLibrary::FaceOf(const InstalledFace& face) {
    const auto known = std::ranges::find_if(open_, [&face](const OpenFont& open) {
        return open.Face && open.Index == face.Index && open.File == face.File;
    });
    if (known != open_.end()) return known->Face;
    return FontFace::Open(library_.get(), face.File, face.Index);
}

/// The one library of the program, for one thread at a time.
class LockedLibrary {
public:
    FontLibrary* operator->() const {
        static FontLibrary library;
        return &library;
    }

private:
    static std::mutex& Mutex() {
        static std::mutex mutex;
        return mutex;
    }

    std::lock_guard<std::mutex> lock_{Mutex()};
};

}  // namespace

bool GetCharOutline(GlyphOutlineRecord& record, char16_t character, const LogFont& font) {
    if (font.Height <= 1) return false;
    record.Character = character;
    record.Font = font;
    record.CellIncX = 0;
    record.Ascent = 0;
    record.Outline.Contours.clear();
    return LockedLibrary()->ReadOutline(record);
}

bool FontInstalled(StringView name) {
    return LockedLibrary()->Catalogue().Has(name);
}

bool SubstituteInstalled() {
    return LockedLibrary()->Catalogue().HasSubstitute();
}

std::vector<String> InstalledFonts(bool japaneseOnly) {
    return LockedLibrary()->Catalogue().ShownFamilies(japaneseOnly);
}

}  // namespace tamber
