#include "vector/SvgReader.h"

namespace tamber {

bool ReadSvgFile(StringView, StringView, clsVector&) { return false; }
bool ReadSvgBytes(ByteView, StringView, clsVector&) { return false; }

}  // namespace tamber
