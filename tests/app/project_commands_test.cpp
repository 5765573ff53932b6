#include "app/settings/mdlPrivateProfile.h"
#include "document/elements/clsObjBackGround.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyVector.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "swf/mdlZlib.h"
#include "tests/support/ControllerTest.h"

namespace tamber {
namespace {

class ProjectCommands : public ControllerTest {
protected:
    /// Paints the background and records it.
    void Paint(Byte red, StringView tag = {}) {
        Background().BackColorRed = red;
        main_.AddUndoRedoData(UndoStep::Change, tag);
    }
    clsObjBackGround& Background() {
        return *(*main_.colMainLayer())(main_.colMainLayer()->Count())
                    ->Object(1)
                    ->ObjectAs<clsObjBackGround>();
    }
    /// Adds a row to the edited timeline and records it.
    void AddRow() {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(std::make_shared<clsSymbolData>(KindFrameAction));
        Long index = 0;
        layer->Add(1, nullptr, index);
        main_.colEditLayer()->Insert(layer, 1);
        main_.AddUndoRedoData(UndoStep::Change);
    }
};

TEST_F(ProjectCommands, ask_before_changes_are_lost) {
    EXPECT_FALSE(main_.IsProjectChanged());
    EXPECT_TRUE(main_.mnuNew());
    EXPECT_TRUE(interface_.Questions.empty());
    Paint(1);
    EXPECT_TRUE(main_.IsProjectChanged());
    // No answer is a cancel.
    EXPECT_FALSE(main_.mnuNew());
    ASSERT_EQ(interface_.Questions.size(), 1u);
    EXPECT_EQ(interface_.Questions[0].Text,
              u"プロジェクトは変更されています。\r\n上書き保存しますか？");
    EXPECT_EQ(Background().BackColorRed, 1);
    // Yes, but the dialog for the path is cancelled.
    interface_.Answers = {Answer::Yes};
    EXPECT_FALSE(main_.mnuNew());
    EXPECT_TRUE(main_.IsProjectChanged());
    interface_.Answers = {Answer::Yes};
    interface_.Paths = {Path(u"a.kvf")};
    EXPECT_TRUE(main_.mnuNew());
    EXPECT_TRUE(FileExists(Path(u"a.kvf")));
    EXPECT_EQ(main_.ProjectFileName(), u"");
    EXPECT_EQ(Background().BackColorRed, 255);
    Paint(2);
    interface_.Answers = {Answer::No};
    EXPECT_TRUE(main_.OpenProject(Path(u"a.kvf")));
    EXPECT_EQ(Background().BackColorRed, 1);
    EXPECT_FALSE(main_.IsProjectChanged());
}

TEST_F(ProjectCommands, saving_counts_from_there) {
    Paint(1);
    interface_.Paths = {Path(u"a.kvf")};
    EXPECT_TRUE(main_.mnuSave());
    EXPECT_EQ(main_.ProjectDir(), folder_);
    EXPECT_FALSE(main_.IsProjectChanged());
    EXPECT_EQ(interface_.StatusLines.back(), u"保存しました");
    // What is shown is not what was saved.
    main_.mnuUndoRedo(0);
    EXPECT_TRUE(main_.IsProjectChanged());
    EXPECT_TRUE(main_.mnuSave());
    ASSERT_TRUE(WriteFileBytes(Bytes(), Path(u"file")));
    EXPECT_FALSE(main_.mnuSaveNew(Path(u"file/a.kvf")));
    EXPECT_EQ(main_.ProjectFileName(), Path(u"a.kvf"));
    EXPECT_TRUE(
        interface_.Messages.back().Text.starts_with(u"保存できませんでした。\r\n\r\n「Number： "));
}

TEST_F(ProjectCommands, an_edit_behind_a_save_joins_no_step_before_it) {
    Paint(1, u"red");
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"a.kvf")));
    Paint(2, u"red");
    EXPECT_TRUE(main_.IsProjectChanged());
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Background().BackColorRed, 1);
    EXPECT_FALSE(main_.HasUnsavedWork());
    EXPECT_TRUE(mdlPrivateProfile::UndoRedoType(false));
    ASSERT_TRUE(main_.mnuNew());
    main_.ChangeSprite(AddSprite(10));
    AddRow();
    main_.AddUndoRedoData(UndoStep::Change, u"row");
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"b.kvf")));
    main_.AddUndoRedoData(UndoStep::Change, u"row");
    EXPECT_TRUE(main_.IsProjectChanged());
}

