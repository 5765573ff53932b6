#include <gtest/gtest.h>

#include "document/edit/ClassNames.h"
#include "document/symbols/clsLayer.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/symbols/clsSymbolData.h"
#include "tests/support/TimelineText.h"

namespace tamber {
namespace {

std::shared_ptr<clsSymbolData> Class(StringView name) {
    auto symbol = std::make_shared<clsSymbolData>(KindClass);
    symbol->Property<clsPropertyClass>()->className = name;
    return symbol;
}

TEST(ClassRecord, has_one_layer_from_the_start_and_gives_a_copy_none) {
    const auto symbol = Class(u"game.Drop");
    auto& record = *symbol->Property<clsPropertyClass>();
    record.Extends = u"MovieClip";
    ASSERT_EQ(record.colLayer->Count(), 1);
    EXPECT_EQ(Spans(*(*record.colLayer)(1)), "1-1");
    (*record.colLayer)(1)->Object(1)->ObjectAs<clsObjFrameAction>()->Comment = u"a";
    record.colLayer->Add(clsPropertyClass::NewLayer());
    const auto copy = symbol->Copy();
    const auto& other = *copy->Property<clsPropertyClass>();
    EXPECT_EQ(other.className, u"game.Drop_copy");
    EXPECT_EQ(other.Extends, u"MovieClip");
    ASSERT_EQ(other.colLayer->Count(), 1);
    EXPECT_EQ((*other.colLayer)(1)->Object(1)->ObjectAs<clsObjFrameAction>()->Comment, u"");
}

TEST(ClassRecord, reads_a_row_for_each_layer) {
    struct Case {
        StringView Text;
        Long Layers;
        StringView LastComment;
    };
    const Case cases[]{
        {u"A,B,0\r\n", 1, u""},
        {u"A,B,1\r\none,x=1;\r\n", 1, u"one"},
        {u"A,B,2\r\none,x=1;\r\ntwo,y=1;\r\n", 2, u"two"},
    };
    for (const Case& c : cases) {
        clsCSV csv;
        csv.Text(String(c.Text));
        clsPropertyClass record;
        record.Load(csv);
        ASSERT_EQ(record.colLayer->Count(), c.Layers);
        const auto& last = (*record.colLayer)(c.Layers);
        EXPECT_EQ(last->Object(1)->ObjectAs<clsObjFrameAction>()->Comment, c.LastComment);
    }
}

TEST(ClassNames, must_differ_from_all_others) {
    Collection<clsSymbolData> library;
    library.Add(Class(u"A"));
    library.Add(Class(u"pack.B"));
    auto link = std::make_shared<clsSymbolData>(KindLink);
    link->Property<clsPropertyLinkSymbol>()->SymbolName = u"__Packages.pack.C";
    link->Property<clsPropertyLinkSymbol>()->eSymbolType(KindClass);
    library.Add(link);
    library.Add(std::make_shared<clsSymbolData>(KindSprite));
    const std::vector<String> others = OtherClassNames(library, *library(1));
    EXPECT_EQ(others, (std::vector<String>{u"MovieClip", u"pack.B", u"pack.C"}));
    EXPECT_EQ(ClassNameFault(u" A ", others), u"");
    EXPECT_EQ(ClassNameFault(u"pack.b", others), u"");
    EXPECT_EQ(ClassNameFault(u" pack.C ", others), u"クラス名[pack.C]は既に使用されています。");
    EXPECT_EQ(ClassNameFault(u"  ", others), u"クラス名を設定して下さい。");
}

}  // namespace
}  // namespace tamber
