#include <benchmark/benchmark.h>

#include "document/clsCSV.h"
#include "platform/text.h"

namespace {

using namespace tamber;

/// Rows as projects have them: numbers, flags, now and then a quoted script.
String SampleText(Long rows) {
    String text;
    for (Long i = 0; i < rows; ++i) {
        text += ToText(i) + u",12.5,-3.2,0,0,True,10000,10000,0,100,450000,0,0,128,XY,False,画像";
        if (i % 8 == 0) text += u",\"trace(\"\"a\"\");\r\nstop();\"";
        text += vbCrLf;
    }
    return text;
}

void ReadText(benchmark::State& state) {
    const String text = SampleText(static_cast<Long>(state.range(0)));
    for (auto _ : state) {
        clsCSV csv;
        csv.DefColSize(128);
        csv.Text(text);
        benchmark::DoNotOptimize(csv.Rows());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(ReadText)->Arg(1000)->Arg(200000);

void WriteCells(benchmark::State& state) {
    for (auto _ : state) {
        clsCSV csv;
        for (Long row = 0; row < state.range(0); ++row) {
            for (Long col = 0; col < 16; ++col) csv.Put(row * col);
            csv.CrLf();
        }
        benchmark::DoNotOptimize(csv.Text());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0) * 16);
}
BENCHMARK(WriteCells)->Arg(1000)->Arg(100000);

}  // namespace
