#include <map>

#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Versions.h"

namespace tamber {

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

/// Whether it is what `super` names a value that functions of the base get and set.
bool CodeGenerator::IsAccessorOfBase(const Node& node) {
    if (node.Kind != NodeKind::Member || node.A->Kind != NodeKind::Super || class_ == nullptr)
        return false;
    const ClassTable::Member found = classes_.FindAbove(*class_, *node.Name);
    return found.IsAccessor && found.Class == nullptr;
}

/// The value to be set lies on the stack, and what the method gives comes there.
void CodeGenerator::CallAccessor(const Place& place, bool isGetter) {
    Numeric(isGetter ? 0 : 1);
    Super();
    code_->PushText(AccessorName(*place.Name, isGetter));
    code_->Emit(Opcode::CallMethod);
}

}  // namespace tamber
