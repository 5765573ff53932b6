#include <zlib.h>

#include "tests/fuzz/picture_fuzz.h"

namespace {

using tamber::Byte;
using tamber::Bytes;

std::uint32_t Word(const Byte* bytes) {
    return static_cast<std::uint32_t>(bytes[0]) << 24 | bytes[1] << 16 | bytes[2] << 8 | bytes[3];
}

/// Puts the right check sum behind each chunk: a changed chunk would otherwise never be read.
void RepairCheckSums(Bytes& file) {
    constexpr std::size_t Around = 12;
    std::size_t at = 8;
    while (file.size() - at >= Around) {
        const std::size_t length = Word(file.data() + at);
        if (length > file.size() - at - Around) return;
        const auto sum = crc32(0, file.data() + at + 4, static_cast<uInt>(length + 4));
        for (std::size_t i = 0; i < 4; ++i)
            file[at + 8 + length + i] = static_cast<Byte>(sum >> (24 - 8 * i));
        at += length + Around;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Only files that begin like the seeds, so that the time goes into one reader.
    if (size < 8 || data[0] != 0x89 || data[1] != 'P') return 0;
    Bytes file(data, data + size);
    RepairCheckSums(file);
    tamber::test::ReadAndPrepare(file.data(), file.size());
    return 0;
}
