#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <set>

#include "app/commands/CommandTable.h"
#include "app/shortcuts/ShortCutKeys.h"
#include "platform/RecordingUserInterface.h"
#include "platform/codepage.h"
#include "platform/files.h"

namespace tamber {
namespace {

const String DataFolder = FromNarrow(TAMBER_SOURCE_DIR "/data/shortcut");

TEST(ShortCutKey, has_the_text_of_a_menu) {
    struct Case {
        ShortCutKey Key;
        StringView Text;
    };
    for (const Case& item : {
             Case{{true, true, true, 'A'}, u"Ctrl+Shift+Alt+A"},
             Case{{false, false, false, 46}, u"Del"},
             Case{{true, false, false, 123}, u"Shift+F12"},
             Case{{false, true, false, 187}, u"Ctrl++"},
             Case{{false, true, false, 107}, u"Ctrl+Num+"},
             Case{{false, false, true, 190}, u"Alt+."},
         }) {
        EXPECT_EQ(item.Key.Text(), item.Text);
        EXPECT_EQ(ShortCutKey::Parse(item.Text), item.Key);
    }
    EXPECT_EQ(ShortCutKey::Parse(u"ctrl+pageup"), (ShortCutKey{false, true, false, 33}));
    EXPECT_EQ(ShortCutKey::Parse(u"Ctrl+"), std::nullopt);
    EXPECT_EQ(ShortCutKey::Parse(u"Ctrl+Nonsense"), std::nullopt);
    EXPECT_EQ((ShortCutKey{true, true, false, 255}).Text(), u"");
}

TEST(ShortCutKeys, by_default_are_those_of_the_command_table) {
    ShortCutKeys keys;
    keys.Load(DataFolder);
    ASSERT_GT(keys.All().size(), 90u);
    std::set<std::pair<String, String>> seen;
    for (const ShortCutKeys::Entry& entry : keys.All()) {
        EXPECT_FALSE(entry.Key.Text().empty()) << ToNarrow(entry.Command);
        EXPECT_TRUE(seen.emplace(entry.Pane, entry.Key.Text()).second) << ToNarrow(entry.Command);
        EXPECT_TRUE(entry.Pane.empty() || !seen.contains({u"", entry.Key.Text()}));
    }
    for (const Command* command : CommandTable())
        for (const CommandEntry& entry : command->Entries) {
            // What is deleted is up to the pane that has the focus.
            if (entry.Key.empty() || entry.Key == u"Del") continue;
            String name(command->Name);
            if (!command->Entries[1].Label.empty()) name += u"_" + String(entry.Argument);
            EXPECT_EQ(keys.KeyOf(name).Text(), entry.Key) << ToNarrow(name);
        }
}

TEST(ShortCutKeys, are_kept_and_given_once) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    const auto place = std::filesystem::temp_directory_path() /
                       ("tamber_keys_" + std::to_string(std::random_device()()));
    std::filesystem::create_directories(place);
    std::filesystem::copy(TAMBER_SOURCE_DIR "/data/shortcut/default", place / "default");
    const String folder = FromNarrow(place.string());
    ShortCutKeys keys;
    keys.Load(folder);
    const ShortCutKey save{false, true, false, 'S'};
    EXPECT_EQ(keys.CommandOf(save, u"canvas"), u"mnuSave");
    EXPECT_EQ(keys.MenuText(u"開く", u"OpenProject"), u"開く\tCtrl+O");
    EXPECT_FALSE(keys.Assign(u"mnuNew", save));
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Text, u"このショートカットは既に使用されています。");
    EXPECT_EQ(keys.KeyOf(u"mnuNew").Text(), u"Ctrl+N");
    // A key of one pane is free in another, and taken for the whole window.
    const ShortCutKey left{false, false, false, 37};
    EXPECT_EQ(keys.CommandOf(left, u"canvas"), u"mnuNudgeLeft");
    EXPECT_EQ(keys.CommandOf(left, u"library"), u"");
    EXPECT_TRUE(keys.Assign(u"mnuNextFrame", left));
    EXPECT_FALSE(keys.Assign(u"mnuNew", left));
    EXPECT_TRUE(keys.Assign(u"mnuSave", {}));
    EXPECT_EQ(keys.MenuText(u"保存", u"mnuSave"), u"保存");
    EXPECT_TRUE(keys.Assign(u"mnuNew", save));
    EXPECT_TRUE(keys.Save(folder));
    ShortCutKeys again;
    again.Load(folder);
    EXPECT_EQ(again.CommandOf(save, {}), u"mnuNew");
    EXPECT_EQ(again.KeyOf(u"mnuSave"), ShortCutKey());
    EXPECT_EQ(again.CommandOf(left, u"timeline"), u"mnuNextFrame");
    again.Reset(folder);
    EXPECT_EQ(again.CommandOf(save, {}), u"mnuSave");

    // Keys that were given twice by hand, and commands that there are none of.
    const Bytes text = EncodeAnsi(
        u"garbage\r\n[mnuOpen\r\n[nothing]\r\nVKey=65\r\n[mnuSave]\r\nCtrl=1\r\nVKey=70\r\n"
        u"[mnuNew]\r\nCtrl=1\r\nVKey=70\r\n[OpenProject]\r\nVKey=99999999999\r\n[mnuHelp]\r\n");
    EXPECT_TRUE(WriteFileBytes(text, folder + u"/shortCutKey.ini"));
    again.Load(folder);
    EXPECT_EQ(again.KeyOf(u"mnuSave").Text(), u"Ctrl+F");
    EXPECT_TRUE(again.KeyOf(u"mnuNew").IsNone());
    EXPECT_TRUE(again.KeyOf(u"OpenProject").IsNone());
    EXPECT_TRUE(again.KeyOf(u"mnuHelp").IsNone());
    EXPECT_TRUE(again.KeyOf(u"mnuFind").IsNone());
    EXPECT_EQ(again.KeyOf(u"mnuUndoRedo_0").Text(), u"Ctrl+Z");
    std::filesystem::remove_all(place);
}

}  // namespace
}  // namespace tamber
