#include <gtest/gtest.h>

#include "platform/codepage.h"
#include "script/EventBlock.h"

namespace tamber {
namespace {

struct Block {
    Long Flags;
    Long KeyCode;
    String Text;
    bool operator==(const Block&) const = default;
};

/// All blocks of a script; a fault is the last one, with flags -1 and its position as the key.
std::vector<Block> BlocksOf(StringView script, EventScript kind, Long version = 6) {
    std::vector<Block> blocks;
    EventBlock block;
    for (Long pos = 0;;) {
        ++pos;
        if (!ParseEventBlock(script, pos, block, kind, version)) {
            blocks.push_back({-1, block.Position, block.Text});
            return blocks;
        }
        if (pos == 0) return blocks;
        blocks.push_back({block.Flags, block.KeyCode, block.Text});
    }
}

struct EventCase {
    StringView Script;
    EventScript Kind;
    std::vector<Block> Expected;
};

class Events : public testing::TestWithParam<EventCase> {};

TEST_P(Events, are_cut_out_with_their_flags) {
    EXPECT_EQ(BlocksOf(GetParam().Script, GetParam().Kind), GetParam().Expected)
        << ToNarrow(GetParam().Script);
}

INSTANTIATE_TEST_SUITE_P(
    Sound, Events,
    testing::Values(
        EventCase{u"", EventScript::Button, {}},
        EventCase{u" // nothing\r\n/* at all */ ", EventScript::Button, {}},
        EventCase{u"on(release){stop();}", EventScript::Button, {{8, 0, u"stop();"}}},
        EventCase{u"ON ( Press , rollOver ) { a={}; }\u3000on(dragOut){}",
                  EventScript::Button,
                  {{4 | 1, 0, u" a={}; "}, {16, 0, u""}}},
        EventCase{u"on(release){stop();}", EventScript::Clip, {{2048, 0, u"stop();"}}},
        EventCase{u"onClipEvent(enterFrame){x++;}/*}*/onClipEvent(load,construct){}",
                  EventScript::Clip,
                  {{2, 0, u"x++;"}, {1 | 262144, 0, u""}}},
        EventCase{u"on(press, keyPress \"<Left>\"){}", EventScript::Button, {{4 | 512, 1, u""}}},
        EventCase{u"on(keyPress\"a\"){}on(keyPress \"\\\"\"){}on(keyPress \"<\"){}",
                  EventScript::Button,
                  {{512, 'a', u""}, {512, '"', u""}, {512, '<', u""}}},
        EventCase{u"on(keyPress \"<PGUP>\"){}", EventScript::Clip, {{131072, 16, u""}}},
        EventCase{u"on(keyPress \"\uFF71\"){}", EventScript::Clip, {{131072, 0xB1, u""}}},
        // Braces in strings count, as ever; those in comments don't.
        EventCase{u"on(press){a='}'; // }\r\nb;}",
                  EventScript::Button,
                  {{4, 0, u"a='"}, {-1, 15, u"onClipEvent または on が必要です。"}}}));

INSTANTIATE_TEST_SUITE_P(
    Faulty, Events,
    testing::Values(
        EventCase{
            u"stop();", EventScript::Button, {{-1, 1, u"onClipEvent または on が必要です。"}}},
        EventCase{u"onClipEvent(load){}", EventScript::Button, {{-1, 3, u"( が必要です。"}}},
        EventCase{u"on press", EventScript::Button, {{-1, 4, u"( が必要です。"}}},
        EventCase{u"on(){}", EventScript::Button, {{-1, 4, u"イベント名が必要です。"}}},
        EventCase{
            u"on(click){}", EventScript::Button, {{-1, 4, u"不明なイベント名です。\r\n\"click\""}}},
        EventCase{u"onClipEvent(press){}",
                  EventScript::Clip,
                  {{-1, 13, u"不明なイベント名です。\r\n\"press\""}}},
        EventCase{u"on(press {}", EventScript::Button, {{-1, 10, u") が必要です。"}}},
        EventCase{u"on(press;release){}",
                  EventScript::Button,
                  {{-1, 4, u"不明なイベント名です。\r\n\"press;release\""}}},
        EventCase{u"on(press release){}",
                  EventScript::Button,
                  {{-1, 10, u"イベント定義が正しくありません。"}}},
        EventCase{
            u"on(press,", EventScript::Button, {{-1, 9, u"イベント定義が正しくありません。"}}},
        EventCase{u"on(keyPress \"<none>\"){}",
                  EventScript::Button,
                  {{-1, 13, u"キー定義が正しくありません。"}}},
        EventCase{u"on(keyPress \"\u3042\"){}",
                  EventScript::Button,
                  {{-1, 13, u"キー定義が正しくありません。"}}},
        // A button's key has seven bits.
        EventCase{u"on(keyPress \"\uFF71\"){}",
                  EventScript::Button,
                  {{-1, 13, u"キー定義が正しくありません。"}}},
        EventCase{u"on(press)stop();", EventScript::Button, {{-1, 10, u"{ が必要です。"}}},
        EventCase{u"on(press){if(a){}", EventScript::Button, {{-1, 17, u"} が必要です。"}}}));

TEST(ClipScripts, take_button_events_from_version_6_on) {
    EXPECT_EQ(BlocksOf(u"on(press){}", EventScript::Clip, 5),
              (std::vector<Block>{
                  {-1, 1, u"SWF5では、クリップアクションにOnイベントは使用できません。"}}));
    EXPECT_EQ(BlocksOf(u"onClipEvent(load){}", EventScript::Clip, 5),
              (std::vector<Block>{{1, 0, u""}}));
}

}  // namespace
}  // namespace tamber
