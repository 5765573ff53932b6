#include "platform/fonts.h"

#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <sstream>
#include <thread>

#include "platform/CellOutline.h"
#include "platform/CubicCut.h"
#include "platform/codepage.h"
#include "platform/files.h"

namespace tamber {
namespace {

namespace fs = std::filesystem;

const std::string FontFolder = "/usr/share/fonts/";
const std::string PropGothicFile = FontFolder + "opentype/ipafont-gothic/ipagp.ttf";
const std::string SansFile = FontFolder + "truetype/dejavu/DejaVuSans.ttf";
const std::string JunctionFile = FontFolder + "opentype/junction/Junction.otf";

/// Starts of contours, lines to points, and each curve by its control point and anchor.
std::string ToText(const GlyphOutline& outline) {
    std::ostringstream out;
    const auto put = [&out](OutlinePoint point) { out << ' ' << point.X << ',' << point.Y; };
    auto edge = outline.Edges.begin();
    for (const OutlineContour& contour : outline.Contours) {
        out << " M";
        put(contour.Start);
        for (Long i = 0; i < contour.EdgeCount; ++i, ++edge) {
            if (edge->Curved || i == 0 || (edge - 1)->Curved) out << (edge->Curved ? " S" : " L");
            if (edge->Curved || edge->Control != edge->Anchor) put(edge->Control);
            put(edge->Anchor);
        }
    }
    return out.str();
}

/// Glyph of a character that must be there.
GlyphOutlineRecord Glyph(char16_t character, const LogFont& font) {
    GlyphOutlineRecord record;
    EXPECT_TRUE(GetCharOutline(record, character, font));
    EXPECT_EQ(record.Character, character);
    EXPECT_EQ(record.Font, font);
    return record;
}

const LogFont Gothic{.FaceName = u"IPAGothic"};
const LogFont Sans{.FaceName = u"DejaVu Sans"};
const LogFont Junction{.FaceName = u"Junction"};
const LogFont SansBold{.FaceName = u"DejaVu Sans", .Bold = true};
const LogFont GothicItalic{.FaceName = u"IPAゴシック", .Italic = true};
const LogFont NotInstalled{.FaceName = u"ＭＳ ゴシック"};
const LogFont NoName{};
const LogFont GothicOfTwo{.FaceName = u"IPAGothic", .Height = 2};

struct Expected {
    const char* Name;
    LogFont Font;
    char16_t Character;
    Long Advance;
    Long Ascent;
    std::string Outline;
};

void PrintTo(const Expected& expected, std::ostream* out) {
    *out << expected.Name;
}

class Outlines : public testing::TestWithParam<Expected> {};

/// The points of the files by fontTools, scaled by 1024 / (usWinAscent + usWinDescent) as
/// fractions: 1802 + 401 for IPA Gothic, 1901 + 483 for DejaVu Sans.
TEST_P(Outlines, are_the_points_of_the_face_in_the_cell) {
    const GlyphOutlineRecord record = Glyph(GetParam().Character, GetParam().Font);
    EXPECT_EQ(record.CellIncX, GetParam().Advance);
    EXPECT_EQ(record.Ascent, GetParam().Ascent);
    EXPECT_EQ(ToText(record.Outline), GetParam().Outline);
}

const std::string GothicMissing =
    " M 857,933 L 95,933 95,19 857,19 M 776,69 L 177,69 477,437 M 807,846 L 807,109 509,477"
    " M 444,477 L 145,107 145,847 M 775,884 L 477,516 178,884";
const std::string SansMissing =
    " M 44,972 L 44,197 484,197 484,972 M 93,924 L 435,924 435,246 93,246";
const std::string GothicA =
    " M 191,123 L 285,123 456,790 373,790 323,572 153,572 103,790 20,790"
    " M 238,191 L 168,506 307,506";

INSTANTIATE_TEST_SUITE_P(
    Fonts, Outlines,
    testing::Values(
        Expected{"Latin", Gothic, u'A', 476, 838, GothicA},
        Expected{"HalfWidthKana", Gothic, u'ｱ', 476, 838,
                 " M 393,177 L 431,222 S 399,418 323,553 L 269,494 S 329,393 356,248"
                 " L 48,257 48,185 M 180,339 L 251,339 251,425 S 251,581 231,668 S 205,779 121,871"
                 " L 71,805 S 147,724 166,621 S 180,548 180,425"},
        Expected{"Kanji", Gothic, u'丶', 952, 838,
                 " M 639,708 S 442,483 244,314 L 302,263 S 488,415 700,647"},
        Expected{"Blank", Gothic, u' ', 476, 838, ""},
        Expected{
            "ImpliedMiddles", Sans, u'o', 538, 817,
            " M 269,391 S 206,391 169,441 S 132,491 132,577 S 132,663 168,712 S 205,762 269,762"
            " S 332,762 369,712 S 406,663 406,577 S 406,491 369,441 S 332,391 269,391"
            " M 269,324 S 372,324 431,391 S 490,458 490,577 S 490,695 431,762 S 372,829 269,829"
            " S 166,829 107,762 S 49,695 49,577 S 49,458 107,391 S 166,324 269,324"},
        Expected{"Composite", Sans, u'É', 556, 817,
                 " M 86,176 L 492,176 492,249 173,249 173,439 478,439 478,512 173,512 173,744"
                 " 500,744 500,817 86,817 M 311,1 L 391,1 293,115 227,115"},
        Expected{"Missing", Sans, u'漢', 528, 817, SansMissing},
        Expected{"MissingKana", Gothic, u'ก', 952, 838, GothicMissing},
        Expected{"Surrogate", Sans, 0xD83D, 528, 817, SansMissing},
        Expected{"OwnBold", SansBold, u'l', 302, 817, " M 74,149 L 228,149 228,817 74,817"},
        Expected{"SyntheticItalic", GothicItalic, u'i', 476, 838,
                 " M 348,123 L 432,123 414,209 330,209 M 307,337 L 382,337 285,790 211,790"},
        Expected{"NotInstalled", NotInstalled, u'A', 476, 838, GothicA},
        Expected{"NoName", NoName, u'A', 476, 838, GothicA},
        Expected{"OtherHeight", GothicOfTwo, u'A', 476, 838, GothicA}),
    [](const auto& expected) { return std::string(expected.param.Name); });

TEST(Fonts, a_height_of_one_or_less_does_nothing) {
    const GlyphOutlineRecord before = Glyph(u'A', Gothic);
    GlyphOutlineRecord record = before;
    EXPECT_FALSE(GetCharOutline(record, u'i', {.FaceName = u"DejaVu Sans", .Height = 1}));
    EXPECT_EQ(record.Character, u'A');
    EXPECT_EQ(record.Font, before.Font);
    EXPECT_EQ(ToText(record.Outline), GothicA);
}

struct Box {
    Long Left = std::numeric_limits<Long>::max();
    Long Top = std::numeric_limits<Long>::max();
    Long Right = std::numeric_limits<Long>::min();
    Long Bottom = std::numeric_limits<Long>::min();

