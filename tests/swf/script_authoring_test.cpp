#include <gtest/gtest.h>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertySprite.h"
#include "swf/tags/TagCodes.h"
#include "tests/swf/AuthoringTest.h"

namespace tamber {
namespace {

constexpr Byte Stop = 0x07;
constexpr Byte Play = 0x06;

class ScriptAuthoring : public AuthoringTest {
protected:
    static void SetScript(clsLayer& layer, StringView text) {
        layer.inScript.eScriptMode(clsScriptData::ModeFree);
        layer.inScript.ScriptText = text;
    }
    static std::shared_ptr<clsLayer> ActionLayer(Long frame, StringView text) {
        auto layer = LayerOf(std::make_shared<clsSymbolData>(KindFrameAction));
        AddKeyFrame(*layer, frame, 1).ObjectAs<clsObjFrameAction>()->inScript.ScriptText = text;
        return layer;
    }
    void AddFrameAction(Long frame, StringView text) { layers.Add(ActionLayer(frame, text)); }

    std::shared_ptr<clsSymbolData> AddSprite(StringView script = {}) {
        auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindSprite));
        if (!script.empty())
            symbol->Property<clsPropertySprite>()->colLayer->Add(ActionLayer(1, script));
        return symbol;
    }
    std::shared_ptr<clsSymbolData> AddClass(StringView name, StringView body) {
        auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindClass));
        auto& record = *symbol->Property<clsPropertyClass>();
        record.className = name;
        record.colLayer->Add(ActionLayer(1, body));
        symbol->blExport = true;
        return symbol;
    }
    std::shared_ptr<clsLayer> PlaceScripted(std::shared_ptr<clsSymbolData> symbol,
                                            StringView script) {
        auto layer = AddLayer(std::move(symbol));
        AddKeyFrame(*layer, 1, 1);
        SetScript(*layer, script);
        return layer;
    }
    std::vector<String> Texts() const {
        std::vector<String> texts;
        for (const auto& message : interface.Messages)
            texts.push_back(message.Title + u"|" + message.Text);
        return texts;
    }
};

TEST_F(ScriptAuthoring, a_button_joins_states_that_look_alike_and_ends_with_its_actions) {
    auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindButton));
    auto& button = *symbol->Property<clsPropertyButton>();
    const auto up = AddBitmap(4, 4);
    const auto down = AddBitmap(5, 5);
    button.UpSymbol(up);
    button.OverSymbol(up);
    button.DownSymbol(down);
    button.matrixDown.TranslatePosX = 1;
    PlaceScripted(symbol,
                  u"on (press) { stop(); } on (rollOver) {} on (keyPress \"<PgUp>\") {play();}");
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, 36, 2, 36, 2, 34, 26, 1, 0}));
    // The down state is defined first, as characters 1 and 2. Factors of 255 take 9 bits.
    const Bytes colours{0x65, 0xFE, 0xFF, 0x7F, 0xBF, 0xC0};
    Bytes expected{5, 0, 0, 39, 0};
    const auto add = [&expected](const Bytes& bytes) {
        expected.insert(expected.end(), bytes.begin(), bytes.end());
    };
    add({8 | 2 | 1, 4, 0, 0xFF, 0x3F, 0x02, 0x00});
    add(colours);
    // Twenty twips to the right: two fields of 6 bits, 010100 and 000000.
    add({4, 2, 0, 0xFF, 0x3F, 0x0C, 0xA0, 0x00});
    add(colours);
    add({0});
    add({6, 0, 4, 0, Stop, 0});
    add({6, 0, 0, 32, Play, 0});
    add({0, 0, 0, 0, 0});
    expected[3] = static_cast<Byte>(expected.size() - 17 - 3);
    EXPECT_EQ(movie.Bodies(TagCode::DefineButton2), (std::vector<Bytes>{expected}));
}

TEST_F(ScriptAuthoring, a_button_without_actions_has_no_distance_to_them) {
    auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindButton));
    symbol->Property<clsPropertyButton>()->UpSymbol(AddBitmap(4, 4));
    AddKeyFrame(*AddLayer(symbol), 1, 1);
    layers(1)->inScript.eScriptMode(clsScriptData::ModeFree);
    const Bytes body = Build().Bodies(TagCode::DefineButton2).at(0);
    EXPECT_EQ(Bytes(body.begin(), body.begin() + 8), (Bytes{3, 0, 0, 0, 0, 15, 2, 0}));
}

