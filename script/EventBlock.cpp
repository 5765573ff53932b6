#include "script/EventBlock.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"
#include "script/ScriptScanner.h"
#include "swf/tags/SwfEventActions.h"

namespace tamber {

using namespace ScriptScanner;

namespace {

constexpr Long ButtonEventsInClipsVersion = 6;
constexpr StringView ClipEventWord = u"onclipevent";
constexpr StringView ButtonEventWord = u"on";
constexpr StringView KeyPress = u"keypress";
/// The key of a button's condition has seven bits; that of a clip's event has a byte.
constexpr Long LargestButtonKey = 127;

struct ButtonEvent {
    StringView Name;
    Long Condition;  ///< flag of a button's action
    Long ClipFlag;   ///< flag of a clip's action
};

constexpr ButtonEvent ButtonEvents[] = {
    {u"press", 4, 1024},     {u"release", 8, 2048},         {u"releaseoutside", 64, 4096},
    {u"rollover", 1, 8192},  {u"rollout", 2, 16384},        {u"dragover", 32, 32768},
    {u"dragout", 16, 65536}, {KeyPress, 512, ClipKeyPress},
};

struct ClipEvent {
    StringView Name;
    Long Flag;
};

constexpr ClipEvent ClipEvents[] = {
    {u"load", 1},       {u"enterframe", 2},   {u"unload", 4},         {u"mousemove", 8},
    {u"mousedown", 16}, {u"mouseup", 32},     {u"keydown", 64},       {u"keyup", 128},
    {u"data", 256},     {u"initialize", 512}, {u"construct", 262144},
};

struct KeyName {
    StringView Name;
    Long Code;
};

constexpr KeyName KeyNames[] = {
    {u"left", 1},    {u"right", 2},     {u"home", 3},   {u"end", 4},       {u"insert", 5},
    {u"delete", 6},  {u"backspace", 8}, {u"enter", 13}, {u"up", 14},       {u"down", 15},
    {u"pgup", 16},   {u"pageup", 16},   {u"pgdn", 17},  {u"pagedown", 17}, {u"tab", 18},
    {u"escape", 19}, {u"space", 32},
};

/// Reads one block.
class EventBlockReader {
public:
    EventBlockReader(StringView script, Long& pos, EventBlock& block, EventScript kind,
                     Long swfVersion)
        : script_(script), pos_(pos), block_(block), kind_(kind), version_(swfVersion) {}

    bool Read() {
        block_ = {};
        pos_ = SkipBlanks(script_, pos_);
        if (AtEnd(script_, pos_)) {
            pos_ = 0;
            return true;
        }
        block_.Position = pos_;
        return ReadWord() && ReadEvents() && ReadBody();
    }

private:
    bool Fail(StringView text) {
        block_.Text = text;
        block_.Position = pos_;
        return false;
    }

    bool StandsAt(StringView word) const {
        const auto length = static_cast<Long>(word.size());
        return FoldCase(Between(script_, pos_, pos_ + length)) == word;
    }
    /// Steps over blanks and the character that must come next.
    bool Expect(char16_t wanted) {
        pos_ = SkipBlanks(script_, pos_);
        if (At(script_, pos_) != wanted) return Fail(String(1, wanted) + u" が必要です。");
        ++pos_;
        return true;
    }

    bool ReadWord() {
        clipEvents_ = kind_ == EventScript::Clip && StandsAt(ClipEventWord);
        if (!clipEvents_) {
            if (!StandsAt(ButtonEventWord)) return Fail(u"onClipEvent または on が必要です。");
            if (kind_ == EventScript::Clip && version_ < ButtonEventsInClipsVersion)
                return Fail(u"SWF" + ToText(version_) +
                            u"では、クリップアクションにOnイベントは使用できません。");
        }
        pos_ += static_cast<Long>((clipEvents_ ? ClipEventWord : ButtonEventWord).size());
        return Expect(u'(');
    }

