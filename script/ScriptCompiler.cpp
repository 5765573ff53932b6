#include "script/ScriptCompiler.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long UnicodeVersion = 6;
constexpr char16_t Substitute = 0x1A;

}  // namespace

Bytes CompilerSource(StringView text, Long version, bool unicodeAllowed) {
    String source = ReplaceAll(ReplaceAll(text, u"\r\n", u"\n"), u"\r", u"\n");
    // A NUL would end the text there without a word; this is no part of the language.
    std::replace(source.begin(), source.end(), u'\0', Substitute);
    return unicodeAllowed && version >= UnicodeVersion ? EncodeUtf8(source) : EncodeAnsi(source);
}

const CompiledScript& ScriptCompiler::Compile(StringView text) {
    if (!last_.IsCompiled() && text == failedText_) return last_;
    const Bytes source = CompilerSource(text, version_, true);
    last_ = ActionCompiler(version_).Compile(
        {reinterpret_cast<const char*>(source.data()), source.size()});
    failedText_ = last_.IsCompiled() ? String() : String(text);
    return last_;
}

Long OffsetOf(const Diagnostic& diagnostic, StringView text, Long version) {
    const Bytes source = CompilerSource(text, version, true);
    const ByteView before =
        ByteView(source).first(std::min<std::size_t>(diagnostic.Offset, source.size()));
    std::size_t units =
        (version >= UnicodeVersion ? DecodeUtf8(before) : DecodeAnsi(before)).size();
    std::size_t offset = 0;
    for (; units > 0 && offset < text.size(); --units)
        offset += text.substr(offset).starts_with(u"\r\n") ? 2 : 1;
    return static_cast<Long>(offset);
}

}  // namespace tamber