TEST_F(ScriptAuthoring,
       a_drawn_button_gets_a_hit_area_once_and_a_button_in_a_sprite_stands_outside) {
    auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindButton));
    const auto up = AddSprite();
    up->Property<clsPropertySprite>()->Width = 30;
    up->Property<clsPropertySprite>()->height = 20;
    symbol->Property<clsPropertyButton>()->UpSymbol(up);
    const auto outer = AddSprite();
    const auto inside = LayerOf(symbol);
    AddKeyFrame(*inside, 1, 1);
    outer->Property<clsPropertySprite>()->colLayer->Add(inside);
    PlaceScripted(outer, u"");
    PlaceScripted(symbol, u"");
    // The area, the sprite that the button shows, the button in the outer sprite, that sprite, the
    // button of the main timeline.
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 32, 39, 34, 39, 34, 26, 26, 1, 0}));
}

TEST_F(ScriptAuthoring, clip_actions_stand_with_the_first_placement) {
    const auto layer =
        PlaceScripted(AddSprite(), u"onClipEvent(load){stop();}on(keyPress \"a\"){play();}");
    AddKeyFrame(*layer, 2, 1, 5, 5);
    const std::vector<Bytes> places = Build().Bodies(TagCode::PlaceObject2);
    ASSERT_EQ(places.size(), 2u);
    EXPECT_EQ(places[0][0], 0x8E);
    const Bytes actions{0, 0, 1, 0, 2, 0, 1, 0, 0,   0,    2, 0, 0, 0, Stop, 0,
                        0, 0, 2, 0, 3, 0, 0, 0, 'a', Play, 0, 0, 0, 0, 0};
    EXPECT_EQ(Bytes(places[0].end() - static_cast<std::ptrdiff_t>(actions.size()), places[0].end()),
              actions);
    EXPECT_EQ(places[1][0] & 0x80, 0);
}

TEST_F(ScriptAuthoring, a_clip_event_that_the_version_lacks_does_not_end_the_list) {
    PlaceScripted(AddSprite(),
                  u"onClipEvent(construct){play();}onClipEvent(construct,load){stop();}");
    const Bytes place = Build(5).Bodies(TagCode::PlaceObject2).at(0);
    const Bytes actions{0, 0, 1, 0, 1, 0, 2, 0, 0, 0, Stop, 0, 0, 0};
    ASSERT_GT(place.size(), actions.size());
    EXPECT_EQ(Bytes(place.end() - static_cast<std::ptrdiff_t>(actions.size()), place.end()),
              actions);
}

TEST_F(ScriptAuthoring, a_button_on_a_layer_without_key_frames_is_nothing) {
    auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindButton));
    symbol->Property<clsPropertyButton>()->UpSymbol(AddBitmap(4, 4));
    AddLayer(symbol);
    EXPECT_TRUE(Build().Bodies(TagCode::DefineButton2).empty());
}

TEST_F(ScriptAuthoring, a_movie_built_again_is_the_same) {
    auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindButton));
    const auto up = AddSprite();
    up->Property<clsPropertySprite>()->Width = 30;
    up->Property<clsPropertySprite>()->height = 20;
    symbol->Property<clsPropertyButton>()->UpSymbol(up);
    PlaceScripted(symbol, u"on(press){stop();}");
    AddClass(u"a.B", u"var n = 1;");
    const std::vector<Long> first = Build().Codes();
    EXPECT_EQ(Build().Codes(), first);
}

TEST_F(ScriptAuthoring,
       an_init_block_of_a_sprite_is_an_init_action_and_one_of_the_movie_is_dropped) {
    AddFrameAction(1, u"#initclip\r\nplay();\r\n#endinitclip\r\nstop();");
    AddKeyFrame(*AddLayer(AddSprite(u"#initclip 3\r\nplay();\r\n#endinitclip\r\n")), 1, 1);
    AddKeyFrame(*AddLayer(AddSprite(u"#initclip 2\r\nstop();\r\n#endinitclip\r\nstop();")), 1, 1);
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Bodies(TagCode::DoAction), (std::vector<Bytes>{{Stop, 0}}));
    EXPECT_EQ(movie.Bodies(TagCode::DoInitAction),
              (std::vector<Bytes>{{2, 0, Stop, 0}, {1, 0, Play, 0}}));
    EXPECT_EQ(Texts(), std::vector<String>{});
}

TEST_F(ScriptAuthoring, a_class_is_an_exported_sprite_behind_all_other_exports) {
    AddClass(u"a.B", u"var n = 1;");
    const auto sprite = AddSprite();
    sprite->blExport = true;
    sprite->ObjectName = u"link";
    sprite->LinkClassName = u"a.B";
    const ParsedMovie movie = Build();
    EXPECT_EQ(movie.Codes(), (std::vector<Long>{9, 39, 56, 39, 56, 59, 1, 0}));
    const Bytes name = EncodeUtf8(u"__Packages.a.B");
    Bytes exported{1, 0, 2, 0};
    exported.insert(exported.end(), name.begin(), name.end());
    exported.push_back(0);
    EXPECT_EQ(movie.Bodies(TagCode::ExportAssets).at(1), exported);
    const Bytes action = movie.Bodies(TagCode::DoInitAction).at(0);
    EXPECT_EQ(action[0], 2);
    const Bytes registered = EncodeUtf8(u"registerClass");
    EXPECT_NE(std::search(action.begin(), action.end(), registered.begin(), registered.end()),
              action.end());
    // Below version 6 the body is a script of the sprite's frame.
    EXPECT_TRUE(Build(5).Bodies(TagCode::DoInitAction).empty());
}

