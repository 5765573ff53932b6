#pragma once

#include <fontconfig/fontconfig.h>

#include <memory>
#include <set>
#include <vector>

#include "platform/FontFace.h"
#include "platform/fonts.h"

namespace tamber {

/// A face with outlines, as fontconfig knows it.
struct InstalledFace {
    String File;
    int Index = 0;
    /// Family names in all languages, letter case folded.
    std::vector<String> Families;
    /// Those shown to a person: in Japanese, else in English, else the first.
    std::vector<String> ShownFamilies;
    bool Bold = false;
    bool Italic = false;
    /// Holds the characters of Japanese text.
    bool Japanese = false;
    /// Distance from the regular weight, or of a bold face from the bold one, fontconfig's scale.
    double WeightMiss = 0;
    /// Distance from the normal width, per cent.
    double WidthMiss = 0;
};

/// A face to draw with, and the styles that it lacks.
struct FaceChoice {
    const InstalledFace* Face = nullptr;
    SyntheticStyle Style;
};

/// The faces that are installed.
class FontCatalogue {
public:
    /// Reads the faces again if fontconfig's configuration or the fonts that this program added to
    /// it have changed. True when they were read.
    bool Refresh();

    bool Has(StringView family) const;
    /// A face of one of the substitutes is there.
    bool HasSubstitute() const;
    /// Faces for a font, the best first: of the family, of each substitute, then any other.
    std::vector<FaceChoice> Choices(const LogFont& font) const;
    std::vector<String> ShownFamilies(bool japaneseOnly) const;

private:
    struct Release {
        void operator()(FcConfig* config) const { FcConfigDestroy(config); }
        void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
    };
    using PatternPointer = std::unique_ptr<FcPattern, Release>;

    void Read();

    std::vector<InstalledFace> faces_;
    std::set<String, std::less<>> families_;
    /// What the faces were read from. Held, so that nothing else can come to the same addresses.
    std::unique_ptr<FcConfig, Release> config_;
    std::vector<PatternPointer> added_;
};

}  // namespace tamber
