#include "app/shortcuts/ShortCutKey.h"

#include "platform/text.h"

namespace tamber {

namespace {

struct NamedKey {
    Long VKey;
    StringView Name;
};

constexpr NamedKey NamedKeys[] = {
    {8, u"BackSpace"}, {9, u"Tab"},       {13, u"Enter"}, {27, u"Esc"},   {32, u"Space"},
    {33, u"PageUp"},   {34, u"PageDown"}, {35, u"End"},   {36, u"Home"},  {37, u"Left"},
    {38, u"Up"},       {39, u"Right"},    {40, u"Down"},  {45, u"Ins"},   {46, u"Del"},
    {186, u":"},       {187, u"+"},       {188, u","},    {189, u"-"},    {190, u"."},
    {191, u"/"},       {192, u"@"},       {219, u"["},    {220, u"\\"},   {221, u"]"},
    {222, u"^"},       {106, u"Num*"},    {107, u"Num+"}, {109, u"Num-"}, {110, u"Num."},
    {111, u"Num/"},
};

constexpr Long FirstFunctionKey = 112;
constexpr Long LastFunctionKey = 135;
constexpr Long FirstNumberPadKey = 96;

bool TakeFront(StringView& text, StringView front) {
    if (!StartsWithNoCase(text, front) || text.size() == front.size()) return false;
    text.remove_prefix(front.size());
    return true;
}

bool IsLetterOrDigit(Long code) {
    return (code >= u'0' && code <= u'9') || (code >= u'A' && code <= u'Z');
}

Long CodeOf(StringView name) {
    for (Long code = 8; code <= 222; ++code)
        if (EqualsNoCase(KeyName(code), name)) return code;
    return 0;
}

}  // namespace

String KeyName(Long vKey) {
    if (IsLetterOrDigit(vKey)) return String(1, static_cast<char16_t>(vKey));
    if (vKey >= FirstFunctionKey && vKey <= LastFunctionKey)
        return u"F" + ToText(vKey - FirstFunctionKey + 1);
    if (vKey >= FirstNumberPadKey && vKey < FirstNumberPadKey + 10)
        return u"Num" + ToText(vKey - FirstNumberPadKey);
    for (const NamedKey& key : NamedKeys)
        if (key.VKey == vKey) return String(key.Name);
    return {};
}

String ShortCutKey::Text() const {
    const String name = KeyName(VKey);
    if (name.empty()) return {};
    return String(Ctrl ? u"Ctrl+" : u"") + (Shift ? u"Shift+" : u"") + (Alt ? u"Alt+" : u"") + name;
}

std::optional<ShortCutKey> ShortCutKey::Parse(StringView text) {
    ShortCutKey key;
    if (text.empty()) return key;
    while (true) {
        if (TakeFront(text, u"Ctrl+"))
            key.Ctrl = true;
        else if (TakeFront(text, u"Shift+"))
            key.Shift = true;
        else if (TakeFront(text, u"Alt+"))
            key.Alt = true;
        else
            break;
    }
    key.VKey = CodeOf(text);
    if (key.IsNone()) return std::nullopt;
    return key;
}

}  // namespace tamber
