#include "document/SymbolFiles.h"

#include "document/elements/SymbolKinds.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// As a dialog lists them.
constexpr Long FileKinds[]{KindBitmap, KindVector, KindSound, KindText, KindMovie};

FileFilter Filter(StringView name, StringView patterns) {
    return {String(name) + u" (" + String(patterns) + u")", String(patterns)};
}

}  // namespace

Long SymbolKindOfFile(StringView path) {
    const String pattern = u";*." + FoldCase(GetFileExt(path)) + u";";
    for (const Long kind : FileKinds) {
        const String patterns = u";" + String(KindOf(kind).FilePatterns) + u";";
        if (patterns.find(pattern) != String::npos) return kind;
    }
    return 0;
}

FileFilter SymbolFileFilter(Long kind) {
    const SymbolKind& made = KindOf(kind);
    return made.FilePatterns.empty() ? FileFilter() : Filter(made.FileName, made.FilePatterns);
}

std::vector<FileFilter> SymbolFileFilters() {
    std::vector<FileFilter> filters;
    String all;
    for (const Long kind : FileKinds) {
        filters.push_back(SymbolFileFilter(kind));
        all.append(all.empty() ? u"" : u";").append(KindOf(kind).FilePatterns);
    }
    filters.insert(filters.begin(), Filter(u"追加可能なファイル", all));
    return filters;
}

}  // namespace tamber
