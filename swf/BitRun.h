#pragma once

#include <bit>
#include <cstring>

#include "platform/types.h"

namespace tamber::mdlSWFTag {

/// Writes many bit fields in a row, with its state at hand until the end.
class BitRun {
public:
    /// Bytes that `bitCount` bits take at most, with the room that Put needs behind them.
    static constexpr std::size_t RoomFor(std::size_t bitCount) {
        return bitCount / 8 + sizeof(std::uint64_t) + 1;
    }

    /// Writes from `target` on, which has room for all that comes.
    explicit BitRun(Byte* target) : state_{target, 0, 0} {}

    /// Fields put side by side: 1 to 56 bits, higher ones 0.
    void Put(Long bitCount, std::uint64_t value) {
        state_.Pending = state_.Pending << bitCount | value;
        state_.Count += bitCount;
        std::uint64_t bytes = state_.Pending << (64 - state_.Count);
        if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
        std::memcpy(state_.Target, &bytes, sizeof bytes);
        state_.Target += state_.Count >> 3;
        state_.Count &= 7;
    }
    /// Behind the last byte, which zero bits fill up.
    Byte* AlignedEnd() const { return state_.Target + (state_.Count > 0 ? 1 : 0); }

protected:
    /// Passed by value, so that a compiler keeps it in registers.
    struct State {
        Byte* Target;
        std::uint64_t Pending;
        Long Count;
    };
    explicit BitRun(State state) : state_(state) {}

    State state_;
};

/// A run into the stream. Nothing else may write to it until the run ends.
class StreamRun : public BitRun {
public:
    /// Makes room for `maxBits` bits.
    explicit StreamRun(std::size_t maxBits) : BitRun(Begin(maxBits)) {}
    ~StreamRun() { End(state_); }
    StreamRun(const StreamRun&) = delete;
    StreamRun& operator=(const StreamRun&) = delete;

private:
    static State Begin(std::size_t maxBits);
    static void End(State state);
};

}  // namespace tamber::mdlSWFTag
