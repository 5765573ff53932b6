#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "app/settings/mdlPrivateProfile.h"
#include "document/edit/SymbolReferences.h"
#include "document/records/SymbolTimeline.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertyMovieEmp.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "platform/files.h"
#include "platform/text.h"
#include "tests/support/ControllerTest.h"
#include "tests/support/LibraryText.h"

namespace tamber {
namespace {

constexpr StringView RepeatedId = u"IDが重複しています。\r\n空いているIDへ変更します。";
constexpr StringView RepeatedIds = u"重複しているIDを、\r\n空いているIDへ変更します。";

bool Accept(clsSymbolData&) {
    return true;
}

frmMain::EditSymbolData Class(StringView name) {
    return [name](clsSymbolData& symbol) {
        symbol.Property<clsPropertyClass>()->className = name;
        return true;
    };
}

/// A BMP file of one pixel of 24 bits, or of two beside each other.
Bytes BitmapFile(Byte width) {
    Bytes file(54 + (width == 1 ? 4u : 8u));
    const std::pair<std::size_t, Byte> set[]{{0, 'B'},    {1, 'M'}, {10, 54}, {14, 40},
                                             {18, width}, {22, 1},  {26, 1},  {28, 24}};
    for (const auto& [place, value] : set) file[place] = value;
    return file;
}

class LibraryCommands : public ControllerTest {
protected:
    const std::shared_ptr<clsSymbolData>& Symbol(Long index) const {
        return (*main_.colSymbol())(index);
    }
    std::string Library() const { return LibraryText(*main_.colSymbol()); }
    /// A picture without a file, at the library's end.
    std::shared_ptr<clsSymbolData> AddPicture(Long kind = KindBitmap) {
        auto symbol = std::make_shared<clsSymbolData>(kind);
        symbol->ID = main_.GetSymbolID();
        main_.AddSymbol(symbol);
        return symbol;
    }
    std::shared_ptr<clsSymbolData> AddButton(const std::shared_ptr<clsSymbolData>& up) {
        auto symbol = AddPicture(KindButton);
        symbol->Property<clsPropertyButton>()->UpSymbol(up);
        return symbol;
    }
    /// Places symbols on the edited timeline, the last one in the top row.
    void Place(const SymbolList& symbols) {
        for (const auto& symbol : symbols) {
            main_.SelectSymbols(symbol->Index, symbol->Index);
            main_.AddToLayer(1, false, false);
        }
        main_.SelectSymbols(0, 0);
    }
    void Remove(Long first, Long last) {
        main_.SelectSymbols(first, last);
        main_.mnuRemoveSymbolItem();
    }
    /// Numbers of the symbols in the rows of a timeline.
    static std::string Shown(const Collection<clsLayer>& layers) {
        std::string text;
        for (const auto& layer : layers)
            text += (text.empty() ? "" : " ") + std::to_string(layer->SymbolData()->ID);
        return text;
    }
    std::string ShownInMain() const { return Shown(*main_.colMainLayer()); }
    static std::string ShownIn(const clsSymbolData& sprite) { return Shown(*TimelineOf(sprite)); }
};

TEST_F(LibraryCommands, new_symbols_have_numbers_names_and_sizes) {
    main_.mnuPrjProperty(400, 300, 12, 6);
    EXPECT_TRUE(main_.mnuAddSymbolItem_Sprite(Accept));
    EXPECT_TRUE(main_.mnuAddSymbolItem_Sprite(Accept));
    EXPECT_EQ(Symbol(2)->Value(), u"スプライト2");
    EXPECT_EQ(Symbol(2)->ID, 2);
    EXPECT_EQ(Symbol(2)->PixelWidth(), 400);
    EXPECT_EQ(Symbol(2)->PixelHeight(), 300);
    EXPECT_TRUE(main_.mnuAddSymbolItem_Button(Accept));
    EXPECT_TRUE(main_.mnuAddSymbolItem_Koma(Accept));
    EXPECT_TRUE(main_.mnuAddSymbolItem_MovieEmp(Accept));
    EXPECT_EQ(Symbol(3)->Value(), u"ボタン1");
    EXPECT_EQ(Symbol(4)->Value(), u"コマ動画1");
    EXPECT_EQ(Symbol(5)->Value(), u"空動画1");
    // Classes and folders have no number.
    EXPECT_TRUE(main_.mnuAddSymbolItem_Class(Class(u"A")));
    EXPECT_TRUE(main_.mnuAddSymbolItem_Folder());
    EXPECT_TRUE(main_.mnuAddSymbolItem_Link(Accept));
    EXPECT_EQ(Symbol(6)->ID, -5);
    EXPECT_EQ(Symbol(7)->ID, -1);
    EXPECT_EQ(Symbol(7)->Value(), u"フォルダ1");
    EXPECT_EQ(Symbol(8)->ID, 6);
    EXPECT_FALSE(main_.mnuAddSymbolItem_Link([](clsSymbolData&) { return false; }));
    EXPECT_EQ(main_.colSymbol()->Count(), 8);
    EXPECT_TRUE(main_.HasUnsavedWork());
    EXPECT_FALSE(main_.IsProjectChanged());
    EXPECT_TRUE(interface_.Messages.empty());
    // A sprite that is made while one is edited is of its size.
    Symbol(1)->Property<clsPropertySprite>()->Width = 50;
    main_.ChangeSprite(1);
    main_.mnuAddSymbolItem_Sprite(Accept);
    EXPECT_EQ(Symbol(9)->PixelWidth(), 50);
}

TEST_F(LibraryCommands, classes_of_other_movies_are_asked_for_by_the_name_of_their_export) {
    const auto linked = [this](StringView name, Long kind) {
        main_.mnuAddSymbolItem_Link([&](clsSymbolData& symbol) {
            auto& link = *symbol.Property<clsPropertyLinkSymbol>();
            link.SymbolName = name;
            link.eSymbolType(kind);
            return true;
        });
        return Symbol(main_.colSymbol()->Count())->Property<clsPropertyLinkSymbol>()->SymbolName;
    };
    EXPECT_EQ(linked(u"a.B", KindClass), u"__Packages.a.B");
    EXPECT_EQ(linked(u"__Packages.a.C", KindClass), u"__Packages.a.C");
    EXPECT_EQ(linked(u"ball", KindSprite), u"ball");
}

TEST_F(LibraryCommands, classes_have_names_of_their_own) {
    EXPECT_FALSE(main_.mnuAddSymbolItem_Class(Accept));
    EXPECT_TRUE(main_.mnuAddSymbolItem_Class(Class(u" a.B ")));
    EXPECT_FALSE(main_.mnuAddSymbolItem_Class(Class(u"a.B")));
    ASSERT_EQ(main_.colSymbol()->Count(), 1);
    EXPECT_EQ(Symbol(1)->Value(), u"a.B");
    ASSERT_EQ(interface_.Messages.size(), 2u);
    EXPECT_EQ(interface_.Messages[0].Text, u"クラス名を設定して下さい。");
    EXPECT_EQ(interface_.Messages[1].Text, u"クラス名[a.B]は既に使用されています。");
}

TEST_F(LibraryCommands, a_number_that_is_taken_is_told_and_replaced) {
    AddPicture();
    const auto number = [](Long id) {
        return [id](clsSymbolData& symbol) {
            symbol.ID = id;
            return true;
        };
    };
    EXPECT_TRUE(main_.mnuAddSymbolItem_Sprite(number(9)));
    EXPECT_TRUE(interface_.Messages.empty());
    EXPECT_TRUE(main_.mnuAddSymbolItem_Sprite(number(9)));
    EXPECT_TRUE(main_.mnuAddSymbolItem_Sprite(number(0)));
    EXPECT_EQ(Library(), "1 9s 2s 3s");
    ASSERT_EQ(interface_.Messages.size(), 2u);
    EXPECT_EQ(interface_.Messages[0].Text, RepeatedId);
}

TEST_F(LibraryCommands, new_symbols_go_before_the_selected_row_which_stays_selected) {
    main_.mnuAddSymbolItem_Folder(u"f");
    AddPicture();
    AddPicture();
    ASSERT_TRUE(main_.MoveSymbols(2, 3, 1, true, false));
    EXPECT_EQ(Library(), "F(2) >1 >2");
    main_.SelectSymbols(3, 3);
    main_.mnuAddSymbolItem_Sprite(Accept);
    main_.mnuAddSymbolItem_Sprite(Accept);
    EXPECT_EQ(Library(), "F(4) >1 >3s >4s >2");
    EXPECT_EQ(main_.SelSymbol1(), 5);
    main_.SelectSymbols(1, 99);
    EXPECT_EQ(main_.SelSymbol2(), 5);
    main_.mnuAddSymbolItem_Sprite(Accept);
    EXPECT_EQ(Library(), "5s F(4) >1 >3s >4s >2");
    EXPECT_EQ(main_.SelSymbol1(), 2);
    EXPECT_EQ(main_.SelSymbol2(), 6);
    main_.SelectSymbols(0, 0);
    AddPicture();
    EXPECT_EQ(Library(), "5s F(4) >1 >3s >4s >2 6");
}

TEST_F(LibraryCommands, files_become_symbols) {
    ASSERT_TRUE(WriteFileBytes(BitmapFile(2), Path(u"絵.BMP")));
    const std::string svg = R"(<svg width="30" height="20"><rect width="30" height="20"/></svg>)";
    ASSERT_TRUE(WriteFileBytes(Bytes(svg.begin(), svg.end()), Path(u"図.svg")));
    ASSERT_TRUE(WriteFileBytes(EncodeAnsi(u"一\n二"), Path(u"文.txt")));
    EXPECT_TRUE(main_.mnuAddSymbolItem_File({Path(u"絵.BMP"), Path(u"図.svg"), Path(u"文.txt")}));
    ASSERT_EQ(main_.colSymbol()->Count(), 3);
    EXPECT_EQ(Symbol(1)->eType(), KindBitmap);
    EXPECT_EQ(Symbol(1)->PixelWidth(), 2);
    EXPECT_EQ(Symbol(1)->FilePathName, Path(u"絵.BMP"));
    EXPECT_EQ(Symbol(2)->PixelWidth(), 30);
    EXPECT_EQ(Symbol(3)->Property<clsPropertyText>()->InitialText, u"一\r\n二");
    EXPECT_GT(Symbol(3)->PixelHeight(), 20);
    EXPECT_EQ(Symbol(3)->FilePathName, u"");
    EXPECT_EQ(Symbol(3)->ID, 3);
    interface_.Paths = {Path(u"図.svg")};
    EXPECT_TRUE(main_.mnuAddSymbolItem_File());
    EXPECT_FALSE(main_.mnuAddSymbolItem_File());
    EXPECT_EQ(main_.colSymbol()->Count(), 4);
    EXPECT_TRUE(interface_.Messages.empty());
}

TEST_F(LibraryCommands, files_that_are_no_symbols_are_told_and_the_others_added) {
    ASSERT_TRUE(WriteFileBytes(BitmapFile(1), Path(u"a.bmp")));
    ASSERT_TRUE(WriteFileBytes(Bytes{1, 2, 3}, Path(u"b.png")));
    ASSERT_TRUE(WriteFileBytes(Bytes(), Path(u"c.txt")));
    ASSERT_TRUE(WriteFileBytes(Bytes(), Path(u"d.doc")));
    EXPECT_FALSE(main_.mnuAddSymbolItem_File(
        {Path(u"none.png"), Path(u"b.png"), Path(u"c.txt"), Path(u"d.doc"), Path(u"a.bmp")}));
    EXPECT_EQ(Library(), "1");
    ASSERT_EQ(interface_.Messages.size(), 4u);
    EXPECT_EQ(interface_.Messages[0].Text,
              Path(u"none.png") + u"\r\n\r\nファイルが見つかりません。");
    EXPECT_EQ(interface_.Messages[1].Text, u"ファイルの読み込みに失敗しました。");
    EXPECT_EQ(interface_.Messages[1].Title, u"読み込みエラー");
    EXPECT_EQ(interface_.StatusLines, std::vector<String>{Path(u"b.png")});
    EXPECT_EQ(interface_.Messages[2].Title, u"テキスト未入力");
    EXPECT_TRUE(interface_.Messages[3].Text.starts_with(Path(u"d.doc") + u"\r\n\r\n"));
}

TEST_F(LibraryCommands, files_are_read_again_or_left_as_they_were) {
    ASSERT_TRUE(WriteFileBytes(BitmapFile(1), Path(u"a.bmp")));
    ASSERT_TRUE(WriteFileBytes(BitmapFile(1), Path(u"b.bmp")));
    main_.mnuAddSymbolItem_File({Path(u"a.bmp"), Path(u"b.bmp")});
    const auto koma = AddPicture(KindKoma);
    koma->Property<clsPropertyKoma>()->colKomas->Add(Symbol(1));
    ASSERT_TRUE(WriteFileBytes(BitmapFile(2), Path(u"a.bmp")));
    ASSERT_TRUE(WriteFileBytes(Bytes{1}, Path(u"b.bmp")));
    main_.SelectSymbols(1, 3);
    EXPECT_FALSE(main_.mnuSymbolReLoad());
    EXPECT_EQ(Symbol(1)->PixelWidth(), 2);
    EXPECT_EQ(koma->PixelWidth(), 2);
    EXPECT_EQ(Symbol(2)->PixelWidth(), 1);
    ASSERT_TRUE(DeleteFile(Path(u"b.bmp")));
    EXPECT_FALSE(main_.mnuSymbolReLoad());
    ASSERT_EQ(interface_.Messages.size(), 2u);
    EXPECT_EQ(interface_.Messages[1].Text, u"ファイルの読み込みに失敗しました。");
    EXPECT_EQ(interface_.Messages[1].Title, u"読み込みエラー");
    main_.SelectSymbols(1, 1);
    EXPECT_TRUE(main_.mnuSymbolReLoad());
}

TEST_F(LibraryCommands, the_edited_timeline_stays_while_rows_move) {
    for (int i = 0; i < 4; ++i) main_.mnuAddSymbolItem_Sprite(Accept);
    const auto edited = Symbol(2);
    main_.ChangeSprite(2);
    const auto check = [&](Long index) {
        EXPECT_EQ(main_.editIndex(), index);
        EXPECT_EQ(Symbol(index), edited);
        EXPECT_EQ(main_.colEditLayer(), TimelineOf(*edited));
    };
    main_.mnuSortSymbolID(true);
    check(3);
    EXPECT_TRUE(main_.MoveSymbols(3, 4, 1, false, false));
    check(1);
    EXPECT_EQ(main_.SelSymbol1(), 1);
    EXPECT_EQ(main_.SelSymbol2(), 2);
    main_.mnuAddSymbolItem_Folder(u"");
    check(2);
    Remove(1, 1);
    check(1);
    EXPECT_FALSE(main_.MoveSymbols(1, 9, 1, false, false));
    EXPECT_FALSE(main_.MoveSymbols(0, 1, 4, false, false));
    EXPECT_FALSE(main_.MoveSymbols(1, 2, 0, false, false));
    Remove(1, 1);
    EXPECT_EQ(main_.editIndex(), frmMain::EditMain);
    EXPECT_EQ(main_.colEditLayer(), main_.colMainLayer());
    EXPECT_EQ(main_.EditLayer(), (*main_.colMainLayer())(1));
}

TEST_F(LibraryCommands, selected_rows_are_sorted_and_numbered) {
    for (int i = 0; i < 4; ++i) AddPicture(i % 2 == 0 ? KindSprite : KindBitmap);
    EXPECT_EQ(Library(), "1s 2 3s 4");
    main_.SelectSymbols(4, 2);
    main_.mnuSortSymbolSelID(true);
    EXPECT_EQ(Library(), "1s 4 3s 2");
    main_.mnuSortSymbolSelType(false);
    EXPECT_EQ(Library(), "1s 2 4 3s");
    main_.mnuSortSymbolType(false);
    EXPECT_EQ(Library(), "2 4 1s 3s");
    EXPECT_FALSE(main_.mnuSymbolIDEdit([](SymbolIdEdit& edit) {
        EXPECT_EQ(edit.Lowest(), 0);
        edit.Value = -1;
        return true;
    }));
    EXPECT_TRUE(interface_.Messages.empty());
    EXPECT_TRUE(main_.mnuSymbolIDEdit([](SymbolIdEdit& edit) {
        edit.blRenumber = true;
        edit.Value = 1;
        return true;
    }));
    EXPECT_EQ(Library(), "4 1 2s 3s");
    ASSERT_EQ(interface_.Messages.size(), 1u);
    EXPECT_EQ(interface_.Messages[0].Text, RepeatedIds);
    main_.SelectSymbols(0, 0);
    EXPECT_FALSE(main_.mnuSymbolIDEdit([](SymbolIdEdit&) { return true; }));
    main_.mnuRemoveSymbolItem();
    EXPECT_EQ(main_.colSymbol()->Count(), 4);
}

TEST_F(LibraryCommands, the_selected_rows_of_the_timeline_follow_what_goes) {
    const auto a = AddPicture();
    const auto b = AddPicture();
    Place({a, b, a, b, a});
    ASSERT_EQ(ShownInMain(), "1 2 1 2 1 -1");
    main_.ChangeSelectIndex(4, 5);
    Remove(1, 1);
    EXPECT_EQ(ShownInMain(), "2 2 -1");
    EXPECT_EQ(main_.SelIndex1(), 2);
    EXPECT_EQ(main_.SelIndex2(), 3);
    EXPECT_EQ(main_.SelSymbol1(), 0);
}

TEST_F(LibraryCommands, a_folder_goes_with_all_that_is_in_it) {
    main_.mnuAddSymbolItem_Folder(u"");
    for (int i = 0; i < 4; ++i) AddPicture();
    Place({Symbol(2), Symbol(4), Symbol(5)});
    main_.MoveSymbols(2, 4, 1, true, false);
    ASSERT_EQ(Library(), "F(3) >1 >2 >3 4");
    Remove(1, 1);
    EXPECT_EQ(Library(), "4");
    EXPECT_EQ(ShownInMain(), "4 -1");
    // A step for each symbol that was shown.
    main_.mnuUndoRedo(0);
    EXPECT_EQ(ShownInMain(), "4 3 -1");
    main_.mnuUndoRedo(0);
    EXPECT_EQ(ShownInMain(), "4 3 1 -1");
    EXPECT_EQ(Library(), "4 3 1");
}

std::string HistoriesName(const testing::TestParamInfo<bool>& mode) {
    return mode.param ? "OfAllTimelines" : "OfEachTimeline";
}

/// Both settings of `UndoRedoType`.
class Removal : public LibraryCommands, public testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        LibraryCommands::SetUp();
        EXPECT_TRUE(mdlPrivateProfile::UndoRedoType(GetParam()));
        ASSERT_TRUE(main_.mnuNew());
    }
};

