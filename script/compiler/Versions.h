#pragma once

#include "platform/types.h"

namespace tamber {

/// First versions of the language that have what the names say. Version 4 knows texts only, and
/// names in slash syntax.

/// Objects, functions, values with types, a pool of constants, actions that copy and swap values.
inline constexpr Long FirstObjectVersion = 5;
/// Texts in UTF-8; before, in code page 932.
inline constexpr Long FirstUtf8Version = 6;
/// Actions for strict equality, for "greater", and to enumerate what has no name.
inline constexpr Long FirstStrictVersion = 6;
/// Functions with registers of their own, exceptions, actions for classes and casts.
inline constexpr Long FirstRegisterVersion = 7;
/// Names that are told apart by their case.
inline constexpr Long FirstCaseVersion = 7;

}  // namespace tamber
