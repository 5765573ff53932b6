#include <map>

#include "script/compiler/Builtin.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/DottedPath.h"
#include "script/compiler/PlayerClasses.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

constexpr Long HiddenFromLoops = 1;
/// Of some 5 bytes each, so that a method of usual size fits behind them into a jump of 32 KB.
constexpr std::size_t ItemsPerHop = 2000;

}  // namespace

void CodeGenerator::Announce(const std::vector<Symbol*>& path) {
    std::string dotted;
    for (const Symbol* name : path) (dotted += dotted.empty() ? "" : ".") += name->Text;
    classes_.Announce(std::move(dotted));
}

/// A class is made once, unless it is there. Its packages are objects of the global one.
void CodeGenerator::Class(const Node& node) {
    const ClassNode& definition = *node.Class;
    ClassTable::Record& record = classes_.Define(definition);
    if (definition.IsIntrinsic) return;
    Skip skip{code_->NewLabel(node.At), code_->Items.size()};
    ClassPath(*definition.Name);
    code_->JumpIf(skip.End);
    if (definition.Name->Kind == NodeKind::Member) Package(*definition.Name->A);
    class_ = &record;
    Constructor(definition);
    class_ = nullptr;
    if (definition.Base != nullptr) Inherit(definition);
    if (definition.Interfaces.Count > 0) Implement(definition);
    class_ = &record;
    Members(definition, skip);
    HideMembers(definition);
    class_ = nullptr;
    code_->Place(skip.End);
}

/// if (!_global.a.b) _global.a.b = new Object();, from the outermost on.
void CodeGenerator::Package(const Node& node) {
    if (node.Kind == NodeKind::Member) Package(*node.A);
    const Label end = code_->NewLabel(node.At);
    ClassPath(node);
    code_->JumpIf(end);
    ClassOwner(node);
    code_->PushText(node.Name);
    Numeric(0);
    Text("Object");
    code_->Emit(Opcode::NewObject);
    code_->Emit(Opcode::SetMember);
    code_->Place(end);
}

/// The object in which a package or class lies.
void CodeGenerator::ClassOwner(const Node& node) {
    if (node.Kind == NodeKind::Member) return ClassPath(*node.A);
    Text("_global");
    code_->Emit(Opcode::GetVariable);
}

/// A package or a class, as a member of the global object.
void CodeGenerator::ClassPath(const Node& node) {
    ClassOwner(node);
    code_->PushText(node.Name);
    code_->Emit(Opcode::GetMember);
}

void CodeGenerator::Prototype(const Node& name) {
    ClassPath(name);
    Text("prototype");
    code_->Emit(Opcode::GetMember);
}

/// A class without a constructor has one that calls its base's.
void CodeGenerator::Constructor(const ClassNode& node) {
    ClassOwner(*node.Name);
    code_->PushText(node.Name->Name);
    if (node.Constructor != nullptr) {
        Function(*node.Constructor);
    } else {
        tamber::Node super;
        super.Kind = NodeKind::Super;
        tamber::Node call;
        call.Kind = NodeKind::Call;
        call.A = &super;
        FunctionNode function;
        function.At = node.At;
        function.RegisterCount = 2;
        if (node.Base != nullptr) {
            function.UsesSuper = true;
            function.Body = &call;
        }
        MadeFunction(function);
    }
    code_->Emit(Opcode::SetMember);
}

/// From version 7 on by an action; before, as the prototype's members say it.
void CodeGenerator::Inherit(const ClassNode& node) {
    if (version_ >= FirstRegisterVersion) {
        ClassPath(*node.Name);
        Expression(*node.Base);
        return code_->Emit(Opcode::Extends);
    }
    Prototype(*node.Name);
    code_->Emit(Opcode::PushDuplicate);
    Text("__proto__");
    Expression(*node.Base);
    Text("prototype");
    code_->Emit(Opcode::GetMember);
    code_->Emit(Opcode::SetMember);
    Text("__constructor__");
    Expression(*node.Base);
    code_->Emit(Opcode::SetMember);
}

/// Before version 7 players know no interfaces.
void CodeGenerator::Implement(const ClassNode& node) {
    if (version_ < FirstRegisterVersion) return;
    for (const tamber::Node* name = node.Interfaces.First; name; name = name->Next)
        Expression(*name);
    Numeric(node.Interfaces.Count);
    ClassPath(*node.Name);
    code_->Emit(Opcode::ImplementsOp);
}

