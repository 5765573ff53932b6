#pragma once

#include <optional>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// Finds a text in scripts, without regard to case.
class TextSearch {
public:
    explicit TextSearch(StringView wanted, bool matchCase = false);

    /// First place from `from` on, in UTF-16 units.
    std::optional<std::size_t> Next(StringView text, std::size_t from) const;
    /// Last place that ends before or at `until`.
    std::optional<std::size_t> Previous(StringView text, std::size_t until) const;
    std::size_t Length() const { return wanted_.size(); }

private:
    String wanted_;
    bool matchCase_;
};

/// The texts that were looked for, the last one first.
class SearchHistory {
public:
    static constexpr std::size_t Most = 16;

    void Add(StringView wanted);
    const std::vector<String>& Texts() const { return texts_; }

private:
    std::vector<String> texts_;
};

}  // namespace tamber
