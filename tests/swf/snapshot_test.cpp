#include <random>

#include "canvas/EditSnapshot.h"
#include "canvas/picture/MoviePicture.h"
#include "canvas/picture/SnapshotMovie.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyMovieEmp.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyText.h"
#include "tests/swf/DisplayList.h"
#include "tests/swf/VectorAuthoringTest.h"

namespace tamber {
namespace {

using test::ShownFrame;

/// Movies of one frame against the whole movies that they are a frame of.
class SnapshotTest : public VectorAuthoringTest {
protected:
    ParsedMovie Snapshot(Long frame, Long version = 6, Long firstRow = 1, Long lastRow = 100) {
        const UserInterfaceScope scope(interface);
        clsSWFAdmin admin;
        admin.Ver = version;
        admin.SetDimension(0, 6400, 0, 4800, 0);
        SnapshotRequest request;
        request.Layers = &layers;
        request.FirstRow = firstRow;
        request.LastRow = lastRow;
        request.Frame = frame;
        request.blTopToBottom = blTopToBottom;
        const String file = FromNarrow(path.string());
        EXPECT_TRUE(WriteEditSnapshot(admin, request, -1, file, placed));
        return test::ParseMovie(file);
    }

    ShownFrame SnapshotFrame(Long frame, Long version) {
        const auto frames = test::DisplayListPlayer().Play(Snapshot(frame, version));
        EXPECT_EQ(frames.size(), 1u);
        return frames.at(0);
    }

    /// Every frame of the movie, and the one behind its end, is what its snapshot shows.
    void ExpectSameFrames(Long version) {
        const auto frames = test::DisplayListPlayer().Play(Build(version));
        for (std::size_t i = 0; i < frames.size(); ++i) {
            const auto frame = static_cast<Long>(i + 1);
            EXPECT_EQ(SnapshotFrame(frame, version), frames[i]) << "frame " << frame;
        }
    }

    PlacedTags placed;
};

/// Timelines by lot: key frames with and without tweens, gaps, hidden ones, masks, bent and
/// morphing drawings, komas, easing, paths, colours, filters and blend modes. With `overlap`,
/// spans reach into the key frames behind them.
class RandomTimeline {
public:
    RandomTimeline(unsigned seed, bool filters, bool overlap)
        : lot_(seed), filters_(filters), overlap_(overlap) {}

    void Fill(clsLayer& layer) {
        Long frame = Upto(3);
        const Long count = Upto(5);
        for (Long i = 0; i < count; ++i) {
            const Long length = Upto(4);
            FillKeyFrame(layer, frame, overlap_ ? length + Upto(8) : length);
            frame += length + (Upto(4) == 1 ? Upto(2) : 0);
        }
        if (Upto(4) == 1) layer.ClippingDepth = Upto(2);
    }
    Long Upto(Long most) { return std::uniform_int_distribution<Long>(1, most)(lot_); }

private:
    void FillKeyFrame(clsLayer& layer, Long frame, Long length) {
        Long index = 0;
        layer.Add(frame, nullptr, index);
        clsLayerObject& object = *layer.Object(index);
        object.DispCount(length);
        object.blTween = Upto(2) == 1;
        object.blVisible = Upto(6) != 1;
        clsLayerObjElement& element = *object.Placement();
        element.X(static_cast<Single>(Upto(200)));
        element.Y(static_cast<Single>(Upto(200)));
        element.Angle(static_cast<Single>(Upto(360)));
        element.ScaleX(static_cast<Single>(Upto(20)) / 10);
        element.Toumei = Upto(100);
        element.Bright = Upto(3) == 1 ? Upto(100) : 0;
        element.Edging = Upto(255) - 128;
        if (Upto(3) == 1) AddPath(element);
        if (Upto(4) == 1) AddCurves(element);
        if (filters_) AddFilters(element);
        if (auto* drawing = object.ObjectAs<clsObjVector>(); drawing != nullptr && Upto(3) == 1)
            Bend(*drawing);
    }
    void AddPath(clsLayerObjElement& element) {
        for (Long type = 0; type < 2; ++type) {
            auto point = std::make_shared<clsTweenPointData>();
            point->X = static_cast<Single>(Upto(200));
            point->Y = static_cast<Single>(Upto(200));
            point->PointType = type;
            element.Addtp(std::move(point));
        }
    }
    void AddCurves(clsLayerObjElement& element) {
        element.blCustomEdging = true;
        element.EdgingAllMode = Upto(3) - 1;
    }
    void AddFilters(clsLayerObjElement& element) {
        element.inFilter->blGlow = true;
        element.inFilter->fltGlow.GlowColorA = static_cast<Byte>(Upto(100));
        element.eBlend = Upto(14) - 1;
    }
    void Bend(clsObjVector& drawing) {
        drawing.blFreeTrans = true;
        drawing.FreeTransPoints = {Upto(40), 0, 160, Upto(40), 200, 200, 0, 200};
        drawing.blDivide = Upto(2) == 1;
    }

