#include <gtest/gtest.h>

#include <set>

#include "document/elements/clsElement.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "effects/filters/clsFilterData.h"
#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "tests/support/FilledCells.h"

namespace tamber {
namespace {

/// A row, a key frame and a symbol have more beside their fields.
template <class Record>
constexpr bool IsHead = std::same_as<Record, clsLayer> || std::same_as<Record, clsLayerObject> ||
                        std::same_as<Record, clsSymbolData>;

template <class Record>
void Read(Record& record, const String& cells) {
    clsCSV csv;
    csv.Text(cells + u"\r\n");
    if constexpr (IsHead<Record>)
        LoadFields(record, csv);
    else
        record.Load(csv);
}

template <class Record>
std::string Cells(const Record& record) {
    clsCSV csv;
    if constexpr (IsHead<Record>)
        SaveFields(record, csv);
    else
        record.Save(csv);
    std::string text = ToNarrow(csv.Text());
    while (text.ends_with("\r\n")) text.resize(text.size() - 2);
    return text;
}

using NamedValues = std::vector<std::pair<String, String>>;

template <class Record>
NamedValues Told(const Record& record) {
    NamedValues values;
    const auto sink = [&values](StringView name, const String& value) {
        values.emplace_back(name, value);
    };
    if constexpr (IsHead<Record>)
        TellFields(record, sink);
    else
        record.TellFields(sink);
    return values;
}

template <class Record>
bool Set(Record& record, StringView name, StringView value) {
    if constexpr (IsHead<Record>)
        return SetField(record, name, value);
    else
        return record.SetField(name, value);
}

/// Other cells for one, the first of which that a field keeps will do.
std::vector<String> OtherCells(StringView cell) {
    if (cell == u"True" || cell == u"False") return {cell == u"True" ? u"False" : u"True"};
    if (!IsNumeric(cell)) return {String(cell) + u"x"};
    return {ToText(ToSingle(cell) + 1), ToText(ToSingle(cell) - 1)};
}

/// Cells of a text, as "row,column row,column", that are out of the reach of what is done by
/// fields, or have no other value that fits the rest of the text.
struct Exceptions {
    /// Not set by a name.
    std::string Fixed = {};
    /// Not compared.
    std::string Apart = {};
};

/// All that is done field by field, with a text of cells that are all away from those of a new
/// record. It knows records by their cells alone, so that it is compiled once for each base.
template <class Record, class Make>
class FieldCheck {
public:
    FieldCheck(const String& text, Make make) : text_(text), make_(make), full_(From(text)) {}

    void Run(const Exceptions& expected) {
        SCOPED_TRACE(ToNarrow(text_));
        EXPECT_EQ(Cells(*full_), ToNarrow(text_));
        if constexpr (!std::same_as<Record, clsSymbolData>) {
            EXPECT_EQ(Cells(*full_->Copy()), ToNarrow(text_));
        }
        clsCSV csv;
        csv.Text(text_);
        for (Long row = 0; row < csv.Rows(); ++row)
            for (Long col = 0; col < csv.RowLength(row); ++col) CheckCell(csv, col, row);
        EXPECT_EQ(found_.Fixed, expected.Fixed);
        EXPECT_EQ(found_.Apart, expected.Apart);
    }

private:
    std::shared_ptr<Record> From(const String& text) const {
        const std::shared_ptr<Record> record = make_();
        Read(*record, text);
        return record;
    }
    /// A record that differs in one cell, or null.
    std::shared_ptr<Record> Differing(clsCSV csv, Long col, Long row) const {
        for (const String& cell : OtherCells(String(csv.GetValue(col, row)))) {
            csv.SetValue(cell, col, row);
            try {
                const auto other = From(csv.Text());
                if (Cells(*other) != Cells(*full_)) return other;
            } catch (const RuntimeError&) {
                continue;
            }
        }
        return nullptr;
    }
    void CheckCell(const clsCSV& csv, Long col, Long row) {
        const auto other = Differing(csv, col, row);
        if (!other) return Count(found_.Fixed, col, row);
        const auto grown = From(text_);
        const NamedValues before = Told(*full_);
        for (const auto& value : Told(*other))
            if (std::find(before.begin(), before.end(), value) == before.end())
                Set(*grown, value.first, value.second);
        if (Cells(*grown) != Cells(*other)) Count(found_.Fixed, col, row);
        bool same = false;
        if constexpr (requires { full_->CompareHead(*other); })
            same = full_->CompareHead(*other);
        else if constexpr (requires { full_->Compare(*other); })
            same = full_->Compare(*other);
        if (same) Count(found_.Apart, col, row);
    }
    static void Count(std::string& places, Long col, Long row) {
        places += (places.empty() ? "" : " ") + std::to_string(row) + "," + std::to_string(col);
    }

