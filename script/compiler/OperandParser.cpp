#include <utility>

#include "platform/text.h"
#include "script/compiler/Builtin.h"
#include "script/compiler/Parser.h"
#include "script/compiler/PlayerClasses.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

/// Whether every clip has a member of the name, so that to set it makes no variable of the
/// script's.
bool IsOfClip(const Symbol& name) {
    return name.Property != Symbol::NoProperty || HasPlayerMember("MovieClip", name.Text);
}

}  // namespace

/// Null, and nothing has moved, when there is none. The form is what a name may begin.
Node* Parser::SlashPath(Lexer::PathForm form) {
    const bool isRooted = Is(TokenKind::Slash) || Is(TokenKind::Colon) || Is(TokenKind::Dot);
    if (!isRooted && !Is(TokenKind::Identifier)) return nullptr;
    if (!lexer_.ReadSlashPath(token_, isRooted ? Lexer::PathForm::Rooted : form)) return nullptr;
    Node* node = Make(NodeKind::SlashPath, token_.At);
    node->Name = token_.Name;
    Advance();
    return node;
}

/// A colon behind a name may be awaited, by what stands before it.
Node* Parser::SlashPathOperand() {
    const bool mayCall = std::exchange(atStatement_, false) && version_ < FirstObjectVersion;
    if (colonsAwaited_ > 0) return SlashPath(Lexer::PathForm::Rooted);
    return SlashPath(mayCall ? Lexer::PathForm::WithColonOrCall : Lexer::PathForm::WithColon);
}

Node* Parser::Primary() {
    if (Node* path = SlashPathOperand()) return path;
    Node* node = nullptr;
    switch (token_.Kind) {
        case TokenKind::Identifier:
            return Name();
        case TokenKind::Number:
            node = Make(NodeKind::Number, token_.At);
            node->Value = token_.Number;
            break;
        case TokenKind::Text:
            node = Make(NodeKind::Text, token_.At);
            node->Name = token_.Name;
            break;
        case TokenKind::This:
            node = Make(NodeKind::This, token_.At);
            if (function_ != nullptr) function_->UsesThis = true;
            break;
        case TokenKind::OpenParenthesis:
            return Parenthesised();
        case TokenKind::OpenBracket:
            return ArrayLiteral();
        case TokenKind::OpenBrace:
            return ObjectLiteral();
        case TokenKind::New:
            return NewExpression();
        case TokenKind::Function: {
            const Spot spot = token_.At;
            Advance();
            if (Is(TokenKind::OpenParenthesis) || Is(TokenKind::OpenBrace))
                return FunctionRest(nullptr, spot);
            Symbol* name = TakeName(u"関数名");
            DeclareFunction(name);
            return FunctionRest(name, spot);
        }
        default:
            Fail(Is(TokenKind::End) ? u"式が必要です。" : u"ここには式が必要です。");
    }
    Advance();
    return node;
}

Node* Parser::Name() {
    const Spot spot = token_.At;
    Symbol* name = token_.Name;
    Advance();
    return Named(name, spot);
}

Node* Parser::Named(Symbol* name, Spot spot) {
    if (name->Special != SpecialName::None && name->Special <= SpecialName::Super)
        return SpecialValue(name->Special, spot);
    NoteName(name, spot);
    NoteUse(name);
    NoteSpecial(name->Special);
    if (Node* imported = Imported(name, spot)) return imported;
    Node* node = Make(NodeKind::Name, spot);
    node->Name = name;
    return node;
}

Node* Parser::SpecialValue(SpecialName name, Spot spot) {
    Node* node = nullptr;
    switch (name) {
        case SpecialName::True:
        case SpecialName::False:
            node = Make(version_ < FirstObjectVersion ? NodeKind::Number : NodeKind::Boolean, spot);
            node->Flag = name == SpecialName::True;
            if (version_ < FirstObjectVersion) node->Value = node->Flag ? 1 : 0;
            return node;
        case SpecialName::NewLine:
            node = Make(NodeKind::Text, spot);
            node->Name = symbols_.Intern("\n");
            return node;
        case SpecialName::Super:
            NeedVersion(6, "super", spot);
            if (function_ == nullptr)
                Complain(spot, "super", u"関数の中でのみ使用できます。");
            else
                function_->UsesSuper = true;
            return Make(NodeKind::Super, spot);
        default:
            NeedVersion(5, name == SpecialName::Null ? "null" : "undefined", spot);
            return Make(name == SpecialName::Null ? NodeKind::Null : NodeKind::Undefined, spot);
    }
}

/// The whole name of a class that a short one stands for, or null for what is no class's.
Node* Parser::Imported(Symbol* name, Spot spot) {
    if (imports_.IsEmpty() || name->DeclaredIn != 0) return nullptr;
    const Imports::Path path = imports_.Find(name);
    if (path.empty()) return nullptr;
    Node* node = Make(NodeKind::Name, spot);
    node->Name = path.front();
    for (std::size_t i = 1; i < path.size(); ++i) {
        Node* member = Make(NodeKind::Member, spot);
        member->A = node;
        member->Name = path[i];
        node = member;
    }
    node->Flag = true;
    node->D = Make(NodeKind::Name, spot);
    node->D->Name = name;
    return node;
}

