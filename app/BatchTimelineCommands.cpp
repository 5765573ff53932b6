#include <algorithm>

#include "app/BatchCommand.h"
#include "app/KeyFrameFields.h"
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
bool Call(BatchContext& context, const BatchArguments&) {
    (context.Controller.*Command)();
    return true;
}

bool SelectLayers(BatchContext& context, const BatchArguments& arguments) {
    context.Controller.ChangeSelectIndex(ToLong(arguments[0]), ToLong(arguments.back()));
    return true;
}

std::shared_ptr<clsLayerObject> SelectedKeyFrame(const BatchContext& context) {
    const auto layer = context.Controller.EditLayer();
    return layer ? layer->SelectObject() : nullptr;
}

void NoteSelection(BatchContext& context) {
    const auto selected = SelectedKeyFrame(context);
    const bool isThere = selected && selected->CheckFrame(context.Controller.SelFrame1);
    context.PassedOver = isThere ? nullptr : selected;
}

/// Whether a value would be set where the lines of the batch do not point to.
bool IsPassedOver(const BatchContext& context) {
    return context.PassedOver != nullptr && SelectedKeyFrame(context) == context.PassedOver;
}

bool SelectFrames(BatchContext& context, const BatchArguments& arguments) {
    context.Controller.SelectFrames(ToLong(arguments[0]), ToLong(arguments.back()));
    NoteSelection(context);
    return true;
}

bool Jump(BatchContext& context, const BatchArguments& arguments) {
    const bool isNumber = IsNumeric(arguments[0]);
    if (!isNumber && !context.Controller.mnuJump(arguments[0])) return false;
    if (isNumber) context.Controller.mnuJump(ToLong(arguments[0]));
    NoteSelection(context);
    return true;
}

bool PlaceSymbols(BatchContext& context, const BatchArguments& arguments) {
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

bool AddFolder(BatchContext& context, const BatchArguments& arguments) {
    context.Controller.mnuAddLayer_Folder(arguments[0]);
    return true;
}

bool Fixed(BatchContext& context, const BatchArguments& arguments) {
    if (IsPassedOver(context)) return false;
    context.Controller.chkFixed(ToBoolean(arguments[0]));
    return true;
}

bool Tween(BatchContext& context, const BatchArguments& arguments) {
    if (IsPassedOver(context)) return false;
    context.Controller.chkTween(ToBoolean(arguments[0]));
    return true;
}

bool CopyElement(BatchContext& context, const BatchArguments& arguments) {
    const Long index = ToLong(arguments[0]);
    if ((index != 0 && index != 1) || IsPassedOver(context)) return false;
    context.Controller.cmdCopyLObject(index);
    return true;
}

/// The second argument, empty when it is left out.
StringView ValueOf(const BatchArguments& arguments) {
    return arguments.size() > 1 ? StringView(arguments[1]) : StringView();
}

bool Element(BatchContext& context, const BatchArguments& arguments) {
    const StringView field = arguments[0];
    const StringView value = ValueOf(arguments);
    if (IsPassedOver(context)) return false;
    if (field == u"StartFrame") return context.Controller.ChangeStartFrame(ToLong(value));
    if (field == u"DispCount") return context.Controller.ChangeDispCount(ToLong(value));
    return context.Controller.ChangeKeyFrame(field, [field, value](clsLayerObject& object) {
        return SetKeyFrameField(object, field, value);
    });
}

bool LayerProperty(BatchContext& context, const BatchArguments& arguments) {
    const StringView field = arguments[0];
    const StringView value = ValueOf(arguments);
    if (field == u"SymbolData") return context.Controller.ChangeLayerSymbol(ToLong(value));
    if (field == u"InstanceName") return context.Controller.ChangeInstanceName(value);
    return context.Controller.ChangeLayer(
        {}, [field, value](clsLayer& layer) { return SetLayerField(layer, field, value); });
}

/// A script from a file, which a line of a batch could not hold.
bool ScriptFile(BatchContext& context, const BatchArguments& arguments) {
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

constexpr BatchCommand Commands[]{
    {u"SelectLayers", u"ROW1 [ROW2]", 1, 2, SelectLayers},
    {u"SelectFrames", u"FRAME1 [FRAME2]", 1, 2, SelectFrames},
    {u"mnuJump", u"FRAME|LABEL", 1, 1, Jump},
    {u"AddToLayer", u"ROW [into] [after]", 1, 3, PlaceSymbols},
    {u"mnuAddLayer_FrameLabel", u"", 0, 0, Call<&frmMain::mnuAddLayer_FrameLabel>},
    {u"mnuAddLayer_FrameAction", u"", 0, 0, Call<&frmMain::mnuAddLayer_FrameAction>},
    {u"mnuAddLayer_Folder", u"NAME", 1, 1, AddFolder},
    {u"mnuCopyLayer", u"", 0, 0, Call<&frmMain::mnuCopyLayer>},
    {u"mnuCutLayer", u"", 0, 0, Call<&frmMain::mnuCutLayer>},
    {u"mnuPasteLayer", u"", 0, 0, Call<&frmMain::mnuPasteLayer>},
    {u"mnuRemoveLayer", u"", 0, 0, Call<&frmMain::mnuRemoveLayer>},
    {u"Layer", u"FIELD [VALUE]", 1, 2, LayerProperty},
    {u"mnuCopyKeyFrames", u"", 0, 0, Call<&frmMain::mnuCopyKeyFrames>},
    {u"mnuCutKeyFrames", u"", 0, 0, Call<&frmMain::mnuCutKeyFrames>},
    {u"mnuPasteKeyFrames", u"", 0, 0, Call<&frmMain::mnuPasteKeyFrames>},
    {u"mnuOverWriteKeyFrames", u"", 0, 0, Call<&frmMain::mnuOverWriteKeyFrames>},
    {u"mnuInsertKeyFrames", u"", 0, 0, Call<&frmMain::mnuInsertKeyFrames>},
    {u"mnuRemoveKeyFrames", u"", 0, 0, Call<&frmMain::mnuRemoveKeyFrames>},
    {u"mnuAddKeyFrame", u"", 0, 0, Call<&frmMain::mnuAddKeyFrame>},
    {u"mnuShiftRight", u"", 0, 0, Call<&frmMain::mnuShiftRight>},
    {u"mnuShiftLeft", u"", 0, 0, Call<&frmMain::mnuShiftLeft>},
    {u"mnuShiftRightAll", u"", 0, 0, Call<&frmMain::mnuShiftRightAll>},
    {u"mnuShiftLeftAll", u"", 0, 0, Call<&frmMain::mnuShiftLeftAll>},
    {u"chkFixed", u"0|1", 1, 1, Fixed},
    {u"chkTween", u"0|1", 1, 1, Tween},
    {u"cmdCopyLObject", u"0|1", 1, 1, CopyElement},
    {u"Element", u"FIELD [VALUE]", 1, 2, Element},
    {u"ScriptFile", u"PATH", 1, 1, ScriptFile},
};

}  // namespace

std::span<const BatchCommand> BatchTimelineCommands() {
    return Commands;
}

}  // namespace tamber
