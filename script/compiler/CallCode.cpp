#include <utility>

#include "platform/text.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/NumberText.h"
#include "script/compiler/PlayerClasses.h"
#include "script/compiler/Versions.h"
#include "script/compiler/Vocabulary.h"

namespace tamber {

namespace {

constexpr std::uint32_t LoadTarget = 0x40;
constexpr std::uint32_t LoadVariables = 0x80;
constexpr std::uint32_t MethodGet = 1;
constexpr std::uint32_t MethodPost = 2;
/// Depths that authors name begin here for the player.
constexpr Long FirstDepth = 16384;
constexpr std::uint32_t GotoPlays = 1;
constexpr std::size_t MaxUrlRecord = 60000;
/// Number of the property that is the path of a clip.
constexpr Long TargetProperty = 11;
constexpr std::string_view VersionPath = "/:$version";
constexpr std::string_view LevelName = "_level";

/// 0 for what names no way to send variables.
std::uint32_t MethodNamed(std::string_view name) {
    const std::string lower = Lower(name);
    if (lower == "get") return MethodGet;
    return lower == "post" ? MethodPost : 0;
}

/// Which argument of a function is the clip that a method is called of; NoMethod when clips have no
/// such method.
enum class ClipArgument : Byte { None, First, Second, NoMethod };

ClipArgument ClipArgumentOf(const Builtin& builtin) {
    switch (builtin.Form) {
        case BuiltinForm::OfClip:
        case BuiltinForm::UnloadMovie:
        case BuiltinForm::Duplicate:
        case BuiltinForm::StartDrag:
            return ClipArgument::First;
        case BuiltinForm::LoadMovie:
        case BuiltinForm::LoadVariables:
            return ClipArgument::Second;
        case BuiltinForm::GetProperty:
        case BuiltinForm::SetProperty:
        case BuiltinForm::Print:
        case BuiltinForm::PrintAsBitmap:
            return ClipArgument::NoMethod;
        default:
            return ClipArgument::None;
    }
}

bool IsWhole(const Node& node, double low, double high) {
    return node.Kind == NodeKind::Number && node.Value >= low && node.Value <= high &&
           node.Value == static_cast<double>(static_cast<std::int64_t>(node.Value));
}

}  // namespace

bool CodeGenerator::Call(const Node& node) {
    const Node& callee = *node.A;
    if (callee.Kind == NodeKind::SlashPath) return CallInSlashPath(node);
    if (IsCallOfBuiltin(node)) return BuiltinCall(*callee.Name->BuiltinEntry, node);
    if (version_ >= FirstObjectVersion) {
        if (!Cast(node)) PlainCall(node);
        return true;
    }
    std::string path;
    if (callee.Kind == NodeKind::Member && SlashPathOf(*callee.A, path))
        return CallInTarget(path, callee.Name, node);
    Complain(node, u"SWF4 にはこの名前の関数がありません。");
    return true;
}

/// Numbers and texts are converted by an action when there is one argument. Among the members of an
/// object, and in a class, the clip's own functions are methods.
bool CodeGenerator::IsCallOfBuiltin(const Node& node) {
    if (node.A->Kind != NodeKind::Name || node.A->Name->BuiltinEntry == nullptr) return false;
    const Builtin& builtin = *node.A->Name->BuiltinEntry;
    if (IsOwnMethod(builtin, node)) return false;
    if (builtin.Action == Opcode::ToNumber || builtin.Action == Opcode::ToString)
        return node.Count == 1 && version_ >= builtin.MinVersion;
    return function_.Withs == 0 || !IsMethodWithin(builtin, node);
}

/// Whether a call within `with` is one of the object's method: of one that acts on a timeline, or
/// one with other arguments than the function's.
bool CodeGenerator::IsMethodWithin(const Builtin& builtin, const Node& call) const {
    return IsMethodOfClip(builtin) ||
           (HasMethodArguments(builtin, call) && HasPlayerMember("MovieClip", builtin.Name));
}

/// Whether the arguments can only be those of a method: the function's, without the clip.
bool CodeGenerator::HasMethodArguments(const Builtin& builtin, const Node& call) {
    if (!builtin.Takes(call.Count)) return true;
    switch (builtin.Form) {
        case BuiltinForm::StartDrag:
            return (call.Count > 2 && call.Count < 6) || call.B->Kind == NodeKind::Boolean;
        case BuiltinForm::LoadMovie:
        case BuiltinForm::LoadVariables:
            return call.Count == 2 && call.B->Next->Kind == NodeKind::Text &&
                   MethodNamed(call.B->Next->Name->Text) != 0;
        default:
            return false;
    }
}

bool CodeGenerator::IsMethodOfClip(const Builtin& builtin) const {
    switch (builtin.Action) {
        case Opcode::Play:
        case Opcode::Stop:
        case Opcode::NextFrame:
        case Opcode::PreviousFrame:
            return true;
        default:
            return builtin.Form == BuiltinForm::GotoAndPlay ||
                   builtin.Form == BuiltinForm::GotoAndStop;
    }
}

/// "/a/b/play": play in the clip /a/b. "/a/b:f": a function of its own, which the player finds.
bool CodeGenerator::CallInSlashPath(const Node& node) {
    const std::string_view text = node.A->Name->Text;
    if (version_ >= FirstObjectVersion && text.find(':') != text.npos) {
        PlainCall(node);
        return true;
    }
    const std::size_t slash = text.rfind('/');
    Symbol* name = symbols_.Intern(slash == text.npos ? text : text.substr(slash + 1));
    if (!name->IsClassified) Classify(*name, version_);
    const std::string_view path = slash == 0 ? "/" : text.substr(0, slash == text.npos ? 0 : slash);
    return CallInTarget(WithoutClipName(path), name, node);
}

bool CodeGenerator::CallInTarget(const std::string& path, Symbol* name, const Node& node) {
    const Builtin* builtin = name->BuiltinEntry;
    const ClipArgument clip =
        builtin == nullptr ? ClipArgument::NoMethod : ClipArgumentOf(*builtin);
    if (clip == ClipArgument::NoMethod) {
        Complain(node, u"この名前の関数はパスで呼び出せません。");
        return true;
    }
    Symbol* const target = PathText(node, path);
    if (clip != ClipArgument::None)
        return CallForClip(*builtin, *target, clip == ClipArgument::Second, node);
    EnterTarget(*target);
    const bool hasValue = BuiltinCall(*builtin, node);
    RestoreTarget(scopes_.size());
    return hasValue;
}

/// The player looks for a target from the script's own clip, but for the clips of properties from
/// the target that is set.
void CodeGenerator::EnterTarget(Symbol& path) {
    const bool isFromOwn = !IsInTarget() || path.Text.starts_with('/');
    if (isFromOwn) return code_->Emit(ItemKind::SetTarget, path.Index);
    if (path.Text.empty()) return;
    code_->PushText(&path);
    PushInteger(TargetProperty);
    code_->Emit(Opcode::GetProperty);
    code_->Emit(Opcode::SetTarget2);
}

/// A method's call as one of the function, which takes the clip as its first or second argument.
bool CodeGenerator::CallForClip(const Builtin& builtin, Symbol& target, bool isSecond,
                                const Node& node) {
    if (!builtin.Takes(node.Count + 1)) {
        WrongCount(node, builtin.MinArguments - 1, builtin.MaxArguments - 1);
        return builtin.HasValue;
    }
    Node clip;
    clip.Kind = NodeKind::Text;
    clip.At = node.At;
    clip.Name = &target;
    Node first;
    Node call = node;
    ++call.Count;
    if (isSecond) {
        first = *node.B;
        clip.Next = std::exchange(first.Next, &clip);
    } else {
        clip.Next = node.B;
    }
    call.B = isSecond ? &first : &clip;
    return BuiltinCall(builtin, call);
}

void CodeGenerator::WrongCount(const Node& node, Long least, Long most) {
    String text = u"引数の数が正しくありません。（" + ToText(least);
    if (most != least) text += u"～" + ToText(most);
    Complain(node, text + u"個）");
}

bool CodeGenerator::BuiltinCall(const Builtin& builtin, const Node& node) {
    if (!builtin.Takes(node.Count)) {
        WrongCount(node, builtin.MinArguments, builtin.MaxArguments);
        return builtin.HasValue;
    }
    if (version_ < builtin.MinVersion) NeedVersion5(node);
    const Node* first = node.B;
    switch (builtin.Form) {
        case BuiltinForm::GotoAndPlay:
        case BuiltinForm::GotoAndStop:
            Goto(node, builtin.Form == BuiltinForm::GotoAndPlay);
            break;
        case BuiltinForm::GetUrl:
            Url(node, 0);
            break;
        case BuiltinForm::LoadMovie:
            Url(node, LoadTarget);
            break;
        case BuiltinForm::LoadMovieNum:
            UrlOfLevel(*first, *first->Next, Method(first->Next->Next));
            break;
        case BuiltinForm::LoadVariables:
            Url(node, LoadTarget | LoadVariables);
            break;
        case BuiltinForm::LoadVariablesNum:
            UrlOfLevel(*first, *first->Next, LoadVariables | Method(first->Next->Next));
            break;
        case BuiltinForm::UnloadMovie:
            UrlText(Known(""), *first, IsWhole(*first, 0, 65535), LoadTarget);
            break;
        case BuiltinForm::UnloadMovieNum:
            UrlText(Known(""), *first, true, 0);
            break;
        case BuiltinForm::FsCommand:
            FsCommand(node);
            break;
        case BuiltinForm::Print:
            Print(node, "print:", false);
            break;
        case BuiltinForm::PrintNum:
            Print(node, "print:", true);
            break;
        case BuiltinForm::PrintAsBitmap:
            Print(node, "printasbitmap:", false);
            break;
        case BuiltinForm::PrintAsBitmapNum:
            Print(node, "printasbitmap:", true);
            break;
        case BuiltinForm::Duplicate:
            Duplicate(node);
            break;
        case BuiltinForm::StartDrag:
            StartDrag(node);
            break;
        case BuiltinForm::GetProperty:
        case BuiltinForm::SetProperty:
            Target(*first);
            PushProperty(*first->Next);
            if (first->Next->Next != nullptr) Expression(*first->Next->Next);
            code_->Emit(builtin.Action);
            break;
        case BuiltinForm::OfClip:
            Target(*first);
            code_->Emit(builtin.Action);
            break;
        case BuiltinForm::GetVersion:
            Text(VersionPath);
            code_->Emit(builtin.Action);
            break;
        default:
            PushArguments(node);
            code_->Emit(builtin.Action);
    }
    return builtin.HasValue;
}

/// The clip that an action is for. Version 4 has no clips as values, so names that can only be
/// those of clips are their paths.
void CodeGenerator::Target(const Node& node) {
    std::string path;
    if (version_ < FirstObjectVersion && IsClipName(node) && SlashPathOf(node, path))
        return code_->PushText(PathText(node, path));
    Expression(node);
}

bool CodeGenerator::IsClipName(const Node& node) {
    switch (node.Kind) {
        case NodeKind::This:
            return true;
        case NodeKind::Name:
            return node.Name->Special == SpecialName::Root ||
                   node.Name->Special == SpecialName::Parent;
        case NodeKind::Member:
            return node.Name->Property == Symbol::NoProperty;
        case NodeKind::SlashPath:
            return node.Name->Text.find(':') == std::string_view::npos;
        default:
            return false;
    }
}

void CodeGenerator::PushArguments(const Node& node) {
    for (const Node* argument = node.B; argument != nullptr; argument = argument->Next)
        Expression(*argument);
}

/// The player takes the first from the top.
void CodeGenerator::PushArgumentsBackward(const Node* first, std::uint32_t count) {
    const std::size_t base = spine_.size();
    for (const Node* node = first; node != nullptr; node = node->Next) spine_.push_back(node);
    for (; count > 0; --count) {
        const Node& argument = *spine_.back();
        spine_.pop_back();
        Expression(argument);
    }
    spine_.resize(base);
}

void CodeGenerator::PlainCall(const Node& node) {
    const Node& callee = Meant(*node.A);
    const bool isNamed = callee.Kind == NodeKind::Name || callee.Kind == NodeKind::SlashPath;
    if (!isNamed || IsMemberPlace(callee)) return MethodCall(node);
    PushArgumentsBackward(node.B, node.Count);
    Numeric(node.Count);
    code_->PushText(Called(callee));
    code_->Emit(Opcode::CallFunction);
}

bool CodeGenerator::IsMemberPlace(const Node& callee) {
    if (IsAccessorOfBase(callee)) return false;
    return callee.Kind == NodeKind::Member || callee.Kind == NodeKind::Index ||
           (callee.Kind == NodeKind::Name && PlaceOf(callee).Kind == PlaceKind::Member);
}

/// A value that is no member is called by a method without a name.
void CodeGenerator::MethodCall(const Node& node) {
    const Node& callee = Meant(*node.A);
    PushArgumentsBackward(node.B, node.Count);
    Numeric(node.Count);
    if (IsMemberPlace(callee)) {
        PushCallee(PlaceOf(callee));
    } else {
        Expression(callee);
        code_->Emit(ItemKind::PushUndefined);
    }
    code_->Emit(Opcode::CallMethod);
}

void CodeGenerator::New(const Node& node) {
    const Node& callee = Meant(*node.A);
    PushArgumentsBackward(node.B, node.Count);
    Numeric(node.Count);
    const bool isMember = IsMemberPlace(callee);
    if (callee.Kind == NodeKind::Name && !isMember) {
        code_->PushText(Called(callee));
        return code_->Emit(Opcode::NewObject);
    }
    if (isMember) {
        PushCallee(PlaceOf(callee));
    } else {
        Expression(callee);
        code_->Emit(ItemKind::PushUndefined);
    }
    code_->Emit(Opcode::NewMethod);
}

/// With two arguments the first is a scene: a movie has one only.
void CodeGenerator::Goto(const Node& node, bool isPlay) {
    const Node& frame = node.Count == 2 ? *node.B->Next : *node.B;
    if (node.Count == 2)
        faults_.Warn(node.At, u"シーンはありません。フレームはムービーの先頭から数えます。");
    if (IsWhole(frame, 1, 65535)) {
        code_->Emit(ItemKind::GotoFrame, static_cast<std::uint32_t>(frame.Value) - 1);
        if (isPlay) code_->Emit(Opcode::Play);
    } else if (frame.Kind == NodeKind::Text) {
        code_->Emit(ItemKind::GotoLabel, frame.Name->Index);
        if (isPlay) code_->Emit(Opcode::Play);
    } else {
        Expression(frame);
        code_->Emit(ItemKind::GotoFrame2, isPlay ? GotoPlays : 0);
    }
}

/// GET, POST, or none. The name may stand as a text or, as its own.
std::uint32_t CodeGenerator::Method(const Node* node) {
    if (node == nullptr) return 0;
    const bool isName = node->Kind == NodeKind::Text || node->Kind == NodeKind::Name;
    const std::string_view name = isName ? node->Name->Text : std::string_view();
    const std::uint32_t method = MethodNamed(name);
    if (method == 0 && (!isName || !name.empty()))
        Complain(*node, u"送信方法は \"GET\" または \"POST\" です。");
    return method;
}

/// url, then a window or target, then a method.
void CodeGenerator::Url(const Node& node, std::uint32_t flags) {
    const Node& url = *node.B;
    const Node* target = url.Next;
    if (target != nullptr) flags |= Method(target->Next);
    if ((flags & LoadTarget) != 0 && IsWhole(*target, 0, 65535))
        return UrlOfLevel(url, *target, flags & ~LoadTarget);
    const bool isPlain = flags == 0 && url.Kind == NodeKind::Text &&
                         (target == nullptr || target->Kind == NodeKind::Text);
    Symbol* window = target == nullptr ? Known("") : target->Name;
    if (isPlain && url.Name->Text.size() + window->Text.size() < MaxUrlRecord)
        return code_->GetUrl(url.Name, window);
    Expression(url);
    if (target == nullptr)
        code_->PushText(window);
    else
        (flags & LoadTarget) != 0 ? Target(*target) : Expression(*target);
    code_->Emit(ItemKind::GetUrl2, flags);
}

void CodeGenerator::UrlOfLevel(const Node& url, const Node& level, std::uint32_t flags) {
    if (url.Kind == NodeKind::Text) return UrlText(url.Name, level, true, flags);
    Expression(url);
    PushLevel(level);
    code_->Emit(ItemKind::GetUrl2, flags);
}

void CodeGenerator::UrlText(Symbol* url, const Node& target, bool isLevel, std::uint32_t flags) {
    if (isLevel) flags &= ~LoadTarget;
    const bool isShort = url->Text.size() < MaxUrlRecord;
    if (isLevel && flags == 0 && isShort && IsWhole(target, 0, 65535)) {
        Symbol* level = symbols_.InternCopy(std::string(LevelName) + NumberText(target.Value));
        return code_->GetUrl(url, level);
    }
    code_->PushText(url);
    if (isLevel)
        PushLevel(target);
    else
        Target(target);
    code_->Emit(ItemKind::GetUrl2, flags);
}

void CodeGenerator::PushLevel(const Node& level) {
    if (IsWhole(level, 0, 65535)) return Text(std::string(LevelName) + NumberText(level.Value));
    Text(LevelName);
    Expression(level);
    code_->Emit(Opcode::StringAdd);
}

/// An address that the player gives to its surroundings: the command, and in place of the window
/// its arguments.
void CodeGenerator::FsCommand(const Node& node) {
    constexpr std::string_view Scheme = "FSCommand:";
    const Node& command = *node.B;
    const Node* arguments = command.Next;
    const bool isPlain = command.Kind == NodeKind::Text &&
                         (arguments == nullptr || arguments->Kind == NodeKind::Text);
    Symbol* text = arguments == nullptr ? Known("") : arguments->Name;
    if (command.Kind == NodeKind::Text) {
        Symbol* url = symbols_.InternCopy(std::string(Scheme).append(command.Name->Text));
        if (isPlain && url->Text.size() + text->Text.size() < MaxUrlRecord)
            return code_->GetUrl(url, text);
        code_->PushText(url);
    } else {
        Text(Scheme);
        Expression(command);
        code_->Emit(Opcode::StringAdd);
    }
    if (arguments == nullptr)
        code_->PushText(text);
    else
        Expression(*arguments);
    code_->Emit(ItemKind::GetUrl2, 0);
}

/// The bounds of the page: of the movie's frame labelled for it, of each frame, or of all.
void CodeGenerator::Print(const Node& node, std::string_view scheme, bool isLevel) {
    const Node& bounds = *node.B->Next;
    const std::string name =
        bounds.Kind == NodeKind::Text ? Lower(bounds.Name->Text) : std::string();
    if (name != "bmovie" && name != "bframe" && name != "bmax")
        return Complain(bounds, u"印刷範囲は \"bmovie\"、\"bframe\"、\"bmax\" のいずれかです。");
    std::string url(scheme);
    if (name != "bmovie") url += "#" + name;
    UrlText(symbols_.InternCopy(url), *node.B, isLevel, 0);
}

void CodeGenerator::Duplicate(const Node& node) {
    const Node& source = *node.B;
    const Node& name = *source.Next;
    const Node& depth = *name.Next;
    Target(source);
    Expression(name);
    if (depth.Kind == NodeKind::Number) {
        code_->PushNumber(depth.Value + FirstDepth);
    } else {
        // Adding would join a text and a number.
        Expression(depth);
        PushInteger(-FirstDepth);
        code_->Emit(Opcode::Subtract);
    }
    code_->Emit(Opcode::CloneSprite);
}

/// target, whether its centre is held, then left, top, right and bottom.
void CodeGenerator::StartDrag(const Node& node) {
    const Node& target = *node.B;
    const Node* lock = target.Next;
    const bool hasBounds = node.Count == 6;
    if (node.Count > 2 && !hasBounds)
        Complain(*lock->Next, u"範囲には left, top, right, bottom の四つが必要です。");
    if (hasBounds)
        for (const Node* side = lock->Next; side != nullptr; side = side->Next) Expression(*side);
    PushInteger(hasBounds ? 1 : 0);
    if (lock == nullptr)
        PushInteger(0);
    else
        Expression(*lock);
    Target(target);
    code_->Emit(Opcode::StartDrag);
}

bool CodeGenerator::PropertyNumber(const Node& node, Byte& number) const {
    if (node.Kind != NodeKind::Name && node.Kind != NodeKind::Text) return false;
    Symbol* name = node.Name;
    if (!name->IsClassified) Classify(*name, version_);
    number = name->Property;
    return number != Symbol::NoProperty;
}

/// A property by its name, or an expression for its number.
void CodeGenerator::PushProperty(const Node& node) {
    Byte number = 0;
    if (PropertyNumber(node, number)) return PushInteger(number);
    if (node.Kind == NodeKind::Text) return Complain(node, u"この名前のプロパティはありません。");
    Expression(node);
}

}  // namespace tamber
