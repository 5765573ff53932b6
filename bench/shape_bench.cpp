#include <benchmark/benchmark.h>

#include "swf/mdlSWFTag.h"
#include "swf/tags/clsSWFTShapeRecords.h"

namespace tamber {
namespace {

constexpr Long Edges = 100'000;

/// Lines and curves of a few pixels each, as drawings have them.
const clsSWFTShapeRecords& Drawing() {
    static const clsSWFTShapeRecords records = [] {
        clsSWFTShapeRecords made;
        made.SetFill0(1);
        made.MovePenTo(4000, 4000);
        std::uint32_t state = 1;
        const auto step = [&state] {
            state = state * 1664525 + 1013904223;
            return static_cast<Long>(state >> 24) - 128;
        };
        for (Long i = 0; i < Edges; ++i) {
            if (i % 2 == 0)
                made.DrawLine(step(), step());
            else
                made.DrawCurve(step(), step(), step(), step());
        }
        return made;
    }();
    return records;
}

void SaveRecords(benchmark::State& state) {
    const clsSWFTShapeRecords& records = Drawing();
    mdlSWFTag::InitBuffer();
    for (auto _ : state) {
        mdlSWFTag::InitBuffer();
        records.Save(1, 1, 3);
        benchmark::DoNotOptimize(mdlSWFTag::swfBytePos());
    }
}

void CopyRecords(benchmark::State& state) {
    const auto& records = Drawing().colShapeRecords;
    for (auto _ : state) {
        std::vector<clsSWFTShapeRecord> copy = records;
        benchmark::DoNotOptimize(copy.data());
    }
}

BENCHMARK(SaveRecords)->Unit(benchmark::kMicrosecond);
BENCHMARK(CopyRecords)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tamber
