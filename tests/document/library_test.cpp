#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <random>

#include "document/Project.h"
#include "document/SymbolFiles.h"
#include "document/edit/SymbolIdEdit.h"
#include "document/edit/SymbolSort.h"
#include "document/edit/SymbolUses.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "platform/text.h"
#include "tests/support/LibraryText.h"

namespace tamber {
namespace {

TEST(Library, gives_the_smallest_number_that_is_free) {
    const std::pair<const char*, Long> cases[]{
        {"", 1},         {"1 2 4", 3},     {"1 2 3", 4},  {"2 3", 1},   {"3 2 1", 4},
        {"F(1) 1 2", 3}, {"900 901 1", 2}, {"0 -4 1", 2}, {"2 2 2", 1}, {"1 1 2147483647", 2},
    };
    for (const auto& [text, id] : cases) EXPECT_EQ(GetSymbolID(*LibraryFrom(text)), id) << text;
}

TEST(Library, checks_a_number_against_all_other_rows) {
    const auto library = LibraryFrom("5 6 6");
    EXPECT_TRUE(CheckID(*library, 5, 1));
    EXPECT_FALSE(CheckID(*library, 5, 2));
    EXPECT_FALSE(CheckID(*library, 6, 3));
    EXPECT_FALSE(CheckID(*library, 5, 0));
    EXPECT_TRUE(CheckID(*library, 7, 0));
}

TEST(Library, default_names_fill_the_first_gap) {
    struct Case {
        std::vector<StringView> Names;
        StringView Expected;
    };
    const Case cases[]{
        {{}, u"絵1"},
        {{u"絵1", u"絵3", u"絵A"}, u"絵2"},
        {{u"絵1", u"絵2"}, u"絵3"},
        {{u"絵", u"絵1x", u"別1"}, u"絵1"},
        {{u"絵001"}, u"絵2"},
        {{u"絵99999999999999999999", u"絵１"}, u"絵1"},
    };
    for (const Case& test : cases) {
        Collection<clsSymbolData> library;
        for (const StringView name : test.Names) {
            library.Add(std::make_shared<clsSymbolData>(KindSprite));
            library(library.Count())->Property<clsPropertySprite>()->SpriteName = name;
        }
        EXPECT_EQ(GetSymbolDefName(library, KindSprite, u"絵"), test.Expected);
        EXPECT_EQ(GetSymbolDefName(library, KindButton, u"絵"), u"絵1");
    }
}

TEST(Library, a_symbol_goes_where_its_row_stands) {
    struct Case {
        const char* Library;
        Long Index;
        bool InFolder;
        bool After;
        const char* Expected;
        Long NewIndex;
    };
    const Case cases[]{
        {"1 2", 3, true, true, "1 2 9", 3},
        {"F(1) 1", 99, true, true, "F(1) >1 9", 3},
        {"1 2", 2, false, false, "1 9 2", 2},
        {"1 2", 1, false, true, "1 9 2", 2},
        // A row without contents has no inside.
        {"1 2", 1, true, false, "9 1 2", 1},
        {"F(2) 1 2 3", 2, false, false, "F(3) >9 >1 >2 3", 2},
        {"F(2) 1 2 3", 3, false, true, "F(3) >1 >2 >9 3", 4},
        {"F(2) 1 2 3", 1, true, false, "F(3) >9 >1 >2 3", 2},
        {"F(2) 1 2 3", 1, false, false, "9 F(2) >1 >2 3", 1},
        {"f(2) 1 2 3", 1, false, true, "f(2) >1 >2 9 3", 4},
        {"F(2) 1 2 3", 1, false, true, "F(2) >1 >2 9 3", 4},
        {"F(0) 3", 1, false, true, "F(0) 9 3", 2},
        {"F(3) f(2) 1 2", 2, false, true, "F(4) >f(2) >>1 >>2 >9", 5},
        {"F(3) F(2) 1 2", 2, true, false, "F(4) >F(3) >>9 >>1 >>2", 3},
    };
    for (const Case& test : cases) {
        const auto library = LibraryFrom(test.Library);
        const auto symbol = std::make_shared<clsSymbolData>(KindBitmap);
        symbol->ID = 9;
        Long newIndex = 0;
        AddSymbolData(*library, test.Index, symbol, test.InFolder, test.After, newIndex);
        EXPECT_EQ(LibraryText(*library), test.Expected);
        EXPECT_EQ(newIndex, test.NewIndex) << test.Expected;
        // The counts tell the same folders as the rows do.
        NumberSymbols(*library);
        EXPECT_EQ(LibraryText(*library), test.Expected);
    }
}

TEST(Library, rows_move_with_all_that_is_in_them) {
    struct Case {
        const char* Library;
        SymbolRange Rows;
        Long Target;
        bool InFolder;
        bool After;
        const char* Expected;
        SymbolRange Moved;
    };
    const Case cases[]{
        {"1 2 3 4", {1, 2}, 4, false, true, "3 4 1 2", {3, 4}},
        {"1 2 3 4", {3, 4}, 1, false, false, "3 4 1 2", {1, 2}},
        {"1 2 3 4", {1, 1}, 9, false, false, "2 3 4 1", {4, 4}},
        {"F(1) 1 2 3", {3, 4}, 1, true, false, "F(3) >2 >3 >1", {2, 3}},
        {"F(2) 1 2 3", {2, 2}, 4, false, true, "F(1) >2 3 1", {4, 4}},
        {"F(2) 1 2 3", {1, 1}, 4, false, true, "3 F(2) >1 >2", {2, 4}},
        // Out of the folder in place, and into another level.
        {"F(2) 1 2 3", {3, 3}, 1, false, true, "F(1) >1 2 3", {3, 3}},
        {"F(1) 1 F(1) 2", {1, 1}, 3, true, false, "F(3) >F(1) >>1 >2", {2, 3}},
        {"F(2) F(1) 1 2", {2, 2}, 4, false, true, "F(0) 2 F(1) >1", {3, 4}},
        // Rows of two levels become rows of one.
        {"F(2) 1 2 3 4", {3, 4}, 1, true, false, "F(3) >2 >3 >1 4", {2, 3}},
        {"F(2) 1 2 3 4", {3, 4}, 5, false, true, "F(1) >1 4 2 3", {4, 5}},
        {"F(2) 1 2 3", {3, 4}, 1, false, true, "F(1) >1 2 3", {3, 4}},
        // Within its own folder.
        {"F(2) 1 2", {3, 3}, 1, true, false, "F(2) >2 >1", {2, 2}},
    };
    for (const Case& test : cases) {
        const auto library = LibraryFrom(test.Library);
        SymbolRange rows = test.Rows;
        EXPECT_TRUE(MoveSymbols(*library, rows, test.Target, test.InFolder, test.After));
        EXPECT_EQ(LibraryText(*library), test.Expected) << test.Library;
        EXPECT_EQ(rows.First, test.Moved.First) << test.Expected;
        EXPECT_EQ(rows.Last, test.Moved.Last) << test.Expected;
        NumberSymbols(*library);
        EXPECT_EQ(LibraryText(*library), test.Expected) << test.Library;
    }
}

TEST(Library, a_folder_does_not_go_into_itself_or_below) {
    const auto library = LibraryFrom("F(3) F(1) 1 2 3");
    for (Long target = 1; target <= 4; ++target)
        for (const bool inFolder : {false, true}) {
            SymbolRange rows{1, 1};
            EXPECT_FALSE(MoveSymbols(*library, rows, target, inFolder, true)) << target;
        }
    EXPECT_EQ(LibraryText(*library), "F(3) >F(1) >>1 >2 3");
}

TEST(Library, rows_go_out_with_their_counts) {
    const auto library = LibraryFrom("F(4) F(2) 1 2 3 4");
    TakeOut(*library, SymbolsOf(*library, WholeFolders(*library, {2, 2})));
    EXPECT_EQ(LibraryText(*library), "F(1) >3 4");
    TakeOut(*library, {(*library)(2), (*library)(3)});
    EXPECT_EQ(LibraryText(*library), "F(0)");
}

TEST(Library, counts_beyond_what_is_there_are_put_right) {
    const auto library = LibraryFrom("1 F(90) 2 F(3) 3");
    EXPECT_EQ(LibraryText(*library), "1 F(3) >2 >F(1) >>3");
}

TEST(Library, sorts_runs_and_leaves_the_folders) {
    struct Case {
        const char* Library;
        SymbolOrder Order;
        bool Descending;
        SymbolRange Rows;
        const char* Expected;
    };
    constexpr auto Id = SymbolOrder::Id;
    constexpr auto Type = SymbolOrder::Type;
    const Case cases[]{
        {"3 1 2", Id, false, {1, 3}, "1 2 3"},
        {"3 1 2", Id, true, {1, 3}, "3 2 1"},
        {"4 3 2 1", Id, false, {2, 3}, "4 2 3 1"},
        {"9 8 F(2) 5 4 2 1", Id, false, {1, 7}, "8 9 F(2) >4 >5 1 2"},
        {"F(4) 9 F(2) 5 4 1 7", Id, true, {1, 7}, "F(4) >9 >F(2) >>5 >>4 7 1"},
        {"2s 9 1s 3", Type, false, {1, 4}, "3 9 1s 2s"},
        {"2s 9 1s 3", Type, true, {1, 4}, "2s 1s 9 3"},
        {"2s 9 1s 3", Type, false, {3, 4}, "2s 9 3 1s"},
        {"", Id, false, {1, 0}, ""},
    };
    for (const Case& test : cases) {
        const auto sorted = SortSymbols(*LibraryFrom(test.Library), test.Order, test.Descending,
                                        test.Rows.First, test.Rows.Last);
        NumberSymbols(*sorted);
        EXPECT_EQ(LibraryText(*sorted), test.Expected) << test.Library;
    }
}

/// One by one, each before the first row of its group that sorts after it.
Collection<clsSymbolData> SortedByInsertion(const Collection<clsSymbolData>& library,
                                            bool descending) {
    Collection<clsSymbolData> sorted;
    Long group = 1;
    std::shared_ptr<clsSymbolData> parent;
    for (const auto& symbol : library) {
        const bool isFolder = symbol->eType() == KindSymbolFolder;
        if (symbol->ParentFolder() != parent) group = sorted.Count() + 1;
        parent = symbol->ParentFolder();
        Long place = isFolder ? sorted.Count() + 1 : group;
        while (place <= sorted.Count() &&
               (descending ? sorted(place)->ID >= symbol->ID : sorted(place)->ID <= symbol->ID))
            ++place;
        sorted.Insert(symbol, place);
        if (isFolder) group = sorted.Count() + 1;
    }
    return sorted;
}

TEST(Library, sorts_as_insertion_one_by_one_does) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        std::string text;
        const int rows = 1 + static_cast<int>(random() % 20);
        for (int row = 0; row < rows; ++row)
            text += random() % 5 == 0 ? "F(" + std::to_string(random() % 4) + ") "
                                      : std::to_string(1 + random() % 5) + " ";
        const auto library = LibraryFrom(text);
        for (const bool descending : {false, true}) {
            const auto sorted =
                SortSymbols(*library, SymbolOrder::Id, descending, 1, library->Count());
            const auto expected = SortedByInsertion(*library, descending);
            EXPECT_TRUE(
                std::equal(sorted->begin(), sorted->end(), expected.begin(), expected.end()))
                << text;
        }
    }
}

