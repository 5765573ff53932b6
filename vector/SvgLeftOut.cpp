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
    u"変換の順序",
};

struct NamedFeature {
    std::string_view Name;
    SvgFeature Feature;
};

constexpr NamedFeature Elements[] = {
    {"text", SvgFeature::Text},
    {"image", SvgFeature::Image},
    {"circle", SvgFeature::Circle},
    {"ellipse", SvgFeature::Ellipse},
    {"style", SvgFeature::StyleSheet},
    {"animate", SvgFeature::Animation},
    {"animateTransform", SvgFeature::Animation},
    {"animateMotion", SvgFeature::Animation},
    {"set", SvgFeature::Animation},
    {"script", SvgFeature::Script},
    {"foreignObject", SvgFeature::ForeignObject},
    {"svg", SvgFeature::NestedSvg},
};

constexpr NamedFeature Attributes[] = {
    {"class", SvgFeature::StyleSheet},
    {"clip-path", SvgFeature::Clipping},
    {"mask", SvgFeature::Mask},
    {"filter", SvgFeature::Filter},
    {"marker", SvgFeature::Marker},
    {"marker-start", SvgFeature::Marker},
    {"marker-mid", SvgFeature::Marker},
    {"marker-end", SvgFeature::Marker},
    {"stroke-dasharray", SvgFeature::Dashes},
    {"href", SvgFeature::PlainHref},
};

}  // namespace

void SvgLeftOut::Note(SvgFeature feature) {
    const auto index = static_cast<std::size_t>(feature);
    if (noted_.test(index)) return;
    noted_.set(index);
    Names.emplace_back(FeatureNames[index]);
}

void SvgLeftOut::NoteElement(std::string_view name) {
    if (name.starts_with("svg:")) Note(SvgFeature::PrefixedElement);
    for (const NamedFeature& element : Elements)
        if (name == element.Name) Note(element.Feature);
}

void SvgLeftOut::NoteAttribute(std::string_view name, std::string_view value) {
    if (value.empty() || value == "none") {
        if (name == "display" && value == "none") Note(SvgFeature::Hidden);
        return;
    }
    if (name == "visibility" && value != "visible" && value != "inherit") Note(SvgFeature::Hidden);
    if (name == "preserveAspectRatio" && value != "xMidYMid" && value != "xMidYMid meet")
        Note(SvgFeature::AspectRatio);
    for (const NamedFeature& attribute : Attributes)
        if (name == attribute.Name) Note(attribute.Feature);
}

}  // namespace tamber
