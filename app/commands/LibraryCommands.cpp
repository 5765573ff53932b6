#include <algorithm>

#include "app/commands/Command.h"
#include "app/fields/SymbolFields.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertyMovieEmp.h"
#include "document/records/clsPropertySprite.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Pixels of a symbol at most, that a person gives.
constexpr Long LargestSide = 2000;

bool IsRow(const CommandContext& context, Long row) {
    return row >= 1 && row <= context.Controller.colSymbol()->Count();
}

/// Rows from one to another, both in the library.
bool SelectRows(CommandContext& context, const CommandArguments& arguments) {
    const Long from = ToLong(arguments[0]);
    const Long to = ToLong(arguments[1]);
    if (!IsRow(context, from) || !IsRow(context, to)) return false;
    context.Controller.SelectSymbols(from, to);
    return true;
}

bool Select(CommandContext& context, const CommandArguments& arguments) {
    context.Controller.SelectSymbols(ToLong(arguments[0]), ToLong(arguments.back()));
    return true;
}

bool AddFiles(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuAddSymbolItem_File(arguments);
}

/// Width and height from the arguments `first` and the next, where they are given.
bool TakeSize(const CommandArguments& arguments, std::size_t first, Long& width, Long& height) {
    if (arguments.size() <= first) return true;
    if (arguments.size() != first + 2) return false;
    width = ToLong(arguments[first]);
    height = ToLong(arguments[first + 1]);
    const auto isSide = [](Long side) { return side >= 1 && side <= LargestSide; };
    return isSide(width) && isSide(height);
}

/// A symbol that a button or a koma can show, by its row; null for any other row.
std::shared_ptr<clsSymbolData> PictureAt(CommandContext& context, StringView row) {
    const Long index = ToLong(row);
    if (!IsRow(context, index)) return nullptr;
    const auto symbol = (*context.Controller.colSymbol())(index);
    return KindOf(symbol->eTypeEx()).blPicture ? symbol : nullptr;
}

bool AddSprite(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuAddSymbolItem_Sprite([&arguments](clsSymbolData& symbol) {
        auto& sprite = *symbol.Property<clsPropertySprite>();
        if (!arguments.empty()) sprite.SpriteName = arguments[0];
        return TakeSize(arguments, 1, sprite.Width, sprite.height);
    });
}

bool AddButton(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuAddSymbolItem_Button([&](clsSymbolData& symbol) {
        auto& button = *symbol.Property<clsPropertyButton>();
        button.ButtonName = arguments[0];
        SymbolList states(4);
        for (std::size_t i = 1; i < arguments.size(); ++i) {
            states[i - 1] = PictureAt(context, arguments[i]);
            if (!states[i - 1]) return false;
        }
        button.UpSymbol(states[0]);
        button.OverSymbol(states[1]);
        button.DownSymbol(states[2]);
        button.HitTestSymbol(states[3]);
        return true;
    });
}

bool AddKoma(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuAddSymbolItem_Koma([&](clsSymbolData& symbol) {
        auto& koma = *symbol.Property<clsPropertyKoma>();
        koma.KomaName = arguments[0];
        koma.DispCount = ToLong(arguments[1]);
        for (std::size_t i = 2; i < arguments.size(); ++i) {
            const auto picture = PictureAt(context, arguments[i]);
            if (!picture) return false;
            koma.colKomas->Add(picture);
        }
        koma.SetSize();
        return koma.DispCount >= 1;
    });
}

bool AddMovieEmp(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuAddSymbolItem_MovieEmp([&arguments](clsSymbolData& symbol) {
        auto& movie = *symbol.Property<clsPropertyMovieEmp>();
        movie.MovieName = arguments[0];
        return TakeSize(arguments, 1, movie.Width, movie.height);
    });
}

