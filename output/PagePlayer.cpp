#include "output/PagePlayer.h"

#include <algorithm>
#include <array>

#include "output/MovieHtml.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace tamber {

namespace {

/// Where `npm install -g` puts packages.
constexpr std::array<StringView, 2> SharedModules{u"/usr/local/lib/node_modules",
                                                  u"/usr/lib/node_modules"};

String PackageIn(StringView modules) {
    const String package = JoinPath(modules, PlayerPackage);
    return FileExists(JoinPath(package, PlayerScript)) ? package : String();
}

/// In the modules of a folder or of one above it.
String PackageAbove(String folder) {
    while (!folder.empty()) {
        const String package = PackageIn(JoinPath(folder, u"node_modules"));
        if (!package.empty()) return package;
        const String above = GetFileFolder(folder);
        if (above == folder) break;
        folder = above;
    }
    return {};
}

bool CopyFileInto(StringView folder, StringView from, StringView name) {
    Bytes bytes;
    return ReadFileBytes(JoinPath(from, name), bytes) &&
           WriteFileBytes(bytes, JoinPath(folder, name));
}

}  // namespace

String FindPlayerPackage(StringView from) {
    for (const String& folder : {String(from), ProgramFolder()}) {
        String package = PackageAbove(folder);
        if (!package.empty()) return package;
    }
    for (const StringView modules : SharedModules) {
        String package = PackageIn(modules);
        if (!package.empty()) return package;
    }
    return {};
}

bool CopyPlayer(StringView package, StringView folder) {
    if (!MakeFolders(folder)) return false;
    for (const StringView pattern : {u"*.js", u"*.wasm", u"license*"}) {
        const std::vector<String> names = ListFiles(package, pattern);
        if (!std::all_of(names.begin(), names.end(),
                         [&](const String& name) { return CopyFileInto(folder, package, name); }))
            return false;
    }
    return true;
}

}  // namespace tamber