TEST_P(Removal, brings_back_by_undo_what_fell_with_all_it_refers_to) {
    auto up = AddPicture();
    auto over = AddPicture();
    auto down = AddPicture(KindVector);
    auto target = AddPicture(KindVector);
    down->Property<clsPropertyVector>()->MorphSymbol(target);
    auto koma = AddPicture(KindKoma);
    for (const auto& picture : {up, over, up})
        koma->Property<clsPropertyKoma>()->colKomas->Add(picture);
    const auto button = AddButton(koma);
    auto& states = *button->Property<clsPropertyButton>();
    states.OverSymbol(over);
    states.DownSymbol(down);
    const auto other = AddButton(AddPicture());
    other->Property<clsPropertyButton>()->OverSymbol(up);
    Place({button});
    ASSERT_EQ(Library(), "1 2 3 4 5 6 7 8");

    Remove(1, 4);
    EXPECT_EQ(Library(), "7 8");
    EXPECT_EQ(ShownInMain(), "-1");
    EXPECT_EQ(other->Property<clsPropertyButton>()->OverSymbol(), nullptr);

    // From here on the histories alone hold them.
    const std::set<const clsSymbolData*> fallen{button.get(), koma.get(), up.get(),
                                                over.get(),   down.get(), target.get()};
    up = over = down = target = koma = nullptr;
    main_.mnuUndoRedo(0);
    EXPECT_EQ(ShownInMain(), "6 -1");
    ASSERT_EQ(main_.colSymbol()->Count(), 8);
    std::set<const clsSymbolData*> back;
    for (Long row = 3; row <= 8; ++row) back.insert(Symbol(row).get());
    EXPECT_EQ(back, fallen);
    EXPECT_EQ(states.UpSymbol()->ID, 5);
    EXPECT_EQ(states.OverSymbol()->ID, 2);
    EXPECT_EQ(states.DownSymbol()->ID, 3);
    EXPECT_EQ(states.UpSymbol()->Property<clsPropertyKoma>()->colKomas->Count(), 3);
    EXPECT_EQ(states.DownSymbol()->Property<clsPropertyVector>()->MorphID(), 4);
    main_.mnuUndoRedo(1);
    EXPECT_EQ(ShownInMain(), "-1");
}

