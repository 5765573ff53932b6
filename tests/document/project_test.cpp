#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "document/ProjectReader.h"
#include "document/ProjectText.h"
#include "document/ProjectWriter.h"
#include "document/cells/ProjectFileVersion.h"
#include "document/elements/clsLayerFolder.h"
#include "document/elements/clsObjText.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "platform/UserInterface.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "tests/support/FilledCells.h"

namespace tamber {
namespace {

constexpr StringView damagedTitle = u"ファイルが不正です";
constexpr StringView damagedText =
    u"読込できませんでした。\r\nファイルは本ソフト用ではない可能性があります。";

class Listener : public UserInterface {
public:
    std::vector<std::pair<String, String>> Messages;
    std::vector<String> Questions;
    Answer Consent = Answer::Cancel;
    String Choice;
    String DialogTitle;

    void Message(StringView text, StringView title, MessageIcon) override {
        Messages.emplace_back(text, title);
    }
    Answer Ask(StringView text, StringView, Choices) override {
        Questions.emplace_back(text);
        return Consent;
    }
    String OpenFileDialog(const FileDialog& dialog) override {
        DialogTitle = dialog.Title;
        return Choice;
    }
    String SaveFileDialog(const FileDialog&) override { return {}; }
    String SelectFolderDialog(StringView) override { return {}; }
    void Progress(StringView, Long, Long) override {}
    void Status(StringView) override {}
};

class FakeAssets : public ProjectAssets {
public:
    bool Readable = true;
    mutable std::vector<String> Placeholders;
    std::vector<String> Missing;
    bool HasSubstitute = false;

    bool LoadFile(clsSymbolData& symbol, Notices&) const override {
        if (auto* picture = symbol.Property<clsPropertyBmp>()) {
            picture->Width = 30;
            picture->height = 20;
        }
        return Readable;
    }
    void SetPlaceholder(clsSymbolData& symbol) const override {
        Placeholders.push_back(symbol.FilePathName);
    }
    bool FontAvailable(StringView name) const override {
        return std::find(Missing.begin(), Missing.end(), name) == Missing.end();
    }
    String DefaultFont() const override { return u"Default"; }
    bool SubstituteAvailable() const override { return HasSubstitute; }
    void SetTextSize(clsSymbolData&) const override {}
};

/// Straight curves and no path: the tail goes on in the same row.
const String plainPlacement =
    cells::PlacementHead + u"PRM,False,1\r\n0,0,1\r\n0,0\r\n8," + cells::Filters + u",0";

/// A layer's first row and its one key frame.
String LayerRows(StringView id, StringView element, StringView event = u"") {
    return String(id) + u",層,inst,2,," + String(event) + cells::Script +
           u",False,1\r\n3,4,True,True,False" + (element.empty() ? u"" : u",") + String(element) +
           u"\r\n";
}

/// A project with each kind of symbol and of element.
String WholeProject() {
    return u"KVF,0,9,0\r\n"
           u"320,240,12.5,8\r\n"
           u"HTML,pixels,320,240,l,t,True,False,True,high,window,showall,True\r\n"
           u"14\r\n"
           u"1,絵\\表.bmp,画像,pic,,Export," +
           cells::BitmapRecord +
           u"\r\n"
           u"2,,ﾃｷｽﾄ,,,ExportTop," +
           cells::TextRecord +
           u"\r\n"
           u"3,,ﾃｷｽﾄ,,,,a,b,_sans,1,2,3,0,0,False,True,1,2,3,0,True,False,False,0,0,1,1,True,"
           u"False,False,1\r\n"
           u"4,s.mp3,ｻｳﾝﾄﾞ,,,,False\r\n"
           u"5,v.svg,ﾍﾞｸﾀ,,,," +
           cells::VectorRecord +
           u"\r\n"
           u"6,v.svg,ﾍﾞｸﾀ,,,,False,False,0,0,0,0,0,0,0,0,False,False,False,0,0,1024\r\n"
           u"7,,ｽﾌﾟﾗｲﾄ,obj,MyClass,Export," +
           cells::SpriteRecord +
           u"\r\n"
           u"8,m.flv,動画,,,," +
           cells::MovieRecord +
           u"\r\n"
           u"9,,空動画,,,," +
           cells::MovieEmpRecord +
           u"\r\n"
           u"10,,ﾎﾞﾀﾝ,,,," +
           cells::ButtonRecord +
           u"\r\n"
           u"11,,ｺﾏ動画,,,," +
           cells::KomaRecord +
           u"\r\n"
           u"-1,,Sﾌｫﾙﾀﾞ,,,," +
           cells::FolderRecord +
           u"\r\n"
           u"-5,,ｸﾗｽ,,,," +
           cells::ClassRecord +
           u"\r\n"
           u"14,,ﾘﾝｸ,,,," +
           cells::LinkRecord +
           u"\r\n"
           u"5\r\n0\r\n6\r\n0\r\n1,0,1,1\r\n1,1\r\n"
           u"1\r\n" +
           LayerRows(u"1", cells::Placement) + u"14\r\n" + LayerRows(u"-1", u"10,20,30") +
           LayerRows(u"-2", u"label,True") + LayerRows(u"1", plainPlacement) +
           LayerRows(u"2", cells::Placement + u"," + cells::TextEffect) +
           LayerRows(u"4", cells::Sound) +
           LayerRows(u"5", cells::Placement + u"," + cells::FreeTransform) +
           LayerRows(u"7", plainPlacement + u"," + cells::SpriteEffect) +
           LayerRows(u"8", cells::Placement) + LayerRows(u"9", cells::Placement) +
           LayerRows(u"-3", cells::FrameAction) + LayerRows(u"10", cells::Placement, u"rollout,") +
           LayerRows(u"11", plainPlacement) + LayerRows(u"-4", cells::LayerFolder) +
           LayerRows(u"14", cells::Placement);
}

class ProjectFile : public testing::Test {
protected:
    ProjectFile() : scope_(ui_) {
        const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        root_ = std::filesystem::temp_directory_path() / ("tamber_project_" + name);
        std::filesystem::remove_all(root_);
        folder_ = FromNarrow(root_.string());
        path_ = JoinPath(folder_, u"案件.kvf");
        MakeFolders(JoinPath(folder_, u"絵"));
        for (const char16_t* file : {u"絵/表.bmp", u"s.mp3", u"v.svg", u"m.flv"})
            WriteFileBytes(Bytes{1}, JoinPath(folder_, file));
    }
    ~ProjectFile() override { std::filesystem::remove_all(root_); }

