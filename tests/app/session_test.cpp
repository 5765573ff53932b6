#include <fstream>
#include <iterator>
#include <random>

#include "app/fields/KeyFrameFields.h"
#include "app/fields/ProjectInfo.h"
#include "app/settings/mdlPrivateProfile.h"
#include "document/edit/SymbolReferences.h"
#include "document/records/SymbolContents.h"
#include "document/records/SymbolTimeline.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/symbols/SymbolIds.h"
#include "platform/text.h"
#include "tests/support/ControllerTest.h"
#include "tests/support/TimelineText.h"

namespace tamber {
namespace {

/// Rows below a folder by its own count; 0 for other rows.
Long Below(const clsLayer& layer) {
    return layer.Folder() != nullptr ? layer.Folder()->LayerCount : 0;
}
Long Below(const clsSymbolData& symbol) {
    const auto* folder = symbol.Property<clsPropertySymbolFolder>();
    return folder != nullptr ? folder->LayerCount : 0;
}

/// Each row stands in the innermost folder whose count reaches it.
template <class Row>
std::string FolderFault(const Collection<Row>& rows) {
    std::vector<std::pair<std::shared_ptr<Row>, Long>> open;
    for (Long i = 1; i <= rows.Count(); ++i) {
        while (!open.empty() && open.back().second < i) open.pop_back();
        const auto folder = open.empty() ? nullptr : open.back().first;
        if (rows(i)->ParentFolder() != folder) return "folder of row " + std::to_string(i);
        if (const Long below = Below(*rows(i)); below > 0) open.emplace_back(rows(i), i + below);
        if (!open.empty() && open.back().second > rows.Count()) return "count of a folder";
    }
    return {};
}

/// The first line in which two texts differ, with the line of the other; empty when they agree.
std::string Difference(const std::string& one, const std::string& other) {
    std::istringstream ones(one);
    std::istringstream others(other);
    std::string line;
    std::string otherLine;
    for (int number = 1; std::getline(ones, line); ++number) {
        if (!std::getline(others, otherLine)) otherLine = "nothing";
        if (line != otherLine) return std::to_string(number) + ": " + line + " / " + otherLine;
    }
    return std::getline(others, otherLine) ? "nothing / " + otherLine : "";
}

class ModelCheck {
public:
    explicit ModelCheck(const frmMain& controller) : library_(*controller.colSymbol()) {
        fault_ = FolderFault(library_);
        for (Long i = 1; i <= library_.Count(); ++i) CheckSymbol(i);
        CheckTimeline(*controller.colMainLayer(), "main");
        const auto& main = *controller.colMainLayer();
        if (main.Empty() || main(main.Count())->SymbolData()->eType() != KindBackGround)
            fault_ = "the background is not the last row";
        for (const auto& symbol : library_)
            if (const auto layers = TimelineOf(*symbol))
                CheckTimeline(*layers, "symbol " + std::to_string(symbol->Index));
    }
    /// Empty when all is well.
    const std::string& Fault() const { return fault_; }

private:
    bool Holds(const clsSymbolData& symbol) const {
        return symbol.Index >= 1 && symbol.Index <= library_.Count() &&
               library_(symbol.Index).get() == &symbol;
    }
    void CheckSymbol(Long index) {
        const clsSymbolData& symbol = *library_(index);
        const std::string where = "symbol " + std::to_string(index);
        if (symbol.Index != index) fault_ = where + ": index";
        if (HasNumber(symbol) && (symbol.ID < 1 || !ids_.insert(symbol.ID).second))
            fault_ = where + ": number " + std::to_string(symbol.ID);
        for (const auto& other : ReferencesOf(symbol))
            if (other && IsOfLibrary(*other) && !Holds(*other)) fault_ = where + ": reference";
        const auto* sprite = symbol.Property<clsPropertySprite>();
        if (sprite != nullptr && sprite->CkHasLoop(symbol)) fault_ = where + ": shows itself";
    }
    static bool IsOfLibrary(const clsSymbolData& symbol) {
        const Long kind = symbol.eType();
        return kind != KindBackGround && kind != KindFrameLabel && kind != KindFrameAction &&
               kind != KindLayerFolder;
    }
    void CheckTimeline(const Collection<clsLayer>& layers, const std::string& where) {
        if (const std::string fault = FolderFault(layers); !fault.empty())
            fault_ = where + ": " + fault;
        for (const auto& layer : layers) {
            if (layer->ObjectCount() == 0) fault_ = where + ": a layer without a key frame";
            if (layer->SelectIndex < 1 || layer->SelectIndex > layer->ObjectCount())
                fault_ = where + ": selected key frame";
            if (IsOfLibrary(*layer->SymbolData()) && !Holds(*layer->SymbolData()))
                fault_ = where + ": a layer of a symbol that is gone";
            for (Long i = 1; i <= layer->ObjectCount(); ++i) {
                const clsLayerObject& object = *layer->Object(i);
                if (object.SymbolType() != layer->SymbolData()->eTypeEx())
                    fault_ = where + ": a key frame of another kind";
                if (i > 1 && object.StartFrame() <= layer->Object(i - 1)->endFrame())
                    fault_ = where + ": key frames overlap, " + Spans(*layer);
            }
        }
    }

