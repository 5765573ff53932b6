#include <gtest/gtest.h>

#include "script/compiler/ActionDisassembler.h"

namespace tamber {
namespace {

std::string Listed(const Bytes& actions, Long version = 6) {
    return ActionDisassembler(version).List(actions);
}

TEST(Disassembler, lists_offsets_names_and_operands) {
    EXPECT_EQ(Listed({0x88, 6, 0,    1,    0,    'f',  'o',  'o',  0, 0x96, 7,    0,   8,
                      0,    7, 0xFE, 0xFF, 0xFF, 0xFF, 0x1D, 0x99, 2, 0,    0xF1, 0xFF}),
              "     0  ConstantPool \"foo\"\n"
              "     9  Push \"foo\", -2\n"
              "    19  SetVariable\n"
              "    20  Jump 10\n");
    EXPECT_EQ(Listed({0x96, 15,   0, 2,   3,    4, 1,    5, 1, 1, 0, 0,
                      0,    0x3F, 0, '"', '\n', 0, 0x81, 2, 0, 2, 0}),
              "     0  Push null, undefined, register1, true, 0.5f, \"\\\"\\x0A\"\n"
              "    18  GotoFrame 2\n");
}

TEST(Disassembler, indents_the_blocks_of_functions) {
    EXPECT_EQ(Listed({0x9B, 8, 0, 'f', 0, 1, 0, 'a', 0, 1, 0, 0x06, 0x07}),
              "     0  DefineFunction \"f\" ( \"a\" )\n"
              "    11    Play\n"
              "    12  Stop\n");
}

TEST(Disassembler, reads_texts_in_the_code_page_below_version_6) {
    EXPECT_EQ(Listed({0x8C, 3, 0, 0x95, 0x5C, 0}, 5), "     0  GotoLabel \"表\"\n");
}

TEST(Disassembler, tells_of_damaged_records) {
    const Bytes damaged[] = {
        {0x96},
        {0x96, 5},
        {0x96, 5, 0, 0, 'a'},
        {0x96, 2, 0, 0, 'a'},
        {0x88, 2, 0, 9, 0},
        {0x9D, 1, 0, 0},
        {0x9B, 3, 0, 'f', 0, 9},
        {0x8F, 0, 0},
    };
    for (const Bytes& actions : damaged) {
        ActionDisassembler disassembler(6);
        EXPECT_NE(disassembler.List(actions).find("(damaged)"), std::string::npos);
        EXPECT_TRUE(disassembler.IsDamaged());
    }
    EXPECT_EQ(Listed({0x03, 0x06}), "     0  Action03\n     1  Play\n");
}

}  // namespace
}  // namespace tamber
