#include <gtest/gtest.h>

#include "output/MovieHtml.h"

namespace tamber {
namespace {

String Filled(String text, const MoviePage& page) {
    MakeHtml(text, page);
    return text;
}

MoviePage Page() {
    MoviePage page;
    page.FileName = u"a.b.swf";
    page.Width = 320;
    page.Height = 240;
    page.Settings.quality = u"high";
    return page;
}

TEST(Html, names_the_movie_its_size_and_version) {
    MoviePage page = Page();
    constexpr StringView All =
        u"<<VERSION>> <<WIDTH>>x<<HEIGHT>> [<<ALIGN>>] <<QUALITY>> <<FILENAME>> <<ID>> <<ID>>";
    EXPECT_EQ(Filled(String(All), page), u"6,0,0,0 320x240 [] high a.b.swf a.b a.b");
    page.Settings.SizeUnit = u"percent";
    page.Settings.WIDTH = u"100";
    page.Settings.HEIGHT = u"0";
    EXPECT_EQ(Filled(u"<<WIDTH>>,<<HEIGHT>>", page), u"100%,0%");
    page.Settings.SizeUnit = u"pixel";
    EXPECT_EQ(Filled(u"<<WIDTH>>,<<HEIGHT>>", page), u"100,0");
    page.Settings.SizeUnit = u"inch";
    EXPECT_EQ(Filled(u"<<WIDTH>>,<<HEIGHT>>", page), u"<<WIDTH>>,<<HEIGHT>>");
}

TEST(Html, drops_options_at_their_defaults_with_the_line_end_before_or_the_blank_behind) {
    MoviePage page = Page();
    constexpr StringView Options =
        u"<<P_LOOP>>\r\n<<P_PLAY>>\r\n<<P_WMODE>>;<<E_PLAY>> <<E_LOOP>><<E_SALIGN>> .";
    // A marker at the text's start has no line end before it, one without a blank behind it stays.
    EXPECT_EQ(Filled(String(Options), page), u"<<P_LOOP>>;<<E_LOOP>>.");
    page.Settings.play = false;
    page.Settings.wmode = u"opaque";
    page.Settings.salign = u"TL";
    EXPECT_EQ(Filled(String(Options), page),
              u"<<P_LOOP>>\r\n<PARAM NAME=\"play\" VALUE=\"false\">\r\n"
              u"<PARAM NAME=\"wmode\" VALUE=\"opaque\">;play=\"false\" <<E_LOOP>>salign=\"TL\" .");
}

TEST(Html, has_anchors_from_version_6_on_and_a_player_where_asked) {
    MoviePage page = Page();
    constexpr StringView Text = u"1\r\n<<H_ANCHOR>>\r\n<<B_ANCHOR>>\r\n<<PLAYER>>\r\n2";
    EXPECT_EQ(Filled(String(Text), page), u"1\r\n2");
    page.Settings.NamedAnchors = true;
    page.Anchors = {u"one", u"two"};
    page.blPlayer = true;
    const String filled = Filled(String(Text), page);
    EXPECT_TRUE(
        filled.starts_with(u"1\r\n<script language=\"JavaScript\">\r\nfunction flashPutHref"));
    EXPECT_TRUE(
        filled.ends_with(u"</script>\r\n<A NAME=one></A>\r\n<A NAME=two></A>\r\n"
                         u"<script src=\"ruffle/ruffle.js\"></script>\r\n2"));
    page.Version = 5;
    page.blPlayer = false;
    EXPECT_EQ(Filled(String(Text), page), u"1\r\n2");
}

}  // namespace
}  // namespace tamber