TEST_F(ProjectCommands, a_step_in_place_of_the_saved_state_is_work_to_save) {
    Paint(1);
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"a.kvf")));
    main_.mnuUndoRedo(0);
    main_.mnuUndoRedo(1);
    EXPECT_FALSE(main_.HasUnsavedWork());
    main_.mnuUndoRedo(0);
    Paint(2);
    EXPECT_EQ(main_.cUndoRedo().TotalHistory, 0);
    EXPECT_TRUE(main_.HasUnsavedWork());
    EXPECT_FALSE(main_.mnuNew());
    EXPECT_EQ(Background().BackColorRed, 2);
    ASSERT_TRUE(main_.mnuSave());
    EXPECT_FALSE(main_.HasUnsavedWork());
    // The saved state lies before the undone step.
    Paint(3);
    main_.mnuUndoRedo(0);
    Paint(4);
    main_.mnuUndoRedo(0);
    EXPECT_FALSE(main_.HasUnsavedWork());
}

TEST_F(ProjectCommands, no_project_is_saved_in_place_of_a_file_that_a_symbol_is_made_from) {
    const std::string drawing =
        R"(<svg xmlns="http://www.w3.org/2000/svg"><path d="M0 0h9v9z"/></svg>)";
    const Bytes written(drawing.begin(), drawing.end());
    ASSERT_TRUE(WriteFileBytes(written, Path(u"a.svg")));
    ASSERT_TRUE(main_.AddSymbolItem_File(Path(u"a.svg")));
    EXPECT_FALSE(main_.mnuSaveNew(Path(u"a.svg")));
    EXPECT_EQ(interface_.Messages.back().Text,
              Path(u"a.svg") + u"\r\n\r\nプロジェクトで使用中のファイルには出力できません。");
    Bytes kept;
    ASSERT_TRUE(ReadFileBytes(Path(u"a.svg"), kept));
    EXPECT_EQ(kept, written);
    EXPECT_EQ(main_.ProjectFileName(), u"");
    EXPECT_TRUE(main_.HasUnsavedWork());
    EXPECT_TRUE(main_.mnuSaveNew(Path(u"b.kvf")));
    EXPECT_TRUE(main_.mnuSave());
}

TEST_F(ProjectCommands, a_new_project_keeps_stage_rate_and_version) {
    EXPECT_TRUE(main_.mnuPrjProperty(400, 300, 12.5f, 7));
    EXPECT_EQ(main_.CanvasWidth(), 400);
    for (const auto& [width, rate, version] :
         {std::tuple{0, 12.0f, 6}, {2001, 12.0f, 6}, {10, 0.001f, 6}, {10, 12.0f, 5}})
        EXPECT_FALSE(main_.mnuPrjProperty(width, 10, rate, version));
    EXPECT_FALSE(main_.IsProjectChanged());
    main_.mnuNew();
    EXPECT_EQ(main_.inProject().MainWidth, 400);
    EXPECT_EQ(main_.inProject().FrameRate, 12.5f);
    EXPECT_EQ(main_.inProject().SWFVersion, 7);
}

TEST_F(ProjectCommands, edits_with_one_tag_are_one_step) {
    Paint(1, u"red");
    Paint(2, u"red");
    Paint(3, u"other");
    Paint(4, u"red");
    EXPECT_TRUE(main_.CanUndo());
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Background().BackColorRed, 3);
    EXPECT_TRUE(main_.CanRedo());
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Background().BackColorRed, 2);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Background().BackColorRed, 255);
    EXPECT_FALSE(main_.CanUndo());
    main_.mnuUndoRedo(0);
    main_.mnuUndoRedo(1);
    EXPECT_EQ(Background().BackColorRed, 2);
    // A step behind an undo is one of its own, whatever its tag.
    Paint(5, u"red");
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Background().BackColorRed, 2);
}

TEST_F(ProjectCommands, one_history_of_all_timelines_switches_back) {
    const Long sprite = AddSprite(77);
    Paint(1);
    main_.ChangeSprite(sprite);
    EXPECT_EQ(main_.CanvasWidth(), 77);
    AddRow();
    AddRow();
    main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.editIndex(), sprite);
    EXPECT_EQ(main_.colEditLayer()->Count(), 1);
    main_.mnuUndoRedo(0);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.editIndex(), frmMain::EditMain);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(Background().BackColorRed, 255);
    for (int i = 0; i < 4; ++i) main_.mnuUndoRedo(1);
    EXPECT_EQ(main_.editIndex(), sprite);
    EXPECT_EQ(main_.colEditLayer()->Count(), 2);
}

TEST_F(ProjectCommands, a_history_for_each_timeline_stays_in_it) {
    EXPECT_TRUE(mdlPrivateProfile::UndoRedoType(false));
    ASSERT_TRUE(main_.mnuNew());
    const Long sprite = AddSprite(77);
    main_.ChangeSprite(sprite);
    EXPECT_FALSE(main_.CanUndo());
    AddRow();
    EXPECT_TRUE(main_.CanUndo());
    EXPECT_TRUE(main_.IsProjectChanged());
    main_.ChangeSprite(frmMain::EditMain);
    EXPECT_FALSE(main_.CanUndo());
    Paint(1);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.editIndex(), frmMain::EditMain);
    main_.ChangeSprite(sprite);
    EXPECT_EQ(main_.colEditLayer()->Count(), 1);
    main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.editIndex(), sprite);
    EXPECT_EQ(main_.colEditLayer()->Count(), 0);
    EXPECT_FALSE(main_.IsProjectChanged());
    // A place that is no timeline.
    main_.ChangeSprite(99);
    EXPECT_EQ(main_.editIndex(), sprite);
}

