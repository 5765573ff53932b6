#include <gtest/gtest.h>

#include "app/editors/BackgroundCheck.h"
#include "app/editors/ProjectScripts.h"
#include "app/editors/ReadProjectNames.h"
#include "app/editors/TargetTree.h"
#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/elements/clsObjFrameLabel.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertySprite.h"
#include "platform/codepage.h"

namespace tamber {
namespace {

/// A car with a wheel on the main timeline, an action and a label beside it, and a class.
class ScriptEditorsTest : public ::testing::Test {
protected:
    ScriptEditorsTest() {
        wheel_ = AddSymbol(KindSprite);
        car_ = AddSymbol(KindSprite);
        car_->ObjectName = u"car_link";
        car_->blExport = true;
        auto& inner = *car_->Property<clsPropertySprite>()->colLayer;
        AddRow(inner, wheel_, u"wheel");
        AddScript(inner, u"spin();\r\n\tSpin = 1;");
        AddRow(Main(), car_, u"car");
        AddRow(Main(), AddSymbol(KindBitmap), u"");
        AddScript(Main(), u"// spin\r\nplay();");
        const auto label = AddRow(Main(), std::make_shared<clsSymbolData>(KindFrameLabel), u"");
        label->Object(1)->ObjectAs<clsObjFrameLabel>()->LabelName = u"crash";
        const auto ball = AddSymbol(KindClass);
        auto& record = *ball->Property<clsPropertyClass>();
        record.className = u"game.Ball";
        record.Extends = u"MovieClip";
        (*record.colLayer)(1)->Object(1)->ObjectAs<clsObjFrameAction>()->inScript.ScriptText =
            u"function bounce(x) { spin(); }";
    }

    Collection<clsLayer>& Main() { return *project_.colMainLayer; }
    std::shared_ptr<clsSymbolData> AddSymbol(Long kind) {
        auto symbol = std::make_shared<clsSymbolData>(kind);
        project_.colSymbol->Add(symbol);
        return symbol;
    }
    static std::shared_ptr<clsLayer> AddRow(Collection<clsLayer>& layers,
                                            const std::shared_ptr<clsSymbolData>& symbol,
                                            StringView instance) {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(symbol);
        layer->InstanceName = instance;
        Long index = 0;
        layer->Add(1, nullptr, index);
        layers.Add(layer);
        return layer;
    }
    static void AddScript(Collection<clsLayer>& layers, StringView script) {
        const auto row = AddRow(layers, std::make_shared<clsSymbolData>(KindFrameAction), u"");
        row->Object(1)->ObjectAs<clsObjFrameAction>()->inScript.ScriptText = script;
    }

    Project project_;
    std::shared_ptr<clsSymbolData> wheel_;
    std::shared_ptr<clsSymbolData> car_;
};

TEST_F(ScriptEditorsTest, paths_lead_from_either_root) {
    using Mode = TargetTree::RootMode;
    using Separator = TargetTree::Separator;
    const TargetTree tree(*car_->Property<clsPropertySprite>()->colLayer, Main());
    const auto root = tree.Root(Mode::Root);
    EXPECT_EQ(root.Text, u"_root");
    const auto cars = TargetTree::Children(root);
    ASSERT_EQ(cars.size(), 1u);
    EXPECT_EQ(cars[0].Icon, u"sprite");
    const auto wheels = TargetTree::Children(cars[0]);
    ASSERT_EQ(wheels.size(), 1u);
    EXPECT_EQ(TargetTree::PathOf(wheels[0], Mode::Root, Separator::Dot), u"_root.car.wheel");
    EXPECT_EQ(TargetTree::PathOf(wheels[0], Mode::Root, Separator::Slash), u"/car/wheel");
    EXPECT_EQ(TargetTree::PathOf(root, Mode::Root, Separator::Slash), u"/");
    const auto own = TargetTree::Children(tree.Root(Mode::This));
    EXPECT_EQ(TargetTree::PathOf(own.at(0), Mode::This, Separator::Dot), u"this.wheel");
    EXPECT_EQ(TargetTree::PathOf(own.at(0), Mode::This, Separator::Slash), u"wheel");
    EXPECT_TRUE(TargetTree::Children(wheels[0]).empty());
}

TEST_F(ScriptEditorsTest, texts_are_found_in_all_scripts) {
    const auto main = FindInScripts(project_, u"SPIN", false);
    ASSERT_EQ(main.size(), 1u);
    EXPECT_EQ(main[0].Place.Row, 3);
    EXPECT_EQ(main[0].Offset, 3u);
    const auto all = FindInScripts(project_, u"spin", true);
    ASSERT_EQ(all.size(), 4u);
    EXPECT_EQ(all[2].Place.Timeline, car_);
    EXPECT_EQ(all[2].Place.KeyFrame, 1);
    EXPECT_EQ(all[2].Line, u"Spin = 1;");
    EXPECT_EQ(FindInScripts(project_, u"spin", true, 2).size(), 2u);
}

TEST_F(ScriptEditorsTest, names_of_the_project_are_known_to_scripts) {
    const ProjectNames names =
        ReadProjectNames(project_, FromNarrow(TAMBER_SOURCE_DIR "/data/class"));
    ASSERT_EQ(names.Instances.size(), 2u);
    EXPECT_EQ(names.Instances[0].Text, u"car");
    EXPECT_EQ(names.Instances[0].Detail, u"MovieClip");
    EXPECT_EQ(names.Labels.at(0).Text, u"crash");
    EXPECT_EQ(names.Linkages.at(0).Text, u"car_link");
    const ScriptClass& ball = names.Classes.at(u"game.Ball");
    EXPECT_EQ(ball.Extends, u"MovieClip");
    EXPECT_EQ(ball.Members.at(0).Text, u"bounce");
    EXPECT_TRUE(names.Classes.contains(u"Easing"));
}

TEST(BackgroundCheck, gives_the_result_of_the_last_script) {
    BackgroundCheck check;
    EXPECT_FALSE(check.Take());
    String large;
    for (int i = 0; i < 2000; ++i) large += u"a = b + 1;\r\n";
    for (int i = 0; i < 5; ++i) check.Start({large});
    const Long last = check.Start({u"a = 1;\r\nb = ;\r\n"});
    check.Finish();
    const auto outcome = check.Take();
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->Number, last);
    EXPECT_FALSE(outcome->Result.Ok);
    EXPECT_EQ(outcome->Result.Line, 2);
    EXPECT_FALSE(check.Take());
}

}  // namespace
}  // namespace tamber