    std::mt19937 lot_;
    bool filters_;
    bool overlap_;
};

class RandomSnapshotTest : public SnapshotTest {
protected:
    void ExpectSameMovies(bool overlap) {
        AddVector(1);
        AddVector(2)->Property<clsPropertyVector>()->blDivide = true;
        AddVector(1)->Property<clsPropertyVector>()->MorphSymbol(AddVector(1));
        const auto koma = AddSymbol(std::make_shared<clsSymbolData>(KindKoma));
        koma->Property<clsPropertyKoma>()->DispCount = 2;
        for (const Long i : {1, 2, 4}) koma->Property<clsPropertyKoma>()->colKomas->Add(library(i));
        for (unsigned seed = 1; seed <= 60; ++seed) {
            SCOPED_TRACE(seed);
            const Long version = seed % 2 == 0 ? 8 : 6;
            RandomTimeline lot(seed, version == 8, overlap);
            layers.Clear();
            blTopToBottom = seed % 3 != 0;
            for (Long row = 0; row < 5; ++row) lot.Fill(*AddLayer(library(lot.Upto(5))));
            ExpectSameFrames(version);
            if (HasFailure()) break;
        }
    }
};

TEST_F(RandomSnapshotTest, every_frame_of_timelines_by_lot_is_what_the_movie_shows) {
    ExpectSameMovies(false);
}

TEST_F(RandomSnapshotTest, spans_that_overlap_show_what_the_movie_shows) {
    ExpectSameMovies(true);
}

TEST_F(SnapshotTest, a_morph_is_at_its_end_until_the_drawing_is_bent) {
    const auto symbol = AddVector(1);
    symbol->Property<clsPropertyVector>()->MorphSymbol(AddVector(1));
    const auto layer = AddLayer(symbol);
    AddKeyFrame(*layer, 1, 2).blTween = true;
    for (Long frame = 3; frame <= 6; ++frame) AddKeyFrame(*layer, frame, 1);
    Bend(*layer->Object(4));
    ExpectSameFrames(6);
}

TEST_F(SnapshotTest, a_bent_key_frame_that_another_was_pulled_over_ends_where_that_begins) {
    const auto layer = AddLayer(AddVector(1));
    Bend(AddKeyFrame(*layer, 3, 3));
    AddKeyFrame(*layer, 7, 4);
    bool changed = false;
    layer->ShiftLeft(4, 6, changed);
    ASSERT_EQ(layer->Object(1)->endFrame(), 5);
    ASSERT_EQ(layer->Object(2)->StartFrame(), 4);
    const auto frames = test::DisplayListPlayer().Play(Build());
    ASSERT_EQ(frames.size(), 7u);
    for (std::size_t i = 2; i < frames.size(); ++i) EXPECT_EQ(frames[i].size(), 1u) << i + 1;
    EXPECT_NE(frames[2], frames[3]);
    EXPECT_EQ(frames[3], frames[6]);
    ExpectSameFrames(6);
}

TEST_F(SnapshotTest, spans_of_a_damaged_file_are_no_harm) {
    const auto layer = AddLayer(AddBitmap(1, 1));
    AddKeyFrame(*layer, 1, 1).DispCount(2147483647);
    layer->Object(1)->blTween = true;
    AddKeyFrame(*layer, 5, 1, 9, 9);
    EXPECT_EQ(Snapshot(3).Codes(), (std::vector<Long>{36, 2, 26, 1, 0}));
    const auto koma = AddSymbol(std::make_shared<clsSymbolData>(KindKoma));
    koma->Property<clsPropertyKoma>()->colKomas->Add(library(1));
    layers.Clear();
    const auto row = AddLayer(koma);
    AddKeyFrame(*row, 2, 1).DispCount(2147483647);
    AddKeyFrame(*row, 5, 3);
    for (const Long frame : {-1, 0, 1, 3, 6, 2147483647}) {
        const bool seen = frame == 3 || frame == 6;
        EXPECT_EQ(test::Places(Snapshot(frame)).size(), seen ? 1u : 0u) << frame;
    }
}

TEST_F(SnapshotTest, of_too_many_rows_those_that_fit_are_shown) {
    AddBitmap(1, 1);
    for (int i = 0; i < 16500; ++i) AddKeyFrame(*AddLayer(library(1)), 1, 1);
    for (const bool order : {true, false}) {
        blTopToBottom = order;
        const auto places = test::Places(Snapshot(1, 6, 1, layers.Count()));
        ASSERT_EQ(places.size(), 16383u);
        EXPECT_EQ(places.front().Depth, order ? 16383 : 257);
        EXPECT_EQ(places.back().Depth, order ? 1 : 257 + 16382);
    }
}

TEST_F(SnapshotTest, draws_the_frame_of_the_movie_and_reads_no_picture_twice) {
    const auto first = AddLayer(AddBitmap(30, 20));
    AddKeyFrame(*first, 1, 5, 10, 10).blTween = true;
    AddKeyFrame(*first, 6, 1, 200, 100);
    AddKeyFrame(*AddLayer(AddBitmap(50, 50)), 1, 6, 40, 30);
    Bytes file;
    MovieRequest request = Request(8);
    request.Movie = &file;
    ASSERT_TRUE(mdlSWFAuthoring::BuildMovie(request).Written);
    MoviePicture whole(ReadPictureMovie(file));
    const PictureView view = ViewOfStage(whole.Movie().Stage, 1);
    clsSWFAdmin admin;
    admin.Ver = 8;
    admin.SetDimension(0, 6400, 0, 4800, 0);
    CharacterCache cache;
    std::shared_ptr<const Character> shown;
    for (Long frame = 1; frame <= 6; ++frame) {
        SnapshotRequest snapshot;
        snapshot.Layers = &layers;
        snapshot.LastRow = 2;
        snapshot.Frame = frame;
        const auto movie = SnapshotMovie(admin, snapshot, 0xFFFFFF, placed, cache);
        ASSERT_TRUE(movie);
        EXPECT_EQ(placed.size(), 2u);
        EXPECT_EQ(MoviePicture(movie).Draw(1, view).Pixels(), whole.Draw(frame, view).Pixels())
            << frame;
        const auto& back = movie->Main.At(0).at(0)->Shown;
        EXPECT_EQ(back, shown ? shown : back);
        shown = back;
    }
}

TEST_F(SnapshotTest, with_more_characters_than_a_file_can_hold_nothing_is_written) {
    for (int i = 0; i < 3; ++i) {
        const auto sprite = AddSymbol(std::make_shared<clsSymbolData>(KindSprite));
        for (int row = 0; row < 11000; ++row) {
            const auto layer = LayerOf(AddBitmap(1, 1));
            AddKeyFrame(*layer, 1, 1);
            sprite->Property<clsPropertySprite>()->colLayer->Add(layer);
        }
        AddKeyFrame(*AddLayer(sprite), 1, 1);
    }
    clsSWFAdmin admin;
    SnapshotRequest request;
    request.Layers = &layers;
    request.LastRow = layers.Count();
    placed.resize(1);
    EXPECT_FALSE(WriteEditSnapshot(admin, request, -1, FromNarrow(path.string()), placed));
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(placed.size(), 1u);
}

TEST_F(SnapshotTest, only_what_is_seen_on_the_frame_and_in_the_rows_is_defined) {
    AddKeyFrame(*AddLayer(AddBitmap(1, 1)), 1, 2);
    AddKeyFrame(*AddLayer(AddBitmap(2, 2)), 3, 2);
    AddKeyFrame(*AddLayer(AddBitmap(3, 3)), 3, 2, 7, 8);
    EXPECT_EQ(Snapshot(1).Codes(), (std::vector<Long>{36, 2, 26, 1, 0}));
    EXPECT_EQ(Snapshot(3).Codes(), (std::vector<Long>{36, 2, 36, 2, 26, 26, 1, 0}));
    EXPECT_EQ(Snapshot(5).Codes(), (std::vector<Long>{1, 0}));
    const auto places = test::Places(Snapshot(3, 6, 3, 3));
    ASSERT_EQ(places.size(), 1u);
    EXPECT_EQ(places[0].Depth, 16381);
    EXPECT_EQ(places[0].Matrix.TranslateX, 140);
    // The rows are those of the timeline, not of the sprites in it.
    const auto sprite = AddSymbol(std::make_shared<clsSymbolData>(KindSprite));
    sprite->Property<clsPropertySprite>()->colLayer->Add(layers(1));
    AddKeyFrame(*AddLayer(sprite), 3, 1);
    EXPECT_EQ(Snapshot(3, 6, 4, 4).Codes(), (std::vector<Long>{36, 2, 39, 26, 1, 0}));
    EXPECT_EQ(placed.size(), 1u);
}

TEST_F(SnapshotTest, of_a_koma_only_the_picture_that_is_seen_is_defined) {
    const auto koma = AddSymbol(std::make_shared<clsSymbolData>(KindKoma));
    koma->Property<clsPropertyKoma>()->DispCount = 2;
    for (const Long width : {1, 2, 3})
        koma->Property<clsPropertyKoma>()->colKomas->Add(AddBitmap(width, 1));
    AddKeyFrame(*AddLayer(koma), 1, 5);
    AddKeyFrame(*layers(1), 6, 3);
    // The second key frame cuts the third picture short and goes on with the first.
    const std::vector<Long> widths{1, 1, 2, 2, 3, 1, 1, 2};
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const ParsedMovie movie = Snapshot(static_cast<Long>(i + 1));
        EXPECT_EQ(movie.Codes(), (std::vector<Long>{36, 2, 26, 1, 0}));
        EXPECT_EQ(movie.Bodies(36).at(0).at(3), widths[i]) << i + 1;
    }
    const auto sprite = AddSymbol(std::make_shared<clsSymbolData>(KindSprite));
    sprite->Property<clsPropertySprite>()->colLayer->Add(layers(1));
    AddKeyFrame(*AddLayer(sprite), 9, 1);
    const ParsedMovie movie = Snapshot(9);
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{36, 2, 39, 26, 1, 0}));
    EXPECT_EQ(movie.Bodies(36).at(0).at(3), 1);
}

