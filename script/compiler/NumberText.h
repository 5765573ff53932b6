#pragma once

#include <string>

namespace tamber {

/// Integers below it are written without an exponent and exactly.
inline constexpr double LargestPlainInteger = 1e15;

/// The text that the player makes of a number: at most 15 digits, without an exponent from 0.00001
/// up to 1e15; that of -0 is "0".
std::string NumberText(double value);

/// Whether the text still tells the number.
bool IsExactAsText(double value);

}  // namespace tamber
