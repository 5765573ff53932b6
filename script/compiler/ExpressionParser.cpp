#include <utility>

#include "platform/text.h"
#include "script/compiler/Builtin.h"
#include "script/compiler/Parser.h"
#include "script/compiler/ParserLevel.h"

namespace tamber {

namespace {

struct BinaryOperator {
    Operator Op = Operator::None;
    /// Higher binds more; 0 for a token that is no operator of two operands.
    Byte Precedence = 0;
    Byte FirstVersion = 4;
};

BinaryOperator BinaryOperatorOf(TokenKind kind) {
    switch (kind) {
        case TokenKind::OrOr:
            return {Operator::Or, 1};
        case TokenKind::WordOr:
            return {Operator::WordOr, 1};
        case TokenKind::AndAnd:
            return {Operator::And, 2};
        case TokenKind::WordAnd:
            return {Operator::WordAnd, 2};
        case TokenKind::BitOr:
            return {Operator::BitOr, 3, 5};
        case TokenKind::BitXor:
            return {Operator::BitXor, 4, 5};
        case TokenKind::BitAnd:
            return {Operator::BitAnd, 5, 5};
        case TokenKind::Equal:
            return {Operator::Equal, 6};
        case TokenKind::NotEqual:
            return {Operator::NotEqual, 6};
        case TokenKind::StrictEqual:
            return {Operator::StrictEqual, 6, 6};
        case TokenKind::StrictNotEqual:
            return {Operator::StrictNotEqual, 6, 6};
        case TokenKind::WordEq:
            return {Operator::StringEqual, 6};
        case TokenKind::WordNe:
            return {Operator::StringNotEqual, 6};
        case TokenKind::Less:
            return {Operator::Less, 7};
        case TokenKind::LessEqual:
            return {Operator::LessEqual, 7};
        case TokenKind::Greater:
            return {Operator::Greater, 7};
        case TokenKind::GreaterEqual:
            return {Operator::GreaterEqual, 7};
        case TokenKind::WordLt:
            return {Operator::StringLess, 7};
        case TokenKind::WordLe:
            return {Operator::StringLessEqual, 7};
        case TokenKind::WordGt:
            return {Operator::StringGreater, 7};
        case TokenKind::WordGe:
            return {Operator::StringGreaterEqual, 7};
        case TokenKind::InstanceOf:
            return {Operator::InstanceOf, 7, 6};
        case TokenKind::Left:
            return {Operator::Left, 8, 5};
        case TokenKind::Right:
            return {Operator::Right, 8, 5};
        case TokenKind::UnsignedRight:
            return {Operator::UnsignedRight, 8, 5};
        case TokenKind::Plus:
            return {Operator::Add, 9};
        case TokenKind::Minus:
            return {Operator::Subtract, 9};
        case TokenKind::WordAdd:
            return {Operator::StringAdd, 9};
        case TokenKind::Star:
            return {Operator::Multiply, 10};
        case TokenKind::Slash:
            return {Operator::Divide, 10};
        case TokenKind::Percent:
            return {Operator::Modulo, 10, 5};
        default:
            return {};
    }
}

constexpr TokenKind FirstCompound = TokenKind::AddAssign;
constexpr TokenKind LastCompound = TokenKind::UnsignedRightAssign;

/// Operators of compound assignments, in the order of their tokens.
constexpr Operator CompoundOperators[] = {
    Operator::Add,    Operator::Subtract, Operator::Multiply,      Operator::Divide,
    Operator::Modulo, Operator::BitAnd,   Operator::BitOr,         Operator::BitXor,
    Operator::Left,   Operator::Right,    Operator::UnsignedRight,
};

}  // namespace

Node* Parser::Expression() {
    Node* first = Assignment();
    if (!Is(TokenKind::Comma)) return first;
    Node* comma = Make(NodeKind::Comma, first->Line);
    NodeList list;
    list.Add(first);
    while (Accept(TokenKind::Comma)) list.Add(Assignment());
    comma->A = list.First;
    comma->Count = list.Count;
    return comma;
}

Node* Parser::Assignment() {
    const Level level(*this);
    Node* left = BinaryChain(1);
    if (Is(TokenKind::Question)) return ConditionalRest(left);
    const bool isCompound = token_.Kind >= FirstCompound && token_.Kind <= LastCompound;
    if (!isCompound && !Is(TokenKind::Assign)) return left;
    CheckTarget(*left);
    Node* node = Make(NodeKind::Assign, token_.Line);
    if (isCompound) {
        node->Op =
            CompoundOperators[static_cast<int>(token_.Kind) - static_cast<int>(FirstCompound)];
        if (node->Op >= Operator::Modulo) NeedVersion(5, token_.Text, token_.Line);
    }
    Advance();
    node->A = left;
    node->B = Assignment();
    return node;
}

Node* Parser::ConditionalRest(Node* condition) {
    Node* node = Make(NodeKind::Conditional, token_.Line);
    Advance();
    node->A = condition;
    ++colonsAwaited_;
    node->B = Assignment();
    --colonsAwaited_;
    Expect(TokenKind::Colon, u":");
    node->C = Assignment();
    return node;
}

Node* Parser::BinaryChain(int lowest) {
    Node* left = Unary();
    for (;;) {
        const BinaryOperator found = BinaryOperatorOf(token_.Kind);
        if (found.Precedence == 0 || found.Precedence < lowest) return left;
        const std::uint32_t line = token_.Line;
        if (version_ < found.FirstVersion) NeedVersion(found.FirstVersion, token_.Text, line);
        Advance();
        left = MakeBinary(found.Op, left, BinaryChain(found.Precedence + 1), line);
    }
}

Node* Parser::MakeBinary(Operator op, Node* left, Node* right, std::uint32_t line) {
    Node* node = Make(NodeKind::Binary, line);
    node->Op = op;
    node->A = left;
    node->B = right;
    return folder_.Fold(node);
}

Node* Parser::Unary() {
    switch (token_.Kind) {
        case TokenKind::Not:
        case TokenKind::WordNot:
            return UnaryOperator(Operator::Not);
        case TokenKind::Minus:
            return UnaryOperator(Operator::Minus);
        case TokenKind::Plus:
            return UnaryOperator(Operator::Plus);
        case TokenKind::BitNot:
            return UnaryOperator(Operator::BitNot);
        case TokenKind::TypeOf:
            return UnaryOperator(Operator::TypeOf);
        case TokenKind::Void:
            return UnaryOperator(Operator::Void);
        case TokenKind::Delete:
            return UnaryOperator(Operator::Delete);
        case TokenKind::PlusPlus:
        case TokenKind::MinusMinus:
            return IncrementBefore();
        default:
            return Postfix();
    }
}

Node* Parser::UnaryOperator(Operator op) {
    const Level level(*this);
    Node* node = Make(NodeKind::Unary, token_.Line);
    node->Op = op;
    if (op >= Operator::BitNot && op != Operator::Plus && op != Operator::Minus)
        NeedVersion(5, token_.Text, token_.Line);
    Advance();
    node->A = Unary();
    if (op == Operator::Delete && node->A->Kind == NodeKind::Name) KeepNamed(node->A->Name);
    return folder_.Fold(node);
}

Node* Parser::IncrementBefore() {
    const Level level(*this);
    Node* node = Make(NodeKind::Increment, token_.Line);
    node->Op = Is(TokenKind::PlusPlus) ? Operator::Add : Operator::Subtract;
    node->Flag = true;
    Advance();
    node->A = Unary();
    CheckTarget(*node->A);
    return node;
}

Node* Parser::Postfix() {
    Node* node = PostfixOf(Primary());
    const bool isIncrement = Is(TokenKind::PlusPlus) || Is(TokenKind::MinusMinus);
    return isIncrement && !token_.StartsLine ? IncrementAfter(node) : node;
}

Node* Parser::IncrementAfter(Node* target) {
    CheckTarget(*target);
    Node* node = Make(NodeKind::Increment, token_.Line);
    node->Op = Is(TokenKind::PlusPlus) ? Operator::Add : Operator::Subtract;
    node->A = target;
    Advance();
    return node;
}

/// Members, elements and calls behind an operand. Each holds the one before it.
Node* Parser::PostfixOf(Node* node) {
    for (int length = 0;; ++length) {
        if (length > MaxDepth) Fail(u"メンバーや呼び出しの連なりが長すぎます。");
        const std::uint32_t line = token_.Line;
        if (Accept(TokenKind::Dot)) {
            Node* member = Make(NodeKind::Member, line);
            member->A = node;
            member->Name = TakeMemberName();
            node = member;
        } else if (Is(TokenKind::OpenBracket)) {
            NeedVersion(5, token_.Text, line);
            Advance();
            Node* index = Make(NodeKind::Index, line);
            index->A = node;
            index->B = Expression();
            Expect(TokenKind::CloseBracket, u"]");
            node = index;
        } else if (Is(TokenKind::OpenParenthesis)) {
            Node* call = Make(NodeKind::Call, line);
            call->A = node;
            if (node->Kind == NodeKind::Name) NoteCall(node->Name);
            Arguments(call);
            node = call;
        } else {
            return node;
        }
    }
}

void Parser::Arguments(Node* call) {
    Expect(TokenKind::OpenParenthesis, u"(");
    NodeList list;
    const int colons = std::exchange(colonsAwaited_, 0);
    if (!Is(TokenKind::CloseParenthesis)) {
        do list.Add(Assignment());
        while (Accept(TokenKind::Comma));
    }
    colonsAwaited_ = colons;
    Expect(TokenKind::CloseParenthesis, u")");
    call->B = list.First;
    call->Count = list.Count;
}

Node* Parser::NewExpression() {
    const Level level(*this);
    NeedVersion(5, token_.Text, token_.Line);
    Node* node = Make(NodeKind::New, token_.Line);
    Advance();
    Node* callee = Primary();
    while (Is(TokenKind::Dot) || Is(TokenKind::OpenBracket)) {
        Node* inner = Make(Is(TokenKind::Dot) ? NodeKind::Member : NodeKind::Index, token_.Line);
        inner->A = callee;
        if (++inner->Count > MaxDepth) Fail(u"メンバーの連なりが長すぎます。");
        if (Accept(TokenKind::Dot)) {
            inner->Name = TakeMemberName();
        } else {
            Advance();
            inner->B = Expression();
            Expect(TokenKind::CloseBracket, u"]");
        }
        callee = inner;
    }
    if (callee->Kind == NodeKind::Name) KeepNamed(callee->Name);
    node->A = callee;
    if (Is(TokenKind::OpenParenthesis)) Arguments(node);
    return node;
}

bool Parser::IsSlashPathAhead() {
    const bool isStatement = std::exchange(atStatement_, false);
    if (Is(TokenKind::Slash) || Is(TokenKind::Colon) || Is(TokenKind::Dot))
        return lexer_.ReadSlashPath(token_, Lexer::PathForm::Rooted);
    if (!Is(TokenKind::Identifier) || colonsAwaited_ > 0) return false;
    const bool mayCall = isStatement && version_ == 4;
    return lexer_.ReadSlashPath(
        token_, mayCall ? Lexer::PathForm::WithColonOrCall : Lexer::PathForm::WithColon);
}

Node* Parser::Primary() {
    if (IsSlashPathAhead()) {
        Node* node = Make(NodeKind::SlashPath, token_.Line);
        node->Name = token_.Name;
        Advance();
        return node;
    }
    Node* node = nullptr;
    switch (token_.Kind) {
        case TokenKind::Identifier:
            return Name();
        case TokenKind::Number:
            node = Make(NodeKind::Number, token_.Line);
            node->Value = token_.Number;
            break;
        case TokenKind::Text:
            node = Make(NodeKind::Text, token_.Line);
            node->Name = token_.Name;
            break;
        case TokenKind::This:
            node = Make(NodeKind::This, token_.Line);
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
            const std::uint32_t line = token_.Line;
            Advance();
            if (Is(TokenKind::OpenParenthesis)) return FunctionRest(nullptr, line);
            return FunctionRest(FunctionName(), line);
        }
        default:
            Fail(Is(TokenKind::End) ? u"式が必要です。" : u"ここには式が必要です。");
    }
    Advance();
    return node;
}