    bool Load(const String& text, Project& project) {
        ui_.Messages.clear();
        return ShowLoad(LoadProjectBytes(EncodeAnsi(text), path_, project, assets_));
    }
    String Cells(const Project& project) const {
        clsCSV csv;
        SaveProjectCells(csv, project, folder_);
        return csv.Text();
    }
    void ExpectDamaged(const String& text, const char* name) {
        Project project;
        project.MainWidth = 77;
        EXPECT_FALSE(Load(text, project)) << name;
        ASSERT_EQ(ui_.Messages.size(), 1U) << name;
        EXPECT_EQ(ui_.Messages[0].first, damagedText) << name;
        EXPECT_EQ(ui_.Messages[0].second, damagedTitle) << name;
        EXPECT_EQ(project.MainWidth, 77) << name;
    }

    Listener ui_;
    FakeAssets assets_;
    String folder_;
    String path_;

private:
    UserInterfaceScope scope_;
    std::filesystem::path root_;
};

TEST_F(ProjectFile, fills_the_records) {
    Project project;
    ASSERT_TRUE(Load(WholeProject(), project));
    EXPECT_TRUE(ui_.Messages.empty());
    const auto& symbols = *project.colSymbol;
    EXPECT_EQ(symbols(1)->FilePathName, JoinPath(JoinPath(folder_, u"絵"), u"表.bmp"));
    EXPECT_TRUE(symbols(1)->blExport);
    EXPECT_FALSE(symbols(1)->blExportTop);
    EXPECT_EQ(symbols(1)->ListName(), u"表.bmp {書き出し：pic}");
    EXPECT_EQ(symbols(6)->ListName(), symbols(6)->Value());
    EXPECT_EQ(symbols(2)->Property<clsPropertyText>()->FitShapeSymbol(), symbols(5));
    EXPECT_EQ(symbols(5)->Property<clsPropertyVector>()->MorphSymbol(), symbols(6));
    EXPECT_EQ(symbols(10)->Property<clsPropertyButton>()->DownSymbol(), nullptr);
    EXPECT_EQ(symbols(10)->Property<clsPropertyButton>()->UpSymbol(), symbols(1));
    EXPECT_EQ(symbols(10)->Property<clsPropertyButton>()->matrixDown.TranslatePosY, 6);
    EXPECT_EQ(symbols(11)->Property<clsPropertyKoma>()->Width, 30);
    EXPECT_EQ(symbols(13)->ParentFolder(), symbols(12));
    EXPECT_EQ(symbols(14)->ParentFolder(), nullptr);
    EXPECT_EQ(symbols(14)->eTypeEx(), KindBitmap);
    EXPECT_EQ(symbols(14)->TypeTextEx(), u"L:画像");
    EXPECT_EQ(symbols(13)->Value(), u"MyClass：Base");
    EXPECT_EQ(symbols(13)->ExportName(), u"__Packages.MyClass");
    const auto& layers = *project.colMainLayer;
    EXPECT_EQ(layers(14)->ParentFolder(), layers(13));
    EXPECT_EQ(layers(11)->OnEventName(), u"rollout");
    EXPECT_EQ(layers(4)->SymbolData(), symbols(2));
    const clsLayerObjElement& element = *layers(4)->Object(1)->Placement();
    EXPECT_EQ(element.ScaleX(), 1.5F);
    EXPECT_EQ(element.EdgingTblXY.Points,
              (std::vector<EdgingPoint>{{0, 0}, {0.5F, 0.25F}, {1, 1}}));
    EXPECT_EQ(element.tpCount(), 2);
    EXPECT_EQ(element.TweenPoint(2)->PointType, 1);
    EXPECT_EQ(element.inFilter->fltBevel.HighlightColorRed, 6);
    EXPECT_EQ(layers(4)
                  ->Object(1)
                  ->ObjectAs<clsObjText>()
                  ->inEfElement.colEffectPrm->Item(u"speed")
                  ->Value,
              u"3");
    EXPECT_EQ(project.Html->quality, u"high");
}

TEST_F(ProjectFile, saves_plain_and_compressed_and_reads_by_content) {
    Project project;
    ASSERT_TRUE(Load(WholeProject(), project));
    ASSERT_TRUE(SaveProject(path_, project, nullptr));
    Bytes plain;
    ASSERT_TRUE(ReadFileBytes(path_, plain));
    EXPECT_EQ(plain, EncodeAnsi(WholeProject()));
    const String packed = JoinPath(folder_, u"packed.KVFZ");
    ASSERT_TRUE(SaveProject(packed, project, nullptr));
    Bytes bytes;
    ASSERT_TRUE(ReadFileBytes(packed, bytes));
    EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 4), "KVFZ");
    EXPECT_EQ(static_cast<std::size_t>(bytes[4] | bytes[5] << 8 | bytes[6] << 16), plain.size());
    // Neither the letter case nor the told size nor the extension matters.
    bytes[1] = 'v';
    bytes[7] = 255;
    ASSERT_TRUE(WriteFileBytes(bytes, path_));
    Project again;
    ASSERT_TRUE(LoadProject(path_, again, assets_));
    EXPECT_EQ(Cells(again), WholeProject());
    ui_.Messages.clear();
    bytes.resize(bytes.size() / 2);
    EXPECT_EQ(LoadProjectBytes(bytes, path_, again, assets_).Told.size(), 1U);
    EXPECT_EQ(again.colSymbol->Count(), 14);
}