    explicit Box(const GlyphOutlineRecord& record) {
        const auto add = [this](OutlinePoint point) {
            Left = std::min(Left, point.X);
            Top = std::min(Top, point.Y);
            Right = std::max(Right, point.X);
            Bottom = std::max(Bottom, point.Y);
        };
        auto edge = record.Outline.Edges.begin();
        for (const OutlineContour& contour : record.Outline.Contours) {
            add(contour.Start);
            for (Long i = 0; i < contour.EdgeCount; ++i, ++edge) {
                add(edge->Control);
                add(edge->Anchor);
            }
        }
    }
};

TEST(Fonts, synthetic_bold_widens_strokes_and_advance_by_a_part_of_the_em) {
    // 2048 / 24 font units, 39.7 of the cell; the advance (1024 + 85.3) * 1024 / 2203.
    constexpr Long Gain = 40;
    const LogFont bold{.FaceName = u"IPAGothic", .Bold = true};
    EXPECT_EQ(Glyph(u'i', bold).CellIncX, 516);
    EXPECT_EQ(Glyph(u' ', bold).CellIncX, 516);
    for (const char16_t character : {u'i', u'漢', u'ｱ', u'o'}) {
        const GlyphOutlineRecord plain = Glyph(character, Gothic);
        const GlyphOutlineRecord thick = Glyph(character, bold);
        const Box before(plain);
        const Box after(thick);
        EXPECT_EQ(thick.Outline.Contours.size(), plain.Outline.Contours.size());
        // Sharp corners reach farther.
        const Long most = character == u'i' || character == u'o' ? Gain + 1 : 4 * Gain;
        const Long wider = after.Right - after.Left - (before.Right - before.Left);
        const Long higher = after.Bottom - after.Top - (before.Bottom - before.Top);
        EXPECT_TRUE(wider >= Gain - 2 && wider <= most) << wider;
        EXPECT_TRUE(higher >= Gain - 2 && higher <= most) << higher;
    }
    // The stem of "i", 160 font units, gains the same.
    const GlyphOutlineRecord thick = Glyph(u'i', bold);
    ASSERT_EQ(thick.Outline.Contours.size(), 2u);
    const auto first = static_cast<std::size_t>(thick.Outline.Contours[0].EdgeCount);
    EXPECT_NEAR(thick.Outline.Edges[first].Anchor.X - thick.Outline.Contours[1].Start.X, 74 + Gain,
                1);
}

TEST(Fonts, a_record_filled_again_holds_only_the_new_outline) {
    GlyphOutlineRecord record;
    for (const char16_t character : {u'漢', u'A', u' ', u'龍', u'A'}) {
        ASSERT_TRUE(GetCharOutline(record, character, Gothic));
        EXPECT_EQ(ToText(record.Outline), ToText(Glyph(character, Gothic).Outline));
    }
    EXPECT_EQ(ToText(record.Outline), GothicA);
    // The record's own font may be the one asked for.
    ASSERT_TRUE(GetCharOutline(record, u' ', record.Font));
    EXPECT_TRUE(record.Outline.Contours.empty());
    EXPECT_EQ(record.CellIncX, 476);
}

TEST(Fonts, anchors_of_one_point_are_no_contours) {
    EXPECT_EQ(Glyph(u'u', Sans).Outline.Contours.size(), 1u);
}

TEST(Fonts, only_an_exact_name_is_installed) {
    for (const StringView name : {u"IPAGothic", u"ipagothic", u"IPAゴシック", u"ipaゴシック",
                                  u"IPA Pゴシック", u"DejaVu Sans", u"Junction"})
        EXPECT_TRUE(FontInstalled(name)) << ToNarrow(name);
    for (const StringView name : {u"", u"IPAGothi", u"IPA", u"ＩＰＡゴシック", u"sans",
                                  u"Sans-Serif", u"DejaVu Sans:bold", u"IPAｺﾞｼｯｸ"})
        EXPECT_FALSE(FontInstalled(name)) << ToNarrow(name);
}

TEST(Fonts, the_list_holds_each_name_once_and_in_japanese_where_there_is_one) {
    const std::vector<String> all = InstalledFonts(false);
    const std::vector<String> japanese = InstalledFonts(true);
    EXPECT_EQ(std::ranges::adjacent_find(all, std::ranges::greater_equal{}), all.end());
    const auto has = [](const std::vector<String>& names, StringView name) {
        return std::ranges::count(names, name) == 1;
    };
    EXPECT_TRUE(has(all, u"IPAゴシック"));
    EXPECT_TRUE(has(all, u"DejaVu Sans"));
    EXPECT_FALSE(has(all, u"IPAGothic"));
    EXPECT_TRUE(has(japanese, u"IPAゴシック"));
    EXPECT_FALSE(has(japanese, u"DejaVu Sans"));
}

TEST(Fonts, threads_and_more_fonts_than_stay_open_give_the_same_outlines) {
    const auto draw = [] {
        for (char16_t name = u'a'; name <= u'z'; ++name) {
            EXPECT_EQ(ToText(Glyph(u'A', {.FaceName = String(3, name)}).Outline), GothicA);
            EXPECT_EQ(ToText(Glyph(u'漢', Sans).Outline), SansMissing);
        }
    };
    std::thread other(draw);
    draw();
    other.join();
}

/// A machine whose only fonts are those that the test installs.
class OwnFonts : public testing::Test {
protected:
    void SetUp() override {
        fs::remove_all(folder);
        fs::create_directories(folder);
        FcConfig* none = FcConfigCreate();
        FcConfigSetCurrent(none);
        FcConfigDestroy(none);
    }
    void TearDown() override {
        FcConfigSetCurrent(system);
        FcConfigDestroy(system);
        fs::remove_all(folder);
    }

