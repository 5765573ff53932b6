#include "document/ProjectWriter.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "platform/files.h"
#include "platform/text.h"
#include "tests/support/ControllerTest.h"
#include "tests/support/TimelineText.h"

namespace tamber {
namespace {

using Symbol = std::shared_ptr<clsSymbolData>;

class Import : public ControllerTest {
protected:
    /// A project of: 1 a text; 2 and 3 empty movies; folder 4 of button 5 (up 2, over 3) and koma 6
    /// (2, 3, 2); sprite 7 that shows 2 and 5. Its timeline: sprite 7, a folder of an action and
    /// movie 3, the background.
    void SetUp() override {
        ControllerTest::SetUp();
        Project project;
        project.MainWidth = 100;
        project.MainHeight = 80;
        project.FrameRate = 10;
        project.SWFVersion = main_.inProject().SWFVersion;
        Collection<clsSymbolData>& all = *project.colSymbol;
        for (const Long kind : {KindText, KindMovieEmp, KindMovieEmp, KindSymbolFolder, KindButton,
                                KindKoma, KindSprite}) {
            const auto symbol = std::make_shared<clsSymbolData>(kind);
            symbol->Index = symbol->ID = all.Count() + 1;
            all.Add(symbol);
        }
        all(1)->Property<clsPropertyText>()->FontName = u"_sans";
        all(4)->Property<clsPropertySymbolFolder>()->LayerCount = 2;
        all(5)->Property<clsPropertyButton>()->UpSymbol(all(2));
        all(5)->Property<clsPropertyButton>()->OverSymbol(all(3));
        for (const Long picture : {2, 3, 2})
            all(6)->Property<clsPropertyKoma>()->colKomas->Add(all(picture));
        for (const Long shown : {2, 5})
            all(7)->Property<clsPropertySprite>()->colLayer->Add(Showing(all(shown)));
        project.colMainLayer->Add(Showing(all(7)));
        project.colMainLayer->Add(LayerOf(KindLayerFolder, "1-1"));
        (*project.colMainLayer)(2)->Folder()->LayerCount = 2;
        project.colMainLayer->Add(LayerOf(KindFrameAction, "1-1"));
        project.colMainLayer->Add(Showing(all(3)));
        project.colMainLayer->Add(LayerOf(KindBackGround, "1-4F"));
        NameRows(*project.colMainLayer);
        Write(project);
    }
    static std::shared_ptr<clsLayer> Showing(const Symbol& symbol) {
        auto layer = LayerOf(symbol->eType(), "1-4");
        layer->SymbolData(symbol);
        return layer;
    }
    static void NameRows(Collection<clsLayer>& layers) {
        Long row = 0;
        for (const auto& layer : layers) layer->LayerName = ToText(++row);
    }
    void Write(const Project& project) {
        RuntimeError why(0, u"", u"");
        ASSERT_TRUE(SaveProject(Path(u"in.kvf"), project, &why));
    }
    bool Run(const ImportOptions& options = {}) {
        return main_.mnuKVFImport(Path(u"in.kvf"),
                                  [&options](const Project& incoming, ImportOptions& chosen) {
                                      EXPECT_EQ(incoming.MainWidth, 100);
                                      EXPECT_EQ(chosen.SpriteName, u"スプライト");
                                      EXPECT_EQ(chosen.FolderName, u"フォルダ");
                                      chosen = options;
                                      return true;
                                  });
    }
    const Symbol& At(Long index) const { return (*main_.colSymbol())(index); }
    /// Numbers of the library with its folders: "2 4(2) >5 >6".
    std::string Ids() const {
        std::string text;
        for (const auto& symbol : *main_.colSymbol()) {
            if (!text.empty()) text += ' ';
            text += std::string(static_cast<std::size_t>(symbol->FolderDepth()), '>') +
                    std::to_string(symbol->ID);
            if (const auto* folder = symbol->Property<clsPropertySymbolFolder>())
                text += "(" + std::to_string(folder->LayerCount) + ")";
        }
        return text;
    }
};

TEST_F(Import, brings_symbols_and_layers_with_their_references) {
    AddSprite(10);
    ASSERT_TRUE(Run());
    ASSERT_EQ(main_.colSymbol()->Count(), 8);
    ASSERT_EQ(interface_.Messages.size(), 1u);
    EXPECT_EQ(interface_.Messages[0].Text, u"IDが重複しています。\r\n空いているIDへ変更します。");
    EXPECT_EQ(Ids(), "1 8 2 3 4(2) >5 >6 7");
    for (Long index = 1; index <= 8; ++index) EXPECT_EQ(At(index)->Index, index);
    const auto* button = At(6)->Property<clsPropertyButton>();
    EXPECT_EQ(button->UpSymbol(), At(3));
    EXPECT_EQ(button->OverSymbol(), At(4));
    EXPECT_EQ(button->DownSymbol(), nullptr);
    EXPECT_EQ((*At(7)->Property<clsPropertyKoma>()->colKomas)(2), At(4));
    EXPECT_EQ((*At(8)->Property<clsPropertySprite>()->colLayer)(2)->SymbolData(), At(6));
    EXPECT_EQ(Rows(*main_.colMainLayer()), "1 2(2) >3 >4 ");
    EXPECT_EQ(Row(1).SymbolData(), At(8));
    EXPECT_EQ(Spans(Row(5)), "1-4F");
    // Stage, rate and version are the open project's.
    EXPECT_NE(main_.inProject().MainWidth, 100);
    EXPECT_NE(main_.inProject().FrameRate, 10);
    EXPECT_EQ(main_.cUndoRedo().TotalHistory, 1);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.colMainLayer()->Count(), 1);
    main_.mnuUndoRedo(1);
    EXPECT_EQ(Rows(*main_.colMainLayer()), "1 2(2) >3 >4 ");
}

TEST_F(Import, numbers_move_by_what_is_added) {
    AddSprite(10);
    ImportOptions options;
    options.IDMode = 1;
    options.AddID = 100;
    options.chkSprite = options.chkFolder = true;
    options.SpriteName = u"旅";
    options.FolderName = u"箱";
    options.ID = 1;
    ASSERT_TRUE(Run(options));
    // The sprite's number was taken.
    EXPECT_EQ(Ids(), "1 -1(8) >101 >102 >103 >104(2) >>105 >>106 >107 >2");
    EXPECT_EQ(interface_.Messages.size(), 1u);
    EXPECT_EQ(At(2)->Value(), u"箱");
    const auto& sprite = *At(10)->Property<clsPropertySprite>();
    EXPECT_EQ(sprite.SpriteName, u"旅");
    EXPECT_EQ(sprite.Width, 100);
    EXPECT_EQ(sprite.height, 80);
    EXPECT_EQ(Rows(*sprite.colLayer), "1 2(2) >3 >4");
    EXPECT_EQ(main_.colMainLayer()->Count(), 1);
    // No step, and yet nothing may be lost.
    EXPECT_EQ(main_.cUndoRedo().TotalHistory, 0);
    EXPECT_FALSE(main_.mnuNew());
    EXPECT_EQ(interface_.Questions.size(), 1u);
}

TEST_F(Import, leaves_out_what_is_there_or_not_chosen) {
    ImportOptions options;
    options.chkNoMain = true;
    options.Symbols = std::vector<Long>();
    ASSERT_TRUE(Run(options));
    EXPECT_EQ(Ids(), "");
    // A button without its states, a row of a folder that stays behind.
    options.Symbols = {{5, 6, 7}};
    ASSERT_TRUE(Run(options));
    EXPECT_EQ(Ids(), "5 6 7");
    EXPECT_EQ(At(1)->Property<clsPropertyButton>()->UpSymbol(), nullptr);
    EXPECT_TRUE(At(2)->Property<clsPropertyKoma>()->colKomas->Empty());
    EXPECT_EQ(At(3)->Property<clsPropertySprite>()->colLayer->Count(), 1);
    // What is there is not brought again, and the rest refers to it.
    ImportOptions rest;
    rest.blNotRepetition = true;
    rest.Layers = {{1, 3}};
    rest.chkLayerFolder = true;
    rest.LayerFolderName = u"段";
    ASSERT_TRUE(Run(rest));
    EXPECT_EQ(Ids(), "5 6 7 1 2 3 4(0)");
    EXPECT_EQ(Rows(*main_.colMainLayer()), "段(2) >1 >3 ");
    EXPECT_EQ(Row(2).SymbolData(), At(3));
    EXPECT_TRUE(interface_.Messages.empty());
}

TEST_F(Import, of_a_project_into_itself_tells_that_numbers_are_taken) {
    ASSERT_TRUE(main_.OpenProject(Path(u"in.kvf")));
    ASSERT_TRUE(Run());
    ASSERT_EQ(interface_.Messages.size(), 1u);
    EXPECT_EQ(main_.colSymbol()->Count(), 14);
    std::set<Long> ids;
    for (const auto& symbol : *main_.colSymbol())
        EXPECT_TRUE(symbol->eType() == KindSymbolFolder || ids.insert(symbol->ID).second);
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"both.kvf")));
    ASSERT_TRUE(main_.OpenProject(Path(u"both.kvf")));
    EXPECT_EQ(main_.colMainLayer()->Count(), 9);
    EXPECT_EQ(Row(5).SymbolData(), At(14));
}

