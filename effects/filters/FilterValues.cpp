#include "effects/filters/FilterValues.h"

#include <algorithm>
#include <cmath>

#include "platform/rounding.h"

namespace tamber {

namespace {

Single FourDecimals(Single value, Single lowest, Single highest) {
    const double limited = std::clamp(value, lowest, highest);
    return static_cast<Single>(std::nearbyint(limited * 10000) / 10000);
}

}  // namespace

Single FilterNumber(Single value) {
    return FourDecimals(value, -32768.0F, 32767.99F);
}

Single FilterStrength(Single value) {
    return FourDecimals(value, 0.0F, 255.99F);
}

void SetFilterColor(Long color, Byte& red, Byte& green, Byte& blue) {
    red = static_cast<Byte>(color & 255);
    green = static_cast<Byte>(color >> 8 & 255);
    blue = static_cast<Byte>(color >> 16 & 255);
}

String FilterColorText(Long color) {
    static constexpr StringView digits = u"0123456789ABCDEF";
    String text = u"#";
    for (const int shift : {4, 0, 12, 8, 20, 16})
        text.push_back(digits[static_cast<std::size_t>(color >> shift & 15)]);
    return text;
}

Single Mix(Single a, Single b, double weightA, double weightB) {
    return static_cast<Single>(double{a} * weightA + double{b} * weightB);
}

Long MixLong(Long a, Long b, double weightA, double weightB) {
    return RoundToLong(a * weightA + b * weightB);
}

}  // namespace tamber
