#include <gtest/gtest.h>
#include <zlib.h>

#include <filesystem>

#include "platform/codepage.h"
#include "platform/files.h"
#include "swf/authoring/clsSWFAdmin.h"
#include "tests/vector/MovieMaker.h"
#include "tests/vector/ShapeText.h"
#include "vector/SwfReader.h"

namespace tamber::test {
namespace {

using Maker = MovieMaker;

/// A shape tag; `rest` is what stands behind the bounds.
Maker Shape(int code, unsigned id, const Maker& rest) {
    Maker body;
    body.Low(2, id).Rect(0, 1, 0, 1);
    if (code == 83) body.Rect(0, 1, 0, 1).Low(1, 2);
    return Maker().Tag(code, body.Add(rest));
}

Maker Place(unsigned id, unsigned depth, int x = 0, int y = 0) {
    return Maker().Tag(4, Maker().Low(2, id).Low(2, depth).Matrix(x, y));
}

/// Behind the fill table: no lines, index widths, a line to the right that the first fill bounds.
Maker Stroke(int length) {
    return Maker()
        .Low(1, 0)
        .Low(1, 0x10)
        .Change(1 | 4)
        .Move(0, 0)
        .Bits(1, 1)
        .LevelLine(length)
        .End();
}

/// A shape of DefineShape3 with one red fill and one line of that length.
Maker RedShape(unsigned id, int length) {
    return Shape(32, id, Maker().Low(2, 1).Low(4, 0xFF0000FF).Add(Stroke(length)));
}

TEST(SwfReader, a_square_of_the_first_format_reads_as_worked_out_by_hand) {
    const Maker square = Shape(2, 7,
                               Maker()
                                   .Low(2, 1)
                                   .Low(3, 0x332211)
                                   .Low(1, 1)
                                   .Low(2, 20)
                                   .Low(3, 0x665544)
                                   .Low(1, 0x11)
                                   .Change(1 | 2 | 4 | 8)
                                   .Move(-30, 40)
                                   .Bits(3, 3)
                                   .LevelLine(200)
                                   .UprightLine(-1)
                                   .Line(-100, 61)
                                   .Curve(-50, 0, -50, -60)
                                   .Change(2 | 4)
                                   .Bits(2, 2)
                                   .Change(8)
                                   .Bits(1, 0)
                                   .UprightLine(1)
                                   .End());
    clsVector vector;
    ASSERT_TRUE(ReadSwfBytes(Movie(Maker(square).Add(Place(7, 1, 1000, -500))), vector));
    // The corner of the stage does not count; 2019 twips are 100 whole pixels.
    EXPECT_EQ(vector.Width, 100);
    EXPECT_EQ(vector.height, 50);
    // The file's fill 1 stands behind the placeholder. The first change puts it on side 1, the
    // second on side 0 and clears side 1.
    EXPECT_EQ(ShapeTexts(vector),
              "a1 b2 l1 M970,-460 L1170,-460 L1170,-461 L1070,-400 C1020,-400,970,-460 a2 b0 l0 "
              "L970,-459\n");
    const clsVectorData2& piece = *vector.inVector->ShapeDataTbl(1);
    EXPECT_EQ(piece.Ver, 3);
    EXPECT_EQ(SolidColorOf(piece, 1), 0u);
    EXPECT_EQ(SolidColorOf(piece, 2), 0xFF332211u);
    EXPECT_EQ(static_cast<std::uint32_t>(piece.colLineStyles->at(0).Color), 0xFF665544u);
    EXPECT_EQ(piece.colLineStyles->at(0).Width, 20);
    EXPECT_EQ(piece.inSWFTShapeRecords->GetBounds(false), (SwfRect{960, -471, 1180, -390}));
    EXPECT_EQ(piece.inSWFTShapeRecords->GetEdgeBounds(), (SwfRect{970, -461, 1170, -400}));
}

TEST(SwfReader, all_fills_of_all_formats_read_and_move_with_their_shape) {
    for (const int code : {2, 22, 32, 83}) {
        SCOPED_TRACE(code);
        const bool alpha = code >= 32;
        const auto color = [alpha](Maker maker, std::uint32_t value) {
            return maker.Low(alpha ? 4 : 3, value);
        };
        const std::uint32_t expectedAlpha = alpha ? 0x80000000 : 0xFF000000;
        Maker fills;
        fills.Low(1, 8).Add(color(Maker().Low(1, 0x00), 0x80030201));
        for (const unsigned type : {0x10u, 0x12u, 0x13u}) {
            Maker gradient;
            gradient.Low(1, type).Matrix(7, -9).Low(1, 2 << 6 | 1 << 4 | 2);
            gradient.Add(color(Maker().Low(1, 16), 0x80000001));
            gradient.Add(color(Maker().Low(1, 240), 0x80000002));
            if (type == 0x13) gradient.Low(2, 0xFF80);
            fills.Add(gradient);
        }
        for (const unsigned type : {0x40u, 0x41u, 0x42u, 0x43u})
            fills.Add(Maker().Low(1, type).Low(2, 99).Matrix(7, -9));
        const Maker bitmap = Maker().Tag(20, Maker().Low(2, 99).Low(3, 0x030201));
        clsVector vector;
        ASSERT_TRUE(ReadSwfBytes(
            Movie(Shape(code, 1, fills.Add(Stroke(60))).Add(bitmap).Add(Place(1, 1, 100, 20))),
            vector));
        const clsVectorData2& piece = *vector.inVector->ShapeDataTbl(1);
        EXPECT_EQ(ShapeTexts(vector), "a1 b2 M100,20 L160,20\n");
        EXPECT_EQ(piece.Ver, code == 83 ? 4 : 3);
        EXPECT_EQ(piece.blUsesNonScalingStrokes, code == 83);
        EXPECT_EQ(piece.blUsesScalingStrokes, code != 83);
        ASSERT_EQ(piece.colFillStyles->size(), 9u);
        EXPECT_EQ(SolidColorOf(piece, 2), expectedAlpha | 0x030201);
        const SwfMatrix expected{0x8000, 0x20000, 0, 0, 107, 11};
        for (std::size_t i = 2; i < 9; ++i) {
            const clsSWFTFillStyle& fill = piece.colFillStyles->at(i);
            EXPECT_EQ(fill.FillMode(), static_cast<Long>(i) - 1);
            const FillMatrix* matrix = fill.StyleObject()->Matrix();
            EXPECT_TRUE(matrix->blMatrix2);
            EXPECT_EQ(matrix->Matrix2, expected);
            if (const auto* gradient = fill.StyleAs<clsSWFTFillLinearRadial>()) {
                EXPECT_EQ(gradient->spreadMode, 2);
                EXPECT_EQ(gradient->interpolationMode, 1);
                EXPECT_EQ(gradient->ColorPosTbl, (Bytes{16, 240}));
                EXPECT_EQ(gradient->ColorTbl,
                          (std::vector<Long>{static_cast<Long>(expectedAlpha | 1),
                                             static_cast<Long>(expectedAlpha | 2)}));
            } else {
                ASSERT_NE(fill.StyleAs<clsSWFTFillBmpClippedTiled>(), nullptr);
                EXPECT_EQ(fill.StyleAs<clsSWFTFillBmpClippedTiled>()->Bitmap.get(),
                          vector.inVector->colBitmap.at(0).get());
            }
        }
        EXPECT_EQ(piece.colFillStyles->at(4).StyleAs<clsSWFTFillFocalRadial>()->FocalPoint, -128);
    }
}

TEST(SwfReader, bitmaps_are_kept_whole_and_a_missing_one_leaves_the_other_fills_right) {
    Maker movie;
    for (const int code : {20, 21, 35, 36})
        movie.Tag(code, Maker().Low(2, static_cast<unsigned>(code)).Low(3, 0x0A0B0C));
    Maker fills;
    fills.Low(1, 3);
    for (const unsigned id : {65535u, 36u, 5u}) fills.Low(1, 0x41).Low(2, id).Matrix(0, 0);
    fills.Low(1, 0).Low(1, 0x20);
    for (const int index : {1, 2, 3}) fills.Change(2 | 4).Bits(4, index * 5).UprightLine(1);
    movie.Add(Shape(22, 1, fills.End())).Add(Place(1, 1));
    clsVector vector;
    ASSERT_TRUE(ReadSwfBytes(Movie(movie), vector));
    ASSERT_EQ(vector.inVector->colBitmap.size(), 4u);
    const Long codes[] = {20, 21, 35, 36};
    for (std::size_t i = 0; i < 4; ++i) {
        const clsVectorBitmap& bitmap = *vector.inVector->colBitmap[i];
        EXPECT_EQ(bitmap.TagNum(), codes[i]);
        EXPECT_EQ(bitmap.ID, codes[i]);
        EXPECT_EQ(bitmap.bufBitmap, (Bytes{0x0C, 0x0B, 0x0A}));
    }
    EXPECT_EQ(vector.inVector->ShapeDataTbl(1)->colFillStyles->size(), 2u);
    EXPECT_EQ(ShapeTexts(vector), "a1 b1 M0,0 L0,1 a2 b2 L0,2 a1 b1 L0,3\n");
}

TEST(SwfReader, pictures_of_the_first_format_get_the_tables_of_the_movie) {
    const auto bytes = [](const Bytes& list) {
        Maker maker;
        for (const Byte byte : list) maker.Low(1, byte);
        return maker;
    };
    const struct {
        Bytes Tables;
        Bytes Picture;
        Bytes Joined;
    } cases[] = {
        {{0xFF, 0xD8, 0xFF, 0xDB, 1, 0xFF, 0xD9},
         {0xFF, 0xD8, 0xFF, 0xC0, 2, 0xFF, 0xD9},
         {0xFF, 0xD8, 0xFF, 0xDB, 1, 0xFF, 0xC0, 2, 0xFF, 0xD9}},
        // With what old writers put in front.
        {{0xFF, 0xD9, 0xFF, 0xD8, 0xFF, 0xD8, 1, 0xFF, 0xD9},
         {0xFF, 0xD9, 0xFF, 0xD8, 0xFF, 0xD8, 2, 0xFF, 0xD9},
         {0xFF, 0xD8, 1, 2, 0xFF, 0xD9}},
        {{}, {0xFF, 0xD8, 2, 0xFF, 0xD9}, {0xFF, 0xD8, 2, 0xFF, 0xD9}},
        {{0xFF, 0xD8, 0xFF, 0xD9}, {0xFF, 0xD8, 2, 0xFF}, {0xFF, 0xD8, 2, 0xFF}},
        {{0xFF, 0xD8, 1}, {}, {0xFF, 0xD8, 1}},
    };
    for (const auto& c : cases) {
        Maker movie;
        movie.Tag(8, bytes(c.Tables)).Tag(6, Maker().Low(2, 9).Add(bytes(c.Picture)));
        clsVector vector;
        ASSERT_TRUE(ReadSwfBytes(Movie(movie.Add(RedShape(1, 1)).Add(Place(1, 1))), vector));
        ASSERT_EQ(vector.inVector->colBitmap.size(), 1u);
        EXPECT_EQ(vector.inVector->colBitmap[0]->TagNum(), 21);
        EXPECT_EQ(vector.inVector->colBitmap[0]->ID, 9);
        EXPECT_EQ(vector.inVector->colBitmap[0]->bufBitmap, c.Joined);
    }
}

TEST(SwfReader, line_styles_of_the_fourth_format_keep_their_options) {
    Maker styles;
    styles.Low(1, 0).Low(1, 3);
    // Start cap 2, join 2, no fill, no level scaling; no close, end cap 1; miter limit; colour.
    styles.Low(2, 40).Low(1, 0b10100100).Low(1, 0b101).Low(2, 0x0280).Low(4, 0x80112233);
    // Start cap 1, join 1, no upright scaling, hinting.
    styles.Low(2, 65535).Low(1, 0b01010011).Low(1, 0b010).Low(4, 0x01020304);
    styles.Low(2, 1).Low(1, 0b00001000).Low(1, 0).Low(1, 0x12).Matrix(5, 6).Low(1, 1);
    styles.Low(1, 3).Low(4, 0xFF000000);
    styles.Low(1, 0x02).Change(8).Bits(2, 3).UprightLine(1).Change(8).Bits(2, 0).LevelLine(1);
    clsVector vector;
    ASSERT_TRUE(ReadSwfBytes(Movie(Shape(83, 1, styles.End()).Add(Place(1, 1, 10, 20))), vector));
    EXPECT_EQ(ShapeTexts(vector), "a1 l3 M10,20 L10,21 l0 L11,21\n");
    const LineStyleList& lines = *vector.inVector->ShapeDataTbl(1)->colLineStyles;
    ASSERT_EQ(lines.size(), 3u);
    const auto options = [](const clsSWFTLineStyle& line) {
        return std::vector<Long>{line.Width,
                                 line.StartCapStyle,
                                 line.JoinStyle,
                                 line.EndCapStyle,
                                 line.MiterLimitFactor,
                                 line.Color,
                                 line.blNoHScaleFlag,
                                 line.blNoVScaleFlag,
                                 line.blNoClose,
                                 line.blPixelHintingFlag};
    };
    EXPECT_EQ(options(lines[0]),
              (std::vector<Long>{40, 2, 2, 1, 0x280, static_cast<Long>(0x80112233), 1, 0, 1, 0}));
    EXPECT_EQ(options(lines[1]), (std::vector<Long>{65535, 1, 1, 2, 1024, 0x01020304, 0, 1, 0, 1}));
    EXPECT_FALSE(lines[1].inFillStyle);
    ASSERT_TRUE(lines[2].inFillStyle);
    EXPECT_EQ(lines[2].inFillStyle->FillMode(), clsSWFTFillStyle::Radial);
    EXPECT_EQ(lines[2].inFillStyle->StyleObject()->Matrix()->Matrix2.TranslateX, 15);
}

TEST(SwfReader, new_styles_in_mid_shape_begin_a_new_piece_where_the_pen_stands) {
    Maker shape;
    shape.Low(2, 1).Low(4, 0xFF000001).Low(1, 0).Low(1, 0x10);
    shape.Change(1 | 2 | 4).Move(100, 0).Bits(2, 3).LevelLine(50);
    // Two fills and one line; the indices of this record, still of the old widths, mean the new
    // styles.
    shape.Change(16 | 4).Bits(1, 1).Low(2, 2).Low(4, 0xFF000002).Low(1, 0).Low(4, 0xFF000003);
    shape.Low(1, 1).Low(2, 20).Low(4, 0xFF000004).Low(1, 0x21).UprightLine(1);
    shape.Change(2 | 8).Bits(2, 2).Bits(1, 1).UprightLine(1);
    // No styles at all, then one fill: no piece of its own between them. Lines reset to none.
    shape.Change(16).Low(2, 0).Low(1, 0x00).Change(1).Move(0, 9);
    shape.Change(16 | 2).Low(2, 1).Low(4, 0xFF000005).Low(1, 0).Low(1, 0x10).LevelLine(3).End();
    clsVector vector;
    ASSERT_TRUE(ReadSwfBytes(
        Movie(Shape(32, 1, shape).Add(RedShape(2, 1)).Add(Place(1, 5, 1000)).Add(Place(2, 6))),
        vector));
    EXPECT_EQ(ShapeTexts(vector),
              "a2 b2 M1100,0 L1150,0\n"
              "a1 b2 M1150,0 L1150,1 a3 l1 L1150,2\n"
              "a1 M1000,9 L1003,9\n"
              "a1 b2 M0,0 L1,0\n");
    const auto colors = [&](Long index) {
        std::vector<std::uint32_t> result;
        const clsVectorData2& piece = *vector.inVector->ShapeDataTbl(index);
        for (std::size_t i = 1; i <= piece.colFillStyles->size(); ++i)
            result.push_back(SolidColorOf(piece, i));
        return result;
    };
    EXPECT_EQ(colors(1), (std::vector<std::uint32_t>{0, 0xFF000001}));
    EXPECT_EQ(colors(2), (std::vector<std::uint32_t>{0, 0xFF000002, 0xFF000003}));
    EXPECT_EQ(colors(3), (std::vector<std::uint32_t>{0, 0xFF000005}));
    // The line of 20 twips covers the place where it begins.
    EXPECT_EQ(vector.inVector->ShapeDataTbl(2)->inSWFTShapeRecords->GetBounds(false),
              (SwfRect{1140, -9, 1160, 12}));
}

TEST(SwfReader, what_the_first_frame_shows_comes_in_the_order_of_depths) {
    const auto place2 = [](int flags, const Maker& rest) {
        return Maker().Tag(26, Maker().Low(1, static_cast<unsigned>(flags)).Add(rest));
    };
    const auto place3 = [](unsigned flags3, const Maker& rest) {
        return Maker().Tag(70, Maker().Low(1, 2 | 4).Low(1, flags3).Add(rest));
    };
    const auto matrix = [](int x) { return Maker().Matrix(x, 0); };
    const auto word = [](unsigned value) { return Maker().Low(2, value); };
    const Maker shapes = RedShape(1, 1).Add(RedShape(2, 2)).Add(RedShape(3, 3));
    const struct {
        const char* Name;
        Maker Tags;
        const char* Expected;
    } cases[] = {
        {"none placed", shapes, ""},
        {"depths against definitions", Maker(shapes).Add(Place(1, 9)).Add(Place(3, 2)),
         "a1 b2 M0,0 L3,0\na1 b2 M0,0 L1,0\n"},
        {"equal depths", Maker(shapes).Add(Place(1, 4)).Add(Place(2, 4)),
         "a1 b2 M0,0 L2,0\na1 b2 M0,0 L1,0\n"},
        {"unknown and early", Place(1, 1).Add(shapes).Add(Place(8, 1)).Add(Place(2, 0)), ""},
        {"second format", Maker(shapes).Add(place2(6, word(3).Low(2, 2).Add(matrix(50)))),
         "a1 b2 M50,0 L52,0\n"},
        {"second format without a place", Maker(shapes).Add(place2(2, word(3).Low(2, 2))),
         "a1 b2 M0,0 L2,0\n"},
        {"moved on", Maker(shapes).Add(Place(2, 3, 8)).Add(place2(5, word(3).Add(matrix(50)))),
         "a1 b2 M50,0 L52,0\n"},
        // The matrix must not be taken for an identifier.
        {"nothing to move", Maker(shapes).Add(place2(5, word(3).Low(2, 1).Low(8, 0))), ""},
        {"replaced", Maker(shapes).Add(Place(2, 3, 8)).Add(place2(3, word(3).Low(2, 1))),
         "a1 b2 M8,0 L9,0\n"},
        {"replaced by no shape", Maker(shapes).Add(Place(2, 3)).Add(place2(3, word(3).Low(2, 7))),
         ""},
        {"third format", Maker(shapes).Add(place3(0, word(3).Low(2, 2).Add(matrix(50)))),
         "a1 b2 M50,0 L52,0\n"},
        {"third format by class", Maker(shapes).Add(place3(8, word(3).Low(2, 2).Add(matrix(9)))),
         ""},
        {"second frame", Maker(shapes).Tag(1, {}).Add(Place(1, 1)), ""},
        {"behind the end", Maker(shapes).Tag(0, {}).Add(Place(1, 1)), ""},
        {"other tags",
         Maker()
             .Tag(9, Maker().Low(3, 0))
             .Add(shapes)
             .Add(Place(1, 1))
             .Tag(200, Maker().Low(70, 0)),
         "a1 b2 M0,0 L1,0\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        clsVector vector;
        ASSERT_TRUE(ReadSwfBytes(Movie(c.Tags), vector));
        EXPECT_EQ(ShapeTexts(vector), c.Expected);
    }
    clsVector vector;
    EXPECT_FALSE(ReadSwfBytes(Movie(Maker().Tag(9, Maker().Low(3, 0))), vector));
}

TEST(SwfLeftOut, names_what_the_first_frame_has_besides_shapes_that_are_moved) {
    const auto place2 = [](int flags, const Maker& rest) {
        return Maker().Tag(
            26, Maker().Low(1, static_cast<unsigned>(flags)).Low(2, 5).Low(2, 1).Add(rest));
    };
    const auto place3 = [](unsigned flags3) {
        return Maker().Tag(70, Maker().Low(1, 2).Low(1, flags3).Low(2, 5).Low(2, 1));
    };
    const auto other = [](int code) {
        return Maker().Tag(code, Maker().Low(2, 9).Low(4, 0)).Add(Place(9, 3));
    };
    const Maker moved = Maker().Bits(2, 0).Move(3, 4);
    const Maker turned = Maker().Bits(2, 1).Bits(5, 2).Bits(4, 5).Move(3, 4);
    const struct {
        Maker Tags;
        std::vector<String> Names;
    } cases[] = {
        {place2(2 | 4, moved), {}},
        {place2(2 | 4 | 8, Maker(moved).Low(1, 0x04)), {}},
        {place2(2 | 4 | 8, Maker(moved).Low(4, 0x40)), {u"配置のカラー変換"}},
        {place2(2 | 4, turned), {u"配置の拡大縮小や回転"}},
        {Place(1, 1), {u"配置の拡大縮小や回転"}},
        {place2(2 | 64, {}), {u"クリッピング"}},
        {place2(2, {}).Tag(26, Maker().Low(1, 1 | 4).Low(2, 5).Add(turned)),
         {u"配置の拡大縮小や回転"}},
        {place2(2, {}).Add(Maker().Tag(26, Maker().Low(1, 2).Low(2, 6).Low(2, 1))),
         {u"同じ図形の再度の配置"}},
        {Maker().Tag(4, Maker().Low(2, 1).Low(2, 1).Add(moved)), {}},
        {Maker().Tag(4, Maker().Low(2, 1).Low(2, 1).Add(moved).Low(2, 0x80)),
         {u"配置のカラー変換"}},
        {place3(0), {}},
        {place3(1), {u"フィルタ"}},
        {place3(2), {u"ブレンドモード"}},
        {place3(8), {u"クラス名での配置"}},
        {other(39), {u"スプライト"}},
        {other(7).Add(other(34)), {u"ボタン"}},
        {other(11), {u"テキスト"}},
        {other(33), {u"テキスト"}},
        {other(37), {u"テキスト"}},
        {other(46), {u"モーフィング"}},
        {other(60), {u"動画"}},
        {Maker().Tag(39, Maker().Low(2, 9)), {}},
        {Maker().Tag(12, {}).Tag(15, {}).Tag(12, {}).Tag(28, Maker().Low(2, 1)),
         {u"スクリプト", u"サウンド", u"配置の取り消し"}},
        {Maker().Tag(1, {}).Tag(12, {}), {}},
    };
    for (const auto& c : cases) {
        clsVector vector;
        EXPECT_TRUE(ReadSwfBytes(Movie(RedShape(1, 1).Add(c.Tags)), vector));
        EXPECT_EQ(vector.LeftOut, c.Names) << &c - std::begin(cases);
    }
    Bytes movie = Movie(RedShape(1, 1));
    constexpr std::size_t FrameCountAt = 8 + 9 + 2;
    movie[FrameCountAt] = 2;
    clsVector vector;
    EXPECT_TRUE(ReadSwfBytes(movie, vector));
    EXPECT_EQ(vector.LeftOut, std::vector<String>{u"2フレーム目以降"});
}

/// The compressed form; `length` is what its header tells.
Bytes Compressed(const Bytes& movie, std::size_t length) {
    uLongf size = compressBound(static_cast<uLong>(movie.size()));
    Bytes body(size);
    compress2(body.data(), &size, movie.data() + 8, static_cast<uLong>(movie.size() - 8),
              Z_BEST_SPEED);
    body.resize(size);
    Maker file;
    file.Low(3, 0x535743).Low(1, 6).Low(4, length);
    Bytes result = file.Made();
    result.insert(result.end(), body.begin(), body.end());
    return result;
}

TEST(SwfReader, compressed_movies_read_like_others) {
    const Bytes movie = Movie(RedShape(1, 77).Add(Place(1, 1)));
    clsVector vector;
    ASSERT_TRUE(ReadSwfBytes(Compressed(movie, movie.size()), vector));
    EXPECT_EQ(ShapeTexts(vector), "a1 b2 M0,0 L77,0\n");
    Bytes other = movie;
    other[0] = 'Z';
    EXPECT_FALSE(ReadSwfBytes(other, vector));
    // More than the header tells.
    EXPECT_FALSE(ReadSwfBytes(Compressed(movie, movie.size() - 9), vector));
    Bytes large = movie;
    large.resize(std::size_t{257} << 20);
    EXPECT_FALSE(ReadSwfBytes(Compressed(large, large.size()), vector));
}

TEST(SwfReader, a_movie_cut_anywhere_is_refused) {
    const Bytes movie = Movie(RedShape(1, 77).Add(Place(1, 1)));
    const Bytes packed = Compressed(movie, movie.size());
    const auto reads = [](const Bytes& file, std::size_t size) {
        clsVector vector;
        return ReadSwfBytes(ByteView(file).first(size), vector);
    };
    // The end of the frame is all that is needed; the end of the movie stands behind it.
    for (std::size_t size = 0; size <= movie.size(); ++size)
        EXPECT_EQ(reads(movie, size), size >= movie.size() - 2) << size;
    for (std::size_t size = 0; size <= packed.size(); ++size)
        EXPECT_EQ(reads(packed, size), size == packed.size()) << size;
}

TEST(SwfReader, damaged_tags_are_refused_and_end_soon) {
    Maker flood;
    flood.Low(2, 0).Low(1, 0);
    for (int i = 0; i < 500000; ++i) flood.Change(16).Low(1, 0).Low(1, 1).Low(7, 1);
    Maker longHead;
    longHead.Low(2, 32 << 6 | 63).Low(4, 0xFFFFFFFF);
    Maker countless;
    for (int i = 0; i < (1 << 20); ++i) countless.Low(2, 9 << 6);
    const struct {
        const char* Name;
        Maker Tags;
    } cases[] = {
        {"unknown fill", Shape(32, 1, Maker().Low(2, 0x2001).Low(40, 0))},
        {"countless fills", Shape(32, 1, Maker().Low(3, 0xFFFFFF).Low(40, 0))},
        {"countless lines", Shape(83, 1, Maker().Low(4, 0xFFFFFF00).Low(40, 0))},
        {"records without end", Shape(32, 1, Maker().Low(3, 0).Low(5, ~0ull))},
        {"bounds of 31 bits", Maker().Tag(32, Maker().Low(2, 1).Low(8, 0xFF))},
        {"shape without identifier", Maker().Tag(32, Maker().Low(1, 1))},
        {"bitmap without identifier", RedShape(1, 1).Tag(20, {})},
        {"placement without depth", RedShape(1, 1).Tag(4, Maker().Low(2, 1))},
        {"tag longer than all", longHead},
        {"tags without end", RedShape(1, 1).Add(countless)},
        {"pieces without end", Shape(32, 1, flood.End())},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        clsVector vector;
        EXPECT_FALSE(ReadSwfBytes(Movie(Maker(c.Tags).Add(Place(1, 1))), vector));
    }
}

TEST(SwfReader, far_places_stay_within_bounds_and_indices_within_their_tables) {
    Maker shape;
    shape.Low(2, 0).Low(1, 0x44).Change(1 | 2 | 4 | 8).Bits(5, 31).Bits(31, 0x3FFFFFFF);
    shape.Bits(31, -0x40000000).Bits(4, 9).Bits(4, 9).Bits(4, 9).Line(2047, -2048).End();
    const Maker place = Maker().Tag(4, Maker()
                                           .Low(2, 1)
                                           .Low(2, 1)
                                           .Bits(2, 0)
                                           .Bits(5, 31)
                                           .Bits(31, 0x3FFFFFFF)
                                           .Bits(31, -0x40000000));
    clsVector vector;
    ASSERT_TRUE(ReadSwfBytes(Movie(Shape(32, 1, shape).Add(place)), vector));
    EXPECT_EQ(ShapeTexts(vector), "a1 b1 l0 M536870912,-536870912 L536870912,-536870912\n");
}

TEST(SwfReader, a_shape_of_this_program_comes_back_as_it_was) {
    const auto path = std::filesystem::path(testing::TempDir()) / "図形_swf_reader_test.swf";
    const String name = FromNarrow(path.string());
    clsSWFAdmin movie;
    movie.SetDimension(0, 4000, 0, 2000, 0);
    movie.blCompress = true;
    movie.Ver = 8;
    const auto shape = movie.GetNewShape(3);
    clsSWFTFillStyle fill(clsSWFTFillStyle::Linear);
    auto& gradient = *fill.StyleAs<clsSWFTFillLinearRadial>();
    gradient.ColorTbl = {1, 2, 3};
    gradient.ColorPosTbl = {0, 100, 255};
    gradient.inMatrix.GradCenterX = 300;
    clsSWFTShapeRecords& records = *shape->ShapeRecords;
    records.SetFill1(shape->AddNewFillStyle(fill));
    records.SetLine(shape->AddNewLineStyle(40, 5));
    records.LineWidth = 20;
    records.MovePenTo(-1000, 70000);
    records.DrawLineHTo(100000);
    records.DrawCurveTo(90000, 80000, 70000, 60000);
    movie.AddTag(1, shape, true);
    const auto place = std::make_shared<clsSWFTagPlaceObject>();
    place->PlaceID = shape->ID;
    place->depth = 3;
    movie.AddPlaceObj(1, place);
    movie.IncPlaceCount(shape->ID, 1);
    Notices told;
    ASSERT_TRUE(movie.Save(name, told));

    ListeningUserInterface ui;
    const UserInterfaceScope scope(ui);
    clsVector vector;
    ASSERT_TRUE(vector.LoadFromFile(name));
    EXPECT_EQ(ui.ProgressText, u"ベクタファイル読込中...[図形_swf_reader_test.swf]");
    EXPECT_EQ(ui.Done, ui.Total);
    EXPECT_EQ(vector.Width, 200);
    EXPECT_EQ(vector.height, 100);
    EXPECT_EQ(ShapeTexts(vector),
              "a1 b2 l1 M-1000,70000 L64535,70000 L100000,70000 C90000,80000,70000,60000\n");
    const clsVectorData2& piece = *vector.inVector->ShapeDataTbl(1);
    const auto* read = piece.colFillStyles->at(1).StyleAs<clsSWFTFillLinearRadial>();
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->ColorTbl, gradient.ColorTbl);
    EXPECT_EQ(read->ColorPosTbl, gradient.ColorPosTbl);
    EXPECT_EQ(read->inMatrix.Matrix2.TranslateX, 300);
    EXPECT_EQ(piece.inSWFTShapeRecords->GetBounds(false), records.GetBounds(false));
    std::filesystem::remove(path);
}

}  // namespace
}  // namespace tamber::test
