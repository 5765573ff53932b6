#include "script/compiler/DottedPath.h"

#include <vector>

namespace tamber {

std::string DottedPath(const Node& node) {
    std::vector<const Symbol*> members;
    const Node* part = &node;
    for (; part->Kind == NodeKind::Member; part = part->A) members.push_back(part->Name);
    if (part->Kind != NodeKind::Name && part->Kind != NodeKind::This) return {};
    std::string path(part->Kind == NodeKind::This ? "this" : part->Name->Text);
    for (; !members.empty(); members.pop_back()) (path += '.') += members.back()->Text;
    return path;
}

const Symbol* FirstName(const Node& node) {
    const Node* part = &node;
    while (part->Kind == NodeKind::Member) part = part->A;
    return part->Kind == NodeKind::Name ? part->Name : nullptr;
}

}  // namespace tamber
