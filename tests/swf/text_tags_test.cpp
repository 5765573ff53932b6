#include <gtest/gtest.h>

#include "swf/authoring/clsSWFAdmin.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/GlyphShape.h"
#include "swf/tags/clsSWFTagCSMTextSettings.h"
#include "swf/tags/clsSWFTagDefineEditText.h"
#include "swf/tags/clsSWFTagDefineFont.h"
#include "swf/tags/clsSWFTagDefineText.h"
#include "tests/swf/Written.h"

namespace tamber {
namespace {

/// Bytes of bits that are told as 0 and 1; blanks stand between fields.
Bytes Packed(std::string_view bits) {
    Bytes bytes;
    std::size_t count = 0;
    for (const char bit : bits) {
        if (bit == ' ') continue;
        if (count % 8 == 0) bytes.push_back(0);
        if (bit == '1') bytes.back() |= static_cast<Byte>(0x80 >> count % 8);
        ++count;
    }
    return bytes;
}

GlyphOutlineRecord Blank(Long advance) {
    GlyphOutlineRecord outline;
    outline.CellIncX = advance;
    return outline;
}

std::shared_ptr<clsFontObject> FontOf(StringView characters, Long advance = 512) {
    auto font = std::make_shared<clsFontObject>(u"Font_");
    for (const char16_t c : characters) font->AddGlyph(c, Blank(advance));
    return font;
}

Bytes Saved(clsSWFTag& tag, Long version) {
    mdlSWFTag::swfVersion(version);
    return test::Written([&] { tag.Save(); });
}

TEST(GlyphShape, has_a_fill_for_all_contours_and_lines_that_close_them) {
    GlyphOutline outline;
    // Open, with two curves; then closed.
    outline.Contours = {{{0, 0}, 3}, {{1, 1}, 3}};
    outline.Edges = {{{4, 0}, {4, 0}, false}, {{4, 4}, {2, 4}, true},  {{0, 4}, {0, 2}, true},
                     {{5, 1}, {5, 1}, false}, {{1, 5}, {1, 5}, false}, {{1, 1}, {1, 1}, false}};
    Bytes shapes{0xAB};
    AddGlyphShape(outline, shapes);
    const Bytes expected = Packed(
        "10101011 0001 0000"
        // Move and fill 0: width 1, the fill. Right by 4.
        "000011 00001 0 0 1  11 0010 0 0 0100"
        // By 0, 4, then -2, 0; by -2, 0, then 0, -2; up by 2.
        "10 0010 0000 0100 1110 0000  10 0001 110 000 000 110  11 0001 0 1 110"
        // Move: width 2. Right by 4; left and down by 4; up by 4.
        "000001 00010 01 01  11 0010 0 0 0100  11 0010 1 1100 0100  11 0001 0 1 100"
        "000000");
    EXPECT_EQ(shapes, expected);
}

TEST(GlyphShape, holds_the_longest_edges) {
    GlyphOutline outline;
    outline.Contours = {{{-32768, 32767}, 2}};
    outline.Edges = {{{32767, -32768}, {32767, -32768}, false},
                     {{-32768, 32767}, {32767, 32767}, true}};
    Bytes shapes;
    AddGlyphShape(outline, shapes);
    // Distances of 65535 take 17 bits.
    const std::string forth = " 01111111111111111";
    const std::string back = " 10000000000000001";
    const std::string none = " 00000000000000000";
    const Bytes expected =
        Packed("0001 0000 000011 10000 1000000000000000 0111111111111111 1 11 1111 1" + forth +
               back + " 10 1111" + back + forth + forth + none + " 11 1111 0 0" + back + "000000");
    EXPECT_EQ(shapes, expected);
}

TEST(FontObject, keeps_characters_in_the_order_of_their_codes) {
    // In code page 932 half-width katakana (A6 to DF) come before all two-byte codes, and the first
    // kanji of level 1 (889F) is U+4E9C, behind U+4E00 (88EA) in Unicode order only.
    const auto font = FontOf(u"一亜ｱあA");
    EXPECT_EQ(font->FontMap(), u"Aあ一亜ｱ");
    font->blSJis(true);
    EXPECT_EQ(font->FontMap(), u"Aｱあ亜一");
    font->AddGlyph(u'ｶ', Blank(7));
    EXPECT_EQ(font->FontMap(), u"Aｱｶあ亜一");
    EXPECT_EQ(font->FontData(3).CellIncX, 7);
    EXPECT_EQ(font->GetFontIndex(u'一'), 6);
    EXPECT_EQ(font->GetFontIndex(u'二'), 0);
    // Neither has a place in the code page.
    font->AddGlyph(u'\u0E01', Blank(1));
    font->AddGlyph(u'\u0E02', Blank(2));
    EXPECT_EQ(font->FontData(font->GetFontIndex(u'\u0E02')).CellIncX, 2);
    font->AuthorFrame(4);
    font->AuthorFrame(2);
    font->AuthorFrame(3);
    EXPECT_EQ(font->AuthorFrame(), 2);
}

TEST(FontAdmin, knows_fonts_by_face_and_style) {
    clsFontAdmin admin;
    EXPECT_EQ(clsFontAdmin::MkFontName(u"ＭＳ ゴシック", true, true), u"ＭＳ ゴシック_BoIt");
    const auto plain = admin.CinFontObject(u"A_");
    const auto bold = admin.CinFontObject(u"A_Bo");
    EXPECT_NE(plain, bold);
    EXPECT_EQ(admin.CinFontObject(u"A_"), plain);
    EXPECT_EQ(admin.GetIndex(u"A_Bo"), 2);
    EXPECT_EQ(admin.GetIndex(u"B_"), 3);
    admin.blSJis(true);
    EXPECT_TRUE(bold->blSJis());
    EXPECT_TRUE(admin.CinFontObject(u"C_")->blSJis());
    admin.SetOutLine({u"_sans", 1024, false, false}, u"abc");
    EXPECT_EQ(admin.FontObject(4)->GlyphCount(), 0);
}

TEST(DefineFont, has_the_told_bytes) {
    clsFontObject font(u"F_");
    font.AddGlyph(u'A', Blank(500));
    clsSWFTagDefineFont tag;
    tag.ID = 3;
    tag.FontName = u"F";
    tag.Bold = true;
    tag.FontObject = std::make_shared<clsFontObject>(font);
    // Layout, wide offsets, wide codes, bold; Japanese; "F"; one glyph; its shape 8 bytes behind
    // the table's start, the codes 10. The shape: 1 fill bit, no line bits; a change of fill 0 to
    // 1; end: 0001 0000  00 0 0 1 0 1 0, 00000 and padding.
    const Bytes version6{0x3F, 0x0C, 33, 0, 0, 0,  3, 0,    0x8D, 2,    1,    'F',  1,
                         0,    8,    0,  0, 0, 11, 0, 0,    0,    0x10, 0x0A, 0x00, 'A',
                         0,    0,    0,  0, 4, 0,  0, 0x04, 0x02, 0x08, 0x00, 0,    0};
    EXPECT_EQ(Saved(tag, 6), version6);
    // Below version 6 one byte holds the code, and no language is told.
    const Bytes version5 = Saved(tag, 5);
    EXPECT_EQ(version5[8], 0x89);
    EXPECT_EQ(version5[9], 0);
    EXPECT_EQ(version5.size(), version6.size() - 1);
}

TEST(DefineFont, of_version_1_has_offsets_and_shapes_alone) {
    clsSWFTagDefineFont tag;
    tag.ID = 3;
    tag.FontName = u"F";
    tag.FontObject = FontOf(u"AB");
    tag.Ver = 1;
    EXPECT_EQ(Saved(tag, 5), (Bytes{0xBF, 0x02, 12, 0, 0, 0, 3, 0, 4, 0, 7, 0, 0x10, 0x0A, 0x00,
                                    0x10, 0x0A, 0x00}));
    tag.Ver = 3;
    EXPECT_EQ(tag.TagNum(), -1);
    EXPECT_TRUE(Saved(tag, 5).empty());
}

TEST(DefineFont, tells_a_device_font_by_its_name) {
    clsSWFTagDefineFont tag;
    tag.ID = 1;
    tag.FontObject = std::make_shared<clsFontObject>(u"x_");
    tag.FontName = u"Font";
    EXPECT_TRUE(Saved(tag, 6).empty());
    tag.FontName = u"_sans";
    EXPECT_EQ(Saved(tag, 8), (Bytes{0x3F, 0x0C, 14,  0,   0,   0,   1, 0, 0x04, 1,
                                    5,    '_',  's', 'a', 'n', 's', 0, 0, 2,    0}));
    tag.FontName = u"_等";
    // Shift-JIS (4) in the three bits behind the first.
    EXPECT_EQ(Saved(tag, 5),
              (Bytes{0x3F, 0x0C, 12, 0, 0, 0, 1, 0, 0x40, 0, 3, '_', 0x93, 0x99, 0, 0, 2, 0}));
}

TEST(TextLayout, sets_lines_and_measures_them) {
    const auto font = FontOf(u"ab");
    const TextLayout layout(u"ab\n\na", *font, {200, 40, 20});
    ASSERT_EQ(layout.Lines().size(), 3u);
    // 200 x 512 / 1024, and 20 between the two.
    EXPECT_EQ(layout.Lines()[0].Right, 220);
    EXPECT_EQ(layout.Lines()[2].Y, 480);
    EXPECT_EQ(layout.Width(), 220);
    EXPECT_EQ(layout.Height(), 680);
    EXPECT_EQ(WithLineFeeds(u"a\r\nb\rc\nd"), u"a\nb\nc\nd");
}

TEST(DefineText, has_the_told_bytes) {
    clsSWFTagDefineText tag;
    tag.ID = 2;
    tag.FontID = 1;
    tag.Format = {200, 0, 0};
    tag.FontColorRed = 0x12;
    tag.FontObject = FontOf(u"abc");
    tag.Alignment = clsSWFTagDefineText::Right;
    tag.Text(u"b\r\nca\r\n");
    // Width 200 twips (9 bits signed), three lines of 200 (11 bits): 5 bits 11, then 4 x 11.
    // Glyph fields of 2 bits, advances (100) of 8.
    const Bytes bytes = Saved(tag, 6);
    const Bytes head(bytes.begin() + 6, bytes.begin() + 8);
    EXPECT_EQ(head, (Bytes{2, 0}));
    const Bytes rest(bytes.begin() + 15, bytes.end());
    const Bytes expected{// Matrix with a translation of two fields of one bit, widths.
                         0x02, 0x00, 2, 8,
                         // First line: at 100, one glyph: 01 01100100 and padding.
                         0x8F, 1, 0, 0x12, 0, 0, 255, 100, 0, 0, 0, 200, 0, 1, 0x59, 0x00,
                         // Second line: at 0, two glyphs: 10 01100100, 00 01100100.
                         0x8F, 1, 0, 0x12, 0, 0, 255, 0, 0, 200, 0, 200, 0, 2, 0x99, 0x06, 0x40, 0};
    EXPECT_EQ(rest, expected);
    // Version 1 has no opacity.
    tag.Ver = 1;
    const Bytes opaque = Saved(tag, 6);
    EXPECT_EQ(opaque[0] | opaque[1] << 8, 11 << 6 | 63);
    EXPECT_EQ(Bytes(opaque.begin() + 19, opaque.begin() + 29),
              (Bytes{0x8F, 1, 0, 0x12, 0, 0, 100, 0, 0, 0}));
    EXPECT_EQ(opaque.size(), bytes.size() - 2);
}

TEST(DefineText, a_line_beyond_a_records_count_goes_on_in_another) {
    clsSWFTagDefineText tag;
    tag.Format = {1024, 0, 0};
    tag.FontObject = FontOf(u"a", 7);
    tag.Text(String(300, u'a'));
    const auto counts = [&tag](Long version) {
        const Bytes bytes = Saved(tag, version);
        std::vector<int> found;
        // Each glyph takes 1 + 4 bits; the first record's head is 14 bytes, the others' 1.
        const std::size_t last = bytes.size() - 1;
        std::size_t at = 0;
        while (bytes[at] != 0x8F) ++at;
        for (at += 13; at < last; at += 1) {
            const int count = bytes[at];
            found.push_back(count);
            at += 1 + static_cast<std::size_t>(count * 5 + 7) / 8;
        }
        return found;
    };
    EXPECT_EQ(counts(6), (std::vector<int>{127, 127, 46}));
    EXPECT_EQ(counts(7), (std::vector<int>{255, 45}));
    tag.FontObject = nullptr;
    EXPECT_TRUE(Saved(tag, 6).empty());
}

/// Glyph counts of the records of a text without line ends whose glyphs take so many bits each.
std::size_t CountedGlyphs(const Bytes& tag, std::size_t bitsPerGlyph) {
    const std::size_t last = tag.size() - 1;
    std::size_t at = 0;
    while (tag[at] != 0x8F) ++at;
    std::size_t glyphs = 0;
    for (at += 13; at < last; ++at) {
        glyphs += tag[at];
        at += 1 + (tag[at] * bitsPerGlyph + 7) / 8;
    }
    return glyphs;
}

TEST(DefineText, of_any_content_is_a_plain_tag) {
    constexpr std::size_t Million = 1'000'000;
    clsSWFTagDefineText tag;
    tag.Format = {1024, 0, 0};
    tag.FontObject = FontOf(u"a", 7);
    tag.Text(String(Million, u'a'));
    // An index of one bit and an advance of four.
    EXPECT_EQ(CountedGlyphs(Saved(tag, 6), 5), Million);
    EXPECT_EQ(CountedGlyphs(Saved(tag, 8), 5), Million);
    // As many empty lines have no records.
    tag.Text(String(Million, u'\n'));
    EXPECT_LT(Saved(tag, 6).size(), 32u);
    tag.Text(u"");
    // Bounds 0 to 0 and 0 to 1024 in 12 bits each, no records.
    EXPECT_EQ(Saved(tag, 6),
              (Bytes{0x7F, 0x08, 14, 0, 0, 0, 0, 0, 0x60, 0, 0, 0, 0, 0x20, 0, 0x02, 0, 1, 4, 0}));
    // A character that the font lacks takes no room, and a font may lack all.
    tag.FontObject = std::make_shared<clsFontObject>(u"Font_");
    tag.Text(u"ab");
    EXPECT_EQ(CountedGlyphs(Saved(tag, 6), 2), 2u);
}

TEST(DefineEditText, has_the_told_bytes) {
    clsSWFTagDefineEditText tag;
    tag.ID = 5;
    tag.FontID = 1;
    tag.FontSize = 240;
    tag.blReadOnly = true;
    tag.blAutoSize = true;
    tag.blUseOutLines = true;
    tag.VariableName = u"v";
    tag.InitialText = u"あ";
    // Text, read only, font; automatic size, outlines. Black has no colour.
    EXPECT_EQ(Saved(tag, 6), (Bytes{0x7F, 0x09, 16, 0,   0, 0,   5, 0,    0x08, 0x00, 0x89,
                                    0x41, 1,    0,  240, 0, 'v', 0, 0xE3, 0x81, 0x82, 0}));
    tag.FontColorBlue = 9;
    tag.Alignment = 2;
    tag.FontLeading = 40;
    tag.Width = 20;
    const Bytes bytes = Saved(tag, 5);
    // No automatic size below version 6; colour; layout.
    const Bytes tail{0x8D, 0x21, 1, 0, 240, 0,  0, 0,   9, 255,  2,    0,
                     0,    0,    0, 0, 0,   40, 0, 'v', 0, 0x82, 0xA0, 0};
    EXPECT_EQ(Bytes(bytes.end() - static_cast<std::ptrdiff_t>(tail.size()), bytes.end()), tail);
}

TEST(CSMTextSettings, has_the_told_bytes) {
    clsSWFTagCSMTextSettings tag;
    tag.TextID = 7;
    tag.UseFlashType = 1;
    tag.Thickness = 1;
    EXPECT_EQ(Saved(tag, 8), (Bytes{0x8C, 0x12, 7, 0, 0x40, 0, 0, 0x80, 0x3F, 0, 0, 0, 0, 0}));
}

TEST(Fonts, stand_before_or_behind_the_first_frame) {
    mdlSWFTag::swfVersion(6);
    clsSWFAdmin admin;
    admin.inFontAdmin = std::make_shared<clsFontAdmin>();
    for (const StringView key : {u"A_", u"B_", u"C_"})
        admin.inFontAdmin->CinFontObject(key)->AddGlyph(u'a', Blank(1));
    admin.InitSWF();
    EXPECT_EQ(admin.DefineID, 3);
    for (const auto& [font, frame] : {std::pair<Long, Long>{2, 3}, {1, 1}, {2, 2}}) {
        auto text = std::make_shared<clsSWFTagDefineText>();
        text->FontID = font;
        text->FontObject = admin.inFontAdmin->FontObject(font);
        admin.AddTag(frame, text, true);
    }
    const Bytes bytes = test::Written([&] { admin.FramesSave(); });
    std::vector<int> tags;
    for (std::size_t at = 0; at < bytes.size();) {
        const int head = bytes[at] | bytes[at + 1] << 8;
        std::size_t length = static_cast<std::size_t>(head & 63);
        at += 2;
        if (length == 63) {
            length = bytes[at] | static_cast<std::size_t>(bytes[at + 1]) << 8;
            at += 4;
        }
        tags.push_back(head >> 6);
        if (tags.back() == 48) tags.push_back(-bytes[at]);
        at += length;
    }
    EXPECT_EQ(tags, (std::vector<int>{48, -1, 33, 1, 48, -2, 33, 1, 33, 1}));
}

}  // namespace
}  // namespace tamber
