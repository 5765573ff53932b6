#include "script/compiler/Vocabulary.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>

#include "script/compiler/Versions.h"

namespace tamber {

namespace {

using Form = BuiltinForm;

struct Word {
    std::string_view Name;
    TokenKind Kind;
};

/// A word in the place of a name.
struct Special {
    std::string_view Name;
    SpecialName Meaning;
};

constexpr Word Words[] = {
    {"add", TokenKind::WordAdd},
    {"and", TokenKind::WordAnd},
    {"eq", TokenKind::WordEq},
    {"ge", TokenKind::WordGe},
    {"gt", TokenKind::WordGt},
    {"le", TokenKind::WordLe},
    {"lt", TokenKind::WordLt},
    {"ne", TokenKind::WordNe},
    {"not", TokenKind::WordNot},
    {"or", TokenKind::WordOr},
    {"break", TokenKind::Break},
    {"case", TokenKind::Case},
    {"catch", TokenKind::Catch},
    {"continue", TokenKind::Continue},
    {"default", TokenKind::Default},
    {"delete", TokenKind::Delete},
    {"do", TokenKind::Do},
    {"else", TokenKind::Else},
    {"finally", TokenKind::Finally},
    {"for", TokenKind::For},
    {"function", TokenKind::Function},
    {"if", TokenKind::If},
    {"in", TokenKind::In},
    {"ifFrameLoaded", TokenKind::IfFrameLoaded},
    {"new", TokenKind::New},
    {"instanceof", TokenKind::InstanceOf},
    {"return", TokenKind::Return},
    {"switch", TokenKind::Switch},
    {"this", TokenKind::This},
    {"tellTarget", TokenKind::TellTarget},
    {"throw", TokenKind::Throw},
    {"try", TokenKind::Try},
    {"typeof", TokenKind::TypeOf},
    {"var", TokenKind::Var},
    {"void", TokenKind::Void},
    {"while", TokenKind::While},
    {"with", TokenKind::With},
};

constexpr Special SpecialWords[] = {
    {"true", SpecialName::True},
    {"false", SpecialName::False},
    {"null", SpecialName::Null},
    {"undefined", SpecialName::Undefined},
    {"newline", SpecialName::NewLine},
    {"super", SpecialName::Super},
    {"class", SpecialName::Class},
    {"interface", SpecialName::Interface},
    {"dynamic", SpecialName::Dynamic},
    {"intrinsic", SpecialName::Intrinsic},
    {"import", SpecialName::Import},
    {"extends", SpecialName::Extends},
    {"implements", SpecialName::Implements},
    {"public", SpecialName::Public},
    {"private", SpecialName::Private},
    {"static", SpecialName::Static},
    {"get", SpecialName::Get},
    {"set", SpecialName::Set},
};

constexpr Special SpecialVariables[] = {
    {"arguments", SpecialName::Arguments}, {"_root", SpecialName::Root},
    {"_parent", SpecialName::Parent},      {"_global", SpecialName::Global},
    {"eval", SpecialName::Eval},
};

constexpr std::string_view Properties[] = {
    "_x",           "_y",           "_xscale",       "_yscale",       "_currentframe",
    "_totalframes", "_alpha",       "_visible",      "_width",        "_height",
    "_rotation",    "_target",      "_framesloaded", "_name",         "_droptarget",
    "_url",         "_highquality", "_focusrect",    "_soundbuftime", "_quality",
    "_xmouse",      "_ymouse",
};

constexpr Builtin Builtins[] = {
    {"play", Form::Action, 0, 0, Opcode::Play},
    {"stop", Form::Action, 0, 0, Opcode::Stop},
    {"nextFrame", Form::Action, 0, 0, Opcode::NextFrame},
    {"prevFrame", Form::Action, 0, 0, Opcode::PreviousFrame},
    {"stopAllSounds", Form::Action, 0, 0, Opcode::StopSounds},
    {"toggleHighQuality", Form::Action, 0, 0, Opcode::ToggleQuality},
    {"stopDrag", Form::Action, 0, 0, Opcode::EndDrag},
    {"trace", Form::Action, 1, 1, Opcode::Trace},
    {"call", Form::Action, 1, 1, Opcode::Call},
    {"removeMovieClip", Form::OfClip, 1, 1, Opcode::RemoveSprite},
    {"getTimer", Form::Action, 0, 0, Opcode::GetTime, true},
    {"random", Form::Action, 1, 1, Opcode::RandomNumber, true},
    {"int", Form::Action, 1, 1, Opcode::ToInteger, true},
    {"chr", Form::Action, 1, 1, Opcode::AsciiToChar, true},
    {"ord", Form::Action, 1, 1, Opcode::CharToAscii, true},
    {"mbchr", Form::Action, 1, 1, Opcode::MBAsciiToChar, true},
    {"mbord", Form::Action, 1, 1, Opcode::MBCharToAscii, true},
    {"mblength", Form::Action, 1, 1, Opcode::MBStringLength, true},
    {"mbsubstring", Form::Action, 3, 3, Opcode::MBStringExtract, true},
    {"length", Form::Action, 1, 1, Opcode::StringLength, true},
    {"substring", Form::Action, 3, 3, Opcode::StringExtract, true},
    {"targetPath", Form::OfClip, 1, 1, Opcode::TargetPath, true, 5},
    {"Number", Form::Action, 1, 1, Opcode::ToNumber, true, 5},
    {"String", Form::Action, 1, 1, Opcode::ToString, true, 5},
    {"eval", Form::Evaluate, 1, 1, Opcode::GetVariable, true},
    {"set", Form::SetNamed, 2, 2, Opcode::SetVariable},
    {"getVersion", Form::GetVersion, 0, 0, Opcode::GetVariable, true},
    {"getProperty", Form::GetProperty, 2, 2, Opcode::GetProperty, true},
    {"setProperty", Form::SetProperty, 3, 3, Opcode::SetProperty},
    {"gotoAndPlay", Form::GotoAndPlay, 1, 2},
    {"gotoAndStop", Form::GotoAndStop, 1, 2},
    {"getURL", Form::GetUrl, 1, 3},
    {"loadMovie", Form::LoadMovie, 2, 3},
    {"loadMovieNum", Form::LoadMovieNum, 2, 3},
    {"loadVariables", Form::LoadVariables, 2, 3},
    {"loadVariablesNum", Form::LoadVariablesNum, 2, 3},
    {"unloadMovie", Form::UnloadMovie, 1, 1},
    {"unloadMovieNum", Form::UnloadMovieNum, 1, 1},
    {"fscommand", Form::FsCommand, 1, 2},
    {"print", Form::Print, 2, 2},
    {"printNum", Form::PrintNum, 2, 2},
    {"printAsBitmap", Form::PrintAsBitmap, 2, 2},
    {"printAsBitmapNum", Form::PrintAsBitmapNum, 2, 2},
    {"duplicateMovieClip", Form::Duplicate, 3, 3, Opcode::CloneSprite},
    {"startDrag", Form::StartDrag, 1, 6, Opcode::StartDrag},
};

struct LaterName {
    std::string_view Name;
    Byte Version;
};

constexpr LaterName LaterNames[] = {
    {"Math", 5},
    {"Key", 5},
    {"Mouse", 5},
    {"Array", 5},
    {"Date", 5},
    {"Object", 5},
    {"XML", 5},
    {"Sound", 5},
    {"_global", 6},
    {"setInterval", 6},
    {"clearInterval", 6},
    {"LoadVars", 6},
    {"SharedObject", 6},
    {"LocalConnection", 6},
    {"TextFormat", 6},
    {"Stage", 6},
    {"System", 6},
    {"Accessibility", 6},
    {"ContextMenu", 7},
    {"ContextMenuItem", 7},
    {"PrintJob", 7},
    {"MovieClipLoader", 7},
    {"_lockroot", 7},
    {"setTimeout", 8},
    {"ExternalInterface", 8},
    {"BitmapData", 8},
    {"_quality", 5},
    {"_xmouse", 5},
    {"_ymouse", 5},
};

struct WordMeaning {
    TokenKind Kind = TokenKind::Identifier;
    SpecialName Name = SpecialName::None;
};

struct NameMeaning {
    SpecialName Name = SpecialName::None;
    Byte Property = Symbol::NoProperty;
    const Builtin* Function = nullptr;
    Byte NeededVersion = 0;
};

template <class Meaning>
using Dictionary = std::unordered_map<std::string, Meaning>;
using Spelling = std::string (*)(std::string_view);

Dictionary<WordMeaning> MakeWords(Spelling form) {
    Dictionary<WordMeaning> words;
    for (const Word& word : Words) words[form(word.Name)].Kind = word.Kind;
    for (const Special& special : SpecialWords) words[form(special.Name)].Name = special.Meaning;
    return words;
}

Dictionary<NameMeaning> MakeNames(Spelling form) {
    Dictionary<NameMeaning> names;
    for (const Special& special : SpecialVariables)
        names[form(special.Name)].Name = special.Meaning;
    for (const Builtin& builtin : Builtins) names[form(builtin.Name)].Function = &builtin;
    for (const LaterName& later : LaterNames) names[form(later.Name)].NeededVersion = later.Version;
    for (std::size_t i = 0; i < std::size(Properties); ++i)
        names[form(Properties[i])].Property = static_cast<Byte>(i);
    return names;
}

std::string AsItStands(std::string_view text) {
    return std::string(text);
}

/// What a text means, with or without regard to case; nothing for a text without a meaning.
template <class Meaning, Dictionary<Meaning> (*Make)(Spelling)>
Meaning Find(std::string_view text, bool withCase) {
    static const Dictionary<Meaning> exact = Make(AsItStands);
    static const Dictionary<Meaning> lower = Make(Lower);
    const Dictionary<Meaning>& words = withCase ? exact : lower;
    const auto found = words.find(withCase ? std::string(text) : Lower(text));
    return found == words.end() ? Meaning() : found->second;
}

/// First version in which keywords and the names of values are told by their case, too. Those of
/// variables are from FirstCaseVersion on.
constexpr Long FirstWordCaseVersion = 5;
/// No word of the dictionaries is longer.
constexpr std::size_t LongestWord = 24;

}  // namespace

std::string Lower(std::string_view text) {
    std::string lower(text);
    for (char& letter : lower)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return lower;
}

void Classify(Symbol& symbol, Long version) {
    symbol.IsClassified = true;
    if (symbol.Text.size() > LongestWord) return;
    const auto word = Find<WordMeaning, MakeWords>(symbol.Text, version >= FirstWordCaseVersion);
    const auto name = Find<NameMeaning, MakeNames>(symbol.Text, version >= FirstCaseVersion);
    symbol.Kind = word.Kind;
    symbol.Special = word.Name == SpecialName::None ? name.Name : word.Name;
    symbol.Property = name.Property;
    symbol.NeededVersion = name.NeededVersion;
    symbol.BuiltinEntry = name.Function;
}

std::string_view PropertyName(std::size_t number) {
    return number < std::size(Properties) ? Properties[number] : std::string_view();
}

}  // namespace tamber
