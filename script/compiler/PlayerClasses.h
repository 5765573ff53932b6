#pragma once

#include <functional>
#include <span>
#include <string_view>

namespace tamber {

/// Whether the player has a class of that whole name.
bool HasPlayerClass(std::string_view className);

/// Whether the members of a class of the player are told; of the others the name only is known.
bool TellsPlayerMembers(std::string_view className);

/// Whether a name is that of one of the player's classes, global functions or values.
bool HasPlayerGlobal(std::string_view name);

/// Whether objects of a class of the player, told by its whole name, have a member: one that its
/// instances have beside those that a version 4 property number stands for. Those of Object are not
/// told for the others.
bool HasPlayerMember(std::string_view className, std::string_view member);

/// Calls `visit` with each class of the player: its whole name, that of the class it extends or
/// nothing, and its members with blanks between them, as far as they are told.
void ForEachPlayerClass(
    const std::function<void(std::string_view name, std::string_view base,
                             std::string_view members)>& visit);

/// Whether objects of the class stand on the stage and have the properties with numbers.
bool IsOnStage(std::string_view className);

/// Whether a call of the name, that of a class of the player, is a cast that converts nothing.
bool IsCastableClass(std::string_view name);

/// Short names of the player's classes in a package; none for a package that it does not have.
std::span<const std::string_view> ClassesOfPackage(std::string_view package);

}  // namespace tamber
