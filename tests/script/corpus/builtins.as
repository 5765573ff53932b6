// versions: 4-8
// What acts on the player and on other movies without a trace of its own: each leaves the stack as
// it was, and the script goes on behind it.
url = "none.txt"; level = 9; x = 40;
print("/clip", "bmovie"); printNum(0, "bframe");
printAsBitmap("/clip", "bmax"); printAsBitmapNum(0, "bmovie");
trace(1 + 1);        //= 2
loadVariables(url, "/clip"); loadVariables("none.txt", "/clip", "GET");
loadVariablesNum(url, 0, "POST"); loadVariablesNum("none.txt", level);
loadMovie("none.swf", "/none"); loadMovie(url, "/none", "POST");
loadMovieNum("none.swf", 9); loadMovieNum(url, level, "GET");
unloadMovie("/none"); unloadMovieNum(9); unloadMovieNum(level);
trace(2 + 1);        //= 3
startDrag("/clip", 1, 0, 0, 50, 60); stopDrag();
toggleHighQuality(); toggleHighQuality(); stopAllSounds();
trace(2 + 2);        //= 4
getURL("FSCommand:asked", "now"); //! asked|now
setProperty("/clip", _x, x); setProperty("/clip", _y, x + 1);
trace(getProperty("/clip", _x) add "," add getProperty("/clip", _y)); //= 40,41
trace(getProperty("/", _xmouse) - getProperty("/clip", _xmouse)); //= 40
trace(getProperty("/", _ymouse) - getProperty("/clip", _ymouse)); //= 41
setProperty("/clip", _visible, 0);
trace(getProperty("/clip", _visible)); //=4-4 0
                     //=5+ false
setProperty("/clip", _visible, 1);
trace(getProperty("/clip", _visible)); //=4-4 1
                     //=5+ true
setProperty("/", _quality, "LOW");
trace(getProperty("/", _quality) add getProperty("/", _highquality)); //= LOW0
setProperty("/", _highquality, 1);
trace(getProperty("/", _quality) add getProperty("/", _highquality)); //= HIGH1
setProperty("/", _focusrect, 0);
trace(getProperty("/", _focusrect)); //=-5 0
                     //=6+ false
setProperty("/", _focusrect, 1);
trace(getProperty("/", _focusrect)); //=-5 1
                     //=6+ true
setProperty("/clip", _xscale, 50); setProperty("/clip", _yscale, 25);
trace(getProperty("/clip", _xscale) add "," add getProperty("/clip", _yscale)); //= 50,25
setProperty("/clip", _rotation, 90); setProperty("/clip", _alpha, 50);
trace(getProperty("/clip", _rotation) add "," add getProperty("/clip", _alpha)); //= 90,50
trace(getProperty("/clip", _currentframe) add "," add getProperty("/clip", _totalframes)); //= 1,5
trace(getProperty("/clip", _framesloaded)); //= 5
trace(getProperty("/clip", _target)); //= /clip
setProperty("/clip", _name, "other");
trace(getProperty("/other", _name)); //= other
trace(length(getProperty("/other", _droptarget))); //= 0
trace(int(getProperty("/other", _width) + getProperty("/other", _height))); //= 0
trace(length(getProperty("/", _url)) > 0); //=4-4 1
                     //=5+ true
setProperty("/", _soundbuftime, 7);
trace(getProperty("/", _soundbuftime)); //= 7
trace(length(getVersion()) > 4); //=4-4 1
                     //=5+ true
duplicateMovieClip("/other", "first", 2); duplicateMovieClip("/other", "second", 2);
trace(getProperty("/second", _name)); //= second
trace(length(getProperty("/first", _name))); //=-6 0
                     //=7+ 9
removeMovieClip("/second");
trace(length(getProperty("/second", _name))); //=-6 0
                     //=7+ 9
