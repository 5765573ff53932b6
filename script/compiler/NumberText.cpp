#include "script/compiler/NumberText.h"

#include <charconv>
#include <cmath>

namespace tamber {

namespace {

constexpr int Digits = 15;
/// Of the highest digit, in powers of ten.
constexpr int LowestPlain = -5;
constexpr int LowestWithExponent = 15;
constexpr std::size_t LongestText = 40;

std::string Formatted(double value, std::chars_format format, int decimals) {
    char text[LongestText];
    return {text, std::to_chars(text, text + LongestText, value, format, decimals).ptr};
}

std::string WithoutLastZeros(std::string text) {
    if (text.find('.') == text.npos) return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

}  // namespace

std::string NumberText(double value) {
    if (value == 0) return "0";
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value < 0 ? "-Infinity" : "Infinity";
    const std::string rounded = Formatted(value, std::chars_format::scientific, Digits - 1);
    const std::size_t mark = rounded.find('e');
    const int exponent = std::stoi(rounded.substr(mark + 1));
    if (exponent >= LowestPlain && exponent < LowestWithExponent)
        return WithoutLastZeros(Formatted(value, std::chars_format::fixed, Digits - 1 - exponent));
    return WithoutLastZeros(rounded.substr(0, mark)) + (exponent < 0 ? "e" : "e+") +
           std::to_string(exponent);
}

bool IsExactAsText(double value) {
    const std::string text = NumberText(value);
    double read = 0;
    std::from_chars(text.data(), text.data() + text.size(), read);
    return read == value;
}

}  // namespace tamber