TEST(Library, folders_go_before_the_rows_of_their_level) {
    const std::pair<const char*, const char*> cases[]{
        {"1 2", "1 2"},
        {"1 F(1) 2 3 F(0)", "F(1) >2 F(0) 1 3"},
        {"5 F(5) 1 F(2) 2 F(0) 3 4", "F(5) >F(2) >>F(0) >>2 >1 >3 5 4"},
    };
    for (const auto& [text, expected] : cases) {
        const auto sorted = SortFolders(*LibraryFrom(text));
        NumberSymbols(*sorted);
        EXPECT_EQ(LibraryText(*sorted), expected);
    }
}

TEST(Library, numbers_are_moved_or_given_anew) {
    struct Case {
        const char* Library;
        SymbolRange Rows;
        bool Renumber;
        bool Descending;
        Long Value;
        const char* Expected;
        int Told;
    };
    const Case cases[]{
        {"1 2 3", {1, 3}, false, false, 10, "11 12 13", 0},
        {"11 12 13", {1, 3}, false, false, -10, "1 2 3", 0},
        {"9 F(1) 7 5", {1, 4}, true, false, 3, "3 F(1) >4 5", 0},
        {"9 8 7", {1, 3}, true, true, 3, "5 4 3", 0},
        // Rows before and behind give way, to numbers that are free then.
        {"1 2 3 4", {2, 3}, true, false, 1, "3 1 2 4", 1},
        {"1 2 3 4", {1, 2}, false, false, 2, "3 4 1 2", 1},
        {"4 5 1 2", {3, 4}, false, false, 3, "1 2 4 5", 1},
    };
    for (const Case& test : cases) {
        const auto library = LibraryFrom(test.Library);
        SymbolIdEdit edit(*library, test.Rows.First, test.Rows.Last);
        edit.blRenumber = test.Renumber;
        edit.blDescendingOrder = test.Descending;
        edit.Value = test.Value;
        ASSERT_TRUE(edit.IsAllowed()) << test.Library;
        int told = 0;
        edit.Apply([&told] { ++told; });
        EXPECT_EQ(LibraryText(*library), test.Expected) << test.Library;
        EXPECT_EQ(told, test.Told) << test.Library;
    }
}

