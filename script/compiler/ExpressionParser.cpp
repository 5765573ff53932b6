#include <utility>

#include "script/compiler/Parser.h"
#include "script/compiler/ParserLevel.h"
#include "script/compiler/Versions.h"

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
    Node* comma = Make(NodeKind::Comma, first->At);
    NodeList list;
    list.Add(first);
    while (Accept(TokenKind::Comma)) list.Add(Assignment());
    comma->A = list.First;
    comma->Count = list.Count;
    return comma;
}

Node* Parser::Assignment() {
    const Level level(*this);
    const bool mayHaveType = atStatement_ && version_ >= FirstStrictVersion;
    Node* left = BinaryChain(1);
    if (Is(TokenKind::Question)) return ConditionalRest(left);
    if (mayHaveType && left->Kind == NodeKind::Member) SkipType();
    const bool isCompound = token_.Kind >= FirstCompound && token_.Kind <= LastCompound;
    if (!isCompound && !Is(TokenKind::Assign)) return left;
    CheckTarget(*left);
    Node* node = Make(NodeKind::Assign, token_.At);
    if (isCompound) {
        node->Op =
            CompoundOperators[static_cast<int>(token_.Kind) - static_cast<int>(FirstCompound)];
        if (node->Op >= Operator::Modulo) NeedVersion(5, token_.Text, token_.At);
    }
    Advance();
    node->A = left;
    node->B = Assignment();
    return node;
}

Node* Parser::ConditionalRest(Node* condition) {
    Node* node = Make(NodeKind::Conditional, token_.At);
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
        const Spot spot = token_.At;
        if (version_ < found.FirstVersion) NeedVersion(found.FirstVersion, token_.Text, spot);
        Advance();
        left = MakeBinary(found.Op, left, BinaryChain(found.Precedence + 1), spot);
    }
}

Node* Parser::MakeBinary(Operator op, Node* left, Node* right, Spot spot) {
    Node* node = Make(NodeKind::Binary, spot);
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
    Node* node = Make(NodeKind::Unary, token_.At);
    node->Op = op;
    if (op >= Operator::BitNot && op != Operator::Plus && op != Operator::Minus)
        NeedVersion(5, token_.Text, token_.At);
    Advance();
    node->A = Unary();
    if (op == Operator::Delete && node->A->Kind == NodeKind::Name) KeepNamed(node->A->Name);
    return folder_.Fold(node);
}

Node* Parser::IncrementBefore() {
    const Level level(*this);
    Node* node = Make(NodeKind::Increment, token_.At);
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
    Node* node = Make(NodeKind::Increment, token_.At);
    node->Op = Is(TokenKind::PlusPlus) ? Operator::Add : Operator::Subtract;
    node->A = target;
    Advance();
    return node;
}

/// Members, elements and calls behind an operand. Each holds the one before it.
Node* Parser::PostfixOf(Node* node) {
    for (int length = 0;; ++length) {
        if (length > MaxDepth) Fail(u"メンバーや呼び出しの連なりが長すぎます。");
        const Spot spot = token_.At;
        if (Accept(TokenKind::Dot)) {
            Node* member = Make(NodeKind::Member, token_.At);
            member->A = node;
            member->Name = TakeMemberName();
            node = member;
        } else if (Is(TokenKind::OpenBracket)) {
            NeedVersion(5, token_.Text, spot);
            Advance();
            Node* index = Make(NodeKind::Index, spot);
            index->A = node;
            index->B = Expression();
            Expect(TokenKind::CloseBracket, u"]");
            node = index;
        } else if (Is(TokenKind::OpenParenthesis)) {
            Node* call = Make(NodeKind::Call, node->At);
            if (node->Kind == NodeKind::Super && function_ != nullptr) function_->CallsSuper = true;
            call->A = node;
            if (node->Kind == NodeKind::Name) NoteCall(node->Name);
            if (node->Kind == NodeKind::SlashPath || version_ < FirstObjectVersion) NoteTarget();
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
    NeedVersion(5, token_.Text, token_.At);
    Node* node = Make(NodeKind::New, token_.At);
    Advance();
    Node* callee = Primary();
    while (Is(TokenKind::Dot) || Is(TokenKind::OpenBracket)) {
        Node* inner = Make(Is(TokenKind::Dot) ? NodeKind::Member : NodeKind::Index, token_.At);
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

}  // namespace tamber
