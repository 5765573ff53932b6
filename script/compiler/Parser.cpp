#include "script/compiler/Parser.h"

#include "platform/text.h"
#include "script/compiler/ParserLevel.h"
#include "script/compiler/ParserState.h"
#include "script/compiler/VersionAdvice.h"

namespace tamber {

namespace {

constexpr Long FirstMetadataVersion = 6;

}  // namespace

Parser::Parser(std::string_view source, Long version, SymbolTable& symbols, Arena& arena,
               Diagnostics& diagnostics)
    : lexer_(source, version, symbols, diagnostics),
      version_(version),
      symbols_(symbols),
      arena_(arena),
      diagnostics_(diagnostics),
      folder_(symbols, version) {
    Advance();
}

Node* Parser::NextStatement() {
    while (!Is(TokenKind::End) && !isHopeless_) {
        if (Is(TokenKind::CloseBrace)) {
            Complain(token_.At, token_.Text, u"余分な } です。");
            Advance();
            continue;
        }
        const std::size_t errors = diagnostics_.Errors().size();
        try {
            Node* statement = GuardedStatement();
            isSound_ = IsSoundSince(errors);
            if (statement != nullptr) return statement;
        } catch (const HopelessError&) {
            isHopeless_ = true;
        }
    }
    return nullptr;
}

/// Null after an error.
Node* Parser::GuardedStatement() {
    const State before(*this);
    const char* const first = token_.Text.data();
    try {
        return Statement();
    } catch (const SyntaxError&) {
        Recover(before.Restore());
        if (token_.Text.data() == first) Advance();
    }
    return nullptr;
}

bool Parser::Accept(TokenKind kind) {
    if (!Is(kind)) return false;
    Advance();
    return true;
}

void Parser::Expect(TokenKind kind, StringView what) {
    if (!Accept(kind)) Fail(String(what) + u" が必要です。");
}

Token Parser::Peek() {
    const Lexer::Mark mark = lexer_.Save();
    const Token next = lexer_.Next();
    lexer_.Restore(mark);
    return next;
}

void Parser::Fail(const String& text) {
    if (Is(TokenKind::End))
        Complain(token_.At, {}, text + u"（スクリプトの終わりです。）");
    else
        Complain(token_.At, token_.Text, text);
    throw SyntaxError();
}

void Parser::Complain(Spot spot, std::string_view token, String text) {
    if (!isHopeless_) diagnostics_.Error(spot, token, std::move(text));
}

void Parser::NeedVersion(Long version, std::string_view token, Spot spot) {
    if (version_ >= version) return;
    String text = u"SWF" + ToText(version_) + u"では使用できません。SWF" + ToText(version) +
                  u"以降にして下さい。";
    const StringView advice = VersionAdvice(token);
    if (!advice.empty()) text.append(u"または").append(advice);
    Complain(spot, token, text);
}

Symbol* Parser::TakeName(StringView what) {
    if (IsWord(token_.Kind))
        Fail(u"予約語は" + String(what) + u"に使用できません。別の名前にして下さい。");
    if (!Is(TokenKind::Identifier)) Fail(String(what) + u"が必要です。");
    Symbol* name = token_.Name;
    Advance();
    return name;
}

Symbol* Parser::TakeMemberName() {
    if (!Is(TokenKind::Identifier) && !IsWord(token_.Kind)) Fail(u"メンバー名が必要です。");
    Symbol* name = token_.Name;
    Advance();
    return name;
}

/// Steps to where a statement may begin. The `else` of an `if` that could not be read is none.
void Parser::Recover(int literals) {
    SkipToStatement(literals);
    Accept(TokenKind::Else);
}

/// Behind a semicolon, at a word that begins a line, in a class also at one that begins a member,
/// or at the brace that closes the block. The braces of so many object literals close those only.
void Parser::SkipToStatement(int literals) {
    int braces = 0;
    for (; !Is(TokenKind::End); Advance()) {
        const bool closes = Is(TokenKind::CloseBrace);
        if (Is(TokenKind::OpenBrace)) ++braces;
        if (closes && braces == 0 && literals-- <= 0) return;
        if (closes && braces > 0 && --braces == 0 && literals <= 0) return Advance();
        if (braces > 0) continue;
        if (Is(TokenKind::Semicolon)) return Advance();
        if (token_.StartsLine && (token_.Kind >= TokenKind::Break || (inClass_ && IsModifier())))
            return;
    }
}

Node* Parser::Make(NodeKind kind, Spot spot) {
    Node* node = arena_.Make<Node>();
    node->Kind = kind;
    node->At = spot;
    return node;
}

Node* Parser::Statement() {
    const Level level(*this);
    switch (token_.Kind) {
        case TokenKind::OpenBrace:
            return Block();
        case TokenKind::Var:
            return VarStatement();
        case TokenKind::If:
            return IfStatement();
        case TokenKind::While:
            return WhileStatement();
        case TokenKind::Do:
            return DoStatement();
        case TokenKind::For:
            return ForStatement();
        case TokenKind::Break:
        case TokenKind::Continue:
            return JumpStatement();
        case TokenKind::Return:
            return ReturnStatement();
        case TokenKind::Switch:
            return SwitchStatement();
        case TokenKind::With:
            return WithStatement();
        case TokenKind::TellTarget:
            return TellTargetStatement();
        case TokenKind::IfFrameLoaded:
            return IfFrameLoadedStatement();
        case TokenKind::Try:
            return TryStatement();
        case TokenKind::Throw:
            return ThrowStatement();
        case TokenKind::Function:
            return FunctionStatement();
        case TokenKind::Else:
            return StrayPart(u"else の前に if がありません。");
        case TokenKind::Case:
        case TokenKind::Default:
            return StrayPart(u"case と default は switch の中でのみ使用できます。");
        case TokenKind::Catch:
        case TokenKind::Finally:
            return StrayPart(u"catch と finally の前に try がありません。");
        default:
            return SimpleStatement();
    }
}

Node* Parser::SimpleStatement() {
    if (Is(TokenKind::Semicolon)) {
        Advance();
        return Make(NodeKind::Empty, token_.At);
    }
    if (IsClassAhead()) return ClassStatement();
    if (IsSpecial(SpecialName::Import) && Peek().Kind == TokenKind::Identifier)
        return ImportStatement();
    return ExpressionStatement();
}

/// A part of a statement that does not stand in one. What it governs is read by itself.
Node* Parser::StrayPart(const String& text) {
    Complain(token_.At, token_.Text, text);
    Node* node = Make(NodeKind::Empty, token_.At);
    const bool hasHead = !Is(TokenKind::Else);
    Advance();
    const auto ends = [this] {
        return token_.StartsLine || Is(TokenKind::End) || Is(TokenKind::OpenBrace) ||
               Is(TokenKind::CloseBrace) || Is(TokenKind::Colon);
    };
    while (hasHead && !ends()) Advance();
    if (hasHead) Accept(TokenKind::Colon);
    return node;
}

Node* Parser::ExpressionStatement() {
    Node* statement = Make(NodeKind::Expression, token_.At);
    atStatement_ = true;
    statement->A = Expression();
    if (IsMetadata(*statement->A) && IsToldOfAhead()) return Make(NodeKind::Empty, token_.At);
    EndStatement();
    return statement;
}

/// Whether tools may know something about what is declared next.
bool Parser::IsToldOfAhead() {
    const bool isAtTop = function_ == nullptr && blocks_ == 0;
    const bool isDeclaration = Is(TokenKind::Var) || Is(TokenKind::Function);
    return IsClassAhead() || (version_ >= FirstMetadataVersion && isAtTop && isDeclaration);
}

/// Whether an expression may be what tools know about the declaration behind it: lists in brackets.
bool Parser::IsMetadata(const Node& expression) {
    const Node* node = &expression;
    while (node->Kind == NodeKind::Index) node = node->A;
    return node->Kind == NodeKind::Array;
}

void Parser::EndStatement() {
    if (Accept(TokenKind::Semicolon)) return;
    if (Is(TokenKind::End) || Is(TokenKind::CloseBrace) || Is(TokenKind::Else)) return;
    if (!token_.StartsLine) Fail(u"; が必要です。");
}

Node* Parser::Block() {
    Node* block = Make(NodeKind::Block, token_.At);
    Expect(TokenKind::OpenBrace, u"{");
    NodeList list;
    ++blocks_;
    StatementsUntilBrace(list);
    --blocks_;
    block->A = FunctionsFirst(list);
    block->Count = list.Count;
    return block;
}

/// Functions declared in a block are known from its beginning.
Node* Parser::FunctionsFirst(const NodeList& list) {
    NodeList functions;
    NodeList others;
    for (Node* node = list.First; node != nullptr; node = node->Next)
        (node->Kind == NodeKind::Function ? functions : others).Add(node);
    if (functions.First == nullptr) return list.First;
    functions.Last->Next = others.First;
    if (others.Last != nullptr) others.Last->Next = nullptr;
    return functions.First;
}

/// The statement that a condition or a loop governs.
Node* Parser::Body() {
    if (Is(TokenKind::OpenBrace)) return Block();
    ++blocks_;
    Node* body = Statement();
    --blocks_;
    return body;
}

void Parser::StatementsUntilBrace(NodeList& list) {
    const Spot spot = token_.At;
    while (!Is(TokenKind::CloseBrace)) {
        if (Is(TokenKind::End)) {
            if (!isHopeless_)
                diagnostics_.Error(token_.At, {}, u"} が必要です。", static_cast<Long>(spot.Line));
            throw HopelessError();
        }
        WarnOfUnreachable(list.Last);
        if (Node* statement = GuardedStatement()) list.Add(statement);
    }
    Advance();
}

void Parser::WarnOfUnreachable(const Node* last) {
    if (last == nullptr || Is(TokenKind::Function) || Is(TokenKind::Semicolon)) return;
    if (last->Kind == NodeKind::Return || last->Kind == NodeKind::Break ||
        last->Kind == NodeKind::Continue || last->Kind == NodeKind::Throw)
        WarnUnreachable();
}

void Parser::WarnUnreachable() {
    diagnostics_.Warn(token_.At, token_.Text, u"この文は実行されません。");
}

Node* Parser::VarStatement() {
    const Spot spot = token_.At;
    Advance();
    NodeList list;
    do list.Add(Variable());
    while (Accept(TokenKind::Comma));
    EndStatement();
    return Grouped(list, spot);
}

/// The statements as one.
Node* Parser::Grouped(const NodeList& list, Spot spot) {
    if (list.Count == 1) return list.First;
    Node* block = Make(NodeKind::Block, spot);
    block->A = list.First;
    block->Count = list.Count;
    return block;
}

/// A colon behind a name begins its type.
Node* Parser::Variable() {
    Node* variable = Make(NodeKind::Var, token_.At);
    const DeclaredPlace declared = DeclaredName(u"変数名", Lexer::PathForm::WithSlash);
    variable->Name = declared.Name;
    variable->B = declared.Path;
    if (declared.Path != nullptr) {
        CheckTarget(*declared.Path);
    } else {
        Declare(declared.Name);
        NoteName(declared.Name, variable->At);
    }
    SkipType();
    if (Accept(TokenKind::Assign)) variable->A = Assignment();
    return variable;
}

/// A type annotation, which the code does not hold.
void Parser::SkipType() {
    if (!Accept(TokenKind::Colon)) return;
    do {
        if (!Is(TokenKind::Identifier) && !IsWord(token_.Kind)) Fail(u"型の名前が必要です。");
        Advance();
    } while (Accept(TokenKind::Dot));
}

Node* Parser::Condition() {
    Expect(TokenKind::OpenParenthesis, u"(");
    const Spot spot = token_.At;
    Node* condition = Expression();
    if (condition->Kind == NodeKind::Assign && condition->Op == Operator::None)
        diagnostics_.Warn(spot, "=", u"条件の中に代入があります。比較は == です。");
    Expect(TokenKind::CloseParenthesis, u")");
    return condition;
}

Node* Parser::IfStatement() {
    Node* first = nullptr;
    Node** place = &first;
    for (;;) {
        *place = Make(NodeKind::If, token_.At);
        Node* node = *place;
        Advance();
        node->A = Condition();
        node->B = Body();
        if (!Accept(TokenKind::Else)) return first;
        if (!Is(TokenKind::If)) {
            node->C = Body();
            return first;
        }
        place = &node->C;
    }
}

Node* Parser::LoopBody() {
    ++loops_;
    Node* body = Body();
    --loops_;
    return body;
}

Node* Parser::WhileStatement() {
    Node* node = Make(NodeKind::While, token_.At);
    Advance();
    node->A = Condition();
    node->B = LoopBody();
    return node;
}

Node* Parser::DoStatement() {
    Node* node = Make(NodeKind::DoWhile, token_.At);
    Advance();
    node->B = LoopBody();
    Expect(TokenKind::While, u"while");
    node->A = Condition();
    Accept(TokenKind::Semicolon);
    return node;
}

Node* Parser::ForStatement() {
    const Spot spot = token_.At;
    Advance();
    Expect(TokenKind::OpenParenthesis, u"(");
    if (Is(TokenKind::Semicolon)) return ForRest(nullptr, spot);
    if (!Is(TokenKind::Var)) {
        Node* start = Make(NodeKind::Expression, spot);
        start->A = Expression();
        if (!Is(TokenKind::In)) return ForRest(start, spot);
        CheckTarget(*start->A);
        return ForInRest(start->A, spot);
    }
    Advance();
    NodeList list;
    do list.Add(Variable());
    while (Accept(TokenKind::Comma));
    if (Is(TokenKind::In) && list.Count == 1) return ForInRest(list.First, spot);
    return ForRest(Grouped(list, spot), spot);
}

Node* Parser::ForInRest(Node* target, Spot spot) {
    NeedVersion(5, "in", token_.At);
    Advance();
    Node* node = Make(NodeKind::ForIn, spot);
    node->A = target;
    node->B = Expression();
    Expect(TokenKind::CloseParenthesis, u")");
    node->C = LoopBody();
    return node;
}

Node* Parser::ForRest(Node* start, Spot spot) {
    Node* node = Make(NodeKind::For, spot);
    node->A = start;
    Expect(TokenKind::Semicolon, u";");
    if (!Is(TokenKind::Semicolon)) node->B = Expression();
    Expect(TokenKind::Semicolon, u";");
    if (!Is(TokenKind::CloseParenthesis)) node->C = Expression();
    Expect(TokenKind::CloseParenthesis, u")");
    node->D = LoopBody();
    return node;
}

Node* Parser::JumpStatement() {
    const bool isBreak = Is(TokenKind::Break);
    Node* node = Make(isBreak ? NodeKind::Break : NodeKind::Continue, token_.At);
    if (loops_ == 0 && (!isBreak || switches_ == 0))
        Complain(token_.At, token_.Text, u"繰り返しの中でのみ使用できます。");
    NoteEscape(node->Kind);
    Advance();
    EndStatement();
    return node;
}

/// A block that is read while its statement stands among the guards.
Node* Parser::GuardedBlock(Node* statement, Node* (Parser::*read)()) {
    guards_.push_back({statement, loops_, switches_});
    Node* block = (this->*read)();
    guards_.pop_back();
    return block;
}

/// Marks the guards that a jump leaves.
void Parser::NoteEscape(NodeKind kind) {
    for (std::size_t i = guards_.size(); i-- > firstGuard_;) {
        const Guard& guard = guards_[i];
        if (kind == NodeKind::Return) {
            guard.Statement->Count |= Node::EscapesByReturn;
            continue;
        }
        if (guard.Loops != loops_) return;
        if (kind == NodeKind::Break && guard.Switches != switches_) return;
        guard.Statement->Count |=
            kind == NodeKind::Break ? Node::EscapesByBreak : Node::EscapesByContinue;
    }
}

Node* Parser::ReturnStatement() {
    Node* node = Make(NodeKind::Return, token_.At);
    if (function_ == nullptr) Complain(token_.At, token_.Text, u"関数の中でのみ使用できます。");
    Advance();
    NoteEscape(NodeKind::Return);
    const bool isBare = Is(TokenKind::Semicolon) || Is(TokenKind::CloseBrace) ||
                        Is(TokenKind::End) || Is(TokenKind::Else) || token_.StartsLine;
    if (!isBare) node->A = Expression();
    EndStatement();
    return node;
}

}  // namespace tamber
