#include <benchmark/benchmark.h>
#include <librsvg/rsvg.h>
#include <libxml/parser.h>

#include <string>

#include "vector/SvgReader.h"

namespace tamber {
namespace {

/// A drawing as an editor writes it: groups of paths, lines and cubics by turns, coordinates with
/// three digits behind the point.
Bytes Drawing(std::int64_t segments, std::int64_t segmentsPerPath) {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"800\" height=\"600\" "
        "viewBox=\"0 0 800 600\">\n";
    std::uint32_t state = 1;
    const auto number = [&] {
        state = state * 1664525 + 1013904223;
        const std::uint32_t thousandths = (state >> 8) % 600000;
        const std::string digits = std::to_string(1000 + thousandths % 1000);
        return std::to_string(thousandths / 1000) + "." + digits.substr(1);
    };
    const auto pair = [&] { return number() + "," + number() + " "; };
    for (std::int64_t i = 0; i < segments; ++i) {
        if (i % segmentsPerPath == 0)
            text += "  <g id=\"layer" + std::to_string(i) +
                    "\" transform=\"translate(1,2)\">\n    <path\n"
                    "       style=\"fill:#336699;fill-opacity:1;fill-rule:evenodd;stroke:none\"\n"
                    "       d=\"M " +
                    pair();
        text += i % 2 == 0 ? "L " + pair() : "C " + pair() + pair() + pair();
        if (i % segmentsPerPath == segmentsPerPath - 1)
            text += "Z\"\n       id=\"path" + std::to_string(i) + "\" />\n  </g>\n";
    }
    text += "</svg>\n";
    return {text.begin(), text.end()};
}

void ReadDrawing(benchmark::State& state) {
    const Bytes text = Drawing(state.range(0), state.range(1));
    for (auto _ : state) {
        clsVector vector;
        if (!ReadSvgBytes(text, u"svg", vector)) state.SkipWithError("not read");
        benchmark::DoNotOptimize(vector.inVector);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(ReadDrawing)
    ->Args({10000, 20})
    ->Args({100000, 20})
    ->Args({1000000, 20})
    ->Args({100000, 100})
    ->Args({100000, 10000})
    ->Unit(benchmark::kMillisecond);

/// A yardstick for ReadDrawing: what rsvg-convert reads of the same text before it draws.
void Librsvg(benchmark::State& state) {
    const Bytes text = Drawing(state.range(0), state.range(1));
    for (auto _ : state) {
        GInputStream* stream = g_memory_input_stream_new_from_data(
            text.data(), static_cast<gssize>(text.size()), nullptr);
        RsvgHandle* handle = rsvg_handle_new_from_stream_sync(
            stream, nullptr, RSVG_HANDLE_FLAG_UNLIMITED, nullptr, nullptr);
        if (handle == nullptr) state.SkipWithError("not read");
        g_clear_object(&handle);
        g_object_unref(stream);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(Librsvg)
    ->Args({100000, 20})
    ->Args({100000, 100})
    ->Args({100000, 10000})
    ->Unit(benchmark::kMillisecond);

/// A harder one, for it parses no numbers: the same text into a tree.
void Libxml2(benchmark::State& state) {
    const Bytes text = Drawing(state.range(0), state.range(1));
    for (auto _ : state) {
        xmlDocPtr tree =
            xmlReadMemory(reinterpret_cast<const char*>(text.data()), static_cast<int>(text.size()),
                          nullptr, nullptr, XML_PARSE_HUGE | XML_PARSE_NONET);
        if (tree == nullptr) state.SkipWithError("not parsed");
        xmlFreeDoc(tree);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(Libxml2)
    ->Args({100000, 20})
    ->Args({100000, 100})
    ->Args({100000, 10000})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
