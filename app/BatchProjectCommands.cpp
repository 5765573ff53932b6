#include <nlohmann/json.hpp>

#include "app/BatchCommand.h"
#include "app/ProjectInfo.h"
#include "platform/codepage.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

bool New(BatchContext& context, const BatchArguments&) {
    return context.Controller.mnuNew();
}

bool Open(BatchContext& context, const BatchArguments& arguments) {
    return context.Controller.OpenProject(AbsolutePath(arguments[0]));
}

bool Save(BatchContext& context, const BatchArguments&) {
    return context.Controller.mnuSave();
}

bool SaveNew(BatchContext& context, const BatchArguments& arguments) {
    return context.Controller.mnuSaveNew(AbsolutePath(arguments[0]));
}

bool Property(BatchContext& context, const BatchArguments& arguments) {
    return context.Controller.mnuPrjProperty(ToLong(arguments[0]), ToLong(arguments[1]),
                                             ToSingle(arguments[2]), ToLong(arguments[3]));
}

bool ChangeTimeline(BatchContext& context, const BatchArguments& arguments) {
    const Long index = ToLong(arguments[0]);
    context.Controller.ChangeSprite(index);
    return index == 0 || context.Controller.editIndex == index;
}

bool UndoRedo(BatchContext& context, const BatchArguments& arguments) {
    const Long index = ToLong(arguments[0]);
    if (index != 0 && index != 1) return false;
    context.Controller.mnuUndoRedo(index);
    return true;
}

bool Authoring(BatchContext& context, const BatchArguments& arguments) {
    return context.Controller.mnuAuthoring(AbsolutePath(arguments[0]));
}

bool AnswerNext(BatchContext& context, const BatchArguments& arguments) {
    const String word = FoldCase(arguments[0]);
    if (word == u"yes")
        context.Interface.Answers.push_back(Answer::Yes);
    else if (word == u"no")
        context.Interface.Answers.push_back(Answer::No);
    else if (word == u"cancel")
        context.Interface.Answers.push_back(Answer::Cancel);
    else
        return false;
    return true;
}

bool Print(BatchContext& context, const BatchArguments&) {
    frmMain& controller = context.Controller;
    auto state = nlohmann::ordered_json::parse(ProjectInfoJson(controller.inProject));
    state["path"] = ToNarrow(controller.ProjectFileName);
    state["editIndex"] = controller.editIndex;
    state["SelIndex1"] = controller.SelIndex1;
    state["SelIndex2"] = controller.SelIndex2;
    state["SelFrame1"] = controller.SelFrame1;
    state["SelFrame2"] = controller.SelFrame2;
    state["SelSymbol1"] = controller.SelSymbol1;
    state["SelSymbol2"] = controller.SelSymbol2;
    state["SelectIndex"] = controller.EditLayer() ? controller.EditLayer()->SelectIndex : 0;
    state["canUndo"] = controller.CanUndo();
    state["canRedo"] = controller.CanRedo();
    state["changed"] = controller.IsProjectChanged();
    context.Output(state.dump(2) + "\n");
    return true;
}

constexpr BatchCommand Commands[]{
    {u"mnuNew", u"", 0, 0, New},
    {u"OpenProject", u"PATH", 1, 1, Open},
    {u"mnuSave", u"", 0, 0, Save},
    {u"mnuSaveNew", u"PATH", 1, 1, SaveNew},
    {u"mnuPrjProperty", u"WIDTH HEIGHT RATE VERSION", 4, 4, Property},
    {u"ChangeSprite", u"INDEX", 1, 1, ChangeTimeline},
    {u"mnuUndoRedo", u"0|1", 1, 1, UndoRedo},
    {u"mnuAuthoring", u"PATH", 1, 1, Authoring},
    {u"Answer", u"yes|no|cancel", 1, 1, AnswerNext},
    {u"Print", u"", 0, 0, Print},
};

}  // namespace

std::span<const BatchCommand> BatchProjectCommands() {
    return Commands;
}

}  // namespace tamber