/// What functions there are comes before the values, which may call them.
void CodeGenerator::Members(const ClassNode& node, Skip& skip) {
    MembersOfKind(node, MemberKind::Method, skip);
    Accessors(node, false, skip);
    Accessors(node, true, skip);
    MembersOfKind(node, MemberKind::Field, skip);
}

/// In the order of the text, members of the prototype and of the class itself.
void CodeGenerator::MembersOfKind(const ClassNode& node, MemberKind kind, Skip& skip) {
    for (const MemberNode* member = node.FirstMember; member; member = member->Next) {
        if (member->Kind != kind || member->Value == nullptr) continue;
        Hop(skip, member->At);
        member->IsStatic ? ClassPath(*node.Name) : Prototype(*node.Name);
        code_->PushText(member->Name);
        Expression(*member->Value);
        code_->Emit(Opcode::SetMember);
    }
}

/// Where one jump may be too short for a class, it lands between two members and goes on.
void CodeGenerator::Hop(Skip& skip, Spot spot) {
    if (code_->Items.size() < skip.From + ItemsPerHop) return;
    const Label over = code_->NewLabel(spot);
    const Label next = code_->NewLabel(spot);
    code_->Jump(over);
    code_->Place(skip.End);
    code_->Jump(next);
    code_->Place(over);
    skip = {next, code_->Items.size()};
}

/// addProperty(name, get, set) for each pair, or one of it. What gets and sets for an object is
/// also a method, which `super` and classes that have the other one reach.
void CodeGenerator::Accessors(const ClassNode& node, bool isStatic, Skip& skip) {
    std::map<std::uint32_t, std::pair<const MemberNode*, const MemberNode*>> pairs;
    for (const MemberNode* member = node.FirstMember; member; member = member->Next) {
        if (member->IsStatic != isStatic) continue;
        if (member->Kind == MemberKind::Getter) pairs[member->Name->Index].first = member;
        if (member->Kind == MemberKind::Setter) pairs[member->Name->Index].second = member;
    }
    for (const auto& [index, pair] : pairs) {
        Hop(skip, node.At);
        for (const MemberNode* accessor : {pair.first, pair.second})
            if (accessor != nullptr && !isStatic) AccessorMethod(node, *accessor);
        Symbol* const name = symbols_.At(index);
        AccessorFunction(node, pair.second, name, false);
        AccessorFunction(node, pair.first, name, true);
        code_->PushText(name);
        Numeric(3);
        isStatic ? ClassPath(*node.Name) : Prototype(*node.Name);
        Text("addProperty");
        code_->Emit(Opcode::CallMethod);
        code_->Emit(Opcode::Pop);
    }
}

Symbol* CodeGenerator::AccessorName(const Symbol& name, bool isGetter) {
    return symbols_.InternCopy(std::string(isGetter ? "__get__" : "__set__").append(name.Text));
}

void CodeGenerator::AccessorMethod(const ClassNode& node, const MemberNode& accessor) {
    Prototype(*node.Name);
    code_->PushText(AccessorName(*accessor.Name, accessor.Kind == MemberKind::Getter));
    Expression(*accessor.Value);
    code_->Emit(Opcode::SetMember);
}

/// What addProperty takes. A function that is called for a property does not know which class of
/// the object it is of, so one that names `super`, or that the base may have, is called as a method
/// by another. The player takes no property without a getter.
void CodeGenerator::AccessorFunction(const ClassNode& node, const MemberNode* accessor,
                                     Symbol* name, bool isGetter) {
    const bool isStatic = accessor != nullptr && accessor->IsStatic;
    const bool isForwarded =
        accessor == nullptr ? node.Base != nullptr : accessor->Value->Function->UsesSuper;
    Symbol* const method = AccessorName(*name, isGetter);
    if (isStatic) {
        Expression(*accessor->Value);
    } else if (isForwarded) {
        Forwarder(method, isGetter, node.At);
    } else if (accessor != nullptr) {
        Prototype(*node.Name);
        code_->PushText(method);
        code_->Emit(Opcode::GetMember);
    } else if (isGetter) {
        FunctionNode empty;
        empty.At = node.At;
        MadeFunction(empty);
    } else {
        code_->Emit(ItemKind::PushNull);
    }
}

