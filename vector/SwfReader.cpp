#include "vector/SwfReader.h"

namespace tamber {

bool ReadSwfFile(StringView, clsVector&) { return false; }
bool ReadSwfBytes(ByteView, clsVector&) { return false; }

}  // namespace tamber