TEST_F(LibraryCommands, a_file_whose_name_holds_a_backslash_is_refused) {
    ASSERT_TRUE(WriteFileBytes(BitmapFile(1), Path(u"a\\b.bmp")));
    EXPECT_FALSE(main_.AddSymbolItem_File(Path(u"a\\b.bmp")));
    ASSERT_EQ(interface_.Messages.size(), 1u);
    EXPECT_NE(interface_.Messages[0].Text.find(u"「\\」"), String::npos);
    EXPECT_TRUE(main_.colSymbol()->Empty());
}

TEST_F(LibraryCommands, a_timelines_own_history_keeps_what_its_symbols_refer_to) {
    EXPECT_TRUE(mdlPrivateProfile::UndoRedoType(false));
    EXPECT_TRUE(mdlPrivateProfile::UndoRedoMaxCount(1));
    ASSERT_TRUE(main_.mnuNew());
    main_.mnuAddSymbolItem_Sprite(Accept);
    auto over = AddPicture();
    const auto button = AddButton(AddPicture());
    button->Property<clsPropertyButton>()->OverSymbol(over);
    main_.ChangeSprite(1);
    Place({button});
    over = nullptr;
    Remove(2, 4);
    // The main history, which kept them too, goes on.
    main_.ChangeSprite(frmMain::EditMain);
    for (int i = 0; i < 3; ++i) main_.mnuAddLayer_FrameLabel();
    main_.ChangeSprite(1);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.colEditLayer()->Count(), 1);
    EXPECT_NE(button->Property<clsPropertyButton>()->OverSymbol(), nullptr);
}

