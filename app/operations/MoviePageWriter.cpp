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
        ShowMessage(path + u"\r\n\r\nファイルに書き込めませんでした。", ProgramTitle,
                    MessageIcon::Error);
        return false;
    }
    if (page.blPlayer) ProvidePlayer(folder);
    return true;
}

}  // namespace tamber
