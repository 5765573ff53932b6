#include <gtest/gtest.h>

#include "canvas/timeline/LayerClipboard.h"
#include "canvas/timeline/RowRange.h"
#include "canvas/timeline/SymbolRows.h"
#include "document/Project.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "tests/support/TimelineText.h"

namespace tamber {
namespace {

std::shared_ptr<clsLayer> Named(StringView name, Long kind = KindSprite, Long below = 0) {
    auto layer = LayerOf(kind, "1-1");
    layer->LayerName = name;
    if (auto* folder = layer->Folder()) folder->LayerCount = below;
    return layer;
}

/// a, a folder f of b, a folder g of c, and d; e; the background.
Collection<clsLayer> Table() {
    Collection<clsLayer> layers;
    for (const auto& layer : {Named(u"a"), Named(u"f", KindLayerFolder, 4), Named(u"b"),
                              Named(u"g", KindLayerFolder, 1), Named(u"c"), Named(u"d"),
                              Named(u"e"), Named(u"bg", KindBackGround)})
        layers.Add(layer);
    NestLayers(layers);
    return layers;
}

TEST(RowPlace, stands_for_what_a_person_points_at) {
    struct Case {
        Long Row;
        bool InFolder;
        bool After;
        const char* Result;
    };
    const Case cases[]{
        {1, false, false, "new a f(4) >b >g(1) >>c >d e bg"},
        {1, false, true, "a new f(4) >b >g(1) >>c >d e bg"},
        {2, true, true, "a f(5) >new >b >g(1) >>c >d e bg"},
        {2, false, false, "a new f(4) >b >g(1) >>c >d e bg"},
        {2, false, true, "a f(4) >b >g(1) >>c >d new e bg"},
        {5, false, false, "a f(5) >b >g(2) >>new >>c >d e bg"},
        {5, true, true, "a f(5) >b >g(2) >>c >>new >d e bg"},
        {8, false, true, "a f(4) >b >g(1) >>c >d e new bg"},
        {0, false, false, "a f(4) >b >g(1) >>c >d e new bg"},
        {99, true, false, "a f(4) >b >g(1) >>c >d e new bg"},
    };
    for (const Case& c : cases) {
        Collection<clsLayer> layers = Table();
        Collection<clsLayer> rows;
        rows.Add(Named(u"new"));
        InsertRows(layers, PlaceAt(layers, c.Row, c.InFolder, c.After), rows);
        EXPECT_EQ(Rows(layers), c.Result);
    }
    // A row that nobody sees stands for the folder that hides it.
    Collection<clsLayer> layers = Table();
    layers(2)->Folder()->Expand = false;
    EXPECT_EQ(PlaceAt(layers, 5, false, false).Row, 2);
    EXPECT_EQ(PlaceAt(layers, 5, false, true).Row, 7);
    EXPECT_EQ(PlaceAt({}, 3, false, false).Row, 1);
}

TEST(LayerClipboard, takes_folders_with_all_that_they_hold) {
    struct Case {
        Long Row1;
        Long Row2;
        const char* Copied;
        const char* Left;
    };
    const Case cases[]{
        {1, 1, "a", "f(4) >b >g(1) >>c >d e bg"},
        {2, 1, "a f(4) >b >g(1) >>c >d", "e bg"},
        {4, 3, "b g(1) >c", "a f(1) >d e bg"},
        {7, 8, "e", "a f(4) >b >g(1) >>c >d bg"},
        {8, 8, "", "a f(4) >b >g(1) >>c >d e bg"},
        // From inside a folder to behind it.
        {6, 7, "d e", "a f(3) >b >g(1) >>c bg"},
        {1, 8, "a f(4) >b >g(1) >>c >d e", "bg"},
    };
    for (const Case& c : cases) {
        Collection<clsLayer> layers = Table();
        const RowRange range = SelectedRows(layers, c.Row1, c.Row2);
        LayerClipboard clipboard;
        clipboard.Copy(layers, range);
        const Collection<clsLayer> rows = clipboard.CopyRows();
        EXPECT_EQ(Rows(rows), c.Copied);
        EXPECT_EQ(RemoveLayers(layers, range), !rows.Empty());
        EXPECT_EQ(Rows(layers), c.Left);
        for (const auto& row : rows) EXPECT_EQ(std::count(layers.begin(), layers.end(), row), 0);
    }
}

/// Library rows: picture 1; folder 2 of picture 3, folder 4 of picture 5 and class 6, and picture
/// 7; picture 8.
Collection<clsSymbolData> Library() {
    Collection<clsSymbolData> library;
    const auto add = [&library](Long kind, Long below = 0) {
        auto symbol = std::make_shared<clsSymbolData>(kind);
        symbol->Index = library.Count() + 1;
        if (auto* folder = symbol->Property<clsPropertySymbolFolder>()) {
            folder->LayerCount = below;
            folder->FolderName = below == 5 ? u"F" : u"G";
        }
        library.Add(symbol);
    };
    add(KindSprite);
    add(KindSymbolFolder, 5);
    add(KindSprite);
    add(KindSymbolFolder, 2);
    add(KindSprite);
    add(KindClass);
    add(KindSprite);
    add(KindSprite);
    NestSymbols(library);
    return library;
}

TEST(LayerPlacement, follows_the_folders_of_the_library) {
    struct Case {
        Long Row1;
        Long Row2;
        const char* Result;
    };
    const Case cases[]{
        {1, 1, "1"},
        {2, 2, "F(4) >3 >G(1) >>5 >7"},
        {2, 1, "1 F(4) >3 >G(1) >>5 >7"},
        {6, 6, "F(1) >G(0)"},
        {5, 5, "F(2) >G(1) >>5"},
        // From within the inner folder to behind it, and to behind both.
        {5, 7, "F(2) >5 >7"},
        {5, 8, "5 7 8"},
        {0, 3, ""},
        {8, 9, ""},
    };
    const Collection<clsSymbolData> library = Library();
    for (const Case& c : cases) {
        const Collection<clsLayer> layers = LayersForSymbols(library, c.Row1, c.Row2, 12);
        for (const auto& layer : layers) {
            const bool folder = layer->Folder() != nullptr;
            EXPECT_EQ(Spans(*layer), folder ? "1-1" : "12-12");
            if (!folder) layer->LayerName = FromNarrow(std::to_string(layer->SymbolData()->Index));
        }
        EXPECT_EQ(Rows(layers), c.Result);
    }
}

TEST(LayerPlacement, counts_follow_rows_that_are_refused) {
    Collection<clsLayer> layers = LayersForSymbols(Library(), 2, 2, 1);
    RemoveRefusedRows(layers, [](const clsSymbolData& symbol) { return symbol.Index == 5; });
    for (const auto& layer : layers)
        if (layer->Folder() == nullptr) layer->LayerName = u"x";
    EXPECT_EQ(Rows(layers), "F(3) >x >G(0) >x");
}

}  // namespace
}  // namespace tamber