TEST_F(LibraryCommands, what_is_fixed_follows_when_the_longest_row_goes_with_its_symbol) {
    Place({AddPicture()});
    main_.ChangeSelectIndex(1, 1);
    ASSERT_TRUE(main_.ChangeDispCount(9));
    EXPECT_EQ(Row(2).Object(1)->endFrame(), 9);
    Remove(1, 1);
    EXPECT_EQ(Row(1).Object(1)->endFrame(), 1);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Row(2).Object(1)->endFrame(), 9);
}

TEST_P(Removal, empties_all_timelines_and_undo_fills_them) {
    const auto picture = AddPicture();
    const auto kept = AddPicture();
    main_.mnuAddSymbolItem_Sprite(Accept);
    const auto sprite = Symbol(3);
    main_.ChangeSprite(3);
    Place({picture, kept});
    main_.ChangeSprite(frmMain::EditMain);
    Place({sprite, picture});
    ASSERT_EQ(ShownIn(*sprite), "2 1");
    ASSERT_EQ(ShownInMain(), "1 3 -1");

    Remove(1, 1);
    EXPECT_EQ(ShownIn(*sprite), "2");
    EXPECT_EQ(ShownInMain(), "3 -1");
    EXPECT_EQ(main_.editIndex(), frmMain::EditMain);
    if (GetParam()) {
        main_.mnuUndoRedo(0);
        EXPECT_EQ(ShownIn(*sprite), "2 1");
        main_.mnuUndoRedo(0);
    } else {
        main_.mnuUndoRedo(0);
        EXPECT_EQ(ShownIn(*sprite), "2");
        main_.ChangeSprite(sprite->Index);
        main_.mnuUndoRedo(0);
        EXPECT_EQ(ShownIn(*sprite), "2 1");
    }
    EXPECT_EQ(ShownInMain(), "1 3 -1");
    EXPECT_EQ(Library(), "2 3s 1");
}

