#include <gtest/gtest.h>

#include "platform/codepage.h"
#include "script/ClassScript.h"
#include "script/InitBlock.h"
#include "script/ScriptCompilation.h"

namespace tamber {
namespace {

TEST(InitBlocks, are_cut_out_and_the_last_one_counts) {
    String script =
        u"a();#InitClip 7\r\nfirst\r\n#endinitclip\r\nb();#initclip\r\nlast#endinitclip;c";
    InitBlock block;
    // The second end mark is part of a word, so that the block has no end.
    EXPECT_FALSE(ExtractInitClip(script, block));
    script = u"a();#InitClip 7\r\nfirst\r\n#endinitclip\r\nb();#initclip x\r\nlast #endinitclip;c";
    EXPECT_TRUE(ExtractInitClip(script, block));
    EXPECT_EQ(script, u"a();\r\nb();;c");
    EXPECT_EQ(block.Text, u"last ");
    EXPECT_EQ(block.OrderNum, -1);

    script = u"#initclip 12\nx\n#endinitclip";
    EXPECT_TRUE(ExtractInitClip(script, block));
    EXPECT_EQ(script, u"");
    EXPECT_EQ(block.Text, u"x\n");
    EXPECT_EQ(block.OrderNum, 12);
    EXPECT_EQ(block.StartPos, 1);
    EXPECT_EQ(block.EndPos, 27);
}

TEST(InitBlocks, have_the_order_that_stands_in_their_first_line) {
    struct {
        StringView Word;
        Long OrderNum;
    } cases[] = {
        {u" 0", 0},           {u"\t12 // 13", 12}, {u" /* 1 */ 2", 2},
        {u" -5", -1},         {u" 5x", -1},        {u" 2147483647", 2147483647},
        {u" 2147483648", -1}, {u" // 3", -1},      {u"\r\n4", -1},
        {u" 5.0", 5},
    };
    for (const auto& item : cases) {
        String script = u"#initclip" + String(item.Word) + u"\r\nx\r\n#endinitclip";
        InitBlock block;
        EXPECT_TRUE(ExtractInitClip(script, block));
        EXPECT_EQ(block.OrderNum, item.OrderNum) << ToNarrow(item.Word);
    }
}

TEST(InitBlocks, without_their_end_are_faults) {
    struct {
        StringView Script;
        StringView Text;
    } cases[] = {
        {u"#initclip", u"改行 が必要です。"},
        {u"#initclip\r\nx", u"#endinitclip が必要です。"},
        {u"#initclip\r\nx\r\n#ENDINITCLIP", u"#endinitclip が必要です。"},
        {u"#initclip\r\n// #endinitclip", u"#endinitclip が必要です。"},
    };
    for (const auto& item : cases) {
        String script(item.Script);
        InitBlock block;
        EXPECT_FALSE(ExtractInitClip(script, block));
        EXPECT_EQ(block.Text, item.Text);
        EXPECT_EQ(script, item.Script);
    }
    String comment = u"// #initclip\r\nstop();";
    InitBlock block;
    EXPECT_TRUE(ExtractInitClip(comment, block));
    EXPECT_EQ(comment, u"// #initclip\r\nstop();");
    EXPECT_EQ(block.Text, u"");
}

TEST(ClassScripts, put_constructor_methods_and_values_in_this_order) {
    const String body =
        u"var n=1; // a value\r\nvar m;\r\nfunction C(x){ super(x); }\r\n"
        u"function go ( a, b ) { if(a){ b(); } }\r\nk = {a:1};";
    EXPECT_EQ(GenerateClassScript(body, {u"a.b.C", u"Base", {u"sym"}}),
              u"#initclip\r\n"
              u"if(!a.b.C){\r\n"
              u"if(!a){\r\n_global.a = new Object();\r\n}\r\n"
              u"if(!a.b){\r\n_global.a.b = new Object();\r\n}\r\n"
              u"_global.a.b.C=function(x){ super(x); };\r\n"
              u"_global.a.b.C.prototype.__proto__=Base.prototype;\r\n"
              u"_global.a.b.C.prototype.__constructor__=Base;\r\n"
              u"Object.registerClass(\"sym\",a.b.C);\r\n"
              u"var v1=_global.a.b.C.prototype;\r\n"
              u"v1.go=function( a, b ) { if(a){ b(); } };\r\n"
              u"ASSetPropFlags(v1,null,1);\r\n"
              u"v1.n=1;\r\n"
              u"v1.k = {a:1};\r\n"
              u"}\r\n#endinitclip");
}

TEST(ClassScripts, pass_over_a_variable_without_a_name) {
    EXPECT_EQ(GenerateClassScript(u"var ; var x=1; ; y=2; var", {u"C", u"", {}}),
              u"#initclip\r\nif(!C){\r\n_global.C=function(){};\r\n"
              u"var v1=_global.C.prototype;\r\nASSetPropFlags(v1,null,1);\r\n"
              u"v1.x=1;\r\nv1.y=2;\r\n}\r\n#endinitclip");
}

TEST(ClassScripts, have_a_constructor_of_their_own_making) {
    const String tail =
        u"var v1=_global.C.prototype;\r\nASSetPropFlags(v1,null,1);\r\n}\r\n#endinitclip";
    EXPECT_EQ(GenerateClassScript(u"// only a remark", {u"C", u"", {}}),
              u"#initclip\r\nif(!C){\r\n_global.C=function(){};\r\n" + tail);
    EXPECT_EQ(GenerateClassScript(u"function c(){} function broken(", {u"C", u"B", {}}),
              u"#initclip\r\nif(!C){\r\n_global.C=function(){\r\nsuper();\r\n};\r\n"
              u"_global.C.prototype.__proto__=B.prototype;\r\n"
              u"_global.C.prototype.__constructor__=B;\r\n"
              u"var v1=_global.C.prototype;\r\nv1.c=function(){};\r\n"
              u"ASSetPropFlags(v1,null,1);\r\n}\r\n#endinitclip");
}

TEST(CompilerDiagnostics, are_taken_apart) {
    const Bytes bytes = EncodeAnsi(
        u"Error:\x8AA4\x308A\n more of it\nLine 3: near 'x+y'\nnothing\nWarning: w1\nw2\n");
    const CompilerDiagnostic fault = ParseCompilerDiagnostic(bytes, 10);
    EXPECT_EQ(fault.Line, 12);
    EXPECT_EQ(fault.Header, u"\x8AA4\x308A\r\n more of it");
    EXPECT_EQ(fault.Token, u"x+y");
    EXPECT_EQ(fault.Tail, u" w1\r\nw2");
    const CompilerDiagnostic bare = ParseCompilerDiagnostic(EncodeAnsi(u"no form at all"), 1);
    EXPECT_EQ(bare.Header, u"no form at all");
    EXPECT_EQ(bare.Line, 0);
}

}  // namespace
}  // namespace tamber
