#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "document/symbols/clsLayer.h"

namespace tamber {

/// A character, and how many depths it takes: as many identifiers up to `Identifier` as there are
/// depths follow each other for a divided drawing, of which this is the first.
struct ShownCharacter {
    Long Identifier = 0;
    Long PlaceCount = 1;
};

/// The characters that one layer shows. A layer of another kind has a class of its own here.
class LayerCharacters {
public:
    virtual ~LayerCharacters() = default;

    /// What is placed first.
    virtual ShownCharacter First() const = 0;
    /// The character that is made for a key frame's outline; within a tween also for that of the
    /// `end`, else null.
    virtual ShownCharacter Own(const clsLayerObject& /*start*/, const clsLayerObject* /*end*/) {
        return First();
    }
    /// The character of a picture, from 0 and without an end.
    virtual Long Picture(std::int64_t /*number*/) const { return First().Identifier; }
};

/// One character for all key frames.
class SingleCharacter : public LayerCharacters {
public:
    explicit SingleCharacter(ShownCharacter character) : character_(character) {}
    ShownCharacter First() const override { return character_; }

private:
    ShownCharacter character_;
};

/// Pictures in turn, which begin anew behind the last one.
class KomaCharacters : public LayerCharacters {
public:
    /// `identifiers` of the pictures in order, one at least.
    explicit KomaCharacters(std::vector<Long> identifiers) : identifiers_(std::move(identifiers)) {}
    ShownCharacter First() const override { return {identifiers_.front(), 1}; }
    Long Picture(std::int64_t number) const override {
        return identifiers_[static_cast<std::size_t>(number) % identifiers_.size()];
    }

private:
    std::vector<Long> identifiers_;
};

}  // namespace tamber
