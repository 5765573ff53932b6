#include <gtest/gtest.h>

#include <set>

#include "document/elements/clsLayerFolder.h"
#include "document/elements/clsObjBackGround.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/elements/clsObjFrameLabel.h"
#include "document/elements/clsObjSound.h"
#include "document/elements/clsObjSprite.h"
#include "document/elements/clsObjText.h"
#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertyMovie.h"
#include "document/records/clsPropertyMovieEmp.h"
#include "document/records/clsPropertySound.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/codepage.h"
#include "tests/support/FilledCells.h"

namespace tamber {
namespace {

template <class Save>
String Written(Save save) {
    clsCSV csv;
    save(csv);
    String text = csv.Text();
    while (text.ends_with(u"\r\n")) text.resize(text.size() - 2);
    return text;
}

template <class Load>
void Read(const String& cells, Load load) {
    clsCSV csv;
    csv.Text(cells + u"\r\n");
    load(csv);
}

/// A row and a symbol have more in front of their fields.
template <class Record>
concept IsWhole = requires(const Record& record, clsCSV& csv) {
    record.Save(csv);
}
&&!std::same_as<Record, clsLayer>;

template <class Record>
String RecordCells(const Record& record) {
    return Written([&](clsCSV& csv) {
        if constexpr (IsWhole<Record>)
            record.Save(csv);
        else
            SaveFields(record, csv);
    });
}

template <class Field, class Record>
String FieldCells(const Field& field, const Record& record) {
    return Written([&](clsCSV& csv) { field.Save(record, csv); });
}

template <class Record, class Make>
std::shared_ptr<Record> CopyOf(const Record& record, Make make) {
    if constexpr (std::derived_from<Record, clsPropertyData>)
        return std::dynamic_pointer_cast<Record>(record.Copy());
    const std::shared_ptr<Record> copy = make();
    if constexpr (requires { record.CopyTo(*copy, true); })
        record.CopyTo(*copy, true);
    else if constexpr (requires { record.CopyTo(*copy); })
        record.CopyTo(*copy);
    else
        *copy = record;
    return copy;
}

template <class Record>
bool Same(const Record& a, const Record& b) {
    if constexpr (requires { a.CompareHead(b); })
        return a.CompareHead(b);
    else if constexpr (requires { a.Compare(b); })
        return a.Compare(b);
    else if constexpr (requires { a == b; })
        return a == b;
    else
        return SameFields(a, b);
}

template <class Record>
bool SetByName(Record& record, StringView name, StringView value) {
    if constexpr (requires { record.SetField(name, value); })
        return record.SetField(name, value);
    else
        return SetField(record, name, value);
}

/// The field, or those within a group.
template <class Field, class Visit>
void ForEachWithin(const Field& field, const Visit& visit) {
    if constexpr (requires { field.Fields; }) {
        std::apply([&](const auto&... inner) { (ForEachWithin(inner, visit), ...); }, field.Fields);
    } else if constexpr (requires { field.Switch; }) {
        visit(field.Switch);
        visit(field.Filter);
    } else {
        visit(field);
    }
}

/// All that is done field by field, with a record whose values are all away from those of a new
/// one that `make` makes.
template <class Record, class Make>
void CheckEachField(const Record& full, Make make) {
    const auto grown = make();
    const auto check = [&](const auto& field) {
        const auto plain = make();
        const auto agrees = [&](const Record& other) {
            return FieldCells(field, other) == FieldCells(field, full) && field.Same(other, full);
        };
        bool apart = false;
        bool follows = false;
        if constexpr (requires { field.Use; }) {
            apart = field.Use.blApart;
            follows = field.Use.blFollows;
        } else {
            // A motion path, which is no value of the placement.
            apart = !requires {
                field.Prefix;
            }
            &&field.Same(*plain, full);
        }
        const auto carry = [&](Record& to) {
            field.Copy(full, to);
            if (!agrees(to))
                Read(FieldCells(field, full), [&](clsCSV& csv) { field.Load(to, csv); });
        };
        EXPECT_FALSE(agrees(*plain)) << "no other value";
        carry(*plain);
        EXPECT_TRUE(agrees(*plain)) << "not carried";
        EXPECT_EQ(Same(*make(), *plain), apart) << "compared";
        EXPECT_TRUE(agrees(*CopyOf(*plain, make))) << "not copied";
        bool told = false;
        bool nameless = false;
        const auto set = [&](StringView name, const String& value) {
            told = true;
            nameless |= name.empty();
            const bool done = !name.empty() && SetByName(*grown, name, value);
            EXPECT_EQ(done, !name.empty() && !follows) << ToNarrow(name);
        };
        field.Tell(full, set, {});
        if (!told || nameless || follows) carry(*grown);
        EXPECT_TRUE(agrees(*grown)) << "not set by name";
    };
    int number = 0;
    ForEachField<Record>([&](const auto& field) {
        ForEachWithin(field, [&](const auto& inner) {
            std::string name = std::to_string(++number);
            if constexpr (requires { inner.Name; }) name += " " + ToNarrow(inner.Name);
            SCOPED_TRACE(name);
            check(inner);
        });
    });
    const auto cells = [](const Record& record) {
        return Written([&](clsCSV& csv) { SaveFields(record, csv); });
    };
    EXPECT_EQ(cells(*grown), cells(full));
}

template <class Record>
void LoadRecord(Record& record, const String& cells) {
    Read(cells, [&](clsCSV& csv) {
        if constexpr (IsWhole<Record>)
            record.Load(csv);
        else
            LoadFields(record, csv);
    });
    EXPECT_EQ(ToNarrow(RecordCells(record)), ToNarrow(cells));
}

class EachField : public testing::Test {
protected:
    /// `finish` sets what has no cell.
    template <class Record, class Make, class Finish>
    void Check(const String& cells, Make make, Finish finish) {
        SCOPED_TRACE(ToNarrow(cells));
        const std::shared_ptr<Record> full = make();
        LoadRecord(*full, cells);
        finish(*full);
        CheckEachField(*full, make);
        if constexpr (requires { full->eType(); }) checked_.insert(full->eType());
    }
    template <class Record>
    void Check(const String& cells) {
        Check<Record>(
            cells, [] { return std::make_shared<Record>(); }, [](const Record&) {});
    }
    template <class Filter>
    void CheckFilter(const String& cells, const String& halfWay) {
        Check<Filter>(cells);
        Filter full;
        LoadRecord(full, cells);
        EXPECT_EQ(ToNarrow(RecordCells(Filter().Morphing(full, 0.5, 0.5))), ToNarrow(halfWay));
    }
    bool IsChecked(Long kind) const { return checked_.contains(kind); }

private:
    std::set<Long> checked_;
};

TEST_F(EachField, of_a_record_is_read_written_compared_copied_and_set) {
    Check<clsButtonMatrix>(cells::Matrix);
    Check<clsPropertyBmp>(cells::BitmapRecord);
    Check<clsPropertyText>(cells::TextRecord);
    // A static text has no field for what only a dynamic one has.
    EXPECT_FALSE(clsPropertyText().SetField(u"blWordWrap", u"True"));
    Check<clsPropertySound>(u"False");
    Check<clsPropertyVector>(cells::VectorRecord);
    Check<clsPropertySprite>(cells::SpriteRecord);
    Check<clsPropertyMovie>(cells::MovieRecord);
    Check<clsPropertyMovieEmp>(cells::MovieEmpRecord);
    Check<clsPropertyButton>(cells::ButtonRecord);
    Check<clsPropertyKoma>(cells::KomaRecord);
    Check<clsPropertySymbolFolder>(cells::FolderRecord);
    Check<clsPropertyClass>(cells::ClassRecord);
    Check<clsPropertyLinkSymbol>(cells::LinkRecord);
    clsPropertyLinkSymbol link;
    LoadRecord(link, cells::LinkRecord);
    EXPECT_NE(CopyOf(link, [] { return nullptr; })->objPropertyData, link.objPropertyData);
    for (Long kind = 1; kind <= KindLink; ++kind)
        EXPECT_EQ(IsChecked(kind), MakePropertyData(kind) != nullptr) << kind;
}

TEST_F(EachField, of_an_element_is_read_written_compared_copied_and_set) {
    Check<clsScriptData>(cells::Script);
    const auto ofText = [] {
        auto effect = std::make_shared<clsEffectElement>();
        effect->ApplyOneEnable = true;
        return effect;
    };
    Check<clsEffectElement>(cells::TextEffect, ofText, [](const auto&) {});
    Check<clsTweenPointData>(u"Off,3,4");
    Check<clsLayerObjElement>(cells::Placement);
    Check<clsObjText>(cells::Placement + u"," + cells::TextEffect);
    Check<clsObjSprite>(cells::Placement + u"," + cells::SpriteEffect);
    Check<clsObjVector>(cells::Placement + u"," + cells::FreeTransform);
    Check<clsObjBackGround>(u"10,20,30");
    Check<clsObjFrameLabel>(u"label,True");
    Check<clsObjSound>(cells::Sound);
    Check<clsObjFrameAction>(cells::FrameAction);
    Check<clsLayerFolder>(cells::LayerFolder);
    for (Long kind = 1; kind <= KindLink; ++kind) {
        const auto element = MakeElement(kind);
        // An element without fields of its own is its placement.
        const bool more = element && RecordCells(*element) != RecordCells(clsLayerObjElement());
        EXPECT_EQ(IsChecked(kind), more) << kind;
    }
}

TEST_F(EachField, of_a_row_and_a_symbol_is_read_written_compared_copied_and_set) {
    Check<clsLayerObject>(u"3,4,True,True,False");
    Check<clsSymbolData>(u"pic,Class,Export");
    const auto button = std::make_shared<clsSymbolData>(KindButton);
    const auto row = [&button] {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(button);
        return layer;
    };
    Check<clsLayer>(u"層,inst,2,,rollout," + cells::Script + u",False", row, [](clsLayer& layer) {
        layer.ExpText(u"memo");
        layer.SelectIndex = 2;
        layer.FirstFrame = 3;
        layer.FrameWidth = 4;
    });
    for (const auto member :
         {&clsLayer::SelectIndex, &clsLayer::FirstFrame, &clsLayer::FrameWidth}) {
        const auto layer = row();
        (*layer).*member += 1;
        EXPECT_FALSE(layer->CompareHead(*row()));
    }
}

// Half-way values that end in .5 go to the even number where they are whole.
TEST_F(EachField, of_a_filter_is_read_written_compared_copied_set_and_mixed) {
    CheckFilter<clsFilterEditColor>(cells::EditColor, u"95,90,85,80,0,1,2,2");
    CheckFilter<clsFilterDropShadow>(cells::DropShadow,
                                     u"0,1,2,75,3,3.5,37.5,5.5,1.75,False,False,True,2");
    CheckFilter<clsFilterBlur>(cells::Blur, u"5.5,6,2");
    CheckFilter<clsFilterGlow>(cells::Glow, u"132,132,4,70,6.5,7,1.25,False,False,True,2");
    CheckFilter<clsFilterBevel>(
        cells::Bevel, u"0,1,2,55,130,130,130,60,4.5,5,52.5,7,1.5,False,False,True,False,2");
    CheckFilter<clsFilterConvolution>(
        cells::Convolution,
        u"5,5,1.5,0.5,0.5,1,1.5,2,2.5,3,3.5,4,4.5,5,5.5,6,7,7,7.5,8,8.5,9,9.5,10,10.5,11,11.5,12,"
        u"12.5,2,3,4,15,False,False");
    CheckFilter<clsFilterColorMatrix>(cells::ColorMatrix,
                                      u"11,1,1.5,2,2.5,3,4,4,4.5,5,5.5,6,7,7,7.5,8,8.5,9,10,10");
    Check<clsFilterData>(cells::Filters);
}

}  // namespace
}  // namespace tamber