TEST_F(ProjectCommands, a_step_in_another_timeline_leaves_the_buttons_of_the_shown_one) {
    EXPECT_TRUE(mdlPrivateProfile::UndoRedoType(false));
    ASSERT_TRUE(main_.mnuNew());
    const Long outer = AddSprite(10);
    const Long inner = AddSprite(20);
    main_.ChangeSprite(outer);
    main_.SelectSymbols(inner, inner);
    main_.AddToLayer(1, false, false);
    EXPECT_TRUE(main_.CanUndo());
    main_.ChangeSprite(frmMain::EditMain);
    EXPECT_FALSE(main_.CanUndo());
    main_.RemoveSymbolAndUses(inner);
    EXPECT_FALSE(main_.CanUndo());
    main_.ChangeSprite(outer);
    EXPECT_TRUE(main_.colEditLayer()->Empty());
    EXPECT_TRUE(main_.CanUndo());
}

TEST_F(ProjectCommands, page_settings_of_a_file_become_those_of_the_program) {
    namespace settings = mdlPrivateProfile;
    const auto write = [this](StringView width) {
        const String text = u"KVF,0,9,0\r\n1,1,1,8\r\nHTML,pixel," + String(width) +
                            u",0,,,False,True,False,high,,,True\r\n0\r\n0\r\n";
        ASSERT_TRUE(WriteFileBytes(EncodeAnsi(text), Path(u"a.kvf")));
        ASSERT_TRUE(main_.OpenProject(Path(u"a.kvf")));
    };
    write(u"7");
    EXPECT_EQ(settings::HTML_WIDTH(), 7);
    EXPECT_FALSE(settings::HTML_play());
    EXPECT_FALSE(FileExists(Path(u"app.ini")));
    main_.blRecentFiles(true);
    write(u"8");
    Bytes kept;
    EXPECT_TRUE(ReadFileBytes(Path(u"app.ini"), kept));
    EXPECT_NE(DecodeAnsi(kept).find(u"WIDTH=8"), String::npos);
}

TEST_F(ProjectCommands, a_frame_stands_for_a_file_that_cannot_be_had) {
    const String text =
        u"KVF,0,9,0\r\n1,1,1,8\r\n2\r\n1,gone.bmp,画像,,,,True,1,2,3,True,BL,50,True,80\r\n"
        u"2,gone.svg,ﾍﾞｸﾀ,,,,False\r\n0\r\n0\r\n";
    ASSERT_TRUE(WriteFileBytes(EncodeAnsi(text), Path(u"a.kvf")));
    interface_.Answers = {Answer::Yes, Answer::Yes};
    ASSERT_TRUE(main_.OpenProject(Path(u"a.kvf")));
    const auto& picture = *(*main_.colSymbol())(1)->Property<clsPropertyBmp>();
    EXPECT_EQ(picture.Width, 32);
    const Bytes pixels = mdlZlib::ZlibUncompress(picture.bufBmp, 32 * 32 * 4).value_or(Bytes());
    ASSERT_EQ(pixels.size(), 32u * 32 * 4);
    // Alpha, red, green, blue: the corner and what it frames.
    EXPECT_EQ(Bytes(pixels.begin(), pixels.begin() + 4), (Bytes{255, 128, 128, 128}));
    EXPECT_EQ(pixels[33 * 4], 0);
    const auto& drawing = *(*main_.colSymbol())(2)->Property<clsPropertyVector>();
    EXPECT_EQ(drawing.height, 32);
    EXPECT_EQ(drawing.ShapeCount(), 1);
}

TEST_F(ProjectCommands, recent_files_move_to_the_front_without_case) {
    Paint(1);
    EXPECT_TRUE(main_.mnuSaveNew(Path(u"a.kvf")));
    EXPECT_TRUE(mdlPrivateProfile::RecentFile().empty());
    main_.blRecentFiles(true);
    main_.mnuSaveNew(Path(u"b.kvf"));
    main_.mnuSaveNew(Path(u"a.kvf"));
    main_.mnuSaveNew(Path(u"B.kvf"));
    EXPECT_EQ(mdlPrivateProfile::RecentFile(),
              (std::vector<String>{Path(u"B.kvf"), Path(u"a.kvf")}));
}

}  // namespace
}  // namespace tamber
