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
    if (Is(TokenKind::Catch)) node->B = GuardedBlock(node, &Parser::Handlers);
    if (Accept(TokenKind::Finally)) node->C = Block();
    if (node->B == nullptr && node->C == nullptr) Fail(u"catch または finally が必要です。");
    return node;
}

/// The handlers of a try as one, in which the exception has the name of the first: each that tells
/// a type asks whether it is meant, and what none takes is thrown again.
Node* Parser::Handlers() {
    Node* const statement = guards_.back().Statement;
    Node* first = nullptr;
    Node** place = &first;
    while (Is(TokenKind::Catch)) {
        if (place == nullptr) WarnUnreachable();
        Node* handler = Handler(*statement);
        if (place == nullptr) continue;
        *place = handler;
        place = handler->Kind == NodeKind::If ? &handler->C : nullptr;
    }
    if (place != nullptr) {
        *place = Make(NodeKind::Throw, statement->Line);
        (*place)->A = NameNodeOf(statement->Name, statement->Line);
    }
    return first;
}

/// A block, or with a type an If without an else.
Node* Parser::Handler(Node& statement) {
    const std::uint32_t line = token_.Line;
    Advance();
    Expect(TokenKind::OpenParenthesis, u"(");
    Symbol* name = TakeName(u"変数名");
    Declare(name);
    KeepNamed(name);
    if (statement.Name == nullptr) statement.Name = name;
    Node* type = Accept(TokenKind::Colon) ? ClassReference() : nullptr;
    Expect(TokenKind::CloseParenthesis, u")");
    NodeList list;
    if (name != statement.Name) {
        Node* own = Make(NodeKind::Var, line);
        own->Name = name;
        own->A = NameNodeOf(statement.Name, line);
        list.Add(own);
    }
    list.Add(Block());
    Node* body = Grouped(list, line);
    Node* test = type == nullptr ? nullptr : TypeTest(*statement.Name, type, line);
    if (test == nullptr) return body;
    Node* handler = Make(NodeKind::If, line);
    handler->A = test;
    handler->B = body;
    return handler;
}

/// Whether what a variable holds is of a type; null for one that everything is of. Plain values are
/// instances of no class, so theirs are asked for by name too.
Node* Parser::TypeTest(Symbol& variable, Node* type, std::uint32_t line) {
    const std::string_view name = type->Kind == NodeKind::Name ? type->Name->Text : "";
    if (name == "Object") return nullptr;
    Node* test = MakeBinary(Operator::InstanceOf, NameNodeOf(&variable, line), type, line);
    if (name != "String" && name != "Number" && name != "Boolean") return test;
    Node* kind = Make(NodeKind::Unary, line);
    kind->Op = Operator::TypeOf;
    kind->A = NameNodeOf(&variable, line);
    Node* plain = Make(NodeKind::Text, line);
    plain->Name = symbols_.Intern(name == "String"   ? "string"
                                  : name == "Number" ? "number"
                                                     : "boolean");
    return MakeBinary(Operator::Or, MakeBinary(Operator::Equal, kind, plain, line), test, line);
}

Node* Parser::NameNodeOf(Symbol* name, std::uint32_t line) {
    Node* node = Make(NodeKind::Name, line);
    node->Name = name;
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
