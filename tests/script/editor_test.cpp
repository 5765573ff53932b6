#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "platform/RecordingUserInterface.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "script/editor/ControlMarks.h"
#include "script/editor/LineCommands.h"
#include "script/editor/PlayerHints.h"
#include "script/editor/ScriptColors.h"
#include "script/editor/ScriptMind.h"
#include "script/editor/Snippets.h"
#include "script/editor/TextSearch.h"
#include "script/editor/clsTextHistoryMng.h"

namespace tamber {
namespace {

/// A folder that goes away with the test.
class EditorFolder {
public:
    EditorFolder() { std::filesystem::create_directories(path_ / "default"); }
    ~EditorFolder() { std::filesystem::remove_all(path_); }

    String Path() const { return FromNarrow(path_.string()); }
    void Write(const char* name, StringView text) const {
        const Bytes bytes = EncodeAnsi(text);
        EXPECT_TRUE(WriteFileBytes(bytes, FromNarrow((path_ / name).string())));
    }

private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() /
                                  ("tamber_editor_" + std::to_string(std::random_device()()));
};

KeywordSet SetOf(std::vector<String> words) {
    KeywordSet set;
    set.Words = std::move(words);
    return set;
}

/// The coloured texts of a line, each with its colour in front.
std::vector<String> Colored(const ScriptText& text, ScriptColoring& coloring, std::size_t line) {
    std::vector<String> found;
    const String whole = text.Line(line);
    for (const ScriptSpan& span : coloring.SpansOf(line)) {
        String one(1, static_cast<char16_t>(u'0' + span.Color));
        one += whole.substr(span.Start, span.Length);
        if (!span.Spelling.empty()) one += u">" + String(span.Spelling);
        found.push_back(one);
    }
    return found;
}

TEST(ScriptColoring, finds_what_is_coloured) {
    KeywordSets keywords;
    keywords.Set(0, SetOf({u"gotoAndPlay", u"on"}));
    keywords.Set(4, SetOf({u"ON", u"関数"}));
    struct Case {
        StringView Line;
        std::vector<String> Wanted;
    };
    for (const Case& item : std::vector<Case>{
             {u"GOTOANDPLAY(0x1F, 12);", {u"4GOTOANDPLAY>gotoAndPlay", u"20x1F", u"212"}},
             {u"a = #FF + 0xZZ + #GG + x1;", {u"2#FF"}},
             {u"on(press) // on 1", {u"4on>on", u"1// on 1"}},
             {u"s = \"a\\\"on\" + 'b'; t", {u"3\"a\\\"on\"", u"3'b'"}},
             {u"a /* on */ on", {u"1/* on */", u"4on>on"}},
             {u"a /* on", {}},
             {u"s = \"open on", {u"3\"open on"}},
             {u"関数(3.5)", {u"8関数>関数", u"23", u"25"}},
             {u"a//", {u"1//"}},
             {u"http://x", {u"1//x"}},
             {u"", {}},
         }) {
        ScriptText text;
        text.Set(item.Line);
        ScriptColoring coloring(text, keywords);
        EXPECT_EQ(Colored(text, coloring, 0), item.Wanted) << ToNarrow(item.Line);
    }
}

TEST(ScriptColoring, lets_comments_and_strings_go_on_over_lines) {
    KeywordSets keywords;
    ScriptText text;
    text.Set(u"/* a\r\nb */ 1\r\n\"c\r\nd\" /*\r\n2");
    ScriptColoring coloring(text, keywords);
    EXPECT_EQ(Colored(text, coloring, 1), (std::vector<String>{u"1b */", u"21"}));
    EXPECT_EQ(Colored(text, coloring, 3), (std::vector<String>{u"3d\""}));
    // Within a comment that nothing closes no word is one.
    EXPECT_TRUE(Colored(text, coloring, 4).empty());
}

/// A change leaves the colours of the whole text as if it had been read anew, whatever of it was
/// looked at before.
TEST(ScriptMind, after_any_change_is_what_it_were_if_the_text_were_new) {
    KeywordSets keywords;
    keywords.Set(1, SetOf({u"var", u"a"}));
    const ProjectNames project;
    const StringView parts[] = {u"/*", u"*/", u"//",  u"\"", u"'", u"\\",          u"\r\n", u"\n",
                                u"\r", u"a ", u"12;", u" ",  u"",  u"var b:Sound", u"f(x)", u"c.d"};
    std::mt19937 random(3);
    const auto upTo = [&](std::size_t limit) { return random() % limit; };
    ScriptMind mind(keywords, project);
    String plain;
    for (int step = 0; step < 1500; ++step) {
        if (plain.size() > 400) {
            plain.clear();
            mind.Set(plain);
        }
        TextEdit edit;
        edit.Start = upTo(plain.size() + 1);
        edit.Removed = std::min<std::size_t>(upTo(3) == 0 ? upTo(9) : 0, plain.size() - edit.Start);
        edit.Inserted = parts[upTo(std::size(parts))];
        plain.replace(edit.Start, edit.Removed, edit.Inserted);
        mind.Apply(edit);
        ASSERT_EQ(mind.Text().Whole(), plain) << step;
        ScriptText fresh;
        fresh.Set(plain);
        ASSERT_EQ(mind.Text().LineCount(), fresh.LineCount()) << step;
        if (upTo(3) != 0) continue;
        ScriptColoring anew(fresh, keywords);
        const std::size_t line = upTo(fresh.LineCount());
        ASSERT_EQ(mind.Coloring().SpansOf(line), anew.SpansOf(line)) << step;
    }
    mind.Apply({0, plain.size(), {}});
    mind.Names().ForEach({}, [](const String& name, const ScriptNames::Entry&) {
        ADD_FAILURE() << "left: " << ToNarrow(name);
    });
}

TEST(ScriptText, cuts_long_lines_where_no_token_is_cut) {
    String line;
    for (int i = 0; i < 5000; ++i)
        line += u"word" + String(1, static_cast<char16_t>(u'a' + i % 26)) + u";";
    ScriptText text;
    text.Set(line + u"\nnext");
    EXPECT_GT(text.Pieces().size(), 4u);
    for (std::size_t i = 0; i + 2 < text.Pieces().size(); ++i)
        EXPECT_EQ(text.Pieces()[i].Text.back(), u';');
    EXPECT_EQ(text.LineCount(), 2u);
    EXPECT_EQ(text.LineAt(line.size()), 0u);
    EXPECT_EQ(text.LineAt(line.size() + 1), 1u);
    EXPECT_EQ(text.EndOfLine(0), line.size());
    // What parted two pieces goes: the word around it is one.
    const std::size_t seam = text.OffsetOfPiece(1);
    text.Apply({seam - 1, 1, {}});
    line.erase(seam - 1, 1);
    for (std::size_t i = 0; i + 2 < text.Pieces().size(); ++i)
        EXPECT_EQ(text.Pieces()[i].Text.back(), u';');
    EXPECT_EQ(text.Line(0), line);
    EXPECT_EQ(text.Line(1), u"next");
    text.Apply({line.size() + 100, 5, u"!"});
    EXPECT_EQ(text.Line(1), u"next!");
}

TEST(KeywordFiles, fall_back_and_keep_what_can_be_read) {
    const EditorFolder folder;
    folder.Write("default/keyword1.txt", u"既定\r\nplay\r\n");
    folder.Write("default/keyword2.txt", u"第二\r\nstop\r\nStop\r\n\r\n  関数 \r\n");
    folder.Write("keyword1.txt", u"自分\nPlay\nthis");
    KeywordSets sets;
    sets.Load(folder.Path());
    EXPECT_EQ(sets.Set(0).Name, u"自分");
    EXPECT_EQ(sets.Set(0).Words, (std::vector<String>{u"Play", u"this"}));
    EXPECT_EQ(sets.Set(1).Words, (std::vector<String>{u"stop", u"関数"}));
    EXPECT_EQ(sets.Set(2).Name, u"");
    EXPECT_EQ(sets.Find(u"PLAY")->Spelling, u"Play");
    EXPECT_FALSE(sets.Find(u"plays"));
    KeywordSet changed = sets.Set(1);
    EXPECT_FALSE(changed.Add(u"STOP"));
    EXPECT_TRUE(changed.Add(u"onLoad"));
    EXPECT_TRUE(changed.Remove(u"stop"));
    sets.Set(1, changed);
    EXPECT_FALSE(sets.Find(u"stop"));
    EXPECT_TRUE(sets.Save(folder.Path()));
    KeywordSets again;
    again.Load(folder.Path());
    EXPECT_EQ(again.Set(1).Name, u"第二");
    EXPECT_EQ(again.Set(1).Words, (std::vector<String>{u"関数", u"onLoad"}));
}

TEST(ScriptColors, are_read_from_either_form) {
    const ScriptColors colors =
        ScriptColors::Parse(u"#102030\r\n&H332211\n255\r\n\r\nred\n#1\n#zzzzzz\n0\n#FFFFFF\n");
    EXPECT_EQ(colors.Color(1), 0x302010);
    EXPECT_EQ(colors.Color(2), 0x332211);
    EXPECT_EQ(colors.Color(3), 255);
    EXPECT_EQ(colors.Color(4), std::nullopt);
    EXPECT_EQ(colors.Color(5), std::nullopt);
    EXPECT_EQ(colors.Color(6), 1);
    EXPECT_EQ(colors.Color(7), std::nullopt);
    EXPECT_EQ(colors.Color(8), 0);
    EXPECT_EQ(colors.Color(9), std::nullopt);
    EXPECT_EQ(ScriptColors::Parse(u"#102030\r\n#0000FF").Text(), u"#102030\r\n#0000FF\r\n");
}

TEST(Snippets, are_kept_by_short_cut_and_take_the_indent) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    const EditorFolder folder;
    Snippets snippets;
    snippets.Load(folder.Path());
    EXPECT_TRUE(snippets.All().empty());
    folder.Write("default/snippet.csv",
                 u"SNP\r\nfor,\"for(i=0;;){\r\n\t\r\n}\r\n\"\r\nif,if(){}\r\n,\r\nx,lost\r\n");
    snippets.Load(folder.Path());
    ASSERT_EQ(snippets.All().size(), 2u);
    EXPECT_EQ(Snippets::Indented(*snippets.Find(u"FOR"), u"\t　"),
              u"for(i=0;;){\r\n\t　\t\r\n\t　}");
    EXPECT_EQ(Snippets::IndentOf(u" \t　x "), u" \t　");
    EXPECT_FALSE(snippets.Set(u"If", u"new"));
    ASSERT_EQ(interface.Questions.size(), 1u);
    EXPECT_EQ(interface.Questions[0].Title, u"ショートカットの重複");
    EXPECT_TRUE(interface.Questions[0].Text.ends_with(u"上書きしますか？"));
    interface.Answers = {Answer::Yes};
    EXPECT_TRUE(snippets.Set(u"if", u"a,\"b\""));
    EXPECT_TRUE(snippets.Save(folder.Path()));
    Snippets again;
    again.Load(folder.Path());
    EXPECT_EQ(*again.Find(u"if"), u"a,\"b\"");
    EXPECT_EQ(again.All().size(), 2u);