TEST_P(Removal, a_sprite_comes_back_with_its_contents) {
    const auto picture = AddPicture();
    main_.mnuAddSymbolItem_Sprite(Accept);
    const auto sprite = Symbol(2);
    main_.ChangeSprite(2);
    Place({picture});
    main_.ChangeSprite(frmMain::EditMain);
    Place({sprite});
    Remove(1, 2);
    EXPECT_EQ(main_.colSymbol()->Count(), 0);
    EXPECT_EQ(ShownInMain(), "-1");
    main_.mnuUndoRedo(0);
    EXPECT_EQ(ShownInMain(), "2 -1");
    EXPECT_EQ(ShownIn(*sprite), "1");
    EXPECT_EQ(main_.colSymbol()->Count(), 2);
}

TEST_P(Removal, the_sprite_that_is_edited_may_go) {
    main_.mnuAddSymbolItem_Sprite(Accept);
    const auto sprite = Symbol(1);
    Place({sprite});
    main_.ChangeSprite(1);
    Place({AddPicture()});
    Remove(1, 1);
    EXPECT_EQ(main_.editIndex(), frmMain::EditMain);
    EXPECT_EQ(ShownInMain(), "-1");
    EXPECT_TRUE(main_.CanUndo());
    main_.mnuUndoRedo(0);
    EXPECT_EQ(ShownInMain(), "1 -1");
    EXPECT_EQ(ShownIn(*sprite), "2");
}

