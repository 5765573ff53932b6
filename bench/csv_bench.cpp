#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "document/cells/clsCSV.h"
#include "platform/codepage.h"
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
BENCHMARK(ReadText)->Arg(1000)->Arg(270000)->Unit(benchmark::kMillisecond);

/// Seconds that Python's csv module takes for the text, decoded before the clock starts.
double PythonSeconds(const std::filesystem::path& path) {
    const std::string command =
        "python3 -c \"import csv,io,sys,time\n"
        "text = open(sys.argv[1], encoding='utf-8', newline='').read()\n"
        "start = time.perf_counter()\n"
        "rows = list(csv.reader(io.StringIO(text, newline='')))\n"
        "print(time.perf_counter() - start)\" '" +
        path.string() + "'";
    FILE* pipe = popen(command.c_str(), "r");
    double seconds = 0;
    if (pipe == nullptr || std::fscanf(pipe, "%lf", &seconds) != 1) seconds = 0;
    if (pipe != nullptr) pclose(pipe);
    return seconds;
}

/// The yardstick for ReadText: the same text, about 20 MB.
void PythonCsv(benchmark::State& state) {
    const auto path = std::filesystem::temp_directory_path() / "csv_bench.csv";
    const Bytes text = EncodeUtf8(SampleText(static_cast<Long>(state.range(0))));
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(text.data()),
               static_cast<std::streamsize>(text.size()));
    for (auto _ : state) {
        const double seconds = PythonSeconds(path);
        if (seconds == 0) state.SkipWithError("python3 did not answer");
        state.SetIterationTime(seconds);
    }
    std::filesystem::remove(path);
}
BENCHMARK(PythonCsv)->Arg(270000)->UseManualTime()->Unit(benchmark::kMillisecond);

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