    folder.Write("snippet.csv", u"SNAP\r\nfor,x\r\n");
    again.Load(folder.Path());
    EXPECT_TRUE(again.All().empty());
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Title, u"不正なファイル");
    EXPECT_EQ(interface.Messages[0].Text, u"スニペットファイル読み込みエラー");
}

class HistoryControl : public TextControl {
public:
    clsTextHistory State;
    clsTextHistoryMng* Manager = nullptr;

    clsTextHistory Capture() const override { return State; }
    void Restore(const clsTextHistory& state) override {
        State = state;
        // A control tells its change, whoever made it.
        Manager->Change(*this);
    }
};

TEST(TextHistory, goes_back_and_forth) {
    HistoryControl control;
    clsTextHistoryMng history;
    control.Manager = &history;
    bool canUndo = false;
    bool canRedo = false;
    history.OnUndo = [&](bool can) { canUndo = can; };
    history.OnRedo = [&](bool can) { canRedo = can; };
    history.Init(control);
    EXPECT_FALSE(history.Undo(control));
    const auto type = [&](StringView text, Long caret) {
        control.State = {String(text), caret, 0, 1, caret};
        history.Change(control);
    };
    type(u"abc", 3);
    type(u"aXbc", 2);
    EXPECT_TRUE(canUndo);
    EXPECT_TRUE(history.Undo(control));
    EXPECT_EQ(control.State.Text, u"abc");
    EXPECT_EQ(control.State.ScrollY, 3);
    EXPECT_TRUE(history.Undo(control));
    EXPECT_EQ(control.State.Text, u"");
    EXPECT_FALSE(canUndo);
    EXPECT_TRUE(canRedo);
    EXPECT_FALSE(history.Undo(control));
    EXPECT_TRUE(history.Redo(control));
    EXPECT_TRUE(history.Redo(control));
    EXPECT_EQ(control.State.Text, u"aXbc");
    EXPECT_FALSE(history.Redo(control));
    history.Undo(control);
    type(u"abcd", 4);
    EXPECT_FALSE(canRedo);
    history.blCangeDisable = true;
    type(u"unseen", 0);
    history.blCangeDisable = false;
    history.Undo(control);
    EXPECT_EQ(control.State.Text, u"abc");
    history.MaxHistory(1);
    EXPECT_FALSE(canUndo);
    type(u"more", 0);
    EXPECT_FALSE(history.Undo(control));
}

