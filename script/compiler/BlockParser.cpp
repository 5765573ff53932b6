#include "script/compiler/Parser.h"
#include "script/compiler/ParserState.h"

namespace tamber {

Node* Parser::SwitchStatement() {
    Node* node = Make(NodeKind::Switch, token_.Line);
    Advance();
    node->A = Condition();
    Expect(TokenKind::OpenBrace, u"{");
    NodeList cases;
    bool hasDefault = false;
    ++switches_;
    while (!Accept(TokenKind::CloseBrace)) {
        if (Is(TokenKind::Default)) {
            if (hasDefault) Complain(token_.Line, token_.Text, u"default は一つだけです。");
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
    Node* node = Make(NodeKind::Case, token_.Line);
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
    node->B = list.First;
    node->Count = list.Count;
    return node;
}

Node* Parser::WithStatement() {
    Node* node = Make(NodeKind::With, token_.Line);
    NeedVersion(5, token_.Text, token_.Line);
    Advance();
    node->A = Condition();
    if (function_ != nullptr) function_->NeedsNames = true;
    node->B = GuardedBlock(node, &Parser::Body);
    return node;
}

Node* Parser::TellTargetStatement() {
    Node* node = Make(NodeKind::TellTarget, token_.Line);
    Advance();
    node->A = Condition();
    node->B = Body();
    return node;
}

/// With two arguments the first is a scene; frames are counted, and labels known, over all of them.
Node* Parser::IfFrameLoadedStatement() {
    Node* node = Make(NodeKind::IfFrameLoaded, token_.Line);
    Advance();
    Expect(TokenKind::OpenParenthesis, u"(");
    node->A = Assignment();
    if (Accept(TokenKind::Comma)) node->A = Assignment();
    Expect(TokenKind::CloseParenthesis, u")");
    node->B = Body();
    return node;
}

Node* Parser::TryStatement() {
    Node* node = Make(NodeKind::Try, token_.Line);
    NeedVersion(7, token_.Text, token_.Line);
    Advance();
    node->A = GuardedBlock(node, &Parser::Block);
    if (Accept(TokenKind::Catch)) {
        Expect(TokenKind::OpenParenthesis, u"(");
        node->Name = TakeName(u"変数名");
        Declare(node->Name);
        KeepNamed(node->Name);
        SkipType();
        Expect(TokenKind::CloseParenthesis, u")");
        node->B = GuardedBlock(node, &Parser::Block);
    }
    if (Accept(TokenKind::Finally)) node->C = Block();
    if (node->B == nullptr && node->C == nullptr) Fail(u"catch または finally が必要です。");
    return node;
}

Node* Parser::ThrowStatement() {
    Node* node = Make(NodeKind::Throw, token_.Line);
    NeedVersion(7, token_.Text, token_.Line);
    Advance();
    node->A = Expression();
    EndStatement();
    return node;
}

}  // namespace tamber
