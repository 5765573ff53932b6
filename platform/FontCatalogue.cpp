#include "platform/FontCatalogue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <tuple>

#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Families that stand in for one that is not installed, the best first; behind them come any face
/// with Japanese, and any face at all.
constexpr std::array<StringView, 3> Substitutes{u"IPAGothic", u"IPAゴシック", u"Noto Sans CJK JP"};

/// Name of the one entry of the font list where there are no fonts.
constexpr StringView OnlyFamily = u"ＭＳ ゴシック";

String GetText(FcPattern* pattern, const char* object, int n = 0) {
    FcChar8* text = nullptr;
    if (FcPatternGetString(pattern, object, n, &text) != FcResultMatch) return {};
    return FromNarrow(reinterpret_cast<const char*>(text));
}

double GetNumber(FcPattern* pattern, const char* object, double fallback) {
    double number = 0;
    return FcPatternGetDouble(pattern, object, 0, &number) == FcResultMatch ? number : fallback;
}

bool GetFlag(FcPattern* pattern, const char* object) {
    FcBool flag = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &flag) == FcResultMatch && flag == FcTrue;
}

bool HoldsJapanese(FcPattern* pattern) {
    FcLangSet* languages = nullptr;
    return FcPatternGetLangSet(pattern, FC_LANG, 0, &languages) == FcResultMatch &&
           FcLangSetHasLang(languages, reinterpret_cast<const FcChar8*>("ja")) == FcLangEqual;
}

void ReadFamilies(FcPattern* pattern, InstalledFace& face) {
    std::vector<String> names;
    std::vector<String> languages;
    for (int n = 0;; ++n) {
        String name = GetText(pattern, FC_FAMILY, n);
        if (name.empty()) break;
        face.Families.push_back(FoldCase(name));
        names.push_back(std::move(name));
        languages.push_back(GetText(pattern, FC_FAMILYLANG, n));
    }
    if (names.empty()) return;
    String shown = languages.front();
    for (const StringView language : {u"en", u"ja"})
        if (std::ranges::find(languages, language) != languages.end()) shown = language;
    for (std::size_t i = 0; i < names.size(); ++i)
        if (languages[i] == shown) face.ShownFamilies.push_back(names[i]);
}

/// Nothing for a face without outlines. A variable face is there by its named instances.
std::optional<InstalledFace> ReadFace(FcPattern* pattern) {
    if (!GetFlag(pattern, FC_OUTLINE) || GetFlag(pattern, FC_VARIABLE)) return std::nullopt;
    InstalledFace face;
    face.File = GetText(pattern, FC_FILE);
    face.Index = static_cast<int>(GetNumber(pattern, FC_INDEX, 0));
    ReadFamilies(pattern, face);
    const double weight = GetNumber(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR);
    face.Bold = weight >= FC_WEIGHT_DEMIBOLD;
    face.WeightMiss = std::abs(weight - (face.Bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR));
    face.WidthMiss = std::abs(GetNumber(pattern, FC_WIDTH, FC_WIDTH_NORMAL) - FC_WIDTH_NORMAL);
    face.Italic = GetNumber(pattern, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN;
    face.Japanese = HoldsJapanese(pattern);
    return face;
}

/// Adds the faces that `wanted` holds for, the best for the font first. A style that the font has
/// not cannot be taken from a face; one that the face has not can be given to it.
template <class Wanted>
void AddChoices(std::span<const InstalledFace> faces, const LogFont& font, Wanted wanted,
                std::vector<FaceChoice>& choices) {
    const auto first = static_cast<std::ptrdiff_t>(choices.size());
    for (const InstalledFace& face : faces)
        if (std::invoke(wanted, face))
            choices.push_back({&face, {font.Bold && !face.Bold, font.Italic && !face.Italic}});
    const auto misfit = [&font](const FaceChoice& choice) {
        const InstalledFace& face = *choice.Face;
        const int surplus = (face.Bold && !font.Bold) + (face.Italic && !font.Italic);
        return std::tuple(face.WidthMiss, surplus, choice.Style.Bold, choice.Style.Italic,
                          face.WeightMiss);
    };
    std::ranges::stable_sort(choices.begin() + first, choices.end(), {}, misfit);
}

std::span<FcPattern* const> PatternsOf(FcConfig* config, FcSetName name) {
    if (config == nullptr) return {};
    const FcFontSet* set = FcConfigGetFonts(config, name);
    if (set == nullptr) return {};
    return {set->fonts, static_cast<std::size_t>(set->nfont)};
}

}  // namespace

bool FontCatalogue::Refresh() {
    const bool same = config_ && FcConfigGetCurrent() == config_.get();
    if (!same) config_.reset(FcConfigReference(nullptr));
    const auto added = PatternsOf(config_.get(), FcSetApplication);
    if (same && std::ranges::equal(added, added_, {}, {}, &PatternPointer::get)) return false;
    added_.clear();
    for (FcPattern* pattern : added) {
        FcPatternReference(pattern);
        added_.emplace_back(pattern);
    }
    Read();
    return true;
}

void FontCatalogue::Read() {
    faces_.clear();
    families_.clear();
    for (const FcSetName name : {FcSetSystem, FcSetApplication})
        for (FcPattern* pattern : PatternsOf(config_.get(), name))
            if (std::optional<InstalledFace> face = ReadFace(pattern))
                faces_.push_back(std::move(*face));
    // Folders come in no set order.
    std::ranges::sort(faces_, {}, [](const InstalledFace& face) {
        return std::tuple<StringView, int>(face.File, face.Index);
    });
    for (const InstalledFace& face : faces_)
        families_.insert(face.Families.begin(), face.Families.end());
}

bool FontCatalogue::Has(StringView family) const {
    return families_.contains(FoldCase(family));
}

bool FontCatalogue::HasSubstitute() const {
    return std::ranges::any_of(Substitutes, [this](StringView name) { return Has(name); });
}

std::vector<FaceChoice> FontCatalogue::Choices(const LogFont& font) const {
    std::vector<FaceChoice> choices;
    const auto addFamily = [&](StringView name) {
        const String folded = FoldCase(name);
        AddChoices(
            faces_, font,
            [&folded](const InstalledFace& face) {
                return std::ranges::find(face.Families, folded) != face.Families.end();
            },
            choices);
    };
    addFamily(font.FaceName);
    for (const StringView name : Substitutes) addFamily(name);
    AddChoices(faces_, font, &InstalledFace::Japanese, choices);
    AddChoices(
        faces_, font, [](const InstalledFace&) { return true; }, choices);
    return choices;
}

std::vector<String> FontCatalogue::ShownFamilies(bool japaneseOnly) const {
    std::set<String> names;
    for (const InstalledFace& face : faces_)
        if (face.Japanese || !japaneseOnly)
            names.insert(face.ShownFamilies.begin(), face.ShownFamilies.end());
    if (names.empty()) names.emplace(OnlyFamily);
    return {names.begin(), names.end()};
}

}  // namespace tamber

#ifdef __has_feature
#define TAMBER_HAS_FEATURE(name) __has_feature(name)
#else
#define TAMBER_HAS_FEATURE(name) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || TAMBER_HAS_FEATURE(address_sanitizer)
// Patterns of fontconfig find their parts by distances, which the leak checker does not follow. To
// have them freed at the end by FcFini would stop a program in which others still hold fonts.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig";
}
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_options() {
    return "print_suppressions=0";
}
// NOLINTEND(bugprone-reserved-identifier)
#endif
