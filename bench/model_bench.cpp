#include <benchmark/benchmark.h>

#include "document/ProjectReader.h"
#include "document/ProjectWriter.h"
#include "platform/codepage.h"

namespace tamber {
namespace {

/// Reads no files: the projects here have no symbols with one.
class NoAssets : public ProjectAssets {
public:
    bool LoadFile(clsSymbolData&, Notices&) const override { return true; }
    bool FontAvailable(StringView) const override { return true; }
    String DefaultFont() const override { return u"_sans"; }
    void SetTextSize(clsSymbolData&) const override {}
};

/// A project of layers with 50 labels each, of about `megabytes`.
Bytes ProjectText(std::int64_t megabytes) {
    constexpr std::size_t KeyFrames = 50;
    std::string layer = "-2,labels,,0,,,-1,0,0,,,,True,50\r\n";
    for (std::size_t i = 0; i < KeyFrames; ++i)
        layer += std::to_string(i * 3 + 1) + ",3,False,False,True,a label of some length,False\r\n";
    const auto count = static_cast<std::size_t>(megabytes) * 1000000 / layer.size();
    std::string text = "KVF,0,9,0\r\n320,240,12,6\r\n0\r\n" + std::to_string(count) + "\r\n";
    for (std::size_t i = 0; i < count; ++i) text += layer;
    return Bytes(text.begin(), text.end());
}

void ReadModel(benchmark::State& state) {
    const Bytes text = ProjectText(state.range(0));
    for (auto _ : state) {
        Project project;
        if (!LoadProjectBytes(text, u"/bench.kvf", project, NoAssets()))
            state.SkipWithError("the project was refused");
        benchmark::DoNotOptimize(project);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size() * state.iterations()));
}
BENCHMARK(ReadModel)->Arg(5)->Arg(10)->Arg(20)->Arg(40)->Unit(benchmark::kMillisecond);

void WriteModel(benchmark::State& state) {
    const Bytes text = ProjectText(state.range(0));
    Project project;
    if (!LoadProjectBytes(text, u"/bench.kvf", project, NoAssets()))
        state.SkipWithError("the project was refused");
    for (auto _ : state) {
        clsCSV csv;
        SaveProjectCells(csv, project, u"/");
        benchmark::DoNotOptimize(EncodeAnsi(csv.Text()));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size() * state.iterations()));
}
BENCHMARK(WriteModel)->Arg(5)->Arg(10)->Arg(20)->Arg(40)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
