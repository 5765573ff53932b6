#include "script/clsScriptData.h"

#include "platform/text.h"

namespace tamber {

namespace {

String Quoted(const String& text) {
    return u"\"" + text + u"\"";
}

}  // namespace

void clsScriptData::eScriptMode(Long mode) {
    if (mode == ModeJump && mode_ != ModeJump) {
        if (nPrm1 != 0 && nPrm1 != 1) nPrm1 = 0;
        if (nPrm2 != 0 && nPrm2 != 1) nPrm2 = 0;
    }
    mode_ = mode;
}

String clsScriptData::Script(Long swfVersion) const {
    if (mode_ == ModeFree) return ScriptText;
    String text;
    if (!TargetPath.empty()) text = TargetPath + (swfVersion == 4 ? u"/" : u".");
    switch (mode_) {
        case ModePlay:
            text += u"play();";
            break;
        case ModeStop:
            text += u"stop();";
            break;
        case ModeJump:
            text += nPrm2 != 0 ? u"gotoAndStop(" : u"gotoAndPlay(";
            text += nPrm1 != 0 ? Quoted(strPrm1) : strPrm1;
            text += u");";
            break;
        case ModePrevious:
            text += u"prevFrame();";
            break;
        case ModeNext:
            text += u"nextFrame();";
            break;
        case ModeUrl:
            text += u"getURL(" + Quoted(strPrm1);
            if (!strPrm2.empty()) text += u"," + Quoted(strPrm2);
            text += u");";
            break;
        default:
            break;
    }
    return text;
}

String clsScriptData::Comment() const {
    switch (mode_) {
        case ModePlay:
            return u"再生";
        case ModeStop:
            return u"停止";
        case ModeJump:
            return (nPrm2 != 0 ? u"ジャンプして停止(" : u"ジャンプして再生(") +
                   (nPrm1 != 0 ? Quoted(strPrm1) : strPrm1) + u")";
        case ModePrevious:
            return u"前のフレームへ移動して停止";
        case ModeNext:
            return u"次のフレームへ移動して停止";
        case ModeUrl:
            return u"URLを取得(" + Quoted(strPrm1) +
                   (strPrm2.empty() ? String() : u"," + Quoted(strPrm2)) + u")";
        default:
            return {};
    }
}

String clsScriptData::PrevScript(Long length, Long swfVersion) const {
    String text = Script(swfVersion);
    const auto limit = static_cast<std::size_t>(length < 0 ? 0 : length);
    const bool cut = text.size() > limit;
    if (cut) text.resize(limit);
    text = ReplaceAll(ReplaceAll(text, u"\t", u"    "), u"&", u"&&");
    return cut ? text + u"..." : text;
}

}  // namespace tamber