/// function () { return this.method(); }, or for a setter with its value.
void CodeGenerator::Forwarder(Symbol* method, bool isGetter, Spot spot) {
    constexpr Byte ValueRegister = 2;
    NameNode parameter;
    parameter.Name = Known("value");
    parameter.Register = version_ >= FirstRegisterVersion ? ValueRegister : Symbol::NoRegister;
    tamber::Node value;
    value.Kind = NodeKind::Name;
    value.Name = parameter.Name;
    tamber::Node self;
    self.Kind = NodeKind::This;
    tamber::Node member;
    member.Kind = NodeKind::Member;
    member.A = &self;
    member.Name = method;
    tamber::Node call;
    call.Kind = NodeKind::Call;
    call.A = &member;
    tamber::Node result;
    result.Kind = NodeKind::Return;
    result.A = &call;
    FunctionNode function;
    function.At = spot;
    function.UsesThis = true;
    function.RegisterCount = ValueRegister + 1;
    function.Body = &result;
    if (!isGetter) {
        call.B = &value;
        call.Count = 1;
        function.Declared = function.LastDeclared = &parameter;
        function.ParameterCount = 1;
    }
    MadeFunction(function);
}

/// A function that the text does not have.
void CodeGenerator::MadeFunction(FunctionNode& function) {
    tamber::Node made;
    made.Kind = NodeKind::Function;
    made.Function = &function;
    Function(made);
}

/// Whether it is what `super` names a value that functions of the base get and set.
bool CodeGenerator::IsAccessorOfBase(const Node& node) {
    if (node.Kind != NodeKind::Member || node.A->Kind != NodeKind::Super || class_ == nullptr)
        return false;
    const ClassTable::Member found = classes_.FindAbove(*class_, *node.Name);
    return found.IsAccessor && found.Class == nullptr;
}

void CodeGenerator::HideMembers(const ClassNode& node) {
    PushInteger(HiddenFromLoops);
    code_->Emit(ItemKind::PushNull);
    Prototype(*node.Name);
    Numeric(3);
    Text("ASSetPropFlags");
    code_->Emit(Opcode::CallFunction);
    code_->Emit(Opcode::Pop);
}

/// A call of a class without new is a cast. Version 7 checks it; before, the value stays as it is.
bool CodeGenerator::Cast(const Node& node) {
    if (version_ < FirstStrictVersion || node.Count != 1) return false;
    const Node& callee = Meant(*node.A);
    const Symbol* first = FirstName(callee);
    if (first == nullptr || (!callee.Flag && IsHidden(callee))) return false;
    const bool isName = callee.Kind == NodeKind::Name;
    const bool isClass =
        callee.Flag || (!classes_.IsEmpty() && classes_.Contains(DottedPath(callee)));
    if (!isClass) {
        if (!isName || !IsPlayerClass(first->Text)) return false;
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
/// one that it extends has such a member. Those of the player's classes are only known in what runs
/// for one object.
ClassTable::Member CodeGenerator::FindMember(const Symbol* name) {
    if (class_ == nullptr || name->Declarations > 0) return {};
    const ClassTable::Member found = classes_.Find(*class_, *name);
    const bool isForOne = function_.Node != nullptr && function_.Node->IsMethod;
    return found.IsOfPlayer && !isForOne ? ClassTable::Member() : found;
}

/// The name of a class as a value, though something else may be called so where the code stands.
void CodeGenerator::PushClass(const Node& name) {
    version_ < FirstCaseVersion || IsHidden(name) ? ClassPath(name) : Expression(name);
}

/// Whether the name that a path begins with is that of a variable or a member here.
bool CodeGenerator::IsHidden(const Node& path) {
    const Symbol* first = FirstName(path);
    return first->Declarations > 0 || FindMember(first).IsFound;
}

/// Whether a call names a method of the class and no built-in function: one that an author's class
/// has, or one of the player's classes that acts on a timeline in a clip, or with other arguments
/// than the function's.
bool CodeGenerator::IsOwnMethod(const Builtin& builtin, const Node& call) {
    const ClassTable::Member found = FindMember(call.A->Name);
    return found.IsFound &&
           (!found.IsOfPlayer || IsMethodOfClip(builtin) || HasMethodArguments(builtin, call));
}

}  // namespace tamber
