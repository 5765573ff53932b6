#include "platform/paths.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

namespace fs = std::filesystem;

fs::path Native(StringView path) {
    return fs::path(ToNarrow(path));
}

bool IsDrivePath(StringView path) {
    const bool letter = !path.empty() && ((path[0] >= u'a' && path[0] <= u'z') ||
                                          (path[0] >= u'A' && path[0] <= u'Z'));
    return path.size() >= 3 && letter && path[1] == u':' && path[2] == u'\\';
}

std::vector<StringView> Segments(StringView path) {
    std::vector<StringView> segments;
    while (!path.empty()) {
        const std::size_t end = path.find(PathSeparator);
        const StringView segment = path.substr(0, end);
        if (!segment.empty()) segments.push_back(segment);
        if (end == StringView::npos) break;
        path.remove_prefix(end + 1);
    }
    return segments;
}

bool IsLink(StringView path) {
    std::error_code error;
    return fs::is_symlink(Native(path), error);
}

/// `path` with each link followed; as it is when it leads nowhere.
String Canonical(StringView path) {
    std::error_code error;
    const fs::path target = fs::canonical(Native(path), error);
    return error ? String(path) : FromNarrow(target.string());
}

/// `path` one level up, which for a link is where the link leads.
void Climb(String& path) {
    if (IsLink(path)) path = Canonical(path);
    const std::size_t last = path.rfind(PathSeparator);
    path.resize(last == String::npos ? 0 : std::max<std::size_t>(last, path[0] == PathSeparator));
}

/// `path` without "." and "..".
String Resolved(StringView path) {
    const bool rooted = path.starts_with(PathSeparator);
    String result = rooted ? String(1, PathSeparator) : String();
    for (const StringView segment : Segments(path)) {
        if (segment == u".") continue;
        if (segment == u".." && (rooted || (!result.empty() && GetFileName(result) != u"..")))
            Climb(result);
        else
            result = JoinPath(result, segment);
    }
    return result;
}

/// How many folders of `base` lead to `path`, too.
std::size_t CommonSegments(StringView base, StringView path) {
    const std::vector<StringView> from = Segments(base);
    const std::vector<StringView> to = Segments(path);
    std::size_t common = 0;
    while (common < from.size() && common + 1 < to.size() && from[common] == to[common]) ++common;
    return common;
}

/// One of the folders of `path` behind the first `passed` is a link.
bool HasLink(StringView path, std::size_t passed) {
    String folder(1, PathSeparator);
    for (const StringView segment : Segments(path)) {
        folder = JoinPath(folder, segment);
        if (passed > 0)
            --passed;
        else if (IsLink(folder))
            return true;
    }
    return false;
}

std::string_view Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

String& ProgramFolderText() {
    static String folder;
    return folder;
}

}  // namespace

bool FileExists(StringView path) {
    std::error_code error;
    // The system takes a name for ended at a NUL.
    return path.find(u'\0') == StringView::npos && fs::is_regular_file(Native(path), error);
}

bool FolderExists(StringView path) {
    std::error_code error;
    return fs::is_directory(Native(path), error);
}

bool SameFile(StringView a, StringView b) {
    std::error_code error;
    return fs::equivalent(Native(a), Native(b), error);
}

String GetFileFolder(StringView path) {
    const std::size_t last = path.rfind(PathSeparator);
    if (last == StringView::npos) return {};
    return String(path.substr(0, last == 0 ? 1 : last));
}

String GetFileName(StringView path) {
    const std::size_t last = path.rfind(PathSeparator);
    return String(last == StringView::npos ? path : path.substr(last + 1));
}

String GetFileBase(StringView path) {
    const String name = GetFileName(path);
    return name.substr(0, name.rfind(u'.'));
}

String GetFileExt(StringView path) {
    const String name = GetFileName(path);
    const std::size_t point = name.rfind(u'.');
    return point == String::npos ? String() : name.substr(point + 1);
}

String JoinPath(StringView folder, StringView name) {
    if (folder.empty()) return String(name);
    String joined(folder);
    if (joined.back() != PathSeparator) joined += PathSeparator;
    return joined.append(name);
}

bool MakeFolders(StringView path) {
    if (path.empty()) return true;
    std::error_code error;
    fs::create_directories(Native(path), error);
    return !error && FolderExists(path);
}

String MakeRelativePath(StringView base, StringView path) {
    const bool rooted = !base.empty() && !path.empty() && base.front() == PathSeparator &&
                        path.front() == PathSeparator;
    if (!rooted) return String(path);
    const std::size_t common = CommonSegments(base, path);
    String from(base);
    if (HasLink(from, common)) {
        const String real = Canonical(from);
        return real == from ? String(path) : MakeRelativePath(real, path);
    }
    const std::vector<StringView> to = Segments(path);
    String relative;
    for (std::size_t i = common; i < Segments(base).size(); ++i)
        relative.append(u"..").append(1, PathSeparator);
    for (std::size_t i = common; i < to.size(); ++i) {
        if (i > common) relative += PathSeparator;
        relative.append(to[i]);
    }
    return relative;
}

String NormalizePath(StringView path) {
    const String up = String(1, PathSeparator) + u".." + PathSeparator;
    const String here = String(1, PathSeparator) + u"." + PathSeparator;
    if (path.find(up) == StringView::npos && path.find(here) == StringView::npos)
        return String(path);
    return Resolved(path);
}

String AbsolutePath(StringView path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(Native(path), error);
    if (error) return String(path);
    const String resolved = Resolved(FromNarrow(absolute.string()));
    return path.ends_with(PathSeparator) ? JoinPath(resolved, u"") : resolved;
}

String FolderOfFile(StringView path) {
    const String file = AbsolutePath(path);
    return GetFileFolder(IsLink(file) ? Canonical(file) : file);
}

String PathToCell(StringView path) {
    if (IsDrivePath(path)) return String(path);
    String cell(path);
    for (char16_t& c : cell)
        if (c == PathSeparator) c = u'\\';
    return cell;
}

String PathFromCell(StringView cell) {
    if (IsDrivePath(cell)) return String(cell);
    String path(cell);
    for (char16_t& c : path)
        if (c == u'\\') c = PathSeparator;
    return path;
}

String ProgramFolder() {
    return ProgramFolderText();
}
void ProgramFolder(StringView folder) {
    ProgramFolderText() = folder;
}

String UserFolder() {
    const std::string_view config = Environment("XDG_CONFIG_HOME");
    if (config.starts_with('/')) return JoinPath(FromNarrow(config), u"tamber");
    const std::string_view home = Environment("HOME");
    return home.empty() ? String() : JoinPath(FromNarrow(home), u".config/tamber");
}

String ReplaceAppDirToken(StringView path) {
    String result = ReplaceAll(path, u"$(TAMBERDIR)", ProgramFolder());
    if (result.size() != path.size() || path.find(u"$(TAMBERDIR)") != StringView::npos)
        result = PathFromCell(result);
    while (result.size() > 1 && (result.back() == PathSeparator || result.back() == u'\\'))
        result.pop_back();
    return result;
}

}  // namespace tamber
