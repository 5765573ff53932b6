#include "app/settings/mdlPrivateProfile.h"
#include "document/elements/clsLayerObjElement.h"
#include "document/elements/clsObjBackGround.h"
#include "document/records/clsPropertyText.h"
#include "platform/files.h"
#include "tests/support/ControllerTest.h"
#include "tests/swf/MovieParser.h"

namespace tamber {
namespace {

/// The movie that the canvas shows. Three rows of one sprite, at 10, 20 and 30 pixels, stand before
/// the background.
class CanvasTest : public ControllerTest {
protected:
    void SetUp() override {
        ControllerTest::SetUp();
        sprite_ = AddSprite(50);
        for (int i = 0; i < 3; ++i) {
            main_.SelectSymbols(sprite_, sprite_);
            main_.AddToLayer(1, false, false);
        }
        for (Long row = 1; row <= 3; ++row)
            Row(row).Object(1)->Placement()->X(static_cast<Single>(row * 10));
    }

    /// Pixels of what the snapshot places, from the back.
    std::vector<Long> Shown(Long frame = 0) {
        EXPECT_TRUE(main_.ShowEditSWFBitmap(frame));
        std::vector<Long> places;
        for (const auto& place : test::Places(test::ParseMovie(main_.SnapshotPath())))
            places.push_back(place.Matrix.TranslateX / 20);
        EXPECT_EQ(places.size(), main_.SnapshotTags().size());
        return places;
    }

    Long sprite_ = 0;
};

TEST_F(CanvasTest, rows_before_and_behind_the_selected_one_are_shown_as_the_boxes_say) {
    main_.ChangeSelectIndex(2, 2);
    EXPECT_EQ(Shown(), (std::vector<Long>{10, 20, 30}));
    main_.chkVisibleForwardLayer(false);
    EXPECT_EQ(Shown(), (std::vector<Long>{20, 30}));
    main_.chkVisibleBackLayer(false);
    EXPECT_EQ(Shown(), (std::vector<Long>{20}));
    main_.chkVisibleForwardLayer(true);
    EXPECT_EQ(Shown(), (std::vector<Long>{10, 20}));
}

TEST_F(CanvasTest, the_frame_is_the_selected_key_frames_or_the_cursors) {
    Row(1).Object(1)->DispCount(4);
    main_.ChangeSelectIndex(1, 1);
    main_.SelectFrames(4, 4);
    Shown();
    EXPECT_EQ(main_.nPrevFrame(), 1);
    mdlPrivateProfile::flgCursorFrameDisp(true);
    EXPECT_EQ(Shown(), (std::vector<Long>{10}));
    EXPECT_EQ(main_.nPrevFrame(), 4);
    EXPECT_EQ(Shown(1), (std::vector<Long>{10, 20, 30}));
}

TEST_F(CanvasTest, the_movie_lies_beside_the_project_and_its_old_place_is_cleared) {
    EXPECT_EQ(Shown().size(), 3u);
    EXPECT_EQ(main_.SnapshotPath(), Path(u"_edit.swf"));
    ASSERT_TRUE(MakeFolders(Path(u"作品")));
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"作品/月.kvf")));
    Shown();
    EXPECT_EQ(main_.SnapshotPath(), Path(u"作品/_edit.swf"));
    EXPECT_FALSE(FileExists(Path(u"_edit.swf")));
    mdlPrivateProfile::flgPrevPrjPath(false);
    Shown();
    EXPECT_EQ(main_.SnapshotPath(), Path(u"_edit.swf"));
    main_.DeleteSnapshot();
    EXPECT_FALSE(FileExists(Path(u"_edit.swf")));
    EXPECT_FALSE(FileExists(Path(u"作品/_edit.swf")));
    EXPECT_TRUE(FileExists(Path(u"作品/月.kvf")));
}

