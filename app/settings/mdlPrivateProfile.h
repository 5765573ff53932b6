#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/types.h"

/// The settings. Each key is an object called without an argument to read and with one to write;
/// values are read from `app.ini` at each call. The file lies in the program's folder, or, where
/// that cannot be written, in the user's folder of settings, whose copy then counts. Writes give
/// false when neither can be written.
namespace tamber::mdlPrivateProfile {

struct KeyName {
    StringView Section;
    StringView Key;
};

/// "1" or "0"; any number but 0 reads as true.
struct FlagKey : KeyName {
    bool Default;

    constexpr FlagKey(StringView section, StringView key, bool byDefault)
        : KeyName{section, key}, Default(byDefault) {}
    bool operator()() const;
    bool operator()(bool value) const;
};

struct NumberKey : KeyName {
    Long Default;

    constexpr NumberKey(StringView section, StringView key, Long byDefault)
        : KeyName{section, key}, Default(byDefault) {}
    Long operator()() const;
    bool operator()(Long value) const;
};

/// "&H" and six hexadecimal digits, 0 to &HFFFFFF.
struct ColourKey : KeyName {
    Long Default;

    constexpr ColourKey(StringView section, StringView key, Long byDefault)
        : KeyName{section, key}, Default(byDefault) {}
    Long operator()() const;
    bool operator()(Long value) const;
};

/// Bytes of code page 932 that a text is read into, its closing NUL included.
inline constexpr std::size_t TextBuffer = 260;

struct TextKey : KeyName {
    StringView Default;
    std::size_t Buffer;

    constexpr TextKey(StringView section, StringView key, StringView byDefault,
                      std::size_t buffer = TextBuffer)
        : KeyName{section, key}, Default(byDefault), Buffer(buffer) {}
    String operator()() const;
    bool operator()(StringView value) const;
};

/// A path, read with the program's folder in place of "$(TAMBERDIR)" and written as it stands.
struct PathKey : KeyName {
    StringView Default;

