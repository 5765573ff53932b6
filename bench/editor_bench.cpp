#include <benchmark/benchmark.h>

#include "canvas/handles/clsEditBounds.h"
#include "canvas/picture/PictureHits.h"
#include "canvas/picture/ShapeCharacter.h"
#include "document/records/clsPropertySprite.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "script/editor/ScriptMind.h"

namespace tamber {
namespace {

constexpr Long Lines = 50000;
constexpr std::size_t LinesSeen = 60;

String LargeScript() {
    String text;
    for (Long i = 0; i < Lines / 5; ++i) {
        const String n = ToText(i);
        text += u"function step" + n + u"(x:Number, y) {\r\n    var speed" + ToText(i % 700) +
                u" = x * 2 + item" + ToText(i % 90) +
                u"._y; // 速度\r\n    if (speed > 12.5) gotoAndPlay(\"label" + n +
                u"\");\r\n    ball_mc._x += Math.floor(speed" + ToText(i % 700) + u");\r\n}\r\n";
    }
    return text;
}

const KeywordSets& Keywords() {
    static KeywordSets sets;
    KeywordSet set;
    for (const StringView word : {u"function", u"var", u"if", u"gotoAndPlay", u"_x", u"_y"})
        set.Words.emplace_back(word);
    if (sets.Set(0).Words.empty()) sets.Set(0, set);
    return sets;
}

const ProjectNames& Project() {
    static const ProjectNames project;
    return project;
}

void LookAt(ScriptMind& mind, std::size_t line) {
    for (std::size_t i = line; i < line + LinesSeen && i < mind.Text().LineCount(); ++i)
        benchmark::DoNotOptimize(mind.Coloring().SpansOf(i));
}

/// A key typed and taken back, the lines around it looked at each time.
void Keystroke(benchmark::State& state, StringView typed) {
    ScriptMind mind(Keywords(), Project());
    mind.Set(LargeScript());
    const std::size_t line = static_cast<std::size_t>(state.range(0));
    const std::size_t at = mind.Text().OffsetOfLine(line) + 3;
    LookAt(mind, line);
    bool in = false;
    for (auto _ : state) {
        if (in)
            mind.Apply({at, typed.size(), {}});
        else
            mind.Apply({at, 0, String(typed)});
        in = !in;
        LookAt(mind, line);
    }
}
void KeyOfAWord(benchmark::State& state) {
    Keystroke(state, u"q");
}
void KeyOfALineEnd(benchmark::State& state) {
    Keystroke(state, u"\r\n");
}
void KeyOfAQuote(benchmark::State& state) {
    Keystroke(state, u"\"");
}
void KeyOfAComment(benchmark::State& state) {
    Keystroke(state, u"/*");
}
BENCHMARK(KeyOfAWord)->Arg(10)->Arg(25000)->Arg(49990)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyOfALineEnd)->Arg(10)->Arg(25000)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyOfAQuote)->Arg(10)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyOfAComment)->Arg(10)->Arg(25000)->Unit(benchmark::kMicrosecond);

/// A quote at the beginning, and then the end looked at: all between is walked.
void LookAcross(benchmark::State& state) {
    ScriptMind mind(Keywords(), Project());
    mind.Set(LargeScript());
    bool in = false;
    for (auto _ : state) {
        if (in)
            mind.Apply({0, 1, {}});
        else
            mind.Apply({0, 0, u"\""});
        in = !in;
        LookAt(mind, Lines - LinesSeen);
    }
}
BENCHMARK(LookAcross)->Unit(benchmark::kMicrosecond);

void Open(benchmark::State& state) {
    const String script = LargeScript();
    for (auto _ : state) {
        ScriptMind mind(Keywords(), Project());
        mind.Set(script);
        LookAt(mind, 0);
    }
}
BENCHMARK(Open)->Unit(benchmark::kMillisecond);

/// A line of 10 MB, typed in at its middle.
void KeyInALongLine(benchmark::State& state) {
    String line;
    while (line.size() < 10 << 20) line += u"a[i]=b*(c+12)-\"text\";";
    ScriptMind mind(Keywords(), Project());
    mind.Set(line);
    bool in = false;
    const std::size_t at = line.size() / 2;
    for (auto _ : state) {
        if (in)
            mind.Apply({at, 1, {}});
        else
            mind.Apply({at, 0, u"q"});
        in = !in;
        benchmark::DoNotOptimize(mind.Candidates().At(at));
        benchmark::DoNotOptimize(mind.Candidates().HintAt(at));
    }
}
BENCHMARK(KeyInALongLine)->Unit(benchmark::kMicrosecond);

