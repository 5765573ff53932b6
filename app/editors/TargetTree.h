#pragma once

#include <vector>

#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"

namespace tamber {

/// Instances of a timeline and of the sprites in it, to choose the path of one.
class TargetTree {
public:
    enum class RootMode { This, Root };
    /// Between the names of a path.
    enum class Separator { Slash, Dot };

    struct Node {
        /// Instance name; of the root "this" or "_root".
        String Text;
        /// "text", "sprite", "button"; empty for what has no picture of its own.
        StringView Icon{};
        /// Instance names from the root down, this one's last.
        std::vector<String> Way{};
        /// The timeline that it opens to; null for none.
        const Collection<clsLayer>* Layers = nullptr;
    };

    /// `edited`: the timeline that "this" stands for; `main`: that of "_root". Both must outlive
    /// this.
    TargetTree(const Collection<clsLayer>& edited, const Collection<clsLayer>& main)
        : edited_(edited), main_(main) {}

    Node Root(RootMode mode) const;
    /// What stands within a node.
    static std::vector<Node> Children(const Node& node);
    /// The path of a node. With slashes a path from "_root" begins with one, one from "this" with
    /// the first name.
    static String PathOf(const Node& node, RootMode mode, Separator separator);

private:
    const Collection<clsLayer>& edited_;
    const Collection<clsLayer>& main_;
};

}  // namespace tamber
