#include <gtest/gtest.h>

#include "canvas/picture/BitmapCharacter.h"
#include "canvas/picture/FramePicture.h"
#include "canvas/picture/HtmlText.h"
#include "canvas/picture/PictureHits.h"
#include "canvas/picture/ShapeCharacter.h"
#include "canvas/picture/SpriteCharacter.h"
#include "canvas/picture/VideoCharacter.h"
#include "platform/twips.h"

namespace tamber {
namespace {

constexpr PictureColor Red{255, 0, 0, 255};
constexpr std::uint32_t RedPixel = 0xFFFF0000;
constexpr std::uint32_t WhitePixel = 0xFFFFFFFF;

SwfPoint Pixels(Long x, Long y) {
    return {x * TwipsPerPixel, y * TwipsPerPixel};
}

/// Edges around a box of pixels, with the fill on the side that is inside.
std::vector<OutlineStep> Around(Long left, Long top, Long right, Long bottom, Long fill0,
                                Long fill1) {
    const SwfPoint corners[] = {Pixels(left, top), Pixels(right, top), Pixels(right, bottom),
                                Pixels(left, bottom)};
    std::vector<OutlineStep> steps;
    for (int i = 0; i < 4; ++i) {
        const SwfPoint from = corners[i];
        const SwfPoint to = corners[(i + 1) % 4];
        steps.push_back({from, to, to, fill0, fill1, 0, false});
    }
    return steps;
}

std::shared_ptr<const Character> Shape(std::vector<OutlineStep> steps, PictureColor color = Red) {
    ShapeLayer layer;
    layer.Fills.emplace_back();
    layer.Fills.back().Color = color;
    PaintBox bounds;
    for (const OutlineStep& step : steps) bounds.Add(step.From.X, step.From.Y);
    layer.Steps = std::move(steps);
    return std::make_shared<ShapeCharacter>(std::vector{layer}, CAIRO_FILL_RULE_EVEN_ODD, bounds);
}

std::shared_ptr<const Character> Box(Long side, PictureColor color = Red) {
    return Shape(Around(0, 0, side, side, 0, 1), color);
}

TimelineStep Place(Long depth, std::shared_ptr<const Character> shown, double x, double y) {
    TimelineStep step;
    step.What = TimelineStep::Kind::Place;
    step.Depth = depth;
    step.Shown = std::move(shown);
    step.Matrix = cairo_matrix_t{1, 0, 0, 1, x * TwipsPerPixel, y * TwipsPerPixel};
    return step;
}

TimelineStep Step(TimelineStep::Kind what, Long depth,
                  std::shared_ptr<const Character> shown = {}) {
    TimelineStep step;
    step.What = what;
    step.Depth = depth;
    step.Shown = std::move(shown);
    return step;
}

/// A movie of 60 by 40 pixels with one frame.
std::shared_ptr<const PictureMovie> MovieOf(const std::vector<TimelineStep>& steps) {
    auto movie = std::make_shared<PictureMovie>();
    movie->Stage = {0, 0, 60 * TwipsPerPixel, 40 * TwipsPerPixel};
    for (const TimelineStep& step : steps) movie->Main.Add(step);
    movie->Main.EndFrame();
    return movie;
}

Raster Drawn(const std::shared_ptr<const PictureMovie>& movie) {
    return MoviePicture(movie).Draw(1, ViewOfStage(movie->Stage, 1));
}

TEST(Outlines, are_linked_from_edges_in_any_order_on_either_side) {
    // A frame: the outer box has its inside on the right, the inner one, against the clock, too.
    std::vector<OutlineStep> steps = Around(0, 0, 30, 30, 0, 1);
    for (const OutlineStep& step : Around(10, 10, 20, 20, 1, 0)) steps.push_back(step);
    std::swap(steps[0], steps[5]);
    std::swap(steps[2], steps[7]);
    const Raster picture = Drawn(MovieOf({Place(1, Shape(steps), 5, 5)}));
    EXPECT_EQ(picture.Row(5)[5], RedPixel);
    EXPECT_EQ(picture.Row(34)[34], RedPixel);
    EXPECT_EQ(picture.Row(20)[20], WhitePixel);
    EXPECT_EQ(picture.Row(4)[5], WhitePixel);
    EXPECT_EQ(picture.Row(35)[20], WhitePixel);
}

TEST(Pictures, show_what_a_clip_layer_lets_through) {
    TimelineStep mask = Place(1, Box(10), 10, 10);
    mask.ClipDepth = 2;
    const Raster picture =
        Drawn(MovieOf({mask, Place(2, Box(20), 0, 0), Place(3, Box(4, {0, 0, 255, 255}), 30, 0)}));
    EXPECT_EQ(picture.Row(9)[9], WhitePixel);
    EXPECT_EQ(picture.Row(10)[10], RedPixel);
    EXPECT_EQ(picture.Row(19)[19], RedPixel);
    EXPECT_EQ(picture.Row(20)[15], WhitePixel);
    EXPECT_EQ(picture.Row(0)[30], 0xFF0000FF);
}

std::string DepthsAt(const Timeline& timeline, Long frame) {
    std::string text;
    for (const auto& placement : timeline.At(frame))
        text += std::to_string(placement->Depth) + "@" + std::to_string(placement->Since) + " ";
    return text;
}

TEST(Pictures, tell_what_lies_under_a_place_from_the_top_down) {
    TimelineStep mask = Place(3, Box(6), 20, 0);
    mask.ClipDepth = 4;
    TimelineStep faint = Place(5, Box(10, {0, 0, 255, 255}), 2, 2);
    faint.Colors = SwfColorTransform{256, 256, 256, 0, 0, 0, 0, 0};
    const auto movie =
        MovieOf({Place(1, Box(10), 0, 0), Place(2, Shape(Around(0, 0, 4, 30, 0, 1)), 6, 0), mask,
                 Place(4, Box(20), 20, 0), faint});
    const PictureView view = ViewOfStage(movie->Stage, 2);
    const auto at = [&](double x, double y) {
        PictureHits hits(*movie, 1, view, x, y);
        std::vector<Long> depths;
        while (const auto depth = hits.Next()) depths.push_back(*depth);
        return depths;
    };
    EXPECT_EQ(at(15, 15), (std::vector<Long>{5, 2, 1}));
    EXPECT_EQ(at(1, 1), (std::vector<Long>{1}));
    EXPECT_EQ(at(15, 50), (std::vector<Long>{2}));
    EXPECT_EQ(at(45, 5), (std::vector<Long>{4}));
    // The mask hides the rest of it.
    EXPECT_TRUE(at(70, 5).empty());
    EXPECT_TRUE(at(110, 70).empty());
}

TEST(Pictures, drawn_quickly_show_small_bitmaps_from_smaller_copies) {
    Raster checks(65, 64);
    for (Long y = 0; y < 64; ++y)
        for (Long x = 0; x < 65; ++x) checks.Row(y)[x] = (x + y) % 2 == 0 ? 0xFFFFFFFF : 0xFF000000;
    TimelineStep step = Place(1, std::make_shared<BitmapCharacter>(std::move(checks)), 0, 0);
    step.Matrix = cairo_matrix_t{0.25, 0, 0, 0.25, 0, 0};
    const auto movie = MovieOf({step});
    PictureView view = ViewOfStage(movie->Stage, 1);
    view.Options.blQuick = true;
    const Raster picture = MoviePicture(movie).Draw(1, view);
    for (Long x = 1; x < 15; ++x) EXPECT_NEAR(picture.Row(8)[x] & 0xFF, 127, 2) << x;
    EXPECT_EQ(picture.Row(8)[17], WhitePixel);
}

TEST(Pictures, show_a_video_as_an_outline_with_its_name) {
    const auto marks = [](const char16_t* name) {
        TimelineStep video = Place(1, std::make_shared<VideoCharacter>(50, 30), 4, 4);
        video.Name = name;
        const Raster picture = Drawn(MovieOf({video}));
        EXPECT_NE(picture.Row(20)[4], WhitePixel);
        EXPECT_NE(picture.Row(20)[54], WhitePixel);
        Long inside = 0;
        for (Long y = 6; y < 32; ++y)
            inside += 47 - std::count(picture.Row(y) + 6, picture.Row(y) + 53, WhitePixel);
        return inside;
    };
    EXPECT_EQ(marks(u""), 0);
    EXPECT_GT(marks(u"film"), 20);
}

TEST(Timelines, are_played_forwards_and_begun_anew_for_an_earlier_frame) {
    using Kind = TimelineStep::Kind;
    const auto first = Box(1);
    const auto second = Box(2);
    Timeline timeline;
    timeline.Add(Place(5, first, 0, 0));
    timeline.Add(Place(2, first, 7, 0));
    timeline.EndFrame();
    timeline.Add(Place(5, second, 0, 0));  // something stands there
    timeline.Add(Step(Kind::Replace, 2, second));
    timeline.Add(Step(Kind::Move, 9));  // nothing stands there
    timeline.EndFrame();
    timeline.Add(Step(Kind::Remove, 2));
    timeline.EndFrame();
    EXPECT_EQ(timeline.FrameCount(), 3);
    EXPECT_EQ(DepthsAt(timeline, 0), "2@0 5@0 ");
    EXPECT_EQ(DepthsAt(timeline, 1), "2@1 5@0 ");
    EXPECT_EQ(timeline.At(1)[0]->Shown, second);
    EXPECT_EQ(timeline.At(1)[0]->Matrix.x0, 7 * TwipsPerPixel) << "it takes the other's place";
    EXPECT_EQ(DepthsAt(timeline, 9), "5@0 ");
    EXPECT_EQ(DepthsAt(timeline, 0), "2@0 5@0 ");
    EXPECT_TRUE(timeline.Stays(*timeline.At(0)[1]));
    EXPECT_FALSE(timeline.Stays(*timeline.At(0)[0]));
}

TEST(Pictures, of_a_sequence_let_sprites_go_on) {
    Timeline inner;
    inner.Add(Place(1, Box(5), 0, 0));
    inner.EndFrame();
    inner.Add(Step(TimelineStep::Kind::Remove, 1));
    inner.EndFrame();
    const auto movie = MovieOf({Place(1, std::make_shared<SpriteCharacter>(inner), 0, 0)});
    MoviePicture pictures(movie);
    PictureView view = ViewOfStage(movie->Stage, 1);
    EXPECT_EQ(pictures.Draw(2, view).Row(0)[0], RedPixel);
    view.Options.blAnimate = true;
    EXPECT_EQ(pictures.Draw(1, view).Row(0)[0], RedPixel);
    EXPECT_EQ(pictures.Draw(2, view).Row(0)[0], WhitePixel);
    EXPECT_EQ(pictures.Draw(3, view).Row(0)[0], RedPixel);
}

TEST(FramePicture, drawn_in_part_is_the_picture_drawn_whole) {
    GlowFilter glow;
    glow.Blur = {3, 3, 1};
    TimelineStep mask = Place(2, Box(15), 20, 10);
    mask.ClipDepth = 4;
    std::vector<TimelineStep> steps{
        Place(1, Box(10), 2.5, 3), mask, Place(3, Box(9, {0, 200, 0, 128}), 12, 14),
        Place(4, Box(7, {0, 0, 255, 255}), 25.25, 20), Place(6, Box(8, {90, 90, 0, 255}), 40, 5)};
    steps[4].Filters = std::vector<PlacedFilter>{glow};
    steps[4].Blend = BlendMode::Multiply;
    FramePicture kept;
    PictureView view = ViewOfStage(MovieOf(steps)->Stage, 1);
    const std::vector<std::function<void()>> changes{[] {},
                                                     [&] { steps[0].Matrix->x0 += 60; },
                                                     [&] { steps[1].Matrix->y0 += 100; },
                                                     [&] { steps[4].Matrix->x0 -= 300; },
                                                     [&] { view.Left += 7; },
                                                     [&] {
                                                         view.Left -= 12;
                                                         view.Top += 5;
                                                     },
                                                     [&] { steps.erase(steps.begin() + 3); },
                                                     [&] { view.Top += 0.5; },
                                                     [&] { view.Options.Scale = 1.5; },
                                                     [&] { view.Left -= 200; }};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i]();
        const auto movie = MovieOf(steps);
        EXPECT_EQ(kept.Show(movie, 1, view).Pixels(), MoviePicture(movie).Draw(1, view).Pixels())
            << i;
        if (i == 1) {
            EXPECT_LT(kept.Drawn().at(0).Right, 20);
        }
    }
}

