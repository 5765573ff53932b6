#include "script/editor/Snippets.h"

#include <algorithm>

#include "document/cells/clsCSV.h"
#include "platform/TextEncoding.h"
#include "platform/UserInterface.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "script/editor/KeywordSets.h"

namespace tamber {

namespace {

constexpr StringView FileName = u"snippet.csv";
constexpr StringView Mark = u"SNP";
constexpr std::uint64_t LongestFile = 16 << 20;

}  // namespace

bool Snippets::ByFoldedCase::operator()(const String& a, const String& b) const {
    return FoldCase(a) < FoldCase(b);
}

void Snippets::Load(StringView folder) {
    table_.clear();
    Bytes bytes;
    const String path = OwnOrDefault(folder, FileName);
    if (path.empty() || !ReadFileBytes(path, bytes, 0, LongestFile)) return;
    clsCSV csv;
    csv.Text(DecodeText(bytes));
    if (csv.Value() != Mark) {
        ShowMessage(u"スニペットファイル読み込みエラー", u"不正なファイル", MessageIcon::Warning);
        return;
    }
    for (csv.CrLf(); !csv.Value().empty(); csv.CrLf()) {
        String shortCut = csv.TakeText();
        table_.insert_or_assign(std::move(shortCut), String(csv.Value()));
    }
}

bool Snippets::Save(StringView folder) const {
    clsCSV csv;
    csv.Put(Mark);
    for (const auto& [shortCut, text] : table_) {
        csv.CrLf();
        csv.Put(shortCut);
        csv.Put(text);
    }
    return WriteFileBytes(EncodeAnsi(csv.Text()), JoinPath(folder, FileName));
}

const String* Snippets::Find(const String& shortCut) const {
    const auto found = table_.find(shortCut);
    return found == table_.end() ? nullptr : &found->second;
}

bool Snippets::Set(const String& shortCut, String text) {
    const String* known = Find(shortCut);
    if (known != nullptr && *known != text) {
        const Answer answer = CurrentUserInterface().Ask(
            u"「" + shortCut + u"」は既に登録されています。\r\n上書きしますか？",
            u"ショートカットの重複", Choices::YesNo);
        if (answer != Answer::Yes) return false;
    }
    table_.insert_or_assign(shortCut, std::move(text));
    return true;
}

StringView Snippets::IndentOf(StringView line) {
    return line.substr(0, std::min(line.find_first_not_of(u" \t\u3000"), line.size()));
}

String Snippets::Indented(StringView text, StringView indent) {
    String lines = WithCrLf(String(text));
    while (lines.ends_with(u'\n')) lines.resize(lines.size() - (lines.ends_with(u"\r\n") ? 2 : 1));
    return ReplaceAll(lines, u"\r\n", u"\r\n" + String(indent));
}

}  // namespace tamber