TEST(LineCommands, work_on_whole_lines) {
    struct Case {
        StringView Text;
        std::size_t Start, Length;
        bool Insert;
        StringView Unit, Wanted;
    };
    for (const Case& item : std::vector<Case>{
             {u"a\r\n\r\nb\r\nc", 0, 6, true, u"\t", u"\ta\r\n\r\n\tb\r\nc"},
             {u"a\r\nb\r\nc", 1, 2, true, u"//", u"//a\r\nb\r\nc"},
             {u"a\nb", 2, 0, true, u"    ", u"a\n    b"},
             {u"\ta\r\n\r\n\tb", 1, 6, false, u"\t", u"a\r\n\r\nb"},
             {u"\ta\r\nb", 0, 5, false, u"\t", u"\ta\r\nb"},
             {u"//a\r\n//b", 0, 8, false, u"//", u"a\r\nb"},
         }) {
        ScriptText text;
        text.Set(item.Text);
        const LineEdit edit = item.Insert ? InsertUnit(text, item.Start, item.Length, item.Unit)
                                          : RemoveUnit(text, item.Start, item.Length, item.Unit);
        text.Apply(edit.Edit);
        EXPECT_EQ(text.Whole(), item.Wanted) << ToNarrow(item.Text);
    }
    EXPECT_EQ(TabUnit(3, true), u"   ");
    EXPECT_EQ(TabUnit(3, false), u"\t");
    EXPECT_EQ(ControlMarksOf(u"\ta　", true),
              (std::vector<ControlMark>{{0, u'^', false}, {2, u'^', false}, {3, u'↓', true}}));
}

