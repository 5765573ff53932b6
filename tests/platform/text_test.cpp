#include "platform/text.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/paths.h"

namespace tamber {
namespace {

Long ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number;
    }
    return 0;
}

TEST(ToText, gives_seven_significant_digits_of_a_Single) {
    const struct {
        Single value;
        StringView text;
    } cases[] = {{0, u"0"},
                 {1, u"1"},
                 {-1.5f, u"-1.5"},
                 {0.1f, u"0.1"},
                 {1.0f / 3, u"0.3333333"},
                 {1234567, u"1234567"},
                 {12345678, u"1.234568E+07"},
                 {10000000, u"1E+07"},
                 {0.0001f, u"0.0001"},
                 {0.00001f, u"1E-05"},
                 {32767.99f, u"32767.99"}};
    for (const auto& c : cases) EXPECT_EQ(ToText(c.value), c.text);
}

TEST(Numbers, are_read_as_cells_hold_them) {
    EXPECT_EQ(ToLong(u"-12"), -12);
    EXPECT_EQ(ToLong(u" +7 "), 7);
    EXPECT_EQ(ToLong(u"1.5"), 2);
    EXPECT_EQ(ToLong(u"2.5"), 2);
    EXPECT_EQ(ToLong(u"-2147483648"), std::numeric_limits<Long>::min());
    EXPECT_EQ(ToSingle(u"1E-05"), 1e-5f);
    EXPECT_EQ(ToSingle(u".5"), 0.5f);
    EXPECT_TRUE(ToBoolean(u"True"));
    EXPECT_TRUE(ToBoolean(u"-1"));
    EXPECT_FALSE(ToBoolean(u"false"));
    EXPECT_FALSE(ToBoolean(u"0"));
    EXPECT_EQ(ToByte(u"255"), 255);
}

TEST(Numbers, that_are_none_or_do_not_fit_raise) {
    for (const StringView text : {u"", u" ", u"a", u"1a", u"1,5", u"nan", u"inf", u"-", u"１"}) {
        EXPECT_EQ(ErrorOf([&] { ToLong(text); }), ErrorTypeMismatch);
        EXPECT_EQ(ErrorOf([&] { ToSingle(text); }), ErrorTypeMismatch);
        EXPECT_EQ(ErrorOf([&] { ToBoolean(text); }), ErrorTypeMismatch);
        EXPECT_FALSE(IsNumeric(text));
    }
    EXPECT_EQ(ErrorOf([] { ToLong(u"2147483648"); }), ErrorOverflow);
    EXPECT_EQ(ErrorOf([] { ToLong(u"1E999"); }), ErrorOverflow);
    EXPECT_EQ(ErrorOf([] { ToSingle(u"4E38"); }), ErrorOverflow);
    EXPECT_EQ(ErrorOf([] { ToByte(u"256"); }), ErrorOverflow);
    EXPECT_EQ(ErrorOf([] { ToByte(u"-1"); }), ErrorOverflow);
}

TEST(LeadingNumber, takes_what_a_settings_file_means) {
    EXPECT_EQ(LeadingNumber(u"12ab"), 12);
    EXPECT_EQ(LeadingNumber(u"-3"), -3);
    EXPECT_EQ(LeadingNumber(u"ab"), 0);
    EXPECT_EQ(LeadingNumber(u""), 0);
    EXPECT_EQ(LeadingNumber(u"99999999999999999999"), 2147483647);
}

TEST(Like, knows_runs_digits_and_classes) {
    const struct {
        StringView text, pattern;
        bool match;
    } cases[] = {{u"abc", u"a*", true},
                 {u"abc", u"*b", false},
                 {u"abc", u"a?c", true},
                 {u"a1", u"a#", true},
                 {u"ab", u"a#", false},
                 {u"c:\\x", u"[a-z]:\\*", true},
                 {u"1:\\x", u"[a-z]:\\*", false},
                 {u"x", u"[!a-c]", true},
                 {u"", u"*", true},
                 {u"", u"?", false},
                 {u"aXbXc", u"*X*c", true},
                 {u"abc", u"", false}};
    for (const auto& c : cases)
        EXPECT_EQ(Like(c.text, c.pattern), c.match)
            << ToNarrow(c.text) << " against " << ToNarrow(c.pattern);
}

TEST(GroupedText, has_a_comma_at_each_third_digit) {
    EXPECT_EQ(ToGroupedText(0), u"0");
    EXPECT_EQ(ToGroupedText(999), u"999");
    EXPECT_EQ(ToGroupedText(1234567), u"1,234,567");
    EXPECT_EQ(ToGroupedText(-1000), u"-1,000");
}

TEST(Paths, are_split_at_the_last_separator_and_point) {
    EXPECT_EQ(GetFileFolder(u"/a/b.c/d.kvf"), u"/a/b.c");
    EXPECT_EQ(GetFileName(u"/a/b.c/d.kvf"), u"d.kvf");
    EXPECT_EQ(GetFileBase(u"/a/b.c/d.x.kvf"), u"d.x");
    EXPECT_EQ(GetFileExt(u"/a/b.c/d"), u"");
    EXPECT_EQ(GetFileExt(u"d.x.KVF"), u"KVF");
}

TEST(Paths, are_made_relative_and_canonical) {
    EXPECT_EQ(MakeRelativePath(u"/a/b", u"/a/b/c.png"), u"c.png");
    EXPECT_EQ(MakeRelativePath(u"/a/b", u"/a/x/c.png"), u"../x/c.png");
    EXPECT_EQ(MakeRelativePath(u"/a/b", u"C:\\c.png"), u"C:\\c.png");
    EXPECT_EQ(NormalizePath(u"/a/b/../x/./c.png"), u"/a/x/c.png");
    EXPECT_EQ(NormalizePath(u"/../c.png"), u"/c.png");
    EXPECT_EQ(NormalizePath(u"/A//b"), u"/A//b");
}

TEST(Paths, travel_in_cells_with_backslashes) {
    EXPECT_EQ(PathToCell(u"../x/c.png"), u"..\\x\\c.png");
    EXPECT_EQ(PathFromCell(u"..\\x\\c.png"), u"../x/c.png");
    EXPECT_EQ(PathFromCell(u"c:\\x\\c.png"), u"c:\\x\\c.png");
}

}  // namespace
}  // namespace tamber
