#include <functional>
#include <set>

#include "app/commands/CommandTable.h"
#include "app/fields/SymbolFields.h"
#include "app/operations/AssetReader.h"
#include "app/session/Transaction.h"
#include "app/settings/mdlPrivateProfile.h"
#include "app/tasks/Task.h"
#include "document/elements/clsLayerObjElement.h"
#include "platform/RuntimeError.h"
#include "tests/support/ControllerTest.h"

namespace tamber {
namespace {

bool Accept(clsSymbolData&) {
    return true;
}

bool MoveTo(clsLayerObject& object, Single x) {
    object.Placement()->X(x);
    return true;
}

/// A sprite, placed on a row before the background; another one beside it.
class Changes : public ControllerTest {
protected:
    void SetUp() override {
        ControllerTest::SetUp();
        main_.mnuAddSymbolItem_Sprite(Accept);
        main_.mnuAddSymbolItem_Sprite(Accept);
        main_.SelectSymbols(1, 1);
        main_.AddToLayer(1, false, false);
        ASSERT_TRUE(main_.mnuSaveNew(Path(u"a.kvf")));
        watcher_.Told.clear();
    }

    Single X() const { return Row(1).Object(1)->Placement()->X(); }
};

TEST_F(Changes, each_command_tells_once_what_it_changed) {
    constexpr SessionChange Frames = Change::KeyFrames | Change::Selection;
    constexpr SessionChange Step = Change::History | Change::Saved;
    constexpr SessionChange Shown = Change::Rows | Frames;
    constexpr SessionChange Library = Change::LibraryRows | Change::Selection;
    const struct {
        const char* What;
        std::function<void()> Do;
        SessionChange Told;
    } cases[]{
        {"copied frames", [&] { main_.mnuCopyKeyFrames(); }, Change::Clipboard},
        {"copied rows", [&] { main_.mnuCopyLayer(); }, Change::Clipboard},
        {"rows in front", [&] { main_.chkVisibleForwardLayer(false); }, Change::Selection},
        {"rows behind", [&] { main_.chkVisibleBackLayer(false); }, Change::Selection},
        {"frames", [&] { main_.SelectFrames(3, 4); }, Change::Selection},
        {"rows", [&] { main_.ChangeSelectIndex(1, 2); }, Change::Selection},
        {"symbols", [&] { main_.SelectSymbols(2, 2); }, Change::Selection},
        {"key frame", [&] { main_.mnuAddKeyFrame(); }, Frames | Step},
        {"the same again", [&] { main_.mnuAddKeyFrame(); }, {}},
        {"undo", [&] { main_.mnuUndoRedo(0); }, Shown | Step},
        {"redo", [&] { main_.mnuUndoRedo(1); }, Shown | Step},
        {"paste", [&] { main_.mnuPasteKeyFrames(); }, Frames | Change::History},
        {"shift", [&] { main_.mnuShiftRightAll(); },
         Change::Rows | Change::KeyFrames | Change::History},
        {"row", [&] { main_.mnuAddLayer_FrameLabel(); },
         Change::Rows | Change::Selection | Change::History},
        {"row's values",
         [&] {
             main_.ChangeLayer({}, [](clsLayer& row) { return !(row.LayerName = u"空").empty(); });
         },
         Change::Rows | Change::KeyFrames | Change::History},
        {"save", [&] { main_.mnuSave(); }, Change::Saved},
        {"another name", [&] { main_.mnuSaveNew(Path(u"b.kvf")); }, Change::Name | Change::Saved},
        {"stage", [&] { main_.mnuPrjProperty(99, 99, 24, 6); },
         Change::Stage | Change::Context | Change::Saved},
        {"symbol added", [&] { main_.mnuAddSymbolItem_Folder(u"棚"); }, Library},
        {"symbol changed", [&] { main_.ChangeSymbol(Accept); }, Library | Change::Symbol},
        {"files read again", [&] { main_.mnuSymbolReLoad(); }, Change::Symbol},
        {"timeline", [&] { main_.ChangeSprite(1); }, Shown | Change::Context | Change::History},
        {"drawn again", [&] { main_.DispDataTbl(); }, Change::Rows},
        {"timeline drawn again", [&] { main_.DispEditTimeLine(); }, Change::KeyFrames},
        {"frame shown again", [&] { main_.ShowEditFrame(); }, Change::KeyFrames},
        {"list drawn again", [&] { main_.RefreshFgrdSymbol(); }, Library},
    };
    for (const auto& test : cases) {
        test.Do();
        EXPECT_LE(watcher_.Told.size(), 1u) << test.What;
        EXPECT_EQ(watcher_.Take(), test.Told) << test.What;
    }
    interface_.Answers = {Answer::No};
    EXPECT_TRUE(main_.mnuNew());
    EXPECT_EQ(watcher_.Told.size(), 1u);
    EXPECT_TRUE(watcher_.Take().Has(Change::Project));
}

TEST_F(Changes, a_change_that_is_refused_or_throws_leaves_nothing_behind) {
    main_.ChangeSelectIndex(1, 1);
    main_.ChangeKeyFrame({}, [](clsLayerObject& object) { return MoveTo(object, 7); });
    watcher_.Take();
    const auto refuse = [](clsLayerObject& object) { return MoveTo(object, 8) && false; };
    const auto fail = [](clsLayerObject& object) -> bool {
        MoveTo(object, 9);
        throw RuntimeError(ErrorOutOfRange, u"", u"");
    };
    EXPECT_FALSE(main_.ChangeKeyFrame({}, refuse));
    EXPECT_THROW(main_.ChangeKeyFrame({}, fail), RuntimeError);
    EXPECT_FALSE(main_.ChangeLayer({}, [](clsLayer& row) {
        row.LayerName = u"空";
        return false;
    }));
    const auto rename = [](clsSymbolData& symbol) {
        return SetSymbolField(symbol, u"SpriteName", u"空") &&
               SetSymbolField(symbol, u"ObjectName", u"空");
    };
    EXPECT_FALSE(main_.ChangeSymbol([&](clsSymbolData& s) { return rename(s) && false; }));
    EXPECT_THROW(main_.ChangeSymbol([&](clsSymbolData& s) -> bool {
        rename(s);
        throw RuntimeError(ErrorOutOfRange, u"", u"");
    }),
                 RuntimeError);
    EXPECT_NE((*main_.colSymbol())(1)->Value(), u"空");
    EXPECT_EQ((*main_.colSymbol())(1)->ObjectName, u"");
    EXPECT_EQ(X(), 7);
    EXPECT_EQ(Row(1).LayerName, u"");
    EXPECT_TRUE(watcher_.Take().Empty());
    main_.mnuUndoRedo(0);
    EXPECT_EQ(X(), 0);
    EXPECT_FALSE(main_.Running());
}

TEST(TransactionTest, takes_a_timeline_back_that_was_changed_by_half) {
    Session session(std::make_unique<AssetReader>());
    ProjectOperations(session).Begin();
    const auto layers = session.colEditLayer();
    const auto fail = [&](Collection<clsLayer>& rows) -> bool {
        rows(1)->Object(1)->DispCount(9);
        rows.Add(std::make_shared<clsLayer>());
        session.SelectRows(2, 2);
        throw RuntimeError(ErrorOutOfRange, u"", u"");
    };
    EXPECT_THROW(ChangeTimeline(session, Change::Rows, fail), RuntimeError);
    ASSERT_EQ(layers->Count(), 1);
    EXPECT_EQ((*layers)(1)->Object(1)->DispCount(), 1);
    EXPECT_EQ(session.inSelection.Row1, 1);
    EXPECT_EQ(session.colEditLayer(), layers);
    EXPECT_FALSE(session.HasUnsavedWork());
}

TEST_F(Changes, the_sprite_whose_timeline_is_edited_can_be_removed) {
    main_.ChangeSprite(1);
    main_.SelectSymbols(1, 2);
    watcher_.Take();
    main_.mnuRemoveSymbolItem();
    EXPECT_EQ(main_.editIndex(), frmMain::EditMain);
    EXPECT_EQ(main_.colEditLayer(), main_.colMainLayer());
    EXPECT_TRUE(main_.colSymbol()->Empty());
    EXPECT_TRUE(watcher_.Take().Has(Change::Context));
    main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.colMainLayer()->Count(), 2);
    EXPECT_EQ(main_.colSymbol()->Count(), 1);
}

TEST_F(Changes, which_histories_there_are_is_decided_once_for_a_project) {
    main_.ChangeSprite(1);
    main_.mnuAddLayer_FrameLabel();
    EXPECT_TRUE(mdlPrivateProfile::UndoRedoType(false));
    EXPECT_TRUE(main_.IsProjectChanged());
    EXPECT_FALSE(main_.mnuNew());
    EXPECT_EQ(interface_.Questions.size(), 1u);
    // One history leads back to the timeline before.
    main_.mnuUndoRedo(0);
    EXPECT_EQ(main_.editIndex(), frmMain::EditMain);
}

TEST_F(Changes, a_key_frame_that_the_cursor_missed_is_known) {
    const auto missed = [this] { return main_.inSession().IsPassedOver(); };
    main_.ChangeSelectIndex(1, 1);
    EXPECT_FALSE(missed());
    main_.SelectFrames(40, 40);
    EXPECT_TRUE(missed());
    EXPECT_TRUE(main_.ChangeKeyFrame({}, [](clsLayerObject& key) { return MoveTo(key, 3); }));
    EXPECT_EQ(X(), 3);
    EXPECT_TRUE(missed());
    main_.mnuAddKeyFrame();
    EXPECT_FALSE(missed());
}

/// Gives commands while another tells its progress.
class Impatient : public RecordingUserInterface {
public:
    explicit Impatient(frmMain& controller) : controller_(controller) {}
    bool Refused = true;
    void Progress(StringView, Long, Long) override {
        CommandContext context{controller_};
        const bool isBusy =
            RunCommand(*FindCommand(u"mnuNew"), context, {}) == CommandOutcome::Busy;
        Refused = Refused && isBusy && !controller_.mnuNew();
        controller_.mnuRemoveLayer();
    }

private:
    frmMain& controller_;
};

TEST_F(Changes, a_command_is_refused_while_another_runs) {
    Impatient impatient(main_);
    const UserInterfaceScope scope(impatient);
    EXPECT_TRUE(main_.mnuAuthoring(Path(u"a.swf")));
    EXPECT_TRUE(impatient.Refused);
    EXPECT_FALSE(impatient.StatusLines.empty());
    EXPECT_EQ(main_.colMainLayer()->Count(), 2);
    EXPECT_TRUE(main_.OpenProject(Path(u"a.kvf")));
    EXPECT_TRUE(impatient.Refused);
    EXPECT_EQ(main_.ProjectFileName(), Path(u"a.kvf"));
    EXPECT_TRUE(main_.mnuNew());
}

TEST_F(Changes, a_path_handed_over_is_opened_but_for_a_dialog) {
    EXPECT_TRUE(main_.mnuNew());
    main_.blShowModal(true);
    main_.HandOver(u"\"" + Path(u"a.kvf") + u"\"");
    EXPECT_EQ(main_.ProjectFileName(), u"");
    main_.blShowModal(false);
    main_.HandOver(u"\"" + Path(u"a.kvf") + u"\"");
    EXPECT_EQ(main_.ProjectFileName(), Path(u"a.kvf"));
}

TEST_F(Changes, entries_tell_whether_they_can_be_done_and_are_checked) {
    const auto entry = [](StringView name, std::size_t index = 0) {
        return FindCommand(name)->Entries[index];
    };
    EXPECT_FALSE(entry(u"mnuPasteKeyFrames").IsEnabled(main_));
    main_.ChangeSelectIndex(1, 1);
    main_.mnuCopyKeyFrames();
    EXPECT_TRUE(entry(u"mnuPasteKeyFrames").IsEnabled(main_));
    EXPECT_FALSE(entry(u"chkTween").IsChecked(main_));
    main_.chkTween(true);
    EXPECT_TRUE(entry(u"chkTween").IsChecked(main_));
    EXPECT_TRUE(entry(u"mnuUndoRedo").IsEnabled(main_));
    EXPECT_FALSE(entry(u"mnuUndoRedo", 1).IsEnabled(main_));
    main_.ChangeSelectIndex(2, 2);
    EXPECT_FALSE(entry(u"mnuAddKeyFrame").IsEnabled(main_));
    EXPECT_TRUE(entry(u"chkFixed").IsChecked(main_));
    std::set<StringView> keys;
    for (const Command* command : CommandTable())
        for (const CommandEntry& known : command->Entries)
            EXPECT_TRUE(known.Key.empty() || keys.insert(known.Key).second) << ToNarrow(known.Key);
}

/// Wants work to end once it has told its progress.
class Hasty : public RecordingUserInterface {
public:
    void Progress(StringView, Long, Long) override { ended_ = true; }
    bool Idle() override { return !ended_; }

private:
    bool ended_ = false;
};

TEST(TaskTest, says_and_asks_in_the_order_of_its_work) {
    RecordingUserInterface interface;
    const UserInterfaceScope scope(interface);
    interface.Answers = {Answer::Yes};
    interface.Paths = {u"chosen"};
    const auto result = RunTask([] {
        ShowMessage(u"一", u"題");
        CurrentUserInterface().Status(u"二");
        const bool asked = CurrentUserInterface().AskToSkip(u"三");
        return CurrentUserInterface().OpenFileDialog({}) + (asked ? u"!" : u"");
    });
    EXPECT_EQ(result, u"chosen!");
    ASSERT_EQ(interface.Messages.size(), 1u);
    EXPECT_EQ(interface.Messages[0].Title, u"題");
    EXPECT_EQ(interface.StatusLines, (std::vector<String>{u"二"}));
    ASSERT_EQ(interface.Questions.size(), 1u);
    EXPECT_EQ(interface.Questions[0].Text, u"三");
    EXPECT_THROW(RunTask([]() -> int { throw RuntimeError(ErrorOutOfRange, u"", u""); }),
                 RuntimeError);
}

TEST(TaskTest, ends_where_it_tells_its_progress_or_asks_once_nobody_waits) {
    Hasty interface;
    const UserInterfaceScope scope(interface);
    const auto endless = RunTask([]() -> int {
        for (;;) CurrentUserInterface().Progress(u"", 1, 2);
    });
    EXPECT_EQ(endless, std::nullopt);
    std::atomic<bool> answered = false;
    {
        const Task<int> asking([&answered] {
            CurrentUserInterface().AskToSkip(u"?");
            answered = true;
            return 0;
        });
    }
    EXPECT_FALSE(answered);
    EXPECT_TRUE(interface.Questions.empty());
}

}  // namespace
}  // namespace tamber
