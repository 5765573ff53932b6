#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "document/cells/ProjectFileVersion.h"
#include "document/elements/clsElement.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "effects/filters/clsFilterData.h"
#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {
namespace {

using Told = std::map<String, String>;

constexpr StringView Placement =
    u"X,Y,OffsetX,OffsetY,chkFixedRatio,ScaleX,ScaleY,Bright,Toumei,Angle,SkewX,SkewY,Edging,"
    u"EdgingAllMode,blCustomEdging,eBlend";
constexpr StringView Effect =
    u"blEffect,EffectType,EffectInterval,EfIntervalType,blAllStop,EffectFrames,EffectName";
constexpr StringView Filters =
    u"blEditColor,MultR,MultG,MultB,MultA,AddR,AddG,AddB,AddA,"
    u"blDropShadow,DropShadow.Blue,DropShadow.Green,DropShadow.Red,DropShadow.ColorA,"
    u"DropShadow.BlurX,DropShadow.BlurY,DropShadow.Angle,DropShadow.Distance,DropShadow.Strength,"
    u"DropShadow.blInner,DropShadow.blKnockout,DropShadow.blCompositeSource,DropShadow.Passes,"
    u"blBlur,Blur.BlurX,Blur.BlurY,Blur.Passes,"
    u"blGlow,Glow.Blue,Glow.Green,Glow.Red,Glow.ColorA,Glow.BlurX,Glow.BlurY,Glow.Strength,"
    u"Glow.blInner,Glow.blKnockout,Glow.blCompositeSource,Glow.Passes,"
    u"blBevel,Bevel.ShadowBlue,Bevel.ShadowGreen,Bevel.ShadowRed,Bevel.ShadowColorA,"
    u"Bevel.HighlightBlue,Bevel.HighlightGreen,Bevel.HighlightRed,Bevel.HighlightColorA,"
    u"Bevel.BlurX,Bevel.BlurY,Bevel.Angle,Bevel.Distance,Bevel.Strength,Bevel.blInner,"
    u"Bevel.blKnockout,Bevel.blCompositeSource,Bevel.blOnTop,Bevel.Passes,"
    u"blConvolution,MatrixX,MatrixY,Divisor,Bias,"
    u"m1,m2,m3,m4,m5,m6,m7,m8,m9,m10,m11,m12,m13,m14,m15,m16,m17,m18,m19,m20,m21,m22,m23,m24,m25,"
    u"Default.Blue,Default.Green,Default.Red,Default.ColorA,blClamp,blPreserveAlpha,"
    u"blColorMatrix,c1,c2,c3,c4,c5,c6,c7,c8,c9,c10,c11,c12,c13,c14,c15,c16,c17,c18,c19,c20";
constexpr StringView Script = u"Script,eScriptMode,nPrm1,nPrm2,strPrm1,strPrm2";

/// The names in lists separated by commas.
std::vector<String> NamesOf(std::initializer_list<StringView> lists) {
    std::vector<String> names;
    for (StringView list : lists)
        while (!list.empty()) {
            const std::size_t end = std::min(list.find(u','), list.size());
            names.emplace_back(list.substr(0, end));
            list.remove_prefix(std::min(end + 1, list.size()));
        }
    return names;
}

template <class Record>
Told ToldBy(const Record& record) {
    Told told;
    record.TellFields([&told](StringView name, const String& value) { told.emplace(name, value); });
    return told;
}

/// Gives a field another value than it has. False where it takes none.
template <class Record>
bool Change(Record& record, const String& name) {
    const Told before = ToldBy(record);
    const auto found = before.find(name);
    if (found == before.end()) return false;
    for (const StringView value :
         {u"True", u"False", u"2", u"3", u"7", u"press", u"out", u"BL", u"Edge", u"other"}) {
        try {
            if (record.SetField(name, value) && ToldBy(record)[name] != found->second) return true;
        } catch (const RuntimeError&) {
            // No value for this field.
        }
    }
    return false;
}

/// What `from` writes, read by `to`.
template <class Record>
void Reload(const Record& from, Record& to) {
    clsCSV csv;
    from.Save(csv);
    csv.SetPosition(0, 0);
    const ProjectFileVersionScope newest(NewestProjectFileVersion);
    to.Load(csv);
}

struct KindFields {
    Long Kind;
    std::vector<String> Names;
};

std::string NameOfKind(const testing::TestParamInfo<KindFields>& info) {
    return "Kind" + std::to_string(info.param.Kind);
}

class ElementFields : public testing::TestWithParam<KindFields> {};

TEST_P(ElementFields, are_told_copied_compared_and_saved) {
    auto changed = MakeElement(GetParam().Kind);
    for (const String& name : GetParam().Names) {
        const auto before = changed->Copy();
        ASSERT_TRUE(Change(*changed, name)) << ToNarrow(name);
        EXPECT_FALSE(changed->Compare(*before)) << ToNarrow(name);
        EXPECT_FALSE(before->Compare(*changed)) << ToNarrow(name);
        EXPECT_TRUE(changed->Compare(*changed->Copy())) << ToNarrow(name);
        const auto loaded = MakeElement(GetParam().Kind);
        Reload(*changed, *loaded);
        EXPECT_EQ(ToldBy(*loaded), ToldBy(*changed)) << ToNarrow(name);
        before->CopyTo(*loaded, true);
        EXPECT_TRUE(loaded->Compare(*before)) << ToNarrow(name);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ElementFields,
    testing::Values(
        KindFields{KindBackGround, NamesOf({u"BackColorBlue,BackColorGreen,BackColorRed"})},
        KindFields{KindFrameLabel, NamesOf({u"LabelName,blAnchor"})},
        KindFields{KindSound, NamesOf({u"eEvent,Loops,VolumeL,VolumeR,StartTime,StopTime,"
                                       u"FadeInTime,FadeOutTime"})},
        KindFields{KindFrameAction, NamesOf({u"Comment", Script})},
        KindFields{KindLayerFolder, NamesOf({u"FolderName,Expand,Comment"})},
        KindFields{KindBitmap, NamesOf({Placement, Filters})},
        KindFields{KindText, NamesOf({Placement, Effect, u"blApplyOne"})},
        KindFields{KindSprite, NamesOf({Placement, Effect})},
        KindFields{KindVector, NamesOf({Placement,
                                        u"blFreeTrans,FreeTransPoint1,FreeTransPoint2,"
                                        u"FreeTransPoint3,FreeTransPoint4,FreeTransPoint5,"
                                        u"FreeTransPoint6,FreeTransPoint7,FreeTransPoint8,"
                                        u"blDivide"})},
        KindFields{KindMovie, NamesOf({Placement})}, KindFields{KindButton, NamesOf({Placement})},
        KindFields{KindKoma, NamesOf({Placement})}),
    NameOfKind);

class RecordFields : public testing::TestWithParam<KindFields> {};

TEST_P(RecordFields, are_told_copied_and_saved) {
    auto changed = MakePropertyData(GetParam().Kind);
    for (const String& name : GetParam().Names) {
        ASSERT_TRUE(Change(*changed, name)) << ToNarrow(name);
        EXPECT_EQ(ToldBy(*changed->Copy()), ToldBy(*changed)) << ToNarrow(name);
        const auto copied = MakePropertyData(GetParam().Kind);
        changed->CopyTo(*copied);
        EXPECT_EQ(ToldBy(*copied)[name], ToldBy(*changed)[name]) << ToNarrow(name);
        const auto loaded = MakePropertyData(GetParam().Kind);
        Reload(*changed, *loaded);
        EXPECT_EQ(ToldBy(*loaded), ToldBy(*changed)) << ToNarrow(name);
    }
}

constexpr StringView NineSlice = u"bl9Scale,GridLeft,GridRight,GridTop,GridBottom";

INSTANTIATE_TEST_SUITE_P(
    Kinds, RecordFields,
    testing::Values(
        KindFields{KindBitmap, NamesOf({u"blToumei,ToumeiColorRed,ToumeiColorGreen,"
                                        u"ToumeiColorBlue,blShading,ShadingType,ShadingNum,"
                                        u"blJpegComp,JpegQuality"})},
        KindFields{KindText, NamesOf({u"InitialText,DefineText,FontName,Width,height,FontSize,"
                                      u"FontLeading,FontCharSpace,FontBold,FontItalic,"
                                      u"FontColorRed,FontColorGreen,FontColorBlue,Alignment,"
                                      u"blAutoSize,blDynamic,blWordWrap,blInput,blSelect,"
                                      u"blMultiLine,blBorder,blPassword,blHtml,VariableName,"
                                      u"blFlashType,Thickness,Sharpness,FitShapeScaleX,"
                                      u"FitShapeScaleY,blFitAngle,blFitEven,blFitOpposite,"
                                      u"eBasePos"})},
        KindFields{KindSound, NamesOf({u"blWavRead"})},
        KindFields{KindVector, NamesOf({u"blDivide,blFreeTrans,FreeTransPoint1,FreeTransPoint8,"
                                        u"blLineOption,blNoLineScale,blPixelHinting,CapStyle,"
                                        u"JoinStyle,MiterLimit"})},
        KindFields{KindSprite, NamesOf({u"SpriteName,Width,height,baseX,baseY", NineSlice})},
        KindFields{KindMovie, NamesOf({u"StartFrame,blSound,blSmoothing"})},
        KindFields{KindMovieEmp, NamesOf({u"MovieName,Width,height"})},
        KindFields{KindButton, NamesOf({u"ButtonName,blAutoHitTest", NineSlice})},
        KindFields{KindKoma, NamesOf({u"KomaName,DispCount"})},
        KindFields{KindSymbolFolder, NamesOf({u"FolderName,Expand"})},
        KindFields{KindClass, NamesOf({u"Extends"})},
        KindFields{KindLink, NamesOf({u"SymbolName,URL,Width,height"})}),
    NameOfKind);

/// A row as a record.
struct Row {
    std::shared_ptr<clsLayer> Layer = std::make_shared<clsLayer>();

    explicit Row(Long kind) { Layer->SymbolData(std::make_shared<clsSymbolData>(kind)); }
    void TellFields(const FieldSink& sink) const { tamber::TellFields(*Layer, sink); }
    bool SetField(StringView name, StringView value) {
        return tamber::SetField(*Layer, name, value);
    }
    void Save(clsCSV& csv) const { SaveFields(*Layer, csv); }
    void Load(clsCSV& csv) { LoadFields(*Layer, csv); }
};

TEST(RowFields, are_told_copied_compared_and_saved) {
    Row changed(KindButton);
    for (const String& name :
         NamesOf({u"LayerName,ClippingDepth,OnEvent", Script, u"Visible,ExpText"})) {
        const auto before = changed.Layer->CopyHead();
        ASSERT_TRUE(Change(changed, name)) << ToNarrow(name);
        EXPECT_FALSE(changed.Layer->CompareHead(*before)) << ToNarrow(name);
        Row copy(KindButton);
        copy.Layer = changed.Layer->CopyHead();
        EXPECT_TRUE(changed.Layer->CompareHead(*copy.Layer)) << ToNarrow(name);
        EXPECT_EQ(ToldBy(copy), ToldBy(changed)) << ToNarrow(name);
        // A remark is for the session it was written in.
        if (name == u"ExpText") continue;
        Row loaded(KindButton);
        Reload(changed, loaded);
        EXPECT_EQ(ToldBy(loaded), ToldBy(changed)) << ToNarrow(name);
    }
}

TEST(SymbolFields, are_told_and_saved) {
    clsSymbolData changed(KindSprite);
    for (const String& name : NamesOf({u"ObjectName,LinkClassName,blExport,blExportTop"})) {
        const auto told = [](const clsSymbolData& symbol) {
            Told all;
            TellFields(symbol, [&all](StringView field, const String& value) {
                all.emplace(field, value);
            });
            return all;
        };
        const Told before = told(changed);
        ASSERT_TRUE(SetField(changed, name, before.at(name) == u"True" ? u"False" : u"True"));
        EXPECT_NE(told(changed), before) << ToNarrow(name);
        clsCSV csv;
        SaveFields(changed, csv);
        csv.SetPosition(0, 0);
        clsSymbolData loaded(KindSprite);
        const ProjectFileVersionScope newest(NewestProjectFileVersion);
        LoadFields(loaded, csv);
        EXPECT_EQ(told(loaded), told(changed)) << ToNarrow(name);
    }
}

/// A filter set as a record.
struct FilterSet : clsFilterData {
    void TellFields(const FieldSink& sink) const { tamber::TellFields(*this, sink); }
    bool SetField(StringView name, StringView value) {
        return tamber::SetField(*this, name, value);
    }
};

TEST(FilterFields, mix_in_a_tween_but_for_switches_counts_and_passes) {
    FilterSet start;
    for (const StringView name : {u"blDropShadow", u"blBlur", u"blGlow", u"blBevel",
                                  u"blConvolution", u"blColorMatrix", u"blEditColor"})
        start.SetField(name, u"True");
    for (const String& name : NamesOf({Filters})) {
        const std::size_t dot = name.find(u'.');
        const StringView word = StringView(name).substr(dot == String::npos ? 0 : dot + 1);
        FilterSet end = start;
        ASSERT_TRUE(Change(end, name)) << ToNarrow(name);
        FilterSet mixed;
        start.Morphing(end, 0, 1)->CopyTo(mixed);
        const bool keeps = word.starts_with(u"bl") || word == u"Passes" || word == u"MatrixX" ||
                           word == u"MatrixY";
        EXPECT_EQ(ToldBy(mixed)[name], ToldBy(keeps ? start : end)[name]) << ToNarrow(name);
        // Colours are edited outside the filters.
        const bool edits = word.starts_with(u"Mult") || word.starts_with(u"Add");
        EXPECT_EQ(start.CkMorphing(end), word == u"Passes" || !(edits || keeps)) << ToNarrow(name);
    }
}

}  // namespace
}  // namespace tamber
