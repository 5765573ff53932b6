#pragma once

#include <exception>

#include "platform/types.h"

namespace tamber {

/// Raised by a setter or conversion that refuses its value. Commands catch it at their edge.
struct RuntimeError : std::exception {
    Long Number;
    String Source;
    String Description;

    RuntimeError(Long number, String source, String description)
        : Number(number), Source(std::move(source)), Description(std::move(description)) {}

    const char* what() const noexcept override { return "tamber::RuntimeError"; }
};

inline constexpr Long ErrorOutOfRange = static_cast<Long>(0x80040000);
inline constexpr Long ErrorOutOfRangeInput = static_cast<Long>(0x80040001);
inline constexpr Long ErrorOutOfMemory = 7;
/// A text that stands for no number where one is needed.
inline constexpr Long ErrorTypeMismatch = 13;
/// A number beyond the range of its type.
inline constexpr Long ErrorOverflow = 6;

}  // namespace tamber
