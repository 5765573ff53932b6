#pragma once

#include <map>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// Names that a class is known by, and the linkage names of the sprites that belong to it.
struct ClassScriptNames {
    String className;  ///< dots part the packages
    String Extends;    ///< base class, empty for none
    std::vector<String> Links;
};

/// Linkage names by class, in the order in which the sprites were met.
using ClassLinks = std::map<String, std::vector<String>>;

/// A member of a class body.
struct ClassMember {
    enum class KindOf { Constructor, Function, Variable };
    KindOf Kind = KindOf::Variable;
    String Name;
    /// From "(" to "}" of a function; the statement of a variable with a value, empty without one.
    String Text;
};

/// Part behind the last ".", or all of a name without one.
StringView classNameEx(StringView className);

/// The script that makes a class of its body: the members of the body, set up once when the movie
/// gets there. What cannot be read ends the class without a word.
String GenerateClassScript(StringView body, const ClassScriptNames& names);

/// Adds the lines that tie linkage names to a class.
void AppendRegisterClass(String& buffer, StringView className, const std::vector<String>& links);

/// Reads the member at `pos`, from 1, which moves behind it. False when there is none.
bool ParseClassMember(StringView body, Long& pos, ClassMember& member, StringView ownName);

}  // namespace tamber