TEST_F(Import, into_a_sprite_that_the_layers_show_is_refused) {
    ASSERT_TRUE(main_.OpenProject(Path(u"in.kvf")));
    main_.ChangeSprite(7);
    ImportOptions options;
    options.blNotRepetition = true;
    options.Layers = {{1, 4}};
    ASSERT_TRUE(Run(options));
    ASSERT_EQ(interface_.Messages.size(), 1u);
    EXPECT_EQ(interface_.Messages[0].Title, u"循環参照");
    EXPECT_EQ(main_.colEditLayer()->Count(), 3);
    EXPECT_EQ(Row(3).SymbolData(), At(3));
}

TEST_F(Import, asks_about_another_version_and_replaces_missing_fonts) {
    ASSERT_TRUE(main_.mnuPrjProperty(320, 320, 24, main_.SWFVersion() == 8 ? 6 : 8));
    EXPECT_FALSE(Run());
    ASSERT_EQ(interface_.Questions.size(), 1u);
    EXPECT_EQ(interface_.Questions[0].Text, u"SWFのバージョンが違います。\r\n読み込みますか？");
    EXPECT_EQ(interface_.Messages.back().Title, u"ファイルが不正です");
    EXPECT_EQ(Ids(), "");

    Project project;
    project.MainWidth = project.MainHeight = 100;
    project.FrameRate = 10;
    project.SWFVersion = main_.inProject().SWFVersion;
    for (Long id = 1; id <= 2; ++id) {
        const auto text = std::make_shared<clsSymbolData>(KindText);
        text->ID = text->Index = id;
        text->Property<clsPropertyText>()->FontName = u"ない書体";
        text->Property<clsPropertyText>()->InitialText = u"あ";
        text->Property<clsPropertyText>()->FontSize = 20;
        project.colSymbol->Add(text);
    }
    Write(project);
    interface_.Messages.clear();
    ASSERT_TRUE(Run());
    ASSERT_EQ(interface_.Messages.size(), 1u);
    EXPECT_EQ(interface_.Messages[0].Text,
              u"「ない書体」が見つかりません。\r\n「ＭＳ ゴシック」へ変更します。");
    EXPECT_EQ(At(2)->Property<clsPropertyText>()->FontName, u"ＭＳ ゴシック");
    EXPECT_GT(At(2)->PixelWidth(), 0);
}

TEST_F(Import, of_a_bad_file_leaves_the_project_as_it_is) {
    AddSprite(10);
    Bytes bytes;
    ASSERT_TRUE(ReadFileBytes(Path(u"in.kvf"), bytes));
    const Bytes half(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() / 2));
    ASSERT_TRUE(WriteFileBytes(half, Path(u"in.kvf")));
    EXPECT_FALSE(Run());
    EXPECT_EQ(interface_.Messages.back().Title, u"ファイルが不正です");
    EXPECT_FALSE(main_.mnuKVFImport(Path(u"none.kvf"), nullptr));
    EXPECT_EQ(interface_.Messages.back().Text,
              Path(u"none.kvf") + u"\r\n\r\nファイルが見つかりません。");
    // A dialog that is cancelled, and a choice that is.
    EXPECT_FALSE(main_.mnuKVFImport(u"", nullptr));
    EXPECT_EQ(Ids(), "1");
    EXPECT_EQ(main_.colMainLayer()->Count(), 1);
    EXPECT_FALSE(main_.HasUnsavedWork());
}

}  // namespace
}  // namespace tamber
