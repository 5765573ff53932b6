#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

constexpr Long HiddenFromLoops = 1;
/// Of some 5 bytes each, so that a method of usual size fits behind them into a jump of 32 KB.
constexpr std::size_t ItemsPerHop = 2000;

}  // namespace

void CodeGenerator::GenerateClasses() {
    code_ = &classCode_;
    const std::vector<const ClassNode*> order = classes_.InOrder();
    for (const ClassNode* definition : order)
        if (!StandsBehindBase(*definition)) Class(*definition);
    for (const ClassNode* definition : order)
        if (!StandsBehindBase(*definition) && !UsesVariables(*definition)) LateFields(*definition);
    code_ = &main_;
}

/// What of a class may need code that stands above it.
void CodeGenerator::ClassInPlace(const ClassNode& node) {
    const bool isSetUpHere = StandsBehindBase(node);
    if (isSetUpHere) Class(node);
    if (isSetUpHere || UsesVariables(node)) LateFields(node);
}

/// Whether the script's code may make the class that a class extends.
bool CodeGenerator::StandsBehindBase(const ClassNode& node) {
    return classes_.HasUnknownBase(*classes_.At(*node.Name));
}

/// Whether values of fields name variables of the script.
bool CodeGenerator::UsesVariables(const ClassNode& node) {
    std::vector<const Node*> open;
    for (const MemberNode* member = node.FirstMember; member; member = member->Next)
        if (member->Kind == MemberKind::Field && IsLate(*member)) open.push_back(member->Value);
    while (!open.empty()) {
        const Node& part = *open.back();
        open.pop_back();
        if (part.Next != nullptr) open.push_back(part.Next);
        if (part.Kind == NodeKind::Name && part.Name->IsOwn) return true;
        if (part.Kind == NodeKind::Name || part.Kind == NodeKind::Function) continue;
        for (const Node* child : {part.A, part.B, part.C})
            if (child != nullptr) open.push_back(child);
    }
    return false;
}

/// A class is made once, unless it is there. Its packages are objects of the global one.
void CodeGenerator::Class(const ClassNode& node) {
    if (node.IsIntrinsic) return;
    if (IsFull()) return TooLong(*node.Name);
    Skip skip{code_->NewLabel(node.At), code_->Items.size()};
    ClassPath(*node.Name);
    code_->JumpIf(skip.End);
    if (node.Name->Kind == NodeKind::Member) Package(*node.Name->A);
    ClassTable::Record* const record = classes_.At(*node.Name);
    class_ = record;
    Constructor(node);
    class_ = nullptr;
    if (node.Base != nullptr) Inherit(node);
    if (node.Interfaces.Count > 0) Implement(node);
    class_ = record;
    Members(node, skip);
    HideMembers(node);
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
    Methods(node, skip);
    Accessors(node, false, skip);
    Accessors(node, true, skip);
    Fields(node, false, skip);
    if (!HasLateFields(node)) return;
    PushMark(node);
    code_->Emit(ItemKind::PushBoolean, 1);
    code_->Emit(Opcode::SetMember);
}

void CodeGenerator::Methods(const ClassNode& node, Skip& skip) {
    for (const MemberNode* member = node.FirstMember; member; member = member->Next)
        if (member->Kind == MemberKind::Method) SetMember(node, *member, skip);
}

void CodeGenerator::Fields(const ClassNode& node, bool isLate, Skip& skip) {
    for (const MemberNode* member = node.FirstMember; member; member = member->Next)
        if (member->Kind == MemberKind::Field && member->Value != nullptr &&
            IsLate(*member) == isLate)
            SetMember(node, *member, skip);
}

/// A member of the prototype, or of the class itself.
void CodeGenerator::SetMember(const ClassNode& node, const MemberNode& member, Skip& skip) {
    Hop(skip, member.At);
    member.IsStatic ? ClassPath(*node.Name) : Prototype(*node.Name);
    code_->PushText(member.Name);
    Expression(*member.Value);
    code_->Emit(Opcode::SetMember);
}

/// Where all classes are there, the values that may need them, of a class that was made just now.
void CodeGenerator::LateFields(const ClassNode& node) {
    if (node.IsIntrinsic || !HasLateFields(node)) return;
    Skip skip{code_->NewLabel(node.At), code_->Items.size()};
    PushMark(node);
    code_->Emit(Opcode::GetMember);
    code_->Emit(Opcode::Not);
    code_->JumpIf(skip.End);
    PushMark(node);
    code_->Emit(Opcode::Delete);
    code_->Emit(Opcode::Pop);
    class_ = classes_.At(*node.Name);
    Fields(node, true, skip);
    class_ = nullptr;
    code_->Place(skip.End);
}

/// The member that a class has until its late fields are set.
void CodeGenerator::PushMark(const ClassNode& node) {
    ClassPath(*node.Name);
    Text("$new");
}

bool CodeGenerator::HasLateFields(const ClassNode& node) {
    for (const MemberNode* member = node.FirstMember; member; member = member->Next)
        if (member->Kind == MemberKind::Field && IsLate(*member)) return true;
    return false;
}

bool CodeGenerator::IsLate(const MemberNode& field) {
    return field.Value != nullptr && !IsPlainValue(*field.Value);
}

/// Whether a value needs nothing that the script defines.
bool CodeGenerator::IsPlainValue(const Node& node) {
    switch (node.Kind) {
        case NodeKind::Number:
        case NodeKind::Text:
        case NodeKind::Boolean:
        case NodeKind::Null:
        case NodeKind::Undefined:
        case NodeKind::Function:
            return true;
        case NodeKind::Unary:
            return IsPlainValue(*node.A);
        case NodeKind::Array:
            for (const Node* one = node.A; one != nullptr; one = one->Next)
                if (!IsPlainValue(*one)) return false;
            return true;
        case NodeKind::Object:
            for (const Node* entry = node.A; entry != nullptr; entry = entry->Next)
                if (!IsPlainValue(*entry->A)) return false;
            return true;
        default:
            return false;
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

/// A function that the text does not have.
void CodeGenerator::MadeFunction(FunctionNode& function) {
    tamber::Node made;
    made.Kind = NodeKind::Function;
    made.Function = &function;
    Function(made);
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

}  // namespace tamber
