#include "tests/fuzz/picture_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Only files that begin like the seeds, so that the time goes into one reader.
    if (size < 2 || data[0] != 'B' || data[1] != 'M') return 0;
    tamber::test::ReadAndPrepare(data, size);
    return 0;
}
