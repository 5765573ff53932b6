#pragma once

#include <map>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// What the player offers to scripts, as an editor shows it.
namespace PlayerHints {

struct Member {
    String Name;
    /// With the brackets; empty for what is no function.
    String Arguments{};
    /// Of the value or the result; empty where it is not told.
    String Type{};
};

/// By the name in lower case.
using Members = std::map<String, Member>;

/// Functions that belong to no object.
const Members& Globals();
/// Members of the objects of a class, told by its whole name, with those of its base. A class that
/// is not known has none.
const Members& MembersOf(const String& className);
/// What stands on a class itself.
const Members& StaticsOf(const String& className);
/// Short and whole names of the player's classes.
const std::vector<String>& Classes();
/// Classes of a package, and packages within it.
std::vector<String> Within(StringView package);
/// The class that the ending of an instance's name tells, as "_mc" does; empty for none.
StringView ClassOfSuffix(StringView name);

}  // namespace PlayerHints

}  // namespace tamber