void Candidates(benchmark::State& state, StringView typed) {
    ScriptMind mind(Keywords(), Project());
    const String script = LargeScript();
    mind.Set(script + String(typed));
    const std::size_t caret = mind.Text().Length();
    for (auto _ : state) benchmark::DoNotOptimize(mind.Candidates().At(caret));
}
void CandidatesOfNothing(benchmark::State& state) {
    Candidates(state, u"");
}
void CandidatesOfALetter(benchmark::State& state) {
    Candidates(state, u"s");
}
void CandidatesOfAnUnknown(benchmark::State& state) {
    Candidates(state, u"thing.");
}
void CandidatesOfAClip(benchmark::State& state) {
    Candidates(state, u"ball_mc.");
}
BENCHMARK(CandidatesOfNothing)->Unit(benchmark::kMicrosecond);
BENCHMARK(CandidatesOfALetter)->Unit(benchmark::kMicrosecond);
BENCHMARK(CandidatesOfAnUnknown)->Unit(benchmark::kMicrosecond);
BENCHMARK(CandidatesOfAClip)->Unit(benchmark::kMicrosecond);

std::shared_ptr<const Character> Square(Long side) {
    ShapeLayer layer;
    layer.Fills.emplace_back();
    layer.Fills.back().Color = {200, 0, 0, 255};
    const SwfPoint corners[] = {{0, 0}, {side, 0}, {side, side}, {0, side}};
    for (int i = 0; i < 4; ++i)
        layer.Steps.push_back({corners[i], corners[i], corners[(i + 1) % 4], 0, 1, 0, false});
    return std::make_shared<ShapeCharacter>(std::vector{layer}, CAIRO_FILL_RULE_EVEN_ODD,
                                            PaintBox{0, 0, double(side), double(side)});
}

/// Elements over the whole stage; with `piled` all on one spot.
std::shared_ptr<PictureMovie> Stage(bool piled) {
    auto movie = std::make_shared<PictureMovie>();
    movie->Stage = {0, 0, 1280 * TwipsPerPixel, 720 * TwipsPerPixel};
    for (Long i = 0; i < 1000; ++i) {
        TimelineStep step;
        step.What = TimelineStep::Kind::Place;
        step.Depth = i + 1;
        step.Shown = Square(40 * TwipsPerPixel);
        const Long x = piled ? 100 : i % 40 * 30;
        const Long y = piled ? 100 : i / 40 * 25;
        step.Matrix =
            cairo_matrix_t{1, 0, 0, 1, double(x) * TwipsPerPixel, double(y) * TwipsPerPixel};
        movie->Main.Add(step);
    }
    movie->Main.EndFrame();
    return movie;
}

/// The topmost of 1,000 elements, or nothing under the mouse.
void HitTest(benchmark::State& state) {
    const auto movie = Stage(state.range(0) != 0);
    const PictureView view = ViewOfStage(movie->Stage, 1);
    double x = 0;
    for (auto _ : state) {
        x = x > 1200 ? 0 : x + 7;
        benchmark::DoNotOptimize(PictureHits(*movie, 1, view, x, 110).Next());
    }
}
BENCHMARK(HitTest)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

/// A step of a drag that keeps to the edges of 1,000 neighbours.
void DragStep(benchmark::State& state) {
    auto sprite = std::make_shared<clsSymbolData>(KindSprite);
    sprite->Property<clsPropertySprite>()->Width = 100;
    sprite->Property<clsPropertySprite>()->height = 50;
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(sprite);
    Snapping snap;
    for (int i = 0; i < 1000; ++i) snap.AddBox({i * 1.3, i * 0.7, i * 1.3 + 20, i * 0.7 + 20});
    clsEditBounds bounds;
    bounds.Element = std::make_shared<clsLayerObjElement>();
    bounds.EditLayer(layer);
    bounds.Snap = &snap;
    bounds.DragStatus = static_cast<Long>(state.range(0));
    bounds.SetDragMovePoint({0, 0});
    double x = 0;
    for (auto _ : state) {
        x = x > 900 ? 0 : x + 1.7;
        bounds.MoveDragPoint({x, x / 2}, 0);
        benchmark::DoNotOptimize(bounds.Show());
    }
}
BENCHMARK(DragStep)
    ->Arg(DragHandle::Body)
    ->Arg(DragHandle::BottomRight)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tamber
