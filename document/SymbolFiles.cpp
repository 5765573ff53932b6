#include "document/SymbolFiles.h"

#include <array>

#include "document/elements/SymbolKinds.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

struct FileKind {
    Long Kind;
    StringView Name;
    StringView Patterns;
};

constexpr std::array FileKinds{
    FileKind{KindBitmap, u"画像ファイル", u"*.bmp;*.jpg;*.jpeg;*.png;*.gif"},
    FileKind{KindVector, u"ベクタ画像ファイル", u"*.swf;*.pdr;*.svg;*.svgz"},
    FileKind{KindSound, u"サウンドファイル", u"*.mp3;*.wav;*.rmp;*.mid;*.mld;*.mmf"},
    FileKind{KindText, u"テキストファイル", u"*.txt;*.text"},
    FileKind{KindMovie, u"動画ファイル", u"*.flv"},
};

FileFilter Filter(StringView name, StringView patterns) {
    return {String(name) + u" (" + String(patterns) + u")", String(patterns)};
}

}  // namespace

Long SymbolKindOfFile(StringView path) {
    const String pattern = u";*." + FoldCase(GetFileExt(path)) + u";";
    for (const FileKind& kind : FileKinds)
        if ((u";" + String(kind.Patterns) + u";").find(pattern) != String::npos) return kind.Kind;
    return 0;
}

FileFilter SymbolFileFilter(Long kind) {
    for (const FileKind& entry : FileKinds)
        if (entry.Kind == kind) return Filter(entry.Name, entry.Patterns);
    return {};
}

std::vector<FileFilter> SymbolFileFilters() {
    std::vector<FileFilter> filters;
    String all;
    for (const FileKind& kind : FileKinds) {
        filters.push_back(Filter(kind.Name, kind.Patterns));
        all.append(all.empty() ? u"" : u";").append(kind.Patterns);
    }
    filters.insert(filters.begin(), Filter(u"追加可能なファイル", all));
    return filters;
}

}  // namespace tamber