TEST_F(ProjectFile, reads_an_empty_project) {
    const String text = u"KVF,0,9,0\r\n550,400,12,7\r\n0\r\n0\r\n";
    Project project;
    ASSERT_TRUE(Load(text, project));
    EXPECT_FALSE(project.Html.has_value());
    EXPECT_EQ(Cells(project), text);
}

TEST_F(ProjectFile, remarks_and_button_linkage_do_not_survive) {
    const String button =
        u"1,,ﾎﾞﾀﾝ,name,cls,Export,B,False,False,0,0,0,0,False,False\r\n0,0,0,0\r\n";
    const String text = u"KVF,0,9,0\r\n1,1,1,8\r\n1\r\n" + button +
                        u"1\r\n1,,,0,remark,release,,2048,0,0,,,,True,0\r\n";
    Project project;
    ASSERT_TRUE(Load(text, project));
    EXPECT_EQ((*project.colSymbol)(1)->ObjectName, u"");
    EXPECT_FALSE((*project.colSymbol)(1)->blExport);
    EXPECT_EQ((*project.colMainLayer)(1)->ExpText(), u"1");
    (*project.colSymbol)(1)->ObjectName = u"name";
    EXPECT_NE(Cells(project).find(u"ﾎﾞﾀﾝ,name,"), String::npos);
}

TEST_F(ProjectFile, reads_older_layouts) {
    // Version 0.5.5: no class, event, target, visibility or skew cells, no curves, no matrices.
    const String filters =
        u"False,100,100,100,100,0,0,0,0,False,0,0,0,100,2,2,45,5,1,False,False,True,2,False,4,4,2,"
        u"False,255,255,0,100,10,10,1,False,False,True,2,False,0,0,0,100,255,255,255,100,2,2,45,5,"
        u"1,False,False,True,False,2,False,5,5,1,0,0,0,0,0,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0,0,0,0,0,"
        u"0,0,0,0,0,0,False,False,False,1,0,0,0,0,0,1,0,0,0,0,0,1,0,0,0,0,0,1,0";
    const String text =
        u"KVF,0,5,5\r\n100,50,12,6\r\n2\r\n1,,ﾎﾞﾀﾝ,obj,,B,True\r\n"
        u"2,,ﾃｷｽﾄ,,Export,a,a,F,1,1,1,0,0,False,False,0,0,0,0,True,False\r\n"
        u"0,0,0,0\r\n1\r\n1,n,i,0,,s,-1,0,0,,,True,1\r\n"
        u"3,0,False,True,1,2,0,0,True,10000,10000,0,100,90000,64,8," +
        filters + u",0\r\n";
    Project project;
    ASSERT_TRUE(Load(text, project));
    const auto& layer = *(*project.colMainLayer)(1);
    EXPECT_EQ(layer.eOnEvent, 1024);
    EXPECT_EQ(layer.inScript.ScriptText, u"s");
    const clsLayerObject& object = *layer.Object(1);
    EXPECT_EQ(object.StartFrame(), 3);
    EXPECT_EQ(object.DispCount(), 1);
    EXPECT_TRUE(object.blVisible);
    EXPECT_EQ(object.Placement()->Angle(), 9.0F);
    EXPECT_EQ(object.Placement()->SkewX(), 0.0F);
    EXPECT_EQ(object.Placement()->Edging, 64);
    EXPECT_EQ(object.Placement()->eBlend, 8);
    EXPECT_EQ(object.Placement()->EdgingAllMode, 1);
    const auto& symbols = *project.colSymbol;
    EXPECT_TRUE(symbols(1)->Property<clsPropertyButton>()->blAutoHitTest);
    EXPECT_EQ(symbols(2)->Property<clsPropertyText>()->FitShapeScaleX, 1.0F);
    EXPECT_TRUE(symbols(2)->blExport);
}