void Parser::NoteName(Symbol* name, Spot spot) {
    if (name->NeededVersion <= version_) return;
    diagnostics_.Warn(spot, name->Text,
                      u"SWF" + ToText(static_cast<Long>(name->NeededVersion)) +
                          u"以降の名前です。SWF" + ToText(version_) + u"では働きません。");
    name->NeededVersion = 0;
}

void Parser::NoteUse(Symbol* name) {
    if (function_ != nullptr && function_->Depth > 1) uses_.push_back({name, function_->Depth});
}

void Parser::NoteCall(Symbol* name) {
    if (function_ == nullptr) return;
    if (name->BuiltinEntry == nullptr) {
        KeepNamed(name);
    } else if (name->BuiltinEntry->Form == BuiltinForm::Evaluate ||
               name->BuiltinEntry->Form == BuiltinForm::SetNamed) {
        NoteSearch();
    }
}

void Parser::KeepNamed(Symbol* name) {
    if (function_ != nullptr) uses_.push_back({name, function_->Depth + 1});
}

void Parser::NoteSpecial(SpecialName name) {
    if (function_ == nullptr) return;
    switch (name) {
        case SpecialName::Arguments:
            function_->UsesArguments = true;
            break;
        case SpecialName::Root:
            function_->UsesRoot = true;
            break;
        case SpecialName::Parent:
            function_->UsesParent = true;
            break;
        case SpecialName::Global:
            function_->UsesGlobal = true;
            break;
        default:
            break;
    }
}

/// Tells of what cannot be set, and notes what of its own the script sets.
void Parser::CheckTarget(const Node& target) {
    switch (target.Kind) {
        case NodeKind::Name:
            if (!inClass_ && target.Name->DeclaredIn == 0) NoteOwn(*target.Name);
            return;
        case NodeKind::Member:
            if (!inClass_) NoteSharedMember(target);
            return;
        case NodeKind::SlashPath:
        case NodeKind::Index:
            return;
        case NodeKind::Call:
            if (IsEvaluation(target)) return;
            break;
        default:
            break;
    }
    Complain(token_.At, token_.Text, u"代入できるのは変数とメンバーだけです。");
}

void Parser::NoteOwn(Symbol& name) {
    name.IsOwn = true;
    if (!IsOfClip(name)) name.IsSet = true;
}

/// A member of the timeline or the global object, or one of what lies there.
void Parser::NoteSharedMember(const Node& target) {
    const Node* member = &target;
    while (member->A->Kind == NodeKind::Member) member = member->A;
    const Node& object = *member->A;
    const bool isShared = object.Kind == NodeKind::Name
                              ? object.Name->Special == SpecialName::Global ||
                                    object.Name->Special == SpecialName::Root ||
                                    object.Name->Text.starts_with("_level")
                              : object.Kind == NodeKind::This && function_ == nullptr;
    if (isShared && !IsOfClip(*member->Name)) member->Name->IsSet = true;
}

Node* Parser::Parenthesised() {
    Advance();
    const int colons = std::exchange(colonsAwaited_, 0);
    Node* node = Expression();
    colonsAwaited_ = colons;
    Expect(TokenKind::CloseParenthesis, u")");
    return node;
}

Node* Parser::ArrayLiteral() {
    Node* node = Make(NodeKind::Array, token_.At);
    NeedVersion(5, token_.Text, token_.At);
    Advance();
    NodeList list;
    while (!Is(TokenKind::CloseBracket)) {
        if (Is(TokenKind::Comma))
            list.Add(Make(NodeKind::Undefined, token_.At));
        else
            list.Add(Assignment());
        if (!Is(TokenKind::CloseBracket)) Expect(TokenKind::Comma, u", または ]");
    }
    Advance();
    node->A = list.First;
    node->Count = list.Count;
    return node;
}

Node* Parser::ObjectLiteral() {
    Node* node = Make(NodeKind::Object, token_.At);
    NeedVersion(5, token_.Text, token_.At);
    Advance();
    ++literals_;
    NodeList list;
    while (!Is(TokenKind::CloseBrace)) {
        Node* key = PropertyKey();
        Expect(TokenKind::Colon, u":");
        Node* value = Assignment();
        Node* entry = Make(NodeKind::Empty, key->At);
        entry->A = value;
        entry->D = key;
        list.Add(entry);
        if (!Is(TokenKind::CloseBrace)) Expect(TokenKind::Comma, u", または }");
    }
    --literals_;
    Advance();
    node->A = list.First;
    node->Count = list.Count;
    return node;
}

Node* Parser::PropertyKey() {
    Node* key = Make(Is(TokenKind::Number) ? NodeKind::Number : NodeKind::Text, token_.At);
    if (Is(TokenKind::Number))
        key->Value = token_.Number;
    else if (Is(TokenKind::Text) || Is(TokenKind::Identifier) || IsWord(token_.Kind))
        key->Name = token_.Name;
    else
        Fail(u"プロパティ名が必要です。");
    Advance();
    return key;
}

}  // namespace tamber
