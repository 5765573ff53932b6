#include "script/compiler/Builtin.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/DottedPath.h"
#include "script/compiler/PlayerClasses.h"
#include "script/compiler/Versions.h"

namespace tamber {

/// A call of a class without new is a cast. Version 7 checks it; before, the value stays as it is.
bool CodeGenerator::Cast(const Node& node) {
    if (version_ < FirstStrictVersion || node.Count != 1) return false;
    const Node& callee = Meant(*node.A);
    const Symbol* first = FirstName(callee);
    if (first == nullptr || (!callee.Flag && IsHidden(callee))) return false;
    const bool isName = callee.Kind == NodeKind::Name;
    if (!callee.Flag && ClassNamed(callee) == nullptr) {
        if (!isName || !IsCastableClass(first->Text)) return false;
        Expression(*node.B);
        code_->CastOrCall(callee.Name);
        return true;
    }
    if (version_ >= FirstRegisterVersion) Expression(callee);
    Expression(*node.B);
    if (version_ >= FirstRegisterVersion) code_->Emit(Opcode::CastOp);
    return true;
}

/// Within a class a bare name that no function around declares is a member's, when the class or
/// one that it extends has such a member. In a function that does not run for one object there is
/// none whose member it could mean; in the value of a field it is the prototype's, but those of the
/// player's classes are only known in functions.
ClassTable::Member CodeGenerator::FindMember(const Symbol* name) {
    if (class_ == nullptr || name->Declarations > 0) return {};
    const ClassTable::Member found = classes_.Find(*class_, *name);
    const bool needsObject = found.Class == nullptr && (!IsInFieldValue() || found.IsOfPlayer);
    return needsObject && !RunsForObject() ? ClassTable::Member() : found;
}

/// A static function cannot mean a member of an object, unless the name means something else there.
void CodeGenerator::CheckStatic(const Node& name) {
    if (class_ == nullptr || !IsInStatic() || name.Name->Declarations > 0) return;
    const Symbol& symbol = *name.Name;
    const bool isOther = symbol.IsOfScript() || symbol.BuiltinEntry != nullptr ||
                         symbol.Property != Symbol::NoProperty || HasPlayerGlobal(symbol.Text);
    if (isOther || function_.Withs > 0 || IsInTarget()) return;
    const ClassTable::Member found = classes_.Find(*class_, symbol);
    if (found.IsFound && found.Class == nullptr && !found.IsOfPlayer)
        Complain(name, u"static の関数の中では使用できません。インスタンスのメンバーです。");
}

/// Whether an object of the class may have a member of the name from a class that the script does
/// not tell of, and no variable of the script is meant.
bool CodeGenerator::MayBeInherited(const Symbol& name) {
    if (class_ == nullptr || !RunsForObject() || name.Declarations > 0 || name.IsSet) return false;
    const bool isMember = name.Special == SpecialName::None || name.Special == SpecialName::Parent;
    const bool isGlobal = name.Text.starts_with("_level") || HasPlayerGlobal(name.Text);
    return isMember && !isGlobal && classes_.UnknownBase(*class_) != nullptr;
}

/// The class of the script that a path names here; null when it names something else.
ClassTable::Record* CodeGenerator::ClassNamed(const Node& path) {
    if (classes_.IsEmpty()) return nullptr;
    const Node& meant = Meant(path);
    ClassTable::Record* named = classes_.At(meant);
    return named != nullptr && !meant.Flag && IsHidden(meant) ? nullptr : named;
}

/// The class that has the static member which a path names, perhaps through a class that extends
/// it; null for a path of another kind.
const Node* CodeGenerator::ClassWithMember(const Node& member) {
    ClassTable::Record* named = ClassNamed(*member.A);
    return named == nullptr ? nullptr : classes_.Find(*named, *member.Name).Class;
}

/// Whether a path must lead from the global object to a class: where names are the same in any
/// case, an object is often called like its class.
bool CodeGenerator::IsReachedByPath(const Node& node) {
    return version_ < FirstCaseVersion && ClassNamed(node) != nullptr;
}

/// The name of a class as a value, though something else may be called so where the code stands.
void CodeGenerator::PushClass(const Node& name) {
    version_ < FirstCaseVersion || IsHidden(name) ? ClassPath(name) : Expression(name);
}

/// Whether the name that a path begins with is that of a variable or a member here.
bool CodeGenerator::IsHidden(const Node& path) {
    const Symbol* first = FirstName(path);
    return first->IsOwn || first->Declarations > 0 || FindMember(first).IsFound;
}

/// Whether a call names a method of the class and no built-in function: one that an author's class
/// has, or one of the player's classes that acts on a timeline in a clip, or with other arguments
/// than the function's. A class of which the base is not known may be one of clips.
bool CodeGenerator::IsOwnMethod(const Builtin& builtin, const Node& call) {
    const ClassTable::Member found = FindMember(call.A->Name);
    if (found.IsFound && !found.IsOfPlayer) return true;
    return (found.IsFound || MayBeInherited(*call.A->Name)) &&
           (IsMethodOfClip(builtin) || HasMethodArguments(builtin, call));
}

}  // namespace tamber
