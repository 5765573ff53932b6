#include "document/edit/ProjectRelease.h"

#include <iterator>

#include "document/edit/SymbolReferences.h"
#include "document/records/SymbolTimeline.h"
#include "document/records/clsPropertyKoma.h"

namespace tamber {

namespace {

void Append(SymbolList& list, SymbolList more) {
    list.insert(list.end(), std::make_move_iterator(more.begin()),
                std::make_move_iterator(more.end()));
}

}  // namespace

void ReleaseProject(Project& project, clsUndoRedo& history) {
    SymbolList open = history.Release();
    open.insert(open.end(), project.colSymbol->begin(), project.colSymbol->end());
    SymbolSet seen;
    SymbolList released;
    while (!open.empty()) {
        const std::shared_ptr<clsSymbolData> symbol = std::move(open.back());
        open.pop_back();
        if (!symbol || !seen.insert(symbol.get()).second) continue;
        released.push_back(symbol);
        Append(open, ReferencesOf(*symbol));
        if (auto* own = OwnHistory(*symbol); own != nullptr && *own)
            Append(open, (*own)->Release());
        if (const auto layers = TimelineOf(*symbol)) ClearCollection(*layers);
        if (auto* koma = symbol->Property<clsPropertyKoma>()) ClearCollection(*koma->colKomas);
    }
    ClearCollection(*project.colMainLayer);
    ClearCollection(*project.colSymbol);
}

}  // namespace tamber