TEST_P(Removal, a_number_given_away_meanwhile_is_replaced_on_return) {
    Place({AddPicture()});
    Remove(1, 1);
    AddPicture();
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Library(), "1 2");
    EXPECT_EQ(ShownInMain(), "2 -1");
    ASSERT_EQ(interface_.Messages.size(), 1u);
    EXPECT_EQ(interface_.Messages[0].Text, RepeatedIds);
}

INSTANTIATE_TEST_SUITE_P(Histories, Removal, testing::Bool(), HistoriesName);

/// Commands in any order, with what must always hold.
class LibraryWalk : public Removal {
protected:
    std::size_t Below(std::size_t limit) { return random_() % limit; }
    Long AnyRow() { return 1 + static_cast<Long>(Below(Count())); }
    std::size_t Count() const { return static_cast<std::size_t>(main_.colSymbol()->Count()); }
    /// A symbol that others can show, or null.
    std::shared_ptr<clsSymbolData> AnyPicture() {
        if (Count() == 0) return nullptr;
        const auto symbol = Symbol(AnyRow());
        const Long kind = symbol->eType();
        return kind == KindBitmap || kind == KindVector || kind == KindKoma ? symbol : nullptr;
    }
    void AddSomething();
    void Step();
    void CheckFolders() const;
    void CheckReferences() const;
    void Check() const;

