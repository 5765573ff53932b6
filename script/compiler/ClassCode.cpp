#include "script/compiler/ClassChecker.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/DottedPath.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

constexpr Long HiddenFromLoops = 1;
/// Of some 5 bytes each, so that a method of usual size fits behind them into a jump of 32 KB.
constexpr std::size_t ItemsPerHop = 2000;

}  // namespace

void CodeGenerator::GenerateClasses() {
    ClassChecker checker(classes_, faults_);
    const std::vector<const ClassNode*> order = classes_.InOrder();
    for (const ClassNode* definition : order) checker.Check(*definition);
    for (const ClassNode* definition : order) plans_[definition] = PlanOf(*definition);
    code_ = &classCode_;
    for (const ClassNode* definition : order)
        if (!plans_[definition].IsInPlace) Class(*definition);
    for (const ClassNode* definition : classes_.InOrderOfValues())
        if (!plans_[definition].HasValuesInPlace) LateFields(*definition);
    code_ = &main_;
}

/// What of a class may need code that stands above it.
void CodeGenerator::ClassInPlace(const ClassNode& node) {
    const ClassPlan plan = plans_[&node];
    if (plan.IsInPlace) Class(node);
    if (plan.HasValuesInPlace) LateFields(node);
}

/// A base that no class is, but a variable of the script, may be made above. Fields whose values
/// need more than the player has are set where that is there.
CodeGenerator::ClassPlan CodeGenerator::PlanOf(const ClassNode& node) {
    ClassTable::Record& record = *classes_.At(*node.Name);
    const Node* base = classes_.UnknownBase(record);
    ClassPlan plan;
    plan.IsInPlace = plan.HasValuesInPlace = base != nullptr && FirstName(*base)->IsSet;
    for (const MemberNode* member = node.FirstMember; member; member = member->Next) {
        if (member->Kind != MemberKind::Field || member->Value == nullptr) continue;
        const ValueNeeds needs = NeedsOf(*member->Value, record);
        if (needs == ValueNeeds::Nothing) continue;
        lateFields_.insert(member);
        plan.HasLateFields = true;
        plan.HasValuesInPlace = plan.HasValuesInPlace || needs == ValueNeeds::Code;
    }
    return plan;
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
    if (!node.IsInterface) Members(node, skip);
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
    PushBase(*node.Base);
    Text("prototype");
    code_->Emit(Opcode::GetMember);
    code_->Emit(Opcode::SetMember);
    Text("__constructor__");
    PushBase(*node.Base);
    code_->Emit(Opcode::SetMember);
}

/// Where names are the same in any case, an object may be called like a class of another script.
void CodeGenerator::PushBase(const Node& base) {
    const bool isOfOther = ClassNamed(base) == nullptr && !FirstName(base)->IsSet;
    if (!isOfOther) return Expression(base);
    const Label end = code_->NewLabel({});
    ClassPath(base);
    code_->Emit(Opcode::PushDuplicate);
    JumpIfDefined(end);
    code_->Emit(Opcode::Pop);
    Expression(base);
    code_->Place(end);
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
    for (const MemberNode* member = node.FirstMember; member; member = member->Next)
        if (member->Kind == MemberKind::Method) SetMember(node, *member, skip);
    Accessors(node, false, skip);
    Accessors(node, true, skip);
    Fields(node, false, skip);
    if (plans_[&node].HasLateFields) Mark(node);
    HideMembers(node);
}

/// A member of the prototype, or of the class itself.
void CodeGenerator::SetMember(const ClassNode& node, const MemberNode& member, Skip& skip) {
    Hop(skip, member.At);
    member.IsStatic ? ClassPath(*node.Name) : Prototype(*node.Name);
    code_->PushText(member.Name);
    Expression(*member.Value);
    code_->Emit(Opcode::SetMember);
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
