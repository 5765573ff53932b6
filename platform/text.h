#pragma once

#include <optional>

#include "platform/types.h"

namespace tamber {

/// Lower case of ASCII letters and of the full-width Latin, Greek and Cyrillic letters that code
/// page 932 has; other characters stay.
String FoldCase(StringView text);
bool EqualsNoCase(StringView a, StringView b);
bool StartsWithNoCase(StringView text, StringView prefix);

/// Decimal text of a whole number, "-" in front of negatives.
String ToText(Long value);
/// Up to seven significant digits, "." as point, exponent form ("1E+07", "1.5E-05") from 1E7 up and
/// below 1E-4.
String ToText(Single value);
/// "True" or "False".
String ToText(bool value);
/// Whole number with a comma at each third digit, as in "12,345".
String ToGroupedText(std::int64_t value);

/// True when the whole text is a decimal number, blanks at the ends allowed.
bool IsNumeric(StringView text);
/// Whole number from a decimal text; a fraction is rounded half to even. Error 13 for a text that
/// is no number, 6 for one that does not fit.
Long ToLong(StringView text);
/// Error 13 for a text that is no number, 6 for one beyond the range of a Single.
Single ToSingle(StringView text);
/// "True" and "False" in any letter case, or a number, non-zero being true. Error 13 otherwise.
bool ToBoolean(StringView text);
/// As ToLong, with error 6 outside 0 to 255.
Byte ToByte(StringView text);

/// Leading decimal number of a text as a settings file reads it: 0 when there is none.
Long LeadingNumber(StringView text);

String Trim(StringView text);
String ReplaceAll(StringView text, StringView from, StringView to);
/// Wildcards of a cell search: "*" any run, "?" one character, "#" one digit, "[a-z]" and "[!a-z]"
/// a class. Letter case counts.
bool Like(StringView text, StringView pattern);

}  // namespace tamber
