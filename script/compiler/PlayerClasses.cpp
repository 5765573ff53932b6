#include "script/compiler/PlayerClasses.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace tamber {

namespace {

struct PlayerClass {
    std::string_view Name;
    std::string_view Base;
    /// With blanks between them.
    std::string_view Members;
};

constexpr PlayerClass Classes[] = {
    {"Array", "", "concat join length pop push reverse shift slice sort sortOn splice unshift"},
    {"Button", "",
     "_parent blendMode cacheAsBitmap enabled filters getDepth menu onDragOut onDragOver onKeyDown "
     "onKeyUp onKillFocus onPress onRelease onReleaseOutside onRollOut onRollOver onSetFocus "
     "scale9Grid tabEnabled tabIndex trackAsMenu useHandCursor"},
    {"Color", "", "getRGB getTransform setRGB setTransform"},
    {"ContextMenu", "", "builtInItems copy customItems hideBuiltInItems onSelect"},
    {"ContextMenuItem", "", "caption copy enabled onSelect separatorBefore visible"},
    {"Date", "",
     "getDate getDay getFullYear getHours getMilliseconds getMinutes getMonth getSeconds getTime "
     "getTimezoneOffset getUTCDate getUTCDay getUTCFullYear getUTCHours getUTCMilliseconds "
     "getUTCMinutes getUTCMonth getUTCSeconds getUTCYear getYear setDate setFullYear setHours "
     "setMilliseconds setMinutes setMonth setSeconds setTime setUTCDate setUTCFullYear setUTCHours "
     "setUTCMilliseconds setUTCMinutes setUTCMonth setUTCSeconds setYear"},
    {"Error", "", "message name"},
    {"LoadVars", "",
     "addRequestHeader contentType decode getBytesLoaded getBytesTotal load loaded onData "
     "onHTTPStatus onLoad send sendAndLoad"},
    {"LocalConnection", "", "allowDomain allowInsecureDomain close connect domain onStatus send"},
    {"MovieClip", "",
     "_lockroot _parent attachAudio attachBitmap attachMovie attachVideo beginBitmapFill beginFill "
     "beginGradientFill blendMode cacheAsBitmap clear createEmptyMovieClip createTextField curveTo "
     "duplicateMovieClip enabled endFill filters focusEnabled forceSmoothing getBounds "
     "getBytesLoaded getBytesTotal getDepth getInstanceAtDepth getNextHighestDepth getRect "
     "getSWFVersion getTextSnapshot getURL globalToLocal gotoAndPlay gotoAndStop hitArea hitTest "
     "lineGradientStyle lineStyle lineTo loadMovie loadVariables localToGlobal menu moveTo "
     "nextFrame onData onDragOut onDragOver onEnterFrame onKeyDown onKeyUp onKillFocus onLoad "
     "onMouseDown onMouseMove onMouseUp onPress onRelease onReleaseOutside onRollOut onRollOver "
     "onSetFocus onUnload opaqueBackground play prevFrame removeMovieClip scale9Grid scrollRect "
     "setMask startDrag stop stopDrag swapDepths tabChildren tabEnabled tabIndex trackAsMenu "
     "transform unloadMovie useHandCursor"},
    {"MovieClipLoader", "",
     "addListener checkPolicyFile getProgress loadClip onLoadComplete onLoadError onLoadInit "
     "onLoadProgress onLoadStart removeListener unloadClip"},
    {"NetConnection", "", "call close connect isConnected onStatus uri"},
    {"NetStream", "",
     "attachAudio attachVideo bufferLength bufferTime bytesLoaded bytesTotal checkPolicyFile close "
     "currentFps onCuePoint onMetaData onStatus pause play publish receiveAudio receiveVideo seek "
     "send setBufferTime time"},
    {"Object", "",
     "addProperty hasOwnProperty isPropertyEnumerable isPrototypeOf toString unwatch valueOf "
     "watch"},
    {"PrintJob", "", "addPage orientation pageHeight pageWidth paperHeight paperWidth send start"},
    {"Sound", "",
     "attachSound checkPolicyFile duration getBytesLoaded getBytesTotal getPan getTransform "
     "getVolume id3 loadSound onID3 onLoad onSoundComplete position setPan setTransform setVolume "
     "start stop"},
    {"String", "",
     "charAt charCodeAt concat indexOf lastIndexOf length slice split substr substring toLowerCase "
     "toUpperCase"},
    {"TextField", "",
     "_parent addListener antiAliasType autoSize background backgroundColor border borderColor "
     "bottomScroll condenseWhite embedFonts filters getDepth getNewTextFormat getTextFormat "
     "gridFitType hscroll html htmlText length maxChars maxhscroll maxscroll menu "
     "mouseWheelEnabled multiline onChanged onKillFocus onScroller onSetFocus password "
     "removeListener removeTextField replaceSel replaceText restrict scroll selectable "
     "setNewTextFormat setTextFormat sharpness styleSheet tabEnabled tabIndex text textColor "
     "textHeight textWidth thickness type variable wordWrap"},
    {"TextFormat", "",
     "align blockIndent bold bullet color font getTextExtent indent italic kerning leading "
     "leftMargin letterSpacing rightMargin size tabStops target underline url"},
    {"Video", "", "_parent attachVideo clear deblocking height smoothing width"},
    {"XML", "XMLNode",
     "addRequestHeader contentType createElement createTextNode docTypeDecl getBytesLoaded "
     "getBytesTotal idMap ignoreWhite load loaded onData onHTTPStatus onLoad parseXML send "
     "sendAndLoad status xmlDecl"},
    {"XMLNode", "",
     "appendChild attributes childNodes cloneNode firstChild getNamespaceForPrefix "
     "getPrefixForNamespace hasChildNodes insertBefore lastChild localName namespaceURI "
     "nextSibling nodeName nodeType nodeValue parentNode prefix previousSibling removeNode"},
    {"XMLSocket", "", "close connect onClose onConnect onData onXML send"},
    {"flash.display.BitmapData", "",
     "applyFilter clone colorTransform compare copyChannel copyPixels dispose draw fillRect "
     "floodFill generateFilterRect getColorBoundsRect getPixel getPixel32 height hitTest merge "
     "noise paletteMap perlinNoise pixelDissolve rectangle scroll setPixel setPixel32 threshold "
     "transparent width"},
    {"flash.geom.ColorTransform", "",
     "alphaMultiplier alphaOffset blueMultiplier blueOffset concat greenMultiplier greenOffset "
     "redMultiplier redOffset rgb"},
    {"flash.geom.Matrix", "",
     "a b c clone concat createBox createGradientBox d deltaTransformPoint identity invert rotate "
     "scale transformPoint translate tx ty"},
    {"flash.geom.Point", "", "add clone equals length normalize offset subtract x y"},
    {"flash.geom.Rectangle", "",
     "bottom bottomRight clone contains containsPoint containsRectangle equals height inflate "
     "inflatePoint intersection intersects isEmpty left offset offsetPoint right setEmpty size top "
     "topLeft union width x y"},
};

constexpr std::string_view StageClasses[] = {"Button", "MovieClip", "TextField", "Video"};

constexpr std::string_view CastClasses[] = {
    "Button",     "Camera",     "Color",     "ContextMenu",   "LoadVars",     "LocalConnection",
    "Microphone", "MovieClip",  "NetStream", "NetConnection", "SharedObject", "Sound",
    "TextField",  "TextFormat", "Video",     "XML",           "XMLNode",      "XMLSocket",
};

/// Those of which no members are told, beside the ones above.
constexpr std::string_view OtherClasses[] = {
    "Accessibility", "AsBroadcaster", "Boolean",   "Function", "Key",    "Math",
    "Mouse",         "Number",        "Selection", "Stage",    "System", "StyleSheet"};

constexpr std::string_view Globals[] = {"ASSetPropFlags", "Infinity",   "NaN",      "clearInterval",
                                        "clearTimeout",   "escape",     "flash",    "isFinite",
                                        "isNaN",          "parseFloat", "parseInt", "setInterval",
                                        "setTimeout",     "unescape"};

constexpr std::string_view DisplayClasses[] = {"BitmapData"};
constexpr std::string_view ExternalClasses[] = {"ExternalInterface"};
constexpr std::string_view FilterClasses[] = {
    "BevelFilter",         "BitmapFilter",          "BlurFilter",       "ColorMatrixFilter",
    "ConvolutionFilter",   "DisplacementMapFilter", "DropShadowFilter", "GlowFilter",
    "GradientBevelFilter", "GradientGlowFilter"};
constexpr std::string_view GeometryClasses[] = {"ColorTransform", "Matrix", "Point", "Rectangle",
                                                "Transform"};
constexpr std::string_view NetClasses[] = {"FileReference", "FileReferenceList"};
constexpr std::string_view TextClasses[] = {"TextRenderer"};

struct Package {
    std::string_view Name;
    std::span<const std::string_view> Classes;
};

constexpr Package Packages[] = {
    {"flash.display", DisplayClasses}, {"flash.external", ExternalClasses},
    {"flash.filters", FilterClasses},  {"flash.geom", GeometryClasses},
    {"flash.net", NetClasses},         {"flash.text", TextClasses},
};

using Names = std::unordered_set<std::string_view>;

struct KnownClass {
    std::string_view Base;
    Names Members;
};

Names Split(std::string_view text) {
    Names names;
    while (!text.empty()) {
        const std::size_t blank = std::min(text.find(' '), text.size());
        names.insert(text.substr(0, blank));
        text.remove_prefix(std::min(blank + 1, text.size()));
    }
    return names;
}

using KnownClasses = std::unordered_map<std::string_view, KnownClass>;

KnownClasses MakeClasses() {
    KnownClasses classes;
    for (const PlayerClass& one : Classes) classes[one.Name] = {one.Base, Split(one.Members)};
    return classes;
}

const KnownClasses& AllClasses() {
    static const KnownClasses classes = MakeClasses();
    return classes;
}

template <class List>
bool Contains(const List& list, std::string_view name) {
    return std::find(std::begin(list), std::end(list), name) != std::end(list);
}

}  // namespace

