#include "vector/clsVectorBitmap.h"

#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {
constexpr std::size_t IdentifierBytes = 2;
}

void clsVectorBitmap::Save() {
    mdlSWFTag::SetTagHeader(tagNum_, static_cast<Long>(bufBitmap.size() + IdentifierBytes), false);
    mdlSWFTag::SetBytes(IdentifierBytes, ID);
    mdlSWFTag::SetByteArray(bufBitmap);
}

}  // namespace tamber
