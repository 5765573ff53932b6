#include "app/operations/SymbolFromFile.h"

#include "document/SymbolFiles.h"
#include "document/records/clsPropertyText.h"
#include "platform/TextEncoding.h"
#include "platform/UserInterface.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Pixels of a text that comes from a file, which tells none.
constexpr Long FileTextSize = 24;
/// Bytes of a text file at most, far more than a movie can show.
constexpr std::uint64_t LargestTextFile = 1 << 20;

/// Tells that a file could not be read, and in the status area which one.
void TellUnreadable(StringView path) {
    CurrentUserInterface().Status(path);
    ShowMessage(u"ファイルの読み込みに失敗しました。", u"読み込みエラー", MessageIcon::Error);
}

bool ReadText(clsSymbolData& symbol, StringView path, const ProjectAssets& assets) {
    const auto size = FileSize(path);
    Bytes bytes;
    if (!size || *size > LargestTextFile || !ReadFileBytes(path, bytes)) {
        TellUnreadable(path);
        return false;
    }
    auto& text = *symbol.Property<clsPropertyText>();
    text.InitialText = WithCrLf(DecodeText(bytes));
    if (text.InitialText.empty()) {
        ShowMessage(u"テキストが入力されていません。", u"テキスト未入力", MessageIcon::Warning);
        return false;
    }
    text.FontName = assets.DefaultFont();
    text.FontSize = FileTextSize;
    assets.SetTextSize(symbol);
    return true;
}

}  // namespace

bool ReadSymbolFile(clsSymbolData& symbol, const ProjectAssets& assets) {
    Notices told;
    const bool read = FileExists(symbol.FilePathName) && assets.LoadFile(symbol, told);
    ShowNotices(told);
    if (!read) TellUnreadable(symbol.FilePathName);
    return read;
}

std::shared_ptr<clsSymbolData> SymbolFromFile(StringView path, const ProjectAssets& assets) {
    const Long kind = SymbolKindOfFile(path);
    if (kind == 0) {
        const String extensions = ReplaceAll(SymbolFileFilters().front().Pattern, u"*.", u"");
        ShowMessage(String(path) +
                    u"\r\n\r\n追加できない形式のファイルです。\r\n追加できる拡張子：" + extensions);
        return nullptr;
    }
    if (PathSeparator != u'\\' && path.find(u'\\') != StringView::npos) {
        // A project file would take it for the end of a folder's name.
        ShowMessage(String(path) +
                    u"\r\n\r\n名前に「\\」を含むファイルとフォルダは追加できません。");
        return nullptr;
    }
    if (!FileExists(path)) {
        ShowMessage(String(path) + u"\r\n\r\nファイルが見つかりません。");
        return nullptr;
    }
    auto symbol = std::make_shared<clsSymbolData>(kind);
    if (kind != KindText) symbol->FilePathName = path;
    const bool read =
        kind == KindText ? ReadText(*symbol, path, assets) : ReadSymbolFile(*symbol, assets);
    return read ? symbol : nullptr;
}

}  // namespace tamber
