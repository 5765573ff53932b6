#include <gtest/gtest.h>

#include "document/elements/clsLayerObjElement.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyVector.h"
#include "document/edit/clsUndoRedo.h"

namespace tamber {
namespace {

class History : public testing::Test {
protected:
    History() {
        symbol_ = AddSymbol(KindBitmap);
        for (int i = 0; i < 3; ++i) AddLayer(symbol_);
        history_.OnUndo = [this](bool enabled) { undo_ = enabled; };
        history_.OnRedo = [this](bool enabled) { redo_ = enabled; };
        history_.Init({}, *layers_);
    }

    std::shared_ptr<clsSymbolData> AddSymbol(Long kind) {
        auto symbol = std::make_shared<clsSymbolData>(kind);
        symbol->ID = symbol->Index = library_.Count() + 1;
        library_.Add(symbol);
        return symbol;
    }
    void AddLayer(const std::shared_ptr<clsSymbolData>& symbol) {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(symbol);
        Long index = 0;
        for (Long frame = 1; frame <= 3; ++frame) layer->Add(frame, nullptr, index);
        layers_->Add(layer);
    }
    clsLayerObjElement& Placement(Long row, Long keyFrame) {
        return *(*layers_)(row)->Object(keyFrame)->Placement();
    }
    static clsUndoRedoData At(std::shared_ptr<clsSymbolData> sprite, Long row, Long keyFrame) {
        clsUndoRedoData data;
        data.inSprite = std::move(sprite);
        data.Row = row;
        data.KeyFrame = keyFrame;
        return data;
    }
    /// Moves a key frame and records it.
    void Move(Long row, Long keyFrame, Single x, bool merge = false) {
        Placement(row, keyFrame).X(x);
        history_.Change(At({}, row, keyFrame), *layers_, merge);
    }
    Single X(Long row, Long keyFrame) { return Placement(row, keyFrame).X(); }
    bool Undo() { return Take(history_.Undo(library_)); }
    bool Redo() { return Take(history_.Redo(library_)); }
    bool Take(std::optional<clsUndoRedo::Restored> restored) {
        if (!restored) return false;
        layers_ = restored->colEditLayer;
        row_ = restored->Row;
        keyFrame_ = restored->KeyFrame;
        return true;
    }

