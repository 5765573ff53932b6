#pragma once

#include <array>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// A set of keywords with a name, as a file holds it: the name, then a word a line.
struct KeywordSet {
    String Name;
    std::vector<String> Words;

    /// A word that is there already, in whatever case, is not taken again.
    bool Add(StringView word);
    bool Remove(StringView word);
    static KeywordSet Parse(StringView text);
    String Text() const;
};

/// The five sets that colour a script.
class KeywordSets {
public:
    static constexpr std::size_t Count = 5;
    /// A keyword, and the set, from 0, that it stands in.
    struct Hit {
        std::size_t Set;
        StringView Spelling;
    };

    KeywordSets() = default;
    KeywordSets(const KeywordSets&) = delete;
    KeywordSets& operator=(const KeywordSets&) = delete;

    /// Reads "keyword1.txt" to "keyword5.txt" of a folder, each from its folder "default" where it
    /// is missing; where that is, too, the set is empty and without a name.
    void Load(StringView folder);
    /// Writes all sets into a folder. False when one cannot be written.
    bool Save(StringView folder) const;

    const KeywordSet& Set(std::size_t index) const { return sets_[index]; }
    void Set(std::size_t index, KeywordSet set);
    /// The first set that has a word, without regard to case.
    std::optional<Hit> Find(StringView word) const;

private:
    void Index();

    std::array<KeywordSet, Count> sets_;
    /// By the word in lower case.
    std::unordered_map<String, Hit> words_;
    std::size_t longest_ = 0;
};

/// A file of the person's own in a folder, or else the one in its folder "default"; empty when
/// there is neither.
String OwnOrDefault(StringView folder, StringView name);

}  // namespace tamber
