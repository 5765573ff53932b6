#include "app/settings/mdlPrivateProfile.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <string_view>
#include <unordered_map>

#include "platform/IniFile.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber::mdlPrivateProfile {

namespace {

constexpr StringView SettingsName = u"app.ini";
constexpr std::uint32_t ColourMask = 0xFFFFFF;
constexpr std::size_t ColourDigits = 6;

constexpr std::array KnownKeys = std::to_array<const KeyName*>({
    &SkinPath,
    &UndoRedoMaxCount,
    &UndoRedoType,
    &flgLoadSusie,
    &SusiePath,
    &GridWidth,
    &flgCanvasBlank,
    &CanvasBlank,
    &MorphFrames,
    &flgLoadMovie,
    &flgTopToBottom,
    &flgSWFCompress,
    &flgMakeHTML,
    &flgPagePlayer,
    &flgPrevPrjPath,
    &flgMouseSelect,
    &flgSameKeyFrameSelect,
    &flgCanvasAA,
    &flgCursorFrameDisp,
    &DefaultFont,
    &EditorFontName,
    &EditorFontSize,
    &EditorBackColor,
    &EditorForeColor,
    &EditorIndentColor,
    &flgReplaceKeyword,
    &flgCheckScale,
    &EditorUndoRedoMaxCount,
    &flgTextSetColor,
    &flgEditorDispCtrlChar,
    &EditorCrLfColor,
    &EditorTabWidth,
    &EditorTabToSpace,
    &flgSusiePriority,
    &flgIEPreview,
    &flgSpecifiedStandAlone,
    &StandAlonePath,
    &DefaultPreview,
    &SymbolFrameWidth,
    &SymbolFrameHeightMode,
    &LayerTblWidth,
    &LayerTblHeight,
    &flgKeyFrameEditVisible,
    &CanvasWidth,
    &CanvasHeight,
    &FPS,
    &SWFVersion,
    &flgForwardLayerVisible,
    &flgBackLayerVisible,
    &flgGridVisible,
    &flgGridAdsorp,
    &flgEditTweenLine,
    &flgDispAllTweenLine,
    &CanvasScale,
    &MemoriScale,
    &flgHTMLtoProject,
    &flgWaveDisp,
    &flgNumBoxForcusSelect,
    &ScriptEditor_MostTop,
    &ScriptEditor_Docking,
    &ScriptEditor_Visible,
    &ScriptEditor_Splitter,
    &ScriptEditor_EditorRatio,
    &HTML_align,
    &HTML_salign,
    &HTML_play,
    &HTML_loop,
    &HTML_menu,
    &HTML_quality,
    &HTML_wmode,
    &HTML_SizeUnit,
    &HTML_WIDTH,
    &HTML_HEIGHT,
    &HTML_scale,
    &HTML_NamedAnchors,
    &SymbolList_Docking,
});

/// Values that count before those of the file, by section and key.
class OverrideTable {
public:
    void Set(const KeyName& name, StringView value) {
        const std::lock_guard lock(mutex_);
        values_.insert_or_assign(Index(name), String(value));
    }
    void Remove(const KeyName& name) {
        const std::lock_guard lock(mutex_);
        values_.erase(Index(name));
    }
    std::optional<String> Find(const KeyName& name) {
        const std::lock_guard lock(mutex_);
        if (values_.empty()) return std::nullopt;
        const auto found = values_.find(Index(name));
        return found == values_.end() ? std::nullopt : std::optional(found->second);
    }

private:
    static String Index(const KeyName& name) {
        return FoldCase(String(name.Section) + u"\n" + String(name.Key));
    }

    std::mutex mutex_;
    std::unordered_map<String, String> values_;
};

OverrideTable& Overrides() {
    static OverrideTable table;
    return table;
}

String ProgramPath() {
    return JoinPath(ProgramFolder(), SettingsName);
}
String UserPath() {
    const String folder = UserFolder();
    return folder.empty() ? String() : JoinPath(folder, SettingsName);
}

bool HasUserCopy() {
    const String path = UserPath();
    return !path.empty() && FileExists(path);
}

std::optional<String> Read(const KeyName& name) {
    if (auto value = Overrides().Find(name)) return value;
    return OpenIniFile(HasUserCopy() ? UserPath() : ProgramPath())->Value(name.Section, name.Key);
}

/// Begins the user's copy with what the program's folder holds.
bool MakeUserCopy() {
    if (UserPath().empty() || !MakeFolders(UserFolder())) return false;
    Bytes bytes;
    const String from = ProgramPath();
    return !FileExists(from) || (ReadFileBytes(from, bytes) && WriteFileBytes(bytes, UserPath()));
}

bool WriteAll(StringView section, const std::vector<IniFile::Assignment>& values) {
    for (const IniFile::Assignment& value : values) Overrides().Remove({section, value.Key});
    if (!HasUserCopy()) {
        if (WriteIniValues(ProgramPath(), section, values)) return true;
        if (!MakeUserCopy()) return false;
    }
    return WriteIniValues(UserPath(), section, values);
}

bool Write(const KeyName& name, StringView value) {
    return WriteAll(name.Section, {{String(name.Key), String(value)}});
}

/// The part of a value that fits into a buffer with a closing NUL; no character is cut in two.
String FitBuffer(StringView value, std::size_t buffer) {
    std::size_t used = 1;
    std::size_t length = 0;
    for (; length < value.size() && value[length] != u'\0'; ++length) {
        used += EncodeAnsi(value.substr(length, 1)).size();
        if (used > buffer) break;
    }
    return String(value.substr(0, length));
}

String ReadText(const KeyName& name, StringView byDefault, std::size_t buffer) {
    return FitBuffer(Read(name).value_or(String(byDefault)), buffer);
}

int HexDigit(char16_t c) {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return c >= u'a' && c <= u'f' ? c - u'a' + 10 : -1;
}

Long ColourOf(StringView value) {
    if (!StartsWithNoCase(value, u"&H"))
        return static_cast<Long>(static_cast<std::uint32_t>(LeadingNumber(value)) & ColourMask);
    std::uint32_t colour = 0;
    for (const char16_t c : value.substr(2)) {
        const int digit = HexDigit(c);
        if (digit < 0) break;
        colour = (colour << 4 | static_cast<std::uint32_t>(digit)) & ColourMask;
    }
    return static_cast<Long>(colour);
}

String ColourText(Long colour) {
    String digits(ColourDigits, u'0');
    auto rest = static_cast<std::uint32_t>(colour);
    for (std::size_t i = ColourDigits; i-- > 0; rest >>= 4)
        digits[i] = StringView(u"0123456789ABCDEF")[rest & 0xF];
    return u"&H" + digits;
}

}  // namespace

