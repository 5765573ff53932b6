#include <algorithm>

#include "app/commands/Command.h"
#include "app/fields/KeyFrameFields.h"
#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/TextEncoding.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// A command of the controller without arguments.
template <void (frmMain::*Command)()>
bool Call(CommandContext& context, const CommandArguments&) {
    (context.Controller.*Command)();
    return true;
}

bool SelectLayers(CommandContext& context, const CommandArguments& arguments) {
    context.Controller.ChangeSelectIndex(ToLong(arguments[0]), ToLong(arguments.back()));
    return true;
}

/// Whether a value would be set where the lines of a batch do not point to.
bool IsPassedOver(const CommandContext& context) {
    return context.Controller.inSession().IsPassedOver();
}

bool SelectFrames(CommandContext& context, const CommandArguments& arguments) {
    context.Controller.SelectFrames(ToLong(arguments[0]), ToLong(arguments.back()));
    return true;
}

bool Jump(CommandContext& context, const CommandArguments& arguments) {
    const bool isNumber = IsNumeric(arguments[0]);
    if (!isNumber && !context.Controller.mnuJump(arguments[0])) return false;
    if (isNumber) context.Controller.mnuJump(ToLong(arguments[0]));
    return true;
}

bool PlaceSymbols(CommandContext& context, const CommandArguments& arguments) {
    const Long row = ToLong(arguments[0]);
    const auto given = [&arguments](StringView word) {
        return std::find(arguments.begin() + 1, arguments.end(), word) != arguments.end();
    };
    const bool inFolder = given(u"into");
    const bool after = given(u"after");
    if (arguments.size() - 1 != static_cast<std::size_t>(inFolder) + (after ? 1 : 0)) return false;
    context.Controller.AddToLayer(row, inFolder, after);
    return true;
}

bool AddFolder(CommandContext& context, const CommandArguments& arguments) {
    context.Controller.mnuAddLayer_Folder(arguments[0]);
    return true;
}

bool Fixed(CommandContext& context, const CommandArguments& arguments) {
    if (IsPassedOver(context)) return false;
    context.Controller.chkFixed(ToBoolean(arguments[0]));
    return true;
}

bool Tween(CommandContext& context, const CommandArguments& arguments) {
    if (IsPassedOver(context)) return false;
    context.Controller.chkTween(ToBoolean(arguments[0]));
    return true;
}

bool CopyElement(CommandContext& context, const CommandArguments& arguments) {
    const Long index = ToLong(arguments[0]);
    if ((index != 0 && index != 1) || IsPassedOver(context)) return false;
    context.Controller.cmdCopyLObject(index);
    return true;
}

/// The second argument, empty when it is left out.
StringView ValueOf(const CommandArguments& arguments) {
    return arguments.size() > 1 ? StringView(arguments[1]) : StringView();
}

bool Element(CommandContext& context, const CommandArguments& arguments) {
    const StringView field = arguments[0];
    const StringView value = ValueOf(arguments);
    if (IsPassedOver(context)) return false;
    if (field == u"StartFrame") return context.Controller.ChangeStartFrame(ToLong(value));
    if (field == u"DispCount") return context.Controller.ChangeDispCount(ToLong(value));
    return context.Controller.ChangeKeyFrame(field, [field, value](clsLayerObject& object) {
        return SetKeyFrameField(object, field, value);
    });
}

bool LayerProperty(CommandContext& context, const CommandArguments& arguments) {
    const StringView field = arguments[0];
    const StringView value = ValueOf(arguments);
    if (field == u"SymbolData") return context.Controller.ChangeLayerSymbol(ToLong(value));
    if (field == u"InstanceName") return context.Controller.ChangeInstanceName(value);
    return context.Controller.ChangeLayer(
        {}, [field, value](clsLayer& layer) { return SetLayerField(layer, field, value); });
}