Node* Parser::Name() {
    const std::uint32_t line = token_.Line;
    Symbol* name = token_.Name;
    Advance();
    if (name->Special != SpecialName::None && name->Special <= SpecialName::Super)
        return SpecialValue(name->Special, line);
    NoteName(name, line);
    NoteUse(name);
    NoteSpecial(name->Special);
    if (!imports_.empty())
        if (Node* imported = Imported(name, line)) return imported;
    Node* node = Make(NodeKind::Name, line);
    node->Name = name;
    return node;
}

Node* Parser::SpecialValue(SpecialName name, std::uint32_t line) {
    Node* node = nullptr;
    switch (name) {
        case SpecialName::True:
        case SpecialName::False:
            node = Make(version_ < 5 ? NodeKind::Number : NodeKind::Boolean, line);
            node->Flag = name == SpecialName::True;
            if (version_ < 5) node->Value = node->Flag ? 1 : 0;
            return node;
        case SpecialName::NewLine:
            node = Make(NodeKind::Text, line);
            node->Name = symbols_.Intern("\n");
            return node;
        case SpecialName::Super:
            NeedVersion(6, "super", line);
            if (function_ == nullptr)
                Complain(line, "super", u"関数の中でのみ使用できます。");
            else
                function_->UsesSuper = true;
            return Make(NodeKind::Super, line);
        default:
            NeedVersion(5, name == SpecialName::Null ? "null" : "undefined", line);
            return Make(name == SpecialName::Null ? NodeKind::Null : NodeKind::Undefined, line);
    }
}

