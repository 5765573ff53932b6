#pragma once

#include <vector>

#include "script/compiler/Node.h"

namespace tamber {

/// Visits the parts of a value, itself first; what functions in it have within is left out.
template <class Visit>
void ForEachPart(const Node& value, const Visit& visit) {
    std::vector<const Node*> open{&value};
    while (!open.empty()) {
        const Node& part = *open.back();
        open.pop_back();
        visit(part);
        for (const Node* next : {part.A, part.B, part.C, part.Next})
            if (next != nullptr) open.push_back(next);
    }
}

}  // namespace tamber
