#include "swf/tags/clsFontAdmin.h"

namespace tamber {

String clsFontAdmin::MkFontName(StringView name, bool bold, bool italic) {
    return String(name) + u"_" + (bold ? u"Bo" : u"") + (italic ? u"It" : u"");
}

Long clsFontAdmin::GetIndex(StringView key) const {
    const auto found = index_.find(String(key));
    return found == index_.end() ? FontCount() + 1 : found->second;
}

std::shared_ptr<clsFontObject> clsFontAdmin::CinFontObject(StringView key) {
    const Long index = GetIndex(key);
    if (index <= FontCount()) return FontObject(index);
    auto font = std::make_shared<clsFontObject>(String(key));
    font->blSJis(sJis_);
    fonts_.push_back(font);
    index_.emplace(key, index);
    return font;
}

void clsFontAdmin::blSJis(bool value) {
    sJis_ = value;
    for (const auto& font : fonts_) font->blSJis(value);
}

void clsFontAdmin::SetOutLine(const LogFont& face, StringView text) {
    const auto font = CinFontObject(MkFontName(face.FaceName, face.Bold, face.Italic));
    if (IsDeviceFont(face.FaceName)) return;
    GlyphOutlineRecord outline;
    for (const char16_t character : text) {
        if (character == u'\r' || character == u'\n' || font->Holds(character)) continue;
        (void)GetCharOutline(outline, character, face);
        font->AddGlyph(character, outline);
    }
}

}  // namespace tamber
