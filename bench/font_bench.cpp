#include <benchmark/benchmark.h>
#include <ft2build.h>
#include FT_FREETYPE_H

#include "platform/codepage.h"
#include "platform/fonts.h"

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
            if (!GetCharOutline(record, character, font) || record.Contours.empty())
                state.SkipWithError("no outline");
            benchmark::DoNotOptimize(record.Contours.data());
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

BENCHMARK(KanjiByFreeType)->Unit(benchmark::kMillisecond);
BENCHMARK(KanjiOutlines)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