TEST_F(ProjectFile, a_button_may_end_before_its_grid) {
    Project project;
    ASSERT_TRUE(
        Load(u"KVF,0,9,0\r\n1,1,1,8\r\n1\r\n1,,ﾎﾞﾀﾝ,,,,B,True\r\n0,0,0,0\r\n0\r\n", project));
    EXPECT_TRUE((*project.colSymbol)(1)->Property<clsPropertyButton>()->blAutoHitTest);
    EXPECT_FALSE((*project.colSymbol)(1)->Property<clsPropertyButton>()->bl9Scale);
}

TEST_F(ProjectFile, kinds_with_a_fixed_number_keep_it) {
    Project project;
    ASSERT_TRUE(Load(u"KVF,0,9,0\r\n1,1,1,8\r\n1\r\n7,,―,,,\r\n0\r\n", project));
    EXPECT_EQ((*project.colSymbol)(1)->ID, -1);
}

TEST_F(ProjectFile, takes_the_minor_version_as_two_hexadecimal_digits) {
    String text = WholeProject();
    Project project;
    ASSERT_TRUE(Load(text.replace(0, 9, u"KVF,0,10,0"), project));
    EXPECT_EQ(Cells(project), WholeProject());
}

/// A project of texts, each with its rows of cells and of references.
String ProjectOfTexts(std::initializer_list<StringView> texts) {
    String symbols;
    String references;
    Long id = 0;
    for (const StringView text : texts) {
        symbols += ToText(++id) + u",,ﾃｷｽﾄ,,,," + String(text) +
                   u",,Font,1,2,3,0,0,False,True,1,2,3,0,True,False,False,0,0,1,1,True,False,False,"
                   u"1\r\n";
        references += u"0\r\n";
    }
    return u"KVF,0,9,0\r\n1,1,1,8\r\n" + ToText(static_cast<Long>(texts.size())) + u"\r\n" +
           symbols + references + u"0\r\n";
}

TEST_F(ProjectFile, keeps_characters_that_the_code_page_lacks_in_rows_behind_the_table) {
    Project project;
    ASSERT_TRUE(Load(ProjectOfTexts({u"\"a\r\nb\"", u"", u"plain"}), project));
    const auto textOf = [](const Project& from, Long index) -> String& {
        return (*from.colSymbol)(index)->Property<clsPropertyText>()->InitialText;
    };
    // A best fit, none, a pair of units, a wave that turns into another one, a backslash.
    textOf(project, 2) = u"\u00E9\uD55C\U0001F600\u301C\\,\u30AB\u3099";
    (*project.colSymbol)(3)->ObjectName = u"\uD55C";
    ASSERT_TRUE(SaveProject(path_, project, nullptr));
    Bytes bytes;
    ASSERT_TRUE(ReadFileBytes(path_, bytes));
    const std::string written(bytes.begin(), bytes.end());
    // The texts stand in the rows 4 and 5 and the column 6, whatever lines cells take.
    const std::string rows =
        "UNICODE,4,6,\"\\u00E9\\uD55C\\uD83D\\uDE00\\u301C\\u005C,\\u30AB\\u3099\"\r\n"
        "UNICODE,5,3,\\uD55C\r\n";
    EXPECT_TRUE(written.ends_with(rows)) << written;
    EXPECT_NE(written.find("\"e???\x81\x60\\,\x83\x4A?\""), std::string::npos) << written;

    Project again;
    ASSERT_TRUE(LoadProject(path_, again, assets_));
    EXPECT_EQ(textOf(again, 2), textOf(project, 2));
    EXPECT_EQ((*again.colSymbol)(3)->ObjectName, u"\uD55C");
    EXPECT_EQ(Cells(again), Cells(project));

    // Another program changed the cell: its text counts.
    String edited = DecodeAnsi(bytes);
    edited.replace(edited.find(u"e???"), 1, u"x");
    Project other;
    ASSERT_TRUE(Load(edited, other));
    EXPECT_EQ(textOf(other, 2), u"x???\uFF5E\\,\u30AB?");
    EXPECT_EQ((*other.colSymbol)(3)->ObjectName, u"\uD55C");
}

TEST_F(ProjectFile, passes_over_rows_that_tell_of_no_cell) {
    const String text = ProjectOfTexts({u"?"});
    for (const StringView row :
         {u"UNICODE", u"UNICODE,x,6,\\uD55C", u"UNICODE,3,6,\\uD55", u"UNICODE,3,6,\\n",
          u"UNICODE,-1,6,\\uD55C", u"UNICODE,2000000000,2000000000,", u"UNICODE,3,99999999999,?",
          u"UNICODE,3,6,\\uD55C\\uD55C"}) {
        Project project;
        ASSERT_TRUE(Load(text + String(row) + u"\r\n", project)) << ToNarrow(row);
        EXPECT_EQ(Cells(project), text) << ToNarrow(row);
    }
}

TEST_F(ProjectFile, reads_a_text_that_an_editor_turned_into_utf_8) {
    Bytes bytes = EncodeUtf8(WholeProject());
    for (const bool marked : {false, true}) {
        if (marked) bytes.insert(bytes.begin(), {0xEF, 0xBB, 0xBF});
        Project project;
        const ProjectLoad load = LoadProjectBytes(bytes, path_, project, assets_);
        ASSERT_TRUE(load);
        ASSERT_EQ(load.Told.size(), 1U);
        EXPECT_NE(load.Told[0].Text.find(u"UTF-8"), String::npos);
        EXPECT_EQ(Cells(project), WholeProject());
    }
    // Half-width kana whose bytes are sound UTF-8 too.
    Project project;
    const String label = u"KVF,0,9,0\r\n1,1,1,8\r\n0\r\n1\r\n-2,ﾃｷ,,0,,,2048,0,0,,,,True,0\r\n";
    ASSERT_TRUE(Load(label, project));
    EXPECT_TRUE(ui_.Messages.empty());
    EXPECT_EQ((*project.colMainLayer)(1)->LayerName, u"ﾃｷ");
}