TEST_F(ScriptAuthoring, a_class_of_another_movie_gets_its_sprites_wherever_it_is_first_needed) {
    auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindLink));
    auto& link = *symbol->Property<clsPropertyLinkSymbol>();
    link.eSymbolType(KindClass);
    link.SymbolName = u"__Packages.a.B";
    link.URL = u"b.swf";
    const auto sprite = AddSprite();
    sprite->blExport = true;
    sprite->ObjectName = u"link";
    sprite->LinkClassName = u"a.B";
    symbol->blExport = true;
    // The sprite is character 1, the class character 2.
    const Bytes exported = Build().Bodies(TagCode::DoInitAction).at(0);
    EXPECT_EQ(exported[0], 2);
    AddKeyFrame(*AddLayer(symbol), 1, 1);
    const Bytes placed = Build().Bodies(TagCode::DoInitAction).at(0);
    EXPECT_EQ(placed[0], 1);
    EXPECT_EQ(Bytes(placed.begin() + 2, placed.end()), Bytes(exported.begin() + 2, exported.end()));
    EXPECT_TRUE(Build(5).Bodies(TagCode::DoAction).empty());
}

TEST_F(ScriptAuthoring, what_is_exported_on_the_top_is_defined_first_and_whole) {
    const auto share = [&](StringView name, bool onTop,
                           std::vector<std::shared_ptr<clsSymbolData>> parts) {
        const auto symbol = AddSprite();
        for (const auto& part : parts) {
            const auto layer = LayerOf(part);
            AddKeyFrame(*layer, 1, 1);
            symbol->Property<clsPropertySprite>()->colLayer->Add(layer);
        }
        symbol->blExport = true;
        symbol->blExportTop = onTop;
        symbol->ObjectName = name;
        return symbol;
    };
    const auto early = share(u"early", true, {});
    const auto late = share(u"late", false, {});
    share(u"both", false, {early, late});
    share(u"top", true, {late});
    AddFrameAction(2, u"stop();");
    // Early, late for the top one, and that one; in the second frame the one that shows both.
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 39, 56, 39, 56, 39, 56, 1, 39, 56, 12, 1, 0}));
    library(4)->blExportTop = false;
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 39, 56, 1, 39, 56, 39, 56, 39, 56, 12, 1, 0}));
}

TEST_F(ScriptAuthoring, a_layer_that_is_never_seen_takes_no_frame_and_has_no_faults) {
    const auto hide = [](clsLayer& layer) { layer.Object(1)->blVisible = false; };
    const auto shown = AddLayer(AddSprite());
    AddKeyFrame(*shown, 1, 1);
    hide(*PlaceScripted(AddSprite(), u"onClipEvent(nothing) { }"));
    const auto button = AddLayer(std::make_shared<clsSymbolData>(KindButton));
    AddKeyFrame(*button, 50, 1);
    hide(*button);
    // The first frame has what its layers begin with.
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 39, 39, 26, 1, 0}));
    EXPECT_EQ(Texts(), std::vector<String>{});
}

TEST_F(ScriptAuthoring, a_button_with_a_state_that_has_no_character_is_told) {
    const auto button = AddSymbol(std::make_shared<clsSymbolData>(KindButton));
    auto& record = *button->Property<clsPropertyButton>();
    record.UpSymbol(AddBitmap(4, 4));
    AddKeyFrame(*AddLayer(button), 1, 1);
    layers(1)->LayerName = u"釦";
    Build();
    EXPECT_EQ(Texts(), std::vector<String>{});
    for (const Long kind : {KindKoma, KindButton}) {
        record.UpSymbol(AddSymbol(std::make_shared<clsSymbolData>(kind)));
        interface.Messages.clear();
        Build();
        EXPECT_EQ(Texts(), std::vector<String>{String(ProgramTitle) +
                                               u"|生成に対応していない種類の状態があります。\r\n"
                                               u"ボタン（釦）"});
    }
}

TEST_F(ScriptAuthoring, an_exported_koma_is_no_fault) {
    AddSymbol(std::make_shared<clsSymbolData>(KindKoma))->blExport = true;
    AddSymbol(std::make_shared<clsSymbolData>(KindSymbolFolder))->blExport = true;
    EXPECT_EQ(Build().Codes(), (std::vector<Long>{9, 1, 0}));
    EXPECT_EQ(Texts(), std::vector<String>{});
}

