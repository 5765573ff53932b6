#include "script/ClassScript.h"

#include "platform/text.h"
#include "script/ScriptScanner.h"

namespace tamber {

using namespace ScriptScanner;

namespace {

void AppendLine(String& buffer, std::initializer_list<StringView> parts) {
    for (const StringView part : parts) buffer += part;
    buffer += u"\r\n";
}

/// First position from `pos` on, blanks and comments stepped over, that holds `wanted`; 0 when the
/// text ends first.
Long FindCharacter(StringView text, Long pos, char16_t wanted) {
    while (true) {
        pos = SkipBlanks(text, pos);
        if (AtEnd(text, pos)) return 0;
        if (At(text, pos) == wanted) return pos;
        ++pos;
    }
}

/// Reads the name and the text of a function; `pos` stands behind the word.
bool ReadFunction(StringView body, Long& pos, ClassMember& member, StringView ownName) {
    const Long start = SkipToToken(body, pos);
    const Long end = FindTokenEnd(body, start, u'(', u'(');
    member.Name = Between(body, start, end);
    member.Kind =
        member.Name == ownName ? ClassMember::KindOf::Constructor : ClassMember::KindOf::Function;
    const Long open = SkipBlanks(body, end);
    if (At(body, open) != u'(') return false;
    const Long parameters = FindCharacter(body, open, u')');
    const Long brace = parameters != 0 ? FindCharacter(body, parameters, u'{') : 0;
    const Long close = brace != 0 ? FindCloseBrace(body, brace + 1) : 0;
    if (close == 0) return false;
    member.Text = Between(body, open, close + 1);
    pos = close + 1;
    return true;
}

/// Reads a variable's statement, which begins at the next token from `pos` on, or is empty.
bool ReadVariable(StringView body, Long& pos, ClassMember& member) {
    const Long end = FindStatementEnd(body, pos);
    const Long start = SkipToToken(body, pos);
    if (end == 0 || AtEnd(body, start)) return false;
    member.Kind = ClassMember::KindOf::Variable;
    member.Name.clear();
    member.Text = start < end ? Between(body, start, end + 1) : String();
    if (FindCharacter(member.Text, 1, u'=') == 0) member.Text.clear();
    pos = end + 1;
    return true;
}

/// Makes an object of each package that is not there yet.
void AppendPackages(String& head, StringView className) {
    for (std::size_t dot = className.find(u'.'); dot != StringView::npos;
         dot = className.find(u'.', dot + 1)) {
        const StringView package = className.substr(0, dot);
        AppendLine(head, {u"if(!", package, u"){"});
        AppendLine(head, {u"_global.", package, u" = new Object();"});
        AppendLine(head, {u"}"});
    }
}

void AppendDefaultConstructor(String& head, const ClassScriptNames& names) {
    if (names.Extends.empty()) {
        AppendLine(head, {u"_global.", names.className, u"=function(){};"});
        return;
    }
    AppendLine(head, {u"_global.", names.className, u"=function(){"});
    AppendLine(head, {u"super();"});
    AppendLine(head, {u"};"});
}

}  // namespace

StringView classNameEx(StringView className) {
    return className.substr(className.rfind(u'.') + 1);
}

bool ParseClassMember(StringView body, Long& pos, ClassMember& member, StringView ownName) {
    const Long start = SkipToToken(body, pos);
    if (AtEnd(body, start)) return false;
    const Long end = FindTokenEnd(body, start, u'=', u';');
    const String word = FoldCase(Between(body, start, end));
    pos = word == u"function" || word == u"var" ? end : start;
    const bool read = word == u"function" ? ReadFunction(body, pos, member, ownName)
                                          : ReadVariable(body, pos, member);
    pos = SkipBlanks(body, pos);
    return read;
}

void AppendRegisterClass(String& buffer, StringView className, const std::vector<String>& links) {
    for (const String& link : links)
        AppendLine(buffer, {u"Object.registerClass(\"", link, u"\",", className, u");"});
}

String GenerateClassScript(StringView body, const ClassScriptNames& names) {
    const String& className = names.className;
    String head;
    String methods;
    String values;
    AppendLine(head, {u"#initclip"});
    AppendLine(head, {u"if(!", className, u"){"});
    AppendPackages(head, className);
    if (!names.Extends.empty()) {
        AppendLine(methods, {u"_global.", className, u".prototype.__proto__=", names.Extends,
                             u".prototype;"});
        AppendLine(methods,
                   {u"_global.", className, u".prototype.__constructor__=", names.Extends, u";"});
    }
    AppendRegisterClass(methods, className, names.Links);
    AppendLine(methods, {u"var v1=_global.", className, u".prototype;"});
    AppendLine(values, {u"ASSetPropFlags(v1,null,1);"});

    bool constructed = false;
    ClassMember member;
    for (Long pos = 1; ParseClassMember(body, pos, member, classNameEx(className));) {
        switch (member.Kind) {
            case ClassMember::KindOf::Constructor:
                AppendLine(head, {u"_global.", className, u"=function", member.Text, u";"});
                constructed = true;
                break;
            case ClassMember::KindOf::Function:
                AppendLine(methods, {u"v1.", member.Name, u"=function", member.Text, u";"});
                break;
            case ClassMember::KindOf::Variable:
                if (!member.Text.empty()) AppendLine(values, {u"v1.", member.Text});
                break;
        }
    }
    if (!constructed) AppendDefaultConstructor(head, names);
    return head + methods + values + u"}\r\n#endinitclip";
}

}  // namespace tamber