    static Bytes Read(const std::string& file) {
        Bytes bytes;
        EXPECT_TRUE(ReadFileBytes(FromNarrow(file), bytes)) << file;
        return bytes;
    }
    static void Install(const std::string& file) {
        const auto* name = reinterpret_cast<const FcChar8*>(file.c_str());
        EXPECT_TRUE(FcConfigAppFontAddFile(nullptr, name)) << file;
    }
    std::string Path(const std::string& name) const { return (folder / name).string(); }
    void Write(const Bytes& bytes, const std::string& name) const {
        EXPECT_TRUE(WriteFileBytes(bytes, FromNarrow(Path(name))));
    }
    void Install(const Bytes& bytes, const std::string& name) const {
        Write(bytes, name);
        Install(Path(name));
    }

    FcConfig* system = FcConfigReference(nullptr);
    fs::path folder =
        fs::path(testing::TempDir()) /
        (std::string("fonts_") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

/// Where the entry of a table stands in a font file's directory: tag, sum, offset and length of
/// four bytes each, from the twelfth byte on.
std::size_t EntryOf(const Bytes& file, std::string_view tag) {
    const auto entry = std::search(file.begin(), file.end(), tag.begin(), tag.end());
    EXPECT_NE(entry, file.end());
    return static_cast<std::size_t>(entry - file.begin());
}

std::size_t Number(const Bytes& file, std::size_t at) {
    return static_cast<std::size_t>(file[at]) << 24 | static_cast<std::size_t>(file[at + 1]) << 16 |
           static_cast<std::size_t>(file[at + 2]) << 8 | file[at + 3];
}

std::size_t TableOf(const Bytes& file, std::string_view tag) {
    return Number(file, EntryOf(file, tag) + 8);
}

TEST_F(OwnFonts, without_any_there_is_no_outline_and_one_name) {
    GlyphOutlineRecord record;
    record.CellIncX = 5;
    record.Outline.Contours.resize(1);
    EXPECT_FALSE(GetCharOutline(record, u'A', Gothic));
    EXPECT_EQ(record.CellIncX, 0);
    EXPECT_TRUE(record.Outline.Contours.empty());
    EXPECT_FALSE(FontInstalled(u"IPAGothic"));
    EXPECT_EQ(InstalledFonts(false), std::vector<String>{u"ＭＳ ゴシック"});
    EXPECT_EQ(InstalledFonts(true), std::vector<String>{u"ＭＳ ゴシック"});
}

TEST_F(OwnFonts, any_face_stands_in_and_one_with_japanese_before_it) {
    Install(SansFile);
    EXPECT_EQ(Glyph(u'l', Gothic).CellIncX, 244);
    EXPECT_EQ(InstalledFonts(true), std::vector<String>{u"ＭＳ ゴシック"});
    Install(PropGothicFile);
    // 553 * 1024 / 2203.
    EXPECT_EQ(Glyph(u'i', Gothic).CellIncX, 257);
    EXPECT_EQ(InstalledFonts(true), std::vector<String>{u"IPA Pゴシック"});
}

TEST_F(OwnFonts, a_familys_own_italic_is_not_slanted_and_a_missing_bold_is_added) {
    Bytes italic = Read(JunctionFile);
    // fsSelection of the OS/2 table: not regular, italic.
    const std::size_t selection = TableOf(italic, "OS/2") + 62;
    italic[selection + 1] = 0x01;
    Install(JunctionFile);
    Install(italic, "italic.otf");

    LogFont font = Junction;
    const GlyphOutlineRecord plain = Glyph(u'l', font);
    font.Italic = true;
    EXPECT_EQ(ToText(Glyph(u'l', font).Outline), ToText(plain.Outline));
    font.Bold = true;
    const GlyphOutlineRecord both = Glyph(u'l', font);
    // 1000 / 24 font units are 38.2 of the cell.
    EXPECT_NEAR(Box(both).Right - Box(both).Left, Box(plain).Right - Box(plain).Left + 38, 2);
    EXPECT_EQ(both.CellIncX, 293);
}

TEST_F(OwnFonts, without_windows_metrics_those_of_the_horizontal_header_count) {
    Bytes file = Read(JunctionFile);
    file[EntryOf(file, "OS/2")] = 'o';
    Install(file, "plain.otf");
    // 750 of 750 + 250 above the base line; advance 260.
    const GlyphOutlineRecord record = Glyph(u' ', Junction);
    EXPECT_EQ(record.Ascent, 768);
    EXPECT_EQ(record.CellIncX, 266);
}

TEST_F(OwnFonts, a_file_cut_anywhere_gives_its_own_or_the_next_faces_outline) {
    Install(SansFile);
    const std::string stem = ToText(Glyph(u'l', Sans).Outline);
    for (const std::string& source : {JunctionFile, PropGothicFile}) {
        const Bytes whole = Read(source);
        const LogFont font{.FaceName = source == JunctionFile ? u"Junction" : u"IPAPGothic"};
        std::string own;
        int substituted = 0;
        constexpr std::size_t Cuts = 16;
        for (std::size_t cut = 0; cut <= Cuts; ++cut) {
            const std::string name = std::to_string(cut) + fs::path(source).extension().string();
            FcConfigAppFontClear(nullptr);
            Install(SansFile);
            Install(whole, name);
            if (cut == Cuts) break;
            Write(Bytes(whole.begin(),
                        whole.begin() +
                            static_cast<std::ptrdiff_t>(cut == 0 ? 3 : whole.size() * cut / Cuts)),
                  name);
            if (own.empty()) own = "cut";
            const std::string outline = ToText(Glyph(u'l', font).Outline);
            substituted += outline == stem;
            if (outline != stem) own = outline;
        }
        const std::string intact = ToText(Glyph(u'l', font).Outline);
        EXPECT_NE(intact, stem);
        EXPECT_TRUE(own == "cut" || own == intact);
        EXPECT_GE(substituted, 8);
    }
}

TEST_F(OwnFonts, a_face_read_once_outlives_its_file) {
    Install(Read(JunctionFile), "cut.otf");
    const std::string before = ToText(Glyph(u'l', Junction).Outline);
    fs::resize_file(folder / "cut.otf", 0);
    EXPECT_EQ(ToText(Glyph(u'l', Junction).Outline), before);
    EXPECT_FALSE(Glyph(u'o', Junction).Outline.Contours.empty());
}

TEST_F(OwnFonts, a_damaged_glyph_gives_an_empty_outline) {
    Bytes file = Read(SansFile);
    const std::size_t glyphs = TableOf(file, "glyf");
    const std::size_t length = Number(file, EntryOf(file, "glyf") + 12);
    // As a glyph: 32,639 contours.
    std::fill_n(file.begin() + static_cast<std::ptrdiff_t>(glyphs), length, Byte{0x7F});
    Install(file, "damaged.ttf");
    GlyphOutlineRecord record;
    EXPECT_FALSE(GetCharOutline(record, u'A', Sans));
    EXPECT_EQ(record.Character, u'A');
    EXPECT_TRUE(record.Outline.Contours.empty());
    EXPECT_EQ(record.CellIncX, 0);
}

struct Cubic {
    FinePoint Start, Control1, Control2, End;

    FinePoint At(double t) const {
        const double s = 1 - t;
        const auto mix = [&](double a, double b, double c, double d) {
            return s * s * s * a + 3 * s * s * t * b + 3 * s * t * t * c + t * t * t * d;
        };
        return {mix(Start.X, Control1.X, Control2.X, End.X),
                mix(Start.Y, Control1.Y, Control2.Y, End.Y)};
    }
};

FinePoint QuadraticAt(FinePoint start, FinePoint control, FinePoint end, double t) {
    const double s = 1 - t;
    return {s * s * start.X + 2 * s * t * control.X + t * t * end.X,
            s * s * start.Y + 2 * s * t * control.Y + t * t * end.Y};
}

double Distance(FinePoint a, FinePoint b) {
    return std::hypot(a.X - b.X, a.Y - b.Y);
}

constexpr int Samples = 50;

TEST(CutCubic, stays_within_the_tolerance_with_few_pieces) {
    const struct {
        Cubic Curve;
        std::size_t MostPieces;
    } cases[] = {
        {{{0, 0}, {10, 0}, {20, 0}, {30, 0}}, 1},           // straight
        {{{0, 0}, {200, 300}, {400, 300}, {600, 0}}, 1},    // a quadratic with its degree raised
        {{{0, 0}, {0, 55.2}, {44.8, 100}, {100, 100}}, 2},  // quarter of a circle
        {{{0, 0}, {1000, 0}, {0, 1000}, {1000, 1000}}, 8},  // double bend
        {{{0, 0}, {1000, 1000}, {0, 1000}, {1000, 0}}, 8},  // cusp
        {{{0, 0}, {3000, 1000}, {-2000, 1000}, {1000, 0}}, 12},  // loop
        {{{7, 7}, {7, 7}, {7, 7}, {7, 7}}, 1},                   // a point
    };
    for (const auto& [cubic, mostPieces] : cases) {
        const auto pieces = CutCubic(cubic.Start, cubic.Control1, cubic.Control2, cubic.End, 0.5);
        EXPECT_LE(pieces.size(), mostPieces);
        FinePoint pen = cubic.Start;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            for (int sample = 0; sample <= Samples; ++sample) {
                const double t = static_cast<double>(sample) / Samples;
                const FinePoint exact =
                    cubic.At((static_cast<double>(i) + t) / static_cast<double>(pieces.size()));
                const FinePoint cut = QuadraticAt(pen, pieces[i].Control, pieces[i].End, t);
                ASSERT_LE(Distance(exact, cut), 0.5 + 1e-9) << i << " of " << pieces.size();
            }
            pen = pieces[i].End;
        }
        EXPECT_EQ(pen.X, cubic.End.X);
        EXPECT_EQ(pen.Y, cubic.End.Y);
    }
}

TEST(Fonts, cubics_of_a_face_become_quadratics_that_follow_them) {
    // The outer contour of "o" by fontTools, font units; cell of 841 + 275.
    constexpr double Scale = 1024.0 / 1116;
    const Cubic cubics[] = {{{54, 275}, {54, 58}, {173, -12}, {293, -12}},
                            {{293, -12}, {413, -12}, {532, 63}, {532, 275}},
                            {{532, 275}, {532, 484}, {413, 562}, {293, 562}},
                            {{293, 562}, {173, 562}, {54, 485}, {54, 275}}};
    std::vector<FinePoint> wanted;
    for (const Cubic& cubic : cubics)
        for (int sample = 0; sample < Samples; ++sample) {
            const FinePoint point = cubic.At(static_cast<double>(sample) / Samples);
            wanted.push_back({point.X * Scale, 772 - point.Y * Scale});
        }

    const GlyphOutlineRecord record = Glyph(u'o', Junction);
    EXPECT_EQ(record.CellIncX, 538);
    EXPECT_EQ(record.Ascent, 772);
    ASSERT_EQ(record.Outline.Contours.size(), 2u);
    EXPECT_EQ(record.Outline.Contours[0].Start, (OutlinePoint{50, 520}));
    std::vector<FinePoint> drawn;
    const auto fine = [](OutlinePoint point) {
        return FinePoint{static_cast<double>(point.X), static_cast<double>(point.Y)};
    };
    FinePoint pen = fine(record.Outline.Contours[0].Start);
    for (Long i = 0; i < record.Outline.Contours[0].EdgeCount; ++i) {
        const OutlineEdge& edge = record.Outline.Edges[static_cast<std::size_t>(i)];
        ASSERT_TRUE(edge.Curved);
        for (int sample = 0; sample < Samples; ++sample)
            drawn.push_back(QuadraticAt(pen, fine(edge.Control), fine(edge.Anchor),
                                        static_cast<double>(sample) / Samples));
        pen = fine(edge.Anchor);
    }
    EXPECT_EQ(Distance(pen, {50, 520}), 0);

    // Half a unit of the cut and half a unit of rounding along each axis; besides, the samples are
    // less than 6 units apart, which adds 3 * 3 / (2 * 100) on a bend of a radius of 100.
    const auto follows = [](const std::vector<FinePoint>& points,
                            const std::vector<FinePoint>& others) {
        for (const FinePoint& point : points) {
            double nearest = std::numeric_limits<double>::max();
            for (std::size_t i = 0; i < others.size(); ++i) {
                const FinePoint a = others[i];
                const FinePoint b = others[(i + 1) % others.size()];
                const double length = std::max(Distance(a, b), 1e-9);
                const double along =
                    ((point.X - a.X) * (b.X - a.X) + (point.Y - a.Y) * (b.Y - a.Y)) /
                    (length * length);
                const double t = std::clamp(along, 0.0, 1.0);
                nearest = std::min(nearest,
                                   Distance(point, {a.X + t * (b.X - a.X), a.Y + t * (b.Y - a.Y)}));
            }
            ASSERT_LE(nearest, 0.5 + std::sqrt(0.5) + 0.05);
        }
    };
    follows(wanted, drawn);
    follows(drawn, wanted);
}

struct Drawn {
    const char* Name;
    /// 1 on the curve, 0 control of a quadratic, 2 control of a cubic.
    std::vector<char> Tags;
    std::vector<FT_Vector> Points;
    /// Nothing for points that make no curves.
    std::string Outline;
};

void PrintTo(const Drawn& drawn, std::ostream* out) {
    *out << drawn.Name;
}

class PointsOfAFace : public testing::TestWithParam<Drawn> {};

TEST_P(PointsOfAFace, make_a_contour) {
    Drawn drawn = GetParam();
    short end = static_cast<short>(drawn.Points.size() - 1);
    FT_Outline outline{};
    outline.n_points = static_cast<short>(drawn.Points.size());
    outline.n_contours = 1;
    outline.points = drawn.Points.data();
    outline.tags = reinterpret_cast<decltype(outline.tags)>(drawn.Tags.data());
    outline.contours = reinterpret_cast<decltype(outline.contours)>(&end);
    GlyphOutline made;
    EXPECT_EQ(CellOutline().Read(outline, {.CellHeight = 2048, .Ascent = 800}, made),
              !drawn.Outline.empty());
    if (!drawn.Outline.empty()) {
        EXPECT_EQ(ToText(made), drawn.Outline);
    }
}

/// Half of each number, rounded half to even; y from 800 down.
INSTANTIATE_TEST_SUITE_P(
    Fonts, PointsOfAFace,
    testing::Values(
        Drawn{"Ties",
              {1, 1, 1, 1},
              {{1, 1}, {3, -1}, {5, 7}, {-1, -3}},
              " M 0,800 L 2,800 2,796 0,802"},
        Drawn{"StartsBesideTheCurveAfterAPointOnIt",
              {0, 1, 1},
              {{20, 20}, {40, 0}, {0, 0}},
              " M 0,800 S 10,790 20,800"},
        Drawn{"NoPointOnTheCurve",
              {0, 0, 0, 0},
              {{0, 0}, {40, 0}, {40, 40}, {0, 40}},
              " M 0,790 S 0,800 10,800 S 20,800 20,790 S 20,780 10,780 S 0,780 0,790"},
        Drawn{"CubicBackToTheStart",
              {1, 2, 2},
              {{0, 0}, {20, 0}, {20, 0}},
              " M 0,800 S 15,800 0,800"},
        Drawn{"CubicsAndLines",
              {1, 1, 2, 2, 1, 2, 2, 1},
              {{0, 0}, {8, 0}, {8, 0}, {8, 0}, {8, 0}, {8, 4}, {8, 8}, {8, 12}},
              " M 0,800 L 4,800 S 4,800 4,800 S 4,797 4,794"},
        Drawn{"AsFarAsThereIs",
              {1, 1, 1},
              {{0, 0}, {65534, 0}, {-65536, 67136}},
              " M 0,800 L 32767,800 -32768,-32768"},
        Drawn{"TooFarRight", {1, 1, 1}, {{0, 0}, {65536, 0}, {0, 20}}, ""},
        Drawn{"TooFarUp", {1, 1, 1}, {{0, 0}, {20, 0}, {0, 67138}}, ""},
        Drawn{"OneCubicControl", {1, 2, 1}, {{0, 0}, {20, 0}, {20, 20}}, ""},
        Drawn{"ThreeCubicControls", {1, 2, 2, 2}, {{0, 0}, {20, 0}, {20, 20}, {0, 20}}, ""},
        Drawn{"BeginsOnACubicControl", {2, 2, 1}, {{0, 0}, {20, 0}, {20, 20}}, ""},
        Drawn{"QuadraticIntoCubic", {1, 0, 2, 2}, {{0, 0}, {20, 0}, {20, 20}, {0, 20}}, ""}),
    [](const auto& drawn) { return std::string(drawn.param.Name); });

TEST(Fonts, contours_behind_a_long_cubic_have_their_room) {
    // A loop that takes many quadratics, then a square; then contours that overlap.
    std::vector<FT_Vector> points{{0, 0}, {6000, 2000}, {-4000, 2000}, {2000, 0},
                                  {0, 0}, {20, 0},      {20, 20},      {0, 20}};
    std::vector<char> tags{1, 2, 2, 1, 1, 1, 1, 1};
    std::vector<short> ends{3, 7};
    FT_Outline outline{};
    outline.n_points = 8;
    outline.n_contours = 2;
    outline.points = points.data();
    outline.tags = reinterpret_cast<decltype(outline.tags)>(tags.data());
    outline.contours = reinterpret_cast<decltype(outline.contours)>(ends.data());
    const CellPlacement placement{.CellHeight = 2048, .Ascent = 800};
    GlyphOutline made;
    ASSERT_TRUE(CellOutline().Read(outline, placement, made));
    ASSERT_EQ(made.Contours.size(), 2u);
    const auto loop = static_cast<std::size_t>(made.Contours[0].EdgeCount);
    EXPECT_GT(loop, 4u);
    EXPECT_EQ(made.Contours[1].EdgeCount, 3);
    ASSERT_LE(loop + 3, made.Edges.size());
    EXPECT_EQ(made.Edges[loop + 2].Anchor, (OutlinePoint{0, 790}));
    ends = {7, 3};
    EXPECT_FALSE(CellOutline().Read(outline, placement, made));
}

}  // namespace
}  // namespace tamber