    std::mt19937 random_{GetParam() ? 11u : 12u};
};

void LibraryWalk::AddSomething() {
    const auto picture = AnyPicture();
    switch (Below(6)) {
        case 0:
            main_.mnuAddSymbolItem_Sprite(Accept);
            break;
        case 1:
            main_.mnuAddSymbolItem_Folder(u"f");
            break;
        case 2:
            if (picture)
                main_.mnuAddSymbolItem_Button([&](clsSymbolData& symbol) {
                    auto& button = *symbol.Property<clsPropertyButton>();
                    button.UpSymbol(picture);
                    button.OverSymbol(AnyPicture());
                    return true;
                });
            break;
        case 3:
            if (picture)
                main_.mnuAddSymbolItem_Koma([&](clsSymbolData& symbol) {
                    auto& koma = *symbol.Property<clsPropertyKoma>();
                    koma.colKomas->Add(picture);
                    if (const auto next = AnyPicture()) koma.colKomas->Add(next);
                    return true;
                });
            break;
        case 4:
            AddPicture();
            break;
        default:
            const auto drawing = AddPicture(KindVector);
            const auto target = AnyPicture();
            if (target && target->eType() == KindVector && target != drawing)
                drawing->Property<clsPropertyVector>()->MorphSymbol(target);
            break;
    }
}

void LibraryWalk::Step() {
    const std::size_t command = Below(20);
    if (Count() == 0 || (command < 5 && Count() < 40)) {
        AddSomething();
    } else if (command < 9) {
        const Long row = AnyRow();
        main_.SelectSymbols(row, row);
        main_.AddToLayer(1, false, false);
    } else if (command < 11) {
        main_.ChangeSprite(Below(3) == 0 ? frmMain::EditMain : AnyRow());
    } else if (command < 13) {
        const Long row = AnyRow();
        Remove(row, row + static_cast<Long>(Below(3)));
    } else if (command < 15) {
        main_.MoveSymbols(AnyRow(), AnyRow(), AnyRow(), Below(2) == 0, Below(2) == 0);
    } else if (command < 16) {
        main_.SelectSymbols(AnyRow(), AnyRow());
        main_.mnuSymbolIDEdit([this](SymbolIdEdit& edit) {
            edit.blRenumber = Below(2) == 0;
            edit.Value = std::clamp(static_cast<Long>(Below(30)), edit.Lowest(), edit.Highest());
            return true;
        });
    } else if (command < 17) {
        switch (Below(3)) {
            case 0:
                main_.mnuSortSymbolID(Below(2) == 0);
                break;
            case 1:
                main_.mnuSortSymbolType(Below(2) == 0);
                break;
            default:
                main_.mnuSortSymbolFolder();
                break;
        }
    } else {
        main_.mnuUndoRedo(command < 19 ? 0 : 1);
    }
}

