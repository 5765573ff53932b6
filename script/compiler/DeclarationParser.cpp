#include <utility>

#include "script/compiler/Parser.h"
#include "script/compiler/ParserLevel.h"
#include "script/compiler/ParserState.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

/// A function has 255; what stands above is for values in between.
constexpr int MaxRegister = 240;

/// Whether a path leads to a variable of a clip, which is there before the script runs.
bool IsAtClip(const Node& path) {
    if (path.Kind == NodeKind::SlashPath) return true;
    const Node& object = *path.A;
    if (object.Kind != NodeKind::Name) return object.Kind == NodeKind::This;
    const Symbol& name = *object.Name;
    return name.Special == SpecialName::Root || name.Special == SpecialName::Parent ||
           name.Special == SpecialName::Global || name.Text.starts_with("_level");
}

int PreloadedCount(const FunctionNode& function) {
    return (function.UsesThis || function.IsMethod) + function.UsesArguments + function.UsesSuper +
           function.UsesRoot + function.UsesParent + function.UsesGlobal;
}

}  // namespace

Parser::DeclaredPlace Parser::DeclaredName(StringView what, Lexer::PathForm form) {
    if (Node* path = SlashPath(form)) return {.Path = MembersOf(path)};
    if (Is(TokenKind::This) && Peek().Kind == TokenKind::Dot) return {.Path = MembersOf(Primary())};
    const Spot spot = token_.At;
    Symbol* name = TakeName(what);
    if (!Is(TokenKind::Dot)) return {.Name = name};
    return {.Path = MembersOf(Named(name, spot))};
}

/// One that the script's own statements may have to make a place for is made in its turn.
Node* Parser::FunctionStatement() {
    const Spot spot = token_.At;
    Advance();
    const DeclaredPlace declared = DeclaredName(u"関数名", Lexer::PathForm::WithColon);
    if (declared.Path != nullptr)
        CheckTarget(*declared.Path);
    else
        DeclareFunction(declared.Name);
    Node* node = FunctionRest(declared.Name, spot);
    if (declared.Path != nullptr && !IsAtClip(*declared.Path))
        return AssignmentTo(declared.Path, node);
    node->A = declared.Path;
    node->Flag = true;
    if (function_ == nullptr || blocks_ > 0) return node;
    function_->Functions.Add(node);
    return Make(NodeKind::Empty, spot);
}

Node* Parser::AssignmentTo(Node* target, Node* value) {
    Node* statement = Make(NodeKind::Expression, value->At);
    statement->A = Make(NodeKind::Assign, value->At);
    statement->A->A = target;
    statement->A->B = value;
    return statement;
}

/// A function with a name becomes a variable of that name.
void Parser::DeclareFunction(Symbol* name) {
    Declare(name);
    KeepNamed(name);
}

/// What stands behind the name: parameters, the type of the result, the body.
Node* Parser::FunctionRest(Symbol* name, Spot spot) {
    const Level level(*this);
    NeedVersion(5, "function", spot);
    Node* node = Make(NodeKind::Function, spot);
    FunctionNode* function = arena_.Make<FunctionNode>();
    node->Function = function;
    function->Name = name;
    const bool inMethod = function_ != nullptr ? function_->IsMethod : inObjectField_;
    const bool isDerived = std::exchange(isDerivedNext_, false);
    function->IsMethod = std::exchange(isMethodNext_, false) || inMethod;
    function->IsStatic = std::exchange(isStaticNext_, false);
    function->At = spot;
    function->Number = ++functionCount_;
    function->Depth = function_ == nullptr ? 1 : function_->Depth + 1;
    FunctionNode* const outer = std::exchange(function_, function);
    Node* const target = std::exchange(target_, nullptr);
    const int loops = std::exchange(loops_, 0);
    const int switches = std::exchange(switches_, 0);
    const int blocks = std::exchange(blocks_, 0);
    const int colons = std::exchange(colonsAwaited_, 0);
    const std::size_t firstUse = uses_.size();
    const std::size_t firstGuard = std::exchange(firstGuard_, guards_.size());
    Parameters(*function);
    SkipType();
    Expect(TokenKind::OpenBrace, u"{");
    NodeList body;
    StatementsUntilBrace(body);
    function->Body = body.First;
    if (isDerived && !function->CallsSuper) CallBaseFirst(*function);
    loops_ = loops;
    switches_ = switches;
    blocks_ = blocks;
    colonsAwaited_ = colons;
    firstGuard_ = firstGuard;
    function_ = outer;
    target_ = target;
    if (outer != nullptr && function->NeedsNames) outer->NeedsNames = true;
    CloseFunction(*function, firstUse);
    return node;
}

