#include <gtest/gtest.h>

#include "platform/codepage.h"
#include "script/compiler/ActionCompiler.h"
#include "script/compiler/compileSWFActionCode.h"

namespace tamber {
namespace {

CompiledScript Compiled(std::string_view source, Long version = 6) {
    return ActionCompiler(version).Compile(source);
}

std::string Repeated(std::string_view text, std::size_t count) {
    std::string repeated;
    for (; count > 0; --count) repeated += text;
    return repeated;
}

/// What the C-like call delivers, from code page 932.
String Delivered(const std::string& source, Long version) {
    const Byte* bytes = nullptr;
    Long length = 0;
    EXPECT_EQ(compileSWFActionCode(source.c_str(), version, &bytes, &length), 0);
    return DecodeAnsi({bytes, static_cast<std::size_t>(length)});
}

struct Fault {
    Long Version;
    std::string_view Source;
    Long Line;
    std::string_view Token;
};

TEST(Diagnostics, name_the_line_and_the_token) {
    const Fault faults[] = {
        {6, "x = ;", 1, ";"},
        {6, "x = 1;\n\ny = (2;\n", 3, ";"},
        {6, "// one\r\n/* two\r\nthree */ z = * 2;", 3, "*"},
        {6, "a\nb\n\"open", 3, "\"open"},
        {6, "/* open", 1, "/*"},
        {6, "if (a {", 1, "{"},
        {6, "function f() {\n", 2, ""},
        {6, "}", 1, "}"},
        {6, "break;", 1, "break"},
        {6, "return 1;", 1, "return"},
        {6, "1 = 2;", 1, "="},
        {6, "eval() = 2;", 1, "="},
        {6, "class A {\n  function f() { eval() = 2; } }\nclass B extends A { }", 2, "="},
        {6, "class A { function f() { ---x; } }", 1, ";"},
        {6, "class A {\n var x = 1;\n function x() { } }", 3, "x"},
        {6, "class A { function get x() { }\n function get x() { } }", 2, "x"},
        {6, "class A { function get x(a) { } }", 1, "x"},
        {6, "class A { function set x() { } }", 1, "x"},
        {6, "class A {\n var a.b = 1; }", 2, "."},
        {6, "class A {\n function a.b() { } }", 2, "."},
        {6, "class A {\n var /:b; }", 2, "/"},
        {6, "\nclass A extends B { }\nclass B extends A { }", 2, "A"},
        {6, "class A extends\nI { }\ninterface I { }", 2, "I"},
        {6, "class A { }\nclass B implements A { }", 2, "A"},
        {6, "interface I { function f(); }\ninterface J extends I { }\nclass A implements J { }", 3,
         "A"},
        {6, "interface I { }\ninterface J implements I { }", 2, "implements"},
        {6, "interface I extends J { }\ninterface J extends I { }", 1, "I"},
        {6, "interface I { static function f(); }", 1, "f"},
        {6, "class A { }\nclass A { }\nclass A { var x; }", 3, "A"},
        {6, "class { }", 1, "{"},
        {6, "x = function { };", 1, "{"},
        {4, "clip.setProperty(_x, 5, 6);", 1, "setProperty"},
        {4, "clip.startDrag(1, 2, 3, 4, 5, 6);", 1, "startDrag"},
        {6, "interface I {\n  var x; }", 2, "var"},
        {6, "class A { var x; function f() { }\n static function g() {\n return x; } }", 3, "x"},
        {6, "delete eval();", 1, "eval"},
        {6, "with (a) { removeMovieClip(); }\nremoveMovieClip();", 2, "removeMovieClip"},
        {6, "with (a) { trace(); }", 1, "trace"},
        {6, "x = 12abc;", 1, "12abc"},
        {6, "x = 3 @ 4;", 1, "@"},
        {6, "switch (a) { default: default: }", 1, "default"},
        {6, "gotoAndPlay();", 1, "gotoAndPlay"},
        {6, "a b;", 1, "b"},
        {5, "x = a === b;", 1, "==="},
        {6, "try { } catch (e) { }", 1, "try"},
        {4, "\nfunction f() { }", 2, "function"},
        {4, "\nfunction /:f() { }", 2, "function"},
        {6, "var a.b c;", 1, "c"},
        {6, "var /a.5;", 1, ".5"},
        {4, "x = [1];", 1, "["},
        {4, "x = a % b;", 1, "%"},
        {5, "class A { }", 1, "class"},
        {6, "#include \"x\"", 1, "#"},
        {6, "a();\nelse b();", 2, "else"},
        {6, "a();\n\ncase 1: b();", 3, "case"},
        {7, "a();\ncatch (e) { }", 2, "catch"},
        {6, "class A extends B, C { }", 1, ","},
        {6, "var\nif = 1;", 2, "if"},
        {6, "f(1;", 1, ";"},
        {6, "x = 2 +;", 1, ";"},
        {6, "\nadd 1;", 2, "add"},
        {4, "x = 1;\ny = unknown(1);", 2, "unknown"},
        {4, "/a/unknown();", 1, "/a/unknown"},
        {4, "x = f.y(1).z;", 1, "z"},
        {6, "getURL(\"u\", \"w\", \"PUT\");", 1, "\"PUT\""},
        {6, "x = getProperty(c,\n  \"_none\");", 2, "\"_none\""},
        {6, "print(\"c\", \"all\");", 1, "\"all\""},
        {6, "startDrag(c, true, 0, 1);", 1, "0"},
    };
    for (const Fault& fault : faults) {
        const CompiledScript script = Compiled(fault.Source, fault.Version);
        ASSERT_FALSE(script.Errors.empty()) << fault.Source;
        EXPECT_EQ(script.Errors[0].Line, fault.Line) << fault.Source;
        EXPECT_EQ(script.Errors[0].Token, fault.Token) << fault.Source;
        EXPECT_FALSE(script.Errors[0].Text.empty()) << fault.Source;
        EXPECT_TRUE(script.Actions.empty()) << fault.Source;
    }
}

TEST(Diagnostics, of_the_parser_and_of_the_generator_are_told_together) {
    const CompiledScript script = Compiled(
        "gotoAndPlay();\nx = ;\nremoveMovieClip();\ngetURL(\"u\", \"w\", \"PUT\");\n"
        "1 = 2;\ntrace();");
    ASSERT_EQ(script.Errors.size(), 6U);
    for (Long line = 1; line <= 6; ++line)
        EXPECT_EQ(script.Errors[static_cast<std::size_t>(line - 1)].Line, line);
}

TEST(Diagnostics, go_on_behind_an_error) {
    const CompiledScript script =
        Compiled("x = ;\ny = 1;\nif (z { }\nfunction f() { a = ]; }\nw = );");
    ASSERT_EQ(script.Errors.size(), 4U);
    EXPECT_EQ(script.Errors[0].Line, 1);
    EXPECT_EQ(script.Errors[1].Line, 3);
    EXPECT_EQ(script.Errors[2].Line, 4);
    EXPECT_EQ(script.Errors[3].Line, 5);
}

TEST(Diagnostics, are_not_repeated_for_one_fault) {
    const std::string_view sources[] = {
        "a();\nelse b();\nc();",
        "a();\ncase 1: b();",
        "a();\nfinally { b(); }",
        "if (a) x = ;\nelse b();",
        "if (a { b(); }\nelse { c(); }",
        "a();\nin b;",
        "switch (a) {\ncase 1: x = ;\ncase 2: y();\n}",
        "x = \"open\ny = 1;",
        "switch (a) {\nx();\ny();\ncase 1: b();\n}",
        "switch (a) {\ncase 1 { b(); }\ncase 2: c(); break;\n}",
        "switch (a) {\ncase : b();\ndefault: c(); break;\n}",
        "switch (a) {\ncase 1: b();\n",
        "try { a(); }\ncatch () { b(); }\ncatch (f:F) { c(); }\nfinally { d(); }",
        "try { a(); } catch (e:true) { b(); } catch (f) { c(); }",
        "class A {\nvar 5;\nvar b;\nfunction c() { }\n}",
        "class A {\nfunction 5() { a(); }\nfunction b() { }\n}",
        "class A {\npublic x() { a(); }\npublic function b() { }\n}",
        "class A {\nwhile (a) { b(); }\nstatic var c;\n}",
        "class A {\n{ a(); }\nvar c;\n}",
        "class A {\n[Told(1;\nvar c;\n}",
        "class A { private }",
        "class A {\nvar b;\n",
        "class A {\nfunction",
        "x = {a: 1, b 2};\ny();",
        "f({a: 1, b 2}, 3);\ny();",
        "x = {a: {b 1}, c: 2};\ny();",
        "x = {a 1, b: function () { c(); d(); }, e: 1};\ny();",
        "x = {a: function (5) { c(); d(); }, e: 1};\ny();",
        "if (f({a 1})) { b(); c(); }\ny();",
        "function f() { return {a: }; }\ny();",
        "function f() { x = {a: 1\ny(); }\nz();",
        "class A { var b = {c 1}; function d() { } }",
    };
    for (const std::string_view source : sources)
        EXPECT_EQ(Compiled(source, 7).Errors.size(), 1U) << source;
}

TEST(Diagnostics, tell_what_else_to_write_in_a_version) {
    const struct {
        Long Version;
        std::string_view Source;
        StringView Advice;
    } cases[] = {
        {4, "x = a % b;", u"a - int(a / b) * b"},
        {4, "x = a[1];", u"eval("},
        {4, "function f() { }", u"call()"},
        {4, "with (a) { }", u"tellTarget"},
        {5, "x = a === b;", u"=="},
    };
    for (const auto& advised : cases) {
        const CompiledScript script = Compiled(advised.Source, advised.Version);
        ASSERT_FALSE(script.Errors.empty()) << advised.Source;
        EXPECT_NE(script.Errors[0].Text.find(advised.Advice), String::npos) << advised.Source;
    }
}

TEST(Diagnostics, end_after_twenty_errors) {
    EXPECT_EQ(Compiled(Repeated("x = ;\n", 1000)).Errors.size(), 20U);
}

TEST(Diagnostics, warn_of_what_is_probably_not_meant) {
    const Fault faults[] = {
        {6, "x = 1;\nif (x = 2) play();", 2, "="},
        {6, "function f() {\nreturn 1;\nplay(); }", 3, "play"},
        {5, "_global.x = 1;", 1, "_global"},
        {4, "x = Math;", 1, "Math"},
        {5, "function f(a,\na) { }", 2, "a"},
        {7, "try { } catch (e) { }\ncatch (f:F) { }", 2, "catch"},
    };
    for (const Fault& fault : faults) {
        const CompiledScript script = Compiled(fault.Source, fault.Version);
        EXPECT_TRUE(script.IsCompiled()) << fault.Source;
        ASSERT_EQ(script.Warnings.size(), 1U) << fault.Source;
        EXPECT_EQ(script.Warnings[0].Line, fault.Line) << fault.Source;
        EXPECT_EQ(script.Warnings[0].Token, fault.Token) << fault.Source;
    }
    EXPECT_TRUE(Compiled("if (x == 2) play(); return1 = 2;").Warnings.empty());
}

TEST(Diagnostics, are_delivered_as_lines_in_the_code_page) {
    const String text = Delivered("if (a = 1) b();\n\nx = \"名前\" \"次\";\ny = ;", 6);
    EXPECT_EQ(text,
              u"Error: ; が必要です。\n"
              u"4行目 [;] ここには式が必要です。\n"
              u"Line 3: '\"次\"'\n"
              u"Warning: 1行目 [=] 条件の中に代入があります。比較は == です。\n");
    EXPECT_EQ(Delivered("x = 1 'q';", 6), u"Error: ; が必要です。\nLine 1: '\"q\"'\n");
}

TEST(Diagnostics, of_the_call_are_replaced_by_the_next_run) {
    const Byte* bytes = nullptr;
    Long length = -1;
    EXPECT_EQ(compileSWFActionCode("x = ;", 6, &bytes, &length), 0);
    EXPECT_GT(length, 0);
    EXPECT_NE(compileSWFActionCode("play();", 6, &bytes, &length), 0);
    ASSERT_EQ(length, 1);
    EXPECT_EQ(bytes[0], 6);
    EXPECT_NE(compileSWFActionCode(" // nothing", 6, &bytes, &length), 0);
    EXPECT_EQ(length, 0);
}

TEST(Diagnostics, stand_for_texts_that_no_code_can_hold) {
    constexpr std::size_t Many = 100000;
    const std::string sources[] = {
        Repeated("(", Many),
        Repeated("{", Many),
        Repeated("[", Many),
        "x = " + Repeated("-", Many) + "1;",
        "x = " + Repeated("!", Many) + "1;",
        "x = " + Repeated("new ", Many) + "A;",
        "x = a" + Repeated(".b", Many) + ";",
        "x = " + Repeated("a ? b : ", Many) + "1;",
        Repeated("if (a) ", Many) + "b();",
        Repeated("function f() {", Many),
        Repeated("a = ", Many) + "1;",
        Repeated("try {", Many),
        std::string(1 << 20, 'x') + " = 1;",
        "x = \"" + std::string(1 << 20, 'x') + "\";",
        std::string("x = \0 1;", 8),
        std::string("x = 'a\0b';", 10),
        "\"" + Repeated("\\", Many),
    };
    for (const Long version : {4, 6, 7})
        for (const std::string& source : sources)
            EXPECT_FALSE(Compiled(source, version).IsCompiled()) << source.substr(0, 20);
    // In version 4 each `||` of these stands in the next.
    EXPECT_FALSE(Compiled("x = " + Repeated("a || b or ", Many) + "1;", 4).IsCompiled());
}

TEST(Diagnostics, tell_of_names_with_dots_that_make_too_long_a_path) {
    const std::string part(40000, 'n');
    const std::string path = "a." + part + "." + part;
    const std::pair<Long, std::string> sources[] = {
        {4, path + ".x = 1;"},
        {4, path + "._x = 1;"},
        {4, "tellTarget (" + path + ") play();"},
        {4, path + ".play();"},
        {5, "for (k in " + path + ") x();"},
    };
    for (const auto& [version, source] : sources)
        EXPECT_FALSE(Compiled(source, version).IsCompiled()) << source.substr(0, 20);
    EXPECT_TRUE(Compiled("for (k in " + path + ") x();", 6).IsCompiled());
}

TEST(Diagnostics, tell_of_more_code_than_operands_can_count) {
    const std::string script = Repeated("try { } finally { }\n", 1'200'000);
    const CompiledScript compiled = Compiled(script, 7);
    ASSERT_EQ(compiled.Errors.size(), 1U);
    EXPECT_EQ(compiled.Errors[0].Token, "try");
}

TEST(Diagnostics, are_not_needed_for_long_chains) {
    constexpr std::size_t Many = 100000;
    const std::string sources[] = {
        "x = " + Repeated("a + ", Many) + "1;",
        "x = " + Repeated("\"a\" + ", Many) + "b;",
        "x = " + Repeated("a > ", Many) + "1;",
        "x = a" + Repeated("/a", Many) + ";",
        "if (" + Repeated("a && ", 1000) + "b) play();",
        Repeated("if (a > 9) b(); else ", 500) + "c();",
        "x = [" + Repeated("1, ", Many) + "2];",
        Repeated("play();", Many),
        "x = 1" + Repeated(", y = 2", Many) + ";",
    };
    for (const std::string& source : sources)
        for (const Long version : {5, 8})
            EXPECT_TRUE(Compiled(source, version).IsCompiled()) << source.substr(0, 20);
    EXPECT_TRUE(Compiled("x = " + Repeated("a && ", 1000) + "b;", 4).IsCompiled());
}

TEST(Diagnostics, are_not_needed_for_long_classes) {
    std::string members;
    for (int i = 0; i < 3000; ++i) {
        const std::string name = "m" + std::to_string(i);
        members += "function " + name + "() { return " + name + "; }\n";
        members += "function get p" + name + "() { return " + name + "; }\n";
    }
    for (const Long version : {6, 7})
        EXPECT_TRUE(Compiled("class A { " + members + "}", version).IsCompiled());
}

TEST(Diagnostics, tell_of_jumps_and_blocks_that_are_too_long) {
    // Each call is 3 bytes of record, 5 of count, 3 of name, and two actions: 13.
    const std::string body = Repeated("f();", 6000);
    const CompiledScript jump = Compiled("x = 1;\nif (a) {" + body + "}", 7);
    ASSERT_EQ(jump.Errors.size(), 1U);
    EXPECT_EQ(jump.Errors[0].Line, 2);
    const CompiledScript function = Compiled("\n\nfunction g() {" + body + "}", 7);
    ASSERT_EQ(function.Errors.size(), 1U);
    EXPECT_EQ(function.Errors[0].Line, 3);
    EXPECT_TRUE(Compiled("if (a) {" + Repeated("f();", 2500) + "}", 7).IsCompiled());
    EXPECT_TRUE(Compiled(body, 7).IsCompiled());
}

}  // namespace
}  // namespace tamber
