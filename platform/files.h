#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// Reads a whole file, or `count` bytes from `offset`. False when it cannot be opened or read; a
/// folder is no file.
bool ReadFileBytes(StringView path, Bytes& bytes, std::uint64_t offset = 0,
                   std::uint64_t count = UINT64_MAX);
/// Bytes of a regular file; nothing for anything else.
std::optional<std::uint64_t> FileSize(StringView path);
/// Fills a prepared array from the file's start and returns the bytes read.
std::size_t ReadFileHead(std::span<Byte> bytes, StringView path);

/// Puts a whole new file at `path`: the bytes go into a file beside it, are flushed, and take the
/// name in one step. False leaves an earlier file as it was and nothing beside it. With `replace`
/// false an existing file is left and the result is false. A link is followed; a device or pipe is
/// written to as it stands; a file without permission to write stays. What a write that was killed
/// left in the folder is removed.
bool WriteFileBytes(ByteView bytes, StringView path, bool replace = true);
/// Why the last write of this thread failed, in words for the user; empty when it did not.
String WriteFault();

/// Removes a file. False when it is not there or stays.
bool DeleteFile(StringView path);
/// Names of the files in a folder whose lower-cased name matches the wildcards of Like, sorted;
/// none when there is no such folder.
std::vector<String> ListFiles(StringView folder, StringView pattern);

/// Called before each step of a write (create, write, flush, close, rename) when it is set; false
/// fails the step. Lets a test stop a save anywhere.
std::function<bool()>& BeforeWriteStep();

}  // namespace tamber