TEST_F(SnapshotTest, a_koma_passes_over_the_pictures_that_the_movie_passes_over) {
    const auto koma = AddSymbol(std::make_shared<clsSymbolData>(KindKoma));
    for (const Long kind : {KindVector, KindButton, KindClass, KindLink, KindText, KindSprite})
        koma->Property<clsPropertyKoma>()->colKomas->Add(
            AddSymbol(std::make_shared<clsSymbolData>(kind)));
    library(6)->Property<clsPropertyText>()->blDynamic = true;
    koma->Property<clsPropertyKoma>()->colKomas->Add(AddVector(1));
    AddKeyFrame(*AddLayer(koma), 1, 8);
    const std::vector<std::vector<Long>> version6{
        {1, 0}, {57, 26, 1, 0}, {37, 26, 1, 0}, {39, 26, 1, 0}, {32, 26, 1, 0}};
    const std::vector<std::vector<Long>> version4{
        {1, 0}, {37, 26, 1, 0}, {39, 26, 1, 0}, {32, 26, 1, 0}};
    for (const auto& [version, pictures] : {std::pair(6, version6), std::pair(4, version4)}) {
        const auto places = test::Places(Build(version));
        ASSERT_EQ(places.size(), 8u);
        for (std::size_t i = 0; i < 8; ++i) {
            const std::size_t picture = i % pictures.size();
            EXPECT_EQ(Snapshot(static_cast<Long>(i + 1), version).Codes(), pictures[picture]);
            EXPECT_EQ(places[i].Character, places[picture].Character);
            EXPECT_EQ(places[i].Character == places[0].Character, picture == 0);
        }
    }
}

