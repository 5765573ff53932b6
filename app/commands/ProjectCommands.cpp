#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>

#include "app/commands/Command.h"
#include "app/fields/ProjectInfo.h"
#include "platform/codepage.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Rows as in "1,3-5"; an empty text is none.
bool ReadRows(StringView text, std::optional<std::vector<Long>>& rows) {
    constexpr Long MostRows = 1'000'000;
    rows.emplace();
    while (!text.empty()) {
        const StringView part = text.substr(0, text.find(u','));
        text.remove_prefix(std::min(part.size() + 1, text.size()));
        const std::size_t dash = part.find(u'-');
        const Long first = ToLong(part.substr(0, dash));
        const Long last = dash == StringView::npos ? first : ToLong(part.substr(dash + 1));
        if (first < 1 || last < first || last > MostRows) return false;
        for (Long row = first; row <= last; ++row) rows->push_back(row);
    }
    return true;
}

/// Sets what an argument of the form KEY=VALUE tells.
bool SetImportOption(ImportOptions& options, StringView argument) {
    const std::size_t sign = argument.find(u'=');
    if (sign == StringView::npos) return false;
    const StringView key = argument.substr(0, sign);
    const StringView value = argument.substr(sign + 1);
    const std::map<StringView, Long ImportOptions::*> numbers{{u"ID", &ImportOptions::ID},
                                                              {u"AddID", &ImportOptions::AddID},
                                                              {u"IDMode", &ImportOptions::IDMode}};
    const std::map<StringView, String ImportOptions::*> texts{
        {u"SpriteName", &ImportOptions::SpriteName},
        {u"FolderName", &ImportOptions::FolderName},
        {u"LayerFolderName", &ImportOptions::LayerFolderName}};
    const std::map<StringView, bool ImportOptions::*> switches{
        {u"blNotRepetition", &ImportOptions::blNotRepetition},
        {u"chkSprite", &ImportOptions::chkSprite},
        {u"chkNoMain", &ImportOptions::chkNoMain},
        {u"chkFolder", &ImportOptions::chkFolder},
        {u"chkLayerFolder", &ImportOptions::chkLayerFolder}};
    if (key == u"Symbols") return ReadRows(value, options.Symbols);
    if (key == u"Layers") return ReadRows(value, options.Layers);
    if (const auto number = numbers.find(key); number != numbers.end())
        options.*number->second = ToLong(value);
    else if (const auto text = texts.find(key); text != texts.end())
        options.*text->second = value;
    else if (const auto on = switches.find(key); on != switches.end())
        options.*on->second = ToBoolean(value);
    else
        return false;
    return true;
}

bool New(CommandContext& context, const CommandArguments&) {
    return context.Controller.mnuNew();
}

bool Open(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.OpenProject(AbsolutePath(arguments[0]));
}

bool Save(CommandContext& context, const CommandArguments&) {
    return context.Controller.mnuSave();
}

bool SaveNew(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuSaveNew(AbsolutePath(arguments[0]));
}

bool Property(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuPrjProperty(ToLong(arguments[0]), ToLong(arguments[1]),
                                             ToSingle(arguments[2]), ToLong(arguments[3]));
}

bool Import(CommandContext& context, const CommandArguments& arguments) {
    ImportOptions options;
    for (std::size_t i = 1; i < arguments.size(); ++i)
        if (!SetImportOption(options, arguments[i])) return false;
    return context.Controller.mnuKVFImport(AbsolutePath(arguments[0]),
                                           [&options](const Project&, ImportOptions& chosen) {
                                               chosen = options;
                                               return true;
                                           });
}

bool ChangeTimeline(CommandContext& context, const CommandArguments& arguments) {
    const Long index = ToLong(arguments[0]);
    context.Controller.ChangeSprite(index);
    return index == 0 || context.Controller.editIndex() == index;
}

bool UndoRedo(CommandContext& context, const CommandArguments& arguments) {
    const Long index = ToLong(arguments[0]);
    if (index != 0 && index != 1) return false;
    context.Controller.mnuUndoRedo(index);
    return true;
}

bool Authoring(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.mnuAuthoring(AbsolutePath(arguments[0]));
}

