#include "output/MovieHtml.h"

#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long AnchorVersion = 6;

String Marker(StringView name) {
    return u"<<" + String(name) + u">>";
}

/// Replaces one marker after the other in a text.
class TemplateFiller {
public:
    explicit TemplateFiller(String& text) : text_(text) {}

    void Fill(StringView name, StringView value) { text_ = ReplaceAll(text_, Marker(name), value); }
    /// Takes a marker away with the line end before it.
    void DropLine(StringView name) { text_ = ReplaceAll(text_, u"\r\n" + Marker(name), u""); }

    /// An option of the player, as a parameter and as an attribute, or neither for an empty value.
    void Option(StringView name, StringView upper, StringView value) {
        const String parameter = u"P_" + String(upper);
        const String attribute = u"E_" + String(upper);
        const String quoted = u"\"" + String(value) + u"\"";
        if (value.empty()) {
            DropLine(parameter);
            text_ = ReplaceAll(text_, Marker(attribute) + u" ", u"");
        } else {
            Fill(parameter, u"<PARAM NAME=\"" + String(name) + u"\" VALUE=" + quoted + u">");
            Fill(attribute, String(name) + u"=" + quoted);
        }
    }

private:
    String& text_;
};

void FillSize(TemplateFiller& filler, const MoviePage& page) {
    const HtmlSettings& settings = page.Settings;
    const bool percent = settings.SizeUnit == u"percent";
    if (settings.SizeUnit.empty()) {
        filler.Fill(u"WIDTH", ToText(page.Width));
        filler.Fill(u"HEIGHT", ToText(page.Height));
    } else if (percent || settings.SizeUnit == u"pixel") {
        const StringView unit = percent ? u"%" : u"";
        filler.Fill(u"WIDTH", settings.WIDTH + String(unit));
        filler.Fill(u"HEIGHT", settings.HEIGHT + String(unit));
    }
}

void FillAnchors(TemplateFiller& filler, const MoviePage& page) {
    if (page.Version < AnchorVersion || !page.Settings.NamedAnchors || page.Anchors.empty()) {
        filler.DropLine(u"H_ANCHOR");
        filler.DropLine(u"B_ANCHOR");
        return;
    }
    filler.Fill(u"H_ANCHOR",
                u"<script language=\"JavaScript\">\r\n"
                u"function flashPutHref(href) { location.href = href; }\r\n"
                u"function flashGetHref() { return location.href; }\r\n"
                u"function flashPutTitle(title) { document.title = title; }\r\n"
                u"function flashGetTitle() { return document.title; }\r\n"
                u"</script>");
    String anchors;
    for (const String& anchor : page.Anchors)
        anchors += (anchors.empty() ? u"<A NAME=" : u"\r\n<A NAME=") + anchor + u"></A>";
    filler.Fill(u"B_ANCHOR", anchors);
}

}  // namespace

void MakeHtml(String& text, const MoviePage& page) {
    const HtmlSettings& settings = page.Settings;
    TemplateFiller filler(text);
    filler.Fill(u"VERSION", ToText(page.Version) + u",0,0,0");
    FillSize(filler, page);
    filler.Fill(u"ALIGN", settings.align);
    filler.Fill(u"QUALITY", settings.quality);
    // What is on is the player's default.
    const auto off = [](bool on) -> StringView { return on ? u"" : u"false"; };
    filler.Option(u"play", u"PLAY", off(settings.play));
    filler.Option(u"loop", u"LOOP", off(settings.loop));
    filler.Option(u"menu", u"MENU", off(settings.menu));
    filler.Option(u"scale", u"SCALE", settings.scale);
    filler.Option(u"salign", u"SALIGN", settings.salign);
    filler.Option(u"wmode", u"WMODE", settings.wmode);
    filler.Fill(u"FILENAME", page.FileName);
    filler.Fill(u"ID", GetFileBase(page.FileName));
    FillAnchors(filler, page);
    if (page.blPlayer)
        filler.Fill(u"PLAYER", u"<script src=\"" + String(PlayerFolder) + u"/" +
                                   String(PlayerScript) + u"\"></script>");
    else
        filler.DropLine(u"PLAYER");
}

}  // namespace tamber
