#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/settings/mdlPrivateProfile.h"
#include "platform/codepage.h"
#include "platform/paths.h"

namespace tamber {
namespace {

namespace fs = std::filesystem;
namespace settings = mdlPrivateProfile;

/// A program's folder of its own, so that each test begins without settings.
class SettingsTest : public testing::Test {
protected:
    void SetUp() override {
        fs::remove_all(folder);
        fs::create_directories(folder / "home");
        setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1);
        ProgramFolder(FromNarrow((folder / "home").string()));
    }
    void TearDown() override { fs::remove_all(folder); }

    void Write(const std::string& text) const { std::ofstream(ini, std::ios::binary) << text; }
    std::string Text() const {
        std::ifstream file(ini, std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    fs::path folder =
        fs::path(testing::TempDir()) /
        (std::string("settings_") + testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::path ini = folder / "home" / "app.ini";
};

TEST_F(SettingsTest, a_missing_file_gives_the_defaults_and_is_made_by_the_first_write) {
    EXPECT_TRUE(settings::flgSWFCompress());
    EXPECT_FALSE(settings::flgMakeHTML());
    EXPECT_EQ(settings::CanvasWidth(), 320);
    EXPECT_EQ(settings::FPS(), u"24");
    EXPECT_EQ(settings::EditorBackColor(), 0xFFFFFF);
    EXPECT_EQ(settings::DefaultFont(), u"ＭＳ ゴシック");
    EXPECT_EQ(settings::SkinPath(), FromNarrow((folder / "home" / "icons").string()));
    EXPECT_FALSE(fs::exists(ini));
    EXPECT_TRUE(settings::flgMakeHTML(true));
    EXPECT_EQ(Text(), "[Setting]\r\nflgMakeHTML=1\r\n");
    EXPECT_TRUE(settings::flgMakeHTML());
}

TEST_F(SettingsTest, a_write_keeps_what_it_does_not_know) {
    Write(
        "; mine\r\n[Other]\r\nx = "
        "1\r\n\r\n[setting]\r\ngridwidth=20\r\nnonsense\r\n[HTML]\r\nplay=0\r\n");
    EXPECT_EQ(settings::GridWidth(), 20);
    EXPECT_FALSE(settings::HTML_play());
    settings::GridWidth(8);
    settings::CanvasBlank(5);
    EXPECT_EQ(Text(),
              "; mine\r\n[Other]\r\nx = 1\r\n\r\n[setting]\r\ngridwidth=8\r\nnonsense\r\n"
              "CanvasBlank=5\r\n[HTML]\r\nplay=0\r\n");
}

TEST_F(SettingsTest, values_have_their_forms) {
    settings::EditorBackColor(255);
    settings::flgSWFCompress(false);
    EXPECT_EQ(Text(), "[Setting]\r\nEditorBackColor=&H0000FF\r\nflgSWFCompress=0\r\n");
    EXPECT_EQ(settings::EditorBackColor(), 255);
    Write("[Setting]\r\nflgSWFCompress=7\r\nFPS=\"12.5\"\r\nDefaultFont=\x82\x6C\x82\x72\r\n");
    EXPECT_TRUE(settings::flgSWFCompress());
    EXPECT_EQ(settings::FPS(), u"12.5");
    EXPECT_EQ(settings::DefaultFont(), u"ＭＳ");
}

TEST_F(SettingsTest, the_history_is_one_for_all_only_when_the_text_begins_so) {
    EXPECT_TRUE(settings::UndoRedoType());
    for (const auto& [text, all] :
         {std::pair{"All", true}, {"Alltogether", true}, {"Sprite", false}, {"x", false}}) {
        Write(std::string("[Setting]\r\nUndoRedoType=") + text + "\r\n");
        EXPECT_EQ(settings::UndoRedoType(), all) << text;
    }
    settings::UndoRedoType(false);
    EXPECT_EQ(Text(), "[Setting]\r\nUndoRedoType=Sprite\r\n");
}

TEST_F(SettingsTest, recent_files_end_at_the_first_empty_entry) {
    Write("[RecentFile]\r\n0=/a.kvf\r\n1=/b.kvf\r\n3=/d.kvf\r\n");
    EXPECT_EQ(settings::RecentFile(), (std::vector<String>{u"/a.kvf", u"/b.kvf"}));
    const std::vector<String> many(20, u"/x.kvf");
    settings::RecentFile(many);
    EXPECT_EQ(settings::RecentFile().size(), 16u);
}

TEST_F(SettingsTest, damaged_files_give_defaults) {
    Write(std::string("[Setting\0=\xFF\xFE[[]]==\r=\n[", 20));
    EXPECT_EQ(settings::GridWidth(), 10);
    Write(std::string(100000, '['));
    EXPECT_EQ(settings::GridWidth(), 10);
}

TEST_F(SettingsTest, an_override_counts_for_this_run_and_writes_nothing) {
    EXPECT_TRUE(settings::SettingsOverride(u"MemoriScale=9"));
    EXPECT_TRUE(settings::SettingsOverride(u"HTML.scale=noscale"));
    EXPECT_EQ(settings::MemoriScale(), 9);
    EXPECT_EQ(settings::HTML_scale(), u"noscale");
    EXPECT_FALSE(fs::exists(ini));
    for (const StringView text : {u"nonsense=1", u"MemoriScale", u"", u"=1", u"Docking=1"})
        EXPECT_FALSE(settings::SettingsOverride(text)) << ToNarrow(text);
}

}  // namespace
}  // namespace tamber