    String text_;
    Make make_;
    std::shared_ptr<Record> full_;
    Exceptions found_;
};

template <class Record, class Make>
void Check(const String& text, Make make, const Exceptions& expected = {}) {
    FieldCheck<Record, Make>(text, make).Run(expected);
}

TEST(Fields, of_each_record_are_read_written_copied_and_set_by_name) {
    const struct {
        Long Kind;
        String Text;
        Exceptions Expected;
    } cases[] = {
        {KindBitmap, cells::BitmapRecord, {}},
        {KindText, cells::TextRecord, {"0,15"}},
        {KindSound, u"False", {}},
        {KindVector, cells::VectorRecord, {}},
        {KindSprite, cells::SpriteRecord, {}},
        {KindMovie, cells::MovieRecord, {}},
        {KindMovieEmp, cells::MovieEmpRecord, {}},
        {KindButton, cells::ButtonRecord, {"0,7"}},
        {KindKoma, cells::KomaRecord, {}},
        {KindSymbolFolder, cells::FolderRecord, {"0,1"}},
        {KindClass, cells::ClassRecord, {"0,0 0,2 1,0 1,1 2,0 2,1"}},
        {KindLink, cells::LinkRecord, {"0,4"}},
    };
    std::set<Long> checked;
    for (const auto& c : cases) {
        Check<clsPropertyData>(
            c.Text, [&c] { return MakePropertyData(c.Kind); }, c.Expected);
        checked.insert(c.Kind);
    }
    for (Long kind = 1; kind <= KindLink; ++kind)
        EXPECT_EQ(checked.contains(kind), MakePropertyData(kind) != nullptr) << kind;
    // A static text has no field for what only a dynamic one has.
    const auto text = MakePropertyData(KindText);
    EXPECT_FALSE(text->SetField(u"blWordWrap", u"True"));
    EXPECT_TRUE(text->SetField(u"blDynamic", u"True"));
    EXPECT_TRUE(text->SetField(u"blWordWrap", u"True"));
    clsPropertyLinkSymbol link;
    Read(link, cells::LinkRecord);
    EXPECT_NE(dynamic_cast<clsPropertyLinkSymbol&>(*link.Copy()).objPropertyData,
              link.objPropertyData);
}

TEST(Fields, of_each_element_are_read_written_copied_compared_and_set_by_name) {
    // Curves and paths have no names, and paths count apart.
    const Exceptions placement{
        "0,15 1,0 1,1 1,2 1,3 1,4 2,0 2,1 2,2 2,3 3,116 4,0 4,1 4,2 4,3 4,4 4,5",
        "4,0 4,1 4,2 4,4 4,5"};
    const struct {
        Long Kind;
        String Text;
        Exceptions Expected;
    } cases[] = {
        {KindBitmap, cells::Placement, {placement.Fixed, "3,116 " + placement.Apart}},
        {KindText,
         cells::Placement + u"," + cells::TextEffect,
         {placement.Fixed + " 4,14 4,15", placement.Apart}},
        {KindSprite,
         cells::Placement + u"," + cells::SpriteEffect,
         {placement.Fixed + " 4,7 4,8", placement.Apart}},
        {KindVector, cells::Placement + u"," + cells::FreeTransform, placement},
        {KindBackGround, u"10,20,30", {}},
        {KindFrameLabel, u"label,True", {}},
        {KindSound, cells::Sound, {}},
        {KindFrameAction, cells::FrameAction, {"", "0,7"}},
        {KindLayerFolder, cells::LayerFolder, {"0,1 0,2"}},
    };
    std::set<Long> checked;
    for (const auto& c : cases) {
        Check<clsElement>(
            c.Text, [&c] { return MakeElement(c.Kind); }, c.Expected);
        checked.insert(c.Kind);
    }
    const std::string plain = Cells(*MakeElement(KindBitmap));
    for (Long kind = 1; kind <= KindLink; ++kind) {
        const auto element = MakeElement(kind);
        // One without fields of its own is its placement.
        EXPECT_TRUE(!element || checked.contains(kind) || Cells(*element) == plain) << kind;
    }
}

TEST(Fields, of_a_row_a_key_frame_and_a_symbol_are_read_written_copied_compared_and_set_by_name) {
    Check<clsLayerObject>(u"3,4,True,True,False", [] { return std::make_shared<clsLayerObject>(); },
                          {"0,0 0,1 0,2 0,3"});
    Check<clsSymbolData>(u"pic,Class,Export", [] { return std::make_shared<clsSymbolData>(); });
    const auto button = std::make_shared<clsSymbolData>(KindButton);
    const auto row = [&button] {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(button);
        return layer;
    };
    Check<clsLayer>(u"層,inst,2,,rollout," + cells::Script + u",False", row, {"0,1 0,3"});
    const std::function<void(clsLayer&)> unread[] = {
        [](clsLayer& layer) { EXPECT_TRUE(SetField(layer, u"ExpText", u"memo")); },
        [](clsLayer& layer) { layer.SelectIndex = 2; },
        [](clsLayer& layer) { layer.FirstFrame = 3; },
        [](clsLayer& layer) { layer.FrameWidth = 4; }};
    for (const auto& change : unread) {
        const auto layer = row();
        change(*layer);
        EXPECT_FALSE(layer->CompareHead(*row()));
        EXPECT_TRUE(layer->CompareHead(*layer->Copy()));
    }
}

// Half-way values that end in .5 go to the even number where they are whole.
TEST(Fields, of_filters_are_mixed) {
    const StringView halfway[] = {
        u"95,90,85,80,0,1,2,2",
        u"0,1,2,75,3,3.5,37.5,5.5,1.75,False,False,True,2",
        u"5.5,6,2",
        u"132,132,4,70,6.5,7,1.25,False,False,True,2",
        u"0,1,2,55,130,130,130,60,4.5,5,52.5,7,1.5,False,False,True,False,2",
        u"5,5,1.5,0.5,0.5,1,1.5,2,2.5,3,3.5,4,4.5,5,5.5,6,7,7,7.5,8,8.5,9,9.5,10,10.5,11,11.5,12,"
        u"12.5,2,3,4,15,False,False",
        u"11,1,1.5,2,2.5,3,4,4,4.5,5,5.5,6,7,7,7.5,8,8.5,9,10,10",
    };
    clsFilterData full;
    Read(full, cells::Filters);
    clsFilterData plain;
    for (bool clsFilterData::*on :
         {&clsFilterData::blEditColor, &clsFilterData::blDropShadow, &clsFilterData::blBlur,
          &clsFilterData::blGlow, &clsFilterData::blBevel, &clsFilterData::blConvolution,
          &clsFilterData::blColorMatrix})
        plain.*on = true;
    String mixed;
    for (const StringView values : halfway)
        mixed += (mixed.empty() ? u"True," : u",True,") + String(values);
    EXPECT_EQ(Cells(*plain.Morphing(full, 0.5, 0.5)), ToNarrow(mixed));
}

}  // namespace
}  // namespace tamber