bool FlagKey::operator()() const {
    const auto value = Read(*this);
    return value ? LeadingNumber(*value) != 0 : Default;
}
bool FlagKey::operator()(bool value) const {
    return Write(*this, value ? u"1" : u"0");
}

Long NumberKey::operator()() const {
    const auto value = Read(*this);
    return value ? LeadingNumber(*value) : Default;
}
bool NumberKey::operator()(Long value) const {
    return Write(*this, ToText(value));
}

Long ColourKey::operator()() const {
    const auto value = Read(*this);
    return value ? ColourOf(*value) : Default;
}
bool ColourKey::operator()(Long value) const {
    return Write(*this, ColourText(value));
}

String TextKey::operator()() const {
    return ReadText(*this, Default, Buffer);
}
bool TextKey::operator()(StringView value) const {
    return Write(*this, value);
}

String PathKey::operator()() const {
    return ReplaceAppDirToken(ReadText(*this, Default, TextBuffer));
}
bool PathKey::operator()(StringView value) const {
    return Write(*this, value);
}

bool HistoryKey::operator()() const {
    const auto value = Read(*this);
    return !value || value->starts_with(u"All");
}
bool HistoryKey::operator()(bool all) const {
    return Write(*this, all ? u"All" : u"Sprite");
}

std::vector<String> RecentFile() {
    std::vector<String> paths;
    while (paths.size() < RecentFileMax) {
        const String index = ToText(static_cast<Long>(paths.size()));
        String path = ReadText({u"RecentFile", index}, u"", TextBuffer);
        if (path.empty()) break;
        paths.push_back(std::move(path));
    }
    return paths;
}

bool RecentFile(std::span<const String> paths) {
    std::vector<IniFile::Assignment> values;
    for (std::size_t i = 0; i < RecentFileMax; ++i)
        values.push_back({ToText(static_cast<Long>(i)), i < paths.size() ? paths[i] : String()});
    return WriteAll(u"RecentFile", values);
}

std::optional<WindowPlacement> PlacementOf(StringView window) {
    const auto left = Read({window, u"left"});
    const auto top = Read({window, u"top"});
    const auto right = Read({window, u"right"});
    const auto bottom = Read({window, u"bottom"});
    if (!left || !top || !right || !bottom) return std::nullopt;
    return WindowPlacement{LeadingNumber(*left), LeadingNumber(*top), LeadingNumber(*right),
                           LeadingNumber(*bottom),
                           LeadingNumber(Read({window, u"zoomed"}).value_or(u"0")) == 1};
}

bool PlacementOf(StringView window, const WindowPlacement& placement) {
    return WriteAll(window, {{u"left", ToText(placement.Left)},
                             {u"top", ToText(placement.Top)},
                             {u"right", ToText(placement.Right)},
                             {u"bottom", ToText(placement.Bottom)},
                             {u"zoomed", placement.Zoomed ? u"1" : u"0"}});
}

bool SettingsOverride(StringView assignment) {
    const std::size_t equals = assignment.find(u'=');
    if (equals == StringView::npos) return false;
    const String name = Trim(assignment.substr(0, equals));
    const auto meant = [&name](const KeyName* known) {
        return EqualsNoCase(name, known->Key) ||
               EqualsNoCase(name, String(known->Section) + u"." + String(known->Key));
    };
    const auto found = std::find_if(KnownKeys.begin(), KnownKeys.end(), meant);
    if (found == KnownKeys.end() || std::any_of(found + 1, KnownKeys.end(), meant)) return false;
    Overrides().Set(**found, Trim(assignment.substr(equals + 1)));
    return true;
}

}  // namespace tamber::mdlPrivateProfile
