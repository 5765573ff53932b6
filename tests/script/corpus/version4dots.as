// versions: 4-8
// Names with dots: in version 4 they become paths.
clip.v = 5;
trace(clip.v + 1);      //= 6
_root.clip.w = 7;
trace(/clip:w);         //= 7
trace(_root.clip._currentframe); //= 1
clip._x = 12;
trace(getProperty("clip", _x)); //= 12
clip._x += 3; trace(clip._x); //= 15
clip.gotoAndStop(3);
trace(clip._currentframe); //= 3
_root.clip.nextFrame(); trace(clip._currentframe); //= 4
this.t = 3; trace(t);   //= 3
clip.v++; trace(clip.v); //= 6
trace(clip.v--);        //= 6
trace(getProperty(_root.clip, _currentframe)); //= 4
trace(getProperty(/clip, _currentframe)); //= 4
trace(getProperty(this, _totalframes) add getProperty(_root, _totalframes)); //= 44
setProperty(_root.clip, _x, 21); trace(clip._x); //= 21
duplicateMovieClip(_root.clip, "second", 3);
trace(getProperty("second", _name)); //= second
holder = "/second"; trace(getProperty(holder, _name)); //= second
setProperty(clip._target, _x, 22); trace(clip._x); //= 22
removeMovieClip(_root.second); trace(length(getProperty("/second", _name))); //=-6 0
                        //=7+ 9
duplicateMovieClip("clip", "third", 4);
tellTarget("/clip") { _parent.third.gotoAndStop(3); }
trace(third._currentframe);             //= 3