TEST_F(SnapshotTest, each_placement_tells_its_row_and_key_frame) {
    AddKeyFrame(*AddLayer(AddBitmap(1, 1)), 1, 9);
    const auto layer = AddLayer(library(1));
    AddKeyFrame(*layer, 1, 4).blTween = true;
    AddKeyFrame(*layer, 5, 1, 40, 0);
    Snapshot(2);
    ASSERT_EQ(placed.size(), 2u);
    EXPECT_EQ(placed[0]->LayerIndex, 1);
    EXPECT_EQ(placed[0]->ObjIndex, 1);
    EXPECT_EQ(placed[1]->LayerIndex, 2);
    EXPECT_EQ(placed[1]->ObjIndex, 1);
    // A quarter of the way of 800 twips.
    EXPECT_EQ(placed[1]->TranslateX, 200);
    Snapshot(5);
    EXPECT_EQ(placed[1]->ObjIndex, 2);
}

TEST_F(SnapshotTest, a_sprite_shows_its_first_frame_from_its_origin_and_runs_no_script) {
    const auto sprite = AddSymbol(std::make_shared<clsSymbolData>(KindSprite));
    auto& record = *sprite->Property<clsPropertySprite>();
    record.baseX = 5;
    const auto action = LayerOf(std::make_shared<clsSymbolData>(KindFrameAction));
    AddKeyFrame(*action, 1, 1).ObjectAs<clsObjFrameAction>()->inScript.ScriptText =
        u"#initclip\r\n";
    record.colLayer->Add(action);
    const auto tween = LayerOf(AddBitmap(1, 1));
    AddKeyFrame(*tween, 1, 9, 15, 0).blTween = true;
    AddKeyFrame(*tween, 10, 1, 95, 0);
    record.colLayer->Add(tween);
    const auto late = LayerOf(AddBitmap(2, 2));
    AddKeyFrame(*late, 2, 1);
    record.colLayer->Add(late);
    const auto layer = AddLayer(sprite);
    layer->inScript.eScriptMode(clsScriptData::ModeFree);
    layer->inScript.ScriptText = u"not { a script";
    AddKeyFrame(*layer, 1, 3);

    const ParsedMovie movie = Snapshot(2);
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{36, 2, 39, 26, 1, 0}));
    // Sprite 3 of one frame: character 2 at depth 16383, 200 twips from the origin in fields of 9
    // bits (0 0 01001 011001000 000000000), and no colours.
    const Bytes place{0x0E, 0xFF, 0x3F, 2, 0, 0x12, 0xC8, 0x00, 0x00, 0x00};
    Bytes body{3, 0, 1, 0};
    body.push_back(static_cast<Byte>(place.size() | (26 & 3) << 6));
    body.push_back(26 >> 2);
    body.insert(body.end(), place.begin(), place.end());
    for (const Byte end : {0x40, 0, 0, 0}) body.push_back(end);
    EXPECT_EQ(movie.Bodies(39)[0], body);
    EXPECT_TRUE(interface.Messages.empty());
    EXPECT_TRUE(interface.StatusLines.empty());
}