TEST(Library, numbers_stay_between_1_and_9999) {
    struct Case {
        const char* Library;
        Long LowestAdd;
        Long HighestAdd;
        Long HighestStart;
    };
    const Case cases[]{
        {"3 7 5", -2, 9992, 9997},
        {"9999 F(0) 1", 0, 0, 9998},
        {"20000", -9998, -10001, 9999},
    };
    for (const Case& test : cases) {
        const auto library = LibraryFrom(test.Library);
        SymbolIdEdit edit(*library, 1, library->Count());
        EXPECT_EQ(edit.Lowest(), test.LowestAdd) << test.Library;
        EXPECT_EQ(edit.Highest(), test.HighestAdd) << test.Library;
        edit.blRenumber = true;
        EXPECT_EQ(edit.Lowest(), 1);
        EXPECT_EQ(edit.Highest(), test.HighestStart) << test.Library;
        edit.Value = test.HighestStart + 1;
        EXPECT_FALSE(edit.IsAllowed());
    }
    const auto folders = LibraryFrom("F(0) F(0)");
    EXPECT_FALSE(SymbolIdEdit(*folders, 1, 2).IsAllowed());
}

TEST(Library, files_become_symbols_by_their_extension) {
    const std::pair<StringView, Long> cases[]{
        {u"a.PNG", KindBitmap},
        {u"/x.y/a.jpeg", KindBitmap},
        {u"a.svgz", KindVector},
        {u"a.swf", KindVector},
        {u"a.mid", KindSound},
        {u"a.text", KindText},
        {u"a.flv", KindMovie},
        {u"a.mp4", 0},
        {u"a", 0},
        {u"a.png/b", 0},
        {u"a.", 0},
        {u"a.*", 0},
        {u"a.bmp;*", 0},
    };
    for (const auto& [path, kind] : cases) EXPECT_EQ(SymbolKindOfFile(path), kind);
    const auto filters = SymbolFileFilters();
    ASSERT_EQ(filters.size(), 6u);
    EXPECT_EQ(filters[0].Text,
              u"追加可能なファイル (*.bmp;*.jpg;*.jpeg;*.png;*.gif;*.swf;*.pdr;*.svg;*.svgz;*.mp3;"
              u"*.wav;*.rmp;*.mid;*.mld;*.mmf;*.txt;*.text;*.flv)");
    EXPECT_EQ(filters[3].Text, u"サウンドファイル (*.mp3;*.wav;*.rmp;*.mid;*.mld;*.mmf)");
    EXPECT_EQ(filters[5].Text, u"動画ファイル (*.flv)");
}

