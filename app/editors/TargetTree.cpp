#include "app/editors/TargetTree.h"

#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertySprite.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

namespace {

StringView IconOf(Long kind) {
    switch (kind) {
        case KindText:
            return u"text";
        case KindSprite:
            return u"sprite";
        case KindButton:
            return u"button";
        default:
            return {};
    }
}

StringView TextOf(TargetTree::RootMode mode) {
    return mode == TargetTree::RootMode::This ? u"this" : u"_root";
}

}  // namespace

TargetTree::Node TargetTree::Root(RootMode mode) const {
    return {String(TextOf(mode)), {}, {}, mode == RootMode::This ? &edited_ : &main_};
}

std::vector<TargetTree::Node> TargetTree::Children(const Node& node) {
    std::vector<Node> children;
    if (node.Layers == nullptr) return children;
    for (const auto& layer : *node.Layers) {
        if (!layer->blInstance() || layer->InstanceName.empty()) continue;
        const clsSymbolData& symbol = *layer->SymbolData();
        Node child{layer->InstanceName, IconOf(symbol.eTypeEx()), node.Way};
        child.Way.push_back(layer->InstanceName);
        if (const auto* sprite = symbol.Property<clsPropertySprite>())
            child.Layers = sprite->colLayer.get();
        children.push_back(std::move(child));
    }
    return children;
}

String TargetTree::PathOf(const Node& node, RootMode mode, Separator separator) {
    const bool slash = separator == Separator::Slash;
    String path;
    if (!slash) path = TextOf(mode);
    if (slash && mode == RootMode::Root && node.Way.empty()) path = u"/";
    for (const String& name : node.Way) {
        if (!path.empty() || (slash && mode == RootMode::Root)) path += slash ? u'/' : u'.';
        path += name;
    }
    return path;
}

}  // namespace tamber
