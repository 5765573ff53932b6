#include <benchmark/benchmark.h>

#include <string>

#include "script/compiler/ActionCompiler.h"

namespace tamber {
namespace {

constexpr std::int64_t LinesPerFunction = 17;

/// Functions such as an author writes: loops, lists, objects, members, texts; some texts and names
/// are all functions', some each function's own.
std::string Script(std::int64_t functions) {
    std::string text;
    for (std::int64_t i = 0; i < functions; ++i) {
        const std::string n = std::to_string(i);
        text += "function step" + n + "(a, b, c) {\n  var sum = a + b * " + n + " - c;\n" +
                "  var list = [a, b, c, \"item" + n + "\"];\n" +
                "  for (var k = 0; k < list.length; k++) {\n" + "    if (list[k] == \"item" + n +
                "\" && sum > " + n + ") {\n      sum += k * 2;\n    } else {\n" +
                "      sum -= Math.floor(k / 3);\n    }\n  }\n" + "  this.total" +
                std::to_string(i % 50) + " = sum;\n  _root.clip" + std::to_string(i % 20) +
                "._x = sum % 320;\n  while (sum > 1000) { sum = sum - 100; }\n  trace(\"step " + n +
                ": \" + sum);\n  var o = {x: a, y: b, name: \"n" + n +
                "\"};\n  return o.x + o.y > c ? sum : -sum;\n}\n";
    }
    return text;
}

/// Classes that each extend the one behind, with a static and members of others named alone.
std::string ClassScript(std::int64_t classes) {
    std::string text;
    for (std::int64_t i = 0; i < classes; ++i) {
        const std::string n = std::to_string(i);
        const std::string base = std::to_string(i + 1);
        text += "class a.C" + n + (i + 1 < classes ? " extends a.C" + base : "") +
                " {\n  static var list" + n + " = new Array(3);\n  var v" + n + " = " + n +
                ";\n  function m" + n + "(x) {\n    return v" + base + " + m" + base +
                "(x) + list" + base + ".length + unknown" + n + ";\n  }\n}\n";
    }
    return text;
}

/// Classes, and the movie's version: the time grows with their number only.
void CompileClasses(benchmark::State& state) {
    const std::string text = ClassScript(state.range(0));
    const ActionCompiler compiler(static_cast<Long>(state.range(1)));
    for (auto _ : state)
        if (!compiler.Compile(text).IsCompiled()) state.SkipWithError("not compiled");
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(CompileClasses)
    ->ArgsProduct({{1000, 10000, 50000}, {6, 8}})
    ->Unit(benchmark::kMillisecond);

/// Functions, and the movie's version. Bytes a function are told beside the time.
void Compile(benchmark::State& state) {
    const std::int64_t functions = state.range(0);
    const std::string text = Script(functions);
    const ActionCompiler compiler(static_cast<Long>(state.range(1)));
    std::size_t size = 0;
    for (auto _ : state) {
        const CompiledScript script = compiler.Compile(text);
        if (!script.IsCompiled()) state.SkipWithError("not compiled");
        size = script.Actions.size();
    }
    state.SetItemsProcessed(state.iterations() * functions * LinesPerFunction);
    state.counters["bytes"] = static_cast<double>(size) / static_cast<double>(functions);
}
BENCHMARK(Compile)
    ->ArgsProduct({{2000}, {5, 6, 7, 8}})
    ->Args({10000, 6})
    ->Args({58824, 6})
    ->Args({10000, 8})
    ->Args({58824, 8})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
