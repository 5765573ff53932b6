#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "script/ScriptCheck.h"
#include "script/ScriptPreprocessor.h"

namespace tamber {
namespace {

/// A project's folder with files to include.
class Includes : public testing::Test {
protected:
    void SetUp() override {
        std::string folder = (std::filesystem::temp_directory_path() / "includesXXXXXX").string();
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        folder_ = FromNarrow(folder);
        program_ = ProgramFolder();
        ProgramFolder(folder_ + u"/program");
        for (const StringView sub : {u"/program/include", u"/sub"})
            MakeFolders(folder_ + String(sub));
        preprocessor_.ProjectFolder = folder_;
    }
    void TearDown() override {
        ProgramFolder(program_);
        std::filesystem::remove_all(ToNarrow(folder_));
    }

    void Write(StringView name, ByteView bytes) {
        ASSERT_TRUE(WriteFileBytes(bytes, folder_ + u"/" + String(name)));
    }
    void Write(StringView name, StringView text) { Write(name, EncodeAnsi(text)); }

    /// The expanded script, or the result where there is one.
    String Expand(String script) {
        const Long result = preprocessor_.PreprocessScript(script, {});
        return result == 0 ? script : u"failed at " + FromNarrow(std::to_string(result));
    }

    String folder_;
    String program_;
    ScriptPreprocessor preprocessor_;
};

TEST_F(Includes, stand_in_place_of_their_directives) {
    Write(u"a.as", u"A();");
    Write(u"empty.as", u"");
    struct {
        StringView Script;
        StringView Expected;
    } cases[] = {
        {u"#include \"a.as\"", u"A();"},
        {u"x; #FILE <none> 'a.as' y;", u"x; A(); y;"},
        {u"f(#include\"a.as\");", u"f(A(););"},
        {u"1;#include \"empty.as\"2;", u"1;2;"},
        {u"#include /* which */ \"a.as\r\n", u"failed at -1"},
        {u"// #include \"a.as\"", u"// #include \"a.as\""},
        {u"/* \r\n #include \"a.as\" */", u"/* \r\n #include \"a.as\" */"},
        {u"x=\"\\\"#include 'a.as'\";", u"x=\"\\\"#include 'a.as'\";"},
        {u"#include a.as", u"#include a.as"},
        {u"#include \"\"", u"#include \"\""},
        {u"#includes \"a.as\"", u"#includes \"a.as\""},
        {u"a/b; #include \"a.as\"", u"a/b; A();"},
        {u"#include <\r\n#include \"a.as\"", u"#include <\r\nA();"},
        {u"x>y; #include<none>\"a.as\"#FILE <sjis> 'a.as'", u"x>y; A();A();"},
    };
    for (const auto& item : cases)
        EXPECT_EQ(Expand(String(item.Script)), item.Expected) << ToNarrow(item.Script);
}

TEST_F(Includes, are_looked_for_beside_the_file_then_in_the_project_then_in_the_program) {
    Write(u"sub/outer.as", u"[#include \"inner.as\"]");
    Write(u"sub/inner.as", u"sub");
    Write(u"inner.as", u"project");
    Write(u"program/include/inner.as", u"include");
    Write(u"program/include/only.as", u"only");
    Write(u"program/beside.as", u"beside");
    EXPECT_EQ(Expand(u"#include \"sub/outer.as\""), u"[sub]");
    EXPECT_EQ(Expand(u"#include \"sub\\outer.as\""), u"[sub]");
    EXPECT_EQ(Expand(u"#include \"inner.as\""), u"project");
    EXPECT_EQ(Expand(u"#include \"only.as\" #include \"beside.as\""), u"only beside");
    EXPECT_EQ(Expand(u"#include \"" + folder_ + u"/sub/inner.as\""), u"sub");
    EXPECT_EQ(Expand(u"#include \"/sub/inner.as\""), u"sub");
}

TEST_F(Includes, are_read_in_the_encoding_that_is_told_or_detected) {
    // "あ" and "ソ", whose second byte in code page 932 is a backslash, in each encoding.
    const String text = u"\u3042\u30BD\\";
    struct {
        StringView Word;
        Bytes File;
    } cases[] = {
        {u"sjis", {0x82, 0xA0, 0x83, 0x5C, 0x5C}},
        {u"EUC", {0xA4, 0xA2, 0xA5, 0xBD, 0x5C}},
        {u" jis ", {0x1B, '$', 'B', 0x24, 0x22, 0x25, 0x3D, 0x1B, '(', 'B', 0x5C}},
        {u"jis", {0x1B, '$', 'B', 0x24, 0x22, 0x25, 0x3D, 0x1B, '(', 'J', 0x5C}},
        {u"utf8", {0xEF, 0xBB, 0xBF, 0xE3, 0x81, 0x82, 0xE3, 0x82, 0xBD, 0x5C}},
        {u"utf8", {0xE3, 0x81, 0x82, 0xE3, 0x82, 0xBD, 0x5C}},
        {u"unicode", {0xFF, 0xFE, 0x42, 0x30, 0xBD, 0x30, 0x5C, 0x00}},
        {u"unicode", {0xFE, 0xFF, 0x30, 0x42, 0x30, 0xBD, 0x00, 0x5C}},
    };
    for (const auto& item : cases) {
        Write(u"x.as", ByteView(item.File));
        EXPECT_EQ(Expand(u"#include <" + String(item.Word) + u"> \"x.as\""), text);
        EXPECT_EQ(Expand(u"#include \"x.as\""), text) << ToNarrow(item.Word);
    }
    // Characters beyond JIS X 0208, and those that other tables of it have elsewhere in Unicode.
    Write(u"x.as", ByteView(Bytes{0x1B, '$', '@', 0x21, 0x41, 0x21, 0x5D, 0x2D, 0x21, 0x79, 0x21,
                                  0x1B, '(', 'I', 0x31, 0x1B, '(', 'J', '~'}));
    EXPECT_EQ(Expand(u"#include <jis> \"x.as\""), u"\uFF5E\uFF0D\u2460\u7E8A\uFF71~");
    Write(u"x.as", ByteView(Bytes{0xA1, 0xC1, 0xA1, 0xDD}));
    EXPECT_EQ(Expand(u"#include <euc> \"x.as\""), u"\uFF5E\uFF0D");
    Write(u"x.as", ByteView(Bytes{0x42, 0x30}));
    EXPECT_EQ(Expand(u"#include <unicode> \"x.as\""), u"\u3042");
    Write(u"x.as", ByteView(Bytes{'+', 'M', 'E', 'I', '-', '!'}));
    EXPECT_EQ(Expand(u"#include <utf7> \"x.as\""), u"\u3042!");
    Write(u"x.as", u"a\nb");
    EXPECT_EQ(Expand(u"#include \"x.as\""), u"a\r\nb");
}

TEST_F(Includes, that_fail_leave_the_script_and_tell_the_line_of_the_outermost) {
    Write(u"self.as", u"\r\n\r\n#include \"SELF.AS\"");
    Write(u"SELF.AS", u"#include 'self.as'");
    Write(u"lost.as", u"\r\n#include \"none/x.as\"");
    String script = u"a;\r\n/* \n */\rb;#include \"self.as\"";
    EXPECT_EQ(preprocessor_.PreprocessScript(script, {}), 4);
    EXPECT_EQ(script, u"a;\r\n/* \n */\rb;#include \"self.as\"");
    const String self = folder_ + u"/self.as";
    EXPECT_EQ(preprocessor_.Chain(), self + u"," + folder_ + u"/SELF.AS");
    script = u"\n#include \"lost.as\"";
    EXPECT_EQ(preprocessor_.PreprocessScript(script, {}), -2);
    EXPECT_EQ(preprocessor_.Chain(), folder_ + u"/program/none/x.as");
    // One that names itself ever longer is not there.
    const String longer = u"#include \"nul.as" + String(1, u'\0') + u"/b\"";
    Write(u"nul.as", longer);
    EXPECT_EQ(Expand(longer), u"failed at -1");
}

TEST_F(Includes, in_great_numbers_end) {
    for (int i = 0; i < 30; ++i) {
        const String next = u"#include \"" + FromNarrow(std::to_string(i + 1)) + u".as\" ";
        Write(FromNarrow(std::to_string(i)) + u".as", next + next);
    }
    Write(u"30.as", u"x");
    EXPECT_EQ(Expand(u"#include \"0.as\""), u"failed at 1");
    const ScriptCheckResult result =
        CheckScript(u"\r\n#include \"0.as\"", ScriptKind::Button, 6, folder_);
    EXPECT_TRUE(
        result.Message.starts_with(u"インクルードが深すぎるか、大きすぎます。（行番号：2）"))
        << ToNarrow(result.Message);
}

TEST_F(Includes, are_told_by_the_check_with_their_line) {
    Write(u"bad.as", u"x = ;");
    Write(u"good.as", u"x = 1;\r\ny = 2;");
    Write(u"self.as", u"#include \"self.as\"");
    const auto check = [this](StringView script, ScriptKind kind) {
        return CheckScript(script, kind, 6, folder_);
    };
    EXPECT_EQ(check(u"#include \"good.as\"\r\nstop();", ScriptKind::Frame).Message,
              u"構文エラーはありません。");
    EXPECT_EQ(
        check(u"\r\n#include \"none.as\"", ScriptKind::Frame).Message,
        u"ファイルが見つかりません。\r\n（行番号：2）\r\n\r\n[" + folder_ + u"/program/none.as]");
    EXPECT_EQ(check(u"#include \"bad.as\"", ScriptKind::Button).Message,
              u"onClipEvent または on が必要です。（行番号：1）");
    EXPECT_EQ(check(u";\r\n#include \"bad.as\"", ScriptKind::Frame).Message,
              u"文法に誤りがあります。（行番号：2）");
    Write(u"init.as", u"#initclip 1\r\nx = 1;\r\n#endinitclip\r\ny = 2;");
    Write(u"badinit.as", u"#initclip\r\nx = ;\r\n#endinitclip\r\n");
    EXPECT_TRUE(check(u"#include \"init.as\"\r\nz = 3;", ScriptKind::Frame).Ok);
    EXPECT_EQ(check(u"\r\n#include \"badinit.as\"", ScriptKind::Frame).Line, 2);
    EXPECT_EQ(check(u"#include \"self.as\"", ScriptKind::Frame).Message,
              u"循環参照です。（行番号：1）\r\n\r\n" + folder_ + u"/self.as →\r\n" + folder_ +
                  u"/self.as");
}

TEST_F(Includes, do_not_move_the_lines_of_faults) {
    Write(u"three.as", u"on (press) {\r\n  stop();\r\n}\r\n");
    Write(u"bad.as", u"\r\n\r\non (press) { x = ; }");
    const auto check = [this](StringView script) {
        return CheckScript(script, ScriptKind::Button, 6, folder_);
    };
    const ScriptCheckResult twice = check(
        u"#include \"three.as\"\r\n#include\r\n\"three.as\"\r\non (release) {\r\n y = ;\r\n z = "
        u";\r\n}");
    EXPECT_EQ(twice.Line, 5) << ToNarrow(twice.Message);
    EXPECT_NE(twice.Message.find(u"\r\n6行目"), String::npos) << ToNarrow(twice.Message);
    EXPECT_EQ(check(u"#include \"three.as\"\r\n#include \"bad.as\"\r\n").Line, 2);
    EXPECT_EQ(check(u"#include \"three.as\"\r\non (pres) { }").Line, 2);
}

TEST_F(Includes, are_looked_through_where_they_stand_too) {
    Write(u"half.as", u"x = 1");
    Write(u"lines.as", u"a = 1;\r\nb = 2;\r\n");
    const ScriptCheckResult joined = CheckScript(
        u"#include \"lines.as\"\r\n#include \"half.as\" y = 2;", ScriptKind::Frame, 6, folder_);
    EXPECT_FALSE(joined.Ok);
    EXPECT_EQ(joined.Line, 2);
}

TEST(Checks, take_init_blocks_from_the_first_frame_only) {
    const StringView script = u"stop();\r\n#initclip\r\nplay();\r\n#endinitclip\r\n";
    EXPECT_TRUE(CheckScript(script, ScriptKind::Frame, 6, {}).Ok);
    EXPECT_EQ(CheckScript(script, ScriptKind::Frame, 6, {}, false).Line, 2);
}

TEST(Checks, find_a_nul_in_the_text) {
    const ScriptCheckResult result =
        CheckScript(StringView(u"a = 1;\r\nb\0c = 2;", 16), ScriptKind::Frame, 6, {});
    EXPECT_EQ(result.Line, 2);
}

TEST(Checks, tell_the_line_of_a_fault_wherever_it_is) {
    struct {
        ScriptKind Kind;
        StringView Script;
        Long Line;
    } cases[] = {
        {ScriptKind::Frame, u"a = 1;\r\nb = ;", 2},
        // A script included before it does not move the line, nor does a block before it.
        {ScriptKind::Frame, u"#initclip\r\nx = 1;\r\n#endinitclip\r\nb = ;", 4},
        {ScriptKind::Frame, u"a;\r\n#initclip\r\n\r\nx = ;\r\n#endinitclip\r\n", 4},
        {ScriptKind::Frame, u"\r\n#initclip\r\n", 2},
        {ScriptKind::Button, u"\r\non (press) {\r\n  stop();\r\n  b = ;\r\n}", 4},
        {ScriptKind::Clip, u"onClipEvent(load){}\r\non(click){}", 2},
        {ScriptKind::Clip, u"on(press){\r\n\r\n", 2},
    };
    for (const auto& item : cases) {
        const ScriptCheckResult result = CheckScript(item.Script, item.Kind, 6, {});
        EXPECT_FALSE(result.Ok) << ToNarrow(item.Script);
        EXPECT_EQ(result.Line, item.Line) << ToNarrow(item.Script) << ToNarrow(result.Message);
    }
}

TEST(Checks, name_lines_of_the_script_for_all_faults_of_a_block) {
    const StringView script = u"\r\non (press) {\r\n  a = ;\r\n  b = ;\r\n}";
    const ScriptCheckResult result = CheckScript(script, ScriptKind::Button, 6, {});
    EXPECT_EQ(result.Line, 3);
    EXPECT_NE(result.Message.find(u"4行目"), String::npos) << ToNarrow(result.Message);
}

TEST(Checks, take_time_that_grows_with_the_length_only) {
    const auto repeated = [](StringView text) {
        String script;
        while (script.size() < 1 << 20) script += text;
        return script;
    };
    struct {
        StringView Part;
        ScriptKind Kind;
        bool Ok;
    } cases[] = {
        {u"on(keyPress \"a\"){}\r\n", ScriptKind::Button, true},
        {u"on(press){", ScriptKind::Button, false},
        {u"onClipEvent(load){x;}\r\n", ScriptKind::Clip, true},
        {u"#initclip\r\n#endinitclip\r\n", ScriptKind::Frame, true},
        {u"#initclip\r\n", ScriptKind::Frame, false},
        {u"#include", ScriptKind::Frame, false},
        {u"#include<", ScriptKind::Frame, false},
        {u"#include \"\" ", ScriptKind::Frame, false},
        {u"/* ", ScriptKind::Frame, false},
        {u"/* ", ScriptKind::Button, true},
        {u"\"'", ScriptKind::Frame, false},
    };
    for (const auto& item : cases) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(CheckScript(repeated(item.Part), item.Kind, 6, {}).Ok, item.Ok)
            << ToNarrow(item.Part);
        // Anything that grows with the square takes minutes.
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20))
            << ToNarrow(item.Part);
    }
}

}  // namespace
}  // namespace tamber
