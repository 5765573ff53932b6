#include "effects/clsEffectParam.h"

#include <string>

namespace tamber {

void clsEffectParam::ParamElement(StringView text) {
    element_ = text;
    std::erase_if(element_, [](char16_t c) { return c == u'\r' || c == u'\n'; });
}

}  // namespace tamber
