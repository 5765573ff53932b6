#include <algorithm>

#include "script/compiler/Builtin.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/PlayerClasses.h"
#include "script/compiler/ValueParts.h"

namespace tamber {

CodeGenerator::ValueNeeds CodeGenerator::NeedsOf(const Node& value, ClassTable::Record& record) {
    ValueNeeds most = ValueNeeds::Nothing;
    ForEachPart(value, [&](const Node& part) {
        const bool isOfTimeline =
            part.Kind == NodeKind::This || part.Kind == NodeKind::SlashPath || IsEvaluation(part);
        if (isOfTimeline)
            most = ValueNeeds::Code;
        else if (part.Kind == NodeKind::Name)
            most = std::max(most, NeedsOfName(*part.Name, record));
    });
    return most;
}

/// Names of the timeline, and of its variables that the script sets, stand for what its code has
/// made so far.
CodeGenerator::ValueNeeds CodeGenerator::NeedsOfName(const Symbol& name,
                                                     ClassTable::Record& record) {
    const ClassTable::Member member = classes_.Find(record, name);
    if (member.IsFound && !member.IsOfPlayer) return ValueNeeds::Classes;
    const bool isOfTimeline = name.Special == SpecialName::Root ||
                              name.Special == SpecialName::Parent ||
                              name.Special == SpecialName::Global;
    if (classes_.BeginsClass(name) && !name.IsOwn) return ValueNeeds::Classes;
    if (name.IsOfScript() || isOfTimeline) return ValueNeeds::Code;
    const bool isOfPlayer = name.BuiltinEntry != nullptr || HasPlayerGlobal(name.Text);
    return isOfPlayer ? ValueNeeds::Nothing : ValueNeeds::Classes;
}

/// In the order of the text, of a class those fields that are late, or the others.
void CodeGenerator::Fields(const ClassNode& node, bool areLate, Skip& skip) {
    for (const MemberNode* member = node.FirstMember; member; member = member->Next)
        if (member->Kind == MemberKind::Field && member->Value != nullptr &&
            lateFields_.contains(member) == areLate)
            SetMember(node, *member, skip);
}

/// The late fields of a class that was made just now.
void CodeGenerator::LateFields(const ClassNode& node) {
    if (node.IsIntrinsic || !plans_[&node].HasLateFields) return;
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
    HideMembers(node);
    class_ = nullptr;
    code_->Place(skip.End);
}

void CodeGenerator::Mark(const ClassNode& node) {
    PushMark(node);
    code_->Emit(ItemKind::PushBoolean, 1);
    code_->Emit(Opcode::SetMember);
}

/// What the prototype has until the late fields are set.
void CodeGenerator::PushMark(const ClassNode& node) {
    Prototype(*node.Name);
    Text("$new");
}

}  // namespace tamber
