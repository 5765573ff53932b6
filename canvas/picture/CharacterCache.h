#pragma once

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <vector>

#include "canvas/picture/Character.h"
#include "platform/types.h"

namespace tamber {

/// What movies defined, by the bytes of the definitions, so that a movie that differs little from
/// the one before is read fast, and what did not change is known to be the same. It holds what the
/// last movie used.
class CharacterCache {
public:
    using Reference = std::pair<Long, std::shared_ptr<const Character>>;

    /// A definition's bytes, behind its identifier.
    struct Key {
        std::uint64_t Low = 0;
        std::uint64_t High = 0;
        bool operator==(const Key&) const = default;
    };
    static Key KeyOf(Long tag, ByteView body);

    /// The character of a definition that referred to the same others, as `find` knows them by
    /// their identifiers; or null.
    template <class Find>
    std::shared_ptr<Character> Known(const Key& key, Find find) {
        const auto [first, end] = entries_.equal_range(key);
        for (auto entry = first; entry != end; ++entry) {
            Entry& known = entry->second;
            const bool isSame =
                std::all_of(known.References.begin(), known.References.end(),
                            [&find](const Reference& to) { return find(to.first) == to.second; });
            if (!isSame) continue;
            known.blUsed = true;
            return known.Defined;
        }
        return nullptr;
    }
    void Keep(const Key& key, std::vector<Reference> references,
              std::shared_ptr<Character> character);
    /// Drops what was not asked for since the last time.
    void Sweep();

private:
    struct Entry {
        std::vector<Reference> References;
        std::shared_ptr<Character> Defined;
        bool blUsed = true;
    };
    struct Hash {
        std::size_t operator()(const Key& key) const { return key.Low; }
    };

    std::unordered_multimap<Key, Entry, Hash> entries_;
};

}  // namespace tamber