bool AddLink(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuAddSymbolItem_Link([&arguments](clsSymbolData& symbol) {
        auto& link = *symbol.Property<clsPropertyLinkSymbol>();
        link.SymbolName = arguments[0];
        link.URL = arguments[1];
        link.eSymbolType(IsNumeric(arguments[2]) ? ToLong(arguments[2])
                                                 : SymbolKindFromText(arguments[2]));
        return link.objPropertyData && TakeSize(arguments, 3, link.Width, link.height);
    });
}

bool AddClass(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuAddSymbolItem_Class([&arguments](clsSymbolData& symbol) {
        auto& record = *symbol.Property<clsPropertyClass>();
        record.className = arguments[0];
        if (arguments.size() > 1) record.Extends = arguments[1];
        return true;
    });
}

bool AddFolder(CommandContext& context, const CommandArguments& arguments) {
    return arguments.empty() ? context.Controller.mnuAddSymbolItem_Folder()
                             : context.Controller.mnuAddSymbolItem_Folder(arguments[0]);
}

bool Remove(CommandContext& context, const CommandArguments& arguments) {
    if (!SelectRows(context, arguments)) return false;
    context.Controller.mnuRemoveSymbolItem();
    return true;
}

bool EditIds(CommandContext& context, const CommandArguments& arguments) {
    const bool renumber = arguments[0] == u"renumber";
    const bool descending = arguments.size() > 2;
    if (!renumber && (arguments[0] != u"add" || descending)) return false;
    if (descending && arguments[2] != u"desc") return false;
    const Long value = ToLong(arguments[1]);
    return context.Controller.mnuSymbolIDEdit([&](SymbolIdEdit& edit) {
        edit.blRenumber = renumber;
        edit.Value = value;
        edit.blDescendingOrder = descending;
        return true;
    });
}

template <void (frmMain::*Command)(bool)>
bool Sort(CommandContext& context, const CommandArguments& arguments) {
    if (!arguments.empty() && arguments[0] != u"asc" && arguments[0] != u"desc") return false;
    (context.Controller.*Command)(!arguments.empty() && arguments[0] == u"desc");
    return true;
}

bool SortFolder(CommandContext& context, const CommandArguments&) {
    context.Controller.mnuSortSymbolFolder();
    return true;
}

bool Move(CommandContext& context, const CommandArguments& arguments) {
    const auto given = [&arguments](StringView word) {
        return std::find(arguments.begin() + 3, arguments.end(), word) != arguments.end();
    };
    const bool inFolder = given(u"into");
    const bool after = given(u"after");
    if (arguments.size() - 3 != static_cast<std::size_t>(inFolder) + (after ? 1 : 0)) return false;
    return context.Controller.MoveSymbols(ToLong(arguments[0]), ToLong(arguments[1]),
                                          ToLong(arguments[2]), inFolder, after);
}

bool Reload(CommandContext& context, const CommandArguments& arguments) {
    return SelectRows(context, arguments) && context.Controller.mnuSymbolReLoad();
}

bool ChangeProperty(CommandContext& context, const CommandArguments& arguments) {
    const StringView value = arguments.size() > 1 ? StringView(arguments[1]) : StringView();
    return context.Controller.ChangeSymbol([&arguments, value](clsSymbolData& symbol) {
        return SetSymbolField(symbol, arguments[0], value);
    });
}

bool HasSymbol(const frmMain& controller) {
    return controller.inSession().SelectedSymbols().Count() > 0;
}

bool HasSymbols(const frmMain& controller) {
    return controller.inSession().SelectedSymbols().Count() > 1;
}

constexpr StringView Ascending = u"asc";
constexpr StringView Descending = u"desc";

