#include "tests/fuzz/vector_fuzz.h"
#include "vector/SwfReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tamber::clsVector vector;
    if (tamber::ReadSwfBytes({data, size}, vector)) tamber::test::UseArtwork(vector, size);
    return 0;
}
