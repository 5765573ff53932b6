#include "script/compiler/VersionAdvice.h"

namespace tamber {

namespace {

struct Advice {
    std::string_view Token;
    StringView Text;
};

constexpr Advice Advices[] = {
    {"%", u" a - int(a / b) * b と書いて下さい。"},
    {"%=", u" a = a - int(a / b) * b と書いて下さい。"},
    {"[", u" eval(\"a\" add i) と set(\"a\" add i, 値) を使って下さい。"},
    {"function", u"フレームに書いて call() で呼び出して下さい。"},
    {"with", u" tellTarget を使って下さい。"},
    {"===", u" == を使って下さい。"},
    {"!==", u" != を使って下さい。"},
    {"null", u" \"\" を使って下さい。"},
    {"undefined", u" \"\" を使って下さい。"},
};

}  // namespace

StringView VersionAdvice(std::string_view token) {
    for (const Advice& advice : Advices)
        if (advice.Token == token) return advice.Text;
    return {};
}

}  // namespace tamber
