#include "output/VectorPreview.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "document/symbols/clsSymbolData.h"
#include "platform/codepage.h"
#include "tests/swf/MovieParser.h"
#include "vector/clsVector.h"

namespace tamber {
namespace {

clsPropertyVector Square(Long pixels) {
    clsVector maker;
    maker.SetRectShape(0, 0, pixels * 20, pixels * 20, 0x7F0000FF);
    clsPropertyVector record;
    record.SetArtwork(maker.inVector, pixels, pixels);
    return record;
}

TEST(VectorPreview, shows_a_symbol_alone_or_its_morph) {
    const auto file = std::filesystem::path(testing::TempDir()) / "vector_preview_test.swf";
    const String path = FromNarrow(file.string());
    clsPropertyVector record = Square(10);
    ASSERT_TRUE(PreView(record, 6, 4, path));
    auto movie = test::ParseMovie(path);
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{32, 26, 1, 0}));
    EXPECT_EQ(movie.Stage, (SwfRect{0, 0, 200, 200}));
    EXPECT_EQ(test::Places(movie)[0].Depth, 256);

    auto target = std::make_shared<clsSymbolData>(KindVector);
    target->PropertyData(std::make_shared<clsPropertyVector>(Square(30)));
    record.MorphSymbol(target);
    ASSERT_TRUE(PreView(record, 6, 4, path));
    movie = test::ParseMovie(path);
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{46, 26, 1, 26, 1, 26, 1, 26, 1, 0}));
    EXPECT_EQ(movie.Stage, (SwfRect{0, 0, 600, 600}));
    std::vector<Long> ratios;
    for (const auto& place : test::Places(movie)) ratios.push_back(place.Ratio);
    EXPECT_EQ(ratios, (std::vector<Long>{0, 21845, 43690, 65535}));

    EXPECT_FALSE(PreView(clsPropertyVector(), 6, 4, path));
    EXPECT_FALSE(PreView(record, 6, 4, u"/no/such/folder/a.swf"));
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace tamber
