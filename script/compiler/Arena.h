#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace tamber {

/// Memory that is taken piece by piece and given back at once. What lies in it is never destroyed,
/// so only types without a destructor belong there.
class Arena {
public:
    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    template <typename T, typename... Arguments>
    T* Make(Arguments&&... arguments) {
        static_assert(std::is_trivially_destructible_v<T>);
        return new (Take(sizeof(T))) T(std::forward<Arguments>(arguments)...);
    }
    /// Uninitialised bytes, aligned for any type.
    void* Take(std::size_t size) {
        size = (size + Alignment - 1) / Alignment * Alignment;
        if (size > left_) NextBlock(size);
        std::byte* taken = next_;
        next_ += size;
        left_ -= size;
        return taken;
    }
    /// A copy that lives as long as the arena's content.
    std::string_view Keep(std::string_view text) {
        char* copy = static_cast<char*>(Take(text.size()));
        text.copy(copy, text.size());
        return {copy, text.size()};
    }
    /// Gives everything back; the blocks stay for what comes next.
    void Reset() {
        block_ = 0;
        left_ = 0;
    }

private:
    static constexpr std::size_t Alignment = alignof(std::max_align_t);
    static constexpr std::size_t BlockSize = std::size_t{1} << 16;

    struct Block {
        std::unique_ptr<std::byte[]> Memory;
        std::size_t Size = 0;
    };

    void NextBlock(std::size_t size) {
        while (block_ < blocks_.size() && blocks_[block_].Size < size) ++block_;
        if (block_ == blocks_.size()) {
            const std::size_t length = size < BlockSize ? BlockSize : size;
            blocks_.push_back({std::unique_ptr<std::byte[]>(new std::byte[length]), length});
        }
        next_ = blocks_[block_].Memory.get();
        left_ = blocks_[block_].Size;
        ++block_;
    }

    std::vector<Block> blocks_;
    std::size_t block_ = 0;
    std::byte* next_ = nullptr;
    std::size_t left_ = 0;
};

}  // namespace tamber
