#include <algorithm>

#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Versions.h"
#include "script/compiler/Vocabulary.h"

namespace tamber {

namespace {

/// Registers of a timeline's code for an object and its key; register 0 holds values.
constexpr Byte ObjectRegister = 1;
constexpr Byte KeyRegister = 2;

}  // namespace

/// A member of the class that is called like an imported class is meant by that name.
const Node& CodeGenerator::Meant(const Node& node) {
    const bool isImported =
        node.Flag && (node.Kind == NodeKind::Name || node.Kind == NodeKind::Member);
    return isImported && FindMember(node.D->Name).IsFound ? *node.D : node;
}

CodeGenerator::Place CodeGenerator::PlaceOf(const Node& told) {
    if (version_ < FirstObjectVersion) return PlaceOfVersion4(told);
    const Node& node = Meant(told);
    switch (node.Kind) {
        case NodeKind::Name: {
            if (node.Name->Register != Symbol::NoRegister)
                return {PlaceKind::Register, node.Name->Register, 0, node.Name};
            if (IsReachedByPath(node)) return PlaceOfClass(node);
            const ClassTable::Member found = FindMember(node.Name);
            if (!found.IsFound) CheckStatic(node);
            const bool isUncertain = !found.IsFound && !node.Flag && MayBeInherited(*node.Name);
            if (!found.IsFound && !isUncertain) return PlaceOfVariable(node);
            return {.Kind = PlaceKind::Member,
                    .Name = node.Name,
                    .Class = found.Class,
                    .IsWithin = function_.Withs > 0,
                    .IsUncertain = isUncertain};
        }
        case NodeKind::SlashPath:
            return {.Name = node.Name};
        case NodeKind::Member:
            if (IsAccessorOfBase(node)) return {.Kind = PlaceKind::Accessor, .Name = node.Name};
            if (IsReachedByPath(node)) return PlaceOfClass(node);
            if (const Node* owner = ClassWithMember(node))
                return {.Kind = PlaceKind::Member, .Name = node.Name, .Class = owner};
            if (node.Flag) return {.Kind = PlaceKind::Member, .Name = node.Name, .Class = node.A};
            return {PlaceKind::Member, 0, 0, node.Name, node.A};
        case NodeKind::Index:
            return {PlaceKind::Index, 0, 0, nullptr, node.A, node.B};
        default:
            return {PlaceKind::Named, 0, 0, nullptr, node.B};
    }
}

/// An object of a `with` may have a member that is called like a property.
CodeGenerator::Place CodeGenerator::PlaceOfVariable(const Node& name) const {
    const Symbol& symbol = *name.Name;
    const bool isProperty = symbol.Property != Symbol::NoProperty && symbol.Declarations == 0 &&
                            symbol.Alias == nullptr && function_.Withs == 0;
    return {.Property = symbol.Property,
            .Name = Called(name),
            .IsOfTarget = isProperty && IsInTarget()};
}

/// A class as what its package or the global object has.
CodeGenerator::Place CodeGenerator::PlaceOfClass(const Node& path) {
    return {.Kind = PlaceKind::Member, .Name = path.Name, .Class = &path, .IsClass = true};
}

/// Dots become slashes: a.b.x is "a/b:x". A property is one of a clip, which its path names.
CodeGenerator::Place CodeGenerator::PlaceOfVersion4(const Node& node) {
    std::string path;
    switch (node.Kind) {
        case NodeKind::Name:
            if (node.Name->Property != Symbol::NoProperty)
                return {PlaceKind::Property, 0, node.Name->Property, Known("")};
            return {.Name = SlashPathOf(node, path) && path != node.Name->Text
                                ? symbols_.InternCopy(path)
                                : node.Name};
        case NodeKind::SlashPath:
            return {.Name = symbols_.InternCopy(WithoutClipName(node.Name->Text))};
        case NodeKind::Member:
            if (!SlashPathOf(*node.A, path)) break;
            if (node.Name->Property != Symbol::NoProperty)
                return {PlaceKind::Property, 0, node.Name->Property, PathText(node, path)};
            if (!path.empty()) path += ':';
            return {.Name = PathText(node, path.append(node.Name->Text))};
        case NodeKind::Call:
            return {PlaceKind::Named, 0, 0, nullptr, node.B};
        default:
            break;
    }
    NeedVersion5(node);
    return {.Name = Known("")};
}

/// What a name with dots becomes may be longer than a text can be.
Symbol* CodeGenerator::PathText(const Node& node, std::string_view path) {
    if (path.size() > Symbol::MaxText) Complain(node, String(Symbol::TooLong));
    return symbols_.InternCopy(path);
}

void CodeGenerator::NeedVersion5(const Node& node) {
    Complain(node, u"SWF4では使用できません。SWF5以降にして下さい。");
}

/// Version 4 knows _root and _parent as "/" and ".." only.
std::string CodeGenerator::WithoutClipName(std::string_view path) {
    const std::size_t end = std::min(path.find_first_of("/:"), path.size());
    const std::string first = Lower(path.substr(0, end));
    const std::string_view rest = path.substr(end);
    if (first == "_parent") return std::string("..").append(rest);
    if (first != "_root") return std::string(path);
    return rest.starts_with('/') ? std::string(rest) : std::string("/").append(rest);
}

/// The path of a clip that a name with dots stands for; false for what is no such name.
bool CodeGenerator::SlashPathOf(const Node& node, std::string& path) const {
    std::vector<const Node*> parts;
    const Node* part = &node;
    for (; part->Kind == NodeKind::Member; part = part->A) parts.push_back(part);
    const auto add = [&](const Symbol& name) {
        if (!path.empty() && path.back() != '/') path += '/';
        path += name.Special == SpecialName::Parent ? ".." : name.Text;
    };
    const bool isNamed = part->Kind == NodeKind::SlashPath || part->Kind == NodeKind::Name;
    if (!isNamed && part->Kind != NodeKind::This) return false;
    if (isNamed) path = WithoutClipName(part->Name->Text);
    while (!parts.empty()) {
        add(*parts.back()->Name);
        parts.pop_back();
    }
    return true;
}

/// What Load and Store need on the stack.
void CodeGenerator::PushPlace(const Place& place) {
    switch (place.Kind) {
        case PlaceKind::Register:
        case PlaceKind::Accessor:
            return;
        case PlaceKind::Variable:
            return code_->PushText(place.Name);
        case PlaceKind::Property:
            code_->PushText(place.Name);
            return PushInteger(place.Property);
        case PlaceKind::Member:
            PushObject(place);
            return code_->PushText(place.Name);
        case PlaceKind::Index:
            Expression(*place.Object);
            return Expression(*place.Key);
        default:
            if (place.Name == nullptr) return Expression(*place.Object);
            code_->PushText(place.Name);
            return code_->Emit(Opcode::GetVariable);
    }
}

/// What a call or a construction needs on the stack: an object and the name of its method, or a
/// function and no name.
void CodeGenerator::PushCallee(const Place& place) {
    if (!place.IsUncertain) return PushPlace(place);
    const Label member = code_->NewLabel({});
    const Label end = code_->NewLabel({});
    PushPlace(place);
    code_->Emit(Opcode::GetMember);
    JumpIfDefined(member);
    code_->PushText(place.Name);
    code_->Emit(Opcode::GetVariable);
    code_->Emit(ItemKind::PushUndefined);
    code_->Jump(end);
    code_->Place(member);
    PushPlace(place);
    code_->Place(end);
}

/// Takes a value off the stack, and jumps unless it is undefined.
void CodeGenerator::JumpIfDefined(Label label) {
    code_->Emit(ItemKind::PushUndefined);
    code_->Emit(Opcode::StrictEquals);
    code_->Emit(Opcode::Not);
    code_->JumpIf(label);
}

/// The object that has a member.
void CodeGenerator::PushObject(const Place& place) {
    if (place.IsWithin)
        PushObjectWithin(place);
    else if (place.Object != nullptr)
        Expression(*place.Object);
    else
        PushOwnObject(place);
}

/// The object whose code names a member alone, or the class or package.
void CodeGenerator::PushOwnObject(const Place& place) {
    if (place.IsClass) return ClassOwner(*place.Class);
    if (place.Class == nullptr && IsInFieldValue()) return Prototype(*class_->Name);
    place.Class != nullptr ? PushClass(*place.Class) : This();
}

/// Of the objects of the `with` statements around the first that has such a member, the innermost
/// before the others.
void CodeGenerator::PushObjectWithin(const Place& place) {
    const Label found = code_->NewLabel({});
    for (int number = function_.Withs; number > 0; --number) {
        code_->PushText(WithName(number));
        code_->Emit(Opcode::GetVariable);
        code_->Emit(Opcode::PushDuplicate);
        code_->PushText(place.Name);
        code_->Emit(Opcode::GetMember);
        JumpIfDefined(found);
        code_->Emit(Opcode::Pop);
    }
    PushOwnObject(place);
    code_->Place(found);
}

void CodeGenerator::LoadPlace(const Place& place) {
    if (place.IsOfTarget) return LoadPropertyOfTarget(place.Property);
    PushPlace(place);
    Load(place);
}

/// As a variable it would be one of the script's own clip where there is no target.
void CodeGenerator::LoadPropertyOfTarget(Byte property) {
    code_->PushText(Known(""));
    PushInteger(property);
    code_->Emit(Opcode::GetProperty);
}

void CodeGenerator::Load(const Place& place) {
    switch (place.Kind) {
        case PlaceKind::Register:
            return code_->PushRegister(place.Register);
        case PlaceKind::Property:
            return code_->Emit(Opcode::GetProperty);
        case PlaceKind::Accessor:
            return CallAccessor(place, true);
        case PlaceKind::Member:
        case PlaceKind::Index:
            code_->Emit(Opcode::GetMember);
            if (place.IsUncertain) LoadVariableIfUndefined(*place.Name);
            return;
        default:
            return code_->Emit(Opcode::GetVariable);
    }
}

/// The value on the stack, or instead of none that of the variable.
void CodeGenerator::LoadVariableIfUndefined(Symbol& name) {
    const Label end = code_->NewLabel({});
    code_->Emit(Opcode::PushDuplicate);
    JumpIfDefined(end);
    code_->Emit(Opcode::Pop);
    code_->PushText(&name);
    code_->Emit(Opcode::GetVariable);
    code_->Place(end);
}

void CodeGenerator::Store(const Place& place) {
    switch (place.Kind) {
        case PlaceKind::Register:
            return code_->Emit(ItemKind::StoreRegister, place.Register);
        case PlaceKind::Property:
            return code_->Emit(Opcode::SetProperty);
        case PlaceKind::Accessor:
            CallAccessor(place, false);
            return code_->Emit(Opcode::Pop);
        case PlaceKind::Member:
        case PlaceKind::Index:
            return code_->Emit(Opcode::SetMember);
        default:
            return code_->Emit(Opcode::SetVariable);
    }
}

void CodeGenerator::Assign(const Node& node, bool isWanted) {
    const bool isPlain = node.Op == Operator::None;
    const Place place = NamedOnce(PlaceOf(*node.A), isWanted || !isPlain);
    ++changes_;
    isPlain ? AssignPlain(place, *node.B, isWanted) : Change(place, node.B, node.Op, isWanted);
    --changes_;
}

/// Version 4 has no action to copy a name that was worked out: when it is needed again, it is kept
/// in a variable.
CodeGenerator::Place CodeGenerator::NamedOnce(const Place& place, bool isNeededAgain) {
    const bool isNamed = place.Kind == PlaceKind::Named && version_ < FirstObjectVersion;
    if (!isNamed || !isNeededAgain || place.Object->Kind == NodeKind::Text) return place;
    Place kept = place;
    kept.Name = symbols_.InternCopy("$name" + std::to_string(changes_));
    code_->PushText(kept.Name);
    Expression(*place.Object);
    code_->Emit(Opcode::SetVariable);
    return kept;
}

void CodeGenerator::AssignPlain(const Place& place, const Node& value, bool isWanted) {
    if (place.Kind == PlaceKind::Register) {
        Expression(value);
        Store(place);
        if (!isWanted) code_->Emit(Opcode::Pop);
    } else if (isWanted && version_ >= FirstObjectVersion) {
        PushOwner(place);
        Expression(value);
        StoreKeeping(place);
    } else {
        PushPlace(place);
        Expression(value);
        Store(place);
        if (isWanted) LoadPlace(place);
    }
}

/// Functions have no registers of their own: one that is called to get or set a member may use
/// these too.
bool CodeGenerator::HasSharedRegisters() const {
    return version_ < FirstRegisterVersion;
}

/// What StoreKeeping needs below the value.
void CodeGenerator::PushOwner(const Place& place) {
    if (place.Kind == PlaceKind::Member) return PushObject(place);
    if (place.Kind != PlaceKind::Variable) PushPlace(place);
}

/// The owner, and above it the value of the place.
void CodeGenerator::LoadWithOwner(const Place& place) {
    if (place.Kind == PlaceKind::Index) {
        PushKeptPlace(place);
        code_->PushRegister(function_.Object);
        code_->PushRegister(function_.Key);
        return Load(place);
    }
    if (place.Kind == PlaceKind::Variable) return LoadPlace(place);
    PushOwner(place);
    const bool hasOwner = place.Kind == PlaceKind::Member || place.Kind == PlaceKind::Named;
    if (hasOwner) code_->Emit(Opcode::PushDuplicate);
    if (place.Kind == PlaceKind::Member) code_->PushText(place.Name);
    Load(place);
}

/// Stores the value that lies on the stack above the owner, or with an operator one more or less of
/// it. The value stays there, where no function that is called meanwhile can change it.
void CodeGenerator::StoreKeeping(const Place& place, Operator step) {
    const auto makeStep = [&] {
        if (step != Operator::None) ApplyChange(nullptr, step);
    };
    if (place.Kind == PlaceKind::Variable || place.Kind == PlaceKind::Accessor) {
        code_->Emit(Opcode::PushDuplicate);
        makeStep();
        if (place.Kind == PlaceKind::Variable) {
            code_->PushText(place.Name);
            code_->Emit(Opcode::StackSwap);
        }
        return Store(place);
    }
    code_->Emit(ItemKind::StoreRegister, 0);
    if (place.Kind == PlaceKind::Index && !HasSharedRegisters()) {
        makeStep();
        Store(place);
        return code_->PushRegister(0);
    }
    if (place.Kind == PlaceKind::Index) {
        code_->Emit(Opcode::Pop);
        TakeIndex();
        code_->PushRegister(0);
        PushIndex();
    } else {
        code_->Emit(Opcode::StackSwap);
        if (place.Kind == PlaceKind::Member) code_->PushText(place.Name);
    }
    code_->PushRegister(0);
    makeStep();
    Store(place);
}

/// An object and its key go from the stack into their registers.
void CodeGenerator::TakeIndex() {
    ChooseKeyRegisters();
    for (const Byte number : {function_.Key, function_.Object}) {
        code_->Emit(ItemKind::StoreRegister, number);
        code_->Emit(Opcode::Pop);
    }
}

void CodeGenerator::PushIndex() {
    code_->PushRegister(function_.Object);
    code_->PushRegister(function_.Key);
}

bool CodeGenerator::IsSimplePlace(const Place& place) const {
    if (place.IsWithin) return false;
    const Node* object = place.Class != nullptr ? place.Class : place.Object;
    const bool hasSimpleObject = object == nullptr || IsSimple(*object);
    return hasSimpleObject && (place.Key == nullptr || IsSimple(*place.Key));
}

/// Stores in a place what an operator makes of its value; without an operand, one more or less.
void CodeGenerator::Change(const Place& place, const Node* value, Operator op, bool isWanted) {
    if (place.Kind == PlaceKind::Register) {
        code_->PushRegister(place.Register);
        ApplyChange(value, op);
        Store(place);
        if (!isWanted) code_->Emit(Opcode::Pop);
    } else if (version_ < FirstObjectVersion || (!isWanted && IsSimplePlace(place))) {
        PushPlace(place);
        LoadPlace(place);
        ApplyChange(value, op);
        Store(place);
        if (isWanted) LoadPlace(place);
    } else {
        ChangeComplex(place, value, op, isWanted);
    }
}

/// What names the place is worked out once.
void CodeGenerator::ChangeComplex(const Place& place, const Node* value, Operator op,
                                  bool isWanted) {
    LoadWithOwner(place);
    ApplyChange(value, op);
    if (isWanted) return StoreKeeping(place);
    if (place.Kind == PlaceKind::Member) {
        code_->PushText(place.Name);
        code_->Emit(Opcode::StackSwap);
    }
    Store(place);
}

/// An object and its key, on the stack and in their registers.
void CodeGenerator::PushKeptPlace(const Place& place) {
    ChooseKeyRegisters();
    PushPlace(place);
    code_->Emit(ItemKind::StoreRegister, function_.Key);
    code_->Emit(Opcode::StackSwap);
    code_->Emit(ItemKind::StoreRegister, function_.Object);
    code_->Emit(Opcode::StackSwap);
}

/// What Store needs below the value that lies on the stack.
void CodeGenerator::PushPlaceUnderValue(const Place& place) {
    if (place.Kind == PlaceKind::Accessor) return;
    PushPlace(place);
    if (place.Kind != PlaceKind::Member && place.Kind != PlaceKind::Index)
        return code_->Emit(Opcode::StackSwap);
    TakeIndex();
    code_->Emit(ItemKind::StoreRegister, 0);
    code_->Emit(Opcode::Pop);
    PushIndex();
    code_->PushRegister(0);
}

/// Registers that nothing else uses, behind the function's variables where it has its own. Nothing
/// is worked out while they hold their values, so that one pair does for a function.
void CodeGenerator::ChooseKeyRegisters() {
    if (function_.Key != 0) return;
    if (function_.Record == NoRecord) {
        function_.Object = ObjectRegister;
        function_.Key = KeyRegister;
        return;
    }
    Byte& count = code_->Functions[function_.Record].RegisterCount;
    function_.Object = count++;
    function_.Key = count++;
}

void CodeGenerator::ApplyChange(const Node* value, Operator op) {
    if (value != nullptr) {
        TakesNumbers(op) ? NumericOperand(*value) : Expression(*value);
        code_->Emit(ActionOf(op));
    } else if (version_ >= FirstObjectVersion) {
        code_->Emit(op == Operator::Add ? Opcode::Increment : Opcode::Decrement);
    } else {
        PushInteger(1);
        code_->Emit(op == Operator::Add ? Opcode::Add : Opcode::Subtract);
    }
}

void CodeGenerator::Increment(const Node& node, bool isWanted) {
    const Place place = NamedOnce(PlaceOf(*node.A), true);
    ++changes_;
    if (node.Flag || !isWanted)
        Change(place, nullptr, node.Op, isWanted);
    else
        IncrementAfter(place, node.Op);
    --changes_;
}

/// The value before, as a number.
void CodeGenerator::IncrementAfter(const Place& place, Operator op) {
    const bool isApart = place.Kind == PlaceKind::Register || version_ < FirstObjectVersion;
    if (!isApart) {
        LoadWithOwner(place);
        code_->Emit(Opcode::ToNumber);
        return StoreKeeping(place, op);
    }
    LoadPlace(place);
    MakeNumber();
    Change(place, nullptr, op, false);
}

}  // namespace tamber