/// A script from a file, which a line of a batch could not hold.
bool ScriptFile(CommandContext& context, const CommandArguments& arguments) {
    Bytes bytes;
    if (!ReadFileBytes(AbsolutePath(arguments[0]), bytes)) return false;
    const String text = DecodeText(bytes);
    const auto layer = context.Controller.EditLayer();
    if (!layer || !layer->SymbolData()) return false;
    const bool isFrameAction = layer->SymbolData()->eType() == KindFrameAction;
    if (isFrameAction && IsPassedOver(context)) return false;
    if (isFrameAction)
        return context.Controller.ChangeKeyFrame({}, [&text](clsLayerObject& object) {
            return SetKeyFrameField(object, u"Script", text);
        });
    return context.Controller.ChangeLayer({}, [&text](clsLayer& row) {
        row.inScript.eScriptMode(clsScriptData::ModeFree);
        row.inScript.ScriptText = text;
        return true;
    });
}

bool HasRow(const frmMain& controller) {
    return controller.EditLayer() != nullptr;
}

/// A row whose key frames can be edited.
bool HasFrames(const frmMain& controller) {
    return controller.inSession().FrameLayer() != nullptr;
}

/// A row that key frames can be added to.
bool TakesFrames(const frmMain& controller) {
    const auto layer = controller.inSession().FrameLayer();
    return layer && layer->SymbolData()->eType() != KindBackGround;
}

bool CanPasteFrames(const frmMain& controller) {
    return TakesFrames(controller) && !controller.inSession().inCopyFrames.Empty();
}

bool CanPasteRows(const frmMain& controller) {
    return !controller.inSession().inCopyLayers.Empty();
}

bool HasTimeline(const frmMain& controller) {
    return !controller.inSession().EditsClass();
}

bool HasKeyFrame(const frmMain& controller) {
    return HasFrames(controller) && controller.inSession().SelectedKeyFrame() != nullptr;
}

bool IsFixed(const frmMain& controller) {
    return HasKeyFrame(controller) && controller.inSession().SelectedKeyFrame()->blFixed;
}

bool IsTween(const frmMain& controller) {
    return HasKeyFrame(controller) && controller.inSession().SelectedKeyFrame()->blTween;
}

bool HasPrevious(const frmMain& controller) {
    return HasFrames(controller) && controller.EditLayer()->blPrevious();
}

bool HasNext(const frmMain& controller) {
    return HasFrames(controller) && controller.EditLayer()->blNext();
}

