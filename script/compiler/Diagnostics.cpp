#include "script/compiler/Diagnostics.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

constexpr std::size_t MaxTokenLength = 60;
constexpr std::size_t MaxTokenBytes = 4 * MaxTokenLength;

bool ComesBefore(const Diagnostic& a, const Diagnostic& b) {
    return a.Line != b.Line ? a.Line < b.Line : a.Offset < b.Offset;
}

Diagnostic Made(Spot spot, std::string_view token, String text) {
    return {static_cast<Long>(spot.Line), spot.Offset, std::string(token.substr(0, MaxTokenBytes)),
            std::move(text), 0};
}

/// As many as are kept, in the order of their lines.
void MergeLists(std::vector<Diagnostic>& list, const std::vector<Diagnostic>& others,
                std::size_t limit) {
    list.insert(list.end(), others.begin(), others.end());
    std::stable_sort(list.begin(), list.end(), ComesBefore);
    if (list.size() > limit) list.resize(limit);
}

}  // namespace

String TokenText(const std::string& token, Long version) {
    const ByteView bytes(reinterpret_cast<const Byte*>(token.data()), token.size());
    String text = version >= FirstUtf8Version ? DecodeUtf8(bytes) : DecodeAnsi(bytes);
    if (text.size() > MaxTokenLength) text = text.substr(0, MaxTokenLength) + u"...";
    for (char16_t& letter : text) {
        if (letter == u'\'') letter = u'"';
        if (letter < u' ') letter = u' ';
    }
    return text;
}

void Diagnostics::Error(Spot spot, std::string_view token, String text, Long openLine) {
    if (IsFull()) return;
    errors_.push_back(Made(spot, token, std::move(text)));
    errors_.back().OpenLine = openLine;
}

void Diagnostics::Warn(Spot spot, std::string_view token, String text) {
    if (warnings_.size() < MaxWarnings) warnings_.push_back(Made(spot, token, std::move(text)));
}

void Diagnostics::Merge(const Diagnostics& other) {
    MergeLists(errors_, other.errors_, MaxErrors);
    MergeLists(warnings_, other.warnings_, MaxWarnings);
}

String DiagnosticMessage(const Diagnostic& diagnostic) {
    if (diagnostic.OpenLine == 0) return diagnostic.Text;
    return diagnostic.Text + u"（" + ToText(diagnostic.OpenLine) +
           u"行目の { が閉じられていません。）";
}

String DiagnosticLine(const Diagnostic& diagnostic, Long version) {
    String text = ToText(diagnostic.Line) + u"行目";
    if (!diagnostic.Token.empty()) text += u" [" + TokenText(diagnostic.Token, version) + u"]";
    return text + u" " + DiagnosticMessage(diagnostic);
}

std::string DiagnosticText(const std::vector<Diagnostic>& errors,
                           const std::vector<Diagnostic>& warnings, Long version) {
    const Diagnostic& first = errors.front();
    String text = u"Error: " + DiagnosticMessage(first) + u"\n";
    for (std::size_t i = 1; i < errors.size(); ++i)
        text += DiagnosticLine(errors[i], version) + u"\n";
    text += u"Line " + ToText(first.Line) + u": '" + TokenText(first.Token, version) + u"'\n";
    for (std::size_t i = 0; i < warnings.size(); ++i)
        text += (i == 0 ? u"Warning: " : u"") + DiagnosticLine(warnings[i], version) + u"\n";
    const Bytes bytes = EncodeAnsi(text);
    return {bytes.begin(), bytes.end()};
}

}  // namespace tamber