TEST_F(ProjectFile, what_is_written_is_never_taken_for_UTF8) {
    // In the code page a half-width kana and a kanji, C4 96 6B, and a kanji and a kana, E3 81 B1.
    for (const StringView name : {u"ﾄ北", u"縺ｱ"}) {
        const String text =
            u"KVF,0,9,0\r\n1,1,1,8\r\n0\r\n1\r\n-2," + String(name) + u",,0,,,-1,0,0,,,,True,0\r\n";
        clsCSV csv;
        csv.Text(text);
        Project project;
        ASSERT_TRUE(
            ShowLoad(LoadProjectBytes(EncodeProjectText(csv, false), path_, project, assets_)));
        EXPECT_EQ(Cells(project), text);
    }
}

TEST_F(ProjectFile, keeps_the_row_of_an_unknown_kind) {
    const String row = u"1,絵\\表.bmp,新種,a,b,c,1,\"x,y\",,\r\n2,,新種,,,,\r\n";
    const String text = u"KVF,0,9,0\r\n1,1,1,8\r\n2\r\n" + row + u"0\r\n";
    Project project;
    ASSERT_TRUE(Load(text, project));
    ASSERT_EQ(ui_.Messages.size(), 1U);
    EXPECT_TRUE(ui_.Messages[0].first.starts_with(u"「新種」"));
    EXPECT_EQ((*project.colSymbol)(1)->eType(), 0);
    EXPECT_EQ(Cells(project), text);
    // The number and the place of the file follow.
    (*project.colSymbol)(1)->ID = 7;
    clsCSV moved;
    SaveProjectCells(moved, project, JoinPath(folder_, u"絵"));
    EXPECT_EQ(moved.GetSelText(0, 3, 3, 3), u"7,表.bmp,新種,a\r\n");
}

TEST_F(ProjectFile, finds_files_by_names_of_another_form) {
    const String composed = JoinPath(folder_, u"ガÉ.png");
    ASSERT_TRUE(WriteFileBytes(Bytes{1}, composed));
    const String row = u",画像,,,,False,0,0,0,False,CR,100,False,70\r\n";
    const auto project = [&row](StringView path) {
        return u"KVF,0,9,0\r\n1,1,1,8\r\n1\r\n1," + String(path) + row + u"0\r\n";
    };
    Project found;
    clsCSV csv;
    csv.Text(project(u"\u30AB\u3099e\u0301.PNG"));
    ASSERT_TRUE(ShowLoad(LoadProjectBytes(EncodeProjectText(csv, false), path_, found, assets_)));
    EXPECT_EQ((*found.colSymbol)(1)->FilePathName, composed);
    ASSERT_TRUE(Load(project(u"絵\\表.BMP"), found));
    EXPECT_EQ((*found.colSymbol)(1)->FilePathName, JoinPath(JoinPath(folder_, u"絵"), u"表.bmp"));
    // Two that fit are none.
    ASSERT_TRUE(WriteFileBytes(Bytes{1}, JoinPath(folder_, u"S.Mp3")));
    EXPECT_FALSE(Load(u"KVF,0,9,0\r\n1,1,1,8\r\n1\r\n1,s.MP3,ｻｳﾝﾄﾞ,,,,False\r\n0\r\n", found));
    EXPECT_EQ(ui_.Messages[0].first,
              JoinPath(folder_, u"s.MP3") + u"\r\n\r\nファイルが見つかりません。");
}

TEST_F(ProjectFile, rows_of_a_number_held_twice_show_the_symbol_of_their_kind) {
    const String sprite = u"3,,ｽﾌﾟﾗｲﾄ,,,,A,0,0,0,0,False,0,0,0,0\r\n";
    const String button = u"3,,ﾎﾞﾀﾝ,,,,B,True\r\n";
    const String spriteCells = plainPlacement + u",True,loop,False,5,Random,False,12,spin,";
    Project project;
    ASSERT_TRUE(Load(u"KVF,0,9,0\r\n1,1,1,8\r\n4\r\n1,,空動画,,,,E,3,4\r\n" + sprite + button +
                         sprite + u"0,0,0,0\r\n0\r\n0\r\n2\r\n" +
                         LayerRows(u"3", plainPlacement, u"rollout,") +
                         LayerRows(u"3", spriteCells),
                     project));
    ASSERT_EQ(ui_.Messages.size(), 1U);
    EXPECT_EQ(ui_.Messages[0].first, u"重複しているIDを、\r\n空いているIDへ変更します。");
    const auto& symbols = *project.colSymbol;
    EXPECT_EQ(symbols(2)->ID, 3);
    EXPECT_EQ(symbols(3)->ID, 2);
    EXPECT_EQ(symbols(4)->ID, 4);
    EXPECT_EQ((*project.colMainLayer)(1)->SymbolData(), symbols(3));
    EXPECT_EQ((*project.colMainLayer)(2)->SymbolData(), symbols(2));
}

