#include <benchmark/benchmark.h>

#include "app/controller/frmMain.h"
#include "document/edit/SymbolSort.h"
#include "document/records/clsPropertySprite.h"
#include "platform/RecordingUserInterface.h"
#include "platform/text.h"

namespace tamber {
namespace {

void Add(frmMain& controller, Long count) {
    for (Long id = 1; id <= count; ++id) {
        auto symbol = std::make_shared<clsSymbolData>(KindSprite);
        symbol->ID = id;
        controller.colSymbol()->Add(std::move(symbol));
    }
    controller.RefreshFgrdSymbol();
}

/// Numbers the library against its order, so that a sort moves every row.
void Reverse(const frmMain& controller) {
    Long id = controller.colSymbol()->Count();
    for (const auto& symbol : *controller.colSymbol()) symbol->ID = id--;
}

/// One sort, told as the time a symbol.
void SortById(benchmark::State& state) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    frmMain controller;
    controller.Form_Load();
    Add(controller, static_cast<Long>(state.range(0)));
    Reverse(controller);
    bool descending = false;
    for (auto _ : state) {
        controller.mnuSortSymbolID(descending);
        descending = !descending;
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// The yardstick: sorting as many references by their numbers.
void SortReferences(benchmark::State& state) {
    std::vector<std::shared_ptr<clsSymbolData>> symbols;
    for (Long i = 0; i < state.range(0); ++i) {
        symbols.push_back(std::make_shared<clsSymbolData>(KindSprite));
        symbols.back()->ID = i;
    }
    bool descending = true;
    for (auto _ : state) {
        std::stable_sort(symbols.begin(), symbols.end(),
                         [descending](const auto& a, const auto& b) {
                             return descending ? a->ID > b->ID : a->ID < b->ID;
                         });
        descending = !descending;
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// Half of the symbols go, each shown by one layer of a timeline.
void RemoveUsed(benchmark::State& state) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    const Long count = static_cast<Long>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        frmMain controller;
        controller.Form_Load();
        Add(controller, count);
        controller.SelectSymbols(1, count);
        controller.AddToLayer(1, false, false);
        controller.SelectSymbols(1, count / 2);
        state.ResumeTiming();
        controller.mnuRemoveSymbolItem();
    }
    state.SetItemsProcessed(state.iterations() * count / 2);
}

BENCHMARK(SortById)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(SortReferences)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(RemoveUsed)->Arg(200)->Arg(2'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
