#include <benchmark/benchmark.h>
#include <ft2build.h>
#include FT_FREETYPE_H

#include "platform/codepage.h"
#include "platform/fonts.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TextLayout.h"
#include "swf/tags/clsFontAdmin.h"
#include "swf/tags/clsSWFTagDefineFont.h"

namespace tamber {
namespace {

constexpr const char* GothicFile = "/usr/share/fonts/opentype/ipafont-gothic/ipag.ttf";

/// As many kanji as are taught in schools. The first ones of JIS level 1 stand for them: code page
/// 932 has those from 889F on, a row of 94 in each half of a lead byte.
const String& Kanji() {
    static const String kanji = [] {
        constexpr std::size_t Count = 2136;
        String text;
        for (unsigned lead = 0x88; text.size() < Count; ++lead)
            for (unsigned trail = lead == 0x88 ? 0x9F : 0x40; trail <= 0xFC; ++trail)
                if (trail != 0x7F && text.size() < Count)
                    text += DecodeAnsi(Bytes{static_cast<Byte>(lead), static_cast<Byte>(trail)});
        return text;
    }();
    return kanji;
}

void KanjiOutlines(benchmark::State& state) {
    const LogFont font{.FaceName = u"IPAGothic"};
    GlyphOutlineRecord record;
    for (auto _ : state)
        for (const char16_t character : Kanji()) {
            if (!GetCharOutline(record, character, font) || record.Outline.Contours.empty())
                state.SkipWithError("no outline");
            benchmark::DoNotOptimize(record.Outline.Contours.data());
        }
}

/// What the outlines cost the library alone.
void KanjiByFreeType(benchmark::State& state) {
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    if (FT_Init_FreeType(&library) != 0 || FT_New_Face(library, GothicFile, 0, &face) != 0) {
        state.SkipWithError("no font");
        return;
    }
    for (auto _ : state)
        for (const char16_t character : Kanji()) {
            if (FT_Load_Glyph(face, FT_Get_Char_Index(face, character), FT_LOAD_NO_SCALE) != 0)
                state.SkipWithError("no outline");
            benchmark::DoNotOptimize(face->glyph->outline.points);
        }
    FT_Done_FreeType(library);
}

/// All of them in one font, and the font's tag.
void KanjiFontTag(benchmark::State& state) {
    mdlSWFTag::swfVersion(6);
    mdlSWFTag::InitBuffer();
    for (auto _ : state) {
        clsFontAdmin fonts;
        fonts.SetOutLine({.FaceName = u"IPAGothic"}, Kanji());
        clsSWFTagDefineFont tag;
        tag.ID = 1;
        tag.FontName = u"IPAGothic";
        tag.FontObject = fonts.FontObject(1);
        mdlSWFTag::InitBuffer();
        tag.Save();
        benchmark::DoNotOptimize(mdlSWFTag::swfBytePos());
    }
}

/// A text of so many characters, 5,000 different ones among them, against a font that has them.
void LookUps(benchmark::State& state) {
    constexpr char16_t Different = 5000;
    clsFontObject font(u"Font_");
    for (char16_t i = 0; i < Different; ++i)
        font.AddGlyph(static_cast<char16_t>(0x4E00 + i), GlyphOutlineRecord());
    String text;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        text += static_cast<char16_t>(0x4E00 + i * 1237 % Different);
    for (auto _ : state) {
        const TextLayout layout(text, font, {200, 0, 0});
        benchmark::DoNotOptimize(layout.Width());
    }
}

BENCHMARK(KanjiByFreeType)->Unit(benchmark::kMillisecond);
BENCHMARK(KanjiOutlines)->Unit(benchmark::kMillisecond);
BENCHMARK(KanjiFontTag)->Unit(benchmark::kMillisecond);
BENCHMARK(LookUps)->Arg(5000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tamber
