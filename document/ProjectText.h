#pragma once

#include "document/cells/clsCSV.h"
#include "platform/Notice.h"
#include "platform/types.h"

namespace tamber {

/// Bytes of a project's text at most, for reading and for writing: what the memory at hand can
/// take, and far more than a real project holds.
inline constexpr std::size_t LargestProjectText = std::size_t{1} << 30;

/// The bytes of a project file: the table's text in code page 932, behind it the rows that tell
/// what the code page cannot hold, and one that keeps a text that could be UTF-8 from being taken
/// for it. `packed` for the compressed form: "KVFZ", the size of the text as four bytes, the lowest
/// first, and a zlib stream. A text above `largest` raises.
Bytes EncodeProjectText(clsCSV& csv, bool packed, std::size_t largest = LargestProjectText);

/// Reads the table of a project file, whichever form it has. A text that an editor has turned into
/// UTF-8 is read as such, which is told. False when the bytes are no project.
bool DecodeProjectText(ByteView bytes, clsCSV& csv, Notices& told);

}  // namespace tamber