class References : public testing::Test {
protected:
    std::shared_ptr<clsSymbolData> Add(Long kind) {
        auto symbol = std::make_shared<clsSymbolData>(kind);
        symbol->ID = library_.Count() + 1;
        library_.Add(symbol);
        return symbol;
    }
    std::shared_ptr<clsSymbolData> AddButton(const std::shared_ptr<clsSymbolData>& up) {
        auto symbol = Add(KindButton);
        symbol->Property<clsPropertyButton>()->UpSymbol(up);
        return symbol;
    }
    std::shared_ptr<clsSymbolData> AddKoma(const SymbolList& pictures) {
        auto symbol = Add(KindKoma);
        for (const auto& picture : pictures)
            symbol->Property<clsPropertyKoma>()->colKomas->Add(picture);
        return symbol;
    }
    std::vector<Long> Fallen(const SymbolList& leaving) const {
        std::vector<Long> ids;
        for (const auto& symbol : FallenWith(library_, leaving)) ids.push_back(symbol->ID);
        std::sort(ids.begin(), ids.end());
        return ids;
    }

    Collection<clsSymbolData> library_;
};

TEST_F(References, what_cannot_stay_falls_in_turn) {
    const auto a = Add(KindBitmap);
    const auto b = Add(KindVector);
    AddButton(a);                          // 3
    const auto both = AddKoma({a, b, a});  // 4
    AddButton(both);                       // 5
    const auto one = AddKoma({a, a});      // 6
    AddKoma({one});                        // 7
    AddKoma({});                           // 8
    const auto link = Add(KindLink);       // 9
    link->Property<clsPropertyLinkSymbol>()->eSymbolType(KindButton);
    dynamic_cast<clsPropertyButton&>(*link->Property<clsPropertyLinkSymbol>()->objPropertyData)
        .DownSymbol(b);
    AddButton(nullptr);  // 10
    EXPECT_EQ(Fallen({a}), (std::vector<Long>{3, 6, 7}));
    EXPECT_EQ(Fallen({b}), (std::vector<Long>{9}));
    EXPECT_EQ(Fallen({a, b}), (std::vector<Long>{3, 4, 5, 6, 7, 9}));
    EXPECT_EQ(Fallen({both}), (std::vector<Long>{5}));
    EXPECT_TRUE(Fallen({}).empty());
}