TEST(TextSearch, steps_either_way) {
    const StringView text = u"Ab ab aB";
    const TextSearch search(u"aB");
    EXPECT_EQ(search.Next(text, 0), 0u);
    EXPECT_EQ(search.Next(text, 1), 3u);
    EXPECT_EQ(search.Next(text, 7), std::nullopt);
    EXPECT_EQ(search.Previous(text, 8), 6u);
    EXPECT_EQ(search.Previous(text, 7), 3u);
    EXPECT_EQ(search.Previous(text, 1), std::nullopt);
    EXPECT_EQ(TextSearch(u"aB", true).Next(text, 0), 6u);
    EXPECT_EQ(TextSearch(u"").Next(text, 0), std::nullopt);
}

TEST(IncludeFirst, is_the_first_word_alone) {
    EXPECT_TRUE(blIncludeFirst(u" // a\r\n#INCLUDE \"a.as\""));
    EXPECT_TRUE(blIncludeFirst(u"/* */#file 'x'"));
    EXPECT_FALSE(blIncludeFirst(u"a;\r\n#include \"a.as\""));
    EXPECT_FALSE(blIncludeFirst(u"#includes"));
    EXPECT_FALSE(blIncludeFirst(u""));
}

class CandidatesTest : public ::testing::Test {
protected:
    CandidatesTest() {
        keywords_.Set(0, SetOf({u"gotoAndPlay", u"while"}));
        project_.Instances = {{u"car", Candidate::KindOf::Instance, u"MovieClip"},
                              {u"score", Candidate::KindOf::Instance, u"TextField"}};
        project_.Labels = {{u"crash", Candidate::KindOf::Label}};
        project_.Classes[u"game.Ball"] = ScriptClass::Read(
            u"var speed:Number;\r\nfunction bounce(dx:Number, dy) {\r\n local = dx;\r\n}\r\n");
        project_.Classes[u"game.Ball"].Extends = u"MovieClip";
    }
    /// The candidates where "|" stands in the script.
    CandidateList At(StringView script) { return mind_.Candidates().At(Take(script)); }
    std::optional<CallHint> HintAt(StringView script) {
        return mind_.Candidates().HintAt(Take(script));
    }
    static bool Has(const CandidateList& list, StringView text) {
        return std::any_of(list.All().begin(), list.All().end(),
                           [&](const Candidate& one) { return one.Text == text; });
    }

private:
    std::size_t Take(StringView script) {
        const std::size_t caret = script.find(u'|');
        mind_.Set(String(script.substr(0, caret)) + String(script.substr(caret + 1)));
        return caret;
    }

