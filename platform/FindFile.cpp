#include "platform/FindFile.h"

#include <utf8proc.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "platform/codepage.h"
#include "platform/paths.h"

namespace tamber {

namespace {

namespace fs = std::filesystem;

/// A name with its characters composed and its letter case folded; as it is when it is no UTF-8.
std::string Folded(const std::string& name) {
    constexpr auto options = static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE |
                                                            UTF8PROC_CASEFOLD);
    utf8proc_uint8_t* folded = nullptr;
    const utf8proc_ssize_t size =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(name.data()),
                     static_cast<utf8proc_ssize_t>(name.size()), &folded, options);
    if (size < 0) return name;
    std::string result(reinterpret_cast<const char*>(folded), static_cast<std::size_t>(size));
    std::free(folded);
    return result;
}

bool IsWanted(const fs::path& path, bool folder) {
    std::error_code error;
    return folder ? fs::is_directory(path, error) : fs::is_regular_file(path, error);
}

/// The one entry of `parent` that `name` can mean.
std::optional<fs::path> Entry(const fs::path& parent, const fs::path& name, bool folder) {
    if (IsWanted(parent / name, folder)) return parent / name;
    const std::string wanted = Folded(name.string());
    std::optional<fs::path> found;
    std::error_code error;
    fs::directory_iterator entry(parent, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (Folded(entry->path().filename().string()) != wanted || !IsWanted(*entry, folder))
            continue;
        if (found) return std::nullopt;
        found = entry->path();
    }
    return found;
}

}  // namespace

String FindFile(StringView path) {
    if (path.empty() || path.find(u'\0') != StringView::npos || FileExists(path))
        return FileExists(path) ? String(path) : String();
    const fs::path whole(ToNarrow(path));
    fs::path at = whole.has_root_path() ? whole.root_path() : fs::path(".");
    const fs::path names = whole.relative_path();
    for (auto name = names.begin(); name != names.end(); ++name) {
        const auto next = Entry(at, *name, std::next(name) != names.end());
        if (!next) return {};
        at = *next;
    }
    return FileExists(FromNarrow(at.string())) ? FromNarrow(at.string()) : String();
}

}  // namespace tamber
