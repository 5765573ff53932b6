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

/// All values away from their defaults.
const String filterCells =
    u"True,90,80,70,60,1,2,3,4,"
    u"True,1,2,3,50,4,5,30,6,2.5,True,True,False,3,"
    u"True,7,8,1,"
    u"True,9,8,7,40,3,4,1.5,True,False,False,2,"
    u"True,1,2,3,10,4,5,6,20,7,8,60,9,2,True,False,False,True,1,"
    u"True,3,3,2,1,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,"
    u"5,6,7,30,True,True,"
    u"True,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20";

const String placementHead = u"12.5,-3.2,1,2,False,15000,-20000,-10,90,450000,10000,-20000,128,";
/// Two curves, then the filters, then a path of two points: the tail goes on behind them.
const String placement = placementHead + u"NON,True,2\r\n0,0,0.5,0.25,1\r\n0,0\r\n8," +
                         filterCells + u",2\r\nOn,1.5,2,Off,3,4";
/// Straight curves and no path: the tail goes on in the same row.
const String plainPlacement =
    placementHead + u"PRM,False,1\r\n0,0,1\r\n0,0\r\n8," + filterCells + u",0";

/// A layer's first row and its one key frame.
String LayerRows(StringView id, StringView element, StringView event = u"") {
    return String(id) + u",層,inst,2,," + String(event) +
           u"\"trace(\"\"1\"\");\",-1,1,0,p1,p2,_root,False,1\r\n3,4,True,True,False" +
           (element.empty() ? u"" : u",") + String(element) + u"\r\n";
}

