#include <gtest/gtest.h>

#include <map>
#include <set>

#include "platform/RecordingUserInterface.h"
#include "platform/TextEncoding.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/text.h"
#include "script/ScriptCheck.h"
#include "script/editor/PlayerHints.h"
#include "script/editor/ScriptCandidates.h"
#include "script/editor/ScriptColors.h"
#include "script/editor/Snippets.h"

namespace tamber {
namespace {

const String DataFolder = FromNarrow(TAMBER_SOURCE_DIR "/data");

String TextOf(const String& path) {
    Bytes bytes;
    EXPECT_TRUE(ReadFileBytes(path, bytes)) << ToNarrow(path);
    return DecodeText(bytes);
}

/// A keyword in a script takes the spelling of its set: none may change a name of the player.
TEST(KeywordData, corrects_no_name_of_the_player) {
    KeywordSets sets;
    sets.Load(DataFolder + u"/keyword");
    std::map<String, String> spellings;
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_FALSE(sets.Set(i).Name.empty());
        EXPECT_GT(sets.Set(i).Words.size(), 20u);
        for (const String& word : sets.Set(i).Words)
            EXPECT_TRUE(spellings.emplace(FoldCase(word), word).second) << ToNarrow(word);
    }
    EXPECT_TRUE(sets.Set(4).Words.empty());
    const auto check = [&](const String& name) {
        const auto same = spellings.find(FoldCase(name));
        EXPECT_EQ(same != spellings.end() ? same->second : name, name);
    };
    for (const auto& [key, member] : PlayerHints::Globals()) check(member.Name);
    for (const String& name : PlayerHints::Classes()) {
        for (const auto& [key, member] : PlayerHints::MembersOf(name)) check(member.Name);
        for (const auto& [key, member] : PlayerHints::StaticsOf(name)) check(member.Name);
    }
    ScriptColors colors;
    colors.Load(DataFolder + u"/keyword");
    for (std::size_t i = 1; i <= ScriptColorCount; ++i) EXPECT_TRUE(colors.Color(i));
}

TEST(SnippetData, is_read_without_a_word) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    Snippets snippets;
    snippets.Load(DataFolder + u"/snippet");
    EXPECT_GT(snippets.All().size(), 20u);
    ASSERT_NE(snippets.Find(u"for"), nullptr);
    EXPECT_NE(snippets.Find(u"for")->find(u"\r\n\t"), String::npos);
    EXPECT_TRUE(interface.Messages.empty());
}

TEST(ScriptData, compiles) {
    for (const StringView folder : {u"/class/", u"/include/"}) {
        const std::vector<String> files = ListFiles(DataFolder + String(folder), u"*.as");
        EXPECT_GE(files.size(), 3u);
        for (const String& file : files) {
            const String script = TextOf(DataFolder + String(folder) + file);
            for (const Long version : {6, 7, 8}) {
                const ScriptCheckResult result =
                    CheckScript(script, ScriptKind::Frame, version, {});
                EXPECT_TRUE(result.Ok) << ToNarrow(file) << ": " << ToNarrow(result.Message);
            }
        }
    }
    const ScriptClass pool = ScriptClass::Read(TextOf(DataFolder + u"/class/Pool.as"));
    std::set<String> members;
    for (const Candidate& member : pool.Members) members.insert(member.Text);
    EXPECT_TRUE(members.contains(u"giveBack"));
    EXPECT_TRUE(members.contains(u"most"));
}

}  // namespace
}  // namespace tamber
