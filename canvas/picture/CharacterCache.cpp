#include "canvas/picture/CharacterCache.h"

#include <xxhash.h>

#include <utility>

namespace tamber {

CharacterCache::Key CharacterCache::KeyOf(Long tag, ByteView body) {
    const XXH128_hash_t hash =
        XXH3_128bits_withSeed(body.data(), body.size(), static_cast<XXH64_hash_t>(tag));
    return {hash.low64, hash.high64};
}

void CharacterCache::Keep(const Key& key, std::vector<Reference> references,
                          std::shared_ptr<Character> character) {
    entries_.emplace(key, Entry{std::move(references), std::move(character)});
}

void CharacterCache::Sweep() {
    std::erase_if(entries_, [](const auto& entry) { return !entry.second.blUsed; });
    for (auto& entry : entries_) entry.second.blUsed = false;
}

}  // namespace tamber
