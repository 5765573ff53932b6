#pragma once

#include "platform/types.h"

namespace tamber {

/// Encodings of text files, by the codes that scripts and editors know them under.
enum class TextEncoding {
    Detect = -1,
    Jis = 0,   ///< ISO-2022-JP, code page 50220
    Sjis = 1,  ///< code page 932
    Euc = 2,   ///< EUC-JP, code page 20932
    Utf8 = 3,
    Unicode = 4,  ///< UTF-16, by its mark, else the low byte first
    Utf7 = 6,
};

/// The encoding that the bytes look like: by a mark at the start, escape sequences, validity as
/// UTF-8, then by which of the Japanese double-byte encodings fits better. Code page 932 in doubt.
TextEncoding DetectEncoding(ByteView bytes);

/// Text of a file without its mark. What forms no character becomes a replacement; nothing behind
/// it is lost.
String DecodeText(ByteView bytes, TextEncoding encoding = TextEncoding::Detect);

/// Each line end as CR LF: a text that has none of these takes its CRs for line ends, or failing
/// those its LFs.
String WithCrLf(String text);

}  // namespace tamber