bool ShowFrame(CommandContext& context, const CommandArguments& arguments) {
    return context.Controller.ShowEditSWFBitmap(arguments.empty() ? 0 : ToLong(arguments[0]));
}

bool AnswerNext(CommandContext& context, const CommandArguments& arguments) {
    const bool isFile = FoldCase(arguments[0]) == u"file";
    if (context.Interface == nullptr || isFile != (arguments.size() == 2)) return false;
    if (isFile) {
        context.Interface->Paths.push_back(AbsolutePath(arguments[1]));
        return true;
    }
    const std::map<StringView, Answer> answers{
        {u"yes", Answer::Yes}, {u"no", Answer::No}, {u"cancel", Answer::Cancel}};
    const auto answer = answers.find(FoldCase(arguments[0]));
    if (answer == answers.end()) return false;
    context.Interface->Answers.push_back(answer->second);
    return true;
}

bool Print(CommandContext& context, const CommandArguments&) {
    frmMain& controller = context.Controller;
    auto state = nlohmann::ordered_json::parse(ProjectInfoJson(controller.inProject()));
    state["path"] = ToNarrow(controller.ProjectFileName());
    state["editIndex"] = controller.editIndex();
    state["SelIndex1"] = controller.SelIndex1();
    state["SelIndex2"] = controller.SelIndex2();
    state["SelFrame1"] = controller.SelFrame1();
    state["SelFrame2"] = controller.SelFrame2();
    state["SelSymbol1"] = controller.SelSymbol1();
    state["SelSymbol2"] = controller.SelSymbol2();
    state["SelectIndex"] = controller.EditLayer() ? controller.EditLayer()->SelectIndex : 0;
    state["canUndo"] = controller.CanUndo();
    state["canRedo"] = controller.CanRedo();
    state["changed"] = controller.HasUnsavedWork();
    context.Output(state.dump(2) + "\n");
    return true;
}

bool CanUndo(const frmMain& controller) {
    return controller.CanUndo();
}

bool CanRedo(const frmMain& controller) {
    return controller.CanRedo();
}

constexpr Command Commands[]{
    {u"mnuNew", u"", 0, 0, New, {{{u"新規作成", u"Ctrl+N"}}}},
    {u"OpenProject", u"PATH", 1, 1, Open, {{{u"開く", u"Ctrl+O"}}}},
    {u"mnuSave", u"", 0, 0, Save, {{{u"上書き保存", u"Ctrl+S"}}}},
    {u"mnuSaveNew", u"PATH", 1, 1, SaveNew, {{{u"名前を付けて保存", u"Ctrl+Shift+S"}}}},
    {u"mnuPrjProperty",
     u"WIDTH HEIGHT RATE VERSION",
     4,
     4,
     Property,
     {{{u"プロジェクトのプロパティ", u"Ctrl+P"}}}},
    {u"mnuKVFImport",
     u"PATH [ID=N] [AddID=N] [IDMode=0|1] [SpriteName=TEXT] [FolderName=TEXT] "
     u"[LayerFolderName=TEXT] [blNotRepetition=0|1] [chkSprite=0|1] [chkNoMain=0|1] "
     u"[chkFolder=0|1] [chkLayerFolder=0|1] [Symbols=ROWS] [Layers=ROWS]",
     1,
     Command::AnyNumber,
     Import,
     {{{u"プロジェクトのインポート", u"Ctrl+Shift+I"}}}},
    {u"ChangeSprite", u"INDEX", 1, 1, ChangeTimeline},
    {u"mnuUndoRedo",
     u"0|1",
     1,
     1,
     UndoRedo,
     {{{u"元に戻す", u"Ctrl+Z", u"0", CanUndo}, {u"やり直し", u"Ctrl+Y", u"1", CanRedo}}}},
    {u"mnuAuthoring", u"PATH", 1, 1, Authoring, {{{u"SWFファイル生成", u"Ctrl+E"}}}},
    {u"ShowEditSWFBitmap", u"[FRAME]", 0, 1, ShowFrame},
    {u"Answer", u"yes|no|cancel|file [PATH]", 1, 2, AnswerNext},
    {u"Print", u"", 0, 0, Print},
};

}  // namespace

std::span<const Command> ProjectCommands() {
    return Commands;
}

}  // namespace tamber
