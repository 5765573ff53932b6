#pragma once

#include "swf/mdlSWFTag.h"

namespace tamber::test {

/// What a writer leaves in the stream.
template <class Writer>
Bytes Written(Writer write) {
    mdlSWFTag::InitBuffer();
    write();
    const ByteView bytes = mdlSWFTag::Written();
    return {bytes.begin(), bytes.end()};
}

}  // namespace tamber::test