bool HasPlayerClass(std::string_view className) {
    if (AllClasses().contains(className) || Contains(CastClasses, className)) return true;
    const std::size_t dot = className.rfind('.');
    if (dot == className.npos) return Contains(OtherClasses, className);
    return Contains(ClassesOfPackage(className.substr(0, dot)), className.substr(dot + 1));
}

bool TellsPlayerMembers(std::string_view className) {
    return AllClasses().contains(className);
}

bool HasPlayerGlobal(std::string_view name) {
    return HasPlayerClass(name) || Contains(Globals, name);
}

bool HasPlayerMember(std::string_view className, std::string_view member) {
    const auto found = AllClasses().find(className);
    if (found == AllClasses().end()) return false;
    const KnownClass& known = found->second;
    return known.Members.contains(member) || HasPlayerMember(known.Base, member);
}

void ForEachPlayerClass(
    const std::function<void(std::string_view name, std::string_view base,
                             std::string_view members)>& visit) {
    for (const PlayerClass& one : Classes) visit(one.Name, one.Base, one.Members);
    for (const std::string_view name : CastClasses)
        if (!AllClasses().contains(name)) visit(name, {}, {});
    for (const std::string_view name : OtherClasses) visit(name, {}, {});
    for (const Package& package : Packages)
        for (const std::string_view name : package.Classes) {
            const std::string whole = std::string(package.Name) + '.' + std::string(name);
            if (!AllClasses().contains(whole)) visit(whole, {}, {});
        }
}

bool IsOnStage(std::string_view className) {
    return Contains(StageClasses, className);
}

bool IsCastableClass(std::string_view name) {
    return Contains(CastClasses, name);
}

std::span<const std::string_view> ClassesOfPackage(std::string_view package) {
    for (const Package& known : Packages)
        if (known.Name == package) return known.Classes;
    return {};
}

}  // namespace tamber
