#include "document/edit/SymbolSort.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tamber {

namespace {

struct Row {
    /// Kind, 0 where it does not count, and number.
    std::pair<Long, Long> Rank;
    std::shared_ptr<clsSymbolData> Symbol;
};

Row RowOf(const std::shared_ptr<clsSymbolData>& symbol, SymbolOrder order) {
    return {{order == SymbolOrder::Type ? symbol->eTypeEx() : 0, symbol->ID}, symbol};
}

bool IsFolder(const clsSymbolData& symbol) {
    return symbol.eType() == KindSymbolFolder;
}

bool InOneRun(const clsSymbolData& a, const clsSymbolData& b) {
    return !IsFolder(a) && !IsFolder(b) && a.ParentFolder() == b.ParentFolder();
}

/// The rows of a level, as they stand.
struct Level {
    std::vector<std::shared_ptr<clsSymbolData>> Folders;
    std::vector<std::shared_ptr<clsSymbolData>> Others;
};

}  // namespace

std::shared_ptr<Collection<clsSymbolData>> SortSymbols(const Collection<clsSymbolData>& library,
                                                       SymbolOrder order, bool descending,
                                                       Long first, Long last) {
    std::vector<Row> rows;
    rows.reserve(static_cast<std::size_t>(library.Count()));
    for (const auto& symbol : library) rows.push_back(RowOf(symbol, order));
    const auto end = rows.begin() + last;
    for (auto run = rows.begin() + (first - 1); run < end;) {
        const auto next = std::find_if_not(
            run + 1, end, [&run](const Row& row) { return InOneRun(*run->Symbol, *row.Symbol); });
        std::stable_sort(run, next, [descending](const Row& a, const Row& b) {
            return descending ? b.Rank < a.Rank : a.Rank < b.Rank;
        });
        run = next;
    }
    auto sorted = std::make_shared<Collection<clsSymbolData>>();
    sorted->Reserve(rows.size());
    for (Row& row : rows) sorted->Add(std::move(row.Symbol));
    return sorted;
}

std::shared_ptr<Collection<clsSymbolData>> SortFolders(const Collection<clsSymbolData>& library) {
    std::unordered_map<const clsSymbolData*, Level> levels;
    for (const auto& symbol : library) {
        Level& level = levels[symbol->ParentFolder().get()];
        (IsFolder(*symbol) ? level.Folders : level.Others).push_back(symbol);
    }
    auto sorted = std::make_shared<Collection<clsSymbolData>>();
    sorted->Reserve(static_cast<std::size_t>(library.Count()));
    // What is still to come, the next at the end.
    std::vector<std::shared_ptr<clsSymbolData>> waiting;
    const auto enter = [&](const clsSymbolData* folder) {
        const Level& level = levels[folder];
        waiting.insert(waiting.end(), level.Others.rbegin(), level.Others.rend());
        waiting.insert(waiting.end(), level.Folders.rbegin(), level.Folders.rend());
    };
    enter(nullptr);
    while (!waiting.empty()) {
        const std::shared_ptr<clsSymbolData> symbol = std::move(waiting.back());
        waiting.pop_back();
        sorted->Add(symbol);
        if (IsFolder(*symbol)) enter(symbol.get());
    }
    return sorted;
}

}  // namespace tamber