    KeywordSets keywords_;
    ProjectNames project_;
    ScriptMind mind_{keywords_, project_};
};

TEST_F(CandidatesTest, know_what_a_dot_follows) {
    struct Case {
        StringView Script;
        StringView Has, HasNot;
    };
    for (const Case& item : {
             Case{u"ball_mc.|", u"gotoAndPlay", u"htmlText"},
             Case{u"name_txt.|", u"htmlText", u"gotoAndPlay"},
             Case{u"var s:Sound = f();\r\ns.|", u"attachSound", u"gotoAndPlay"},
             Case{u"s = new Sound();\r\nx();\r\ns.st|", u"start", u"attachSound"},
             Case{u"_root.|", u"car", u"attachSound"},
             Case{u"_root.score.|", u"text", u"car"},
             Case{u"Math.|", u"floor", u"gotoAndPlay"},
             Case{u"flash.geom.|", u"Point", u"BitmapData"},
             Case{u"var p:flash.geom.Point;p.|", u"normalize", u"tx"},
             Case{u"var b:game.Ball; b.|", u"bounce", u"local"},
             Case{u"var b:game.Ball; b.|", u"_xscale", u"text"},
             Case{u"x.firstChild.attributes; n_xml.firstChild.|", u"nodeName", u"loaded"},
             Case{u"other.zip = 1; thing.|", u"zip", u"while"},
         }) {
        const CandidateList list = At(item.Script);
        EXPECT_TRUE(Has(list, item.Has)) << ToNarrow(item.Script);
        EXPECT_FALSE(Has(list, item.HasNot)) << ToNarrow(item.Script);
    }
}

