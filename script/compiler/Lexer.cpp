#include "script/compiler/Lexer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "platform/codepage.h"
#include "script/compiler/Versions.h"
#include "script/compiler/Vocabulary.h"

namespace tamber {

namespace {

enum CharacterClass : Byte { Other, Blank, LetterClass, DigitClass };

constexpr std::array<Byte, 256> MakeClasses() {
    std::array<Byte, 256> classes{};
    for (const char letter : {' ', '\t', '\r', '\n', '\v', '\f'})
        classes[static_cast<Byte>(letter)] = Blank;
    for (int c = 'a'; c <= 'z'; ++c) classes[static_cast<std::size_t>(c)] = LetterClass;
    for (int c = 'A'; c <= 'Z'; ++c) classes[static_cast<std::size_t>(c)] = LetterClass;
    for (int c = '0'; c <= '9'; ++c) classes[static_cast<std::size_t>(c)] = DigitClass;
    for (std::size_t c = 0x80; c < 256; ++c) classes[c] = LetterClass;
    classes['_'] = LetterClass;
    classes['$'] = LetterClass;
    return classes;
}

constexpr std::array<Byte, 256> Classes = MakeClasses();

Byte ClassOf(char letter) {
    return Classes[static_cast<Byte>(letter)];
}

bool IsNameCharacter(char letter) {
    return ClassOf(letter) >= LetterClass;
}

/// U+3000, U+00A0 and U+FEFF.
constexpr std::string_view Utf8Blanks[] = {"\xE3\x80\x80", "\xC2\xA0", "\xEF\xBB\xBF"};
/// U+3000 and U+00A0 in code page 932.
constexpr std::string_view AnsiBlanks[] = {"\x81\x40", "\xA0"};

/// First character that UTF-16 has two halves for.
constexpr std::uint32_t FirstWide = 0x10000;

/// Value of a digit of a base up to 16; 16 for what is none.
unsigned DigitValue(char letter) {
    if (letter >= '0' && letter <= '9') return static_cast<unsigned>(letter - '0');
    if (letter >= 'a' && letter <= 'f') return static_cast<unsigned>(letter - 'a' + 10);
    if (letter >= 'A' && letter <= 'F') return static_cast<unsigned>(letter - 'A' + 10);
    return 16;
}

std::string_view Between(const char* from, const char* to) {
    return {from, static_cast<std::size_t>(to - from)};
}

struct Sign {
    std::string_view Text;
    TokenKind Kind;
};

/// Of those that begin alike, the longest first.
constexpr Sign Signs[] = {
    {">>>=", TokenKind::UnsignedRightAssign},
    {"===", TokenKind::StrictEqual},
    {"!==", TokenKind::StrictNotEqual},
    {"<<=", TokenKind::LeftAssign},
    {">>=", TokenKind::RightAssign},
    {">>>", TokenKind::UnsignedRight},
    {"==", TokenKind::Equal},
    {"!=", TokenKind::NotEqual},
    {"<>", TokenKind::NotEqual},
    {"<=", TokenKind::LessEqual},
    {">=", TokenKind::GreaterEqual},
    {"<<", TokenKind::Left},
    {">>", TokenKind::Right},
    {"&&", TokenKind::AndAnd},
    {"||", TokenKind::OrOr},
    {"++", TokenKind::PlusPlus},
    {"--", TokenKind::MinusMinus},
    {"+=", TokenKind::AddAssign},
    {"-=", TokenKind::SubtractAssign},
    {"*=", TokenKind::MultiplyAssign},
    {"/=", TokenKind::DivideAssign},
    {"%=", TokenKind::ModuloAssign},
    {"&=", TokenKind::BitAndAssign},
    {"|=", TokenKind::BitOrAssign},
    {"^=", TokenKind::BitXorAssign},
    {"(", TokenKind::OpenParenthesis},
    {")", TokenKind::CloseParenthesis},
    {"[", TokenKind::OpenBracket},
    {"]", TokenKind::CloseBracket},
    {"{", TokenKind::OpenBrace},
    {"}", TokenKind::CloseBrace},
    {";", TokenKind::Semicolon},
    {",", TokenKind::Comma},
    {".", TokenKind::Dot},
    {":", TokenKind::Colon},
    {"?", TokenKind::Question},
    {"=", TokenKind::Assign},
    {"+", TokenKind::Plus},
    {"-", TokenKind::Minus},
    {"*", TokenKind::Star},
    {"/", TokenKind::Slash},
    {"%", TokenKind::Percent},
    {"&", TokenKind::BitAnd},
    {"|", TokenKind::BitOr},
    {"^", TokenKind::BitXor},
    {"~", TokenKind::BitNot},
    {"<", TokenKind::Less},
    {">", TokenKind::Greater},
    {"!", TokenKind::Not},
};

/// For each first character, those signs that begin with it as a range of a sorted copy.
struct SignTable {
    std::array<Sign, std::size(Signs)> Sorted{};
    std::array<Byte, 129> First{};
};

constexpr SignTable MakeSignTable() {
    SignTable table;
    std::size_t count = 0;
    for (std::size_t letter = 0; letter < 128; ++letter) {
        table.First[letter] = static_cast<Byte>(count);
        for (const Sign& sign : Signs)
            if (static_cast<std::size_t>(sign.Text[0]) == letter) table.Sorted[count++] = sign;
    }
    table.First[128] = static_cast<Byte>(count);
    return table;
}

constexpr SignTable Table = MakeSignTable();

}  // namespace

Lexer::Lexer(std::string_view source, Long version, SymbolTable& symbols, Diagnostics& diagnostics)
    : begin_(source.data()),
      at_(source.data()),
      end_(source.data() + source.size()),
      version_(version),
      isUtf8_(version >= FirstUtf8Version),
      symbols_(symbols),
      diagnostics_(diagnostics) {}

void Lexer::Restore(const Mark& mark) {
    at_ = mark.At;
    line_ = mark.Line;
}

Token Lexer::Next() {
    for (;;) {
        Token token;
        SkipBlanks(token);
        token.At = Here();
        if (at_ == end_) return token;
        const Byte kind = ClassOf(*at_);
        if (kind == LetterClass) return ReadName(token);
        if (kind == DigitClass || (*at_ == '.' && ClassOf(Ahead(1)) == DigitClass))
            return ReadNumber(token);
        if (*at_ == '"' || *at_ == '\'') return ReadString(token);
        if (ReadPunctuation(token)) return token;
        diagnostics_.Error(
            Here(), Between(at_, at_ + 1),
            *at_ == '\0' ? u"NUL 文字は使用できません。" : u"使用できない文字です。");
        ++at_;
    }
}

std::size_t Lexer::WidthAt(const char* at) const {
    if (isUtf8_ || end_ - at < 2) return 1;
    const auto lead = static_cast<Byte>(at[0]);
    const auto trail = static_cast<Byte>(at[1]);
    const bool isLead = (lead >= 0x81 && lead <= 0x9F) || (lead >= 0xE0 && lead <= 0xFC);
    return isLead && trail >= 0x40 && trail <= 0xFC && trail != 0x7F ? 2 : 1;
}

void Lexer::Step() {
    at_ += WidthAt(at_);
}

/// Bytes of a blank beyond ASCII; 0 for what is none.
std::size_t Lexer::WideBlankAt(const char* at) const {
    if (static_cast<Byte>(*at) < 0x80) return 0;
    const std::string_view rest = Between(at, end_);
    const auto begins = [&](std::string_view blank) { return rest.starts_with(blank); };
    const auto size = [&](const auto& blanks) {
        const auto found = std::find_if(std::begin(blanks), std::end(blanks), begins);
        return found == std::end(blanks) ? 0 : found->size();
    };
    return isUtf8_ ? size(Utf8Blanks) : size(AnsiBlanks);
}

bool Lexer::IsNameAt(const char* at) const {
    return at != end_ && IsNameCharacter(*at) && WideBlankAt(at) == 0;
}

void Lexer::SkipBlanks(Token& token) {
    const std::uint32_t first = line_;
    while (at_ != end_) {
        const char letter = *at_;
        if (letter == '\n' || (letter == '\r' && Ahead(1) != '\n')) {
            ++line_;
            ++at_;
        } else if (ClassOf(letter) == Blank) {
            ++at_;
        } else if (letter == '/' && Ahead(1) == '/') {
            SkipLineComment();
        } else if (letter == '/' && Ahead(1) == '*') {
            SkipBlockComment();
        } else if (const std::size_t width = WideBlankAt(at_)) {
            at_ += width;
        } else {
            break;
        }
    }
    token.StartsLine = line_ != first;
}

void Lexer::SkipLineComment() {
    while (at_ != end_ && *at_ != '\n' && *at_ != '\r') ++at_;
}

void Lexer::SkipBlockComment() {
    const Spot first = Here();
    at_ += 2;
    while (at_ != end_) {
        if (*at_ == '*' && Ahead(1) == '/') {
            at_ += 2;
            return;
        }
        if (*at_ == '\n' || (*at_ == '\r' && Ahead(1) != '\n')) ++line_;
        Step();
    }
    diagnostics_.Error(first, "/*", u"コメントが閉じられていません。*/ が必要です。");
}

void Lexer::Take(Token& token, TokenKind kind, std::size_t length) {
    token.Kind = kind;
    token.Text = {at_, length};
    at_ += length;
}

bool Lexer::ReadPunctuation(Token& token) {
    const auto letter = static_cast<Byte>(*at_);
    if (letter >= 128) return false;
    const std::string_view rest = Between(at_, end_);
    for (std::size_t i = Table.First[letter]; i < Table.First[letter + std::size_t{1}]; ++i) {
        const Sign& sign = Table.Sorted[i];
        if (sign.Text.size() == 1 || rest.starts_with(sign.Text)) {
            Take(token, sign.Kind, sign.Text.size());
            return true;
        }
    }
    return false;
}

Token Lexer::ReadName(Token token) {
    const char* begin = at_;
    while (IsNameAt(at_)) Step();
    token.Text = Between(begin, at_);
    CheckLength(token);
    token.Name = symbols_.Intern(token.Text);
    if (!token.Name->IsClassified) Classify(*token.Name, version_);
    token.Kind = token.Name->Kind;
    return token;
}

bool Lexer::ReadSlashPath(Token& token, PathForm form) {
    const char* begin = token.Text.data();
    const char* at = begin;
    const auto is = [&](char letter) { return at != end_ && *at == letter; };
    const auto skipName = [&] {
        const char* first = at;
        if (end_ - at >= 2 && at[0] == '.' && at[1] == '.') {
            at += 2;
        } else {
            while (IsNameAt(at)) at += WidthAt(at);
        }
        return at != first;
    };
    const bool begins = is('/') || is(':') || (is('.') && end_ - at > 1 && at[1] == '.');
    const bool goesOn = Ahead(0) == '/' || (Ahead(0) == ':' && form != PathForm::WithSlash);
    if (!begins && (form == PathForm::Rooted || !goesOn)) return false;
    if (form == PathForm::WithColon && begin >= noPath_.data() &&
        begin < noPath_.data() + noPath_.size())
        return false;
    bool hasSlash = false;
    bool hasColon = false;
    if (!is('/') && !is(':')) skipName();
    while (is('/')) {
        hasSlash = true;
        ++at;
        if (!skipName() && !is(':')) break;
    }
    if (is(':')) {
        ++at;
        hasColon = skipName();
        if (!hasColon) return NoPath(begin, at);
    }
    const bool isCall = hasSlash && at[-1] != '/' && is('(');
    if (!begins && !hasColon && (!isCall || form != PathForm::WithColonOrCall))
        return NoPath(begin, at);
    token.Kind = TokenKind::SlashPath;
    token.Text = Between(begin, at);
    CheckLength(token);
    token.Name = symbols_.Intern(token.Text);
    at_ = at;
    return true;
}

/// Of a long division every operand would else be looked through to its end.
bool Lexer::NoPath(const char* begin, const char* end) {
    noPath_ = Between(begin, end);
    return false;
}

void Lexer::CheckLength(const Token& token) {
    if (token.Text.size() > Symbol::MaxText)
        diagnostics_.Error(token.At, token.Text, String(Symbol::TooLong));
}

Token Lexer::ReadNumber(Token token) {
    const char* begin = at_;
    token.Kind = TokenKind::Number;
    if (*at_ == '0' && (Ahead(1) == 'x' || Ahead(1) == 'X')) {
        at_ += 2;
        ReadPrefixed(token, 16);
        if (at_ == begin + 2)
            diagnostics_.Error(token.At, Between(begin, at_), u"16 進数の桁が必要です。");
    } else {
        const char* digits = begin;
        while (digits != end_ && *digits >= '0' && *digits <= '7') ++digits;
        const bool isOctal =
            *begin == '0' && digits - begin > 1 &&
            (digits == end_ || std::string_view(".89eE").find(*digits) == std::string_view::npos);
        if (isOctal)
            ReadPrefixed(token, 8);
        else
            ReadDecimal(token);
    }
    token.Text = Between(begin, at_);
    if (IsNameAt(at_)) {
        while (IsNameAt(at_)) Step();
        diagnostics_.Error(token.At, Between(begin, at_), u"数値の書き方が正しくありません。");
    }
    return token;
}

void Lexer::ReadPrefixed(Token& token, unsigned base) {
    for (; at_ != end_ && DigitValue(*at_) < base; ++at_)
        token.Number = token.Number * base + DigitValue(*at_);
}

void Lexer::ReadDecimal(Token& token) {
    const char* begin = at_;
    std::uint64_t whole = 0;
    while (at_ != end_ && ClassOf(*at_) == DigitClass && at_ - begin < 15)
        whole = whole * 10 + DigitValue(*at_++);
    const char next = Ahead(0);
    if (next != '.' && next != 'e' && next != 'E' && ClassOf(next) != DigitClass) {
        token.Number = static_cast<double>(whole);
        return;
    }
    const auto read = std::from_chars(begin, end_, token.Number);
    at_ = read.ptr;
    if (read.ec == std::errc::result_out_of_range) {
        const std::string_view text = Between(begin, at_);
        const bool isSmall = text.find("e-") != text.npos || text.find("E-") != text.npos;
        token.Number = isSmall ? 0 : std::numeric_limits<double>::infinity();
    }
}

Token Lexer::ReadString(Token token) {
    const char* begin = at_;
    const char quote = *at_++;
    const char* plain = at_;
    bool isPlain = true;
    scratch_.clear();
    token.Kind = TokenKind::Text;
    while (at_ != end_ && *at_ != quote && *at_ != '\n' && *at_ != '\r') {
        if (*at_ == '\\') {
            scratch_.append(plain, at_);
            isPlain = false;
            ReadEscape(scratch_, token);
            plain = at_;
        } else if (*at_ == '\0') {
            diagnostics_.Error(Here(), {}, u"NUL 文字は使用できません。");
            scratch_.append(plain, at_++);
            isPlain = false;
            plain = at_;
        } else {
            Step();
        }
    }
    const bool isClosed = at_ != end_ && *at_ == quote;
    const char* close = at_;
    if (isClosed) ++at_;
    token.Text = Between(begin, at_);
    if (!isClosed)
        diagnostics_.Error(token.At, token.Text, u"文字列が閉じられていません。引用符が必要です。");
    CheckLength(token);
    if (isPlain) {
        token.Name = symbols_.Intern(Between(plain, close));
    } else {
        scratch_.append(plain, close);
        token.Name = symbols_.InternCopy(scratch_);
    }
    return token;
}

std::uint32_t Lexer::ReadDigits(unsigned base, int count) {
    std::uint32_t value = 0;
    for (; count > 0 && at_ != end_ && DigitValue(*at_) < base; --count, ++at_)
        value = value * base + DigitValue(*at_);
    return value;
}

void Lexer::AppendCharacter(std::string& text, std::uint32_t code, const Token& token) {
    if (code == 0) {
        diagnostics_.Error(token.At, "\\0", u"文字列に NUL 文字は使用できません。");
    } else if (code < 0x80 || (!isUtf8_ && code < 0x100)) {
        text += static_cast<char>(code);
    } else {
        String one;
        if (code >= FirstWide) one += static_cast<char16_t>(0xD800 + ((code - FirstWide) >> 10));
        one += static_cast<char16_t>(code < FirstWide ? code : 0xDC00 | (code & 0x3FF));
        const Bytes bytes = isUtf8_ ? EncodeUtf8(one) : EncodeAnsi(one);
        text.append(bytes.begin(), bytes.end());
    }
}

/// The character whose first half is told, when the escape of the second stands behind it.
std::uint32_t Lexer::ReadSecondHalf(std::uint32_t first) {
    if (!Between(at_, end_).starts_with("\\u")) return first;
    const char* begin = at_;
    at_ += 2;
    const std::uint32_t second = ReadDigits(16, 4);
    if (second >= 0xDC00 && second < 0xE000)
        return FirstWide + ((first & 0x3FF) << 10) + (second & 0x3FF);
    at_ = begin;
    return first;
}

void Lexer::ReadEscape(std::string& text, const Token& token) {
    ++at_;
    if (at_ == end_ || *at_ == '\n' || *at_ == '\r') return;
    const char letter = *at_;
    if (letter >= '0' && letter <= '7') {
        AppendCharacter(text, ReadDigits(8, letter <= '3' ? 3 : 2), token);
        return;
    }
    if ((letter == 'x' || letter == 'u') && DigitValue(Ahead(1)) < 16) {
        ++at_;
        std::uint32_t code = ReadDigits(16, letter == 'x' ? 2 : 4);
        if (code >= 0xD800 && code < 0xDC00) code = ReadSecondHalf(code);
        AppendCharacter(text, code, token);
        return;
    }
    constexpr std::string_view Names = "bfnrtv";
    constexpr std::string_view Values = "\b\f\n\r\t\v";
    const std::size_t which = Names.find(letter);
    if (which != Names.npos) {
        text += Values[which];
        ++at_;
        return;
    }
    const char* begin = at_;
    Step();
    text.append(begin, at_);
}

}  // namespace tamber