TEST_F(CanvasTest, the_stage_and_a_sprite_have_their_own_size_and_colour) {
    Row(4).Object(1)->ObjectAs<clsObjBackGround>()->BackColor(0x332211);
    Shown();
    test::ParsedMovie movie = test::ParseMovie(main_.SnapshotPath());
    EXPECT_EQ(movie.Stage.xMax, main_.CanvasWidth() * 20);
    EXPECT_EQ(movie.Bodies(9)[0], (Bytes{0x11, 0x22, 0x33}));
    EXPECT_EQ(main_.CanvasColor(), 0x332211);

    auto& record = *(*main_.colSymbol())(sprite_)->Property<clsPropertySprite>();
    main_.ChangeSprite(sprite_);
    EXPECT_TRUE(main_.ShowEditSWFBitmap());
    EXPECT_EQ(main_.SnapshotPath(), u"");
    record.colLayer->Add((*main_.colMainLayer())(1)->CopyHead());
    EXPECT_EQ(Shown(), std::vector<Long>());
    movie = test::ParseMovie(main_.SnapshotPath());
    EXPECT_EQ(movie.Stage.xMax, 50 * 20);
    EXPECT_EQ(movie.Bodies(9)[0], (Bytes{0xFF, 0xFF, 0xFF}));
}

TEST_F(CanvasTest, a_movie_that_cannot_be_written_leaves_the_old_picture_and_says_nothing) {
    Shown();
    const String before = main_.SnapshotPath();
    ASSERT_TRUE(MakeFolders(Path(u"x/_edit.swf")));
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"x/y.kvf")));
    EXPECT_FALSE(main_.ShowEditSWFBitmap(9));
    EXPECT_EQ(main_.SnapshotPath(), before);
    EXPECT_TRUE(FileExists(before));
    EXPECT_EQ(main_.nPrevFrame(), 1);
    EXPECT_EQ(main_.SnapshotTags().size(), 3u);
    EXPECT_TRUE(interface_.Messages.empty());
}

TEST_F(CanvasTest, a_symbols_own_file_is_not_written_over) {
    ASSERT_TRUE(MakeFolders(Path(u"p")));
    ASSERT_TRUE(WriteFileBytes(Bytes{1, 2, 3}, Path(u"p/_edit.swf")));
    (*main_.colSymbol())(sprite_)->FilePathName = Path(u"p/_edit.swf");
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"p/a.kvf")));
    EXPECT_FALSE(main_.ShowEditSWFBitmap());
    EXPECT_EQ(main_.SnapshotPath(), u"");
    Bytes bytes;
    ASSERT_TRUE(ReadFileBytes(Path(u"p/_edit.swf"), bytes));
    EXPECT_EQ(bytes, (Bytes{1, 2, 3}));
}

TEST_F(CanvasTest, a_programs_folder_that_takes_no_files_has_the_users_in_its_place) {
    ProgramFolder(Path(u"none"));
    EXPECT_EQ(Shown().size(), 3u);
    EXPECT_EQ(main_.SnapshotPath(), Path(u"config/tamber/_edit.swf"));
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("HOME");
    EXPECT_FALSE(main_.ShowEditSWFBitmap());
    ProgramFolder(folder_);
}

TEST_F(CanvasTest, version_order_of_rows_and_fonts_are_those_of_the_movie) {
    auto text = std::make_shared<clsSymbolData>(KindText);
    text->Property<clsPropertyText>()->InitialText = u"月";
    main_.AddSymbol(text);
    main_.SelectSymbols(main_.colSymbol()->Count(), main_.colSymbol()->Count());
    main_.AddToLayer(1, false, false);
    ASSERT_TRUE(main_.mnuPrjProperty(100, 100, 12, 8));
    mdlPrivateProfile::flgTopToBottom(false);
    Shown();
    const test::ParsedMovie movie = test::ParseMovie(main_.SnapshotPath());
    EXPECT_EQ(movie.Header[3], 8);
    EXPECT_EQ(test::Places(movie).front().Depth, 257);
    EXPECT_EQ(movie.Bodies(48).size(), 1u);
}

}  // namespace
}  // namespace tamber