    const Collection<clsSymbolData>& library_;
    std::set<Long> ids_;
    std::string fault_;
};

class Session : public ControllerTest {
protected:
    void AddSprite(StringView name) {
        ASSERT_TRUE(main_.mnuAddSymbolItem_Sprite([name](clsSymbolData& symbol) {
            symbol.Property<clsPropertySprite>()->SpriteName = name;
            return true;
        }));
    }
    void Place(Long symbol, Long row) {
        main_.SelectSymbols(symbol, symbol);
        main_.AddToLayer(row, false, false);
    }
    bool Set(StringView field, StringView value) {
        return main_.ChangeKeyFrame(
            field, [&](clsLayerObject& object) { return SetKeyFrameField(object, field, value); });
    }
    std::string State() const { return ProjectInfoJson(main_.inProject()); }
    void UndoAll() {
        while (main_.CanUndo()) main_.mnuUndoRedo(0);
    }
    void RedoAll() {
        while (main_.CanRedo()) main_.mnuUndoRedo(1);
    }
};

TEST_F(Session, builds_animates_undoes_saves_and_opens) {
    AddSprite(u"車");
    AddSprite(u"輪");
    Place(1, 1);
    main_.SelectFrames(20, 20);
    main_.mnuAddKeyFrame();
    EXPECT_TRUE(Set(u"X", u"200"));
    main_.SelectFrames(1, 1);
    main_.chkTween(true);
    const std::string beforeSprite = State();
    main_.ChangeSprite(1);
    Place(2, 1);
    main_.mnuCopyLayer();
    main_.mnuPasteLayer();
    EXPECT_TRUE(Set(u"X", u"60"));
    main_.ChangeSprite(frmMain::EditMain);
    main_.SelectFrames(1, 20);
    main_.mnuCopyKeyFrames();
    main_.SelectFrames(21, 21);
    main_.mnuPasteKeyFrames();
    EXPECT_EQ(Spans(Row(1)), "1-19T 20-20 21-39T 40-40");
    const std::string last = State();
    for (int i = 0; i < 4; ++i) main_.mnuUndoRedo(0);
    EXPECT_EQ(Difference(State(), beforeSprite), "");
    UndoAll();
    EXPECT_EQ(main_.colMainLayer()->Count(), 1);
    RedoAll();
    EXPECT_EQ(Difference(State(), last), "");
    EXPECT_EQ(ModelCheck(main_).Fault(), "");
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"a.kvfz")));
    EXPECT_FALSE(main_.HasUnsavedWork());
    ASSERT_TRUE(main_.OpenProject(Path(u"a.kvfz")));
    EXPECT_EQ(Difference(State(), last), "");
}

/// Commands drawn by lot, undo and redo among them.
class RandomWalk {
public:
    RandomWalk(frmMain& controller, StringView importPath, unsigned seed)
        : main_(controller), importPath_(importPath), random_(seed) {}