    Collection<clsSymbolData> library_;
    std::shared_ptr<clsSymbolData> symbol_;
    std::shared_ptr<Collection<clsLayer>> layers_ = std::make_shared<Collection<clsLayer>>();
    clsUndoRedo history_;
    Long row_ = 0;
    Long keyFrame_ = 0;
    bool undo_ = true;
    bool redo_ = true;
};

TEST_F(History, goes_back_to_the_start_and_on_to_the_end) {
    EXPECT_FALSE(undo_);
    EXPECT_EQ(history_.TotalHistory, 0);
    Move(1, 2, 10);
    Move(2, 3, 20);
    EXPECT_TRUE(undo_);
    EXPECT_TRUE(Undo());
    EXPECT_EQ(X(2, 3), 0);
    EXPECT_EQ(X(1, 2), 10);
    EXPECT_EQ(row_, 2);
    EXPECT_EQ(keyFrame_, 3);
    EXPECT_TRUE(redo_);
    EXPECT_TRUE(Undo());
    EXPECT_EQ(X(1, 2), 0);
    EXPECT_FALSE(undo_);
    EXPECT_FALSE(Undo());
    EXPECT_EQ(history_.TotalHistory, 0);
    EXPECT_TRUE(Redo());
    EXPECT_TRUE(Redo());
    EXPECT_FALSE(Redo());
    EXPECT_EQ(X(1, 2), 10);
    EXPECT_EQ(X(2, 3), 20);
    EXPECT_EQ(history_.TotalHistory, 2);
}

TEST_F(History, keeps_states_that_later_edits_do_not_reach) {
    Move(1, 1, 10);
    Move(1, 2, 20);
    Undo();
    // Edited without a step: the stored states stay.
    Placement(1, 1).X(99);
    Placement(3, 1).X(99);
    Redo();
    EXPECT_EQ(X(1, 1), 10);
    EXPECT_EQ(X(1, 2), 20);
    EXPECT_EQ(X(3, 1), 0);
    Undo();
    EXPECT_EQ(X(1, 1), 10);
    EXPECT_EQ(X(1, 2), 0);
}

TEST_F(History, a_new_step_drops_what_was_undone_and_a_merged_one_is_none) {
    Move(1, 1, 10);
    Move(1, 1, 20);
    Undo();
    Move(2, 1, 30);
    EXPECT_FALSE(redo_);
    EXPECT_FALSE(Redo());
    Move(2, 1, 40, true);
    EXPECT_EQ(history_.TotalHistory, 2);
    Undo();
    EXPECT_EQ(X(2, 1), 0);
    EXPECT_EQ(X(1, 1), 10);
    Redo();
    EXPECT_EQ(X(2, 1), 40);
}

TEST_F(History, has_at_most_so_many_steps) {
    history_.MaxHistory(2);
    for (int i = 1; i <= 5; ++i) Move(1, 1, static_cast<Single>(i));
    EXPECT_TRUE(Undo());
    EXPECT_TRUE(Undo());
    EXPECT_FALSE(Undo());
    EXPECT_EQ(X(1, 1), 3);
    Redo();
    Redo();
    history_.MaxHistory(1);
    EXPECT_TRUE(Undo());
    EXPECT_FALSE(Undo());
    EXPECT_EQ(X(1, 1), 4);
}

TEST_F(History, sees_what_comparisons_of_elements_leave_out) {
    const auto point = std::make_shared<clsTweenPointData>();
    Placement(1, 1).Addtp(point);
    history_.Change({}, *layers_, false);
    (*layers_)(2)->inScript.TargetPath = u"a";
    history_.Change({}, *layers_, false);
    (*layers_)(2)->ExpText(u"remark");
    history_.Change({}, *layers_, false);
    Undo();
    EXPECT_EQ((*layers_)(2)->ExpText(), u"1");
    EXPECT_EQ((*layers_)(2)->inScript.TargetPath, u"a");
    Undo();
    EXPECT_EQ((*layers_)(2)->inScript.TargetPath, u"");
    EXPECT_EQ(Placement(1, 1).tpCount(), 1);
    Undo();
    EXPECT_EQ(Placement(1, 1).tpCount(), 0);
}

TEST_F(History, follows_rows_that_come_go_and_change_places) {
    AddLayer(symbol_);
    history_.Change({}, *layers_, false);
    layers_->Remove(1);
    (*layers_)(1)->LayerName = u"was second";
    history_.Change({}, *layers_, false);
    const auto last = (*layers_)(3);
    layers_->Remove(3);
    layers_->Insert(last, 1);
    history_.Change({}, *layers_, false);
    EXPECT_EQ((*layers_)(2)->LayerName, u"was second");
    Undo();
    EXPECT_EQ((*layers_)(1)->LayerName, u"was second");
    Undo();
    EXPECT_EQ(layers_->Count(), 4);
    EXPECT_EQ((*layers_)(2)->LayerName, u"");
    Undo();
    EXPECT_EQ(layers_->Count(), 3);
}

TEST_F(History, of_all_timelines_leads_back_to_the_one_where_the_change_was) {
    const auto sprite = AddSymbol(KindSprite);
    auto& own = *sprite->Property<clsPropertySprite>()->colLayer;
    Move(1, 1, 10);
    // A switch to the sprite, then a change there.
    history_.SetUndoRedoData(At(sprite, 1, 1), own);
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(symbol_);
    own.Add(layer);
    history_.Change(At(sprite, 1, 1), own, false);
    auto restored = history_.Undo(library_);
    ASSERT_TRUE(restored);
    EXPECT_EQ(restored->inSprite, nullptr);
    EXPECT_EQ((*restored->colEditLayer)(1)->Object(1)->Placement()->X(), 10);
    // The change itself is undone as well.
    EXPECT_EQ(sprite->Property<clsPropertySprite>()->colLayer->Count(), 0);
    restored = history_.Redo(library_);
    ASSERT_TRUE(restored);
    EXPECT_EQ(restored->inSprite, sprite);
    EXPECT_EQ(sprite->Property<clsPropertySprite>()->colLayer->Count(), 1);
    EXPECT_EQ(sprite->Property<clsPropertySprite>()->colLayer, restored->colEditLayer);
}

TEST_F(History, a_change_of_the_main_timeline_is_undone_from_a_sprite_too) {
    const auto sprite = AddSymbol(KindSprite);
    auto& own = *sprite->Property<clsPropertySprite>()->colLayer;
    history_.SetUndoRedoData(At(sprite, 1, 1), own);
    history_.Change(At(sprite, 1, 1), own, false);
    history_.SetUndoRedoData({}, *layers_);
    Move(1, 1, 10);
    Move(1, 1, 20, true);
    const auto restored = history_.Undo(library_);
    ASSERT_TRUE(restored);
    EXPECT_EQ(restored->inSprite, sprite);
    ASSERT_TRUE(restored->colMainLayer);
    EXPECT_EQ((*restored->colMainLayer)(1)->Object(1)->Placement()->X(), 0);
    EXPECT_FALSE(history_.Undo(library_)->colMainLayer);
}

TEST_F(History, keeps_symbols_when_the_state_that_kept_them_is_dropped) {
    auto symbol = std::make_shared<clsSymbolData>(KindVector);
    const std::weak_ptr<clsSymbolData> watched = symbol;
    Move(1, 1, 10);
    history_.Keep(std::make_shared<RemovedSymbols>(1, symbol));
    symbol.reset();
    Undo();
    Move(1, 1, 20);
    EXPECT_FALSE(watched.expired());
    history_.Init({}, *layers_);
    EXPECT_TRUE(watched.expired());
}

TEST_F(History, a_pending_state_enters_before_a_change_of_another_timeline) {
    const auto sprite = AddSymbol(KindSprite);
    auto& own = *sprite->Property<clsPropertySprite>()->colLayer;
    history_.SetUndoRedoData(At(sprite, 1, 1), own);
    Move(1, 1, 10);
    EXPECT_EQ(history_.TotalHistory, 2);
    EXPECT_EQ(history_.Undo(library_)->inSprite, sprite);
    EXPECT_EQ(history_.Undo(library_)->inSprite, nullptr);
    EXPECT_FALSE(history_.Undo(library_));
}

TEST_F(History, brings_removed_symbols_back_with_what_they_refer_to) {
    const auto morph = AddSymbol(KindVector);
    auto drawing = AddSymbol(KindVector);
    drawing->Property<clsPropertyVector>()->MorphSymbol(morph);
    AddLayer(drawing);
    history_.Change({}, *layers_, false);
    const std::weak_ptr<clsSymbolData> watched = drawing;
    std::weak_ptr<clsSymbolData> watchedMorph;
    {
        auto gone = library_(2);
        watchedMorph = gone;
        for (const auto& symbol : {library_(3), gone}) {
            history_.Keep(std::make_shared<RemovedSymbols>(1, symbol));
            symbol->Index = 0;
        }
        library_.Remove(3);
        library_.Remove(2);
        layers_->Remove(4);
        history_.Change({}, *layers_, false);
    }
    drawing.reset();
    ASSERT_FALSE(watchedMorph.expired());
    ASSERT_TRUE(Undo());
    ASSERT_EQ(library_.Count(), 3);
    EXPECT_EQ(library_(2), watched.lock());
    EXPECT_EQ(library_(3), watchedMorph.lock());
    EXPECT_EQ((*layers_)(4)->SymbolData(), library_(2));
    EXPECT_EQ(library_(2)->Property<clsPropertyVector>()->MorphSymbol(), library_(3));
    // Nothing comes twice.
    Redo();
    Undo();
    EXPECT_EQ(library_.Count(), 3);
}

}  // namespace
}  // namespace tamber