void LibraryWalk::CheckFolders() const {
    Long row = 0;
    for (const auto& symbol : *main_.colSymbol()) {
        ASSERT_EQ(symbol->Index, ++row);
        const auto* folder = symbol->Property<clsPropertySymbolFolder>();
        Long inside = 0;
        for (Long next = row + 1; folder && next <= main_.colSymbol()->Count(); ++next) {
            auto outer = Symbol(next)->ParentFolder();
            while (outer && outer != symbol) outer = outer->ParentFolder();
            if (!outer) break;
            ++inside;
        }
        ASSERT_EQ(folder != nullptr ? folder->LayerCount : 0, inside);
        if (const auto outer = symbol->ParentFolder()) {
            ASSERT_LT(outer->Index, row);
            ASSERT_GE(outer->Index + outer->Property<clsPropertySymbolFolder>()->LayerCount, row);
        }
    }
}

void LibraryWalk::CheckReferences() const {
    const auto inLibrary = [this](const std::shared_ptr<clsSymbolData>& symbol) {
        return symbol->ID < 1 ||
               (symbol->Index >= 1 && symbol->Index <= main_.colSymbol()->Count() &&
                Symbol(symbol->Index) == symbol);
    };
    std::set<Long> ids;
    for (const auto& symbol : *main_.colSymbol()) {
        for (const auto& reference : ReferencesOf(*symbol))
            ASSERT_TRUE(!reference || inLibrary(reference)) << symbol->Index;
        const auto* button = symbol->Property<clsPropertyButton>();
        ASSERT_TRUE(button == nullptr || button->UpSymbol()) << symbol->Index;
        const auto* koma = symbol->Property<clsPropertyKoma>();
        ASSERT_TRUE(koma == nullptr || !koma->colKomas->Empty()) << symbol->Index;
        if (symbol->eType() == KindSymbolFolder) continue;
        ASSERT_GE(symbol->ID, 1);
        ASSERT_TRUE(ids.insert(symbol->ID).second) << symbol->ID;
    }
    for (const auto& layer : *main_.colMainLayer()) ASSERT_TRUE(inLibrary(layer->SymbolData()));
}

void LibraryWalk::Check() const {
    CheckFolders();
    CheckReferences();
    ASSERT_NE(main_.editIndex(), 0);
    ASSERT_EQ(main_.colEditLayer(), main_.editIndex() < 0 ? main_.colMainLayer()
                                                          : TimelineOf(*Symbol(main_.editIndex())));
}

TEST_P(LibraryWalk, keeps_all_in_order_and_ends_where_it_began_once_undone) {
    EXPECT_TRUE(mdlPrivateProfile::UndoRedoMaxCount(1 << 20));
    ASSERT_TRUE(main_.mnuNew());
    for (int step = 0; step < 1500; ++step) {
        Step();
        Check();
        if (HasFatalFailure()) FAIL() << "step " << step << ": " << Library();
    }
    const auto undoAll = [this] {
        while (main_.CanUndo()) {
            main_.mnuUndoRedo(0);
            Check();
            if (HasFatalFailure()) FAIL() << Library();
        }
    };
    undoAll();
    // Sprites that come back have histories of their own.
    for (Long row = 1; !GetParam() && row <= main_.colSymbol()->Count(); ++row) {
        for (const Long timeline : {frmMain::EditMain, row}) {
            main_.ChangeSprite(timeline);
            undoAll();
        }
    }
    EXPECT_EQ(ShownInMain(), "-1");
    for (const auto& symbol : *main_.colSymbol()) {
        const auto layers = TimelineOf(*symbol);
        EXPECT_TRUE(!layers || layers->Empty()) << symbol->ID;
    }
}

INSTANTIATE_TEST_SUITE_P(Histories, LibraryWalk, testing::Bool(), HistoriesName);

}  // namespace
}  // namespace tamber
