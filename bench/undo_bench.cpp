#include <benchmark/benchmark.h>
#include <malloc.h>

#include "document/elements/clsLayerObjElement.h"
#include "document/edit/clsUndoRedo.h"

namespace tamber {
namespace {

constexpr Long Rows = 500;
constexpr Long KeyFrames = 100;
constexpr int Steps = 128;

std::shared_ptr<Collection<clsLayer>> Timeline() {
    auto symbol = std::make_shared<clsSymbolData>(KindBitmap);
    symbol->ID = 1;
    auto layers = std::make_shared<Collection<clsLayer>>();
    for (Long row = 0; row < Rows; ++row) {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(symbol);
        Long index = 0;
        for (Long frame = 1; frame <= KeyFrames; ++frame) layer->Add(frame, nullptr, index);
        layers->Add(layer);
    }
    return layers;
}

double Allocated() {
    return static_cast<double>(mallinfo2().uordblks);
}

/// So many steps, each of which moves one element; memory of the history.
void StepsOfOneMove(benchmark::State& state) {
    const auto layers = Timeline();
    double bytes = 0;
    for (auto _ : state) {
        const double before = Allocated();
        clsUndoRedo history;
        history.Init({}, *layers);
        const double first = Allocated();
        for (int step = 0; step < Steps; ++step) {
            (*layers)(step * 37 % Rows + 1)
                ->Object(step % KeyFrames + 1)
                ->Placement()
                ->X(static_cast<Single>(step));
            history.Change({}, *layers, false);
        }
        bytes = (Allocated() - first) / (first - before);
    }
    state.counters["memory_of_copy"] = bytes;
}

/// The yardstick: the timeline copied once.
void OneDeepCopy(benchmark::State& state) {
    const auto layers = Timeline();
    for (auto _ : state) {
        Collection<clsLayer> copy;
        for (const auto& layer : *layers) copy.Add(layer->Copy());
        benchmark::DoNotOptimize(copy.Count());
    }
}

BENCHMARK(StepsOfOneMove)->Unit(benchmark::kMillisecond);
BENCHMARK(OneDeepCopy)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