    constexpr PathKey(StringView section, StringView key, StringView byDefault)
        : KeyName{section, key}, Default(byDefault) {}
    String operator()() const;
    bool operator()(StringView value) const;
};

/// "All" for one history of the whole movie (true), anything else for one per timeline.
struct HistoryKey : KeyName {
    bool operator()() const;
    bool operator()(bool all) const;
};

inline constexpr PathKey SkinPath{u"Setting", u"SkinPath", u"$(TAMBERDIR)\\icons"};
inline constexpr NumberKey UndoRedoMaxCount{u"Setting", u"UndoRedoMaxCount", 128};
inline constexpr HistoryKey UndoRedoType{{u"Setting", u"UndoRedoType"}};
inline constexpr FlagKey flgLoadSusie{u"Setting", u"flgLoadSusie", false};
inline constexpr PathKey SusiePath{u"Setting", u"SusiePath", u""};
/// Pixels.
inline constexpr NumberKey GridWidth{u"Setting", u"GridWidth", 10};
inline constexpr FlagKey flgCanvasBlank{u"Setting", u"flgCanvasBlank", true};
/// Pixels round the canvas.
inline constexpr NumberKey CanvasBlank{u"Setting", u"CanvasBlank", 32};
inline constexpr NumberKey MorphFrames{u"Setting", u"MorphFrames", 20};
inline constexpr FlagKey flgLoadMovie{u"Setting", u"flgLoadMovie", true};
inline constexpr FlagKey flgTopToBottom{u"Setting", u"flgTopToBottom", true};
inline constexpr FlagKey flgSWFCompress{u"Setting", u"flgSWFCompress", true};
inline constexpr FlagKey flgMakeHTML{u"Setting", u"flgMakeHTML", false};
/// The page of a movie loads a player that lies beside it.
inline constexpr FlagKey flgPagePlayer{u"Setting", u"flgPagePlayer", true};
inline constexpr FlagKey flgPrevPrjPath{u"Setting", u"flgPrevPrjPath", true};
inline constexpr FlagKey flgMouseSelect{u"Setting", u"flgMouseSelect", true};
inline constexpr FlagKey flgSameKeyFrameSelect{u"Setting", u"flgSameKeyFrameSelect", false};
inline constexpr FlagKey flgCanvasAA{u"Setting", u"flgCanvasAA", true};
inline constexpr FlagKey flgCursorFrameDisp{u"Setting", u"flgCursorFrameDisp", false};
inline constexpr TextKey DefaultFont{u"Setting", u"DefaultFont",
                                     u"\uFF2D\uFF33 \u30B4\u30B7\u30C3\u30AF"};
inline constexpr TextKey EditorFontName{u"Setting", u"EditorFontName",
                                        u"\uFF2D\uFF33 \u30B4\u30B7\u30C3\u30AF"};
/// Points.
inline constexpr NumberKey EditorFontSize{u"Setting", u"EditorFontSize", 10};
inline constexpr ColourKey EditorBackColor{u"Setting", u"EditorBackColor", 0xFFFFFF};
inline constexpr ColourKey EditorForeColor{u"Setting", u"EditorForeColor", 0x000000};
inline constexpr ColourKey EditorIndentColor{u"Setting", u"EditorIndentColor", 0xA0A0A0};
inline constexpr FlagKey flgReplaceKeyword{u"Setting", u"flgReplaceKeyword", true};
inline constexpr FlagKey flgCheckScale{u"Setting", u"flgCheckScale", false};
inline constexpr NumberKey EditorUndoRedoMaxCount{u"Setting", u"EditorUndoRedoMaxCount", 128};
inline constexpr FlagKey flgTextSetColor{u"Setting", u"flgTextSetColor", false};
inline constexpr FlagKey flgEditorDispCtrlChar{u"Setting", u"flgEditorDispCtrlChar", true};
inline constexpr ColourKey EditorCrLfColor{u"Setting", u"EditorCrLfColor", 0xFF8000};
/// Characters.
inline constexpr NumberKey EditorTabWidth{u"Setting", u"EditorTabWidth", 4};
inline constexpr FlagKey EditorTabToSpace{u"Setting", u"EditorTabToSpace", false};
inline constexpr FlagKey flgSusiePriority{u"Setting", u"flgSusiePriority", false};
inline constexpr FlagKey flgIEPreview{u"Setting", u"flgIEPreview", false};
inline constexpr FlagKey flgSpecifiedStandAlone{u"Setting", u"flgSpecifiedStandAlone", false};
inline constexpr PathKey StandAlonePath{u"Setting", u"StandAlonePath", u""};
inline constexpr NumberKey DefaultPreview{u"Setting", u"DefaultPreview", 0};
/// Twips, as the two sizes of the layer table.
inline constexpr NumberKey SymbolFrameWidth{u"Setting", u"SymbolFrameWidth", 3480};
inline constexpr NumberKey SymbolFrameHeightMode{u"Setting", u"SymbolFrameHeightMode", 0};
inline constexpr NumberKey LayerTblWidth{u"Setting", u"LayerTblWidth", 4170};
inline constexpr NumberKey LayerTblHeight{u"Setting", u"LayerTblHeight", 5610};
inline constexpr FlagKey flgKeyFrameEditVisible{u"Setting", u"flgKeyFrameEditVisible", true};
/// Pixels. Stage, rate and version are those of the project that was open at the last exit.
inline constexpr NumberKey CanvasWidth{u"Setting", u"CanvasWidth", 320};
inline constexpr NumberKey CanvasHeight{u"Setting", u"CanvasHeight", 320};
inline constexpr TextKey FPS{u"Setting", u"FPS", u"24", 64};
inline constexpr NumberKey SWFVersion{u"Setting", u"SWFVersion", 6};
inline constexpr FlagKey flgForwardLayerVisible{u"Setting", u"flgForwardLayerVisible", true};
inline constexpr FlagKey flgBackLayerVisible{u"Setting", u"flgBackLayerVisible", true};
inline constexpr FlagKey flgGridVisible{u"Setting", u"flgGridVisible", false};
inline constexpr FlagKey flgGridAdsorp{u"Setting", u"flgGridAdsorp", false};
inline constexpr FlagKey flgEditTweenLine{u"Setting", u"flgEditTweenLine", false};
inline constexpr FlagKey flgDispAllTweenLine{u"Setting", u"flgDispAllTweenLine", true};
/// Percent.
inline constexpr NumberKey CanvasScale{u"Setting", u"CanvasScale", 100};
inline constexpr NumberKey MemoriScale{u"Setting", u"MemoriScale", 5};
inline constexpr FlagKey flgHTMLtoProject{u"Setting", u"flgHTMLtoProject", false};
inline constexpr FlagKey flgWaveDisp{u"Setting", u"flgWaveDisp", true};
inline constexpr FlagKey flgNumBoxForcusSelect{u"Setting", u"flgNumBoxForcusSelect", true};

inline constexpr FlagKey ScriptEditor_MostTop{u"ScriptEditor", u"MostTop", true};
inline constexpr FlagKey ScriptEditor_Docking{u"ScriptEditor", u"Docking", false};
inline constexpr FlagKey ScriptEditor_Visible{u"ScriptEditor", u"Visible", false};
inline constexpr NumberKey ScriptEditor_Splitter{u"ScriptEditor", u"Splitter", 0};
/// Share of the window that the editor takes, 0 to 1.
inline constexpr TextKey ScriptEditor_EditorRatio{u"ScriptEditor", u"EditorRatio", u"0.5"};

inline constexpr TextKey HTML_align{u"HTML", u"align", u"", 16};
inline constexpr TextKey HTML_salign{u"HTML", u"salign", u"", 16};
inline constexpr FlagKey HTML_play{u"HTML", u"play", true};
inline constexpr FlagKey HTML_loop{u"HTML", u"loop", true};
inline constexpr FlagKey HTML_menu{u"HTML", u"menu", false};
inline constexpr TextKey HTML_quality{u"HTML", u"quality", u"high", 32};
inline constexpr TextKey HTML_wmode{u"HTML", u"wmode", u"", 32};
/// "pixel", "percent", or empty for the movie's own size.
inline constexpr TextKey HTML_SizeUnit{u"HTML", u"SizeUnit", u"", 32};
inline constexpr NumberKey HTML_WIDTH{u"HTML", u"WIDTH", 0};
inline constexpr NumberKey HTML_HEIGHT{u"HTML", u"HEIGHT", 0};
inline constexpr TextKey HTML_scale{u"HTML", u"scale", u"", 32};
inline constexpr FlagKey HTML_NamedAnchors{u"HTML", u"NamedAnchors", true};

inline constexpr FlagKey SymbolList_Docking{u"SymbolList", u"Docking", true};

/// Paths that the list of recent files holds at most.
inline constexpr std::size_t RecentFileMax = 16;
/// Paths used last, the newest first, up to the first empty entry.
std::vector<String> RecentFile();
/// Paths beyond the sixteenth are left out.
bool RecentFile(std::span<const String> paths);

/// Rectangle of a window that is not maximised, in pixels of the screen.
struct WindowPlacement {
    Long Left = 0;
    Long Top = 0;
    Long Right = 0;
    Long Bottom = 0;
    bool Zoomed = false;
};
/// Nothing for a window that has no complete rectangle. The main window is called "Window".
std::optional<WindowPlacement> PlacementOf(StringView window);
bool PlacementOf(StringView window, const WindowPlacement& placement);

/// Takes "KEY=VALUE" or "SECTION.KEY=VALUE": the key reads as that value in this process until it
/// is written. False for an unknown key, and for one without its section that several have.
bool SettingsOverride(StringView assignment);

}  // namespace tamber::mdlPrivateProfile
