#pragma once

#include <optional>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// Something that can be put in at the caret.
struct Candidate {
    enum class KindOf { Keyword, Variable, Function, Member, Class, Instance, Label, Snippet };

    String Text;
    KindOf Kind = KindOf::Variable;
    /// Arguments of a function, as in "(x:Number, y:Number)"; the type of others, if known.
    String Detail{};
};

/// The sorted list of candidates and the one that is chosen.
class CandidateList {
public:
    CandidateList() = default;
    /// Sorts without regard to case; of equal texts the first one stays.
    explicit CandidateList(std::vector<Candidate> candidates);

    const std::vector<Candidate>& All() const { return candidates_; }
    /// Chooses a text, or else the one that it would stand before, or else the last one. Nothing in
    /// an empty list.
    void SetString(StringView text);
    std::optional<std::size_t> Selected() const { return selected_; }
    void Select(std::size_t index) { selected_ = index; }

private:
    std::vector<Candidate> candidates_;
    std::optional<std::size_t> selected_;
};

}  // namespace tamber
