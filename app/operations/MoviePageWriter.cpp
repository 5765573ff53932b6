#include "app/operations/MoviePageWriter.h"

#include "app/settings/mdlPrivateProfile.h"
#include "output/PagePlayer.h"
#include "platform/UserInterface.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Puts the player beside a page, unless it is there.
void ProvidePlayer(StringView pageFolder) {
    const String folder = JoinPath(pageFolder, PlayerFolder);
    if (FileExists(JoinPath(folder, PlayerScript))) return;
    const String package = FindPlayerPackage(pageFolder);
    if (!package.empty() && CopyPlayer(package, folder)) return;
    CurrentUserInterface().Status(u"HTMLページの再生には「" + String(PlayerFolder) +
                                  u"」フォルダが必要です。npm install " + String(PlayerPackage) +
                                  u" の後にもう一度生成するか、その中身を「" + folder +
                                  u"」へ置いて下さい。");
}

}  // namespace

HtmlSettings HtmlSection() {
    namespace settings = mdlPrivateProfile;
    HtmlSettings html;
    html.SizeUnit = settings::HTML_SizeUnit();
    html.WIDTH = ToText(settings::HTML_WIDTH());
    html.HEIGHT = ToText(settings::HTML_HEIGHT());
    html.align = settings::HTML_align();
    html.salign = settings::HTML_salign();
    html.play = settings::HTML_play();
    html.loop = settings::HTML_loop();
    html.menu = settings::HTML_menu();
    html.quality = settings::HTML_quality();
    html.wmode = settings::HTML_wmode();
    html.scale = settings::HTML_scale();
    html.NamedAnchors = settings::HTML_NamedAnchors();
    return html;
}

void HtmlSection(const HtmlSettings& html, bool kept) {
    namespace settings = mdlPrivateProfile;
    const auto set = [kept](const auto& key, const auto& value, StringView text) {
        if (kept)
            key(value);
        else
            settings::SettingsOverride(String(key.Section) + u"." + String(key.Key) + u"=" +
                                       String(text));
    };
    const auto setText = [&set](const settings::TextKey& key, const String& value) {
        set(key, value, value);
    };
    const auto setFlag = [&set](const settings::FlagKey& key, bool value) {
        set(key, value, value ? u"1" : u"0");
    };
    const auto setNumber = [&set](const settings::NumberKey& key, const String& text) {
        const Long value = LeadingNumber(text);
        set(key, value, ToText(value));
    };
    setText(settings::HTML_SizeUnit, html.SizeUnit);
    setNumber(settings::HTML_WIDTH, html.WIDTH);
    setNumber(settings::HTML_HEIGHT, html.HEIGHT);
    setText(settings::HTML_align, html.align);
    setText(settings::HTML_salign, html.salign);
    setFlag(settings::HTML_play, html.play);
    setFlag(settings::HTML_loop, html.loop);
    setFlag(settings::HTML_menu, html.menu);
    setText(settings::HTML_quality, html.quality);
    setText(settings::HTML_wmode, html.wmode);
    setText(settings::HTML_scale, html.scale);
    setFlag(settings::HTML_NamedAnchors, html.NamedAnchors);
}

bool WriteMoviePage(StringView moviePath, MoviePage page) {
    Bytes bytes;
    if (!ReadFileBytes(JoinPath(ProgramFolder(), u"template.txt"), bytes)) {
        ShowMessage(u"template.txt が開けません。\r\nHTMLファイルが保存できません。", ProgramTitle,
                    MessageIcon::Warning);
        return false;
    }
    page.FileName = GetFileName(moviePath);
    page.blPlayer = mdlPrivateProfile::flgPagePlayer();
    String text = DecodeAnsi(bytes);
    MakeHtml(text, page);
    const String folder = GetFileFolder(moviePath);
    const String path = JoinPath(folder, GetFileBase(moviePath) + u".html");
    if (!WriteFileBytes(EncodeAnsi(text), path)) {
        ShowMessage(path + u"\r\n\r\nファイルに書き込めませんでした。\r\n" + WriteFault(),
                    ProgramTitle, MessageIcon::Error);
        return false;
    }
    if (page.blPlayer) ProvidePlayer(folder);
    return true;
}

}  // namespace tamber