TEST_F(References, others_are_cleared) {
    const auto gone = Add(KindVector);
    const auto kept = Add(KindVector);
    const auto button = AddButton(kept);
    auto& states = *button->Property<clsPropertyButton>();
    states.HitTestSymbol(gone);
    states.DownSymbol(gone);
    states.OverSymbol(kept);
    const auto koma = AddKoma({gone, kept, gone});
    gone->Property<clsPropertyVector>()->Width = 90;
    kept->Property<clsPropertyVector>()->Width = 40;
    koma->Property<clsPropertyKoma>()->SetSize();
    kept->Property<clsPropertyVector>()->MorphSymbol(gone);
    const auto text = Add(KindText);
    text->Property<clsPropertyText>()->FitShapeSymbol(gone);
    Add(KindText)->Property<clsPropertyText>()->FitShapeSymbol(kept);

    EXPECT_EQ(ClearReferences(library_, {gone.get()}), SymbolList{text});
    EXPECT_EQ(text->Property<clsPropertyText>()->FitShapeSymbol(), nullptr);
    EXPECT_EQ(states.HitTestSymbol(), nullptr);
    EXPECT_EQ(states.DownSymbol(), nullptr);
    EXPECT_EQ(states.OverSymbol(), kept);
    EXPECT_EQ(states.UpSymbol(), kept);
    EXPECT_EQ(kept->Property<clsPropertyVector>()->MorphSymbol(), nullptr);
    EXPECT_EQ(koma->Property<clsPropertyKoma>()->colKomas->Count(), 1);
    EXPECT_EQ(koma->PixelWidth(), 40);
}