    void Step() {
        using Command = void (RandomWalk::*)();
        static constexpr Command Commands[]{
            &RandomWalk::Frames, &RandomWalk::Frames, &RandomWalk::Frames,  &RandomWalk::Rows,
            &RandomWalk::Rows,   &RandomWalk::Flags,  &RandomWalk::Place,   &RandomWalk::Place,
            &RandomWalk::Select, &RandomWalk::Select, &RandomWalk::Library, &RandomWalk::Switch,
            &RandomWalk::History};
        (this->*Commands[Below(std::size(Commands))])();
    }

private:
    std::size_t Below(std::size_t count) { return random_() % count; }
    Long UpTo(Long most) { return static_cast<Long>(random_() % static_cast<unsigned>(most + 2)); }

    void Frames() {
        using Command = void (frmMain::*)();
        static constexpr Command Commands[]{
            &frmMain::mnuCopyKeyFrames,   &frmMain::mnuCutKeyFrames,
            &frmMain::mnuPasteKeyFrames,  &frmMain::mnuOverWriteKeyFrames,
            &frmMain::mnuInsertKeyFrames, &frmMain::mnuRemoveKeyFrames,
            &frmMain::mnuAddKeyFrame,     &frmMain::mnuAddKeyFrame,
            &frmMain::mnuShiftLeft,       &frmMain::mnuShiftRight,
            &frmMain::mnuShiftLeftAll,    &frmMain::mnuShiftRightAll};
        main_.SelectFrames(UpTo(30), UpTo(30));
        (main_.*Commands[Below(std::size(Commands))])();
    }
    void Rows() {
        // Pasted folders would grow without end.
        if (main_.colEditLayer()->Count() > 25) {
            main_.ChangeSelectIndex(1, 20);
            return main_.mnuRemoveLayer();
        }
        using Command = void (frmMain::*)();
        static constexpr Command Commands[]{&frmMain::mnuCopyLayer,
                                            &frmMain::mnuPasteLayer,
                                            &frmMain::mnuCutLayer,
                                            &frmMain::mnuRemoveLayer,
                                            &frmMain::mnuAddLayer_FrameLabel,
                                            &frmMain::mnuAddLayer_FrameAction};
        if (Below(6) == 0)
            main_.mnuAddLayer_Folder(u"箱");
        else if (Below(6) == 0)
            main_.ChangeLayerSymbol(UpTo(main_.colSymbol()->Count()));
        else
            (main_.*Commands[Below(std::size(Commands))])();
    }
    void Flags() {
        switch (Below(5)) {
            case 0:
                return main_.chkFixed(Below(2) == 0);
            case 1:
                return main_.chkTween(Below(2) == 0);
            case 2:
                return main_.cmdCopyLObject(static_cast<Long>(Below(2)));
            case 3:
                main_.ChangeStartFrame(UpTo(30));
                return;
            default:
                main_.ChangeKeyFrame(u"X", [this](clsLayerObject& object) {
                    return SetKeyFrameField(object, u"X", ToText(UpTo(300)));
                });
        }
    }
    void Place() {
        main_.SelectSymbols(UpTo(main_.colSymbol()->Count()), UpTo(main_.colSymbol()->Count()));
        main_.AddToLayer(UpTo(main_.colEditLayer()->Count()), Below(2) == 0, Below(2) == 0);
    }
    void Select() { main_.ChangeSelectIndex(UpTo(8), UpTo(8)); }
    void Library() {
        const Long count = main_.colSymbol()->Count();
        const auto accept = [](clsSymbolData&) { return true; };
        main_.SelectSymbols(UpTo(count), UpTo(count));
        switch (Below(count > 30 ? 4 : 10)) {
            case 0:
                main_.SelectSymbols(main_.SelSymbol1(), main_.SelSymbol1());
                return main_.mnuRemoveSymbolItem();
            case 1:
                main_.MoveSymbols(UpTo(count), UpTo(count), UpTo(count), Below(2) == 0,
                                  Below(2) == 0);
                return;
            case 2:
                return main_.mnuSortSymbolType(Below(2) == 0);
            case 3:
                main_.mnuSymbolIDEdit([this](SymbolIdEdit& edit) {
                    edit.blRenumber = true;
                    edit.Value = UpTo(20);
                    return true;
                });
                return;
            case 4:
                main_.mnuAddSymbolItem_Folder(u"箱");
                return;
            case 5:
                main_.mnuAddSymbolItem_Button([this](clsSymbolData& symbol) {
                    symbol.Property<clsPropertyButton>()->UpSymbol(Any(KindSprite));
                    return Any(KindSprite) != nullptr;
                });
                return;
            case 6:
                main_.mnuAddSymbolItem_Koma([this](clsSymbolData& symbol) {
                    auto& koma = *symbol.Property<clsPropertyKoma>();
                    const auto picture = Any(KindSprite);
                    if (picture) koma.colKomas->Add(picture);
                    koma.SetSize();
                    return picture != nullptr;
                });
                return;
            case 7:
                if (count < 10)
                    main_.mnuKVFImport(importPath_,
                                       [](const Project&, ImportOptions&) { return true; });
                return;
            default:
                main_.mnuAddSymbolItem_Sprite(accept);
        }
    }
    std::shared_ptr<clsSymbolData> Any(Long kind) const {
        for (const auto& symbol : *main_.colSymbol())
            if (symbol->eType() == kind) return symbol;
        return nullptr;
    }
    void Switch() {
        const Long index = UpTo(main_.colSymbol()->Count());
        main_.ChangeSprite(index == 0 ? frmMain::EditMain : index);
    }
    void History() { main_.mnuUndoRedo(Below(3) == 0 ? 1 : 0); }

