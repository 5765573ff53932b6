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
    void SetPlaceholder(clsSymbolData&) const override {}
    bool FontAvailable(StringView) const override { return true; }
    String DefaultFont() const override { return u"_sans"; }
    bool SubstituteAvailable() const override { return true; }
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

/// A project of layers with 50 placed texts each, `keyFrames` in all.
Bytes PlacementText(std::int64_t keyFrames) {
    constexpr std::int64_t KeyFrames = 50;
    constexpr std::string_view Filters =
        "False,100,100,100,100,0,0,0,0,False,0,0,0,100,2,2,45,5,1,False,False,True,2,False,4,4,2,"
        "False,255,255,0,100,10,10,1,False,False,True,2,False,0,0,0,100,255,255,255,100,2,2,45,5,"
        "1,False,False,True,False,2,False,5,5,1,0,0,0,0,0,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0,0,0,0,0,"
        "0,0,0,0,0,0,False,False,False,1,0,0,0,0,0,1,0,0,0,0,0,1,0,0,0,0,0,1,0";
    std::string layer = "1,texts,,0,,,-1,0,0,,,,True,50\r\n";
    for (std::int64_t i = 0; i < KeyFrames; ++i)
        layer += std::to_string(i * 3 + 1) +
                 ",3,False,True,True,12.5,-3.2,1,2,True,15000,10000,0,100,90000,0,0,0,XY,False,1"
                 "\r\n0,0,1\r\n0,0\r\n0," +
                 std::string(Filters) + ",0,False,in,True,0,Left,False,20,,\r\n";
    std::string text =
        "KVF,0,9,0\r\n320,240,12,6\r\n1\r\n"
        "1,,\xC3\xB7\xBD\xC4,,,,a,b,_sans,1,2,3,0,0,False,True,1,2,3,0,True,False,False,0,0,1,1,"
        "True,False,False,1\r\n0\r\n" +
        std::to_string(keyFrames / KeyFrames) + "\r\n";
    for (std::int64_t i = 0; i < keyFrames / KeyFrames; ++i) text += layer;
    return Bytes(text.begin(), text.end());
}

void Read(benchmark::State& state, const Bytes& text) {
    for (auto _ : state) {
        Project project;
        if (!LoadProjectBytes(text, u"/bench.kvf", project, NoAssets()))
            state.SkipWithError("the project was refused");
        benchmark::DoNotOptimize(project);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size() * state.iterations()));
}
void ReadModel(benchmark::State& state) {
    Read(state, ProjectText(state.range(0)));
}
void ReadPlacements(benchmark::State& state) {
    Read(state, PlacementText(state.range(0)));
}
BENCHMARK(ReadModel)->Arg(5)->Arg(10)->Arg(20)->Arg(40)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadPlacements)->Arg(100000)->Unit(benchmark::kMillisecond);

void Write(benchmark::State& state, const Bytes& text) {
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

void WriteModel(benchmark::State& state) {
    Write(state, ProjectText(state.range(0)));
}
void WritePlacements(benchmark::State& state) {
    Write(state, PlacementText(state.range(0)));
}
BENCHMARK(WriteModel)->Arg(5)->Arg(10)->Arg(20)->Arg(40)->Unit(benchmark::kMillisecond);
BENCHMARK(WritePlacements)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
