#include "platform/RecordingUserInterface.h"
#include "tests/fuzz/vector_fuzz.h"
#include "vector/PdrReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tamber::RecordingUserInterface ui;
    const tamber::UserInterfaceScope scope(ui);
    tamber::clsVector vector;
    if (tamber::ReadPdrBytes({data, size}, vector)) tamber::test::UseArtwork(vector, size);
    return 0;
}
