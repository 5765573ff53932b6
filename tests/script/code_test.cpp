#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "script/compiler/ActionCompiler.h"
#include "script/compiler/ActionDisassembler.h"

namespace tamber {
namespace {

struct CodeCase {
    Long Version;
    std::string_view Source;
    /// In hexadecimal.
    std::string_view Code;
};

std::string Hex(const Bytes& bytes) {
    std::string text;
    for (const Byte byte : bytes) {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02X ", static_cast<unsigned>(byte));
        text += digits;
    }
    if (!text.empty()) text.pop_back();
    return text;
}

std::string Compiled(std::string_view source, Long version) {
    const CompiledScript script = ActionCompiler(version).Compile(source);
    return script.IsCompiled() ? Hex(script.Actions) : "not compiled";
}

void Check(std::initializer_list<CodeCase> cases) {
    for (const CodeCase& code : cases)
        EXPECT_EQ(Compiled(code.Source, code.Version), code.Code)
            << "version " << code.Version << ": " << code.Source;
}

TEST(Code, of_version_4_has_texts_for_all_values_and_jumps_for_loops) {
    Check({
        {4, "x = 5;", "96 06 00 00 78 00 00 35 00 1D"},
        {4, "trace(a < 3);", "96 03 00 00 61 00 1C 96 03 00 00 33 00 0F 26"},
        {4, "trace(a > 3);", "96 06 00 00 33 00 00 61 00 1C 0F 26"},
        {4, "if (a) play();", "96 03 00 00 61 00 1C 12 9D 02 00 01 00 06"},
        {4, "while (a) a--;",
         "99 02 00 12 00 96 06 00 00 61 00 00 61 00 1C 96 03 00 00 31 00 0B 1D "
         "96 03 00 00 61 00 1C 9D 02 00 E2 FF"},
        {4, "setProperty(\"c\", _x, 1);", "96 09 00 00 63 00 00 30 00 00 31 00 23"},
        {4, "/c:v = 1;", "96 09 00 00 2F 63 3A 76 00 00 31 00 1D"},
        {4, "a.b.v = 1;", "96 0A 00 00 61 2F 62 3A 76 00 00 31 00 1D"},
    });
}

TEST(Code, of_version_4_names_clips_by_their_paths) {
    const CodeCase cases[] = {
        {4, "removeMovieClip(_root.c);", "removeMovieClip(\"/c\");"},
        {4, "removeMovieClip(_parent.c);", "removeMovieClip(\"../c\");"},
        {4, "startDrag(a.c, true);", "startDrag(\"a/c\", true);"},
        {4, "a.c.startDrag(true);", "startDrag(\"a/c\", true);"},
        {4, "a.removeMovieClip();", "removeMovieClip(\"a\");"},
        {4, "/a/removeMovieClip();", "removeMovieClip(\"/a\");"},
        {4, "_root/a/play(); _parent/b/stop();", "/a/play(); ../b/stop();"},
        {4, "_root.a.duplicateMovieClip(\"b\", 2);", "duplicateMovieClip(\"/a\", \"b\", 2);"},
        {4, "a.loadMovie(\"u\");", "loadMovie(\"u\", \"a\");"},
        {4, "a.loadMovie(\"u\", \"POST\");", "loadMovie(\"u\", \"a\", \"POST\");"},
        {4, "a.unloadMovie();", "unloadMovie(\"a\");"},
        {4, "x = _root:a + _parent/b:c;", "x = /:a + ../b:c;"},
        {4, "loadMovie(\"u\", _root.c);", "loadMovie(\"u\", \"/c\");"},
        {4, "loadVariables(\"u\", /c, \"POST\");", "loadVariables(\"u\", \"/c\", \"POST\");"},
        {4, "unloadMovie(_root.c);", "unloadMovie(\"/c\");"},
        {4, "print(_root, \"bframe\");", "print(\"/\", \"bframe\");"},
        {4, "duplicateMovieClip(a.c, \"d\", 1);", "duplicateMovieClip(\"a/c\", \"d\", 1);"},
    };
    for (const CodeCase& target : cases)
        EXPECT_EQ(Compiled(target.Source, target.Version), Compiled(target.Code, target.Version))
            << target.Source;
    EXPECT_NE(Compiled("getURL(\"u\", a.c);", 4), Compiled("getURL(\"u\", \"a/c\");", 4));
    EXPECT_NE(Compiled("unloadMovie(/a:c);", 4), Compiled("unloadMovie(\"/a:c\");", 4));
}

TEST(Code, of_version_4_has_numbers_as_the_player_prints_them) {
    const CodeCase cases[] = {
        {4, "x = 100000;", "x = \"100000\";"},
        {4, "x = 999999999999999;", "x = \"999999999999999\";"},
        {4, "x = 0.9999999999999999;", "x = \"1\";"},
        {4, "x = 0.1234567890123456;", "x = \"0.123456789012346\";"},
        {4, "x = 0.000012;", "x = \"0.000012\";"},
        {4, "x = 0.0000012;", "x = \"1.2e-6\";"},
        {4, "x = 12e20;", "x = \"1.2e+21\";"},
        {4, "x = 1e400;", "x = \"Infinity\";"},
        {4, "x = -1e400;", "x = \"-Infinity\";"},
        {4, "x = 0 * -1;", "x = \"0\";"},
        {4, "x = 1 / 8;", "x = \"0.125\";"},
    };
    for (const CodeCase& number : cases)
        EXPECT_EQ(Compiled(number.Source, number.Version), Compiled(number.Code, number.Version))
            << number.Source;
    EXPECT_NE(Compiled("x = 1 / 3;", 4), Compiled("x = \"0.333333333333333\";", 4));
}

TEST(Code, of_built_in_functions_is_their_action) {
    Check({
        {4, "gotoAndPlay(3);", "81 02 00 02 00 06"},
        {4, "gotoAndStop(\"end\");", "8C 04 00 65 6E 64 00"},
        {4, "gotoAndPlay(x);", "96 03 00 00 78 00 1C 9F 01 00 01"},
        {4, "getURL(\"u\", \"_self\");", "83 08 00 75 00 5F 73 65 6C 66 00"},
        {4, "getURL(\"u\", \"w\", \"POST\");", "96 06 00 00 75 00 00 77 00 9A 01 00 02"},
        {4, "loadMovie(\"u\", \"c\");", "96 06 00 00 75 00 00 63 00 9A 01 00 40"},
        {4, "loadVariables(\"u\", \"c\", \"GET\");", "96 06 00 00 75 00 00 63 00 9A 01 00 C1"},
        {4, "loadMovieNum(\"u\", 2);", "83 0A 00 75 00 5F 6C 65 76 65 6C 32 00"},
        {4, "loadMovie(\"u\", \"c\", \"POST\");", "96 06 00 00 75 00 00 63 00 9A 01 00 42"},
        {4, "loadVariablesNum(\"u\", 0, \"POST\");",
         "96 0C 00 00 75 00 00 5F 6C 65 76 65 6C 30 00 9A 01 00 82"},
        {4, "loadMovieNum(\"u\", 1, \"GET\");",
         "96 0C 00 00 75 00 00 5F 6C 65 76 65 6C 31 00 9A 01 00 01"},
        {4, "unloadMovieNum(3);", "83 09 00 00 5F 6C 65 76 65 6C 33 00"},
        {4, "printNum(0, \"bframe\");",
         "83 16 00 70 72 69 6E 74 3A 23 62 66 72 61 6D 65 00 5F 6C 65 76 65 6C 30 00"},
        {4, "unloadMovie(\"c\");", "96 05 00 00 00 00 63 00 9A 01 00 40"},
        {4, "print(\"c\", \"bmovie\");", "96 0B 00 00 70 72 69 6E 74 3A 00 00 63 00 9A 01 00 00"},
        {4, "fscommand(\"a\", \"b\");", "83 0E 00 46 53 43 6F 6D 6D 61 6E 64 3A 61 00 62 00"},
        {4, "call(\"x\");", "96 03 00 00 78 00 9E 00 00"},
        {4, "tellTarget(\"c\") { stop(); }", "8B 02 00 63 00 07 8B 01 00 00"},
        {5, "tellTarget(\"c\") { x = _name; }",
         "8B 02 00 63 00 96 0A 00 00 78 00 00 00 07 0D 00 00 00 22 1D 8B 01 00 00"},
        {4, "/c/stop();", "8B 03 00 2F 63 00 07 8B 01 00 00"},
        {4, "ifFrameLoaded(2) { play(); }", "8A 03 00 01 00 01 99 02 00 05 00 99 02 00 01 00 06"},
        {5, "duplicateMovieClip(\"a\", \"b\", 1);", "96 0B 00 00 61 00 00 62 00 07 01 40 00 00 24"},
    });
}

TEST(Code, of_version_5_has_typed_values_constants_and_functions) {
    Check({
        {5, "x = 1;", "96 08 00 00 78 00 07 01 00 00 00 1D"},
        {5, "x = 0.5;", "96 08 00 00 78 00 01 00 00 00 3F 1D"},
        {5, "x = 0.1;", "96 0C 00 00 78 00 06 99 99 B9 3F 9A 99 99 99 1D"},
        {5, "x = true;", "96 05 00 00 78 00 05 01 1D"},
        {5, "x = x + 1;", "96 03 00 00 78 00 4C 1C 96 05 00 07 01 00 00 00 47 1D"},
        {5, "foo = 1; foo = 2;",
         "88 06 00 01 00 66 6F 6F 00 96 07 00 08 00 07 01 00 00 00 1D "
         "96 07 00 08 00 07 02 00 00 00 1D"},
        {5, "function f(a) { return a; }",
         "9B 08 00 66 00 01 00 61 00 08 00 96 03 00 00 61 00 1C 3E"},
        {5, "f(1, \"b\");", "96 0E 00 00 62 00 07 01 00 00 00 00 32 00 00 66 00 3D 17"},
        {5, "x = a && b;",
         "96 06 00 00 78 00 00 61 00 1C 4C 12 9D 02 00 08 00 17 96 03 00 00 62 00 1C 1D"},
        {5, "x = \"\x95\x5C\";", "96 07 00 00 78 00 00 95 5C 00 1D"},
    });
}

TEST(Code, of_version_6_compares_strictly_and_enumerates_objects) {
    Check({
        {6, "x = a === b;", "96 06 00 00 78 00 00 61 00 1C 96 03 00 00 62 00 1C 66 1D"},
        {6, "trace(a > b);", "96 03 00 00 61 00 1C 96 03 00 00 62 00 1C 67 26"},
        {6, "for (k in o) trace(k);",
         "96 03 00 00 6F 00 1C 55 87 01 00 00 96 01 00 02 49 9D 02 00 16 00 "
         "96 05 00 00 6B 00 04 00 1D 96 03 00 00 6B 00 1C 26 99 02 00 DC FF"},
        {6, "x = \"\xE6\x97\xA5\";", "96 08 00 00 78 00 00 E6 97 A5 00 1D"},
        {6, "x = MovieClip(a);", "96 06 00 00 78 00 00 61 00 1C 1D"},
        {6, "x = \"\\uD83D\\uDE00\";", "96 09 00 00 78 00 00 F0 9F 98 80 00 1D"},
        {6, "switch (a) { case b: c(); break; default: d(); }",
         "96 03 00 00 61 00 1C 4C 96 03 00 00 62 00 1C 66 9D 02 00 05 00 99 02 00 10 00 17 "
         "96 05 00 05 00 00 63 00 3D 17 99 02 00 0B 00 17 96 05 00 05 00 00 64 00 3D 17"},
    });
}

TEST(Code, of_version_7_has_functions_with_registers_exceptions_and_casts) {
    Check({
        {7, "function f(a) { return a; }",
         "8E 0C 00 66 00 01 00 02 2A 00 01 61 00 06 00 96 02 00 04 01 3E"},
        {7, "throw 1;", "96 05 00 07 01 00 00 00 2A"},
        {7, "try { f(); } catch (e) {}",
         "8F 08 00 05 0D 00 09 00 00 00 00 96 08 00 07 00 00 00 00 00 66 00 3D 17 "
         "96 05 00 00 65 00 04 00 3C"},
        {7, "x = MovieClip(a);",
         "96 06 00 00 78 00 00 61 00 1C 96 0B 00 00 4D 6F 76 69 65 43 6C 69 70 00 1C 4D 2B 1D"},
    });
}

TEST(Code, of_a_declaration_with_a_path_sets_where_it_leads) {
    const CodeCase cases[] = {
        {4, "var /:v = \"x\";", "/:v = \"x\";"},
        {4, "var a.v = 1, ../b:w = 2;", "a.v = 1; ../b:w = 2;"},
        {5, "var _root.v = 1;", "_root.v = 1;"},
        {5, "var a:b = 1;", "var a = 1;"},
        {6, "var a.b.c:Number = 1, d;", "a.b.c = 1; var d;"},
        {6, "var this.v = 1;", "this.v = 1;"},
        {8, "var a/b:v:Number = 1;", "a/b:v = 1;"},
        {8, "var _root.v; var /:v;", ""},
        {6, "for (var a.k in o) ;", "for (a.k in o) ;"},
        {5, "function /:f(a) { b(); }", "/:f = function (a) { b(); };"},
        {7, "function a:f(a) { b(); }", "a:f = function (a) { b(); };"},
        {8, "c(); function _root.f() { }", "_root.f = function () { }; c();"},
        {6, "a = {}; function a.f() { }", "a = {}; a.f = function () { };"},
        {7, "function f(a) { var a.b = 1; }", "function f(a) { a.b = 1; }"},
        {7, "function f() { g(); function this.h() { } }",
         "function f() { this.h = function () { }; g(); }"},
    };
    for (const CodeCase& path : cases) {
        EXPECT_NE(Compiled(path.Source, path.Version), "not compiled") << path.Source;
        EXPECT_EQ(Compiled(path.Source, path.Version), Compiled(path.Code, path.Version))
            << path.Source;
    }
    EXPECT_EQ(Compiled("var /:v = \"x\";", 5), "96 08 00 00 2F 3A 76 00 00 78 00 1D");
}

TEST(Code, is_not_made_of_what_has_no_effect_or_cannot_be_reached) {
    Check({
        {6, "", ""},
        {6, " // only\n /* comments */ ; ", ""},
        {6, "if (false) trace(1);", ""},
        {6, "[Event(\"a\")]\n[Icon(\"b\")] intrinsic class C { var x; function f():Void; }", ""},
        {6, "while (0) trace(1);", ""},
        {6, "function f() { return 1; trace(2); }",
         "9B 06 00 66 00 00 00 09 00 96 05 00 07 01 00 00 00 3E"},
    });
}

TEST(Code, is_the_same_with_blanks_beyond_ascii) {
    const CodeCase cases[] = {
        {5, "x\xA0= 5\xA0;", "x=5;"},
        {5,
         "x\x81\x40=\x81\x40"
         "5\x81\x40;",
         "x=5;"},
        // A second byte that looks like one is none.
        {5, "\x83\xA0 = 5;", "\x83\xA0=5;"},
        {6,
         "\xEF\xBB\xBFx\xC2\xA0=\xE3\x80\x80"
         "5\xC2\xA0;",
         "x=5;"},
        {6, "x = /a:b\xC2\xA0;", "x=/a:b;"},
    };
    for (const CodeCase& spaced : cases) {
        EXPECT_NE(Compiled(spaced.Source, spaced.Version), "not compiled");
        EXPECT_EQ(Compiled(spaced.Source, spaced.Version), Compiled(spaced.Code, spaced.Version))
            << spaced.Source;
    }
}

TEST(Code, is_not_made_of_what_tools_know_about_a_declaration) {
    const CodeCase cases[] = {
        {6, "[Inspectable] var x;", "var x;"},
        {6, "[Inspectable(name=\"X\", defaultValue=5)]\nvar x = 1;", "var x = 1;"},
        {7, "a();\n[Event(\"e\")]\n[Told] function f() { }", "a(); function f() { }"},
    };
    for (const CodeCase& told : cases) {
        EXPECT_NE(Compiled(told.Source, told.Version), "not compiled") << told.Source;
        EXPECT_EQ(Compiled(told.Source, told.Version), Compiled(told.Code, told.Version))
            << told.Source;
    }
    EXPECT_EQ(Compiled("[Inspectable] var x;", 5), "not compiled");
    EXPECT_EQ(Compiled("if (a) { [Inspectable] var x; }", 6), "not compiled");
    EXPECT_NE(Compiled("[a()]; var x;", 6), Compiled("var x;", 6));
}

TEST(Code, of_constants_is_their_result) {
    const CodeCase cases[] = {
        {5, "x = 1 + 2 * 3;", "x = 7;"},   {5, "x = 7 >>> 1 << 2;", "x = 12;"},
        {5, "x = -1 >>> 28;", "x = 15;"},  {5, "x = \"a\" + \"b\" + 1;", "x = \"ab1\";"},
        {5, "x = !(2 < 1);", "x = true;"}, {4, "x = 6 / 4;", "x = 1.5;"},
        {5, "x = 0x10 + 010;", "x = 24;"}, {5, "x = true ? 1 : y;", "x = 1;"},
        {5, "x = 01E3;", "x = 1000;"},     {5, "x = \"\\x41\\102\\u0043\";", "x = \"ABC\";"},
    };
    for (const CodeCase& folded : cases)
        EXPECT_EQ(Compiled(folded.Source, folded.Version), Compiled(folded.Code, folded.Version))
            << folded.Source;
}

TEST(Code, keeps_variables_out_of_registers_that_others_reach_by_name) {
    const std::string_view sources[] = {
        "function f() { var a = 1; return function () { return a; }; }",
        "function f() { var a = 1; return eval(\"a\"); }",
        "function f(o) { var a = 1; with (o) { return a; } }",
        "function f() { var a = g; return a(); }",
        "function f() { var a = 1; delete a; }",
        "function f() { try { g(); } catch (a) { return eval(\"a\"); } }",
    };
    for (const std::string_view source : sources) {
        const std::string text =
            ActionDisassembler(7).List(ActionCompiler(7).Compile(source).Actions);
        EXPECT_NE(text.find("\"a\""), text.npos) << text;
    }
}

TEST(Code, uses_one_pair_of_registers_for_all_elements_that_change) {
    std::string body;
    for (int i = 0; i < 200; ++i) body += "a[f()] += 1;";
    const CompiledScript script = ActionCompiler(7).Compile("function g(a) {" + body + "}");
    // Behind the code, the record's length, the name and the number of parameters: register 0, that
    // of the parameter, and the pair.
    constexpr std::size_t RegisterCountAt = 3 + 2 + 2;
    const auto at = std::find(script.Actions.begin(), script.Actions.end(), Byte{0x8E});
    ASSERT_GT(script.Actions.end() - at, 8);
    EXPECT_EQ(at[RegisterCountAt], 4);
}

TEST(Code, of_built_ins_is_found_without_case_below_version_7) {
    EXPECT_EQ(Compiled("GOTOANDPLAY(3);", 6), "81 02 00 02 00 06");
    EXPECT_EQ(Compiled("if (a) Play();", 6), Compiled("if (a) play();", 6));
    EXPECT_NE(Compiled("GOTOANDPLAY(3);", 7), "81 02 00 02 00 06");
}

TEST(Code, of_keywords_is_found_without_case_in_version_4_only) {
    EXPECT_EQ(Compiled("IF (a) x = NewLine;", 4), Compiled("if (a) x = newline;", 4));
    EXPECT_EQ(Compiled("IF (a) play();", 5), "not compiled");
    EXPECT_NE(Compiled("x = NewLine;", 5), Compiled("x = newline;", 5));
}

}  // namespace
}  // namespace tamber