constexpr Command Commands[]{
    {u"SelectLayers", u"ROW1 [ROW2]", 1, 2, SelectLayers},
    {u"SelectFrames", u"FRAME1 [FRAME2]", 1, 2, SelectFrames},
    {u"mnuJump", u"FRAME|LABEL", 1, 1, Jump, {{{u"ジャンプ", u"Ctrl+G"}}}},
    {u"AddToLayer",
     u"ROW [into] [after]",
     1,
     3,
     PlaceSymbols,
     {{{u"レイヤーへ追加", u"Ctrl+L", u"", HasTimeline}}}},
    {u"mnuAddLayer_FrameLabel",
     u"",
     0,
     0,
     Call<&frmMain::mnuAddLayer_FrameLabel>,
     {{{u"フレームラベル追加", u"Ctrl+Alt+N", u"", HasTimeline}}}},
    {u"mnuAddLayer_FrameAction",
     u"",
     0,
     0,
     Call<&frmMain::mnuAddLayer_FrameAction>,
     {{{u"フレームアクション追加", u"Ctrl+Alt+S"}}}},
    {u"mnuAddLayer_Folder",
     u"NAME",
     1,
     1,
     AddFolder,
     {{{u"レイヤーフォルダ追加", u"Ctrl+Alt+F", u"", HasTimeline}}}},
    {u"mnuCopyLayer",
     u"",
     0,
     0,
     Call<&frmMain::mnuCopyLayer>,
     {{{u"レイヤーのコピー", u"", u"", HasRow}}}},
    {u"mnuCutLayer",
     u"",
     0,
     0,
     Call<&frmMain::mnuCutLayer>,
     {{{u"レイヤーの切り取り", u"", u"", HasRow}}}},
    {u"mnuPasteLayer",
     u"",
     0,
     0,
     Call<&frmMain::mnuPasteLayer>,
     {{{u"レイヤーの貼り付け", u"", u"", CanPasteRows}}}},
    {u"mnuRemoveLayer",
     u"",
     0,
     0,
     Call<&frmMain::mnuRemoveLayer>,
     {{{u"レイヤーの削除", u"", u"", HasRow}}}},
    {u"Layer", u"FIELD [VALUE]", 1, 2, LayerProperty},
    {u"mnuCopyKeyFrames",
     u"",
     0,
     0,
     Call<&frmMain::mnuCopyKeyFrames>,
     {{{u"フレームのコピー", u"", u"", HasFrames}}}},
    {u"mnuCutKeyFrames",
     u"",
     0,
     0,
     Call<&frmMain::mnuCutKeyFrames>,
     {{{u"フレームの切り取り", u"", u"", HasFrames}}}},
    {u"mnuPasteKeyFrames",
     u"",
     0,
     0,
     Call<&frmMain::mnuPasteKeyFrames>,
     {{{u"フレームの貼り付け", u"", u"", CanPasteFrames}}}},
    {u"mnuOverWriteKeyFrames",
     u"",
     0,
     0,
     Call<&frmMain::mnuOverWriteKeyFrames>,
     {{{u"フレームの上書き貼り付け", u"Ctrl+Shift+V", u"", CanPasteFrames}}}},
    {u"mnuInsertKeyFrames",
     u"",
     0,
     0,
     Call<&frmMain::mnuInsertKeyFrames>,
     {{{u"フレームの挿入貼り付け", u"Ctrl+Alt+V", u"", CanPasteFrames}}}},
    {u"mnuRemoveKeyFrames",
     u"",
     0,
     0,
     Call<&frmMain::mnuRemoveKeyFrames>,
     {{{u"キーフレームの削除", u"Shift+F6", u"", HasFrames}}}},
    {u"mnuAddKeyFrame",
     u"",
     0,
     0,
     Call<&frmMain::mnuAddKeyFrame>,
     {{{u"キーフレームの追加", u"F6", u"", TakesFrames}}}},
    {u"mnuShiftRight",
     u"",
     0,
     0,
     Call<&frmMain::mnuShiftRight>,
     {{{u"右へシフト", u"F5", u"", HasTimeline}}}},
    {u"mnuShiftLeft",
     u"",
     0,
     0,
     Call<&frmMain::mnuShiftLeft>,
     {{{u"左へシフト", u"Shift+F5", u"", HasTimeline}}}},
    {u"mnuShiftRightAll",
     u"",
     0,
     0,
     Call<&frmMain::mnuShiftRightAll>,
     {{{u"全レイヤーを右へシフト", u"Ctrl+F5", u"", HasTimeline}}}},
    {u"mnuShiftLeftAll",
     u"",
     0,
     0,
     Call<&frmMain::mnuShiftLeftAll>,
     {{{u"全レイヤーを左へシフト", u"Ctrl+Shift+F5", u"", HasTimeline}}}},
    {u"chkFixed", u"0|1", 1, 1, Fixed, {{{u"固定", u"Shift+F7", u"", HasKeyFrame, IsFixed}}}},
    {u"chkTween", u"0|1", 1, 1, Tween, {{{u"トゥイーン", u"F7", u"", HasKeyFrame, IsTween}}}},
    {u"cmdCopyLObject",
     u"0|1",
     1,
     1,
     CopyElement,
     {{{u"前のキーフレームの値をコピー", u"F8", u"0", HasPrevious},
       {u"次のキーフレームの値をコピー", u"Shift+F8", u"1", HasNext}}}},
    {u"Element", u"FIELD [VALUE]", 1, 2, Element},
    {u"ScriptFile", u"PATH", 1, 1, ScriptFile},
};

}  // namespace

std::span<const Command> TimelineCommands() {
    return Commands;
}

}  // namespace tamber