TEST_F(ProjectFile, asks_for_a_missing_file) {
    const String text =
        u"KVF,0,9,0\r\n1,1,1,8\r\n1\r\n"
        u"1,gone.bmp,画像,,,,False,0,0,0,False,CR,100,False,70\r\n0\r\n";
    Project project;
    project.MainWidth = 77;
    EXPECT_FALSE(Load(text, project));
    EXPECT_EQ(ui_.DialogTitle, u"ファイル選択");
    ASSERT_EQ(ui_.Messages.size(), 2U);
    EXPECT_EQ(ui_.Messages[0].first,
              JoinPath(folder_, u"gone.bmp") + u"\r\n\r\nファイルが見つかりません。");
    EXPECT_EQ(ui_.Messages[1].first, u"プロジェクトを開けませんでした。");
    EXPECT_EQ(project.MainWidth, 77);
    ui_.Choice = JoinPath(folder_, u"s.mp3");
    ASSERT_TRUE(Load(text, project));
    EXPECT_EQ((*project.colSymbol)(1)->FilePathName, ui_.Choice);
    assets_.Readable = false;
    EXPECT_FALSE(Load(text, project));
    ASSERT_EQ(ui_.Messages.size(), 3U);
    EXPECT_EQ(ui_.Messages[1].first, u"ファイルの読み込みに失敗しました。\r\n\r\n" + ui_.Choice);
    EXPECT_EQ(ui_.Messages[1].second, u"読み込みエラー");
}

TEST_F(ProjectFile, opens_without_a_file_on_request_and_keeps_its_row) {
    const String text =
        u"KVF,0,9,0\r\n1,1,1,8\r\n3\r\n"
        u"1,gone.bmp,画像,,,,True,1,2,3,True,BL,50,True,80\r\n"
        u"2,絵\\表.bmp,画像,,,,False,0,0,0,False,CR,100,False,70\r\n"
        u"3,gone.bmp,画像,,,,False,0,0,0,False,CR,100,False,70\r\n0\r\n";
    assets_.Readable = false;
    Project project;
    EXPECT_FALSE(Load(text, project));
    EXPECT_EQ(ui_.Messages.back().first, u"プロジェクトを開けませんでした。");
    ui_.Consent = Answer::Yes;
    ui_.Questions.clear();
    ASSERT_TRUE(Load(text, project));
    const String gone = JoinPath(folder_, u"gone.bmp");
    const String damaged = JoinPath(JoinPath(folder_, u"絵"), u"表.bmp");
    const String question = u"このファイルなしでプロジェクトを開きますか？\r\n\r\n";
    // One file is asked about once.
    EXPECT_EQ(ui_.Questions, (std::vector<String>{question + gone, question + damaged}));
    EXPECT_EQ(assets_.Placeholders, (std::vector<String>{gone, damaged, gone}));
    EXPECT_EQ(Cells(project), text);
}

TEST_F(ProjectFile, tells_of_each_font_that_is_not_available_once) {
    const String gothic = u"ＭＳ ゴシック";
    String text = ProjectOfTexts({u"a", u"b", u"c", u"d"});
    const std::size_t third = text.find(u"c,,Font") + 3;
    text.replace(third, 4, gothic);
    text.replace(text.find(u"d,,Font") + 3, 4, u"_sans");
    const auto message = [](StringView font, StringView other) {
        return u"「" + String(font) + u"」が見つかりません。\r\n「" + String(other) +
               u"」へ変更します。";
    };
    const struct {
        std::vector<String> Missing;
        bool HasSubstitute;
        std::vector<String> Fonts;
        std::vector<String> Told;
    } cases[] = {
        {{}, false, {u"Font", u"Font", gothic, u"_sans"}, {}},
        {{u"Font"},
         false,
         {u"Default", u"Default", gothic, u"_sans"},
         {message(u"Font", u"Default")}},
        {{u"Font", u"Default", gothic},
         false,
         {gothic, gothic, gothic, u"_sans"},
         {message(u"Font", gothic), message(gothic, gothic)}},
        {{u"Font", u"Default", gothic},
         true,
         {gothic, gothic, gothic, u"_sans"},
         {message(u"Font", gothic)}},
    };
    for (const auto& c : cases) {
        assets_.Missing = c.Missing;
        assets_.HasSubstitute = c.HasSubstitute;
        Project project;
        ASSERT_TRUE(Load(text, project));
        std::vector<String> fonts;
        for (const auto& symbol : *project.colSymbol)
            fonts.push_back(symbol->Property<clsPropertyText>()->FontName);
        EXPECT_EQ(fonts, c.Fonts);
        std::vector<String> told;
        for (const auto& shown : ui_.Messages) told.push_back(shown.first);
        EXPECT_EQ(told, c.Told);
    }
}