TEST_F(SnapshotTest, a_button_shows_its_states_and_does_nothing) {
    const auto button = AddSymbol(std::make_shared<clsSymbolData>(KindButton));
    button->Property<clsPropertyButton>()->UpSymbol(AddBitmap(1, 1));
    const auto layer = AddLayer(button);
    layer->inScript.eScriptMode(clsScriptData::ModeFree);
    layer->inScript.ScriptText = u"on (press) { stop(); }";
    AddKeyFrame(*layer, 4, 1);
    const ParsedMovie movie = Snapshot(4);
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{36, 2, 34, 26, 1, 0}));
    // The offset of the actions.
    const Bytes body = movie.Bodies(34)[0];
    EXPECT_EQ(body[3], 0);
    EXPECT_EQ(body[4], 0);
}

TEST_F(SnapshotTest, a_symbol_that_fits_no_version_is_left_out_without_a_word) {
    const auto movie = AddSymbol(std::make_shared<clsSymbolData>(KindMovieEmp));
    AddKeyFrame(*AddLayer(movie), 1, 1);
    AddKeyFrame(*AddLayer(AddBitmap(1, 1)), 1, 1);
    EXPECT_EQ(test::Places(Snapshot(1, 4)).size(), 1u);
    EXPECT_TRUE(interface.Messages.empty());
}

TEST_F(SnapshotTest, an_empty_movie_is_a_stream_of_its_size_with_a_name_to_be_known_by) {
    auto movie = std::make_shared<clsSymbolData>(KindMovieEmp);
    auto& record = *movie->Property<clsPropertyMovieEmp>();
    record.MovieName = u"film";
    record.Width = 320;
    record.height = 240;
    const auto layer = AddLayer(AddSymbol(std::move(movie)));
    AddKeyFrame(*layer, 1, 1);
    const auto nameEnds = [&](const Bytes& name) {
        const Bytes place = Snapshot(1, 8).Bodies(26).at(0);
        return place.size() > name.size() && std::equal(name.rbegin(), name.rend(), place.rbegin());
    };
    EXPECT_EQ(Snapshot(1, 8).Bodies(60).at(0), (Bytes{1, 0, 0, 0, 0x40, 1, 0xF0, 0, 0, 0}));
    EXPECT_TRUE(nameEnds({'f', 'i', 'l', 'm', 0}));
    layer->InstanceName = u"v1";
    EXPECT_TRUE(nameEnds({'v', '1', 0}));
    // A video shows its place, too, in pictures only: of 320 by 240 as long as nothing is known.
    auto video = std::make_shared<clsSymbolData>(KindMovie);
    layer->SymbolData(AddSymbol(video));
    EXPECT_EQ(Snapshot(1, 8).Bodies(60).at(0), (Bytes{1, 0, 0, 0, 0x40, 1, 0xF0, 0, 0, 0}));
}

}  // namespace
}  // namespace tamber