TEST_F(ScriptAuthoring, a_faulty_class_is_told_by_its_name) {
    AddClass(u"a.B", u"var n = ;");
    AddClass(u"a.C", u"function f() { return \"}\"; }");
    Build();
    ASSERT_EQ(interface.StatusLines.size(), 2u);
    EXPECT_TRUE(
        interface.StatusLines[0].starts_with(u"クラス（a.B）：文法に誤りがあります。（行番号：1）"))
        << ToNarrow(interface.StatusLines[0]);
    EXPECT_TRUE(interface.StatusLines[1].starts_with(u"クラス（a.C）の生成コード：文法に誤り"))
        << ToNarrow(interface.StatusLines[1]);
    EXPECT_EQ(Texts().size(), 2u);
}

TEST_F(ScriptAuthoring, imports_name_the_other_movie) {
    auto symbol = AddSymbol(std::make_shared<clsSymbolData>(KindLink));
    auto& link = *symbol->Property<clsPropertyLinkSymbol>();
    link.eSymbolType(KindSprite);
    link.SymbolName = u"s";
    link.URL = u"a/b\\c";
    AddKeyFrame(*AddLayer(symbol), 1, 1);
    const Bytes url{'a', '\\', '\\', 'b', '\\', '\\', 'c', 0};
    const auto body = [&url](const Bytes& rest) {
        Bytes bytes = url;
        bytes.insert(bytes.end(), rest.begin(), rest.end());
        return std::vector<Bytes>{bytes};
    };
    EXPECT_EQ(Build(5).Bodies(TagCode::ImportAssets), body({1, 0, 1, 0, 's', 0}));
    EXPECT_EQ(Build(8).Bodies(TagCode::ImportAssets2), body({1, 0, 1, 0, 1, 0, 's', 0}));
    EXPECT_EQ(Texts(), std::vector<String>{});
    EXPECT_TRUE(Build(4).Bodies(TagCode::ImportAssets).empty());
    ASSERT_EQ(interface.Messages.size(), 1u);
}

TEST_F(ScriptAuthoring, faults_are_told_and_the_movie_goes_on) {
    AddFrameAction(2, u"a = ;");
    auto button = AddSymbol(std::make_shared<clsSymbolData>(KindButton));
    button->Property<clsPropertyButton>()->UpSymbol(AddBitmap(4, 4));
    PlaceScripted(button, u"on (press) {")->LayerName = u"釦";
    PlaceScripted(AddSprite(), u"onClipEvent(load){#include \"none.as\"}")->LayerName = u"玉";
    const MovieOutcome outcome = mdlSWFAuthoring::BuildMovie(Request());
    EXPECT_TRUE(outcome.Written);
    EXPECT_FALSE(outcome.ScriptsValid);
    // A status line, and then the box, of the same place.
    ASSERT_EQ(outcome.Told.size(), 6u);
    for (const std::size_t i : {0u, 1u}) {
        EXPECT_EQ(outcome.Told[i].Place.Frame, 2);
        EXPECT_EQ(outcome.Told[i].Place.Line, 1);
        EXPECT_EQ(outcome.Told[i].Place.Offset, 4);
        EXPECT_EQ(outcome.Told[i].Place.Token, u";");
    }
    EXPECT_EQ(outcome.Told[3].Place.Layer, u"釦");
    const UserInterfaceScope scope(interface);
    ShowNotices(outcome.Told);
    const String title = u"スクリプトエラー|文法に誤りがあります。\r\n";
    EXPECT_EQ(Texts(), (std::vector<String>{title + u"フレームアクション（フレーム 2）",
                                            title + u"ボタンアクション（釦）",
                                            title + u"クリップアクション（玉）"}));
    ASSERT_EQ(interface.StatusLines.size(), 3u);
    EXPECT_TRUE(interface.StatusLines[0].starts_with(
        u"フレームアクション（フレーム 2）：文法に誤りがあります。（行番号：1）"))
        << ToNarrow(interface.StatusLines[0]);
    EXPECT_TRUE(interface.StatusLines[1].starts_with(
        u"ボタンアクション（釦）：} が必要です。（行番号：1）"));
    EXPECT_TRUE(interface.StatusLines[2].starts_with(
        u"クリップアクション（玉）：ファイルが見つかりません。"));
    interface.Messages.clear();
    Build(4);
    EXPECT_EQ(Texts().back(), String(ProgramTitle) +
                                  u"|クリップアクションはSWF4では使用できません。\r\n"
                                  u"クリップアクション（玉）");
}

}  // namespace
}  // namespace tamber
