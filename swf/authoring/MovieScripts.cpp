#include "swf/authoring/MovieScripts.h"

#include <algorithm>

#include "document/elements/clsObjFrameAction.h"
#include "document/records/clsPropertyClass.h"
#include "platform/UserInterface.h"
#include "platform/text.h"
#include "script/InitBlock.h"
#include "script/ScriptPreprocessor.h"
#include "swf/tags/clsSWFTagDefineButton.h"

namespace tamber {

namespace {

constexpr Long ClipActionVersion = 5;
constexpr StringView FaultTitle = u"スクリプトエラー";
constexpr StringView TooLongActions =
    u"一つのイベントのアクションが長すぎます。64KB までです。関数に分けて下さい。";

String ClipPlace(const clsLayer& layer) {
    return u"クリップアクション（" + layer.LayerNameView() + u"）";
}

String FramePlace(Long frame) {
    return u"フレームアクション（フレーム " + ToText(frame) + u"）";
}

/// The place and what the check of the script tells, in one line.
String FaultLine(const String& where, StringView fault) {
    String line = where + u"：";
    for (const char16_t c : fault) {
        if (c == u'\n') continue;
        line += c == u'\r' ? u' ' : c;
    }
    return line;
}

}  // namespace

bool MovieScripts::Expand(String& script) const {
    ScriptPreprocessor preprocessor;
    preprocessor.ProjectFolder = ProjectFolder;
    return preprocessor.PreprocessScript(script, {}) == 0;
}

/// False when the check finds nothing to tell.
bool MovieScripts::TellsReason(const String& script, ScriptKind kind, const String& where,
                               bool hasInitBlocks) const {
    const ScriptCheckResult check =
        CheckScript(script, kind, mdlSWFTag::swfVersion(), ProjectFolder, hasInitBlocks);
    if (!check.Ok) CurrentUserInterface().Status(FaultLine(where, check.Message));
    return !check.Ok;
}

void MovieScripts::Tell(const String& script, ScriptKind kind, const String& where,
                        bool hasInitBlocks) const {
    if (kind == ScriptKind::Clip && !blMessages) return;
    TellsReason(script, kind, where, hasInitBlocks);
    TellBox(where);
}

void MovieScripts::TellClass(const String& body, const clsPropertyClass& record) const {
    const String where = u"クラス（" + record.className + u"）";
    if (!TellsReason(body, ScriptKind::Frame, where)) {
        String expanded = body;
        // What the body cannot show lies in the text made of it, whose lines are its own.
        if (Expand(expanded))
            TellsReason(ClassScript(expanded, record), ScriptKind::Frame, where + u"の生成コード");
    }
    TellBox(FramePlace(1));
}

void MovieScripts::TellBox(const String& where) {
    ShowMessage(u"文法に誤りがあります。\r\n" + where, FaultTitle, MessageIcon::Error);
}

bool MovieScripts::CompileInitClip(clsSWFAdmin& timeline, bool isMovie, String& script) {
    InitBlock block;
    if (!ExtractInitClip(script, block)) return false;
    if (block.Text.empty() || isMovie) return true;
    bool ok = true;
    auto tag = timeline.GetNewDoAction(block.Text, ok);
    timeline.AddInitAction(std::move(tag), block.OrderNum, -1);
    return ok;
}

void MovieScripts::CompileFrameAction(clsSWFAdmin& timeline, bool isMovie, Long frame,
                                      String script, const clsPropertyClass* inClass) {
    const String source = script;
    bool ok = Expand(script);
    if (ok && frame == 1 && timeline.Ver >= InitClipVersion) {
        if (inClass != nullptr) script = ClassScript(script, *inClass);
        ok = CompileInitClip(timeline, isMovie, script);
    }
    if (ok) timeline.AddTag(frame, timeline.GetNewDoAction(script, ok), false);
    if (ok) return;
    if (inClass != nullptr)
        TellClass(source, *inClass);
    else
        Tell(source, ScriptKind::Frame, FramePlace(frame), frame == 1);
}

String MovieScripts::ClassBody(const clsPropertyClass& record) const {
    String body;
    const Collection<clsLayer>& layers = *record.colLayer;
    for (Long i = 1; i <= layers.Count(); ++i) {
        const clsLayer& layer = *layers(blTopToBottom ? layers.Count() + 1 - i : i);
        const auto first = layer.FastObject();
        const auto* action = first ? first->ObjectAs<clsObjFrameAction>() : nullptr;
        if (action == nullptr || !layer.Visible(true)) continue;
        body += action->inScript.Script(mdlSWFTag::swfVersion()) + u"\r\n";
    }
    return body;
}

String MovieScripts::ClassScript(StringView body, const clsPropertyClass& record) const {
    const auto links = colClassLinks.find(record.className);
    return GenerateClassScript(
        body, {record.className, record.Extends,
               links == colClassLinks.end() ? std::vector<String>() : links->second});
}

void MovieScripts::CompileClass(clsSWFAdmin& timeline, const clsPropertyClass& record) {
    CompileFrameAction(timeline, false, 1, ClassBody(record), &record);
}

void MovieScripts::CompileClassLinks(clsSWFAdmin& timeline, StringView symbolName,
                                     Long identifier) {
    // The class's own name stands behind the first dot, where there is one.
    symbolName.remove_prefix(symbolName.find(u'.') + 1);
    const auto links = colClassLinks.find(String(symbolName));
    if (links == colClassLinks.end()) return;
    String script;
    AppendRegisterClass(script, symbolName, links->second);
    bool ok = true;
    timeline.AddInitAction(timeline.GetNewDoAction(script, ok), -1, identifier);
    if (!ok) Tell(script, ScriptKind::Frame, u"クラス（" + String(symbolName) + u"）");
}

bool MovieScripts::CompileEvents(std::vector<SwfEventActions>& actions, const String& script,
                                 EventScript kind) {
    String expanded = script;
    return Expand(expanded) && CompileEventBlocks(actions, expanded, kind, mdlSWFTag::swfVersion());
}

std::vector<SwfEventActions> MovieScripts::ButtonActions(const clsLayer& layer) {
    const String script = layer.Script(mdlSWFTag::swfVersion());
    std::vector<SwfEventActions> actions;
    const bool compiled = CompileEvents(actions, script, EventScript::Button);
    const bool fits = std::all_of(actions.begin(), actions.end(), [](const SwfEventActions& one) {
        return one.Actions.size() <= clsSWFTagDefineButton::LongestActions;
    });
    if (compiled && fits) return actions;
    const String where = u"ボタンアクション（" + layer.LayerNameView() + u"）";
    if (compiled) CurrentUserInterface().Status(FaultLine(where, TooLongActions));
    Tell(script, ScriptKind::Button, where);
    return {};
}

std::vector<SwfEventActions> MovieScripts::ClipActions(const clsLayer& layer) {
    const Long version = mdlSWFTag::swfVersion();
    const String script = layer.Script(version);
    std::vector<SwfEventActions> actions;
    if (script.empty()) return actions;
    if (version < ClipActionVersion) {
        allValid_ = false;
        if (blMessages)
            ShowMessage(u"クリップアクションはSWF" + ToText(version) + u"では使用できません。\r\n" +
                            ClipPlace(layer),
                        ProgramTitle, MessageIcon::Warning);
        return actions;
    }
    if (CompileEvents(actions, script, EventScript::Clip)) return actions;
    allValid_ = false;
    Tell(script, ScriptKind::Clip, ClipPlace(layer));
    return {};
}

}  // namespace tamber