/// A constructor that does not say how its base's is called calls it without arguments.
void Parser::CallBaseFirst(FunctionNode& function) {
    Node* statement = Make(NodeKind::Expression, function.At);
    statement->A = Make(NodeKind::Call, function.At);
    statement->A->A = Make(NodeKind::Super, function.At);
    statement->Next = function.Body;
    function.Body = statement;
    function.UsesSuper = true;
}

void Parser::CloseFunction(FunctionNode& function, std::size_t firstUse) {
    if (version_ >= FirstRegisterVersion && !function.NeedsNames)
        ChooseRegisters(function, firstUse);
    for (NameNode* name = function.LastDeclared; name != nullptr; name = name->Previous)
        name->Name->DeclaredIn = name->OuterDeclaration;
    if (function.Depth == 1) uses_.clear();
}

void Parser::Parameters(FunctionNode& function) {
    Expect(TokenKind::OpenParenthesis, u"(");
    if (!Is(TokenKind::CloseParenthesis)) {
        do Parameter(function);
        while (Accept(TokenKind::Comma));
    }
    Expect(TokenKind::CloseParenthesis, u")");
}

/// Of two with one name the player takes the later, by the name.
void Parser::Parameter(FunctionNode& function) {
    const Spot spot = token_.At;
    Symbol* name = TakeName(u"引数の名前");
    if (name->DeclaredIn == function.Number) {
        diagnostics_.Warn(spot, name->Text, u"同じ名前の引数があります。後のものだけが働きます。");
        KeepNamed(name);
    }
    AddDeclared(name);
    ++function.ParameterCount;
    SkipType();
}

void Parser::Declare(Symbol* name) {
    if (function_ == nullptr) NoteOwn(*name);
    if (function_ != nullptr && name->DeclaredIn != function_->Number) AddDeclared(name);
}

void Parser::AddDeclared(Symbol* name) {
    NameNode* node = arena_.Make<NameNode>();
    node->Name = name;
    node->OuterDeclaration = name->DeclaredIn;
    node->Previous = function_->LastDeclared;
    (function_->Declared == nullptr ? function_->Declared : function_->LastDeclared->Next) = node;
    function_->LastDeclared = node;
    name->DeclaredIn = function_->Number;
}

/// Variables that only the function itself reaches, and none by a name, live in registers behind
/// those that are filled before it starts.
void Parser::ChooseRegisters(FunctionNode& function, std::size_t firstUse) {
    for (std::size_t i = firstUse; i < uses_.size(); ++i)
        if (uses_[i].Depth > function.Depth) uses_[i].Name->NamedIn = function.Number;
    int next = 1 + PreloadedCount(function);
    for (NameNode* name = function.Declared; name != nullptr && next < MaxRegister;
         name = name->Next)
        if (name->Name->NamedIn != function.Number) name->Register = static_cast<Byte>(next++);
    function.RegisterCount = static_cast<Byte>(next);
}

Node* Parser::DottedName() {
    Node* node = Make(NodeKind::Name, token_.At);
    node->Name = TakeName(u"クラス名");
    return MembersOf(node);
}

/// The names behind dots that follow one.
Node* Parser::MembersOf(Node* node) {
    while (Accept(TokenKind::Dot)) {
        Node* member = Make(NodeKind::Member, token_.At);
        member->A = node;
        member->Name = TakeMemberName();
        if ((member->Count = node->Count + 1) > MaxDepth) Fail(u"名前が長すぎます。");
        node = member;
    }
    return node;
}

