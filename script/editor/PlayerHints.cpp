#include "script/editor/PlayerHints.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"
#include "script/compiler/PlayerClasses.h"

namespace tamber::PlayerHints {

namespace {

/// "Class.member(arguments):Type" for what objects have, "Class::member" for what stands on the
/// class, neither for global functions.
constexpr std::string_view Table[] = {
    "asfunction(function:String, parameter:String)",
    "call(frame:Object)",
    "chr(number:Number):String",
    "clearInterval(intervalID:Number)",
    "clearTimeout(id:Number)",
    "duplicateMovieClip(target:Object, newName:String, depth:Number)",
    "escape(expression:String):String",
    "eval(expression:Object):Object",
    "fscommand(command:String, parameters:String)",
    "getProperty(my_mc:Object, property:Object):Object",
    "getTimer():Number",
    "getURL(url:String, [window:String], [method:String])",
    "getVersion():String",
    "gotoAndPlay([scene:String], frame:Object)",
    "gotoAndStop([scene:String], frame:Object)",
    "int(value:Number):Number",
    "isFinite(expression:Object):Boolean",
    "isNaN(expression:Object):Boolean",
    "length(expression:String):Number",
    "loadMovie(url:String, target:Object, [method:String])",
    "loadMovieNum(url:String, level:Number, [method:String])",
    "loadVariables(url:String, target:Object, [method:String])",
    "loadVariablesNum(url:String, level:Number, [method:String])",
    "mbchr(number:Number):String",
    "mblength(string:String):Number",
    "mbord(character:String):Number",
    "mbsubstring(value:String, index:Number, count:Number):String",
    "nextFrame()",
    "ord(character:String):Number",
    "parseFloat(string:String):Number",
    "parseInt(expression:String, [radix:Number]):Number",
    "play()",
    "prevFrame()",
    "print(target:Object, boundingBox:String)",
    "printAsBitmap(target:Object, boundingBox:String)",
    "printAsBitmapNum(level:Number, boundingBox:String)",
    "printNum(level:Number, boundingBox:String)",
    "random(value:Number):Number",
    "removeMovieClip(target:Object)",
    "set(variable:String, expression:Object)",
    "setInterval(function:Function, interval:Number, [parameters])",
    "setProperty(target:Object, property:Object, expression:Object)",
    "setTimeout(function:Function, interval:Number, [parameters])",
    "startDrag(target:Object, [lock:Boolean], [left, top, right, bottom])",
    "stop()",
    "stopAllSounds()",
    "stopDrag()",
    "substring(string:String, index:Number, count:Number):String",
    "targetPath(target:Object):String",
    "toggleHighQuality()",
    "trace(expression:Object)",
    "unescape(string:String):String",
    "unloadMovie(target:Object)",
    "unloadMovieNum(level:Number)",
    "updateAfterEvent()",
    "Array.concat([value:Object]):Array",
    "Array.join([delimiter:String]):String",
    "Array.length:Number",
    "Array.pop():Object",
    "Array.push(value:Object):Number",
    "Array.shift():Object",
    "Array.slice([start:Number], [end:Number]):Array",
    "Array.sort([compare:Object], [options:Number]):Array",
    "Array.sortOn(fieldName:Object, [options:Object]):Array",
    "Array.splice(start:Number, [deleteCount:Number], [value:Object]):Array",
    "Array.unshift(value:Object):Number",
    "Array::CASEINSENSITIVE:Number",
    "Array::DESCENDING:Number",
    "Array::NUMERIC:Number",
    "Array::RETURNINDEXEDARRAY:Number",
    "Array::UNIQUESORT:Number",
    "Color.getRGB():Number",
    "Color.getTransform():Object",
    "Color.setRGB(offset:Number)",
    "Color.setTransform(transformObject:Object)",
    "Date.setFullYear(year:Number, [month:Number], [date:Number])",
    "Date.setHours(hour:Number)",
    "Date.setMonth(month:Number, [date:Number])",
    "Date.setTime(millisecond:Number)",
    "Date::UTC(year:Number, month:Number, [date:Number], [hour:Number], [minute:Number], "
    "[second:Number], [millisecond:Number]):Number",
    "Key::BACKSPACE:Number",
    "Key::CAPSLOCK:Number",
    "Key::CONTROL:Number",
    "Key::DELETEKEY:Number",
    "Key::DOWN:Number",
    "Key::END:Number",
    "Key::ENTER:Number",
    "Key::ESCAPE:Number",
    "Key::HOME:Number",
    "Key::INSERT:Number",
    "Key::LEFT:Number",
    "Key::PGDN:Number",
    "Key::PGUP:Number",
    "Key::RIGHT:Number",
    "Key::SHIFT:Number",
    "Key::SPACE:Number",
    "Key::TAB:Number",
    "Key::UP:Number",
    "Key::addListener(listener:Object)",
    "Key::getAscii():Number",
    "Key::getCode():Number",
    "Key::isDown(code:Number):Boolean",
    "Key::isToggled(code:Number):Boolean",
    "Key::removeListener(listener:Object):Boolean",
    "LoadVars.load(url:String):Boolean",
    "LoadVars.onLoad:Function",
    "LoadVars.send(url:String, target:String, [method:String]):Boolean",
    "LoadVars.sendAndLoad(url:String, target:Object, [method:String]):Boolean",
    "LocalConnection.connect(connectionName:String):Boolean",
    "LocalConnection.send(connectionName:String, methodName:String, [args:Object]):Boolean",
    "Math::E:Number",
    "Math::LN10:Number",
    "Math::LN2:Number",
    "Math::LOG10E:Number",
    "Math::LOG2E:Number",
    "Math::PI:Number",
    "Math::SQRT1_2:Number",
    "Math::SQRT2:Number",
    "Math::abs(x:Number):Number",
    "Math::acos(x:Number):Number",
    "Math::asin(x:Number):Number",
    "Math::atan(tangent:Number):Number",
    "Math::atan2(y:Number, x:Number):Number",
    "Math::ceil(x:Number):Number",
    "Math::cos(x:Number):Number",
    "Math::exp(x:Number):Number",
    "Math::floor(x:Number):Number",
    "Math::log(x:Number):Number",
    "Math::max(x:Number, y:Number):Number",
    "Math::min(x:Number, y:Number):Number",
    "Math::pow(x:Number, y:Number):Number",
    "Math::random():Number",
    "Math::round(x:Number):Number",
    "Math::sin(x:Number):Number",
    "Math::sqrt(x:Number):Number",
    "Math::tan(x:Number):Number",
    "Mouse::addListener(listener:Object)",
    "Mouse::hide():Number",
    "Mouse::removeListener(listener:Object):Boolean",
    "Mouse::show():Number",
    "MovieClip._parent:MovieClip",
    "MovieClip.attachAudio(id:Object)",
    "MovieClip.attachBitmap(bmp:BitmapData, depth:Number, [pixelSnapping:String], "
    "[smoothing:Boolean])",
    "MovieClip.attachMovie(id:String, name:String, depth:Number, [initObject:Object]):MovieClip",
    "MovieClip.beginBitmapFill(bmp:BitmapData, [matrix:Matrix], [repeat:Boolean], "
    "[smoothing:Boolean])",
    "MovieClip.beginFill(rgb:Number, [alpha:Number])",
    "MovieClip.beginGradientFill(fillType:String, colors:Array, alphas:Array, ratios:Array, "
    "matrix:Object)",
    "MovieClip.clear()",
    "MovieClip.createEmptyMovieClip(name:String, depth:Number):MovieClip",
    "MovieClip.createTextField(instanceName:String, depth:Number, x:Number, y:Number, "
    "width:Number, height:Number):TextField",
    "MovieClip.curveTo(controlX:Number, controlY:Number, anchorX:Number, anchorY:Number)",
    "MovieClip.duplicateMovieClip(name:String, depth:Number, [initObject:Object]):MovieClip",
    "MovieClip.endFill()",
    "MovieClip.getBounds(bounds:Object):Object",
    "MovieClip.getBytesLoaded():Number",
    "MovieClip.getBytesTotal():Number",
    "MovieClip.getDepth():Number",
    "MovieClip.getInstanceAtDepth(depth:Number):MovieClip",
    "MovieClip.getNextHighestDepth():Number",
    "MovieClip.getURL(url:String, [window:String], [method:String])",
    "MovieClip.globalToLocal(pt:Object)",
    "MovieClip.gotoAndPlay(frame:Object)",
    "MovieClip.gotoAndStop(frame:Object)",
    "MovieClip.hitTest(x:Number, y:Number, [shapeFlag:Boolean]):Boolean",
    "MovieClip.lineStyle(thickness:Number, [rgb:Number], [alpha:Number])",
    "MovieClip.lineTo(x:Number, y:Number)",
    "MovieClip.loadMovie(url:String, [method:String])",
    "MovieClip.loadVariables(url:String, [method:String])",
    "MovieClip.localToGlobal(pt:Object)",
    "MovieClip.moveTo(x:Number, y:Number)",
    "MovieClip.nextFrame()",
    "MovieClip.onEnterFrame:Function",
    "MovieClip.play()",
    "MovieClip.prevFrame()",
    "MovieClip.removeMovieClip()",
    "MovieClip.setMask(mask_mc:Object)",
    "MovieClip.startDrag([lock:Boolean], [left, top, right, bottom])",
    "MovieClip.stop()",
    "MovieClip.stopDrag()",
    "MovieClip.swapDepths(target:Object)",
    "MovieClip.unloadMovie()",
    "MovieClipLoader.addListener(listener:Object):Boolean",
    "MovieClipLoader.getProgress(target:Object):Object",
    "MovieClipLoader.loadClip(url:String, target:Object):Boolean",
    "MovieClipLoader.unloadClip(target:Object):Boolean",
    "NetStream.pause([flag:Boolean])",
    "NetStream.play(name:Object, [start:Number], [len:Number])",
    "NetStream.seek(offset:Number)",
    "NetStream.setBufferTime(bufferTime:Number)",
    "Number::MAX_VALUE:Number",
    "Number::MIN_VALUE:Number",
    "Number::NEGATIVE_INFINITY:Number",
    "Number::NaN:Number",
    "Number::POSITIVE_INFINITY:Number",
    "Object.addProperty(name:String, getter:Function, setter:Function):Boolean",
    "Object.hasOwnProperty(name:String):Boolean",
    "Object.toString():String",
    "Object.unwatch(name:String):Boolean",
    "Object.valueOf():Object",
    "Object.watch(name:String, callback:Function, [userData:Object]):Boolean",
    "Object::registerClass(name:String, theClass:Function):Boolean",
    "Selection::addListener(listener:Object)",
    "Selection::getBeginIndex():Number",
    "Selection::getCaretIndex():Number",
    "Selection::getEndIndex():Number",
    "Selection::getFocus():String",
    "Selection::removeListener(listener:Object):Boolean",
    "Selection::setFocus(newFocus:Object):Boolean",
    "Selection::setSelection(beginIndex:Number, endIndex:Number)",
    "SharedObject.clear()",
    "SharedObject.data:Object",
    "SharedObject.flush([minDiskSpace:Number]):Object",
    "SharedObject.getSize():Number",
    "SharedObject::getLocal(name:String, [localPath:String], [secure:Boolean]):SharedObject",
    "Sound.attachSound(id:String)",
    "Sound.getPan():Number",
    "Sound.getVolume():Number",
    "Sound.loadSound(url:String, isStreaming:Boolean)",
    "Sound.onSoundComplete:Function",
    "Sound.setPan(value:Number)",
    "Sound.setTransform(transformObject:Object)",
    "Sound.setVolume(value:Number)",
    "Sound.start([secondOffset:Number], [loops:Number])",
    "Sound.stop([linkageID:String])",
    "Stage::addListener(listener:Object)",
    "Stage::align:String",
    "Stage::height:Number",
    "Stage::removeListener(listener:Object):Boolean",
    "Stage::scaleMode:String",
    "Stage::showMenu:Boolean",
    "Stage::width:Number",
    "String.charAt(index:Number):String",
    "String.charCodeAt(index:Number):Number",
    "String.concat(value:Object):String",
    "String.indexOf(value:String, [startIndex:Number]):Number",
    "String.lastIndexOf(value:String, [startIndex:Number]):Number",
    "String.length:Number",
    "String.slice(start:Number, [end:Number]):String",
    "String.split(delimiter:String, [limit:Number]):Array",
    "String.substr(start:Number, [length:Number]):String",
    "String.substring(start:Number, [end:Number]):String",
    "String.toLowerCase():String",
    "String.toUpperCase():String",
    "String::fromCharCode(c1:Number):String",
    "System::capabilities:Object",
    "System::security:Object",
    "System::setClipboard(text:String):Boolean",
    "System::showSettings([tabID:Number])",
    "System::useCodepage:Boolean",
    "TextField._parent:MovieClip",
    "TextField.getTextFormat([beginIndex:Number], [endIndex:Number]):TextFormat",
    "TextField.htmlText:String",
    "TextField.replaceText(beginIndex:Number, endIndex:Number, newText:String)",
    "TextField.setNewTextFormat(tf:TextFormat)",
    "TextField.setTextFormat([beginIndex:Number], [endIndex:Number], textFormat:TextFormat)",
    "TextField.text:String",
    "TextFormat.getTextExtent(text:String, [width:Number]):Object",
    "XML.load(url:String):Boolean",
    "XML.onLoad:Function",
    "XML.parseXML(value:String)",
    "XML.send(url:String, [target:String], [method:String]):Boolean",
    "XML.sendAndLoad(url:String, resultXML:XML)",
    "XMLNode.appendChild(newChild:XMLNode)",
    "XMLNode.attributes:Object",
    "XMLNode.childNodes:Array",
    "XMLNode.cloneNode(deep:Boolean):XMLNode",
    "XMLNode.firstChild:XMLNode",
    "XMLNode.hasChildNodes():Boolean",
    "XMLNode.insertBefore(newChild:XMLNode, insertPoint:XMLNode)",
    "XMLNode.lastChild:XMLNode",
    "XMLNode.nextSibling:XMLNode",
    "XMLNode.nodeName:String",
    "XMLNode.nodeValue:String",
    "XMLNode.parentNode:XMLNode",
    "XMLNode.previousSibling:XMLNode",
    "flash.display.BitmapData.applyFilter(source:BitmapData, sourceRect:Rectangle, "
    "destPoint:Point, filter:BitmapFilter):Number",
    "flash.display.BitmapData.copyPixels(source:BitmapData, sourceRect:Rectangle, "
    "destPoint:Point)",
    "flash.display.BitmapData.draw(source:Object, [matrix:Matrix], [color:ColorTransform])",
    "flash.display.BitmapData.fillRect(rect:Rectangle, color:Number)",
    "flash.display.BitmapData.getPixel(x:Number, y:Number):Number",
    "flash.display.BitmapData.getPixel32(x:Number, y:Number):Number",
    "flash.display.BitmapData.setPixel(x:Number, y:Number, color:Number)",
    "flash.display.BitmapData.setPixel32(x:Number, y:Number, color:Number)",
    "flash.display.BitmapData::loadBitmap(id:String):BitmapData",
    "flash.external.ExternalInterface::addCallback(methodName:String, instance:Object, "
    "method:Function):Boolean",
    "flash.external.ExternalInterface::available:Boolean",
    "flash.external.ExternalInterface::call(methodName:String, [parameters]):Object",
    "flash.geom.Matrix.rotate(angle:Number)",
    "flash.geom.Matrix.scale(sx:Number, sy:Number)",
    "flash.geom.Matrix.translate(tx:Number, ty:Number)",
    "flash.geom.Point::distance(pt1:Point, pt2:Point):Number",
    "flash.geom.Point::interpolate(pt1:Point, pt2:Point, f:Number):Point",
    "flash.geom.Point::polar(len:Number, angle:Number):Point",
};

/// The properties with numbers, that all on the stage have.
constexpr std::string_view StageProperties =
    "_alpha _currentframe _droptarget _focusrect _framesloaded _height _highquality _name "
    "_quality _rotation _soundbuftime _target _totalframes _url _visible _width _x _xmouse "
    "_xscale _y _ymouse _yscale";

struct Suffix {
    StringView Ending;
    StringView Class;
};

constexpr Suffix Suffixes[] = {
    {u"_array", u"Array"},      {u"_btn", u"Button"},          {u"_color", u"Color"},
    {u"_cm", u"ContextMenu"},   {u"_cmi", u"ContextMenuItem"}, {u"_date", u"Date"},
    {u"_err", u"Error"},        {u"_fmt", u"TextFormat"},      {u"_lc", u"LocalConnection"},
    {u"_lv", u"LoadVars"},      {u"_mc", u"MovieClip"},        {u"_mcl", u"MovieClipLoader"},
    {u"_nc", u"NetConnection"}, {u"_ns", u"NetStream"},        {u"_pj", u"PrintJob"},
    {u"_so", u"SharedObject"},  {u"_sound", u"Sound"},         {u"_str", u"String"},
    {u"_txt", u"TextField"},    {u"_video", u"Video"},         {u"_xml", u"XML"},
    {u"_xmlnode", u"XMLNode"},  {u"_xmlsocket", u"XMLSocket"},
};

struct Known {
    Members Globals;
    std::map<String, Members> OfObjects;
    std::map<String, Members> OfClasses;
    std::vector<String> Classes;
};

Member MemberOf(std::string_view text) {
    const std::size_t end = std::min(text.find_first_of("(:"), text.size());
    Member member{FromNarrow(text.substr(0, end))};
    text.remove_prefix(end);
    if (text.starts_with('(')) {
        const std::size_t close = text.rfind(')') + 1;
        member.Arguments = FromNarrow(text.substr(0, close));
        text.remove_prefix(close);
    }
    if (text.starts_with(':')) member.Type = FromNarrow(text.substr(1));
    return member;
}

void Put(Members& members, Member member) {
    members.insert_or_assign(FoldCase(member.Name), std::move(member));
}

void PutLine(Known& known, std::string_view line) {
    const std::string_view path = line.substr(0, line.find('('));
    if (const std::size_t mark = path.find("::"); mark != path.npos) {
        Put(known.OfClasses[FromNarrow(line.substr(0, mark))], MemberOf(line.substr(mark + 2)));
        return;
    }
    // Of a property the type comes behind a colon, which may have dots of its own.
    const std::size_t dot = path.substr(0, path.find(':')).rfind('.');
    if (dot == path.npos)
        Put(known.Globals, MemberOf(line));
    else
        Put(known.OfObjects[FromNarrow(line.substr(0, dot))], MemberOf(line.substr(dot + 1)));
}

void PutNames(Members& members, std::string_view names) {
    while (!names.empty()) {
        const std::size_t blank = std::min(names.find(' '), names.size());
        Put(members, {FromNarrow(names.substr(0, blank))});
        names.remove_prefix(std::min(blank + 1, names.size()));
    }
}

Known MakeKnown() {
    Known known;
    ForEachPlayerClass([&](std::string_view name, std::string_view, std::string_view names) {
        known.Classes.push_back(FromNarrow(name));
        Members& members = known.OfObjects[FromNarrow(name)];
        PutNames(members, names);
        if (IsOnStage(name)) PutNames(members, StageProperties);
    });
    for (const std::string_view line : Table) PutLine(known, line);
    ForEachPlayerClass([&](std::string_view name, std::string_view base, std::string_view) {
        if (!base.empty())
            known.OfObjects[FromNarrow(name)].insert(known.OfObjects[FromNarrow(base)].begin(),
                                                     known.OfObjects[FromNarrow(base)].end());
    });
    return known;
}

const Known& All() {
    static const Known known = MakeKnown();
    return known;
}

/// A class by its whole name, or by the last part of one.
const Members& Find(const std::map<String, Members>& classes, const String& className) {
    static const Members none;
    if (const auto found = classes.find(className); found != classes.end()) return found->second;
    const String ending = u"." + className;
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [&](const auto& one) { return one.first.ends_with(ending); });
    return found == classes.end() ? none : found->second;
}

}  // namespace

const Members& Globals() {
    return All().Globals;
}

const Members& MembersOf(const String& className) {
    return Find(All().OfObjects, className);
}

const Members& StaticsOf(const String& className) {
    return Find(All().OfClasses, className);
}

const std::vector<String>& Classes() {
    return All().Classes;
}

std::vector<String> Within(StringView package) {
    const String front = String(package) + u".";
    std::vector<String> names;
    for (const String& name : All().Classes) {
        if (!name.starts_with(front)) continue;
        const StringView rest = StringView(name).substr(front.size());
        String part(rest.substr(0, rest.find(u'.')));
        if (std::find(names.begin(), names.end(), part) == names.end())
            names.push_back(std::move(part));
    }
    return names;
}

StringView ClassOfSuffix(StringView name) {
    for (const Suffix& suffix : Suffixes)
        if (name.size() > suffix.Ending.size() && name.ends_with(suffix.Ending))
            return suffix.Class;
    return {};
}

}  // namespace tamber::PlayerHints
