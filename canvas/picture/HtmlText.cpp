#include "canvas/picture/HtmlText.h"

#include <algorithm>

#include "platform/text.h"
#include "platform/twips.h"

namespace tamber {

namespace {

constexpr std::pair<StringView, StringView> Entities[] = {{u"lt", u"<"},   {u"gt", u">"},
                                                          {u"amp", u"&"},  {u"quot", u"\""},
                                                          {u"apos", u"'"}, {u"nbsp", u"\u00A0"}};

/// Reads marked text from its front.
class HtmlScanner {
public:
    HtmlScanner(StringView html, const TextRun& plain) : rest_(html), looks_{plain} {}

    std::vector<TextRun> Read() {
        while (!rest_.empty()) {
            if (rest_.front() == u'<')
                ReadMark();
            else if (rest_.front() == u'&')
                ReadEntity();
            else
                PutFirst(1);
        }
        Flush();
        return std::move(runs_);
    }

private:
    TextRun& Look() { return looks_.back(); }
    void PutFirst(std::size_t count) {
        Look().Text += rest_.substr(0, count);
        rest_.remove_prefix(count);
    }
    void Flush() {
        if (!Look().Text.empty()) runs_.push_back(Look());
        Look().Text.clear();
    }

    void ReadEntity() {
        const std::size_t end = rest_.find(u';');
        if (end == StringView::npos) return PutFirst(1);
        const StringView name = rest_.substr(1, end - 1);
        for (const auto& [known, text] : Entities) {
            if (name != known) continue;
            Look().Text += text;
            rest_.remove_prefix(end + 1);
            return;
        }
        PutFirst(1);
    }

    void ReadMark() {
        const std::size_t end = rest_.find(u'>');
        if (end == StringView::npos) return PutFirst(1);
        const StringView mark = rest_.substr(1, end - 1);
        rest_.remove_prefix(end + 1);
        const bool closes = mark.starts_with(u'/');
        const StringView inner = closes ? mark.substr(1) : mark;
        const String name = FoldCase(inner.substr(0, inner.find_first_of(u" /\t\r\n")));
        if (name == u"br" || (closes && name == u"p")) Look().Text += u'\n';
        if (name != u"font" && name != u"p") return;
        if (closes)
            Leave();
        else
            Enter(inner);
    }

    void Enter(StringView mark) {
        Flush();
        TextRun look = Look();
        const String size = ValueOf(mark, u"size");
        if (!size.empty()) look.Size = ToDouble(size) * TwipsPerPixel;
        const String color = ValueOf(mark, u"color");
        if (color.starts_with(u'#')) SetColor(look, color);
        const String align = FoldCase(ValueOf(mark, u"align"));
        if (!align.empty()) look.Alignment = align == u"right" ? 1 : align == u"center" ? 2 : 0;
        looks_.push_back(std::move(look));
    }
    void Leave() {
        Flush();
        if (looks_.size() > 1) looks_.pop_back();
    }

    /// The value of an attribute, between quotes of either kind.
    static String ValueOf(StringView mark, StringView name) {
        const String folded = FoldCase(mark);
        const std::size_t at = folded.find(String(name) + u"=");
        if (at == String::npos || at + name.size() + 2 > mark.size()) return {};
        const char16_t quote = mark[at + name.size() + 1];
        const StringView value = mark.substr(at + name.size() + 2);
        return String(value.substr(0, value.find(quote)));
    }
    static double ToDouble(const String& text) {
        return std::clamp(double(ToSingle(text)), 0.0, 1000.0);
    }
    static void SetColor(TextRun& look, const String& text) {
        std::uint32_t value = 0;
        for (const char16_t c : text.substr(1)) {
            const char16_t digit = c | 0x20;
            if (c >= u'0' && c <= u'9')
                value = value << 4 | std::uint32_t(c - u'0');
            else if (digit >= u'a' && digit <= u'f')
                value = value << 4 | std::uint32_t(digit - u'a' + 10);
        }
        look.Color = {static_cast<Byte>(value >> 16), static_cast<Byte>(value >> 8),
                      static_cast<Byte>(value), 255};
    }

    StringView rest_;
    /// The look of each mark that is open, the last one in use.
    std::vector<TextRun> looks_;
    std::vector<TextRun> runs_;
};

}  // namespace

std::vector<TextRun> HtmlRuns(StringView html, const TextRun& plain) {
    return HtmlScanner(html, plain).Read();
}

}  // namespace tamber