TEST_F(ProjectFile, refuses_damaged_files) {
    const String head = u"KVF,0,9,0\r\n1,1,1,8\r\n";
    const String sprite = u"1,,ｽﾌﾟﾗｲﾄ,,,,A,0,0,0,0,False,0,0,0,0\r\n";
    const String row = u",,,0,,,2048,0,0,,,,True,";
    const struct {
        const char* Name;
        String Text;
    } cases[] = {
        {"too short", u"KVF"},
        {"another file", u"GIF89a,1,2\r\n"},
        {"a version that is no number", u"KVF,g,1,1\r\n1,1,1,8\r\n0\r\n0\r\n"},
        {"symbol count too high", head + u"2147483647\r\n"},
        {"layer count too high", head + u"0\r\n2147483647\r\n"},
        {"key frame count too high", head + u"0\r\n1\r\n-1" + row + u"2147483647\r\n"},
        {"layers of a class", head + u"1\r\n-5,,ｸﾗｽ,,,,C,,2147483647\r\n0\r\n"},
        {"curve", head + u"1\r\n9,,空動画,,,,e,1,1\r\n1\r\n9" + row +
                      u"1\r\n1,1,False,False,True," + cells::PlacementHead +
                      u"XY,False,2147483647\r\n0\r\n"},
        {"a frame before the first",
         head + u"0\r\n1\r\n-1" + row + u"1\r\n0,1,False,False,True,0,0,0\r\n"},
        {"key frames out of order", head + u"0\r\n1\r\n-1" + row +
                                        u"2\r\n2,1,False,False,True,0,0,0\r\n"
                                        u"1,1,False,False,True,0,0,0\r\n"},
        {"a layer of no symbol", head + u"0\r\n1\r\n5" + row + u"0\r\n"},
        {"a reference of no symbol", head + u"1\r\n1,,ﾎﾞﾀﾝ,,,,B,False\r\n2,0,0,0\r\n0\r\n"},
        {"a link to a link", head + u"1\r\n1,,ﾘﾝｸ,,,,a,b,1,1,ﾘﾝｸ,a,b,1,1,画像\r\n0\r\n"},
        {"a sprite in itself", head + u"1\r\n" + sprite + u"1\r\n1" + row + u"0\r\n0\r\n"},
        {"pictures in themselves", head + u"1\r\n1,,ｺﾏ動画,,,,K,1\r\n1\r\n0\r\n"},
    };
    for (const auto& c : cases) ExpectDamaged(c.Text, c.Name);
}

TEST_F(ProjectFile, refuses_bottomless_nesting) {
    String text = u"KVF,0,9,0\r\n1,1,1,8\r\n600\r\n";
    for (Long i = 1; i <= 600; ++i) text += ToText(i) + u",,ｽﾌﾟﾗｲﾄ,,,,A,0,0,0,0,False,0,0,0,0\r\n";
    text += u"0\r\n";
    for (Long i = 1; i < 600; ++i) text += u"1\r\n" + ToText(i) + u",,,0,,,2048,0,0,,,,True,0\r\n";
    ExpectDamaged(text + u"0\r\n", "600 levels");
}

TEST_F(ProjectFile, takes_counts_below_zero_as_none) {
    Project project;
    ASSERT_TRUE(Load(u"KVF,0,9,0\r\n1,1,1,8\r\n-3\r\n-2147483648\r\n", project));
    EXPECT_EQ(project.colSymbol->Count(), 0);
}

TEST_F(ProjectFile, folder_with_more_rows_than_there_are_takes_the_rest) {
    Project project;
    ASSERT_TRUE(
        Load(u"KVF,0,9,0\r\n1,1,1,8\r\n2\r\n1,,Sﾌｫﾙﾀﾞ,,,,F,2147483647,True\r\n"
             u"2,,空動画,,,,e,1,1\r\n0\r\n",
             project));
    EXPECT_EQ((*project.colSymbol)(2)->ParentFolder(), (*project.colSymbol)(1));
}

TEST_F(ProjectFile, counts_of_folders_are_made_true) {
    // An outer folder that claims too much, an inner one beyond it, one below 0.
    const auto folder = [](StringView count) {
        return u"-4,,,0,,,2048,0,0,,,,True,1\r\n1,1,False,False,True,F,0," + String(count) +
               u",True,\r\n";
    };
    Project project;
    ASSERT_TRUE(Load(u"KVF,0,9,0\r\n1,1,1,8\r\n0\r\n5\r\n" + folder(u"2") + folder(u"9") +
                         u"-2,,,0,,,2048,0,0,,,,True,0\r\n" + folder(u"-3") +
                         u"-1,,,0,,,2048,0,0,,,,True,0\r\n",
                     project));
    const auto& rows = *project.colMainLayer;
    EXPECT_EQ(rows(1)->Folder()->LayerCount, 2);
    EXPECT_EQ(rows(2)->Folder()->LayerCount, 1);
    EXPECT_EQ(rows(3)->ParentFolder(), rows(2));
    EXPECT_EQ(rows(4)->Folder()->LayerCount, 0);
    EXPECT_EQ(rows(5)->ParentFolder(), nullptr);
    ASSERT_TRUE(Load(
        u"KVF,0,9,0\r\n1,1,1,8\r\n0\r\n2\r\n" + folder(u"7") + u"-1,,,0,,,2048,0,0,,,,True,0\r\n",
        project));
    EXPECT_EQ((*project.colMainLayer)(1)->Folder()->LayerCount, 0);
}

TEST_F(ProjectFile, a_koma_of_a_koma_behind_it_has_its_size) {
    Project project;
    ASSERT_TRUE(
        Load(u"KVF,0,9,0\r\n1,1,1,8\r\n3\r\n1,,ｺﾏ動画,,,,a,1\r\n2,,ｺﾏ動画,,,,b,1\r\n"
             u"3,,空動画,,,,e,30,20\r\n2\r\n3\r\n0\r\n",
             project));
    EXPECT_EQ((*project.colSymbol)(1)->PixelWidth(), 30);
    EXPECT_EQ((*project.colSymbol)(1)->PixelHeight(), 20);
}

