#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <zlib.h>

#include <filesystem>

#include "canvas/EditSnapshot.h"
#include "document/elements/SymbolKinds.h"
#include "document/elements/clsLayerObjElement.h"
#include "document/records/clsPropertyBmp.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "swf/authoring/mdlSWFAuthoring.h"
#include "swf/mdlZlib.h"

namespace tamber {
namespace {

constexpr Long LayerCount = 200;
constexpr Long FrameCount = 1000;
constexpr double Placements = static_cast<double>(LayerCount) * FrameCount;

/// 200 layers, each one tween over 1,000 frames in which every placement value changes.
struct WalkProject {
    Collection<clsSymbolData> library;
    Collection<clsLayer> layers;

    WalkProject() {
        auto symbol = std::make_shared<clsSymbolData>(KindBitmap);
        auto& picture = *symbol->Property<clsPropertyBmp>();
        picture.Width = picture.height = 16;
        picture.BitCount = 32;
        picture.bufBmp = mdlZlib::ZlibCompress(Bytes(16 * 16 * 4, 255));
        symbol->ID = 1;
        library.Add(symbol);
        for (Long i = 0; i < LayerCount; ++i) AddTween(symbol, i);
    }

    void AddTween(const std::shared_ptr<clsSymbolData>& symbol, Long number) {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(symbol);
        Long index = 0;
        layer->Add(1, nullptr, index);
        layer->Object(1)->DispCount(FrameCount - 1);
        layer->Object(1)->blTween = true;
        layer->Add(FrameCount, nullptr, index);
        clsLayerObjElement& end = *layer->Object(2)->Placement();
        end.X(300.5f);
        end.Y(static_cast<Single>(number));
        end.OffsetX(8);
        end.OffsetY(8);
        end.ScaleX(2.5f);
        end.ScaleY(0.5f);
        end.Angle(720);
        end.SkewX(20);
        end.SkewY(-10);
        end.Bright = 50;
        end.Toumei = 10;
        layer->Object(1)->Placement()->Edging = 100;
        layers.Add(layer);
    }
};

String OutputPath() {
    return FromNarrow((std::filesystem::temp_directory_path() / "walk_bench.swf").string());
}

void Build(const WalkProject& project) {
    MovieRequest request;
    request.Width = request.Height = 6400;
    request.Library = &project.library;
    request.Layers = &project.layers;
    request.blCompress = false;
    request.Path = OutputPath();
    if (!mdlSWFAuthoring::BuildMovie(request).Written) std::abort();
}

double PeakBytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024.0;
}

/// The growth of the process's peak by its first build; later ones reuse that memory.
double GrowthByFirstBuild(const WalkProject& project) {
    static const double growth = [&project] {
        const double before = PeakBytes();
        Build(project);
        return PeakBytes() - before;
    }();
    return growth;
}

void Walk(benchmark::State& state) {
    const WalkProject project;
    const double growth = GrowthByFirstBuild(project);
    for (auto _ : state) Build(project);
    state.counters["peak_bytes_per_placement"] = growth / Placements;
    state.counters["placements_per_s"] =
        benchmark::Counter(Placements, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(Walk)->Unit(benchmark::kMillisecond);

/// One frame in the middle of the same movie, as the canvas shows it on every redraw.
void Snapshot(benchmark::State& state) {
    const WalkProject project;
    clsSWFAdmin admin;
    admin.SetDimension(0, 6400, 0, 6400, 0);
    SnapshotRequest request;
    request.Layers = &project.layers;
    request.LastRow = LayerCount;
    request.Frame = FrameCount / 2;
    PlacedTags placed;
    for (auto _ : state)
        if (!WriteEditSnapshot(admin, request, 0, OutputPath(), placed))
            std::abort();
}
BENCHMARK(Snapshot)->Unit(benchmark::kMillisecond);

/// The yardstick: zlib's compress over the same movie.
void CompressSameBytes(benchmark::State& state) {
    Build(WalkProject());
    Bytes movie;
    ReadFileBytes(OutputPath(), movie);
    Bytes target(compressBound(static_cast<uLong>(movie.size())));
    for (auto _ : state) {
        auto size = static_cast<uLongf>(target.size());
        compress(target.data(), &size, movie.data(), static_cast<uLong>(movie.size()));
        benchmark::DoNotOptimize(target.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(movie.size()) *
                            static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(CompressSameBytes)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