    frmMain& main_;
    String importPath_;
    std::mt19937 random_;
};

class Walk : public Session, public testing::WithParamInterface<std::tuple<bool, unsigned>> {
protected:
    void SetUp() override {
        std::string folder = (std::filesystem::temp_directory_path() / "walkXXXXXX").string();
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        std::ofstream(folder + "/app.ini")
            << "[Setting]\r\nUndoRedoMaxCount=100000\r\nUndoRedoType="
            << (std::get<0>(GetParam()) ? "All" : "Sprite") << "\r\n";
        settings_ = ProgramFolder();
        ProgramFolder(FromNarrow(folder));
        main_.Form_Load();
        folder_ = FromNarrow(folder);
        program_ = settings_;
    }
    /// All timelines as they are, without the library.
    std::string MainRows() const {
        std::string text;
        for (const auto& layer : *main_.colMainLayer()) text += Spans(*layer) + "|";
        return text;
    }

    String settings_;
};

TEST_P(Walk, keeps_the_model_sound_and_leads_back_to_the_first_state) {
    AddSprite(u"一");
    AddSprite(u"二");
    Place(1, 1);
    const std::vector sprites{(*main_.colSymbol())(1), (*main_.colSymbol())(2)};
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"other.kvf")));
    RandomWalk walk(main_, Path(u"other.kvf"), std::get<1>(GetParam()));
    for (int step = 1; step <= 2500; ++step) {
        walk.Step();
        const ModelCheck check(main_);
        ASSERT_EQ(check.Fault(), "") << "after step " << step;
    }
    interface_.Messages.clear();
    ASSERT_TRUE(main_.mnuSaveNew(Path(u"end.kvf")));
    const std::string saved = State();
    {
        frmMain other;
        other.Form_Load();
        ASSERT_TRUE(other.OpenProject(Path(u"end.kvf"))) << ToNarrow(interface_.Messages[0].Text);
        EXPECT_EQ(Difference(ProjectInfoJson(other.inProject()), saved), "");
    }
    RedoAll();
    main_.ChangeSprite(frmMain::EditMain);
    UndoAll();
    EXPECT_EQ(ModelCheck(main_).Fault(), "");
    EXPECT_EQ(MainRows(), "1-1F|");
    // Both sprites began empty. A history of all leads there by itself.
    for (const auto& sprite : sprites) {
        const auto& library = *main_.colSymbol();
        const bool inLibrary = std::find(library.begin(), library.end(), sprite) != library.end();
        if (!inLibrary) continue;
        if (!std::get<0>(GetParam())) {
            main_.ChangeSprite(sprite->Index);
            UndoAll();
        }
        EXPECT_TRUE(sprite->Property<clsPropertySprite>()->colLayer->Empty());
    }
}

INSTANTIATE_TEST_SUITE_P(Histories, Walk, testing::Combine(testing::Bool(), testing::Range(1u, 5u)),
                         [](const auto& walk) {
                             return (std::get<0>(walk.param) ? std::string("OfAll")
                                                             : std::string("OfEach")) +
                                    std::to_string(std::get<1>(walk.param));
                         });

}  // namespace
}  // namespace tamber