constexpr Command Commands[]{
    {u"SelectSymbols", u"FROM [TO]", 1, 2, Select},
    {u"mnuAddSymbolItem_File",
     u"PATH...",
     1,
     Command::AnyNumber,
     AddFiles,
     {{{u"ファイル追加", u"Ctrl+I"}}}},
    {u"mnuAddSymbolItem_Sprite",
     u"[NAME [WIDTH HEIGHT]]",
     0,
     3,
     AddSprite,
     {{{u"スプライト追加", u"Ctrl+Shift+N"}}}},
    {u"mnuAddSymbolItem_Button",
     u"NAME UP [OVER [DOWN [HIT]]]",
     2,
     5,
     AddButton,
     {{{u"ボタン追加", u"Ctrl+Shift+B"}}}},
    {u"mnuAddSymbolItem_Koma",
     u"NAME FRAMES ROW...",
     3,
     Command::AnyNumber,
     AddKoma,
     {{{u"コマ動画追加", u"Ctrl+Shift+K"}}}},
    {u"mnuAddSymbolItem_MovieEmp",
     u"NAME WIDTH HEIGHT",
     3,
     3,
     AddMovieEmp,
     {{{u"空動画追加", u"Ctrl+Shift+M"}}}},
    {u"mnuAddSymbolItem_Link",
     u"NAME URL KIND [WIDTH HEIGHT]",
     3,
     5,
     AddLink,
     {{{u"リンクシンボル追加", u"Ctrl+Shift+L"}}}},
    {u"mnuAddSymbolItem_Class",
     u"NAME [EXTENDS]",
     1,
     2,
     AddClass,
     {{{u"クラス追加", u"Ctrl+Shift+C"}}}},
    {u"mnuAddSymbolItem_Folder",
     u"[NAME]",
     0,
     1,
     AddFolder,
     {{{u"フォルダ追加", u"Ctrl+Shift+F"}}}},
    {u"mnuRemoveSymbolItem", u"FROM TO", 2, 2, Remove, {{{u"削除", u"Del", u"", HasSymbol}}}},
    {u"mnuSymbolIDEdit",
     u"add NUMBER | renumber START [desc]",
     2,
     3,
     EditIds,
     {{{u"ID編集", u"", u"", HasSymbol}}}},
    {u"mnuSortSymbolID",
     u"[asc|desc]",
     0,
     1,
     Sort<&frmMain::mnuSortSymbolID>,
     {{{u"IDで並べ替え（昇順）", u"", Ascending}, {u"IDで並べ替え（降順）", u"", Descending}}}},
    {u"mnuSortSymbolType",
     u"[asc|desc]",
     0,
     1,
     Sort<&frmMain::mnuSortSymbolType>,
     {{{u"種別で並べ替え（昇順）", u"", Ascending}, {u"種別で並べ替え（降順）", u"", Descending}}}},
    {u"mnuSortSymbolFolder", u"", 0, 0, SortFolder, {{{u"フォルダを先頭へ並べ替え"}}}},
    {u"mnuSortSymbolSelID",
     u"[asc|desc]",
     0,
     1,
     Sort<&frmMain::mnuSortSymbolSelID>,
     {{{u"選択範囲をIDで並べ替え（昇順）", u"", Ascending, HasSymbols},
       {u"選択範囲をIDで並べ替え（降順）", u"", Descending, HasSymbols}}}},
    {u"mnuSortSymbolSelType",
     u"[asc|desc]",
     0,
     1,
     Sort<&frmMain::mnuSortSymbolSelType>,
     {{{u"選択範囲を種別で並べ替え（昇順）", u"", Ascending, HasSymbols},
       {u"選択範囲を種別で並べ替え（降順）", u"", Descending, HasSymbols}}}},
    {u"MoveSymbols", u"FROM TO ROW [into] [after]", 3, 5, Move},
    {u"mnuSymbolReLoad", u"FROM TO", 2, 2, Reload, {{{u"再読み込み", u"Ctrl+R", u"", HasSymbol}}}},
    {u"Symbol", u"FIELD [VALUE]", 1, 2, ChangeProperty},
};

}  // namespace

std::span<const Command> LibraryCommands() {
    return Commands;
}

}  // namespace tamber