/// `import a.b.C;` lets C stand for a.b.C, `import a.b.*;` each class of a.b that is known.
Node* Parser::ImportStatement() {
    const Spot spot = token_.At;
    NeedVersion(6, token_.Text, spot);
    Advance();
    std::vector<Symbol*> path{TakeName(u"クラス名")};
    bool isPackage = false;
    while (!isPackage && Accept(TokenKind::Dot)) {
        isPackage = Accept(TokenKind::Star);
        if (!isPackage) path.push_back(TakeMemberName());
        if (path.size() > MaxDepth) Fail(u"名前が長すぎます。");
    }
    if (!isPackage)
        imports_.Add(std::move(path));
    else if (!imports_.AddPackage(path, symbols_))
        diagnostics_.Warn(spot, path.back()->Text,
                          u"このパッケージのクラスは分かりません。"
                          u"クラスの名前を一つずつ書いて下さい。");
    EndStatement();
    return Make(NodeKind::Empty, spot);
}

bool Parser::IsClassAhead() {
    if (!Is(TokenKind::Identifier)) return false;
    const SpecialName name = token_.Name->Special;
    if (name < SpecialName::Class || name > SpecialName::Intrinsic) return false;
    const TokenKind next = Peek().Kind;
    const bool lacksName = next == TokenKind::OpenBrace || next == TokenKind::Number;
    return next == TokenKind::Identifier || (lacksName && name <= SpecialName::Interface);
}

Node* Parser::ClassStatement() {
    Node* node = Make(NodeKind::Class, token_.At);
    const std::size_t errors = diagnostics_.Errors().size();
    NeedVersion(6, token_.Text, token_.At);
    if (function_ != nullptr || inClass_) Fail(u"クラスは関数の外に書いて下さい。");
    ClassNode* definition = arena_.Make<ClassNode>();
    node->Class = definition;
    while (IsSpecial(SpecialName::Dynamic) || IsSpecial(SpecialName::Intrinsic)) {
        definition->IsIntrinsic = definition->IsIntrinsic || IsSpecial(SpecialName::Intrinsic);
        Advance();
    }
    definition->At = token_.At;
    definition->IsInterface = IsSpecial(SpecialName::Interface);
    if (!definition->IsInterface && !IsSpecial(SpecialName::Class)) Fail(u"class が必要です。");
    Advance();
    definition->Name = DottedName();
    imports_.BeginHead(*definition->Name);
    if (IsSpecial(SpecialName::Extends)) {
        Advance();
        if (definition->IsInterface)
            Interfaces(*definition);
        else
            definition->Base = ClassReference();
    }
    if (IsSpecial(SpecialName::Implements)) {
        if (definition->IsInterface) Fail(u"インターフェイスは extends で継承して下さい。");
        Advance();
        Interfaces(*definition);
    }
    Expect(TokenKind::OpenBrace, u"{");
    imports_.BeginBody();
    inClass_ = true;
    ClassMembers(*definition);
    inClass_ = false;
    imports_.EndClass();
    if (IsSoundSince(errors)) classes_.push_back(definition);
    return node;
}

/// Those that a class implements or an interface extends; the player looks through both alike.
void Parser::Interfaces(ClassNode& node) {
    do node.Interfaces.Add(ClassReference());
    while (Accept(TokenKind::Comma));
}

/// Up to the brace that closes the class, whatever is wrong with a member.
void Parser::ClassMembers(ClassNode& node) {
    while (!Accept(TokenKind::CloseBrace)) {
        if (Is(TokenKind::End)) Fail(u"} が必要です。");
        const State before(*this);
        const char* const first = token_.Text.data();
        try {
            ClassMember(node);
        } catch (const SyntaxError&) {
            const int literals = before.Restore();
            if (Is(TokenKind::End)) throw;
            SkipToStatement(literals);
            if (token_.Text.data() != first) continue;
            Advance();
            SkipToStatement(0);
        }
    }
}

/// The name of a class, with what an import makes of it.
Node* Parser::ClassReference() {
    const Token first = token_;
    Node* name = DottedName();
    if (name->Kind != NodeKind::Name) return name;
    Node* imported = Imported(name->Name, first.At);
    return imported != nullptr ? imported : name;
}

bool Parser::IsModifier() const {
    return IsSpecial(SpecialName::Public) || IsSpecial(SpecialName::Private) ||
           IsSpecial(SpecialName::Static);
}

