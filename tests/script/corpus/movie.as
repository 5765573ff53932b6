// versions: 5-8
// What acts on clips, timelines and the player.
trace(clip._currentframe);   //= 1
clip.gotoAndStop(2); trace(clip._currentframe); //= 2
clip.gotoAndStop("mid"); trace(clip._currentframe); //= 3
clip.nextFrame(); trace(clip._currentframe); //= 4
tellTarget("clip") { gotoAndStop(5); }
trace(clip._currentframe);   //= 5
tellTarget("/clip") { prevFrame(); trace(_currentframe); } //= 4
with (clip) { gotoAndStop(1); trace(_currentframe); } //= 1
with (clip) { duplicateMovieClip("within", 41); duplicateMovieClip("clip", "named", 42); }
trace(within._name + named._name); //= withinnamed
with (within) { startDrag(); stopDrag(); removeMovieClip(); }
trace(typeof(within)); //= undefined
with (named) { unloadMovie(); }
trace(named._totalframes); //= 0
trace(getProperty("clip", _totalframes)); //= 5
setProperty("clip", _x, 40);
trace(clip._x);              //= 40
trace(getProperty("clip", _x)); //= 40
setProperty(clip, _alpha, 50);
trace(clip._alpha);          //= 50
clip._x += 2; trace(clip._x); //= 42
clip._rotation = 90; trace(clip._rotation); //= 90
clip._xscale = clip._yscale = 50; trace(clip._xscale + clip._yscale); //= 100
clip._visible = false; trace(clip._visible ? "seen" : "hidden"); //= hidden
clip.v = 11;
trace(clip.v);               //= 11
trace(/clip:v);              //= 11
/clip:v = 12; trace(clip.v); //= 12
trace(eval("/clip:v") + 1);  //= 13
trace(clip._name);           //= clip
trace(clip._target);         //= /clip
trace(targetPath(clip));     //= _level0.clip
trace(_framesloaded == _totalframes); //= true
trace(clip._parent == this); //= true
duplicateMovieClip("clip", "copy", 3);
trace(copy._name);           //= copy
depth = 4;
duplicateMovieClip(clip, "copy2", depth);
trace(copy2._totalframes);   //= 5
removeMovieClip("copy");
trace(typeof copy);          //= undefined
startDrag("clip"); stopDrag();
startDrag("clip", true); startDrag(clip, false, 0, 0, 100, 100); stopDrag();
trace(random(1));            //= 0
trace(getTimer() >= 0);      //= true
ifFrameLoaded(1) { trace("loaded"); }    //= loaded
ifFrameLoaded("f2") { trace("label loaded"); } //= label loaded
ifFrameLoaded("Scene 1", 2) { trace("scene loaded"); } //= scene loaded
stopAllSounds(); toggleHighQuality(); toggleHighQuality();
fscommand("TamberTrace", "literal"); //! TamberTrace|literal
x = "expr";
fscommand("Tamber" + "Trace", x + 1); //! TamberTrace|expr1
fscommand("alone");          //! alone|
getURL("FSCommand:plain", "args"); //! plain|args
trace(getVersion() == eval("/:$version")); //= true
function go() { gotoAndStop("f3"); }
play();
updateAfterEvent();
function tell() { tellTarget("clip") { return _name; } }
trace(tell());               //= clip
for (var t = 0; t < 3; t++) { tellTarget("clip") { if (t == 1) break; } }
trace(_target);              //= /
tellTarget("clip") { tellTarget("/") { trace(_target); } trace(_name); } //= /
                             //= clip
tellTarget("/nowhere") { trace(typeof(_name) + typeof(_x)); } //= undefinedundefined
tellTarget("clip") { _x = 10; _x += 5; _x++; trace(_x++ + "," + (_x -= 7) + "," + _x); } //= 16,10,10
function ownProperty(_alpha) { var _y = 8; tellTarget("clip") { return _alpha + _y + _x; } }
trace(ownProperty(1));       //= 19
tellTarget("clip") { with ({_name: "within"}) { trace(_name + _x); } } //= within10
//@ frame 2
trace("frame 2");            //= frame 2
go();
//@ frame 3
trace("frame 3");            //= frame 3
n = 2;
if (again++ < 1) gotoAndPlay(n); else gotoAndPlay("f4"); //=-6 frame 2
                             //=-6 frame 3
//@ frame 4
trace("frame 4");            //= frame 4
if (!called) { called = true; call("f1x"); call(9); }
for (t = 0; t < 2; t++) { tellTarget("clip") { while (1) { tellTarget("/") { break; } } trace(_target); } } //= /clip
                             //= /clip
clip.q = 6;
trace(clip:q);               //= 6
trace(_level0/clip:q);       //= 6
trace(true ? clip.q:none);   //= 6
switch (6) { case clip.q: trace("case"); } //= case
text = "5"; duplicateMovieClip("clip", "deep", text);
trace(deep.getDepth());      //=6+ 5
                             //=5-5 undefined
