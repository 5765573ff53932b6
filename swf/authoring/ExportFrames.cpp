#include "swf/authoring/ExportFrames.h"

#include <vector>

#include "document/elements/SymbolKinds.h"

namespace tamber {

namespace {

/// Visits a symbol and what it is made of, each once; parts of one for which `visit` gives false
/// are left aside.
template <class Visit>
void ForEachPart(const clsSymbolData& symbol, const Visit& visit) {
    std::vector<const clsSymbolData*> open{&symbol};
    while (!open.empty()) {
        const clsSymbolData* part = open.back();
        open.pop_back();
        if (part == nullptr || !visit(*part)) continue;
        for (const auto& reference : ReferencesOf(*part)) open.push_back(reference.get());
    }
}

}  // namespace

bool IsExported(const clsSymbolData& symbol) {
    return symbol.blExportEx() && symbol.eType() != KindBackGround;
}

ExportFrames::ExportFrames(const Collection<clsSymbolData>& library, Long lateFrame)
    : lateFrame_(lateFrame) {
    for (const auto& symbol : library)
        if (IsExported(*symbol) && symbol->blExportTop)
            ForEachPart(*symbol,
                        [&](const clsSymbolData& part) { return early_.insert(&part).second; });
}

Long ExportFrames::FrameOf(const clsSymbolData& symbol) {
    return symbol.blExportTop || HasEarlyPart(symbol) ? 1 : lateFrame_;
}

bool ExportFrames::HasEarlyPart(const clsSymbolData& symbol) {
    bool has = false;
    SymbolSet parts;
    ForEachPart(symbol, [&](const clsSymbolData& part) {
        has = has || early_.contains(&part);
        return !has && !late_.contains(&part) && parts.insert(&part).second;
    });
    if (!has) late_.merge(parts);
    return has;
}

}  // namespace tamber