/// A movie of a sprite with so many empty frames, placed at depth 1.
Bytes SpriteMovie(Byte frames) {
    Bytes movie{'F', 'W', 'S', 6, 0, 0, 0, 0, 0x00, 0, 12, 1, 0};
    Bytes sprite{1, 0, frames, 0};
    for (Byte i = 0; i < frames; ++i) sprite.insert(sprite.end(), {0x40, 0});
    sprite.insert(sprite.end(), {0, 0});
    movie.insert(movie.end(), {static_cast<Byte>(0xC0 | sprite.size()), 0x09});
    movie.insert(movie.end(), sprite.begin(), sprite.end());
    movie.insert(movie.end(), {0x86, 0x06, 6, 1, 0, 1, 0, 0, 0x40, 0, 0, 0});
    movie[4] = static_cast<Byte>(movie.size());
    return movie;
}

TEST(PictureMovies, share_what_they_define_alike) {
    CharacterCache cache;
    const auto shown = [&cache](Byte frames) {
        return ReadPictureMovie(SpriteMovie(frames), cache)->Main.At(0).at(0)->Shown;
    };
    const auto first = shown(1);
    EXPECT_EQ(shown(1), first);
    const auto second = shown(2);
    EXPECT_NE(second, first);
    EXPECT_EQ(dynamic_cast<const SpriteCharacter&>(*second).inTimeline().FrameCount(), 2);
    EXPECT_EQ(shown(2), second);
}