TEST_F(ProjectFile, a_build_has_more_than_two_digits) {
    Project project;
    EXPECT_TRUE(Load(u"KVF,0,9,0,70000\r\n1,1,1,8\r\n0\r\n0\r\n", project));
    ExpectDamaged(u"KVF,0,9,0,-1\r\n1,1,1,8\r\n0\r\n0\r\n", "below 0");
    ExpectDamaged(u"KVF,7F,255,255,2147483647\r\n1,1,1,8\r\n0\r\n0\r\n", "beyond a number");
}

TEST_F(ProjectFile, a_text_beyond_the_limit_is_not_written) {
    clsCSV csv;
    csv.Put(String(2 << 20, u'a'));
    EXPECT_THROW(EncodeProjectText(csv, true, 1 << 20), RuntimeError);
    EXPECT_FALSE(EncodeProjectText(csv, true, 4 << 20).empty());
}

TEST_F(ProjectFile, cut_at_any_byte_loads_or_says_why_not) {
    const Bytes whole = EncodeAnsi(WholeProject());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        Project project;
        const ProjectLoad load =
            LoadProjectBytes(ByteView(whole).first(length), path_, project, assets_);
        ASSERT_EQ(load.Done, load.Told.empty()) << length;
    }
}

TEST_F(ProjectFile, failed_save_tells_why) {
    RuntimeError why(0, u"", u"");
    EXPECT_FALSE(SaveProject(JoinPath(JoinPath(folder_, u"s.mp3"), u"a.kvf"), Project(), &why));
    EXPECT_EQ(why.Number, 75);
    EXPECT_TRUE(why.Description.ends_with(u"\r\nフォルダを作成できません。"));
}

TEST_F(ProjectFile, leaves_the_file_version_as_it_was) {
    Project project;
    ASSERT_TRUE(Load(u"KVF,0,5,5\r\n1,1,1,8\r\n0\r\n0\r\n", project));
    EXPECT_EQ(ProjectFileVersion, NewestProjectFileVersion);
}

TEST(Symbol, refuses_a_record_of_another_kind) {
    Listener ui;
    const UserInterfaceScope scope(ui);
    clsSymbolData symbol(KindBitmap);
    const auto own = symbol.PropertyData();
    symbol.PropertyData(std::make_shared<clsPropertyText>());
    EXPECT_EQ(symbol.PropertyData(), own);
    ASSERT_EQ(ui.Messages.size(), 1U);
    EXPECT_EQ(ui.Messages[0].first, u"シンボルのタイプが違います。");
}

TEST(Symbol, shows_a_text_in_brackets) {
    clsSymbolData symbol(KindText);
    auto& text = *symbol.Property<clsPropertyText>();
    text.InitialText = u"a\r\nb\nc\rd";
    EXPECT_EQ(symbol.Value(), u"[a↓b↓c←d]");
    text.blDynamic = true;
    text.VariableName = u"v";
    EXPECT_EQ(symbol.Value(), u"v[a↓b↓c←d]");
    EXPECT_EQ(symbol.OptionText(), u"*");
    text.blFlashType = true;
    EXPECT_EQ(symbol.OptionText(), u"$*");
}

TEST(Symbol, keeps_three_identifiers) {
    clsSymbolData symbol(KindBitmap);
    symbol.DefineNum = 7;
    symbol.DefineID(9);
    symbol.DefineNum = 2;
    EXPECT_EQ(symbol.DefineID(), 9);
    symbol.DefineNum = 0;
    EXPECT_EQ(symbol.DefineID(), 0);
}

TEST(Symbol, copy_of_a_sprite_has_its_own_timeline) {
    clsSymbolData symbol(KindSprite);
    auto& sprite = *symbol.Property<clsPropertySprite>();
    auto layer = std::make_shared<clsLayer>();
    auto inner = std::make_shared<clsSymbolData>(KindSprite);
    layer->SymbolData(inner);
    sprite.colLayer->Add(layer);
    EXPECT_TRUE(sprite.CkHasLoop(*inner));
    EXPECT_FALSE(sprite.CkHasLoop(symbol));
    const auto copy = symbol.Copy();
    copy->Property<clsPropertySprite>()->colLayer->Item(1)->LayerName = u"x";
    EXPECT_EQ(layer->LayerName, u"");
}

TEST(Symbol, loop_search_ends_on_cyclic_data) {
    auto a = std::make_shared<clsSymbolData>(KindSprite);
    auto b = std::make_shared<clsSymbolData>(KindSprite);
    const auto show = [](clsSymbolData& in, const std::shared_ptr<clsSymbolData>& symbol) {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(symbol);
        in.Property<clsPropertySprite>()->colLayer->Add(layer);
    };
    show(*a, b);
    show(*b, a);
    EXPECT_FALSE(a->Property<clsPropertySprite>()->CkHasLoop(clsSymbolData(KindBitmap)));
    EXPECT_TRUE(a->Property<clsPropertySprite>()->CkHasLoop(*a));
    a->Property<clsPropertySprite>()->colLayer->Clear();
}

}  // namespace
}  // namespace tamber