    bool ReadEvents() {
        while (true) {
            pos_ = SkipBlanks(script_, pos_);
            if (!ReadEvent()) return false;
            pos_ = SkipBlanks(script_, pos_);
            const char16_t c = At(script_, pos_);
            if (c == u'{') return Fail(u") が必要です。");
            if (c != u')' && (c != u',' || AtEnd(script_, pos_ + 1)))
                return Fail(u"イベント定義が正しくありません。");
            ++pos_;
            if (c == u')') return true;
        }
    }

    bool ReadEvent() {
        const Long start = pos_;
        Long end = FindTokenEnd(script_, pos_, u')', u',');
        String name = FoldCase(Between(script_, start, end));
        // The key may follow its event without a blank.
        if (!clipEvents_ && name.starts_with(KeyPress) &&
            name.substr(KeyPress.size(), 1) == u"\"") {
            name = KeyPress;
            end = start + static_cast<Long>(KeyPress.size());
        }
        const Long flag = clipEvents_ ? ClipFlagOf(name) : ButtonFlagOf(name);
        if (name.empty()) return Fail(u"イベント名が必要です。");
        if (flag == 0)
            return Fail(u"不明なイベント名です。\r\n\"" + String(Between(script_, start, end)) +
                        u"\"");
        block_.Flags |= flag;
        pos_ = end;
        return clipEvents_ || name != KeyPress || ReadKey();
    }
    bool ReadKey() {
        pos_ = SkipBlanks(script_, pos_);
        Long end = pos_;
        block_.KeyCode = GetKeyCode(script_, end);
        const bool fits = kind_ == EventScript::Clip || block_.KeyCode <= LargestButtonKey;
        if (block_.KeyCode == 0 || !fits) return Fail(u"キー定義が正しくありません。");
        pos_ = end;
        return true;
    }

    static Long ClipFlagOf(StringView name) {
        for (const ClipEvent& event : ClipEvents)
            if (event.Name == name) return event.Flag;
        return 0;
    }
    Long ButtonFlagOf(StringView name) const {
        for (const ButtonEvent& event : ButtonEvents)
            if (event.Name == name)
                return kind_ == EventScript::Clip ? event.ClipFlag : event.Condition;
        return 0;
    }

    bool ReadBody() {
        if (!Expect(u'{')) return false;
        const Long close = FindCloseBrace(script_, pos_);
        if (close == 0) {
            pos_ = static_cast<Long>(script_.size());
            return Fail(u"} が必要です。");
        }
        block_.Position = pos_;
        block_.Text = Between(script_, pos_, close);
        pos_ = close;
        return true;
    }

    StringView script_;
    Long& pos_;
    EventBlock& block_;
    EventScript kind_;
    Long version_;
    bool clipEvents_ = false;
};

Long CodeOfName(StringView name) {
    const String folded = FoldCase(name);
    for (const KeyName& key : KeyNames)
        if (key.Name == folded) return key.Code;
    return 0;
}

Long CodeOfCharacter(char16_t character) {
    const Bytes code = EncodeAnsi(StringView(&character, 1));
    return code.size() == 1 ? code[0] : 0;
}

}  // namespace

bool ParseEventBlock(StringView script, Long& pos, EventBlock& block, EventScript kind,
                     Long swfVersion) {
    return EventBlockReader(script, pos, block, kind, swfVersion).Read();
}

Long GetKeyCode(StringView script, Long& pos) {
    if (At(script, pos) != u'"') return 0;
    char16_t character = At(script, ++pos);
    Long code = 0;
    if (character == u'<' && At(script, pos + 1) != u'"') {
        const Long close = FindTokenEnd(script, pos, u'>', u'"');
        if (At(script, close) != u'>') return 0;
        code = CodeOfName(Between(script, pos + 1, close));
        pos = close + 1;
    } else {
        if (character == u'"') return 0;
        if (character == u'\\') {
            character = At(script, ++pos);
            if (StringView(u"\"'\\").find(character) == StringView::npos) return 0;
        }
        code = CodeOfCharacter(character);
        ++pos;
    }
    if (At(script, pos) != u'"') return 0;
    ++pos;
    return code;
}

}  // namespace tamber