TEST_F(References, uses_name_each_timeline_once) {
    Project project;
    const auto picture = Add(KindBitmap);
    const auto inner = Add(KindSprite);
    const auto outer = Add(KindSprite);
    const auto show = [](Collection<clsLayer>& layers,
                         const std::shared_ptr<clsSymbolData>& symbol) {
        layers.Add(std::make_shared<clsLayer>());
        layers(layers.Count())->SymbolData(symbol);
    };
    for (const auto& sprite : {inner, outer})
        for (int i = 0; i < 2; ++i) show(*sprite->Property<clsPropertySprite>()->colLayer, picture);
    show(*outer->Property<clsPropertySprite>()->colLayer, inner);
    show(*project.colMainLayer, picture);
    *project.colSymbol = library_;

    EXPECT_EQ(SymbolUses(project, {picture}).Of(picture->ID), (SymbolList{nullptr, inner, outer}));
    // The timeline of a symbol that leaves too is no use.
    const SymbolUses uses(project, {picture, inner});
    EXPECT_EQ(uses.Of(picture->ID), (SymbolList{nullptr, outer}));
    EXPECT_EQ(uses.Of(inner->ID), SymbolList{outer});
    EXPECT_TRUE(uses.Of(outer->ID).empty());
    EXPECT_EQ(RemoveLayersOfSymbol(*outer->Property<clsPropertySprite>()->colLayer, picture->ID),
              (std::vector<Long>{1, 2}));
    EXPECT_EQ(outer->Property<clsPropertySprite>()->colLayer->Count(), 1);
}

TEST(Library, many_symbols_take_no_long_time) {
    constexpr Long Many = 100000;
    const auto begin = std::chrono::steady_clock::now();
    auto library = std::make_shared<Collection<clsSymbolData>>();
    for (Long i = Many; i >= 1; --i) {
        auto symbol = std::make_shared<clsSymbolData>(KindSprite);
        symbol->ID = i % 9999 + 1;
        symbol->Property<clsPropertySprite>()->SpriteName = u"s" + ToText(i);
        library->Add(std::move(symbol));
    }
    NumberSymbols(*library);
    EXPECT_EQ(GetSymbolDefName(*library, KindSprite, u"s"), u"s100001");
    SymbolIds ids(*library);
    SeparateIds(*library, ids, 1, Many, [] {});
    library = SortSymbols(*library, SymbolOrder::Type, false, 1, Many);
    for (Long row = 1; row <= Many; ++row) ASSERT_EQ((*library)(row)->ID, row);
    const SymbolList half = SymbolsOf(*library, {1, Many / 2});
    EXPECT_TRUE(FallenWith(*library, half).empty());
    TakeOut(*library, half);
    EXPECT_EQ(library->Count(), Many / 2);
    // Minutes where any of these looks at all symbols for each symbol.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(15));
}

}  // namespace
}  // namespace tamber