TEST(PictureMovies, that_are_cut_or_nested_without_end_end_in_time) {
    const Bytes movie = SpriteMovie(3);
    for (std::size_t length = 0; length < movie.size(); ++length)
        if (const auto read = ReadPictureMovie(ByteView(movie).first(length))) {
            EXPECT_LE(read->Main.At(0).size(), 1u);
        }
    std::shared_ptr<const Character> nested = Box(2);
    for (int i = 0; i < 30; ++i) {
        Timeline timeline;
        for (Long depth = 1; depth <= 10; ++depth) timeline.Add(Place(depth, nested, depth, 0));
        timeline.EndFrame();
        nested = std::make_shared<SpriteCharacter>(timeline);
    }
    const auto endless = MovieOf({Place(1, nested, 0, 0)});
    MoviePicture pictures(endless);
    PictureView view = ViewOfStage(endless->Stage, 1);
    view.Options.Deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
    pictures.Draw(1, view);
    EXPECT_TRUE(pictures.GivenUp());
}

/// Every character is half as wide as it is high.
class HalfWide : public GlyphSource {
public:
    Glyph Find(char16_t) const override { return {nullptr, 0.5}; }
    double Ascent() const override { return 0.8; }
    double Descent() const override { return 0.2; }
    double Unit() const override { return 1; }
};

