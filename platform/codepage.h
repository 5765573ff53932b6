#pragma once

#include <string>

#include "platform/types.h"

namespace tamber {

/// Text to the ANSI code page, which is 932 on every platform. A character with a best fit there
/// takes it, one with no place becomes "?".
Bytes EncodeAnsi(StringView text);
/// Text from code page 932. A byte that begins no character, or a lead byte without its trail,
/// becomes one character and nothing behind it is lost.
String DecodeAnsi(ByteView bytes);
/// The text comes back from code page 932 as it was.
bool SurvivesAnsi(StringView text);

/// Lone surrogates become U+FFFD.
Bytes EncodeUtf8(StringView text);
/// Each malformed sequence becomes U+FFFD.
String DecodeUtf8(ByteView bytes);
/// The bytes hold no malformed sequence.
bool IsUtf8(ByteView bytes);

/// UTF-8 for the terminal and the file system.
std::string ToNarrow(StringView text);
String FromNarrow(std::string_view text);

}  // namespace tamber
