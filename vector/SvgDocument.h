#pragma once

#include <map>
#include <memory>
#include <variant>

#include "vector/SvgBudget.h"
#include "vector/SvgLeftOut.h"
#include "vector/clsSvgGradientData.h"

namespace tamber {

/// Where an element with an id stands in the text: the place of its "<", and that behind its end.
struct clsSvgIDInfo {
    std::size_t SIndex = 0;
    std::size_t EIndex = 0;
};

/// What an id stands for; the text is the value of an entity.
using SvgIdEntry =
    std::variant<std::string_view, clsSvgIDInfo, std::shared_ptr<clsSvgGradientData>>;

/// One drawing while it is read. Views point into the text.
class SvgDocument {
public:
    std::string_view Text;
    SvgLeftOut LeftOut;
    SvgBudget Budget;

    /// The first of several with one id stays.
    void AddId(std::string_view id, SvgIdEntry entry) {
        if (id.empty()) return;
        SvgBudget::Spend(Budget.Ids, 1);
        ids_.emplace(id, std::move(entry));
    }
    /// Null when the id stands for no such thing.
    template <class Entry>
    const Entry* FindId(std::string_view id) const {
        const auto found = ids_.find(id);
        return found != ids_.end() ? std::get_if<Entry>(&found->second) : nullptr;
    }

private:
    std::map<std::string_view, SvgIdEntry> ids_;
};

}  // namespace tamber