/// A project with each kind of symbol and of element.
String WholeProject() {
    return u"KVF,0,9,0\r\n"
           u"320,240,12.5,8\r\n"
           u"HTML,pixels,320,240,l,t,True,False,True,high,window,showall,True\r\n"
           u"14\r\n"
           u"1,絵\\表.bmp,画像,pic,,Export,True,1,2,3,True,BL,50,True,80\r\n"
           u"2,,ﾃｷｽﾄ,,,ExportTop,初め,def,Font,100,20,12,1.5,2,True,False,10,20,30,1,False,True,"
           u"True,False,True,False,True,False,True,var,True,3,4,2,3,False,True,True,2\r\n"
           u"3,,ﾃｷｽﾄ,,,,a,b,_sans,1,2,3,0,0,False,True,1,2,3,0,True,False,False,0,0,1,1,True,"
           u"False,False,1\r\n"
           u"4,s.mp3,ｻｳﾝﾄﾞ,,,,False\r\n"
           u"5,v.svg,ﾍﾞｸﾀ,,,,True,True,1,2,3,4,5,6,7,8,True,True,True,1,2,512\r\n"
           u"6,v.svg,ﾍﾞｸﾀ,,,,False,False,0,0,0,0,0,0,0,0,False,False,False,0,0,1024\r\n"
           u"7,,ｽﾌﾟﾗｲﾄ,obj,MyClass,Export,スプライト1,10,20,1,2,True,1,3,2,4\r\n"
           u"8,m.flv,動画,,,,2,False,True\r\n"
           u"9,,空動画,,,,空1,30,40\r\n"
           u"10,,ﾎﾞﾀﾝ,,,,ボタン1,True,True,1,3,2,4,True,5,6,90,80,70,60,1,2,3,4,False\r\n"
           u"11,,ｺﾏ動画,,,,コマ1,3\r\n"
           u"-1,,Sﾌｫﾙﾀﾞ,,,,フォルダ1,1,False\r\n"
           u"-5,,ｸﾗｽ,,,,MyClass,Base,2\r\nc1,x=1;\r\nc2,\"a(\"\"b\"\");\"\r\n"
           u"14,,ﾘﾝｸ,,,,lib,other.swf,10,20,画像,True,1,2,3,True,BL,50,True,80\r\n"
           u"5\r\n0\r\n6\r\n0\r\n1,0,1,1\r\n1,1\r\n"
           u"1\r\n" +
           LayerRows(u"1", placement) + u"14\r\n" + LayerRows(u"-1", u"10,20,30") +
           LayerRows(u"-2", u"label,True") + LayerRows(u"1", plainPlacement) +
           LayerRows(u"2", placement + u",True,out,True,5,Right,True,30,fade,speed,3,") +
           LayerRows(u"4", u"2,3,50,60,100,200,10,20") +
           LayerRows(u"5", placement + u",True,1,2,3,4,5,6,7,8,True") +
           LayerRows(u"7", plainPlacement + u",True,loop,False,5,Random,False,12,spin,") +
           LayerRows(u"8", placement) + LayerRows(u"9", placement) +
           LayerRows(u"-3", u"note,stop();,2,1,1,end,w,_parent") +
           LayerRows(u"10", placement, u"rollout,") + LayerRows(u"11", plainPlacement) +
           LayerRows(u"-4", u"棚,1,1,False,memo") + LayerRows(u"14", placement);
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

TEST_F(ProjectFile, ComesBackCellForCellWithEachKind) {
    Project project;
    ASSERT_TRUE(Load(WholeProject(), project));
    EXPECT_TRUE(ui_.Messages.empty());
    EXPECT_EQ(Cells(project), WholeProject());
}

TEST_F(ProjectFile, FillsTheRecords) {
    Project project;
    ASSERT_TRUE(Load(WholeProject(), project));
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

TEST_F(ProjectFile, SavesPlainAndCompressedAndReadsByContent) {
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

TEST_F(ProjectFile, ReadsAnEmptyProject) {
    const String text = u"KVF,0,9,0\r\n550,400,12,7\r\n0\r\n0\r\n";
    Project project;
    ASSERT_TRUE(Load(text, project));
    EXPECT_FALSE(project.Html.has_value());
    EXPECT_EQ(Cells(project), text);
}

TEST_F(ProjectFile, RemarksAndButtonLinkageDoNotSurvive) {
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

TEST_F(ProjectFile, ReadsOlderLayouts) {
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

TEST_F(ProjectFile, AButtonMayEndBeforeItsGrid) {
    Project project;
    ASSERT_TRUE(
        Load(u"KVF,0,9,0\r\n1,1,1,8\r\n1\r\n1,,ﾎﾞﾀﾝ,,,,B,True\r\n0,0,0,0\r\n0\r\n", project));
    EXPECT_TRUE((*project.colSymbol)(1)->Property<clsPropertyButton>()->blAutoHitTest);
    EXPECT_FALSE((*project.colSymbol)(1)->Property<clsPropertyButton>()->bl9Scale);
}

TEST_F(ProjectFile, KindsWithAFixedNumberKeepIt) {
    Project project;
    ASSERT_TRUE(Load(u"KVF,0,9,0\r\n1,1,1,8\r\n1\r\n7,,―,,,\r\n0\r\n", project));
    EXPECT_EQ((*project.colSymbol)(1)->ID, -1);
}

TEST_F(ProjectFile, TakesTheMinorVersionAsTwoHexadecimalDigits) {
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

TEST_F(ProjectFile, KeepsCharactersThatTheCodePageLacksInRowsBehindTheTable) {
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

TEST_F(ProjectFile, PassesOverRowsThatTellOfNoCell) {
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

TEST_F(ProjectFile, ReadsATextThatAnEditorTurnedIntoUtf8) {
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

TEST_F(ProjectFile, WhatIsWrittenIsNeverTakenForUtf8) {
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

TEST_F(ProjectFile, KeepsTheRowOfAnUnknownKind) {
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

TEST_F(ProjectFile, FindsFilesByNamesOfAnotherForm) {
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

TEST_F(ProjectFile, RowsOfANumberHeldTwiceShowTheSymbolOfTheirKind) {
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

TEST_F(ProjectFile, AsksForAMissingFile) {
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

TEST_F(ProjectFile, OpensWithoutAFileOnRequestAndKeepsItsRow) {
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

TEST_F(ProjectFile, TellsOfEachFontThatIsNotAvailableOnce) {
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

TEST_F(ProjectFile, RefusesDamagedFiles) {
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
                      u"1\r\n1,1,False,False,True," + placementHead +
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

TEST_F(ProjectFile, RefusesBottomlessNesting) {
    String text = u"KVF,0,9,0\r\n1,1,1,8\r\n600\r\n";
    for (Long i = 1; i <= 600; ++i) text += ToText(i) + u",,ｽﾌﾟﾗｲﾄ,,,,A,0,0,0,0,False,0,0,0,0\r\n";
    text += u"0\r\n";
    for (Long i = 1; i < 600; ++i) text += u"1\r\n" + ToText(i) + u",,,0,,,2048,0,0,,,,True,0\r\n";
    ExpectDamaged(text + u"0\r\n", "600 levels");
}

TEST_F(ProjectFile, TakesCountsBelowZeroAsNone) {
    Project project;
    ASSERT_TRUE(Load(u"KVF,0,9,0\r\n1,1,1,8\r\n-3\r\n-2147483648\r\n", project));
    EXPECT_EQ(project.colSymbol->Count(), 0);
}

TEST_F(ProjectFile, FolderWithMoreRowsThanThereAreTakesTheRest) {
    Project project;
    ASSERT_TRUE(
        Load(u"KVF,0,9,0\r\n1,1,1,8\r\n2\r\n1,,Sﾌｫﾙﾀﾞ,,,,F,2147483647,True\r\n"
             u"2,,空動画,,,,e,1,1\r\n0\r\n",
             project));
    EXPECT_EQ((*project.colSymbol)(2)->ParentFolder(), (*project.colSymbol)(1));
}

TEST_F(ProjectFile, CountsOfFoldersAreMadeTrue) {
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

TEST_F(ProjectFile, AKomaOfAKomaBehindItHasItsSize) {
    Project project;
    ASSERT_TRUE(
        Load(u"KVF,0,9,0\r\n1,1,1,8\r\n3\r\n1,,ｺﾏ動画,,,,a,1\r\n2,,ｺﾏ動画,,,,b,1\r\n"
             u"3,,空動画,,,,e,30,20\r\n2\r\n3\r\n0\r\n",
             project));
    EXPECT_EQ((*project.colSymbol)(1)->PixelWidth(), 30);
    EXPECT_EQ((*project.colSymbol)(1)->PixelHeight(), 20);
}

TEST_F(ProjectFile, ABuildHasMoreThanTwoDigits) {
    Project project;
    EXPECT_TRUE(Load(u"KVF,0,9,0,70000\r\n1,1,1,8\r\n0\r\n0\r\n", project));
    ExpectDamaged(u"KVF,0,9,0,-1\r\n1,1,1,8\r\n0\r\n0\r\n", "below 0");
    ExpectDamaged(u"KVF,7F,255,255,2147483647\r\n1,1,1,8\r\n0\r\n0\r\n", "beyond a number");
}

TEST_F(ProjectFile, ATextBeyondTheLimitIsNotWritten) {
    clsCSV csv;
    csv.Put(String(2 << 20, u'a'));
    EXPECT_THROW(EncodeProjectText(csv, true, 1 << 20), RuntimeError);
    EXPECT_FALSE(EncodeProjectText(csv, true, 4 << 20).empty());
}

TEST_F(ProjectFile, CutAtAnyByteLoadsOrSaysWhyNot) {
    const Bytes whole = EncodeAnsi(WholeProject());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        Project project;
        const ProjectLoad load =
            LoadProjectBytes(ByteView(whole).first(length), path_, project, assets_);
        ASSERT_EQ(load.Done, load.Told.empty()) << length;
    }
}

TEST_F(ProjectFile, FailedSaveTellsWhy) {
    RuntimeError why(0, u"", u"");
    EXPECT_FALSE(SaveProject(JoinPath(JoinPath(folder_, u"s.mp3"), u"a.kvf"), Project(), &why));
    EXPECT_EQ(why.Number, 75);
    EXPECT_TRUE(why.Description.ends_with(u"\r\nフォルダを作成できません。"));
}

TEST_F(ProjectFile, LeavesTheFileVersionAsItWas) {
    Project project;
    ASSERT_TRUE(Load(u"KVF,0,5,5\r\n1,1,1,8\r\n0\r\n0\r\n", project));
    EXPECT_EQ(ProjectFileVersion, NewestProjectFileVersion);
}

TEST(Symbol, RefusesARecordOfAnotherKind) {
    Listener ui;
    const UserInterfaceScope scope(ui);
    clsSymbolData symbol(KindBitmap);
    const auto own = symbol.PropertyData();
    symbol.PropertyData(std::make_shared<clsPropertyText>());
    EXPECT_EQ(symbol.PropertyData(), own);
    ASSERT_EQ(ui.Messages.size(), 1U);
    EXPECT_EQ(ui.Messages[0].first, u"シンボルのタイプが違います。");
}

TEST(Symbol, ShowsATextInBrackets) {
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

TEST(Symbol, KeepsThreeIdentifiers) {
    clsSymbolData symbol(KindBitmap);
    symbol.DefineNum = 7;
    symbol.DefineID(9);
    symbol.DefineNum = 2;
    EXPECT_EQ(symbol.DefineID(), 9);
    symbol.DefineNum = 0;
    EXPECT_EQ(symbol.DefineID(), 0);
}

TEST(Symbol, CopyOfASpriteHasItsOwnTimeline) {
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

TEST(Symbol, LoopSearchEndsOnCyclicData) {
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
