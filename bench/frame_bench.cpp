#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

#include "canvas/picture/FramePicture.h"
#include "canvas/picture/ShapeCharacter.h"
#include "platform/twips.h"

namespace tamber {
namespace {

constexpr Long Width = 1280;
constexpr Long Height = 720;

PictureView View() {
    PictureView view;
    view.Width = Width;
    view.Height = Height;
    view.Options.blQuick = true;
    return view;
}

cairo_matrix_t At(double x, double y) {
    return {1, 0, 0, 1, x * TwipsPerPixel, y * TwipsPerPixel};
}

/// A closed outline of `edges` curves around a circle of that many pixels.
std::shared_ptr<const Character> Blob(Long edges, double radius, bool isLine, Long seed) {
    ShapeLayer layer;
    std::mt19937 random(static_cast<unsigned>(seed));
    const auto color = [&random] {
        return PictureColor{static_cast<Byte>(random()), static_cast<Byte>(random()),
                            static_cast<Byte>(random()), 255};
    };
    const auto on = [&](double step, double far) {
        const double angle = step * 2 * 3.14159265 / edges;
        return SwfPoint{static_cast<Long>(std::cos(angle) * far * TwipsPerPixel),
                        static_cast<Long>(std::sin(angle) * far * TwipsPerPixel)};
    };
    if (isLine) {
        layer.Lines.emplace_back();
        layer.Lines.back().Width = 2 * TwipsPerPixel;
        layer.Lines.back().Paint.Color = color();
    } else {
        layer.Fills.emplace_back();
        layer.Fills.back().Color = color();
    }
    for (Long i = 0; i < edges; ++i)
        layer.Steps.push_back({on(i, radius), on(i + 0.5, radius * 1.1),
                               on((i + 1) % edges, radius), 0, isLine ? 0 : 1, isLine ? 1 : 0,
                               true});
    const double reach = radius * 1.2 * TwipsPerPixel;
    return std::make_shared<ShapeCharacter>(std::vector{layer}, CAIRO_FILL_RULE_EVEN_ODD,
                                            PaintBox{-reach, -reach, reach, reach});
}

class Scene {
public:
    void Put(std::shared_ptr<const Character> shown, const cairo_matrix_t& matrix,
             std::vector<PlacedFilter> filters = {}) {
        TimelineStep step;
        step.What = TimelineStep::Kind::Place;
        step.Depth = static_cast<Long>(steps_.size()) + 1;
        step.Shown = std::move(shown);
        step.Matrix = matrix;
        step.Filters = std::move(filters);
        steps_.push_back(std::move(step));
    }
    void MoveFirst(double x, double y) { steps_.front().Matrix = At(x, y); }
    std::shared_ptr<const PictureMovie> Movie() const {
        auto movie = std::make_shared<PictureMovie>();
        movie->Stage = {0, 0, Width * TwipsPerPixel, Height * TwipsPerPixel};
        for (const TimelineStep& step : steps_) movie->Main.Add(step);
        movie->Main.EndFrame();
        return movie;
    }

private:
    std::vector<TimelineStep> steps_;
};

/// 500 vectors of 50 edges, of a radius from 20 to 60.
Scene Vectors(bool isLine) {
    Scene scene;
    std::mt19937 random(1);
    for (Long i = 0; i < 500; ++i)
        scene.Put(Blob(50, 20 + random() % 41, isLine, i), At(random() % Width, random() % Height));
    return scene;
}

void FirstPicture(benchmark::State& state) {
    const auto movie = Vectors(state.range(0) != 0).Movie();
    for (auto _ : state) benchmark::DoNotOptimize(FramePicture().Show(movie, 1, View()).Row(0));
}

void OneMoved(benchmark::State& state) {
    Scene scene = Vectors(state.range(0) != 0);
    FramePicture picture;
    double x = 100;
    for (auto _ : state) {
        scene.MoveFirst(x += 3, 300);
        if (x > 1000) x = 100;
        benchmark::DoNotOptimize(picture.Show(scene.Movie(), 1, View()).Row(0));
    }
}

void Pan(benchmark::State& state) {
    const auto movie = Vectors(state.range(0) != 0).Movie();
    FramePicture picture;
    PictureView view = View();
    for (auto _ : state) {
        view.Left = view.Left > 100 ? 0 : view.Left + 8;
        benchmark::DoNotOptimize(picture.Show(movie, 1, view).Row(0));
    }
}

void Photograph(benchmark::State& state) {
    Raster pixels(4000, 3000);
    std::mt19937 random(1);
    for (auto& pixel : pixels.Pixels()) pixel = 0xFF000000u | random() % 0x1000000;
    const auto photograph = std::make_shared<BitmapCharacter>(std::move(pixels));
    FramePicture picture;
    double angle = 0;
    for (auto _ : state) {
        Scene scene;
        angle += 0.01;
        scene.Put(photograph, {0.3 * std::cos(angle), 0.3 * std::sin(angle), -0.3 * std::sin(angle),
                               0.3 * std::cos(angle), 4000, 1000});
        benchmark::DoNotOptimize(picture.Show(scene.Movie(), 1, View()).Row(0));
    }
}

/// 20 elements that overlap, each with a shadow and a glow; one of them is dragged.
void Filtered(benchmark::State& state) {
    GlowFilter shadow;
    shadow.Blur = {8, 8, 2};
    shadow.Angle = 0.8;
    shadow.Distance = 6;
    GlowFilter glow;
    glow.Color = {255, 200, 0, 255};
    glow.Blur = {10, 10, 2};
    Scene scene;
    for (Long i = 0; i < 20; ++i)
        scene.Put(Blob(50, 50, false, i), At(100 + i % 5 * 90, 100 + i / 5 * 90), {shadow, glow});
    FramePicture picture;
    double x = 100;
    for (auto _ : state) {
        scene.MoveFirst(x += 2, 150);
        if (x > 500) x = 100;
        benchmark::DoNotOptimize(picture.Show(scene.Movie(), 1, View()).Row(0));
    }
}

BENCHMARK(FirstPicture)->ArgName("lines")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(OneMoved)->ArgName("lines")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(Pan)->ArgName("lines")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(Photograph)->Unit(benchmark::kMillisecond);
BENCHMARK(Filtered)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tamber
