#include "vector/PdrReader.h"

namespace tamber {

bool ReadPdrFile(StringView, clsVector&) { return false; }
bool ReadPdrBytes(ByteView, clsVector&) { return false; }

}  // namespace tamber