TEST_F(CandidatesTest, begin_with_what_is_typed) {
    const CandidateList list =
        At(u"var counter = 0; // comment\r\nfunction count(a, b:String) {}\r\n\"country\"; Cou|");
    ASSERT_EQ(list.All().size(), 2u);
    EXPECT_EQ(list.All()[0].Text, u"count");
    EXPECT_EQ(list.All()[0].Detail, u"(a, b:String)");
    EXPECT_EQ(list.All()[1].Text, u"counter");
    EXPECT_EQ(list.Selected(), 0u);
    EXPECT_TRUE(Has(At(u"whi|"), u"while"));
    EXPECT_TRUE(Has(At(u"gotoAndPlay(\"cr|"), u"crash"));
    EXPECT_FALSE(Has(At(u"cr|"), u"crash"));
    EXPECT_TRUE(At(u"zzz|").All().empty());
}

TEST_F(CandidatesTest, the_list_chooses_where_a_text_would_stand) {
    CandidateList list({{u"b"}, {u"A"}, {u"d"}, {u"b"}});
    ASSERT_EQ(list.All().size(), 3u);
    list.SetString(u"B");
    EXPECT_EQ(list.Selected(), 1u);
    list.SetString(u"c");
    EXPECT_EQ(list.Selected(), 2u);
    list.SetString(u"x");
    EXPECT_EQ(list.Selected(), 2u);
    CandidateList none;
    none.SetString(u"x");
    EXPECT_EQ(none.Selected(), std::nullopt);
}

TEST_F(CandidatesTest, hints_tell_the_arguments) {
    struct Case {
        StringView Script;
        StringView Name, Arguments;
        std::size_t Argument;
    };
    for (const Case& item : {
             Case{u"gotoAndPlay(|", u"gotoAndPlay", u"([scene:String], frame:Object)", 0},
             Case{u"a_mc.hitTest(f(1, 2), \"(,\", |)", u"hitTest",
                  u"(x:Number, y:Number, [shapeFlag:Boolean])", 2},
             Case{u"Math.atan2(\r\n  y,|", u"atan2", u"(y:Number, x:Number)", 1},
             Case{u"function f(a, b) {}\r\nf(1,|", u"f", u"(a, b)", 1},
             Case{u"var b:game.Ball; b.bounce(|", u"bounce", u"(dx:Number, dy)", 0},
         }) {
        const auto hint = HintAt(item.Script);
        ASSERT_TRUE(hint) << ToNarrow(item.Script);
        EXPECT_EQ(hint->Name, item.Name);
        EXPECT_EQ(hint->Arguments, item.Arguments);
        EXPECT_EQ(hint->Argument, item.Argument);
    }
    EXPECT_FALSE(HintAt(u"f(1); |"));
    EXPECT_FALSE(HintAt(u"unknown(|"));
    EXPECT_FALSE(HintAt(u"if (a) { |"));
}

TEST(PlayerHints, of_a_class_have_those_of_its_base) {
    const auto& xml = PlayerHints::MembersOf(u"XML");
    EXPECT_EQ(xml.at(u"parsexml").Arguments, u"(value:String)");
    EXPECT_EQ(xml.at(u"firstchild").Type, u"XMLNode");
    EXPECT_TRUE(PlayerHints::MembersOf(u"nothing").empty());
    EXPECT_EQ(PlayerHints::ClassOfSuffix(u"my_xmlnode"), u"XMLNode");
    EXPECT_EQ(PlayerHints::ClassOfSuffix(u"_mc"), u"");
    EXPECT_EQ(PlayerHints::Within(u"flash.external"), (std::vector<String>{u"ExternalInterface"}));
}

}  // namespace
}  // namespace tamber
