#include "script/compiler/Builtin.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Vocabulary.h"

namespace tamber {

namespace {

constexpr Long FirstExtendsVersion = 7;
constexpr Long HiddenFromLoops = 1;
constexpr std::string_view ClipClass = "MovieClip";

}  // namespace

/// A class is made once, unless it is there. Its packages are objects of the global one.
void CodeGenerator::Class(const Node& node) {
    const ClassNode& definition = *node.Class;
    ClassRecord& record = classes_[DottedPath(*definition.Name)];
    record.Name = Kept(*definition.Name);
    record.Base = definition.Base == nullptr ? std::string() : DottedPath(*definition.Base);
    for (const MemberNode* member = definition.FirstMember; member; member = member->Next)
        record.Members[member->Name] = member->IsStatic;
    if (definition.IsIntrinsic) return;
    const Label end = code_->NewLabel(node.At);
    ClassPath(*definition.Name);
    code_->JumpIf(end);
    if (definition.Name->Kind == NodeKind::Member) Package(*definition.Name->A);
    class_ = &record;
    Constructor(definition);
    if (definition.Base != nullptr) Inherit(definition);
    if (definition.Interfaces.Count > 0) Implement(definition);
    Members(definition, false);
    Members(definition, true);
    HideMembers(definition);
    class_ = nullptr;
    code_->Place(end);
}

/// A copy of a class's name that stays.
const Node* CodeGenerator::Kept(const Node& name) {
    tamber::Node& kept = classNames_.emplace_back(name);
    if (name.Kind == NodeKind::Member) kept.A = const_cast<tamber::Node*>(Kept(*name.A));
    return &kept;
}

/// Empty for what is no name.
std::string CodeGenerator::DottedPath(const Node& node) const {
    std::vector<const Symbol*> members;
    const Node* part = &node;
    for (; part->Kind == NodeKind::Member; part = part->A) members.push_back(part->Name);
    if (part->Kind != NodeKind::Name && part->Kind != NodeKind::This) return {};
    std::string path(part->Kind == NodeKind::This ? "this" : part->Name->Text);
    for (; !members.empty(); members.pop_back()) (path += '.') += members.back()->Text;
    return path;
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
        tamber::Node made;
        made.Kind = NodeKind::Function;
        made.Function = &function;
        Function(made);
    }
    code_->Emit(Opcode::SetMember);
}

/// From version 7 on by an action; before, as the prototype's members say it.
void CodeGenerator::Inherit(const ClassNode& node) {
    if (version_ >= FirstExtendsVersion) {
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
    if (version_ < FirstExtendsVersion) return;
    for (const tamber::Node* name = node.Interfaces.First; name; name = name->Next)
        Expression(*name);
    Numeric(node.Interfaces.Count);
    ClassPath(*node.Name);
    code_->Emit(Opcode::ImplementsOp);
}

/// Methods and values of the prototype, or of the class itself.
void CodeGenerator::Members(const ClassNode& node, bool isStatic) {
    for (const MemberNode* member = node.FirstMember; member; member = member->Next) {
        if (member->IsStatic != isStatic) continue;
        const bool isAccessor =
            member->Kind == MemberKind::Getter || member->Kind == MemberKind::Setter;
        if (isAccessor || member->Value == nullptr) continue;
        isStatic ? ClassPath(*node.Name) : Prototype(*node.Name);
        code_->PushText(member->Name);
        Expression(*member->Value);
        code_->Emit(Opcode::SetMember);
    }
    Accessors(node, isStatic);
}

/// addProperty(name, get, set) for each pair, or one of it.
void CodeGenerator::Accessors(const ClassNode& node, bool isStatic) {
    std::map<std::uint32_t, std::pair<const MemberNode*, const MemberNode*>> pairs;
    for (const MemberNode* member = node.FirstMember; member; member = member->Next) {
        if (member->IsStatic != isStatic) continue;
        if (member->Kind == MemberKind::Getter) pairs[member->Name->Index].first = member;
        if (member->Kind == MemberKind::Setter) pairs[member->Name->Index].second = member;
    }
    const auto function = [&](const MemberNode* accessor) {
        if (accessor == nullptr)
            code_->Emit(ItemKind::PushNull);
        else
            Expression(*accessor->Value);
    };
    for (const auto& [index, pair] : pairs) {
        function(pair.second);
        function(pair.first);
        code_->PushText(symbols_.At(index));
        Numeric(3);
        isStatic ? ClassPath(*node.Name) : Prototype(*node.Name);
        Text("addProperty");
        code_->Emit(Opcode::CallMethod);
        code_->Emit(Opcode::Pop);
    }
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
    if (version_ < 6 || node.Count != 1) return false;
    const Node& callee = *node.A;
    if (callee.Kind != NodeKind::Name && callee.Kind != NodeKind::Member) return false;
    const bool isName = callee.Kind == NodeKind::Name;
    if (isName && (callee.Name->Declarations > 0 || FindMember(callee.Name).IsFound)) return false;
    if (classes_.empty() || !classes_.contains(DottedPath(callee))) {
        if (!isName || !IsPlayerClass(callee.Name->Text)) return false;
        Expression(*node.B);
        code_->CastOrCall(callee.Name);
        return true;
    }
    if (version_ >= FirstExtendsVersion) Expression(callee);
    Expression(*node.B);
    if (version_ >= FirstExtendsVersion) code_->Emit(Opcode::CastOp);
    return true;
}

/// Within a class a bare name that no function around declares is a member's, when the class or
/// one that it extends has such a member.
CodeGenerator::MemberFound CodeGenerator::FindMember(const Symbol* name) const {
    if (class_ == nullptr || name->Declarations > 0) return {};
    const ClassRecord* record = class_;
    for (std::size_t count = 0; count <= classes_.size(); ++count) {
        const auto found = record->Members.find(name);
        if (found != record->Members.end())
            return {true, found->second ? record->Name : nullptr, false};
        const auto base = classes_.find(record->Base);
        if (base == classes_.end()) {
            const bool isOfClip = record->Base == ClipClass && IsMemberOfClip(name);
            return {isOfClip, nullptr, isOfClip};
        }
        record = &base->second;
    }
    return {};
}

/// A class that extends clips has their members in what runs for one.
bool CodeGenerator::IsMemberOfClip(const Symbol* name) const {
    const bool isForOne = function_.Node != nullptr && function_.Node->IsMethod;
    return isForOne && (name->Property != Symbol::NoProperty || IsClipMember(name->Text));
}

/// Whether a call names a method of the class and no built-in function: one that an author's class
/// has, or one of clips that acts on a timeline or takes other arguments than the function.
bool CodeGenerator::IsOwnMethod(const Builtin& builtin, const Node& call) const {
    const MemberFound found = FindMember(call.A->Name);
    return found.IsFound &&
           (!found.IsOfClip || IsMethodOfClip(builtin) || !builtin.Takes(call.Count));
}

}  // namespace tamber
