#include "swf/authoring/TextDefinition.h"
#include "platform/twips.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

/// Pixels that players keep between a field's border and its text.
constexpr Long FieldMargin = 2;
constexpr Long SmoothingVersion = 8;
/// Below this version code tables are in code page 932, and fields keep their size.
constexpr Long UnicodeVersion = 6;

Long ToTwips(Single pixels) {
    return mdlSWFTag::ToField(static_cast<double>(pixels) * TwipsPerPixel);
}

Long FontIdentifier(const clsSWFAdmin& admin, const clsPropertyText& text) {
    return admin.inFontAdmin ? admin.inFontAdmin->GetIndex(FontKeyOf(text)) : 0;
}

void AddSmoothing(clsSWFAdmin& admin, Long id, const clsPropertyText& text, Long frame) {
    if (admin.Ver >= SmoothingVersion) admin.AddTag(frame, GetNewCSMTextSettings(id, text), true);
}

/// Static text in a font of the player's own, of which no glyphs can be embedded, as the record of
/// a field that nobody can change.
clsPropertyText LockedField(const clsPropertyText& text) {
    clsPropertyText field = text;
    field.blDynamic = true;
    field.blAutoSize = false;
    field.blMultiLine = true;
    field.blWordWrap = field.blInput = field.blSelect = false;
    field.blBorder = field.blPassword = field.blHtml = false;
    field.VariableName.clear();
    field.Width = text.Width + 2 * FieldMargin;
    field.height = text.height + 2 * FieldMargin;
    return field;
}

/// Only the player knows how large its letters are; a field shows no more than its box holds. From
/// version 6 on the box grows with the text. Below, it gets the room that letters take at most:
/// twice that of the half-width ones which it was measured with, and lines a quarter higher. Text
/// that ends on the right or stands in the middle would move with a wider box.
void GiveRoom(clsSWFTagDefineEditText& field, Long version) {
    field.blAutoSize = true;
    if (version >= UnicodeVersion) return;
    if (field.Alignment == clsSWFTagDefineText::Left)
        field.Width = mdlSWFTag::ToField(field.Width * 2.0);
    field.height = mdlSWFTag::ToField(field.height * 1.25);
}

}  // namespace

LogFont FaceOf(const clsPropertyText& text) {
    LogFont face;
    face.FaceName = text.FontName;
    face.Bold = text.FontBold;
    face.Italic = text.FontItalic;
    return face;
}

String FontKeyOf(const clsPropertyText& text) {
    return clsFontAdmin::MkFontName(text.FontName, text.FontBold, text.FontItalic);
}

TextFormat FormatOf(const clsPropertyText& text) {
    return {ToTwips(static_cast<Single>(text.FontSize)), ToTwips(text.FontLeading),
            ToTwips(text.FontCharSpace)};
}

std::shared_ptr<clsFontAdmin> RefreshFontAdmin(const Collection<clsSymbolData>& library,
                                               Long version) {
    auto fonts = std::make_shared<clsFontAdmin>();
    fonts->blSJis(version < UnicodeVersion);
    for (const auto& symbol : library) {
        const auto* text = symbol->Property<clsPropertyText>();
        if (text == nullptr) continue;
        fonts->SetOutLine(FaceOf(*text), text->InitialText);
        if (text->blDynamic) fonts->SetOutLine(FaceOf(*text), text->DefineText);
    }
    return fonts;
}

std::shared_ptr<clsSWFTagDefineText> GetNewText(clsSWFAdmin& admin, const clsPropertyText& text) {
    auto tag = std::make_shared<clsSWFTagDefineText>();
    tag->ID = admin.AddDefinition(tag);
    tag->FontID = FontIdentifier(admin, text);
    tag->Format = FormatOf(text);
    tag->Alignment = text.Alignment;
    tag->FontColorRed = text.FontColorRed;
    tag->FontColorGreen = text.FontColorGreen;
    tag->FontColorBlue = text.FontColorBlue;
    if (admin.inFontAdmin) tag->FontObject = admin.inFontAdmin->CinFontObject(FontKeyOf(text));
    tag->Text(text.InitialText);
    return tag;
}

std::shared_ptr<clsSWFTagDefineEditText> GetNewEditText(clsSWFAdmin& admin,
                                                        const clsPropertyText& text) {
    auto tag = std::make_shared<clsSWFTagDefineEditText>();
    tag->ID = admin.AddDefinition(tag);
    if (!text.blAutoSize) {
        tag->Width = ToTwips(static_cast<Single>(text.Width));
        tag->height = ToTwips(static_cast<Single>(text.height));
    }
    tag->blWordWrap = text.blWordWrap;
    tag->blMultiLine = text.blMultiLine;
    tag->blPassword = text.blPassword;
    tag->blBorder = text.blBorder;
    tag->blHtml = text.blHtml;
    tag->blAutoSize = text.blAutoSize;
    tag->blReadOnly = !text.blInput;
    tag->blNoSelect = !text.blSelect;
    tag->blUseOutLines = !clsFontAdmin::IsDeviceFont(text.FontName);
    tag->FontID = FontIdentifier(admin, text);
    const TextFormat format = FormatOf(text);
    tag->FontSize = format.FontSize;
    tag->FontLeading = format.FontLeading;
    tag->FontColorRed = text.FontColorRed;
    tag->FontColorGreen = text.FontColorGreen;
    tag->FontColorBlue = text.FontColorBlue;
    tag->Alignment = text.Alignment;
    tag->VariableName = text.VariableName;
    // A field shows CR LF as two line ends.
    tag->InitialText = WithLineFeeds(text.InitialText);
    return tag;
}

std::shared_ptr<clsSWFTagCSMTextSettings> GetNewCSMTextSettings(Long textID,
                                                                const clsPropertyText& text) {
    auto tag = std::make_shared<clsSWFTagCSMTextSettings>();
    tag->TextID = textID;
    tag->UseFlashType = text.blFlashType ? 1 : 0;
    tag->Thickness = static_cast<Single>(text.Thickness);
    tag->Sharpness = static_cast<Single>(text.Sharpness);
    return tag;
}

Long DefineText(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    const auto& text = *symbol.Property<clsPropertyText>();
    const bool locked = !text.blDynamic && clsFontAdmin::IsDeviceFont(text.FontName);
    Long id = 0;
    if (text.blDynamic || locked) {
        auto tag = GetNewEditText(admin, locked ? LockedField(text) : text);
        if (locked) GiveRoom(*tag, admin.Ver);
        id = tag->ID;
        admin.AddTag(frame, std::move(tag), true);
    } else {
        auto tag = GetNewText(admin, text);
        id = tag->ID;
        admin.AddTag(frame, std::move(tag), true);
    }
    AddSmoothing(admin, id, text, frame);
    return id;
}

}  // namespace tamber
