#include "app/Main.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertySprite.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/RecordingUserInterface.h"
#include "platform/codepage.h"
#include "platform/paths.h"

namespace tamber {
namespace {

/// A machine on which anything can be missing; remembers what was asked of it, in order.
class FakeEnvironment : public SystemEnvironment {
public:
    bool blOtherRuns = false;
    Long Width = 1024;
    Long Height = 768;
    String Missing;
    std::vector<String> Loaded;
    std::vector<String> Asked;

    bool HandOver(StringView) override { return blOtherRuns; }
    Long ScreenWidth() const override { return Width; }
    Long ScreenHeight() const override { return Height; }
    bool ComponentExists(StringView name) const override { return name != Missing; }
    bool LoadLibrary(StringView name) override {
        Asked.emplace_back(name);
        if (name == Missing) return false;
        Loaded.emplace_back(name);
        return true;
    }
    void FreeLibrary(StringView name) override { std::erase(Loaded, String(name)); }
};

class MainTest : public testing::Test {
protected:
    RecordingUserInterface interface;
    UserInterfaceScope scope{interface};
    FakeEnvironment environment;
};

TEST_F(MainTest, starts_with_one_background_layer_of_one_fixed_key_frame) {
    Application application(environment);
    ASSERT_TRUE(application.Main(u""));
    EXPECT_EQ(environment.Loaded,
              (std::vector<String>{u"aclib.dll", u"zlib.dll", u"imgctl.dll", u"susiectl.dll",
                                   u"VBMP3.dll", u"stools.dll"}));
    const frmMain& controller = *application.Controller();
    EXPECT_TRUE(controller.colSymbol()->Empty());
    ASSERT_EQ(controller.colMainLayer()->Count(), 1);
    EXPECT_EQ(controller.colEditLayer(), controller.colMainLayer());
    const clsLayer& layer = *controller.EditLayer();
    EXPECT_EQ(layer.SymbolData()->eType(), KindBackGround);
    ASSERT_EQ(layer.ObjectCount(), 1);
    EXPECT_TRUE(layer.Object(1)->blFixed);
    EXPECT_EQ(layer.Object(1)->StartFrame(), 1);
    EXPECT_TRUE(controller.blHotKeyEnable());
    EXPECT_TRUE(interface.Messages.empty());
    application.Stop();
    EXPECT_TRUE(environment.Loaded.empty());
    EXPECT_EQ(application.Controller(), nullptr);
}

TEST_F(MainTest, ends_after_the_first_check_that_fails_with_nothing_loaded) {
    const String cannot = u"\r\n起動できません。";
    const struct {
        Long width;
        String missing;
        String text;
        String title;
        std::size_t asked;
    } cases[] = {
        {639, u"Richtx32.ocx", u"本ソフトは640x480以上の解像度を要求します。" + cannot, u"Tamber",
         0},
        {640, u"Richtx32.ocx",
         u"リッチテキストボックスコントロールがインストールされていません。" + cannot, u"Tamber",
         0},
        {640, u"Comdlg32.ocx",
         u"コモンダイアログコントロールがインストールされていません。" + cannot, u"Tamber", 0},
        {640, u"aclib.dll", u"aclib.dll が見つかりません。", u"Dll読込エラー", 1},
        {640, u"susiectl.dll", u"susiectl.dll が見つかりません。", u"Dll読込エラー", 4},
        {640, u"stools.dll", u"stools.dll が見つかりません。", u"Dll読込エラー", 6},
    };
    for (const auto& c : cases) {
        environment = FakeEnvironment();
        environment.Width = c.width;
        environment.Height = 480;
        environment.Missing = c.missing;
        interface.Messages.clear();
        Application application(environment);
        EXPECT_FALSE(application.Main(u""));
        ASSERT_EQ(interface.Messages.size(), 1u);
        EXPECT_EQ(interface.Messages[0].Text, c.text);
        EXPECT_EQ(interface.Messages[0].Title, c.title);
        EXPECT_EQ(environment.Asked.size(), c.asked);
        EXPECT_TRUE(environment.Loaded.empty());
        EXPECT_EQ(application.Controller(), nullptr);
    }
}

TEST_F(MainTest, tidies_the_program_folder_and_lists_its_classes) {
    namespace fs = std::filesystem;
    const fs::path home = fs::path(testing::TempDir()) / "main_test_home";
    fs::create_directories(home / "keyword/default");
    fs::create_directories(home / "class");
    for (const char* name : {"keyword/default/keyword5.txt", "keyword/default/keyword6.txt",
                             "class/Ball.as", "class/Arrow.AS", "class/notes.txt", "_wav12.tmp"})
        std::ofstream(home / name) << "x";
    const String before = ProgramFolder();
    ProgramFolder(FromNarrow(home.string()));
    Application application(environment);
    ASSERT_TRUE(application.Main(u""));
    EXPECT_EQ(application.Controller()->ClassNames(), (std::vector<String>{u"Arrow", u"Ball"}));
    EXPECT_FALSE(fs::exists(home / "keyword/default/keyword5.txt"));
    EXPECT_TRUE(fs::exists(home / "keyword/default/keyword6.txt"));
    EXPECT_TRUE(fs::exists(home / "_wav12.tmp"));
    application.Stop();
    EXPECT_FALSE(fs::exists(home / "_wav12.tmp"));
    ProgramFolder(before);
    fs::remove_all(home);
}

TEST_F(MainTest, caption_and_edit_context_name_what_is_edited) {
    frmMain controller;
    ASSERT_TRUE(controller.mnuPrjProperty(320, 320, 12.5f, 6));
    EXPECT_EQ(controller.Caption(), u"Tamber Ver.0.9.0 [RichEdit版]");
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "caption";
    ASSERT_TRUE(controller.mnuSaveNew(FromNarrow((folder / "海.kvf").string())));
    std::filesystem::remove_all(folder);
    EXPECT_EQ(controller.Caption(), u"Tamber Ver.0.9.0 [RichEdit版] [海.kvf]");
    EXPECT_EQ(controller.CurrentEditContext().Text, u"メイン(SWF6,320*320,12.5)");

    auto sprite = std::make_shared<clsSymbolData>(KindSprite);
    sprite->ID = 7;
    sprite->Property<clsPropertySprite>()->SpriteName = u"波";
    auto klass = std::make_shared<clsSymbolData>(KindClass);
    klass->Property<clsPropertyClass>()->className = u"Ball";
    klass->Property<clsPropertyClass>()->Extends = u"MovieClip";
    controller.colSymbol()->Add(sprite);
    controller.colSymbol()->Add(klass);
    controller.SetLayers(1, 1, 0);
    EXPECT_EQ(controller.CurrentEditContext().Text, u"波 (ID：7)");
    controller.SetLayers(2, 1, 0);
    EXPECT_EQ(controller.CurrentEditContext().Text, u"Ball：MovieClip");
    EXPECT_EQ(controller.CurrentEditContext().BackColor, ColorLong(192, 255, 192));
}

TEST_F(MainTest, a_second_instance_hands_over_and_ends) {
    environment.blOtherRuns = true;
    environment.Width = 1;
    Application application(environment);
    EXPECT_FALSE(application.Main(u"/a.kvf"));
    EXPECT_TRUE(interface.Messages.empty());
}

TEST(ProjectPath, is_the_first_cell_that_looks_like_a_path) {
    EXPECT_EQ(ProjectPathOf(u"-x \"c:\\my dir\\a.kvf\" d:\\b.kvf"), u"c:\\my dir\\a.kvf");
    EXPECT_EQ(ProjectPathOf(u"C:\\A.KVF"), u"C:\\A.KVF");
    EXPECT_EQ(ProjectPathOf(u"/home/a.kvf"), u"/home/a.kvf");
    EXPECT_EQ(ProjectPathOf(u"c: no_such_file.kvf"), u"");
    EXPECT_EQ(ProjectPathOf(u""), u"");
}

TEST_F(MainTest, a_project_that_is_none_leaves_the_default_project) {
    const auto path = std::filesystem::path(testing::TempDir()) / "main_test_no_project.kvf";
    std::ofstream(path) << "no project";
    Application application(environment);
    ASSERT_TRUE(application.Main(FromNarrow("\"" + path.string() + "\"")));
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Title, u"ファイルが不正です");
    EXPECT_EQ(application.Controller()->colMainLayer()->Count(), 1);
    std::filesystem::remove(path);
}

}  // namespace
}  // namespace tamber
