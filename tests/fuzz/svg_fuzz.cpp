#include "tests/fuzz/vector_fuzz.h"
#include "vector/SvgReader.h"

// A file that begins like a compressed one is read as one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const bool packed = size > 0 && (data[0] == 0x1F || data[0] == 120);
    tamber::clsVector vector;
    if (tamber::ReadSvgBytes({data, size}, packed ? u"svgz" : u"svg", vector))
        tamber::test::UseArtwork(vector, size);
    return 0;
}
