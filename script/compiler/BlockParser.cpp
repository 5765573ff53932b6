#include <utility>

#include "script/compiler/Parser.h"
#include "script/compiler/ParserState.h"

namespace tamber {

namespace {

/// While the block of a handler is read, the name of what it catches is declared.
class Declared {
public:
    Declared(Symbol& name, std::uint32_t function)
        : name_(name), outer_(std::exchange(name.DeclaredIn, function)) {}
    Declared(const Declared&) = delete;
    Declared& operator=(const Declared&) = delete;
    ~Declared() { name_.DeclaredIn = outer_; }

private:
    Symbol& name_;
    std::uint32_t outer_;
};

}  // namespace

Node* Parser::SwitchStatement() {
    Node* node = Make(NodeKind::Switch, token_.At);
    Advance();
    node->A = Condition();
    Expect(TokenKind::OpenBrace, u"{");
    NodeList cases;
    bool hasDefault = false;
    ++switches_;
    while (!Accept(TokenKind::CloseBrace)) {
        if (Is(TokenKind::Default)) {
            if (hasDefault) Complain(token_.At, token_.Text, u"default は一つだけです。");
            hasDefault = true;
        }
        if (Node* clause = GuardedClause()) cases.Add(clause);
    }
    --switches_;
    node->B = cases.First;
    node->Count = cases.Count;
    return node;
}

/// Null after an error in the head of a clause; the cursor then stands at the next.
Node* Parser::GuardedClause() {
    const State before(*this);
    try {
        return CaseClause();
    } catch (const SyntaxError&) {
        before.Restore();
        if (Is(TokenKind::End)) throw;
        SkipToClause();
    }
    return nullptr;
}

/// A clause of this switch, or the brace that closes it.
void Parser::SkipToClause() {
    int braces = 0;
    for (; !Is(TokenKind::End); Advance()) {
        const bool isClause = Is(TokenKind::Case) || Is(TokenKind::Default);
        if (Is(TokenKind::OpenBrace)) ++braces;
        if (braces == 0 && (isClause || Is(TokenKind::CloseBrace))) return;
        if (Is(TokenKind::CloseBrace)) --braces;
    }
}

Node* Parser::CaseClause() {
    Node* node = Make(NodeKind::Case, token_.At);
    if (Accept(TokenKind::Case)) {
        ++colonsAwaited_;
        node->A = Expression();
        --colonsAwaited_;
    } else {
        Expect(TokenKind::Default, u"case または default");
    }
    Expect(TokenKind::Colon, u":");
    NodeList list;
    ++blocks_;
    while (!Is(TokenKind::Case) && !Is(TokenKind::Default) && !Is(TokenKind::CloseBrace)) {
        if (Is(TokenKind::End)) Fail(u"} が必要です。");
        WarnOfUnreachable(list.Last);
        if (Node* statement = GuardedStatement()) list.Add(statement);
    }
    --blocks_;
    node->B = FunctionsFirst(list);
    node->Count = list.Count;
    return node;
}

/// Names are looked for at run time.
void Parser::NoteSearch() {
    if (function_ != nullptr) function_->NeedsNames = true;
    ++searches_;
}

Node* Parser::WithStatement() {
    Node* node = Make(NodeKind::With, token_.At);
    NeedVersion(5, token_.Text, token_.At);
    Advance();
    node->A = Condition();
    NoteSearch();
    node->B = GuardedBlock(node, &Parser::Body);
    return node;
}

/// A target within the one around leads back to it, and what is thrown out of a target to the one
/// around the block that catches it.
void Parser::NoteTarget() {
    if (target_ != nullptr) target_->Flag = true;
    for (std::size_t i = firstGuard_; i < guards_.size(); ++i) guards_[i].Statement->Flag = true;
}

Node* Parser::TellTargetStatement() {
    Node* node = Make(NodeKind::TellTarget, token_.At);
    Advance();
    node->A = Condition();
    NoteTarget();
    Node* const outer = std::exchange(target_, node);
    node->B = Body();
    target_ = outer;
    return node;
}

/// With two arguments the first is a scene; frames are counted, and labels known, over all of them.
Node* Parser::IfFrameLoadedStatement() {
    Node* node = Make(NodeKind::IfFrameLoaded, token_.At);
    Advance();
    Expect(TokenKind::OpenParenthesis, u"(");
    node->A = Assignment();
    if (Accept(TokenKind::Comma)) node->A = Assignment();
    Expect(TokenKind::CloseParenthesis, u")");
    node->B = Body();
    return node;
}

Node* Parser::TryStatement() {
    Node* node = Make(NodeKind::Try, token_.At);
    NeedVersion(7, token_.Text, token_.At);
    Advance();
    node->A = GuardedBlock(node, &Parser::Block);
    const bool isCaught = Is(TokenKind::Catch);
    if (isCaught) node->B = GuardedBlock(node, &Parser::Handlers);
    if (Accept(TokenKind::Finally)) node->C = Block();
    if (!isCaught && node->C == nullptr) Fail(u"catch または finally が必要です。");
    return node;
}

Node* Parser::Handlers() {
    NodeList handlers;
    bool takesAll = false;
    while (Is(TokenKind::Catch)) {
        if (takesAll) WarnUnreachable();
        Node* handler = GuardedHandler();
        if (handler == nullptr || takesAll) continue;
        handlers.Add(handler);
        takesAll = handler->A == nullptr;
    }
    return handlers.First;
}

/// Null after an error in the head of a handler; the cursor then stands behind the handler.
Node* Parser::GuardedHandler() {
    const State before(*this);
    try {
        return Handler();
    } catch (const SyntaxError&) {
        const int literals = before.Restore();
        if (Is(TokenKind::End)) throw;
        SkipToStatement(literals);
    }
    return nullptr;
}

Node* Parser::Handler() {
    Node* handler = Make(NodeKind::Catch, token_.At);
    Advance();
    Expect(TokenKind::OpenParenthesis, u"(");
    handler->Name = TakeName(u"変数名");
    if (function_ == nullptr) NoteOwn(*handler->Name);
    if (Accept(TokenKind::Colon)) handler->A = CaughtType();
    Expect(TokenKind::CloseParenthesis, u")");
    const Declared caught(*handler->Name, function_ == nullptr ? 0 : function_->Number);
    const std::uint32_t before = searches_;
    handler->B = Block();
    handler->Flag = searches_ != before;
    return handler;
}

/// Null for the type that everything is of.
Node* Parser::CaughtType() {
    const bool isValue = Is(TokenKind::Identifier) && token_.Name->Special != SpecialName::None &&
                         token_.Name->Special <= SpecialName::Super;
    if (!Is(TokenKind::Identifier) || isValue) Fail(u"型の名前が必要です。");
    const bool isObject = token_.Text == "Object";
    Node* type = MembersOf(Name());
    return isObject && type->Kind == NodeKind::Name ? nullptr : type;
}

Node* Parser::ThrowStatement() {
    Node* node = Make(NodeKind::Throw, token_.At);
    NeedVersion(7, token_.Text, token_.At);
    Advance();
    node->A = Expression();
    EndStatement();
    return node;
}

}  // namespace tamber
