#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tamber {

using Byte = std::uint8_t;
using Long = std::int32_t;
using Single = float;
using String = std::u16string;
using StringView = std::u16string_view;
using Bytes = std::vector<Byte>;
using ByteView = std::span<const Byte>;

/// Line end of message texts and of text files.
inline constexpr StringView vbCrLf = u"\r\n";

}  // namespace tamber
