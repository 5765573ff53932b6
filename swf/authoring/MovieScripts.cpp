#include "swf/authoring/MovieScripts.h"

#include <algorithm>

#include "document/elements/clsObjFrameAction.h"
#include "document/records/clsPropertyClass.h"
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

MovieScripts::ScriptPlace MovieScripts::ClipPlace(const clsLayer& layer) {
    return {u"クリップアクション（" + layer.LayerNameView() + u"）",
            {.Layer = layer.LayerNameView()}};
}

MovieScripts::ScriptPlace MovieScripts::ButtonPlace(const clsLayer& layer) {
    return {u"ボタンアクション（" + layer.LayerNameView() + u"）",
            {.Layer = layer.LayerNameView()}};
}

MovieScripts::ScriptPlace MovieScripts::FramePlace(Long frame) {
    return {u"フレームアクション（フレーム " + ToText(frame) + u"）", {.Frame = frame}};
}

/// False when the check finds nothing to tell; `where` gets the place within the script.
bool MovieScripts::TellsReason(const String& script, ScriptKind kind, ScriptPlace& where,
                               bool hasInitBlocks) {
    const ScriptCheckResult check =
        CheckScript(script, kind, compiler_, ProjectFolder, hasInitBlocks);
    if (check.Ok) return false;
    where.Place.Line = check.Line;
    where.Place.Offset = check.Offset;
    where.Place.Token = check.Token;
    TellStatus(where, check.Message);
    return true;
}

void MovieScripts::Tell(const String& script, ScriptKind kind, ScriptPlace where,
                        bool hasInitBlocks) {
    if (kind == ScriptKind::Clip && !blMessages) return;
    TellsReason(script, kind, where, hasInitBlocks);
    TellBox(where);
}

void MovieScripts::TellClass(const String& body, const clsPropertyClass& record) {
    ScriptPlace where{u"クラス（" + record.className + u"）", {}};
    if (!TellsReason(body, ScriptKind::Frame, where)) {
        String expanded = body;
        where.Words += u"の生成コード";
        // What the body cannot show lies in the text made of it, whose lines are its own.
        if (Expand(expanded)) TellsReason(ClassScript(expanded, record), ScriptKind::Frame, where);
    }
    TellBox({FramePlace(1).Words, where.Place});
}

void MovieScripts::TellStatus(const ScriptPlace& where, StringView fault) {
    told_.push_back({FaultLine(where.Words, fault), String(FaultTitle), MessageIcon::Error,
                     where.Place, Notice::Form::Status});
}

void MovieScripts::TellBox(const ScriptPlace& where) {
    told_.push_back({u"文法に誤りがあります。\r\n" + where.Words, String(FaultTitle),
                     MessageIcon::Error, where.Place});
}

bool MovieScripts::CompileInitClip(clsSWFAdmin& timeline, bool isMovie, String& script) {
    InitBlock block;
    if (!ExtractInitClip(script, block)) return false;
    if (block.Text.empty() || isMovie) return true;
    bool ok = true;
    auto tag = timeline.GetNewDoAction(block.Text, ok, compiler_);
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
    if (ok) timeline.AddTag(frame, timeline.GetNewDoAction(script, ok, compiler_), false);
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
        body += action->inScript.Script(Version()) + u"\r\n";
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
    timeline.AddInitAction(timeline.GetNewDoAction(script, ok, compiler_), -1, identifier);
    if (!ok) Tell(script, ScriptKind::Frame, {u"クラス（" + String(symbolName) + u"）", {}});
}

bool MovieScripts::CompileEvents(std::vector<SwfEventActions>& actions, const String& script,
                                 EventScript kind) {
    String expanded = script;
    return Expand(expanded) && CompileEventBlocks(actions, expanded, kind, compiler_);
}

std::vector<SwfEventActions> MovieScripts::ButtonActions(const clsLayer& layer) {
    const String script = layer.Script(Version());
    std::vector<SwfEventActions> actions;
    const bool compiled = CompileEvents(actions, script, EventScript::Button);
    const bool fits = std::all_of(actions.begin(), actions.end(), [](const SwfEventActions& one) {
        return one.Actions.size() <= clsSWFTagDefineButton::LongestActions;
    });
    if (compiled && fits) return actions;
    const ScriptPlace where = ButtonPlace(layer);
    if (compiled) TellStatus(where, TooLongActions);
    Tell(script, ScriptKind::Button, where);
    return {};
}

std::vector<SwfEventActions> MovieScripts::ClipActions(const clsLayer& layer) {
    const Long version = Version();
    const String script = layer.Script(version);
    std::vector<SwfEventActions> actions;
    if (script.empty()) return actions;
    if (version < ClipActionVersion) {
        allValid_ = false;
        if (blMessages)
            told_.push_back({u"クリップアクションはSWF" + ToText(version) +
                                 u"では使用できません。\r\n" + ClipPlace(layer).Words,
                             String(ProgramTitle), MessageIcon::Warning, ClipPlace(layer).Place});
        return actions;
    }
    if (CompileEvents(actions, script, EventScript::Clip)) return actions;
    allValid_ = false;
    Tell(script, ScriptKind::Clip, ClipPlace(layer));
    return {};
}

}  // namespace tamber
