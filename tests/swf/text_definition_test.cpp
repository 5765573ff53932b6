#include "swf/authoring/TextDefinition.h"

#include <gtest/gtest.h>

namespace tamber {
namespace {

/// The field that stands for a static text in a font of the player's own, 30 by 50 pixels.
clsSWFTagDefineEditText LockedField(Long version, Long alignment) {
    mdlSWFTag::swfVersion(version);
    clsSymbolData symbol(KindText);
    auto& text = *symbol.Property<clsPropertyText>();
    text.FontName = u"_sans";
    text.FontSize = 20;
    text.InitialText = u"a\r\nb";
    text.VariableName = u"v";
    text.blInput = true;
    text.Alignment = alignment;
    text.Width = 30;
    text.height = 50;
    clsSWFAdmin admin;
    admin.inFontAdmin = std::make_shared<clsFontAdmin>();
    admin.inFontAdmin->CinFontObject(u"_sans_");
    admin.InitSWF();
    EXPECT_EQ(DefineText(admin, symbol, 1), 2);
    return dynamic_cast<clsSWFTagDefineEditText&>(*admin.DefineObj(2));
}

TEST(TextDefinition, static_text_in_the_players_own_font_is_a_locked_field_with_room) {
    // A margin of 2 pixels on each side; below version 6 lines a quarter higher, and twice the
    // width where the text stays in its place.
    const struct {
        Long Version, Alignment, Width, Height;
    } cases[] = {{5, 0, 1360, 1350},
                 {5, 1, 680, 1350},
                 {5, 2, 680, 1350},
                 {6, 0, 680, 1080},
                 {8, 1, 680, 1080}};
    for (const auto& expected : cases) {
        const auto field = LockedField(expected.Version, expected.Alignment);
        SCOPED_TRACE(expected.Version * 10 + expected.Alignment);
        EXPECT_EQ(field.Width, expected.Width);
        EXPECT_EQ(field.height, expected.Height);
        EXPECT_EQ(field.Alignment, expected.Alignment);
        EXPECT_EQ(field.InitialText, u"a\nb");
        EXPECT_TRUE(field.blAutoSize && field.blReadOnly && field.blNoSelect && field.blMultiLine);
        EXPECT_FALSE(field.blUseOutLines);
        EXPECT_EQ(field.VariableName, u"");
    }
}

}  // namespace
}  // namespace tamber
