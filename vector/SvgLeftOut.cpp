#include "vector/SvgLeftOut.h"

#include <algorithm>
#include <array>

namespace tamber {

namespace {

/// In the order of SvgFeature.
constexpr std::array<StringView, static_cast<std::size_t>(SvgFeature::Count)> FeatureNames{
    u"円弧",
    u"文字",
    u"画像",
    u"円",
    u"楕円",
    u"クリッピング",
    u"マスク",
    u"パターン",
    u"フィルタ",
    u"マーカー",
    u"スタイルシート",
    u"アニメーション",
    u"スクリプト",
    u"foreignObject",
    u"入れ子のSVG",
    u"角丸",
    u"一重引用符の属性",
    u"線のグラデーション",
    u"破線",
    u"非表示の指定",
    u"currentColor",
    u"色の指定",
    u"xlinkのないhref",
    u"縦横比の指定",
    u"小数点の続く数値",
    u"接頭辞の付いた要素",
};

struct NamedFeature {
    StringView Name;
    SvgFeature Feature;
};

constexpr NamedFeature Elements[] = {
    {u"text", SvgFeature::Text},
    {u"image", SvgFeature::Image},
    {u"circle", SvgFeature::Circle},
    {u"ellipse", SvgFeature::Ellipse},
    {u"style", SvgFeature::StyleSheet},
    {u"animate", SvgFeature::Animation},
    {u"animateTransform", SvgFeature::Animation},
    {u"animateMotion", SvgFeature::Animation},
    {u"set", SvgFeature::Animation},
    {u"script", SvgFeature::Script},
    {u"foreignObject", SvgFeature::ForeignObject},
    {u"svg", SvgFeature::NestedSvg},
};

constexpr NamedFeature Attributes[] = {
    {u"class", SvgFeature::StyleSheet},
    {u"clip-path", SvgFeature::Clipping},
    {u"mask", SvgFeature::Mask},
    {u"filter", SvgFeature::Filter},
    {u"marker", SvgFeature::Marker},
    {u"marker-start", SvgFeature::Marker},
    {u"marker-mid", SvgFeature::Marker},
    {u"marker-end", SvgFeature::Marker},
    {u"stroke-dasharray", SvgFeature::Dashes},
    {u"href", SvgFeature::PlainHref},
};

}  // namespace

void SvgLeftOut::Note(SvgFeature feature) {
    const auto index = static_cast<std::size_t>(feature);
    if (noted_.test(index)) return;
    noted_.set(index);
    Names.emplace_back(FeatureNames[index]);
}

void SvgLeftOut::NoteElement(StringView name) {
    if (name.starts_with(u"svg:")) Note(SvgFeature::PrefixedElement);
    for (const NamedFeature& element : Elements)
        if (name == element.Name) Note(element.Feature);
}

void SvgLeftOut::NoteAttribute(StringView name, StringView value) {
    if (value.empty() || value == u"none") {
        if (name == u"display" && value == u"none") Note(SvgFeature::Hidden);
        return;
    }
    if (name == u"visibility" && value != u"visible" && value != u"inherit")
        Note(SvgFeature::Hidden);
    if (name == u"preserveAspectRatio" && value != u"xMidYMid" && value != u"xMidYMid meet")
        Note(SvgFeature::AspectRatio);
    for (const NamedFeature& attribute : Attributes)
        if (name == attribute.Name) Note(attribute.Feature);
}

}  // namespace tamber
