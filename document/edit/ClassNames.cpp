#include "document/edit/ClassNames.h"

#include <algorithm>

#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Empty for a symbol that is no class.
StringView ClassNameOf(const clsSymbolData& symbol) {
    if (const auto* record = symbol.Property<clsPropertyClass>()) return record->className;
    const auto* link = symbol.Property<clsPropertyLinkSymbol>();
    if (link == nullptr || link->eTypeEx() != KindClass) return {};
    StringView name = link->SymbolName;
    if (name.starts_with(ClassExportPrefix)) name.remove_prefix(ClassExportPrefix.size());
    return name;
}

}  // namespace

std::vector<String> OtherClassNames(const Collection<clsSymbolData>& library,
                                    const clsSymbolData& own) {
    std::vector<String> names{u"MovieClip"};
    for (const auto& symbol : library) {
        if (symbol.get() == &own) continue;
        if (const StringView name = ClassNameOf(*symbol); !name.empty()) names.emplace_back(name);
    }
    return names;
}

String ClassNameFault(StringView name, const std::vector<String>& others) {
    const String trimmed = Trim(name);
    if (trimmed.empty()) return u"クラス名を設定して下さい。";
    if (std::find(others.begin(), others.end(), trimmed) == others.end()) return {};
    return u"クラス名[" + trimmed + u"]は既に使用されています。";
}

}  // namespace tamber