/// What tools know about a member: lists in brackets before it.
void Parser::SkipMetadata() {
    int brackets = 0;
    while (Is(TokenKind::OpenBracket) || brackets > 0) {
        const bool isLost = Is(TokenKind::End) || Is(TokenKind::Semicolon) ||
                            Is(TokenKind::OpenBrace) || Is(TokenKind::CloseBrace);
        if (isLost) Fail(u"] が必要です。");
        if (Is(TokenKind::OpenBracket)) ++brackets;
        if (Is(TokenKind::CloseBracket)) --brackets;
        Advance();
    }
}

void Parser::ClassMember(ClassNode& node) {
    bool isStatic = false;
    SkipMetadata();
    while (IsModifier()) {
        isStatic = isStatic || IsSpecial(SpecialName::Static);
        Advance();
    }
    if (Accept(TokenKind::Semicolon)) return;
    if (node.IsInterface && !Is(TokenKind::Function))
        Fail(u"インターフェイスのメンバーは function です。");
    if (Is(TokenKind::Var)) return Field(node, isStatic);
    if (Is(TokenKind::Function)) return Method(node, isStatic);
    Fail(u"クラスのメンバーは var または function です。");
}

void Parser::Field(ClassNode& node, bool isStatic) {
    do {
        Advance();
        MemberNode member;
        member.IsStatic = isStatic;
        member.At = token_.At;
        member.Name = TakeName(u"変数名");
        SkipType();
        if (Accept(TokenKind::Assign)) {
            inObjectField_ = !isStatic;
            member.Value = Assignment();
            inObjectField_ = false;
        }
        AddMember(node, member);
    } while (Is(TokenKind::Comma));
    EndStatement();
}

void Parser::Method(ClassNode& node, bool isStatic) {
    MemberNode member;
    member.Kind = MemberKind::Method;
    member.IsStatic = isStatic;
    const Spot spot = token_.At;
    Advance();
    if ((IsSpecial(SpecialName::Get) || IsSpecial(SpecialName::Set)) &&
        Peek().Kind != TokenKind::OpenParenthesis) {
        member.Kind = IsSpecial(SpecialName::Get) ? MemberKind::Getter : MemberKind::Setter;
        Advance();
    }
    member.At = token_.At;
    member.Name = TakeMemberName();
    const bool isConstructor =
        member.Kind == MemberKind::Method && !isStatic && member.Name == node.Name->Name;
    if (node.IsInterface || node.IsIntrinsic) {
        if (node.IsInterface && isStatic)
            Complain(member.At, member.Name->Text,
                     u"インターフェイスの関数に static は書けません。");
        CheckAccessor(member, Signature());
        if (!isConstructor) AddMember(node, member);
        return EndStatement();
    }
    isMethodNext_ = !isStatic;
    isStaticNext_ = isStatic;
    isDerivedNext_ = isConstructor && node.Base != nullptr;
    member.Value = FunctionRest(nullptr, spot);
    CheckAccessor(member, member.Value->Function->ParameterCount);
    if (!isConstructor) return AddMember(node, member);
    if (node.Constructor != nullptr)
        Complain(member.At, member.Name->Text, u"コンストラクタは一つだけです。");
    node.Constructor = member.Value;
}

void Parser::CheckAccessor(const MemberNode& member, std::uint32_t parameters) {
    if (member.Kind == MemberKind::Getter && parameters != 0)
        Complain(member.At, member.Name->Text, u"get の関数に引数は書けません。");
    if (member.Kind == MemberKind::Setter && parameters != 1)
        Complain(member.At, member.Name->Text, u"set の関数には引数が一つ必要です。");
}

/// The parameters and the type of a function that has no body; gives the number of parameters.
std::uint32_t Parser::Signature() {
    FunctionNode signature;
    signature.Number = ++functionCount_;
    signature.Depth = 1;
    FunctionNode* const outer = std::exchange(function_, &signature);
    Parameters(signature);
    SkipType();
    function_ = outer;
    CloseFunction(signature, uses_.size());
    return signature.ParameterCount;
}

void Parser::AddMember(ClassNode& node, const MemberNode& member) {
    MemberNode* kept = arena_.Make<MemberNode>(member);
    (node.FirstMember == nullptr ? node.FirstMember : node.LastMember->Next) = kept;
    node.LastMember = kept;
}

}  // namespace tamber