Node* Parser::Imported(const Symbol* name, std::uint32_t line) {
    const auto found = imports_.find(name);
    if (found == imports_.end()) return nullptr;
    Node* node = Make(NodeKind::Name, line);
    node->Name = found->second.front();
    for (std::size_t i = 1; i < found->second.size(); ++i) {
        Node* member = Make(NodeKind::Member, line);
        member->A = node;
        member->Name = found->second[i];
        node = member;
    }
    return node;
}

void Parser::NoteName(Symbol* name, std::uint32_t line) {
    if (name->NeededVersion <= version_) return;
    diagnostics_.Warn(line, name->Text,
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
        function_->NeedsNames = true;
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

void Parser::CheckTarget(const Node& target) {
    switch (target.Kind) {
        case NodeKind::Name:
        case NodeKind::SlashPath:
        case NodeKind::Member:
        case NodeKind::Index:
            return;
        case NodeKind::Call:
            if (target.A->Kind == NodeKind::Name && target.A->Name->BuiltinEntry != nullptr &&
                target.A->Name->BuiltinEntry->Form == BuiltinForm::Evaluate)
                return;
            break;
        default:
            break;
    }
    Complain(token_.Line, token_.Text, u"代入できるのは変数とメンバーだけです。");
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
    Node* node = Make(NodeKind::Array, token_.Line);
    NeedVersion(5, token_.Text, token_.Line);
    Advance();
    NodeList list;
    while (!Is(TokenKind::CloseBracket)) {
        if (Is(TokenKind::Comma))
            list.Add(Make(NodeKind::Undefined, token_.Line));
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
    Node* node = Make(NodeKind::Object, token_.Line);
    NeedVersion(5, token_.Text, token_.Line);
    Advance();
    NodeList list;
    while (!Is(TokenKind::CloseBrace)) {
        Node* key = PropertyKey();
        Expect(TokenKind::Colon, u":");
        Node* value = Assignment();
        Node* entry = Make(NodeKind::Empty, key->Line);
        entry->A = value;
        entry->D = key;
        list.Add(entry);
        if (!Is(TokenKind::CloseBrace)) Expect(TokenKind::Comma, u", または }");
    }
    Advance();
    node->A = list.First;
    node->Count = list.Count;
    return node;
}

Node* Parser::PropertyKey() {
    Node* key = Make(Is(TokenKind::Number) ? NodeKind::Number : NodeKind::Text, token_.Line);
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
