#include "swf/authoring/TextDefinition.h"

#include <gtest/gtest.h>

namespace tamber {
namespace {

/// A text in a font of the player's own, 30 by 50 pixels.
clsSymbolData DeviceText() {
    clsSymbolData symbol(KindText);
    auto& text = *symbol.Property<clsPropertyText>();
    text.FontName = u"_sans";
    text.FontSize = 20;
    text.InitialText = u"a\r\nb";
    text.VariableName = u"v";
    text.blInput = true;
    text.Width = 30;
    text.height = 50;
    return symbol;
}

/// The field that it becomes.
clsSWFTagDefineEditText FieldOf(clsSymbolData& symbol, Long version) {
    clsSWFAdmin admin;
    admin.Ver = version;
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
        clsSymbolData symbol = DeviceText();
        symbol.Property<clsPropertyText>()->Alignment = expected.Alignment;
        const auto field = FieldOf(symbol, expected.Version);
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

TEST(TextDefinition, each_line_of_a_dynamic_text_ends_once) {
    for (const StringView told : {u"a\r\nb\r\n\r\nc", u"a\rb\r\rc", u"a\nb\n\nc"}) {
        clsSymbolData symbol = DeviceText();
        auto& text = *symbol.Property<clsPropertyText>();
        text.blDynamic = true;
        text.InitialText = told;
        const auto field = FieldOf(symbol, 6);
        EXPECT_EQ(field.InitialText, u"a\nb\n\nc");
        EXPECT_FALSE(field.blReadOnly);
        EXPECT_EQ(text.InitialText, told);
    }
}

}  // namespace
}  // namespace tamber
