#include "platform/codepage.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tamber {
namespace {

struct Pair {
    const char* Name;
    String Text;
    Bytes Code;
};

void PrintTo(const Pair& pair, std::ostream* out) {
    *out << pair.Name;
}

class BothWays : public testing::TestWithParam<Pair> {};
class DecodedOnly : public testing::TestWithParam<Pair> {};
class EncodedOnly : public testing::TestWithParam<Pair> {};

TEST_P(BothWays, text_and_code_give_each_other) {
    EXPECT_EQ(EncodeAnsi(GetParam().Text), GetParam().Code);
    EXPECT_EQ(DecodeAnsi(GetParam().Code), GetParam().Text);
}

TEST_P(DecodedOnly, code_gives_text) {
    EXPECT_EQ(DecodeAnsi(GetParam().Code), GetParam().Text);
}

TEST_P(EncodedOnly, text_gives_code) {
    EXPECT_EQ(EncodeAnsi(GetParam().Text), GetParam().Code);
}

std::string NameOf(const testing::TestParamInfo<Pair>& info) {
    return info.param.Name;
}

INSTANTIATE_TEST_SUITE_P(
    CodePage, BothWays,
    testing::Values(
        Pair{"Empty", u"", {}}, Pair{"Ascii", u"a\\~", {0x61, 0x5C, 0x7E}},
        Pair{"Nul", String(1, u'\0'), {0}}, Pair{"Control80", u"\u0080", {0x80}},
        Pair{"HalfKatakana", u"\uFF61\uFF9F", {0xA1, 0xDF}},
        Pair{"PrivateSingles", u"\uF8F1\uF8F2\uF8F3", {0xFD, 0xFE, 0xFF}},
        Pair{"FontName",
             u"\uFF2D\uFF33 \u30B4\u30B7\u30C3\u30AF",
             {0x82, 0x6C, 0x82, 0x72, 0x20, 0x83, 0x53, 0x83, 0x56, 0x83, 0x62, 0x83, 0x4E}},
        Pair{"BackslashAsTrail", u"\u8868\u80FD", {0x95, 0x5C, 0x94, 0x5C}},
        Pair{"WaveAndMinus", u"\uFF5E\u2225\uFF0D", {0x81, 0x60, 0x81, 0x61, 0x81, 0x7C}},
        Pair{"SignsOfJisArea",
             u"\uFFE2\u2235\u222A\u2252\u2261",
             {0x81, 0xCA, 0x81, 0xE6, 0x81, 0xBE, 0x81, 0xE0, 0x81, 0xDF}},
        Pair{"Row13",
             u"\u2460\u2160\u3231\u2116\u2121",
             {0x87, 0x40, 0x87, 0x54, 0x87, 0x8A, 0x87, 0x82, 0x87, 0x84}},
        Pair{"Extensions",
             u"\u2170\u7E8A\uFF02\u9ED1",
             {0xFA, 0x40, 0xFA, 0x5C, 0xFA, 0x57, 0xFC, 0x4B}},
        Pair{"UserDefined", u"\uE000\uE757", {0xF0, 0x40, 0xF9, 0xFC}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    CodePage, DecodedOnly,
    testing::Values(Pair{"SelectedExtensions", u"\u7E8A\u2170", {0xED, 0x40, 0xEE, 0xEF}},
                    Pair{"ExtensionTwins",
                         u"\u2160\u3231\uFFE2\u2235",
                         {0xFA, 0x4A, 0xFA, 0x58, 0xFA, 0x54, 0xFA, 0x5B}},
                    Pair{"Row13Twins", u"\u2252\u2261", {0x87, 0x90, 0x87, 0x91}},
                    Pair{"UnassignedPair", u"\u30FBa", {0x82, 0x40, 0x61}},
                    Pair{"LeadBeforeQuote", u"\u30FB\"a", {0x81, 0x22, 0x61}},
                    Pair{"LeadBeforeComma", u"\u30FB,a", {0xFC, 0x2C, 0x61}},
                    Pair{"LeadBeforeLineEnd", u"\u30FB\r\n", {0xE0, 0x0D, 0x0A}},
                    Pair{"LeadBeforeDelete", u"\u30FB\u007F", {0x9F, 0x7F}},
                    Pair{"LeadBeforeHighByte", u"\u30FB\uF8F1", {0x88, 0xFD}},
                    Pair{"LeadAtEnd", u"a\u30FB", {0x61, 0x88}},
                    Pair{"BlankA0", u"\u00A0", {0xA0}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    CodePage, EncodedOnly,
    testing::Values(
        Pair{"WaveDash", u"\u301C", {0x81, 0x60}}, Pair{"DoubleBar", u"\u2016", {0x81, 0x61}},
        Pair{"MinusSign", u"\u2212", {0x81, 0x7C}}, Pair{"EmDash", u"\u2014", {0x81, 0x5C}},
        Pair{"CentPoundNot", u"\u00A2\u00A3\u00AC", {0x81, 0x91, 0x81, 0x92, 0x81, 0xCA}},
        Pair{"YenOverline", u"\u00A5\u203E", {0x5C, 0x7E}},
        Pair{"LatinSigns",
             u"\u00A0\u00A1\u00A6\u00A9\u00AA\u00AD\u00AE\u00BA",
             {0x20, 0x21, 0x7C, 0x63, 0x61, 0x2D, 0x52, 0x6F}},
        Pair{"Superscripts", u"\u00B9\u00B2\u00B3", {0x31, 0x32, 0x33}},
        Pair{"Guillemets", u"\u00AB\u00BB", {0x81, 0xE1, 0x81, 0xE2}},
        Pair{"MacronMicroDotCedilla",
             u"\u00AF\u00B5\u00B7\u00B8",
             {0x81, 0x50, 0x83, 0xCA, 0x81, 0x45, 0x81, 0x43}},
        Pair{"Vu", u"\u3094", {0x83, 0x94}},
        Pair{"UpperAccents",
             u"\u00C0\u00C6\u00C7\u00C9\u00CF\u00D0\u00D1\u00D8\u00DC\u00DD\u00DE",
             {'A', 'A', 'C', 'E', 'I', 'D', 'N', 'O', 'U', 'Y', 'T'}},
        Pair{"LowerAccents",
             u"\u00DF\u00E5\u00E7\u00EA\u00EC\u00F0\u00F1\u00F6\u00FB\u00FE\u00FF",
             {'s', 'a', 'c', 'e', 'i', 'd', 'n', 'o', 'u', 't', 'y'}},
        Pair{"TimesAndDivide", u"\u00D7\u00F7", {0x81, 0x7E, 0x81, 0x80}},
        Pair{"NoPlace", u"a\u0E01\u00BFb", {'a', '?', '?', 'b'}},
        Pair{"SurrogatePair", u"\U0001F600", {'?', '?'}}),
    NameOf);

TEST(CodePage, every_assigned_pair_comes_back_as_its_character) {
    int characters = 0;
    for (int lead = 0x81; lead <= 0xFC; ++lead) {
        if (lead >= 0xA0 && lead <= 0xDF) continue;
        for (int trail = 0x40; trail <= 0xFC; ++trail) {
            if (trail == 0x7F) continue;
            const Bytes code{static_cast<Byte>(lead), static_cast<Byte>(trail)};
            const String text = DecodeAnsi(code);
            ASSERT_EQ(text.size(), 1u) << lead << " " << trail;
            if (text == u"\u30FB" && code != Bytes{0x81, 0x45}) continue;
            ++characters;
            ASSERT_EQ(DecodeAnsi(EncodeAnsi(text)), text) << lead << " " << trail;
        }
    }
    EXPECT_EQ(characters, 9604);
}

TEST(Utf8, gives_and_takes_every_length) {
    const String text = u"a\u00E9\u3042\U0001F600";
    const Bytes code{0x61, 0xC3, 0xA9, 0xE3, 0x81, 0x82, 0xF0, 0x9F, 0x98, 0x80};
    EXPECT_EQ(EncodeUtf8(text), code);
    EXPECT_EQ(DecodeUtf8(code), text);
    EXPECT_EQ(ToNarrow(text), "a\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80");
    EXPECT_EQ(FromNarrow("a\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80"), text);
}

TEST(Utf8, reaches_the_edges_of_each_length) {
    EXPECT_EQ(EncodeUtf8(u"\u007F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"),
              (Bytes{0x7F, 0xC2, 0x80, 0xDF, 0xBF, 0xE0, 0xA0, 0x80, 0xEF, 0xBF, 0xBF, 0xF0, 0x90,
                     0x80, 0x80, 0xF4, 0x8F, 0xBF, 0xBF}));
}

TEST(Utf8, lone_surrogates_are_replaced) {
    const char16_t high[] = {0xD800, u'a', 0};
    const char16_t low[] = {0xDC00, 0xD800, 0};
    EXPECT_EQ(EncodeUtf8(high), (Bytes{0xEF, 0xBF, 0xBD, 0x61}));
    EXPECT_EQ(EncodeUtf8(low), (Bytes{0xEF, 0xBF, 0xBD, 0xEF, 0xBF, 0xBD}));
}

struct Malformed {
    const char* Name;
    Bytes Code;
    String Text;
};

void PrintTo(const Malformed& malformed, std::ostream* out) {
    *out << malformed.Name;
}

class MalformedUtf8 : public testing::TestWithParam<Malformed> {};

TEST_P(MalformedUtf8, is_replaced_and_the_rest_kept) {
    EXPECT_EQ(DecodeUtf8(GetParam().Code), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Utf8, MalformedUtf8,
    testing::Values(Malformed{"LoneTail", {0x80, 0x61}, u"\uFFFDa"},
                    Malformed{"Overlong2", {0xC0, 0xAF}, u"\uFFFD\uFFFD"},
                    Malformed{"Overlong3", {0xE0, 0x80, 0xAF}, u"\uFFFD\uFFFD\uFFFD"},
                    Malformed{"Surrogate", {0xED, 0xA0, 0x80}, u"\uFFFD\uFFFD\uFFFD"},
                    Malformed{"BeyondLast", {0xF4, 0x90, 0x80, 0x80}, u"\uFFFD\uFFFD\uFFFD\uFFFD"},
                    Malformed{"CutShort", {0xE3, 0x81}, u"\uFFFD"},
                    Malformed{"CutByAscii", {0xE3, 0x81, 0x22}, u"\uFFFD\""},
                    Malformed{"CutByLead", {0xF0, 0x9F, 0xC3, 0xA9}, u"\uFFFD\u00E9"},
                    Malformed{"NoLead", {0xFF, 0xFE}, u"\uFFFD\uFFFD"}),
    [](const auto& malformed) { return std::string(malformed.param.Name); });

}  // namespace
}  // namespace tamber