TextRun RunOf(StringView text, Long alignment = 0) {
    TextRun run;
    run.Text = text;
    run.Size = 20;
    run.Font = std::make_shared<HalfWide>();
    run.Alignment = alignment;
    return run;
}

std::string PlacesOf(const std::vector<TextRun>& runs, const FieldMeasures& measures) {
    std::string text;
    const TextFieldLayout layout(runs, measures);
    for (const auto& glyph : layout.Glyphs())
        text += std::string(1, static_cast<char>(glyph.Character)) + std::to_string(int(glyph.X)) +
                "," + std::to_string(int(glyph.Y)) + " ";
    return text;
}

TEST(TextFields, are_broken_into_lines_and_aligned) {
    FieldMeasures measures;
    measures.Width = 45;
    EXPECT_EQ(PlacesOf({RunOf(u"ab\ncd")}, measures), "a0,16 b10,16 c20,16 d30,16 ");
    measures.blMultiLine = true;
    measures.Leading = 4;
    EXPECT_EQ(PlacesOf({RunOf(u"ab\n\nc")}, measures), "a0,16 b10,16 c0,64 ");
    EXPECT_EQ(PlacesOf({RunOf(u"ab\nc", 1)}, measures), "a25,16 b35,16 c35,40 ");
    EXPECT_EQ(PlacesOf({RunOf(u"a", 2)}, measures), "a17,16 ");
    measures.blWordWrap = true;
    EXPECT_EQ(PlacesOf({RunOf(u"ab cd")}, measures), "a0,16 b10,16  20,16 c0,40 d10,40 ");
    EXPECT_EQ(PlacesOf({RunOf(u"abcde")}, measures), "a0,16 b10,16 c20,16 d30,16 e0,40 ");
}

TEST(TextFields, take_the_marks_that_fields_know) {
    const auto runs = HtmlRuns(
        u"a&lt;<font color=\"#00ff80\" size='30'>b<br>c</font><p align=\"right\">d</p>&x;e<b",
        RunOf(u""));
    std::u16string text;
    for (const TextRun& run : runs) text += run.Text + u"|";
    EXPECT_EQ(text, u"a<|b\nc|d\n|&x;e<b|");
    ASSERT_EQ(runs.size(), 4u);
    EXPECT_EQ(runs[1].Color, (PictureColor{0, 255, 128, 255}));
    EXPECT_EQ(runs[1].Size, 600);
    EXPECT_EQ(runs[2].Alignment, 1);
    EXPECT_EQ(runs[3].Color, PictureColor());
    EXPECT_EQ(runs[3].Size, 20);
}

}  // namespace
}  // namespace tamber
